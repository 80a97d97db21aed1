// Averages, deviations and shares of random data sets, entered as a user
// enters them, against figures made outside the code by Python's statistics
// module (make_statistics_vectors.py).
#include <cmath>
#include <fstream>
#include <sstream>

#include "tests/statistics/statistics_fixture.h"

namespace tessaron::test {
namespace {

struct Expected {
  int count = 0;
  double sum = 0, mean = 0, pstdev = 0, meanAll = 0;
  int overLow = 0, overHigh = 0;
  std::string tableLow, tableHigh, exactLow, exactHigh;
};

struct VectorSet {
  int id = 0;
  std::vector<std::string> cells;
  int last = 0;
  std::string low, high;
  Expected want;
};

std::vector<VectorSet> ReadSets() {
  std::ifstream in(STATISTICS_VECTORS);
  std::vector<VectorSet> sets;
  std::string line;
  while (std::getline(in, line)) {
    std::istringstream words(line);
    std::string head;
    words >> head;
    if (head == "set") {
      sets.emplace_back();
      words >> sets.back().id;
    } else if (head == "cells") {
      std::string w;
      while (words >> w) sets.back().cells.push_back(w == "_" ? "" : w);
    } else if (head == "last") {
      words >> sets.back().last;
    } else if (head == "limits") {
      words >> sets.back().low >> sets.back().high;
    } else if (head == "figures") {
      Expected& e = sets.back().want;
      words >> e.count >> e.sum >> e.mean >> e.pstdev >> e.meanAll >> e.overLow >> e.overHigh >>
          e.tableLow >> e.tableHigh >> e.exactLow >> e.exactHigh;
    }
  }
  return sets;
}

// Agreement to a few units in the last place of the larger figure.
void Near(double got, double want, const std::string& what) {
  EXPECT_LE(std::fabs(got - want), 1e-9 * std::max(1.0, std::fabs(want))) << what;
}

struct VectorRun : StatisticsSession {
  void Play(const VectorSet& v) {
    entries(v.cells, false);
    // Blank places after the last datum count only when Last is typed.
    if (v.last != sheet().Aim[1]) type("txtAim", 1, std::to_string(v.last));
    if (v.low != "-") type("txtAim", 2, v.low);
    if (v.high != "-") type("txtAim", 3, v.high);
    click("cmdCalc");
  }
};

TEST(StatisticsVectorSets, AgreeWithPython) {
  const std::vector<VectorSet> sets = ReadSets();
  ASSERT_GE(sets.size(), 300u);
  int withShares = 0;
  for (const VectorSet& v : sets) {
    // A fresh suite for each set, as a fresh run of the program.
    VectorRun run;
    run.Play(v);
    const std::string id = "set " + std::to_string(v.id);
    EXPECT_TRUE(run.host.boxes.empty()) << id;
    const StatisticsSheet& s = run.sheet();
    const Expected& e = v.want;
    EXPECT_EQ(s.DataCount, e.count) << id;
    EXPECT_EQ(static_cast<int>(s.Aim[1]), v.last) << id;
    Near(s.DataSum, e.sum, id + " sum");
    Near(s.DataAvg, e.mean, id + " average");
    Near(s.DataDev, e.pstdev, id + " deviation");
    Near(s.AvgAll, e.meanAll, id + " average over all places");
    EXPECT_TRUE(s.IsCalced) << id;
    if (v.low != "-") {
      EXPECT_EQ(s.OverLow, e.overLow) << id;
      Near(s.StatLow, std::stod(e.tableLow), id + " low share by the table");
      if (e.exactLow != "-") {
        EXPECT_NEAR(s.StatLow, std::stod(e.exactLow), 1.5e-4) << id;
        ++withShares;
      }
    }
    if (v.high != "-") {
      EXPECT_EQ(s.OverHigh, e.overHigh) << id;
      Near(s.StatHigh, std::stod(e.tableHigh), id + " high share by the table");
      if (e.exactHigh != "-") {
        EXPECT_NEAR(s.StatHigh, std::stod(e.exactHigh), 1.5e-4) << id;
        ++withShares;
      }
    }
  }
  EXPECT_GE(withShares, 400);
}

}  // namespace
}  // namespace tessaron::test
