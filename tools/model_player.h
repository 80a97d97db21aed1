#pragma once
// The plain model's player: every action goes straight to the application's
// user actions, one event each.
#include "tools/player.h"

namespace tessaron::script {

class ModelPlayer : public Player {
 public:
  explicit ModelPlayer(Application& app) : app_(app) {}
  void show(Form& form) override { app_.show(form); }
  void close(Form& form) override { app_.close(form); }
  void resize(Form& form, int width, int height) override { app_.resize(form, width, height); }
  void click(Control& control) override { app_.click(control); }
  void dblclick(Control& control) override { app_.dblclick(control); }
  void press(Form& form, int keyAscii) override { app_.press(form, keyAscii); }
  void press(Control& control, int keyAscii) override { app_.press(control, keyAscii); }
  void keydown(Form& form, int keyCode, int shift) override { app_.keydown(form, keyCode, shift); }
  void keydown(Control& control, int keyCode, int shift) override {
    app_.keydown(control, keyCode, shift);
  }
  void focus(Control& control) override { app_.focus(control); }
  void type(Control& control, std::string_view text) override { app_.type(control, text); }
  void scroll(Control& control, int value) override { app_.scroll(control, value); }
  void cell(Control& control, int row, int col) override { app_.cell(control, row, col); }
  void tick(Control& timer) override { app_.tick(timer); }

 private:
  Application& app_;
};

}  // namespace tessaron::script
