// The key codes: what the key log records and what replay presses again. The
// table maps each code to its routine once, so replay costs one indexed call
// per key.
#include <array>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
using Routine = void (*)(OviCalc&, int code);

constexpr int kCodes = 146;

template <void (OviCalc::*Key)()>
void plain(OviCalc& f, int) {
  (f.*Key)();
}

constexpr std::array<Routine, kCodes> makeTable() {
  std::array<Routine, kCodes> t{};
  for (int d = 0; d <= 9; ++d) t[d] = [](OviCalc& f, int code) { f.Number(code); };
  t[11] = plain<&OviCalc::cmdDeci>;
  t[12] = plain<&OviCalc::Sign>;
  t[13] = plain<&OviCalc::Pipi>;
  t[14] = plain<&OviCalc::cmdDelete>;
  t[15] = plain<&OviCalc::cmdExp>;
  t[16] = plain<&OviCalc::CancelEntry>;
  t[17] = plain<&OviCalc::Cancel>;
  t[18] = plain<&OviCalc::cmdOpenP>;
  t[19] = plain<&OviCalc::cmdCloseP>;
  for (int op = 20; op <= 31; ++op) t[op] = [](OviCalc& f, int code) { f.Operator(code - 20); };
  t[33] = plain<&OviCalc::cmdT>;
  t[34] = plain<&OviCalc::Ttan>;
  t[35] = plain<&OviCalc::Ccos>;
  t[36] = plain<&OviCalc::SSin>;
  t[37] = plain<&OviCalc::Cotan>;
  t[38] = plain<&OviCalc::Secant>;
  t[39] = plain<&OviCalc::Cosec>;
  t[40] = plain<&OviCalc::cmdRaDegKey>;
  t[41] = plain<&OviCalc::cmdDeg>;
  t[42] = plain<&OviCalc::cmdRad>;
  t[43] = plain<&OviCalc::cmdHypKey>;
  t[44] = plain<&OviCalc::cmdArcKey>;
  t[46] = plain<&OviCalc::nFacKey>;
  t[47] = plain<&OviCalc::cmdArea>;
  t[48] = plain<&OviCalc::cmdPythaOne>;
  t[49] = plain<&OviCalc::cmdPythaPlus>;
  t[50] = plain<&OviCalc::Percent>;
  t[51] = plain<&OviCalc::Rever>;
  t[52] = plain<&OviCalc::Squar>;
  t[53] = plain<&OviCalc::Cubi>;
  t[54] = plain<&OviCalc::exp10>;
  t[55] = plain<&OviCalc::Expo>;
  t[56] = plain<&OviCalc::NatLog>;
  t[57] = plain<&OviCalc::Loga>;
  t[58] = plain<&OviCalc::SqRt>;
  t[59] = plain<&OviCalc::CuR>;
  t[60] = plain<&OviCalc::txtKwalClick>;
  // A memory recall is recorded by the memory's number.
  for (int m = 61; m <= 94; ++m) t[m] = [](OviCalc& f, int code) { f.recallCode(code); };
  t[97] = plain<&OviCalc::cmdHypKey>;
  t[98] = plain<&OviCalc::cmdArcKey>;
  t[99] = plain<&OviCalc::PubZeroRead>;
  // A constant pasted while a function was keyed: its slot in PasteList.
  for (int p = 100; p <= 134; ++p) t[p] = [](OviCalc& f, int code) { f.pubPasteXY(code - 100); };
  // The demos' functions, each on the display's text.
  for (int d = 137; d <= 145; ++d) t[d] = [](OviCalc& f, int code) { f.pubDemoCode(code); };
  return t;
}

constexpr std::array<Routine, kCodes> kKeys = makeTable();
}  // namespace

void OviCalc::pubCola(int code) {
  if (code < 0 || code >= kCodes) return;
  if (const Routine r = kKeys[code]) r(*this, code);
}

}  // namespace tessaron
