#include "tools/script_parser.h"

#include <cctype>
#include <charconv>

namespace tessaron::script {

namespace {
bool blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool nameChar(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool wholeNumber(std::string_view s, int& out) {
  if (!s.empty() && s.front() == '+') s.remove_prefix(1);
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), out);
  return !s.empty() && ec == std::errc() && end == s.data() + s.size();
}

Part parsePart(std::string_view s, const std::string& whole) {
  Part part;
  const size_t open = s.find('(');
  part.name = std::string(s.substr(0, open));
  if (part.name.empty()) throw ScriptError("bad reference " + whole);
  for (char c : part.name)
    if (!nameChar(c)) throw ScriptError("bad reference " + whole);
  if (open == std::string_view::npos) return part;
  if (s.back() != ')') throw ScriptError("bad reference " + whole);
  part.hasArgs = true;
  std::string_view inside = s.substr(open + 1, s.size() - open - 2);
  while (true) {
    const size_t comma = inside.find(',');
    int n = 0;
    if (!wholeNumber(inside.substr(0, comma), n)) throw ScriptError("bad reference " + whole);
    part.args.push_back(n);
    if (comma == std::string_view::npos) break;
    inside.remove_prefix(comma + 1);
  }
  return part;
}
}  // namespace

std::vector<Token> tokenize(std::string_view line) {
  std::vector<Token> tokens;
  size_t i = 0;
  while (i < line.size()) {
    if (blank(line[i])) {
      ++i;
      continue;
    }
    if (line[i] == '#') break;
    Token t;
    if (line[i] == '"') {
      t.quoted = true;
      ++i;
      bool closed = false;
      while (i < line.size()) {
        const char c = line[i++];
        if (c == '"') {
          closed = true;
          break;
        }
        if (c != '\\') {
          t.text += c;
          continue;
        }
        if (i >= line.size()) break;
        switch (line[i++]) {
          case '"':
            t.text += '"';
            break;
          case '\\':
            t.text += '\\';
            break;
          case 'n':
            t.text += '\n';
            break;
          case 'r':
            t.text += '\r';
            break;
          default:
            throw ScriptError(std::string("unknown escape \\") + line[i - 1]);
        }
      }
      if (!closed) throw ScriptError("unterminated text");
      if (i < line.size() && !blank(line[i]) && line[i] != '#')
        throw ScriptError("blank expected after text");
    } else {
      // `#` ends the line wherever it stands outside text; blanks between
      // parentheses stay inside the reference, as in `Cell(1, 2)`.
      int depth = 0;
      while (i < line.size() && line[i] != '#' && (depth > 0 || !blank(line[i]))) {
        const char c = line[i++];
        if (c == '(') ++depth;
        if (c == ')') --depth;
        if (!blank(c)) t.text += c;
      }
    }
    tokens.push_back(std::move(t));
  }
  return tokens;
}

Reference parseReference(const Token& token) {
  if (token.quoted) throw ScriptError("reference expected, not text");
  Reference ref;
  ref.text = token.text;
  std::vector<std::string_view> pieces;
  std::string_view s = token.text;
  int depth = 0;
  size_t start = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '(') ++depth;
    if (s[i] == ')') --depth;
    if (s[i] == '.' && depth == 0) {
      pieces.push_back(s.substr(start, i - start));
      start = i + 1;
    }
  }
  pieces.push_back(s.substr(start));
  const Part form = parsePart(pieces.front(), ref.text);
  if (form.hasArgs) throw ScriptError("bad reference " + ref.text);
  ref.form = form.name;
  for (size_t i = 1; i < pieces.size(); ++i) ref.parts.push_back(parsePart(pieces[i], ref.text));
  if (ref.parts.size() > 2) throw ScriptError("bad reference " + ref.text);
  return ref;
}

int parseInt(const Token& token, std::string_view what) {
  int n = 0;
  if (token.quoted || !wholeNumber(token.text, n))
    throw ScriptError(std::string(what) + " expected, not " + token.text);
  return n;
}

}  // namespace tessaron::script
