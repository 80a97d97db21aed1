#pragma once
// Small test forms built from a design table and wired with routines that
// write to one shared event log.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron::test {

class TestForm : public Form {
 public:
  using Form::Form;
  std::function<void(TestForm&)> onLoad;
  std::function<void()> onSettle;
  void Load() override {
    if (onLoad) onLoad(*this);
  }
  void settle() override {
    if (onSettle) onSettle();
  }
};

class SurfaceTest : public ::testing::Test {
 protected:
  RecordingHost host;
  Application app{host};
  std::vector<std::string> log;
  int loads = 0;

  using Wiring = std::function<void(TestForm&)>;
  // Registers a form; `wire` adds its routines, `load` is its Load.
  void add(const std::string& name, std::vector<Design> controls, Wiring wire = {},
           Wiring load = {}, FormDesign design = {.caption = "Test"}) {
    app.registerForm(name, [=, this](Application& a) {
      auto f = std::make_unique<TestForm>(a, name, design, controls);
      f->onLoad = [this, load](TestForm& form) {
        ++loads;
        if (load) load(form);
      };
      if (wire) wire(*f);
      return f;
    });
  }
  // A routine that only writes its name to the log.
  Handler note(const std::string& what) {
    return [this, what](EventArgs& e) {
      log.push_back(e.Index >= 0 ? what + "(" + std::to_string(e.Index) + ")" : what);
    };
  }
  Form& shown(const std::string& name) {
    Form& f = app.form(name);
    app.show(f);
    return f;
  }
};

inline Design row(ControlKind kind, std::string name, int index = -1) {
  Design d;
  d.kind = kind;
  d.name = std::move(name);
  d.index = index;
  d.width = 1000;
  d.height = 300;
  return d;
}

}  // namespace tessaron::test
