// A zoom or a move in the real window: the time from the click on the key to
// the picture painted again, through the Qt view (offscreen when no display
// is set). The picture is painted at once after the click's event, as the
// screen would paint it at its next frame.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <cstdlib>
#include <memory>

#include "calc/ovicalc.h"
#include "surface/application.h"
#include "view/form_window.h"
#include "view/qt_view.h"

namespace {
using namespace tessaron;

struct Window {
  QuietHost host;
  Application app{host};
  view::QtView view{app, false};
  OviCalc* calc;
  Window() {
    app.setObserver(&view);
    app.registerForm("OviCalc", [](Application& a) { return std::make_unique<OviCalc>(a); });
    calc = &app.form<OviCalc>("OviCalc");
    app.show(*calc);
    for (const char* k : {"cmdTeqn", "cmdRad", "cmdTform", "cmdT", "SSin"}) click(k);
    click("Operator", 3);
    click("cmdT");
    click("Squar");
    click("Operator", 1);
    click("Number", 3);
    click("Operator", 4);
    click("cmdOpenP");
    click("cmdT");
    click("Operator", 0);
    click("Number", 1);
    click("cmdCloseP");
    click("Operator", 2);
    click("cmdGraph");
  }
  QWidget* widget(const char* name, int index = -1) {
    return view.window(*calc)->widget(calc->control(name, index));
  }
  // A real press and release on the key's middle.
  void click(const char* name, int index = -1) {
    QWidget* w = widget(name, index);
    const QPointF at(w->width() / 2.0, w->height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, at, w->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, at, w->mapToGlobal(at), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &press);
    QCoreApplication::sendEvent(w, &release);
  }
};

void clickToPaint(benchmark::State& state, const char* there, const char* back) {
  Window w;
  QWidget* picture = w.widget("picGraph");
  QImage frame(picture->size() * 2, QImage::Format_ARGB32_Premultiplied);
  frame.setDevicePixelRatio(2);
  bool out = true;
  for (auto _ : state) {
    w.click(out ? there : back);
    out = !out;
    QCoreApplication::processEvents();
    // The picture painted, at twice the pixels of a high-density screen.
    picture->render(&frame);
  }
  // TESSARON_GRAPH_FRAME=FILE.png keeps the last frame, to look at.
  if (const char* file = std::getenv("TESSARON_GRAPH_FRAME")) frame.save(file);
}

void BM_ZoomClickToPaint(benchmark::State& state) {
  clickToPaint(state, "cmdZoomPlus", "cmdZoomMinus");
}
BENCHMARK(BM_ZoomClickToPaint)->Unit(benchmark::kMillisecond);

void BM_MoveClickToPaint(benchmark::State& state) {
  clickToPaint(state, "cmdYaxLeft", "cmdYaxRite");
}
BENCHMARK(BM_MoveClickToPaint)->Unit(benchmark::kMillisecond);
}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
