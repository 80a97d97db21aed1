// The display value in another dress on lblRead2, the value itself untouched:
// the fraction part as a fraction or in binary digits, the whole value in
// octal or hexadecimal. Each key toggles between its two views.
#include <cmath>

#include "calc/kernels/views.h"
#include "calc/ovicalc.h"

namespace tessaron {

namespace k = kernels;

void OviCalc::cmdFractKey() {
  lblRead2->Caption.clear();
  const double v = displayValue();
  const k::View view = bFractBin ? k::BinaryView(v) : k::FractionView(v);
  if (view.act == k::View::Act::Cancel) {
    Cancel();
    return;
  }
  if (view.act != k::View::Act::Show) return;
  lblRead2->Caption = view.text;
  lblRead2->Visible = true;
  // A fraction too small for any denominator ends the key before its toggle.
  const double f = k::FractionPart(v);
  if (!bFractBin && std::fabs(1 / f) > 1e15) return;
  bFractBin = !bFractBin;
}

void OviCalc::cmdOctalKey() {
  const double v = displayValue();
  const k::View octal = k::OctalView(v);
  if (octal.act == k::View::Act::Refused) {
    if (loud()) MsgBox(octal.message, 64, " Vantor Calc");
    return;
  }
  if (!lblRead2->Visible) {
    bOctHex = false;
    lblRead2->Visible = true;
  }
  lblRead2->Caption = bOctHex ? k::HexView(v).text : octal.text;
  bOctHex = !bOctHex;
  frameSlide->Visible = false;
}

}  // namespace tessaron
