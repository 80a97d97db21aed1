// The sheet's hot paths at its full size: entering the 1200th datum, sorting
// 1200 data, and redrawing the distribution graph.
#include <benchmark/benchmark.h>

#include <string>

#include "statistics/statistics.h"
#include "suite/suite.h"
#include "surface/application.h"

namespace {
using namespace tessaron;

// A suite with the sheet open and `count` data typed in place order, each
// followed by Enter, largest first so that the sort has the most to do.
struct FullSheet {
  explicit FullSheet(int count) : sheet(Open(app)) {
    app.focus(sheet.control("txtBBB", 1));
    for (int place = 1; place <= count; ++place) {
      Control* box = app.focused();
      app.type(*box, std::to_string((1200 - place) % 997) + ".25");
      if (place < count) app.press(*box, 13);
    }
    app.focus(sheet.control("cmdCalc"));
  }
  static frmStatistics& Open(Application& app) {
    registerSuite(app);
    app.show(app.form("frmStatistics"));
    return app.form<frmStatistics>("frmStatistics");
  }
  QuietHost host;
  Application app{host};
  frmStatistics& sheet;
};

void BM_Enter1200thDatum(benchmark::State& state) {
  FullSheet full(1200);
  // The last page shows places 1186 to 1205: place 1200 is cell 15.
  Control& cell = full.sheet.control("txtBBB", 15);
  Control& away = full.sheet.control("cmdCalc");
  int k = 0;
  for (auto _ : state) {
    // Type the datum into place 1200 and leave the cell, which takes it.
    full.app.type(cell, std::to_string(++k % 1000));
    full.app.focus(away);
  }
  if (full.sheet.sheet().DataPlace != 1200 || full.sheet.sheet().DataCount != 1200)
    state.SkipWithError("not at place 1200");
}
BENCHMARK(BM_Enter1200thDatum)->Unit(benchmark::kMicrosecond);

void BM_Sort1200(benchmark::State& state) {
  FullSheet full(1200);
  for (auto _ : state) {
    full.sheet.PubSort();
    benchmark::DoNotOptimize(full.sheet.sheet().SortCount);
  }
  if (full.sheet.sheet().SortCount != 997) state.SkipWithError("wrong grouping");
}
BENCHMARK(BM_Sort1200)->Unit(benchmark::kMicrosecond);

void BM_Calculate1200(benchmark::State& state) {
  FullSheet full(1200);
  for (auto _ : state) {
    full.sheet.PubCalc();
    benchmark::DoNotOptimize(full.sheet.sheet().DataDev);
  }
}
BENCHMARK(BM_Calculate1200)->Unit(benchmark::kMicrosecond);

void BM_RedrawGraph(benchmark::State& state) {
  FullSheet full(1200);
  full.sheet.PubCalc();
  full.sheet.DrawTarget = &full.sheet.control("picGraph").picture();
  for (auto _ : state) {
    full.sheet.PubGraph();
    benchmark::DoNotOptimize(full.sheet.control("picGraph").picture().ops().size());
  }
  if (full.sheet.control("picGraph").picture().ops().size() != 1391)
    state.SkipWithError("wrong drawing");
}
BENCHMARK(BM_RedrawGraph)->Unit(benchmark::kMicrosecond);
}  // namespace

BENCHMARK_MAIN();
