#include "tools/script_text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>

namespace tessaron::script {

std::string quoted(std::string_view text) {
  std::string s = "\"";
  for (char c : text) {
    switch (c) {
      case '"':
        s += "\\\"";
        break;
      case '\\':
        s += "\\\\";
        break;
      case '\n':
        s += "\\n";
        break;
      case '\r':
        s += "\\r";
        break;
      default:
        s += c;
    }
  }
  return s + "\"";
}

std::string printed(const Value& value) {
  switch (value.kind()) {
    case Kind::Bool:
      return value.AsBool() ? "True" : "False";
    case Kind::String:
    case Kind::Empty:
      return quoted(CStr(value));
    default: {
      // CStr keeps its fifteen significant digits but writes very large and
      // very small numbers with an exponent; what the user reads back is the
      // same number in plain figures.
      const std::string text = CStr(value);
      return plainDecimal(text).value_or(text);
    }
  }
}

std::optional<std::string> plainDecimal(std::string_view s) {
  bool negative = false;
  if (!s.empty() && (s.front() == '+' || s.front() == '-')) {
    negative = s.front() == '-';
    s.remove_prefix(1);
  }
  std::string digits;
  long point = -1;  // digits before the decimal point
  size_t i = 0;
  for (; i < s.size() && (std::isdigit(static_cast<unsigned char>(s[i])) || s[i] == '.'); ++i) {
    if (s[i] == '.') {
      if (point >= 0) return std::nullopt;
      point = static_cast<long>(digits.size());
    } else {
      digits += s[i];
    }
  }
  if (digits.empty()) return std::nullopt;
  if (point < 0) point = static_cast<long>(digits.size());
  if (i < s.size()) {
    if (s[i] != 'e' && s[i] != 'E') return std::nullopt;
    std::string_view e = s.substr(i + 1);
    bool down = false;
    if (!e.empty() && (e.front() == '+' || e.front() == '-')) {
      down = e.front() == '-';
      e.remove_prefix(1);
    }
    if (e.empty() || e.size() > 4) return std::nullopt;
    long shift = 0;
    for (char c : e) {
      if (!std::isdigit(static_cast<unsigned char>(c))) return std::nullopt;
      shift = shift * 10 + (c - '0');
    }
    point += down ? -shift : shift;
  }
  if (point < 0) {
    digits.insert(0, static_cast<size_t>(-point), '0');
    point = 0;
  }
  if (point > static_cast<long>(digits.size())) digits.append(point - digits.size(), '0');
  std::string whole = digits.substr(0, point), fraction = digits.substr(point);
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  fraction.erase(fraction.find_last_not_of('0') + 1);
  std::string out = whole.empty() ? std::string(1, '0') : whole;
  if (!fraction.empty()) out += "." + fraction;
  if (negative && out != "0") out = "-" + out;
  return out;
}

std::string coordinate(double x) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.4f", x);
  std::string s = buf;
  while (s.back() == '0') s.pop_back();
  if (s.back() == '.') s.pop_back();
  if (s == "-0") s = "0";
  return s;
}

namespace {
std::string colour(long c) { return std::to_string(c); }
}  // namespace

void dumpOps(std::ostream& out, const std::vector<DrawOp>& ops) {
  for (const DrawOp& op : ops) {
    switch (op.kind) {
      case DrawOp::Kind::Line:
      case DrawOp::Kind::Box:
      case DrawOp::Kind::FilledBox:
        out << "line " << coordinate(op.x1) << ' ' << coordinate(op.y1) << ' ' << coordinate(op.x2)
            << ' ' << coordinate(op.y2) << ' ' << colour(op.colour);
        if (op.kind == DrawOp::Kind::Box) out << " B";
        if (op.kind == DrawOp::Kind::FilledBox) out << " BF";
        out << '\n';
        break;
      case DrawOp::Kind::Circle:
        out << "circle " << coordinate(op.x1) << ' ' << coordinate(op.y1) << ' '
            << coordinate(op.x2) << ' ' << colour(op.colour) << '\n';
        break;
      case DrawOp::Kind::Text:
        out << "text " << coordinate(op.x1) << ' ' << coordinate(op.y1) << ' '
            << coordinate(op.size) << ' ' << quoted(op.text) << '\n';
        break;
      case DrawOp::Kind::Scale:
        out << "scale " << coordinate(op.x1) << ' ' << coordinate(op.y1) << ' ' << coordinate(op.x2)
            << ' ' << coordinate(op.y2) << '\n';
        break;
      case DrawOp::Kind::Picture:
        out << "picture " << coordinate(op.x1) << ' ' << coordinate(op.y1) << ' '
            << coordinate(op.x2) << ' ' << coordinate(op.y2) << '\n';
        break;
      case DrawOp::Kind::NewPage:
        out << "newpage\n";
        break;
    }
  }
}

}  // namespace tessaron::script
