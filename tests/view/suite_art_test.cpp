// Every picture and help page the suite's design tables name is carried in
// the program: a missing one would draw nothing and go unnoticed.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QString>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"
#include "view/art.h"

namespace tessaron::test {
namespace {

TEST(SuiteArt, EveryNamedPictureIsCarried) {
  int argc = 1;
  char name[] = "suite_art_test";
  char* argv[] = {name};
  QApplication qt(argc, argv);
  RecordingHost host;
  Application app(host);
  registerSuite(app);
  int pictures = 0;
  for (const std::string& form : app.formNames()) {
    for (const auto& c : app.form(form).controls()) {
      const std::string& picture = c->design().picture;
      if (picture.empty()) continue;
      ++pictures;
      if (picture.starts_with(":/help/"))
        EXPECT_TRUE(QFile::exists(QString::fromStdString(picture))) << form << "." << c->path();
      else
        EXPECT_TRUE(view::hasArt(picture)) << form << "." << c->path() << ": " << picture;
    }
  }
  EXPECT_GT(pictures, 20);
  EXPECT_FALSE(view::hasArt("no-such-picture")) << "the check itself can tell a missing one";
}

}  // namespace
}  // namespace tessaron::test
