// From the last key to the repainted graph, through the real Qt view
// (offscreen): a changed coefficient, Solve, then Graph, whose click solves
// again, tunes the scales, redraws the curve and repaints the window.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "equations/eqtns.h"
#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"
#include "view/form_window.h"
#include "view/qt_view.h"

namespace tessaron {
namespace {

struct Scene {
  test::RecordingHost host;
  Application app{host};
  view::QtView view{app, false};
  Form* form = nullptr;

  explicit Scene(int type, std::vector<const char*> coefficients) {
    app.setObserver(&view);
    registerSuite(app);
    form = &app.form("frmEqtns");
    app.show(*form);
    if (type != 1) app.click(form->control("optEqn", type));
    int box = 1;
    for (const char* c : coefficients) {
      if (type == 3 && box == 4) ++box;
      app.type(form->control("txtBBB", box++), c);
    }
  }
  QWidget* window() { return view.window(*form); }
};

// One user turn: the coefficient changes, Solve, Return, and the Graph
// click whose time from the key to the painted window is measured.
void Turn(benchmark::State& state, Scene& s, int box, const char* a, const char* b) {
  bool flip = false;
  for (auto _ : state) {
    state.PauseTiming();
    s.app.click(s.form->control("cmdReturn"));
    s.app.type(s.form->control("txtBBB", box), flip ? a : b);
    s.app.click(s.form->control("cmdCalc"));
    s.window()->repaint();
    flip = !flip;
    state.ResumeTiming();
    s.app.click(s.form->control("cmdGraph"));
    s.window()->repaint();
  }
}

void BM_ParabolaGraph(benchmark::State& state) {
  Scene s(1, {"1", "-3", "2"});
  Turn(state, s, 3, "2", "-5");
}
BENCHMARK(BM_ParabolaGraph)->Unit(benchmark::kMillisecond);

void BM_CubicGraph(benchmark::State& state) {
  Scene s(2, {"1", "-6", "11", "-6"});
  Turn(state, s, 4, "-6", "-5");
}
BENCHMARK(BM_CubicGraph)->Unit(benchmark::kMillisecond);

void BM_ThreeUnknownsGraph(benchmark::State& state) {
  Scene s(4, {"1", "1", "1", "6", "0", "2", "5", "-4", "2", "5", "-1", "27"});
  Turn(state, s, 12, "27", "20");
}
BENCHMARK(BM_ThreeUnknownsGraph)->Unit(benchmark::kMillisecond);

// The model alone: solving and drawing the display list, no painting.
void BM_CubicSolveAndDraw(benchmark::State& state) {
  test::RecordingHost host;
  Application app{host};
  registerSuite(app);
  Form& f = app.form("frmEqtns");
  app.show(f);
  app.click(f.control("optEqn", 2));
  const char* figures[] = {"1", "-6", "11", "-6"};
  for (int i = 1; i <= 4; ++i) app.type(f.control("txtBBB", i), figures[i - 1]);
  for (auto _ : state) {
    app.click(f.control("cmdCalc"));
    app.click(f.control("cmdGraph"));
    benchmark::DoNotOptimize(f.control("picGraph").picture().ops().size());
  }
}
BENCHMARK(BM_CubicSolveAndDraw)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaron

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
