// libFuzzer target for the numeric library: Val, IsNumeric with CDec and
// CDbl, Dec arithmetic on Values and Format, each held against a slow
// reference of its own (regular expressions, libc's strtod, and decimal
// digits worked on paper in slow_decimal). A disagreement aborts with both
// answers.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <regex>
#include <string>

#include "numeric/numeric.h"
#include "tests/fuzz/slow_decimal.h"

namespace {

using namespace tessaron;
namespace slow = tessaron::fuzz::slow;

[[noreturn]] void wrong(const std::string& what) {
  std::fprintf(stderr, "MISMATCH: %s\n", what.c_str());
  std::abort();
}

std::string outcome(const std::function<void()>& f) {
  try {
    f();
    return "ok";
  } catch (const Failure& e) {
    return e.what();
  }
}

std::string digitsOf(unsigned __int128 m) {
  std::string s;
  do {
    s.insert(s.begin(), static_cast<char>('0' + static_cast<int>(m % 10)));
    m /= 10;
  } while (m);
  return s;
}

slow::Number numberOf(const Dec& d) { return {d.IsNegative(), digitsOf(d.Mantissa()), d.Scale()}; }

std::string show(const slow::Number& n) {
  return (n.neg ? "-" : "") + n.digits + "e-" + std::to_string(n.scale);
}

// Val: blanks, tabs and line feeds vanish wherever they stand; then a sign,
// digits with one point and an exponent of E or D with digits, as far as
// they go.
void checkVal(const std::string& text) {
  std::string s;
  for (char c : text)
    if (c != ' ' && c != '\t' && c != '\n') s += c;
  static const std::regex number(R"(^([+-]?)([0-9]*)(\.([0-9]*))?([eEdD]([+-]?[0-9]+))?)");
  std::smatch m;
  std::regex_search(s, m, number);
  double expected = 0;
  if (!m[2].str().empty() || !m[4].str().empty()) {
    std::string plain = m[1].str() + (m[2].str().empty() ? "0" : m[2].str()) + "." + m[4].str();
    if (m[5].matched) plain += "e" + m[6].str();
    expected = std::strtod(plain.c_str(), nullptr);
  }
  double got = 0;
  const std::string how = outcome([&] { got = Val(text); });
  if (!std::isfinite(expected)) {
    if (how != "Overflow") wrong("Val(" + text + ") should overflow, gave " + how);
    return;
  }
  if (how != "ok" || got != expected)
    wrong("Val(" + text + ") = " + std::to_string(got) + " " + how + ", wanted " +
          std::to_string(expected));
}

// IsNumeric says yes exactly when CDec and CDbl can read the text, and plain
// decimal text is numeric with CDec giving its digits exactly. A number past
// what a Real holds ("1e999") is no number to IsNumeric, and the conversions
// overflow on it.
void checkNumeric(const std::string& text) {
  const bool numeric = IsNumeric(Value(text));
  const std::string dec = outcome([&] { CDec(Value(text)); });
  const std::string dbl = outcome([&] { CDbl(Value(text)); });
  const bool tooBig = !numeric && dbl == "Overflow";
  if (numeric != (dec != "Type mismatch") && !(tooBig && dec == "Overflow"))
    wrong("IsNumeric(" + text + ") is " + (numeric ? "True" : "False") + " but CDec: " + dec);
  if (numeric != (dbl != "Type mismatch") && !tooBig)
    wrong("IsNumeric(" + text + ") is " + (numeric ? "True" : "False") + " but CDbl: " + dbl);
  static const std::regex letters("[A-CF-Za-cf-z]");
  if (numeric && text.find('&') == std::string::npos && std::regex_search(text, letters))
    wrong("IsNumeric(" + text + ") is True with a letter in it");
  static const std::regex plain(R"(^ *([+-]?)([0-9]{1,40})(\.([0-9]{0,40}))? *$)");
  std::smatch m;
  if (!std::regex_match(text, m, plain)) return;
  if (!numeric) wrong("IsNumeric(" + text + ") is False");
  slow::Number want;
  const bool fits = slow::settle(m[1] == "-", slow::trim(m[2].str() + m[4].str()),
                                 slow::shift("1", static_cast<int>(m[4].length())), want);
  Value got;
  const std::string how = outcome([&] { got = CDec(Value(text)); });
  if (!fits) {
    if (how != "Overflow") wrong("CDec(" + text + ") should overflow, gave " + how);
    return;
  }
  if (how != "ok" || got.kind() != Kind::Dec || !slow::same(numberOf(got.AsDec()), want))
    wrong("CDec(" + text + ") = " + (how == "ok" ? got.str() : how) + ", wanted " + show(want));
}

Dec decOf(const uint8_t* p) {
  unsigned __int128 m = 0;
  for (int i = 0; i < 12; ++i) m = (m << 8) | p[i];
  return Dec::Make(m, p[12] % 29, p[12] & 0x80);
}

// Dec arithmetic on Values: exact when it fits, else rounded half to even at
// the largest scale that fits; Overflow beyond; Division by zero for any x/0.
void checkArithmetic(const uint8_t* p) {
  const Dec a = decOf(p), b = decOf(p + 13);
  const int op = p[26] % 4;
  const slow::Number x = numberOf(a), y = numberOf(b);
  bool neg = false;
  slow::Digits num, den;
  if (op < 2) {
    const int s = std::max(x.scale, y.scale);
    const slow::Digits xs = slow::shift(x.digits, s - x.scale),
                       ys = slow::shift(y.digits, s - y.scale);
    const bool yneg = op == 1 ? !y.neg : y.neg;
    if (x.neg == yneg) {
      num = slow::add(xs, ys);
      neg = x.neg;
    } else if (slow::compare(xs, ys) >= 0) {
      num = slow::sub(xs, ys);
      neg = x.neg;
    } else {
      num = slow::sub(ys, xs);
      neg = yneg;
    }
    den = slow::shift("1", s);
  } else if (op == 2) {
    num = slow::mul(x.digits, y.digits);
    den = slow::shift("1", x.scale + y.scale);
    neg = x.neg != y.neg;
  } else {
    num = slow::shift(x.digits, y.scale);
    den = slow::shift(y.digits, x.scale);
    neg = x.neg != y.neg;
  }
  Value got;
  const std::string how = outcome([&] {
    const Value va(a), vb(b);
    got = op == 0 ? va + vb : op == 1 ? va - vb : op == 2 ? va * vb : va / vb;
  });
  const std::string said = show(x) + " op" + std::to_string(op) + " " + show(y);
  if (op == 3 && y.digits == "0") {
    if (how != "Division by zero") wrong(said + " should divide by zero, gave " + how);
    return;
  }
  slow::Number want;
  if (!slow::settle(neg, num, den, want)) {
    if (how != "Overflow") wrong(said + " should overflow, gave " + how);
    return;
  }
  if (how != "ok" || got.kind() != Kind::Dec || !slow::same(numberOf(got.AsDec()), want))
    wrong(said + " = " + (how == "ok" ? got.str() : how) + ", wanted " + show(want));
}

// Format with the plain masks: '#'s then '0's left of the point, commas
// between them, then the point with '0's and '#'s.
void checkFormat(const uint8_t* p, size_t n) {
  const int hashes = p[0] % 6, zeros = p[1] % 4, fixed = p[2] % 5, open = p[3] % 5;
  const bool grouped = (p[4] & 1) && hashes + zeros >= 2;
  const bool point = (p[4] & 2) || fixed + open > 0;
  if (hashes + zeros == 0) return;
  std::string mask;
  for (int i = 0; i < hashes + zeros; ++i) {
    if (grouped && i == 1) mask += ',';
    mask += i < hashes ? '#' : '0';
  }
  if (point) mask += '.' + std::string(fixed, '0') + std::string(open, '#');
  slow::Number v;
  Value value;
  if (p[5] & 1) {
    unsigned __int128 m = 0;
    for (int i = 0; i < 8; ++i) m = (m << 8) | p[6 + i];
    const Dec d = Dec::Make(m, p[14] % 29, p[15] & 1);
    value = Value(d);
    v = numberOf(d);
  } else {
    double x;
    std::memcpy(&x, p + 6, sizeof x);
    if (!std::isfinite(x) || std::fabs(x) > 1e20) return;
    value = Value(x);
    // A Real is taken as its 15 significant digits.
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.14e", std::fabs(x));
    const std::string s(buf);
    const int e = std::atoi(s.c_str() + s.find('e') + 1);
    const slow::Digits digits = s.substr(0, 1) + s.substr(2, 14);
    v = {x < 0, slow::trim(digits), 14 - e};
    if (v.scale < 0) {
      v.digits = slow::shift(v.digits, -v.scale);
      v.scale = 0;
    }
  }
  const int places = point ? fixed + open : 0;
  slow::Digits q = v.digits;
  if (v.scale > places) {
    slow::Digits r;
    const slow::Digits unit = slow::shift("1", v.scale - places);
    slow::divmod(v.digits, unit, q, r);
    if (slow::compare(slow::add(r, r), unit) >= 0) q = slow::add(q, "1");
  } else {
    q = slow::shift(q, places - v.scale);
  }
  std::string whole =
      q.size() > static_cast<size_t>(places) ? q.substr(0, q.size() - places) : std::string();
  std::string frac = std::string(std::max(0, places - static_cast<int>(q.size())), '0') +
                     q.substr(q.size() > static_cast<size_t>(places) ? q.size() - places : 0);
  if (q == "0") frac = std::string(places, '0');
  whole = slow::trim(whole.empty() ? "0" : whole);
  if (whole == "0") whole = "";
  if (static_cast<int>(whole.size()) < zeros) whole.insert(0, zeros - whole.size(), '0');
  if (grouped)
    for (int i = static_cast<int>(whole.size()) - 3; i > 0; i -= 3) whole.insert(i, ",");
  while (static_cast<int>(frac.size()) > fixed && frac.back() == '0') frac.pop_back();
  std::string want = whole + (point ? "." + frac : "");
  if (v.neg && q != "0") want = "-" + want;
  std::string got;
  const std::string how = outcome([&] { got = Format(value, mask); });
  if (how != "ok" || got != want)
    wrong("Format(" + value.str() + ", \"" + mask + "\") = \"" + got + "\" " + how + ", wanted \"" +
          want + "\"");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  const uint8_t which = data[0] % 4;
  ++data;
  --size;
  const std::string text(reinterpret_cast<const char*>(data), std::min<size_t>(size, 120));
  switch (which) {
    case 0:
      checkVal(text);
      break;
    case 1:
      checkNumeric(text);
      break;
    case 2:
      if (size >= 27) checkArithmetic(data);
      break;
    default:
      if (size >= 16) checkFormat(data, size);
      break;
  }
  return 0;
}
