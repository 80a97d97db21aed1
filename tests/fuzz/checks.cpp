#include "tests/fuzz/checks.h"

#include <cmath>
#include <string_view>

#include "calc/ovicalc.h"
#include "chart/state.h"
#include "statistics/statistics.h"
#include "surface/form.h"

namespace tessaron::fuzz {

namespace {

bool isNumber(const Value& v) {
  switch (v.kind()) {
    case Kind::Int16:
    case Kind::Int32:
    case Kind::Dec:
      return true;
    case Kind::Real:
      return std::isfinite(v.number());
    default:
      return false;
  }
}

std::string calculator(const Form& form) {
  const auto& f = static_cast<const OviCalc&>(form);
  if (f.nLevel < 0 || f.nLevel > 33) return "nLevel " + std::to_string(f.nLevel);
  for (int m = 1; m <= 33; ++m)
    if (!isNumber(f.vMemory[m])) return "memory " + std::to_string(m) + " is not a number";
  if (f.KeyCount < 0 || f.KeyCount > static_cast<int>(f.KeyOrder.size()))
    return "KeyCount " + std::to_string(f.KeyCount);
  return "";
}

// The sheet's count is the number of places that hold a datum, blanks not
// counted.
std::string statistics(const Form& form) {
  const auto& S = const_cast<Form&>(form).kept<StatisticsSheet>();
  int held = 0;
  for (const std::string& t : S.DataText) held += t.empty() ? 0 : 1;
  if (held != S.DataCount)
    return "DataCount " + std::to_string(S.DataCount) + " for " + std::to_string(held) + " data";
  return "";
}

// A column total the chart shows is the sum of the amounts it shows in that
// column. Clear All blanks the totals without zeroing the sums behind them,
// and a reopened chart only adds up again once a cell holds an amount, so
// only a shown total is held to its column.
std::string chart(const Form& form) {
  auto& f = const_cast<Form&>(form);
  const ChartState& c = f.kept<ChartState>();
  struct Column {
    int label, first;
    const Value& sum;
    const char* name;
  };
  const Column columns[] = {{1, 1, c.SumAAA, "SumAAA"}, {2, 13, c.SumBBB, "SumBBB"}};
  for (const Column& col : columns) {
    if (f.control("lblAmt", col.label).Caption.empty()) continue;
    Value shown(0);
    for (int I = col.first; I < col.first + 12; ++I) shown = shown + c.CellShown(I);
    if (!(col.sum == shown))
      return std::string(col.name) + " " + CStr(col.sum) + " for " + CStr(shown);
  }
  return "";
}

// Every form's own checks, by form name: add a row when a form lands.
struct FormCheck {
  std::string_view form;
  std::string (*check)(const Form&);
};
constexpr FormCheck kChecks[] = {
    {"OviCalc", calculator},
    {"OviSum", chart},
    {"frmStatistics", statistics},
};

// What holds of every form: a scroll bar's value within its range.
std::string everyForm(const Form& form) {
  for (const auto& c : form.controls()) {
    if (c->kind() != ControlKind::HScrollBar && c->kind() != ControlKind::VScrollBar) continue;
    const double v = c->value().number();
    if (v < std::min(c->Min(), c->Max()) || v > std::max(c->Min(), c->Max()))
      return c->path() + ".Value out of its range";
  }
  return "";
}

}  // namespace

std::string checkForm(const Form& form) {
  if (std::string wrong = everyForm(form); !wrong.empty()) return wrong;
  for (const FormCheck& row : kChecks)
    if (row.form == form.name()) return row.check(form);
  return "";
}

}  // namespace tessaron::fuzz
