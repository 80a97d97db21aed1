#pragma once
// The display value in another dress on lblRead2: the decimal fraction part
// as a fraction or in binary digits, the value in octal or hexadecimal.
#include <string>

namespace tessaron::kernels {

struct View {
  enum class Act {
    Show,     // lblRead2 shows `text`
    Cancel,   // a display of 0: the key runs Cancel
    Nothing,  // no fraction part: lblRead2 stays cleared
    Refused,  // the box `message`, information icon (64); nothing shown
  };
  Act act = Act::Show;
  std::string text;
  std::string message;
};

// The fraction part of v after its dust is cleaned (to 14 decimals).
double FractionPart(double v);

// cmdFract with bFractBin False and True.
View FractionView(double v);
View BinaryView(double v);

// cmdOctal with bOctHex False and True.
View OctalView(double v);
View HexView(double v);

}  // namespace tessaron::kernels
