// Tessaron: the menu first, and the end when its last form has gone.
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

#include "suite/suite.h"
#include "surface/application.h"
#include "view/qt_host.h"
#include "view/qt_view.h"
#include "view/startup_probe.h"
#include "view/style.h"

int main(int argc, char** argv) {
  QApplication qt(argc, argv);
  tessaron::view::armStartupProbe(qt);
  tessaron::view::setupLook(qt);

  tessaron::view::QtHost host;
  tessaron::Application app(host);
  // No window is dragged beyond the desktop it stands on.
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    const QSize desk = screen->virtualSize();
    app.setScreen(desk.width() * 15, desk.height() * 15);
  }
  tessaron::view::QtView view(app);
  app.setObserver(&view);
  tessaron::registerSuite(app);

  if (!app.knows("frmMain")) {
    // A build without the menu still starts and says what it holds.
    QWidget notice;
    notice.setWindowTitle(QStringLiteral("Tessaron    V 7.3"));
    auto* text = new QLabel(QStringLiteral("This build of Tessaron holds no menu form yet.\n"
                                           "Close this window to end."),
                            &notice);
    text->setMargin(24);
    auto* layout = new QVBoxLayout(&notice);
    layout->addWidget(text);
    notice.show();
    qt.setQuitOnLastWindowClosed(true);
    return qt.exec();
  }

  app.run([&app] { app.form("frmMain").Show(); });
  if (app.ended()) return app.failed() ? 3 : 0;
  const int status = qt.exec();
  return app.failed() ? 3 : status;
}
