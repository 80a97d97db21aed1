// The limits of T, read from the key list itself: a key that limits its
// argument (a division, a root, a logarithm, a fractional power, the
// trigonometric family) whose argument is a line a*T + b, found by pressing
// that piece of the list at two values of T, gives its limits directly.
#include <cmath>
#include <utility>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr double kFar = 1e33;

struct Rule {
  int code, first, last;
  bool front;
  enum Kind { Point, Root, LogBase, LogBand } kind;
};
// Records by rule, each range used in turn.
constexpr Rule kRules[] = {
    {24, 10, 14, false, Rule::Point},   {51, 15, 19, true, Rule::Point},
    {58, 20, 24, true, Rule::Root},     {28, 25, 29, true, Rule::LogBase},
    {28, 30, 34, false, Rule::LogBand}, {56, 35, 44, true, Rule::LogBand},
    {57, 35, 44, true, Rule::LogBand},
};
}  // namespace

namespace {
// One record: its band, and a point or a gap left out of it.
void record(std::array<double, 600>& d, int k, double low, double high, double point = kFar,
            double gapLow = kFar, double gapHigh = kFar) {
  d[k] = 2;
  d[100 + k] = low;
  d[200 + k] = high;
  d[300 + k] = point;
  d[400 + k] = gapLow;
  d[500 + k] = gapHigh;
}

// A band from `from` to the far end, in the order the sign of a gives.
std::pair<double, double> ordered(double from, double far, double a) {
  return a > 0 ? std::pair{from, far} : std::pair{far, from};
}
}  // namespace

// The keys from..to pressed on a clear calculator at T = t, then "=".
void OviCalc::replayFrom(int col, int from, int to, double t) {
  TNow = Value(t);
  pubNewOri();
  replayRange(col, from, to);
  pubCola(22);
}

void OviCalc::replayRange(int col, int from, int to) {
  for (int i = from; i <= to; ++i) pubCola(static_cast<int>(EqnTable[col][30 + i]));
}

void OviCalc::PubDomainCk() {
  if (EqnIdx == kDemoSlot && DemoSub > 1 && DemoNumber >= 37 && DemoNumber <= 41) {
    static constexpr double kLimits[][2] = {{-1, 1}, {-11, 11}, {0, 100}, {0, 100}, {-2, 2}};
    DomainTab[0] = 2;
    DomainTab[100] = kLimits[DemoNumber - 37][0];
    DomainTab[200] = kLimits[DemoNumber - 37][1];
    return;
  }
  if (EqnIdx == 0) EqnIdx = EqnPrev;
  for (int k = 0; k <= 99; ++k) {
    DomainTab[k] = 0;
    DomainTab[100 + k] = -kFar;
    for (int r = 200; r <= 500; r += 100) DomainTab[r + k] = kFar;
  }
  CalcStage = 5;
  DomainScan = true;
  PubDomainCk1();
  PubDomainCk3();
  PubDomainTrig();
  DomainScan = false;
  for (int k = 1; k <= 99; ++k) {
    if (DomainTab[k] < 2) continue;
    DomainTab[0] = 2;
    if (DomainTab[100 + k] > DomainTab[200 + k]) std::swap(DomainTab[100 + k], DomainTab[200 + k]);
    if (DomainTab[100] < DomainTab[100 + k]) DomainTab[100] = DomainTab[100 + k];
    if (DomainTab[200] > DomainTab[200 + k]) DomainTab[200] = DomainTab[200 + k];
  }
  if (DomainTab[100] > DomainTab[200]) MsgBox("  No Domain Works !  ", 48, " Vantor Calc");
  for (int k = 80; k <= 99; ++k) {
    if (DomainTab[k] < 2) continue;
    DomainTab[0] = 2;
    if (DomainTab[400 + k] > DomainTab[500 + k]) std::swap(DomainTab[400 + k], DomainTab[500 + k]);
  }
  ErrFlag = false;
  lblFormula->Caption = FormulaText;
}

void OviCalc::PubDomainCk1() {
  const auto& col = EqnTable[EqnIdx];
  const int last = static_cast<int>(col[29]);
  const double huge = Huge.number(), margin = Margin.number();
  for (const Rule& r : kRules) {
    // The two logarithm keys share one range of records.
    DomRec = r.code == 57 ? DomRec : r.first;
    for (DomScan = 2; DomScan <= last - 1 && DomRec <= r.last; ++DomScan) {
      if (static_cast<int>(col[30 + DomScan]) != r.code) continue;
      r.front ? pubDomainFront() : pubDomainRear();
      if (!LinFound) continue;
      const double a = LinA, b = LinB;
      switch (r.kind) {
        case Rule::Point:
          record(DomainTab, DomRec, -huge / a, huge / a, -b / a);
          break;
        case Rule::Root: {
          const auto [lo, hi] = ordered(-b / a, huge / a, a);
          record(DomainTab, DomRec, lo, hi);
          break;
        }
        case Rule::LogBase: {
          // The base may not be 1 either.
          const auto [lo, hi] = ordered((-b + margin) / a, huge / a, a);
          record(DomainTab, DomRec, lo, hi, (1 - b) / a);
          break;
        }
        case Rule::LogBand: {
          const auto [lo, hi] = ordered((-b + margin) / a, huge / a, a);
          record(DomainTab, DomRec, lo, hi);
          break;
        }
      }
      ++DomRec;
    }
  }
}

// The power keys: where the exponent can be fractional, the base must not go
// below zero.
void OviCalc::PubDomainCk3() {
  const int col = EqnIdx;
  const auto& keys = EqnTable[col];
  const int last = static_cast<int>(keys[29]);
  const double huge = Huge.number();
  for (const int code : {27, 31}) {
    DomRec = code == 27 ? 50 : 55;
    const int end = DomRec + 4;
    for (DomScan = 2; DomScan <= last - 1 && DomRec <= end; ++DomScan) {
      if (static_cast<int>(keys[30 + DomScan]) != code) continue;
      int from = DomScan + 1, to = from;
      if (static_cast<int>(keys[30 + from]) == 18) {
        while (to < last && static_cast<int>(keys[30 + to]) != 19) ++to;
      } else {
        while (to + 1 < last && static_cast<int>(keys[30 + to + 1]) < 20) ++to;
      }
      bool fractional = false;
      const double start = code == 27 ? 1 : 3, step = code == 27 ? 2.1 : 2;
      for (double t = start; t <= 13 && !fractional; t += step) {
        replayFrom(col, from, to, t);
        double v = readF();
        if (code == 31 && v != 0) v = 1 / v;
        fractional = std::floor(v) != v;
      }
      if (!fractional) continue;
      pubDomainFront();
      if (!LinFound) continue;
      const auto [lo, hi] = ordered(-LinB / LinA, huge / LinA, LinA);
      record(DomainTab, DomRec, lo, hi);
      ++DomRec;
    }
  }
  powerOfT();
}

// A power with T behind the key, in its exponent: a base that goes to zero
// or below somewhere has no fractional powers there, and T is held to the
// band of its exponent, out to 100.
void OviCalc::powerOfT() {
  const int col = EqnIdx;
  const auto& keys = EqnTable[col];
  const int last = static_cast<int>(keys[29]);
  auto code = [&keys](int i) { return static_cast<int>(keys[30 + i]); };
  for (const int power : {27, 31}) {
    DomRec = power == 27 ? 60 : 65;
    const int end = DomRec + 4;
    for (DomScan = 2; DomScan <= last - 1 && DomRec <= end; ++DomScan) {
      if (code(DomScan) != power) continue;
      // The base: the group that closes just before the key, T itself, or
      // the run of number keys before it.
      const int to = DomScan - 1;
      int from = to;
      if (code(to) == 19) {
        for (int depth = 0; from > 0; --from) {
          depth += code(from) == 19 ? 1 : code(from) == 18 ? -1 : 0;
          if (depth == 0) break;
        }
      } else if (code(to) != 33) {
        while (from - 1 > 0 && code(from - 1) < 20) --from;
      }
      bool positive = true;
      for (double t = -13; t <= 20 && positive; t += 2.1) {
        ErrFlag = false;
        replayFrom(col, from, to, t);
        positive = !ErrFlag && readF() > 0;
      }
      if (positive) continue;
      pubDomainRear();
      if (!LinFound) continue;
      const auto [lo, hi] = ordered(-LinB / LinA, 100 / LinA, LinA);
      record(DomainTab, DomRec, lo, hi);
      ++DomRec;
    }
  }
}

void OviCalc::PubDomainTrig() {
  const int col = EqnIdx;
  const auto& keys = EqnTable[col];
  const int last = static_cast<int>(keys[29]);
  DomRec = 80;
  for (DomScan = 3; DomScan <= last - 1 && DomRec <= 96; ++DomScan) {
    const int code = static_cast<int>(keys[30 + DomScan]);
    if (code < 34 || code > 39) continue;
    // The keys before it leave the prefixes and the angle unit as they stand
    // there.
    replayRange(col, 0, DomScan - 1);
    PubDomainTrig3();
  }
}

void OviCalc::PubDomainTrig3() {
  const int code = static_cast<int>(EqnTable[EqnIdx][30 + DomScan]);
  const bool arc = bArc, hyp = bHyp, degree = bDegree;
  pubDomainFront();
  if (!LinFound) return;
  const double a = LinA, b = LinB, margin = Margin.number(), huge = Huge.number();
  const double half = degree ? 180 : Atn(1) * 4;  // the angle of 180 degrees
  auto put = [&](double low, double high, double point = kFar, double gl = kFar, double gh = kFar) {
    if (DomRec > 96) return;
    record(DomainTab, DomRec++, low, high, point, gl, gh);
  };
  auto at = [&](double angle) { return (angle - b) / a; };
  const double w4 = 1e4 / a, w6 = 1e6 / a;
  if (hyp && arc) {
    if (code == 35) {
      const auto [lo, hi] = ordered((1 - b) / a, huge / a, a);
      put(lo, hi);
    } else if (code == 34) {
      put(at(1e-13 - 1), at(1 - 1e-13));
    } else if (code == 38) {
      put(at(1e-13), at(1));
    } else if (code == 39) {
      put(-w6, w6, -b / a);
    } else if (code == 37) {
      put(-w6, w6, kFar, at(-1), at(1));
    }
  } else if (hyp) {
    if (code == 37 || code == 39) put(-w6, w6, -b / a);
  } else if (arc) {
    if (code == 36 || code == 35) {
      put(at(-1), at(1));
    } else if (code == 38 || code == 39) {
      put(-w4, w4, kFar, at(-1 + margin), at(1 - margin));
    } else if (code == 37) {
      put(-w4, w4, at(-margin));
    }
  } else if (code == 34 || code == 38) {
    for (double angle : {0.5, -0.5, 1.5, -1.5, 2.5}) put(-w4, w4, at(angle * half));
    // In radians a sixth pole stands at -5/2 Pi; in degrees the sixth record
    // keeps its band alone.
    put(-w4, w4, degree ? kFar : at(-10 * Atn(1)));
  } else if (code == 39 || code == 37) {
    put(-w4, w4, -b / a);
    const double angles[] = {0, 1, -1, 2, -2};
    for (int i = 0; i < 5; ++i) put(-w4, w4, degree && i == 4 ? kFar : at(angles[i] * half));
  }
}

namespace {
bool isFunctionKey(int code) { return code >= 40 && code <= 59; }
}  // namespace

// The argument's line from the keys before the key at DomScan.
void OviCalc::pubDomainFront() {
  LinFound = false;
  const int col = EqnIdx;
  const auto& keys = EqnTable[col];
  auto key = [&](int i) { return i >= 0 ? static_cast<int>(keys[30 + i]) : -1; };
  int q = DomScan - 1;
  // T followed by sine and square root still reaches T.
  for (int skip = 0; skip < 4 && isFunctionKey(key(q)); ++skip) --q;
  const int code = key(q);
  if (code == 33) {
    LinFound = true;
    LinA = 1;
    LinB = 0;
  } else if (code == 12 && key(q - 1) == 33) {
    LinFound = true;
    LinB = 0;
    LinA = key(q - 2) == 21 ? 1 : -1;
  } else if (code == 19) {
    int open = q - 1, tAt = -1;
    while (open > 2 && key(open) != 18) {
      if (key(open) == 33 && tAt < 0) tAt = open;
      --open;
    }
    if (tAt < 0 || key(open) != 18) return;
    double s = key(tAt - 1) == 21 ? -1 : 1;
    if (key(tAt + 1) == 12) s = -s;
    replayFrom(col, open, q, 0);
    LinB = readF();
    replayFrom(col, open, q, s);
    LinA = (readF() - LinB) / s;
    LinFound = true;
  }
  if (LinFound && LinA == 0) LinA = 1;
}

// The argument's line from the keys behind the key at DomScan.
void OviCalc::pubDomainRear() {
  LinFound = false;
  const int col = EqnIdx;
  const auto& keys = EqnTable[col];
  const int last = static_cast<int>(keys[29]);
  auto key = [&](int i) { return i <= last ? static_cast<int>(keys[30 + i]) : -1; };
  const int r = DomScan + 1;
  if (key(r) == 33) {
    LinFound = true;
    LinB = 0;
    LinA = key(r + 1) == 12 ? -1 : 1;
  } else if (key(r) == 18) {
    int close = r + 1, tAt = -1;
    while (close < last && key(close) != 19) {
      if (key(close) == 33 && tAt < 0) tAt = close;
      ++close;
    }
    if (tAt < 0 || key(close) != 19) return;
    double s = key(tAt - 1) == 21 ? -1 : 1;
    if (key(tAt + 1) == 12) s = -s;
    // The first press is at T = 99; the line runs through both presses.
    replayFrom(col, r, close, 99);
    const double f99 = readF();
    replayFrom(col, r, close, s);
    LinA = (readF() - f99) / (s - 99);
    LinB = f99 - 99 * LinA;
    LinFound = true;
  }
  if (LinFound && LinA == 0) LinA = 1;
}

}  // namespace tessaron
