// The yardstick of start-up: a bare Qt window of the menu's size, built with
// the same flags, measured by the same probe.
#include <QApplication>
#include <QWidget>

#include "view/startup_probe.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  tessaron::view::armStartupProbe(app);
  QWidget window;
  window.resize(640, 120);
  window.setWindowTitle(QStringLiteral("Bare"));
  window.show();
  return app.exec();
}
