// tessaron-fuzz: plays seeded random sessions of user actions on every form of
// the suite and checks, after every event, that no run-time end but the five
// failures occurs, that the event returned within its bound and that each
// form's own invariants hold. With --diff every action also goes through the
// real widgets, and the two outputs must agree line by line.
//
//   tessaron-fuzz [--seed N] [--events N] [--seconds N] [--session N]
//                 [--slow-ms N] [--hang-s N] [--diff] [--trace] [--out DIR]
//
// A finding is written as a script, DIR/fuzz-SEED-SESSION.tsc, that
// tessaron-script replays. Exit status: 0 nothing found, 1 findings.
#include <unistd.h>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/fuzz/checks.h"
#include "tests/fuzz/generator.h"
#include "tools/model_player.h"
#include "tools/script_host.h"
#include "tools/script_runner.h"
#if TESSARON_GUI
#include <QApplication>

#include "view/gui_player.h"
#include "view/style.h"
#endif

namespace {

using namespace tessaron;
using Clock = std::chrono::steady_clock;

struct Options {
  uint64_t seed = 1;
  long events = 10000;
  int session = 400;
  long slowMs = 3000;
  long hangS = 30;
  long seconds = 0;  // stop after this long, 0 for no limit
  bool diff = false;
  bool trace = false;  // print every action and what it showed
  std::string out = ".";
};

// One application with its player and its own output.
struct Lane {
  std::ostringstream out;
  script::ScriptHost host{out};
  Application app{host};
  std::unique_ptr<Player> player;
  std::unique_ptr<script::Runner> runner;

  explicit Lane(bool gui) {
    registerSuite(app);
#if TESSARON_GUI
    static int argc = 1;
    static char name[] = "tessaron-fuzz";
    static char* argv[] = {name, nullptr};
    if (gui) player = makeGuiPlayer(app, argc, argv);
#endif
    if (!player) player = std::make_unique<script::ModelPlayer>(app);
    runner = std::make_unique<script::Runner>(app, *player, host, out, registerSuite);
  }
  ~Lane() {
    runner.reset();
    player.reset();
    app.setObserver(nullptr);
  }
  // Plays one line; returns what it printed.
  std::string play(const std::string& line) {
    out.str("");
    std::istringstream in(line);
    runner->play(in);
    return out.str();
  }
  bool over() const { return host.failed() || app.failed(); }
};

const std::set<std::string> kFailureWords = {"Overflow", "Division by zero",
                                             "Invalid procedure call or argument", "Type mismatch",
                                             "Subscript out of range"};

struct Watch {
  std::atomic<int64_t> started{0};  // nanoseconds of the running event, 0 when idle
  std::mutex mutex;
  std::vector<std::string> lines;
  std::string file;
};

std::string reproducer(const Options& o, uint64_t session) {
  return o.out + "/fuzz-" + std::to_string(o.seed) + "-" + std::to_string(session) + ".tsc";
}

void writeScript(const std::string& file, const std::vector<std::string>& lines,
                 const std::string& why) {
  std::ofstream f(file);
  f << "# " << why << "\n";
  for (const std::string& l : lines) f << l << '\n';
}

bool parse(int argc, char** argv, Options& o) {
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    const auto value = [&](auto& v) {
      if (i + 1 >= argc) return false;
      v = static_cast<std::decay_t<decltype(v)>>(std::strtoll(argv[++i], nullptr, 10));
      return true;
    };
    if (a == "--seed"      ? value(o.seed)
        : a == "--events"  ? value(o.events)
        : a == "--session" ? value(o.session)
        : a == "--slow-ms" ? value(o.slowMs)
        : a == "--hang-s"  ? value(o.hangS)
        : a == "--seconds" ? value(o.seconds)
                           : false)
      continue;
    if (a == "--diff") {
      o.diff = true;
    } else if (a == "--trace") {
      o.trace = true;
    } else if (a == "--out" && i + 1 < argc) {
      o.out = argv[++i];
    } else {
      std::cerr << "usage: tessaron-fuzz [--seed N] [--events N] [--seconds N] [--session N]"
                   " [--slow-ms N]"
                   " [--hang-s N] [--diff] [--trace] [--out DIR]\n";
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Options o;
  if (!parse(argc, argv, o)) return 2;
#if TESSARON_GUI
  std::unique_ptr<QApplication> qt;
  if (o.diff) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int qtArgc = 1;
    qt = std::make_unique<QApplication>(qtArgc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& m) {
      // The offscreen platform's notes on window manager hints tell nothing.
      if (!m.startsWith(QLatin1String("This plugin does not support")))
        std::cerr << m.toStdString() << '\n';
    });
    view::setupLook(*qt);
  }
#else
  if (o.diff) {
    std::cerr << "--diff needs the build with the Qt view\n";
    return 2;
  }
#endif

  Watch watch;
  std::atomic<bool> done{false};
  std::thread watchdog([&] {
    while (!done) {
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      const int64_t t = watch.started;
      if (t == 0) continue;
      const auto ran = Clock::now().time_since_epoch() - std::chrono::nanoseconds(t);
      if (ran < std::chrono::seconds(o.hangS)) continue;
      std::lock_guard lock(watch.mutex);
      writeScript(watch.file, watch.lines, "hang: the last action did not return");
      std::cout << "finding: hang in " << watch.file << std::endl;
      _exit(1);
    }
  });

  long events = 0, findings = 0, divergences = 0, sessions = 0, slow = 0;
  std::map<std::string, long> ends;
  int64_t slowest = 0;
  std::string slowestLine;
  const auto start = Clock::now();
  const auto limit = start + std::chrono::seconds(o.seconds);
  while (events < o.events && (o.seconds == 0 || Clock::now() < limit)) {
    const uint64_t session = sessions++;
    fuzz::Generator gen(o.seed * 1000003 + session);
    Lane model(false);
    std::unique_ptr<Lane> gui;
    if (o.diff) gui = std::make_unique<Lane>(true);
    {
      std::lock_guard lock(watch.mutex);
      watch.lines.clear();
      watch.file = reproducer(o, session);
    }
    std::vector<std::string> lines;
    bool stop = false;
    for (int k = 0; k < o.session && events < o.events && !stop; ++k) {
      const std::string line = gen.next(model.app);
      lines.push_back(line);
      {
        std::lock_guard lock(watch.mutex);
        watch.lines.push_back(line);
      }
      if (++events % 250000 == 0)
        std::cout << "  " << events << " events, "
                  << std::chrono::duration<double>(Clock::now() - start).count() << " s, findings "
                  << findings << std::endl;
      std::string finding, said;
      const auto t0 = Clock::now();
      watch.started = t0.time_since_epoch().count();
      try {
        said = model.play(line);
      } catch (const std::exception& e) {
        finding = std::string("crash: ") + e.what();
      }
      watch.started = 0;
      if (o.trace) std::cout << "> " << line << '\n' << said;
      const int64_t ms =
          std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - t0).count();
      if (ms > slowest) {
        slowest = ms;
        slowestLine = line;
      }
      if (finding.empty() && ms > o.slowMs) {
        finding = "slow: " + std::to_string(ms) + " ms";
        ++slow;
      }
      if (finding.empty() && said.starts_with("error ")) finding = "script error: " + said;
      if (finding.empty() && model.over()) {
        const size_t at = said.find("fatal \"");
        const std::string words =
            at == std::string::npos ? "" : said.substr(at + 7, said.find('"', at + 7) - at - 7);
        if (!kFailureWords.contains(words)) finding = "end without a failure's words: " + said;
        ++ends[words];
        stop = true;
      }
      if (finding.empty() && !model.over())
        for (Form* f : model.app.loadedForms())
          if (std::string wrong = fuzz::checkForm(*f); !wrong.empty()) {
            finding = f->name() + ": " + wrong;
            break;
          }
      if (gui) {
        std::string shown;
        try {
          shown = gui->play(line);
        } catch (const std::exception& e) {
          shown = std::string("crash: ") + e.what();
        }
        if (shown != said) {
          ++divergences;
          const std::string file = reproducer(o, session);
          writeScript(file, lines, "divergence at the last line");
          std::cout << "divergence in " << file << "\n  model: " << said << "  window: " << shown
                    << std::endl;
          stop = true;
        }
      }
      if (!finding.empty()) {
        ++findings;
        const std::string file = reproducer(o, session);
        writeScript(file, lines, finding);
        std::cout << "finding: " << finding << " (" << file << ")" << std::endl;
        stop = true;
      }
    }
  }
  done = true;
  watchdog.join();
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  std::cout << "events " << events << ", sessions " << sessions << ", " << seconds << " s, "
            << "findings " << findings << ", divergences " << divergences << ", slowest " << slowest
            << " ms (" << slowestLine << ")\n";
  for (const auto& [words, n] : ends) std::cout << "  ended by \"" << words << "\": " << n << "\n";
  return findings + divergences == 0 ? 0 : 1;
}
