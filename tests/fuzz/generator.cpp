#include "tests/fuzz/generator.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "surface/application.h"
#include "tools/script_text.h"

namespace tessaron::fuzz {

namespace {

// Texts a hostile user types: overflows, doubled signs, accounting negatives,
// blanks, Hangul, a wall of digits, nothing at all, and controls that no box
// shows.
const std::vector<std::string>& hostileTexts() {
  static const std::vector<std::string> texts = {
      "1e999",
      "--1",
      "(5)",
      "   ",
      "",
      "한글",
      std::string(400, '9'),
      "12abc",
      "1,234.5",
      "-0",
      "$5",
      "1e3",
      "5-",
      "9999999999999999",
      ".",
      "-",
      "0.0000001",
      "１２",
      "1d308",
      "+",
      "0",
      "100",
      "7.25",
      "360",
      "-12",
      "1e-400",
      "1,,2",
      "((3))",
      "\t1",
      "2\x7f",
      "\xef\xbb\xbf"
      "3",
      "\xf0\x9f\x98\x80",
      "123456789",
      "99999998",
      "0.5",
      "1.5E+308",
      "\r\n",
      "  4  ",
      "1 000",
      "e5",
      "&H10",
  };
  return texts;
}

constexpr std::string_view kAlphabet = "0123456789.,-+()$eEdD %/*x ";

bool isBar(const Control& c) {
  return c.kind() == ControlKind::HScrollBar || c.kind() == ControlKind::VScrollBar;
}

std::string ref(const Control& c) { return c.form().name() + "." + c.path(); }

}  // namespace

std::string Generator::text() {
  const auto& texts = hostileTexts();
  if (chance(60)) return texts[below(static_cast<int>(texts.size()))];
  std::string s;
  const int n = below(chance(90) ? 12 : 40);
  for (int i = 0; i < n; ++i) s += kAlphabet[below(static_cast<int>(kAlphabet.size()))];
  return s;
}

int Generator::character() {
  static constexpr std::array<int, 16> odd = {
      8, 13, 27, 3, 22, 9, 0, 127, 0xFEFF, 0xD55C, 0x1F600, 1, 31, 160, 0xE000, 0x10FFFF};
  switch (below(4)) {
    case 0:
      return '0' + below(10);
    case 1: {
      static constexpr std::string_view keys = "+-*/=.%()!^pPsScCnNbBdDxX";
      return keys[below(static_cast<int>(keys.size()))];
    }
    case 2:
      return 32 + below(95);
    default:
      return odd[below(static_cast<int>(odd.size()))];
  }
}

int Generator::keyCode() {
  static constexpr std::array<int, 24> named = {8,  9,  13, 16,  17,  18,  27,  32,
                                                33, 34, 35, 36,  37,  38,  39,  40,
                                                45, 46, 93, 106, 107, 109, 110, 111};
  switch (below(3)) {
    case 0:
      return named[below(static_cast<int>(named.size()))];
    case 1:
      return chance(50) ? 48 + below(10) : 65 + below(26);
    default:
      return chance(50) ? 96 + below(10) : 112 + below(12);
  }
}

std::string Generator::next(const Application& app) {
  const std::vector<std::string> names = app.formNames();
  const std::string someForm = names[below(static_cast<int>(names.size()))];
  std::vector<Form*> shown;
  for (Form* f : app.loadedForms())
    if (f->Visible() && !f->unloading()) shown.push_back(f);
  if (shown.empty() || chance(3)) return "show " + someForm;
  Form& form = *shown[below(static_cast<int>(shown.size()))];

  // Mostly what the user can reach; now and then what the user cannot.
  std::vector<Control*> usable, boxes, bars, grids, timers, all;
  for (const auto& c : form.controls()) {
    all.push_back(c.get());
    if (c->kind() == ControlKind::Timer) timers.push_back(c.get());
    if (!c->usable() && !chance(5)) continue;
    usable.push_back(c.get());
    if (c->kind() == ControlKind::TextBox) boxes.push_back(c.get());
    if (isBar(*c)) bars.push_back(c.get());
    if (c->kind() == ControlKind::FlexGrid) grids.push_back(c.get());
  }
  const auto pick = [this](const std::vector<Control*>& from) {
    return from[below(static_cast<int>(from.size()))];
  };
  const std::string f = form.name();
  const int roll = below(100);
  if (roll < 30 && !usable.empty()) return "click " + ref(*pick(usable));
  if (roll < 33 && !usable.empty()) return "dblclick " + ref(*pick(usable));
  if (roll < 43) return "press " + f + " " + std::to_string(character());
  if (roll < 46 && !usable.empty())
    return "press " + ref(*pick(usable)) + " " + std::to_string(character());
  if (roll < 52) {
    const std::string target = usable.empty() || chance(50) ? f : ref(*pick(usable));
    return "keydown " + target + " " + std::to_string(keyCode()) +
           (chance(30) ? " " + std::to_string(below(8)) : "");
  }
  if (roll < 56 && !usable.empty()) return "focus " + ref(*pick(usable));
  if (roll < 68 && !boxes.empty())
    return "type " + ref(*pick(boxes)) + " " + script::quoted(text());
  if (roll < 74 && !bars.empty()) {
    Control& bar = *pick(bars);
    const int lo = std::min(bar.Min(), bar.Max()), hi = std::max(bar.Min(), bar.Max());
    int v = lo + below(hi - lo + 1);
    if (chance(30)) {
      static constexpr std::array<int, 6> wild = {-32768, -1, 0, 1, 32767, 100000};
      v = wild[below(static_cast<int>(wild.size()))];
    }
    return "scroll " + ref(bar) + " " + std::to_string(v);
  }
  if (roll < 76 && !grids.empty()) {
    Control& g = *pick(grids);
    // The driver knows the cells the design gives; rows added later as well.
    const int rows = std::min(g.grid().Rows(), g.design().rows);
    const int cols = std::min(g.grid().Cols(), g.design().cols);
    return "cell " + ref(g) + " " + std::to_string(below(rows)) + " " + std::to_string(below(cols));
  }
  if (roll < 80 && !timers.empty())
    return "tick " + ref(*pick(timers)) + " " + std::to_string(1 + below(chance(90) ? 3 : 40));
  if (roll < 82) return chance(50) ? "reply 6" : "reply 7";
  if (roll < 83) return "input " + script::quoted(text());
  if (roll < 85) return "clipboard " + script::quoted(text());
  if (roll < 86) {
    static constexpr std::array<int, 6> sizes = {-5, 0, 900, 6000, 12000, 2147483647};
    return "resize " + f + " " + std::to_string(sizes[below(6)]) + " " +
           std::to_string(sizes[below(6)]);
  }
  if (roll < 87) return "unload " + f;
  if (roll < 88) return "show " + someForm;
  // What the user sees, so that two runs can be compared.
  Control& c = *all[below(static_cast<int>(all.size()))];
  static constexpr std::array<std::string_view, 4> seen = {"Caption", "Text", "Enabled", "Visible"};
  std::string_view p = seen[below(4)];
  if (c.kind() == ControlKind::TextBox && p == "Caption") p = "Text";
  if (c.kind() != ControlKind::TextBox && c.kind() != ControlKind::FlexGrid && p == "Text")
    p = "Caption";
  if (isBar(c) && chance(50)) p = "Value";
  return "get " + ref(c) + "." + std::string(p);
}

}  // namespace tessaron::fuzz
