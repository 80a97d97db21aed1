// What the user reads back: `get`, `expect` and `dump`.
#include <cctype>
#include <charconv>

#include "tools/script_runner.h"
#include "tools/script_text.h"

namespace tessaron::script {

namespace {
bool isGrid(const Control& c) { return c.kind() == ControlKind::FlexGrid; }

void checkCell(const Grid& g, int row, int col, const Reference& ref) {
  if (row < 0 || row >= g.Rows() || col < 0 || col >= g.Cols())
    throw ScriptError("no cell " + std::to_string(row) + "," + std::to_string(col) + " in " +
                      ref.text);
}

// A control's property as the model holds it, the grid's per-cell and
// per-column properties included.
std::optional<Value> propertyOf(const Control& c, const Part& p, const Reference& ref) {
  if (p.hasArgs) {
    if (!isGrid(c)) return std::nullopt;
    const Grid& g = c.grid();
    if ((p.name == "Cell" || p.name == "TextMatrix") && p.args.size() == 2) {
      checkCell(g, p.args[0], p.args[1], ref);
      return Value(g.TextMatrix(p.args[0], p.args[1]));
    }
    if (p.name == "ColWidth" && p.args.size() == 1) {
      checkCell(g, 0, p.args[0], ref);
      return Value(g.ColWidth(p.args[0]));
    }
    if (p.name == "RowHeight" && p.args.size() == 1) {
      checkCell(g, p.args[0], 0, ref);
      return Value(g.RowHeight(p.args[0]));
    }
    return std::nullopt;
  }
  if (isGrid(c) && p.name == "CellFontSize") {
    // 0 stands for the grid's own font.
    const double size = c.grid().CellFontSize();
    return Value(size > 0 ? size : c.FontSize);
  }
  if (isGrid(c) && p.name == "CellAlignment") return Value(c.grid().CellAlignment());
  return c.property(p.name);
}

// The printed form of an expected value: text is quoted, a number is written
// as a number prints (a plain decimal), True and False in their own spelling.
std::string wanted(const Token& t) {
  if (t.quoted) return quoted(t.text);
  std::string lower;
  for (char c : t.text) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (lower == "true") return "True";
  if (lower == "false") return "False";
  return plainDecimal(t.text).value_or(t.text);
}

// A number written with more figures than a Real keeps still matches the
// Real it reads as.
bool sameReal(const std::string& actual, const Token& t) {
  if (t.quoted || !plainDecimal(t.text)) return false;
  double x = 0;
  std::string_view s = t.text;
  if (!s.empty() && s.front() == '+') s.remove_prefix(1);
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), x);
  return ec == std::errc() && end == s.data() + s.size() && actual == printed(Value(x));
}
}  // namespace

std::optional<std::string> Runner::read(const Token& token) {
  if (!token.quoted && token.text == "clipboard") return quoted(host_.clipboard());
  const Reference ref = parseReference(token);
  if (ref.parts.empty()) throw ScriptError("property expected: " + ref.text);
  formOf(ref);
  const Part& last = ref.parts.back();
  if (ref.parts.size() == 1) {
    const Form& d = design(ref.form);
    for (const auto& c : d.controls())
      if (c->name() == last.name) throw ScriptError("property expected: " + ref.text);
    if (last.hasArgs) throw ScriptError("unknown property " + ref.text);
    // Whether a form is loaded or shown is read without loading it.
    Form* form = app_.loaded(ref.form);
    if (last.name == "Loaded") return printed(Value(form != nullptr && !form->unloading()));
    if (last.name == "Visible") return printed(Value(form != nullptr && form->Visible()));
    if (!d.property(last.name)) throw ScriptError("unknown property " + ref.text);
    if (!load(ref.form)) return std::nullopt;
    return printed(*app_.loaded(ref.form)->property(last.name));
  }
  Reference owner = ref;
  owner.parts.pop_back();
  Target t = control(owner, false);
  if (!propertyOf(*design(ref.form).find(t.name, t.index), last, ref))
    throw ScriptError("unknown property " + ref.text);
  t = control(owner, true);
  if (!t.control) return std::nullopt;
  if (!last.hasArgs) {
    if (auto seen = player_.read(*t.control, last.name)) return printed(*seen);
  }
  return printed(*propertyOf(*t.control, last, ref));
}

void Runner::get(const Args& a) {
  if (const auto value = read(a[0])) out_ << a[0].text << " = " << *value << '\n';
}

void Runner::expect(const Args& a) {
  const auto actual = read(a[0]);
  if (!actual) return;
  const std::string want = wanted(a[1]);
  if (*actual == want || sameReal(*actual, a[1])) return;
  expectFailed_ = true;
  out_ << "expect failed " << line_ << ": " << a[0].text << " = " << *actual << ", wanted " << want
       << '\n';
}

void Runner::dump(const Args& a) {
  if (!a[0].quoted && a[0].text == "printer") {
    bool first = true;
    for (const PrintedPage& page : app_.printer().lastJob().pages) {
      if (!first) out_ << "newpage\n";
      first = false;
      dumpOps(out_, page.ops);
    }
    return;
  }
  const Reference ref = parseReference(a[0]);
  Target t = control(ref, false);
  if (design(ref.form).find(t.name, t.index)->kind() != ControlKind::PictureBox)
    throw ScriptError(ref.text + " is not a picture box");
  t = control(ref, true);
  if (t.control) dumpOps(out_, t.control->picture().ops());
}

void Runner::snapshot(const Args& a) {
  const Reference ref = parseReference(a[0]);
  if (!ref.parts.empty()) throw ScriptError("form expected: " + ref.text);
  if (!a[1].quoted) throw ScriptError("snapshot: file name in quotes expected");
  Form* form = formOf(ref);
  // On the plain model there is no window to render: the line does nothing,
  // so that a script prints the same in both modes.
  if (reachable(form, ref)) player_.snapshot(*form, a[1].text);
}

}  // namespace tessaron::script
