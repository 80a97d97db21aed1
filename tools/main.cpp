// tessaron-script: plays scripts of user actions against the suite's forms
// and prints what the user would see, on the plain model or, with --gui,
// through the real widgets.
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "suite/suite.h"
#include "surface/application.h"
#include "tests/support/sample_form.h"
#include "tools/model_player.h"
#include "tools/script_host.h"
#include "tools/script_runner.h"
#if TESSARON_GUI
#include "view/gui_player.h"
#include "view/print.h"
#endif

namespace {
constexpr int kScriptError = 2;

void registerForms(tessaron::Application& app) {
  tessaron::registerSuite(app);
  tessaron::registerSample(app);
}
}  // namespace

int main(int argc, char** argv) {
  using namespace tessaron;
  bool gui = false;
  std::string pdf;  // with --gui: each printout also goes to this PDF file
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--gui") {
      gui = true;
    } else if (arg == "--pdf" && i + 1 < argc) {
      pdf = argv[++i];
    } else if (arg.size() > 1 && arg[0] == '-' && arg != "-") {
      std::cout << "error 0: unknown option " << arg << '\n';
      return kScriptError;
    } else {
      files.push_back(arg);
    }
  }
  if (files.empty()) files.push_back("-");

  script::ScriptHost host(std::cout);
  Application app(host);
  registerForms(app);

  // Qt keeps a reference to its argument count for the life of the program.
  static int qtArgc = 1;
  std::unique_ptr<Player> player;
  if (gui) {
#if TESSARON_GUI
    player = makeGuiPlayer(app, qtArgc, argv);
    if (!pdf.empty()) {
      // The first printout takes the name as given, later ones a number.
      host.alsoPrint = [pdf, n = 0](const PrintJob& job) mutable {
        const std::string stem =
            pdf.size() > 4 && pdf.ends_with(".pdf") ? pdf.substr(0, pdf.size() - 4) : pdf;
        view::renderJobToPdf(job, ++n == 1 ? pdf : stem + "-" + std::to_string(n) + ".pdf");
      };
    }
#else
    std::cout << "error 0: --gui is not available in this build\n";
    return kScriptError;
#endif
  } else {
    player = std::make_unique<script::ModelPlayer>(app);
  }

  int status = 0;
  {
    script::Runner runner(app, *player, host, std::cout, registerForms);
    for (const std::string& file : files) {
      bool more = true;
      if (file == "-") {
        more = runner.play(std::cin);
      } else {
        std::ifstream in(file);
        if (!in) {
          std::cout << "error 0: cannot open " << file << '\n';
          return kScriptError;
        }
        more = runner.play(in);
      }
      if (!more) break;
    }
    status = runner.status();
  }
  std::cout.flush();
  player.reset();
  app.setObserver(nullptr);
  return status;
}
