// The Qt view drawn offscreen: geometry from twips, snapshots, refresh after
// events, printing to PDF, and user input reaching the model.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QGroupBox>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimer>

#include "tests/view/test_form.h"
#include "view/form_window.h"
#include "view/gui_player.h"
#include "view/metrics.h"
#include "view/print.h"
#include "view/qt_view.h"

namespace tessaron::viewtest {
namespace {

using view::px;

class ViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    app.registerForm("frmTest", [](Application& a) { return std::make_unique<TestForm>(a); });
  }
  TestForm& shown() {
    app.show(app.form("frmTest"));
    return app.form<TestForm>("frmTest");
  }
  QWidget* widget(const std::string& name) {
    Form& f = app.form("frmTest");
    return view.window(f)->widget(f.control(name));
  }
  void settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  RecordingHost host;
  Application app{host};
  view::QtView view{app, false};
  bool attached = [this] {
    app.setObserver(&view);
    return true;
  }();
};

TEST_F(ViewTest, WidgetsStandWhereTheTwipsSay) {
  TestForm& f = shown();
  view::FormWindow* w = view.window(f);
  ASSERT_NE(w, nullptr);
  EXPECT_TRUE(w->isVisible());
  EXPECT_EQ(w->size(),
            QSize(kFormWidth / 15 - view::kFrameWidthPx, kFormHeight / 15 - view::kFrameHeightPx));
  EXPECT_EQ(w->windowTitle(), QStringLiteral("View test"));
  for (const auto& c : f.controls()) {
    if (c->kind() == ControlKind::Timer || c->kind() == ControlKind::Line) continue;
    QWidget* cw = w->widget(*c);
    ASSERT_NE(cw, nullptr) << c->name();
    EXPECT_EQ(cw->geometry(), QRect(c->Left / 15, c->Top / 15, c->Width / 15, c->Height / 15))
        << c->name();
  }
  // Option buttons stand inside their frame.
  EXPECT_EQ(widget("optA")->parentWidget(), widget("fraChoice"));
  EXPECT_EQ(qobject_cast<QLabel*>(widget("lblTitle"))->text(),
            QString::fromUtf8("Hello 안녕하세요"));
  EXPECT_EQ(widget("cmdOK")->toolTip(), QStringLiteral(" Press it "));
  // The vertical bar runs from 10 at the top to 0.
  auto* bar = qobject_cast<QScrollBar*>(widget("vsbValue"));
  EXPECT_EQ(bar->value(), 5);
  EXPECT_TRUE(bar->invertedAppearance());
  auto* grid = qobject_cast<QTableWidget*>(widget("grdTable"));
  EXPECT_EQ(grid->item(1, 2)->text(), QStringLiteral("7.25"));
  EXPECT_EQ(grid->columnWidth(0), 20);
  EXPECT_EQ(grid->rowHeight(1), 16);
}

TEST_F(ViewTest, SnapshotIsSizedAsTheFormsTwips) {
  TestForm& f = shown();
  const QString file = QDir::temp().filePath(QStringLiteral("tessaron_view_test.png"));
  ASSERT_TRUE(view.window(f)->snapshot().save(file, "PNG"));
  const QImage image(file);
  ASSERT_FALSE(image.isNull());
  EXPECT_GT(QFileInfo(file).size(), 1000);
  EXPECT_EQ(image.size(), QSize(kFormWidth / 15, kFormHeight / 15));
  // The picture box's blue diagonal is drawn: some pixel in it is blue.
  const QRect pic(view::kFrameBorderPx + px(3900),
                  view::kFrameBorderPx + view::kTitleBarPx + px(2640), px(3000), px(1800));
  bool blue = false;
  for (int x = pic.left() + 4; x < pic.right() - 4 && !blue; ++x)
    for (int y = pic.top() + 4; y < pic.bottom() - 4 && !blue; ++y) {
      const QColor c = image.pixelColor(x, y);
      blue = c.blue() > 200 && c.red() < 80 && c.green() < 80;
    }
  EXPECT_TRUE(blue);
}

TEST_F(ViewTest, RefreshKeepsTheWidgetsInStep) {
  TestForm& f = shown();
  app.run([&] {
    f.control("lblTitle").Caption = "Changed";
    f.control("cmdOK").Enabled = false;
    f.control("txtName").Text = "abc";
    f.control("chkOn").Visible = false;
    f.control("optB").setValue(Value(true));
    f.control("hsbValue").setValue(Value(40));
    f.control("lblTitle").Left = 300;
    f.control("grdTable").grid().setTextMatrix(2, 1, "new");
    f.Caption = "Renamed";
    f.Width = 6000;
  });
  EXPECT_EQ(qobject_cast<QLabel*>(widget("lblTitle"))->text(), QStringLiteral("Changed"));
  EXPECT_EQ(widget("lblTitle")->x(), 20);
  EXPECT_FALSE(widget("cmdOK")->isEnabled());
  EXPECT_EQ(qobject_cast<QLineEdit*>(widget("txtName"))->text(), QStringLiteral("abc"));
  EXPECT_FALSE(widget("chkOn")->isVisibleTo(view.window(f)));
  EXPECT_TRUE(qobject_cast<QAbstractButton*>(widget("optB"))->isChecked());
  EXPECT_FALSE(qobject_cast<QAbstractButton*>(widget("optA"))->isChecked());
  EXPECT_EQ(qobject_cast<QScrollBar*>(widget("hsbValue"))->value(), 40);
  EXPECT_EQ(qobject_cast<QTableWidget*>(widget("grdTable"))->item(2, 1)->text(),
            QStringLiteral("new"));
  EXPECT_EQ(view.window(f)->windowTitle(), QStringLiteral("Renamed"));
  EXPECT_EQ(view.window(f)->width(), 6000 / 15 - view::kFrameWidthPx);
  EXPECT_EQ(f.changes, 1);
  // The model's focus is shown on the widgets.
  app.focus(f.control("txtName"));
  EXPECT_EQ(view.window(f)->focusWidget(), widget("txtName"));
  app.run([&] { f.control("hsbValue").SetFocus(); });
  EXPECT_EQ(view.window(f)->focusWidget(), widget("hsbValue"));
}

TEST_F(ViewTest, PrintedJobRendersToPdf) {
  TestForm& f = shown();
  app.run([&] {
    PrinterDevice& p = f.Printer();
    p.FontSize = 12;
    p.Print({Value("Tessaron"), Tab{20}, Value("page one")});
    p.Line(0, 1440, 1440 * 6, 1440, 0);
    p.PaintPicture(f.control("picGraph").picture(), 1440, 2000, 2880, 1440);
    p.NewPage();
    p.Print({Value("page two")});
    p.EndDoc();
  });
  ASSERT_EQ(host.jobs.size(), 1u);
  ASSERT_EQ(host.jobs.back().pages.size(), 2u);
  const std::string file =
      QDir::temp().filePath(QStringLiteral("tessaron_view_test.pdf")).toStdString();
  QFile::remove(QString::fromStdString(file));
  ASSERT_TRUE(view::renderJobToPdf(host.jobs.back(), file));
  QFile pdf(QString::fromStdString(file));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  const QByteArray bytes = pdf.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF"));
  EXPECT_EQ(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r"), 2);
}

TEST_F(ViewTest, ClickOnTheWidgetReachesTheClickRoutine) {
  TestForm& f = shown();
  auto* button = qobject_cast<QPushButton*>(widget("cmdOK"));
  button->click();
  EXPECT_EQ(f.clicks, 1);
  // The routine's caption is on the screen once the event has run.
  EXPECT_EQ(qobject_cast<QLabel*>(widget("lblTitle"))->text(), QStringLiteral("Clicked 1"));
  // A disabled button cannot be pressed.
  app.run([&] { f.control("cmdOK").Enabled = false; });
  button->click();
  EXPECT_EQ(f.clicks, 1);
}

TEST_F(ViewTest, WidgetStateChangesOnlyThroughTheModel) {
  TestForm& f = shown();
  auto* option = qobject_cast<QAbstractButton*>(widget("optB"));
  app.run([&] { f.control("optA").setValue(Value(true)); });
  option->click();
  EXPECT_EQ(f.control("optB").value(), Value(true));
  EXPECT_TRUE(option->isChecked());
  EXPECT_FALSE(qobject_cast<QAbstractButton*>(widget("optA"))->isChecked());
  // A scroll bar's step reaches the model, which fires Change once.
  auto* bar = qobject_cast<QScrollBar*>(widget("hsbValue"));
  bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
  settle();
  EXPECT_EQ(f.control("hsbValue").value(), Value(10));
  EXPECT_EQ(bar->value(), 10);
  EXPECT_EQ(f.changes, 1);
}

TEST_F(ViewTest, TimerTicksWaitForTheRunningEvent) {
  view::QtView live(app, true);
  app.setObserver(&live);
  TestForm& f = shown();
  app.run([&] { f.control("tmrTick").Interval = 20; });
  int ticksInside = -1;
  // A routine that waits inside a nested loop, as a modal box does.
  f.on("chkOn", Event::Click, [&](EventArgs&) {
    const int before = f.ticks;
    QEventLoop loop;
    QTimer::singleShot(150, &loop, &QEventLoop::quit);
    loop.exec();
    ticksInside = f.ticks - before;
  });
  app.click(f.control("chkOn"));
  EXPECT_EQ(ticksInside, 0);
  QElapsedTimer clock;
  clock.start();
  const int after = f.ticks;
  while (f.ticks == after && clock.elapsed() < 2000) QCoreApplication::processEvents();
  EXPECT_GT(f.ticks, after);
  app.setObserver(&view);
}

TEST_F(ViewTest, KeyboardKeysGoThroughTheModel) {
  TestForm& f = shown();
  QWidget* box = widget("txtName");
  app.run([&] { f.control("txtName").Text = ""; });
  for (const auto& [key, text] : {std::pair{Qt::Key_A, "a"}, {Qt::Key_7, "7"}, {Qt::Key_B, "b"}}) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, QString::fromLatin1(text));
    QCoreApplication::sendEvent(box, &down);
  }
  // The KeyPress routine made capitals and dropped the digit; the box shows
  // the model's text, not what the keys would have typed by themselves.
  EXPECT_EQ(f.control("txtName").Text, "AB");
  EXPECT_EQ(qobject_cast<QLineEdit*>(box)->text(), QStringLiteral("AB"));
  QKeyEvent back(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
  QCoreApplication::sendEvent(box, &back);
  EXPECT_EQ(f.control("txtName").Text, "A");
  // Keys on the window itself reach the form's KeyDown with the key's code.
  QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
  QCoreApplication::sendEvent(view.window(f), &f2);
  EXPECT_EQ(f.events.back(), "Form.KeyDown 113");
  QKeyEvent left(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
  QCoreApplication::sendEvent(view.window(f), &left);
  EXPECT_EQ(f.events.back(), "Form.KeyDown 37");
}

TEST_F(ViewTest, DoubleClickOnTheHelpIconOpensTheHelpPage) {
  shown();
  QWidget* icon = widget("oleHelp");
  const QPointF at(icon->rect().center());
  QMouseEvent twice(QEvent::MouseButtonDblClick, at, icon->mapTo(icon->window(), at),
                    icon->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(icon, &twice);
  QTextBrowser* help = view.helpWindow();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  if (QFile::exists(QStringLiteral(":/help/CalcHelp.html"))) {
    EXPECT_EQ(help->source(), QUrl(QStringLiteral("qrc:/help/CalcHelp.html")));
    EXPECT_GT(help->toPlainText().size(), 200);
  } else {
    EXPECT_TRUE(help->toPlainText().contains(QStringLiteral("not part of this build")));
  }
}

TEST_F(ViewTest, FillingTheGridCellByCellKeepsItsFirstRowsOnView) {
  TestForm& f = shown();
  auto* table = qobject_cast<QTableWidget*>(widget("grdTable"));
  app.run([&] {
    Grid& g = f.control("grdTable").grid();
    g.setRows(60);
    for (int r = 1; r < 60; ++r) {
      g.setRow(r);
      g.setCol(1);
      g.setText("row " + std::to_string(r));
    }
  });
  settle();
  EXPECT_EQ(table->currentRow(), 59);
  EXPECT_EQ(table->verticalScrollBar()->value(), 0);
  EXPECT_GT(table->verticalScrollBar()->maximum(), 0) << "the rows must overflow the box";
}

TEST_F(ViewTest, F1OpensTheHelpPageAndEscClosesIt) {
  shown();
  QWidget* w = view.window(app.form("frmTest"));
  QKeyEvent f1(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
  QCoreApplication::sendEvent(w, &f1);
  QTextBrowser* help = view.helpWindow();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QCoreApplication::sendEvent(help, &esc);
  settle();
  EXPECT_TRUE(view.helpWindow() == nullptr || !view.helpWindow()->isVisible());
}

TEST_F(ViewTest, EveryControlHasAnAccessibleName) {
  TestForm& f = shown();
  EXPECT_EQ(widget("cmdOK")->accessibleName(), QStringLiteral("Press it"));
  for (const auto& c : f.controls()) {
    QWidget* cw = view.window(f)->widget(*c);
    if (!cw) continue;
    EXPECT_FALSE(cw->accessibleName().isEmpty()) << c->name();
  }
}

TEST_F(ViewTest, PlayerDeliversRealInput) {
  int argc = 1;
  char name[] = "view_tests";
  char* argv[] = {name, nullptr};
  app.setObserver(nullptr);
  auto player = makeGuiPlayer(app, argc, argv);
  Form& form = app.form("frmTest");
  player->show(form);
  TestForm& f = app.form<TestForm>("frmTest");
  Control& ok = f.control("cmdOK");
  player->click(ok);
  EXPECT_EQ(f.clicks, 1);
  EXPECT_EQ(player->read(f.control("lblTitle"), "Caption"), Value("Clicked 1"));
  // Typing goes key by key through the box's KeyPress.
  player->type(f.control("txtName"), "ab1c");
  EXPECT_EQ(f.control("txtName").Text, "ABC");
  EXPECT_EQ(player->read(f.control("txtName"), "Text"), Value("ABC"));
  EXPECT_EQ(app.focused(), &f.control("txtName"));
  player->focus(ok);
  EXPECT_EQ(app.focused(), &ok);
  player->scroll(f.control("hsbValue"), 55);
  EXPECT_EQ(f.control("hsbValue").value(), Value(55));
  player->scroll(f.control("hsbValue"), 55);
  EXPECT_EQ(f.changes, 1);
  player->cell(f.control("grdTable"), 2, 1);
  EXPECT_EQ(f.events.back(), "grdTable.Click 2,1");
  player->click(f.control("imgLogo"));
  EXPECT_EQ(f.events.back(), "imgLogo.Click");
  player->keydown(form, 113, 0);
  EXPECT_EQ(f.events.back(), "Form.KeyDown 113");
  player->tick(f.control("tmrTick"));
  EXPECT_EQ(f.ticks, 1);
  EXPECT_EQ(player->read(f.control("chkOn"), "Visible"), Value(true));
  const std::string file = QDir::temp().filePath("tessaron_player.png").toStdString();
  ASSERT_TRUE(player->snapshot(form, file));
  EXPECT_EQ(QImage(QString::fromStdString(file)).size(), QSize(kFormWidth / 15, kFormHeight / 15));
  player->close(form);
  EXPECT_EQ(app.loaded("frmTest"), nullptr);
  EXPECT_EQ(host.calls.back(), "ended");
}

}  // namespace
}  // namespace tessaron::viewtest

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
