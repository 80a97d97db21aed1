#include <gtest/gtest.h>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron {
namespace {

TEST(AboutForm, StandsBelowTheMenuAndClosesWithOK) {
  test::RecordingHost host;
  Application app(host);
  registerSuite(app);
  Form& menu = app.form("frmMain");
  app.show(menu);
  app.click(menu.control("cmdAbout"));
  Form* about = app.loaded("frmAbout");
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(about->Caption, "  About  Tessaron");
  EXPECT_EQ(about->Top, menu.Height + 1080);
  EXPECT_EQ(about->control("Label2").Caption,
            "Developed for Any Person with Happy Smiles. \r\n1999. 10.");
  // Shown again: no new Load, so a taller menu does not move it.
  app.resize(menu, menu.Width, menu.Height + 500);
  app.click(menu.control("cmdAbout"));
  EXPECT_EQ(about->Top, menu.Height - 500 + 1080);
  app.click(about->control("cmdOK"));
  EXPECT_EQ(app.loaded("frmAbout"), nullptr);
  EXPECT_EQ(host.endings, 0);
}

}  // namespace
}  // namespace tessaron
