// Every caption of every form of the suite fits its box in the font the view
// ships with: no clipped letter, no wrapped line cut off at the foot. Run at
// scale 1 and again at scale 2 (QT_SCALE_FACTOR), so a new form is measured
// the day it joins the suite.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <sstream>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"
#include "view/fit.h"
#include "view/form_window.h"
#include "view/metrics.h"
#include "view/qt_view.h"
#include "view/style.h"

namespace tessaron::test {
namespace {

class CaptionFit : public ::testing::Test {
 protected:
  RecordingHost host;
  Application app{host};
  view::QtView view{app, false};
  void SetUp() override {
    app.setObserver(&view);
    registerSuite(app);
  }
};

std::string told(const std::vector<view::Unfit>& unfit) {
  std::ostringstream out;
  for (const auto& u : unfit)
    out << "\n  " << u.control << " \"" << u.text << "\" needs " << u.need << " px, has " << u.room;
  return out.str();
}

TEST_F(CaptionFit, TheShippedFaceIsTheOneInUse) {
  EXPECT_EQ(QFontInfo(view::formFont(8)).family(), QStringLiteral("DejaVu Sans Condensed"))
      << "install fonts-dejavu-extra";
}

TEST_F(CaptionFit, EveryCaptionOfEveryFormFitsItsBox) {
  app.run([&] { app.form("frmMain").Show(); });
  int forms = 0;
  for (const std::string& name : app.formNames()) {
    if (app.ended()) break;
    app.run([&] { app.form(name).Show(); });
    Form* form = app.loaded(name);
    ASSERT_NE(form, nullptr) << name;
    view::FormWindow* window = view.window(*form);
    ASSERT_NE(window, nullptr) << name;
    ++forms;
    const auto unfit = view::unfitTexts(*window);
    EXPECT_TRUE(unfit.empty()) << name << ":" << told(unfit);
  }
  EXPECT_GE(forms, 4);
}

TEST_F(CaptionFit, TheMeasureTellsACutCaption) {
  app.run([&] { app.form("frmMain").Show(); });
  app.run([&] { app.form("frmAbout").Show(); });
  Form& about = app.form("frmAbout");
  about.control("cmdOK").Caption =
      "OK, and a caption far too long for this button, whatever its face";
  about.control("Label3").Caption = std::string(400, 'x');
  view.refresh();
  const auto unfit = view::unfitTexts(*view.window(about));
  ASSERT_EQ(unfit.size(), 2u) << told(unfit);
  EXPECT_EQ(unfit[0].control, "Label3") << "a word too long to wrap";
  EXPECT_EQ(unfit[1].control, "cmdOK") << "too long even over two lines in a smaller face";
}

TEST_F(CaptionFit, AButtonDropsOuterBlanksThenBreaksItsCaptionOverItsLines) {
  app.run([&] { app.form("frmMain").Show(); });
  app.run([&] { app.form("frmLoan").Show(); });
  Form& loan = app.form("frmLoan");
  Control& amor = loan.control("cmdAmor");
  auto* button = qobject_cast<QPushButton*>(view.window(loan)->widget(amor));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(), QStringLiteral("Go to   No   Amor."));
  EXPECT_EQ(button->font().pointSizeF(), view::formFont(amor.FontSize).pointSizeF())
      << "dropping the blanks alone makes it fit";
  amor.Caption = "Go to the table of every month";
  view.refresh();
  EXPECT_EQ(button->text(), QStringLiteral("Go to the table of\nevery month"));
  EXPECT_TRUE(view::unfitTexts(*view.window(loan)).empty());
}

}  // namespace
}  // namespace tessaron::test

int main(int argc, char** argv) {
  QApplication qt(argc, argv);
  tessaron::view::setupLook(qt);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
