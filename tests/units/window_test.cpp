// The converter in its real window: every fact of the table and every
// heading fits its column, every row shows whole, and the whole table fits
// the grid without scrolling.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"
#include "units/conver.h"
#include "units/unit_table.h"
#include "view/form_window.h"
#include "view/qt_view.h"

namespace tessaron::test {
namespace {

class ConverWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    registerSuite(app);
    app.setObserver(&view);
    app.show(app.form("frmConver"));
    app.click(app.form("frmConver").control("optCoun", 1));
    QCoreApplication::processEvents();
  }
  QTableWidget& table() {
    Form& f = app.form("frmConver");
    return *qobject_cast<QTableWidget*>(view.window(f)->widget(f.control("Table")));
  }
  QLabel& label(const char* name) {
    Form& f = app.form("frmConver");
    return *qobject_cast<QLabel*>(view.window(f)->widget(f.control(name)));
  }
  // The label's text as the window shows it fits the label.
  void fits(const char* name) {
    QCoreApplication::processEvents();
    QLabel& l = label(name);
    ASSERT_EQ(l.text().toStdString(), app.form("frmConver").control(name).Caption);
    EXPECT_LE(QFontMetrics(l.font()).horizontalAdvance(l.text()), l.width())
        << name << " \"" << l.text().toStdString() << "\"";
  }

  RecordingHost host;
  Application app{host};
  view::QtView view{app, false};
};

// A cell's text needs its width plus the cell's own margins.
constexpr int kMarginPx = 8;

TEST_F(ConverWindow, EveryTextFitsItsColumn) {
  QTableWidget& t = table();
  for (const UnitCell& u : UnitCells()) {
    QTableWidgetItem* item = t.item(u.row, u.col);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text().toStdString(), u.text);
    const int need = QFontMetrics(item->font()).horizontalAdvance(item->text()) + kMarginPx;
    EXPECT_LE(need, t.columnWidth(u.col)) << u.text;
  }
  const auto headings = UnitHeadings();
  for (int col = 1; col <= 10; ++col) {
    QTableWidgetItem* head = t.horizontalHeaderItem(col);
    ASSERT_NE(head, nullptr);
    EXPECT_EQ(head->text().toStdString(), headings[col - 1]);
    const int need = QFontMetrics(head->font()).horizontalAdvance(head->text()) + kMarginPx;
    EXPECT_LE(need, t.columnWidth(col)) << headings[col - 1];
  }
}

TEST_F(ConverWindow, RowsShowWholeAndTheTableNeedsNoScrolling) {
  QTableWidget& t = table();
  const int line = QFontMetrics(t.item(1, 1)->font()).height();
  for (int row = 1; row < t.rowCount(); ++row) EXPECT_GE(t.rowHeight(row), line) << row;
  int width = 0, height = t.horizontalHeader()->height();
  for (int col = 0; col < t.columnCount(); ++col) width += t.columnWidth(col);
  for (int row = 0; row < t.rowCount(); ++row)
    if (!t.isRowHidden(row)) height += t.rowHeight(row);
  EXPECT_LE(width, t.viewport()->width());
  EXPECT_LE(height - t.horizontalHeader()->height(), t.viewport()->height());
}

TEST_F(ConverWindow, EveryUnitNameFitsAboveItsBox) {
  Form& f = app.form("frmConver");
  for (const UnitCell& u : UnitCells()) {
    if (u.k == 0) continue;
    app.cell(f.control("Table"), u.row, u.col);
    fits("lblAA");
    fits("lblBB");
  }
}

TEST_F(ConverWindow, EveryFigureOfTheQuickBarFitsItsLabel) {
  Form& f = app.form("frmConver");
  Control& bar = f.control("HscrAll");
  for (int option = 0; option <= 3; ++option) {
    app.click(f.control("optChoice", option));
    for (int v = bar.Min(); v <= bar.Max(); ++v) {
      app.scroll(bar, v);
      fits("lblFP");
      fits("lblKM");
    }
  }
}

}  // namespace
}  // namespace tessaron::test

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
