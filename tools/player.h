#pragma once
// How a script's actions reach the forms. On the plain model they go straight
// to the application; with --gui they are delivered to the real widgets as
// mouse and key events, and what the user sees is read back from them.
#include <optional>
#include <string>
#include <string_view>

#include "surface/application.h"

namespace tessaron {

class Player {
 public:
  virtual ~Player() = default;
  virtual void show(Form& form) = 0;
  virtual void close(Form& form) = 0;
  virtual void resize(Form& form, int width, int height) = 0;
  virtual void click(Control& control) = 0;
  virtual void dblclick(Control& control) = 0;
  virtual void press(Form& form, int keyAscii) = 0;
  virtual void press(Control& control, int keyAscii) = 0;
  virtual void keydown(Form& form, int keyCode, int shift) = 0;
  virtual void keydown(Control& control, int keyCode, int shift) = 0;
  virtual void focus(Control& control) = 0;
  virtual void type(Control& control, std::string_view text) = 0;
  virtual void scroll(Control& control, int value) = 0;
  virtual void cell(Control& control, int row, int col) = 0;
  virtual void tick(Control& timer) = 0;
  // What the user sees of Caption, Text, Enabled and Visible; nullopt where
  // the model's own value stands.
  virtual std::optional<Value> read(const Control& control, std::string_view property) {
    return std::nullopt;
  }
  // Renders the form's real window to a PNG; false when there is no window.
  virtual bool snapshot(Form& form, const std::string& file) { return false; }
};

}  // namespace tessaron
