#pragma once
// The script language: one command a line, blank-separated tokens, quoted
// text with escapes, `#` comments, and references such as
// `frmLoan.txtAmount.Text`, `OviCalc.Number(3).Enabled` or
// `frmConver.grdUnits.Cell(1,2)`.
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tessaron::script {

// A mistake in the script itself: printed as `error LINE: reason`.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Token {
  std::string text;
  bool quoted = false;
};

// The tokens of one line, comment dropped.
std::vector<Token> tokenize(std::string_view line);

// One dotted part of a reference: a name with optional arguments in
// parentheses, `Number(3)` or `Cell(1,2)`.
struct Part {
  std::string name;
  std::vector<int> args;
  bool hasArgs = false;
};

// FORM[.PART[.PART]]: which parts are controls and which properties is
// settled against the form itself.
struct Reference {
  std::string text;  // as written
  std::string form;
  std::vector<Part> parts;
};

Reference parseReference(const Token& token);

// A whole number argument; `what` names it in the error.
int parseInt(const Token& token, std::string_view what);

}  // namespace tessaron::script
