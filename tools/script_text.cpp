#include "tools/script_text.h"

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
    default:
      return CStr(value);
  }
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
