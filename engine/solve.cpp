// The root finder: a walk outward from the user's T in steps that grow by 8
// per cent, up to three answers each way. A sign change is closed in by
// bisection, a turn of f by a search for the extreme, a flat stretch by a
// finer walk. f is a black box pressed key by key, so every loop is capped.
#include <cfloat>
#include <cmath>

#include "calc/ovicalc.h"
#include "engine/rounding.h"

namespace tessaron {

namespace {
bool accepted(float code) { return code > 0.5f && code < 990; }
bool filed(float code) { return code > 0 && code < 990; }

// A point stands Margin from a pole when it does up to the rounding of T
// itself near the pole.
bool marginFrom(double t, double p, double margin) {
  return std::fabs(std::fabs(t - p) - margin) <= margin * 1e-3 + 8 * DBL_EPSILON * std::fabs(p);
}
}  // namespace

void OviCalc::backKeyWaits(bool waiting) {
  cmdBackC->Caption = waiting ? "Pls Wait." : "Back";
  cmdBackC->Width = waiting ? 1800 : 1200;
  cmdBackC->BackColor = waiting ? 12648384 : 12632256;
}

void OviCalc::cmdTsolve() {
  if (EqnIdx == kDemoSlot) {
    MsgBox("  Not Necessary at Demo ", 48, " Vantor Calc");
    return;
  }
  CalcStage = static_cast<int>(EqnTable[EqnIdx][28]);
  if (CalcStage == 3) {
    MsgBox("  Indeterminate form Trouble  ", 48, " Vantor Calc");
    return;
  }
  if (CalcStage < 4) return;
  InputT = false;
  cmdTvalueC->BackColor = 0x80CCFF;
  cmdTvalueC->Enabled = true;
  cmdTformC->BackColor = 0x80CCFF;
  KeyLog = false;
  SilentNote = false;
  pubNew();
  if (EqnIdx == 0) ScrForm->setValue(Value(1));
  const auto& col = EqnTable[EqnIdx];
  for (int i = 0; i <= static_cast<int>(col[29]); ++i) KeyCopy[i] = static_cast<int>(col[30 + i]);
  backKeyWaits(true);
  CalcStage = 5;
  pubFunkWrite();
  InputT = InputForm = ErrFlag = false;
  AnswerCode = 0;
  AnsCount = 0;
  WalkReach.fill(TValue.number());
  PubDomainCk();
  if (domainActive())
    pubSolveDomain();
  else
    pubSolveUpDown();
  if (AnsCount > 0) {
    lblFormula->Caption = FormulaNote + " : " + std::to_string(AnsCount) + " Ans.";
    setDisp("0");
  } else {
    lblFormula->Caption = FormulaKeep + "     find no answer ";
    PubReadout(Value(EqnTable[EqnIdx][26]));
  }
  AnsCount = 0;
  CalcStage = 4;
  pubFunkWrite();
  KeyLog = true;
  pubEnableB();
  backKeyWaits(false);
  solveKeys();
}

void OviCalc::pubSolveUpDown() {
  ErrFlag = false;
  StepBase = 0.01;
  const double tv = TValue.number();
  const double f0 = evalAt(tv);
  if (ErrFlag) {
    MsgBox("  Not work with Initial T value  - better adjust it !  ", 48, " Vantor Calc");
    return;
  }
  if (f0 == 0) {
    AnsT = tv;
    AnsF = 0;
    PubSolveFin();
    AnswerCode = 11.1f;
    PubAnswerWrite();
    pubAnswerCount();
  }
  for (int pass = 1; pass <= 2; ++pass) {
    if (pass == 2) StepBase = -StepBase;
    AnswerCode = pass == 1 ? -85.9f : -84.9f;
    TPrev = tv;
    FPrev = f0;
    TNext = tv + StepBase;
    TNow = Value(TNext);
    SkipCount = 0;
    CrossTries = PlateauTries = 0;
    pubDoWhile();
    WalkReach[StepBase > 0 ? 0 : 1] = TPrev;
  }
}

void OviCalc::pubSolveDomain() {
  const double tv = TValue.number();
  ErrFlag = false;
  const double f0 = evalAt(tv);
  // A T outside the known band is the domain's doing, not the user's: the
  // walk starts all the same and steps onto the band's edge.
  const bool inside = tv >= DomainTab[100] && tv <= DomainTab[200];
  if (ErrFlag && inside) {
    MsgBox("  Not work with Initial T value  - better adjust it !  ", 48, " Vantor Calc");
    return;
  }
  if (!ErrFlag && f0 == 0) {
    AnsT = tv;
    AnsF = 0;
    PubSolveFin();
    AnswerCode = 11.3f;
    PubAnswerWrite();
    if (!SilentNote) pubAnswerCount();
  }
  for (int pass = 1; pass <= 2; ++pass) {
    StepBase = (pass == 1 ? DomainTab[200] : DomainTab[100]) - tv;
    for (int i = 0; i < 88 && std::fabs(StepBase) > 0.001; ++i) StepBase /= 4;
    TPrev = tv;
    FPrev = f0;
    TNext = tv + StepBase;
    TNow = Value(TNext);
    SkipCount = 0;
    CrossTries = PlateauTries = 0;
    pubDoWhile();
    WalkReach[StepBase > 0 ? 0 : 1] = TPrev;
  }
}

void OviCalc::pubDoWhile() {
  Iter = 1;
  SkipFlag = 0;
  nFailCount = 0;
  HitCount = 0;
  FlatRun = 0;
  CalcStage = 5;
  ErrFlag = false;
  double dPrev = 0, dNow = 0;
  int clamps = 0;
  auto passOver = [this] { return PlateauTries > 7 || CrossTries > 7 || SkipCount > 44; };
  while (Iter < 240 && CalcStage >= 4 && nFailCount < 7) {
    // 3-11: the point in hand.
    bool flat = false;
    ErrFlag = false;
    pubCOCAcola();
    if (!ErrFlag) {
      FNext = readF();
      dNow = FNext - FPrev;
      if (FNext == 0) {
        AnsT = TNext;
        AnsF = 0;
        AnswerCode += 100;
      } else if (std::fabs(FNext) < Tiny.number()) {
        AnswerCode += 200;
        TNow = Value(TNext);
        AnsT = TNext;
        AnsF = FNext;
        pubSolveDetail();
      } else if (!(std::fabs(FPrev) < 1e100) || !(std::fabs(FNext) < 1e100)) {
        return;
      } else if (FPrev * FNext < 0 && SkipFlag < 1) {
        AnswerCode -= 50;
        pubSolveCross();
        if (passOver()) return;
        if (AnswerCode < 300) AnswerCode = 0;
        if (Iter > 238) {
          Iter = 333;
          return;
        }
      } else if (dPrev * dNow < 0) {
        pubMaxMin();
      } else if (std::fabs(StepBase * std::pow(1.08, Iter - 1) + StepBase) >
                     std::fabs(TNext - TPrev) &&
                 FNext * dPrev < 0 && dPrev * dNow < 0) {
        // A wrong turn: the turn above has taken this case already.
        if (Iter > 4) {
          Iter = 1;
          TPrev = TOld;
          FPrev = FOld;
          TNext = TPrev + StepBase;
          FNext = FPrev + dNow / 1000;
        } else {
          pubMaxMin();
          if (!accepted(AnswerCode)) pubDoWhile22();
        }
      } else if (std::fabs(StepBase * std::pow(1.08, Iter - 1)) >= std::fabs(TNext - TPrev) &&
                 FPrev == FNext) {
        flat = true;
        PubMode();
        if (!accepted(AnswerCode)) AnswerCode = 0;
        if (passOver()) return;
        if (++FlatRun == 3) {
          AnswerCode = 999;
          Iter = 334;
          return;
        }
      }
    }
    if (!flat) FlatRun = 0;
    // 12: an answer in hand is finished and filed.
    if (accepted(AnswerCode)) {
      PubSolveFin();
      if (filed(AnswerCode)) {
        PubAnswerWrite();
        pubAnswerCount();
      }
      AnswerCode = 0;
      Iter = 0;
      if (++HitCount == 3) return;
    }
    if (passOver()) return;
    SkipFlag = 0;
    if (domainActive() && (TNext == DomainTab[100] || TNext == DomainTab[200])) {
      Iter = 335;
      return;
    }
    // 15: one step on.
    dPrev = FNext - FPrev;
    TOld = TPrev;
    FOld = FPrev;
    TPrev = TNext;
    FPrev = FNext;
    TNext = TPrev + std::pow(1.08, Iter) * StepBase;
    if (domainActive()) {
      const double low = DomainTab[100], high = DomainTab[200], margin = Margin.number();
      if (TNext < low || TNext > high) {
        TNext = TNext < low ? low : high;
        if (++clamps == 4) {
          Iter = 1111;
          return;
        }
      }
      const double dir = StepBase / std::fabs(StepBase);
      for (int k = 9; k <= 99; ++k) {
        if (DomainTab[k] <= 1) continue;
        const double p = DomainTab[300 + k];
        if (TNext == p) {
          if (marginFrom(TPrev, p, margin))
            SkipFlag = 2;
          else
            TNext = p - dir * margin;
        } else if ((TPrev - p) * (TNext - p) < 0) {
          SkipFlag = 2;
          if (!marginFrom(TNext, p, margin)) {
            if (marginFrom(TPrev, p, margin)) {
              // Just before the pole: the walk hops over it.
              TPrev = p + dir * margin / 2;
              FPrev = evalAt(TPrev);
              TNext = p + dir * margin;
            } else {
              TNext = p - dir * margin;
            }
          }
        }
      }
      for (int k = 80; k <= 99; ++k) {
        if (DomainTab[k] <= 1) continue;
        const double a = DomainTab[400 + k], b = DomainTab[500 + k];
        if (TPrev == a && TNext > a) {
          TNext = b + StepBase;
          SkipFlag = 2;
        } else if (TPrev == b && TNext < b) {
          TNext = a + StepBase;
          SkipFlag = 2;
        } else if (TPrev < a && TNext > a) {
          TNext = a;
        } else if (TPrev > b && TNext < b) {
          TNext = b;
        }
      }
    }
    if (SkipFlag > 1) ++SkipCount;
    TNow = Value(TNext);
    ++Iter;
    if (loud()) setDisp("0");
  }
}

// Bisection of TPrev, TNext. A bracket across a pole or a jump of the
// domain is no root and is refused.
void OviCalc::pubSolveCross() {
  if (++CrossTries > 7) return;
  double left = TPrev, right = TNext, fLeft = FPrev;
  if (left > right) {
    std::swap(left, right);
    fLeft = FNext;
  }
  auto outside = [this](double t) {
    if (t < DomainTab[100] || t > DomainTab[200]) return true;
    for (int k = 9; k <= 99; ++k) {
      if (DomainTab[k] <= 1) continue;
      if (t == DomainTab[300 + k]) return true;
      if (k >= 80 && t > DomainTab[400 + k] && t < DomainTab[500 + k]) return true;
    }
    return false;
  };
  if (domainActive()) {
    for (int k = 9; k <= 99; ++k) {
      if (DomainTab[k] <= 1) continue;
      if (left < DomainTab[100 + k] || right > DomainTab[200 + k]) return;
      const double p = DomainTab[300 + k];
      if (left < p && p < right) return;
      if (k >= 80) {
        const double a = DomainTab[400 + k], b = DomainTab[500 + k];
        for (double end : {left, right})
          if (end > a && end < b) return;
        if ((left < a && a < right) || (left < b && b < right)) return;
      }
    }
  }
  double mid = (left + right) / 2;
  CrossSteps = 0;
  const double tiny = Tiny.number();
  while (AnswerCode < 99 && CrossSteps < 707) {
    ++CrossSteps;
    ErrFlag = false;
    const double fm = evalAt(mid);
    if (ErrFlag || CalcStage == 4) break;
    if (fm == 0) {
      AnswerCode += 500.4f;
      AnsT = mid;
      AnsF = 0;
      break;
    }
    if (std::fabs(mid) > tiny && std::fabs((right - left) / mid) <= tiny &&
        std::fabs(fm) <= 10 * tiny) {
      AnswerCode += 500.6f;
      AnsT = mid;
      AnsF = fm;
      pubSolveDetail();
      break;
    }
    if ((fm < 0) != (fLeft < 0)) {
      right = mid;
    } else {
      left = mid;
      fLeft = fm;
    }
    mid = (left + right) / 2;
    if (domainActive() && outside(mid)) {
      AnswerCode = 0;
      break;
    }
  }
  if (AnswerCode < 100) {
    ErrFlag = false;
    const double f = evalAt(mid);
    if (std::fabs(f) < Margin.number() && !ErrFlag) {
      AnswerCode += 700;
      AnsT = mid;
      AnsF = f;
      if (AnsF != 0) pubSolveDetail();
    }
  }
}

// A root that touches zero at a turn of f between TOld and TNext.
void OviCalc::pubMaxMin() {
  double a = TOld, fa = FOld, b = TNext, fb = FNext;
  if ((FNext - FPrev) * (FPrev - FOld) > 0) return;
  // The bisection works on the walk's pair; the walk goes on from its own.
  const double walk[] = {TPrev, FPrev, TNext, FNext};
  struct Restore {
    OviCalc& f;
    const double* w;
    ~Restore() { f.TPrev = w[0], f.FPrev = w[1], f.TNext = w[2], f.FNext = w[3]; }
  } restore{*this, walk};
  for (int round = 0; round < 33 && a != b; ++round) {
    const double m = (a + b) / 2;
    ErrFlag = false;
    const double fm = evalAt(m);
    if (ErrFlag || CalcStage == 4) return;
    if (fm == 0) {
      AnswerCode += 500.5f;
      AnsT = m;
      AnsF = 0;
    } else {
      if (std::fabs(a - b) < 0.01 && std::fabs(fm / (a - b)) > 1000) return;
      // Closed at 10 digits, or to 1/10^10 about zero, where a relative
      // width never closes; an extreme that stays off zero is no root.
      if (std::fabs(a - b) < 1e-10 * std::max(1.0, std::fabs(a + b))) {
        if (!(std::fabs(fm) < Margin.number())) return;
        AnsT = RoundX(10, m);
        AnsF = 0;
        AnswerCode += 500.7f;
      } else {
        if (!(std::fabs(fa) < 1e50) || !(std::fabs(fm) < 1e50) || !(std::fabs(fb) < 1e50)) return;
        if (fa * fm < 0) {
          TPrev = a;
          FPrev = fa;
          TNext = m;
          FNext = fm;
          AnswerCode = -22.22f;
          pubSolveCross();
        } else if (fm * fb < 0) {
          TPrev = m;
          FPrev = fm;
          TNext = b;
          FNext = fb;
          AnswerCode = -22.24f;
          pubSolveCross();
        } else if (std::fabs(fm - fa) > std::fabs(fb - fm)) {
          // The side that moves takes its value along, so that the pair
          // keeps the extreme between them.
          a = m;
          fa = fm;
        } else {
          b = m;
          fb = fm;
        }
      }
    }
    if (accepted(AnswerCode)) return;
    AnswerCode = 0;
  }
}

}  // namespace tessaron
