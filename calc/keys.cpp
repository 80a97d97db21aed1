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
  t[41] = plain<&OviCalc::cmdDeg>;
  t[42] = plain<&OviCalc::cmdRad>;
  t[48] = plain<&OviCalc::cmdPythaOne>;
  t[49] = plain<&OviCalc::cmdPythaPlus>;
  t[50] = plain<&OviCalc::Percent>;
  t[60] = plain<&OviCalc::txtKwalClick>;
  t[99] = plain<&OviCalc::PubZeroRead>;
  return t;
}

constexpr std::array<Routine, kCodes> kKeys = makeTable();
}  // namespace

void OviCalc::pubCola(int code) {
  if (code < 0 || code >= kCodes) return;
  if (const Routine r = kKeys[code]) r(*this, code);
}

void OviCalc::cmdDeg() {
  bDegree = true;
  if (!loud()) return;
  cmdDegC->BackColor = 0xC0FFC0;
  cmdRadC->BackColor = 0xC0C0C0;
}

void OviCalc::cmdRad() {
  bDegree = false;
  if (!loud()) return;
  cmdRadC->BackColor = 0xC0FFC0;
  cmdDegC->BackColor = 0xC0C0C0;
}

}  // namespace tessaron
