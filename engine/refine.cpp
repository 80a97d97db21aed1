// The finer searches of the root finder: a plateau or a turn walked again
// with a smaller step, a near zero refined in steps of 1/10^5, and the
// finishing of an answer to its rounder neighbour where that is as good.
#include <cmath>
#include <string>

#include "calc/ovicalc.h"
#include "engine/rounding.h"

namespace tessaron {

namespace {
bool accepted(float code) { return code > 0.5f && code < 990; }
bool filed(float code) { return code > 0 && code < 990; }
double roundWhole(double x) { return std::nearbyint(x); }

// The exponent of a number's text, looked for in its last six characters.
int exponentOf(const std::string& s) {
  const size_t n = s.size();
  for (size_t i = n; i-- > 0 && n - i <= 6;)
    if (s[i] == 'E' || s[i] == 'e') return static_cast<int>(Val(s.substr(i + 1)));
  return 0;
}

// Where a run of `run` equal digits (zeros or nines) stands behind the
// point: the count of decimals before it, or -1.
int runBehindPoint(const std::string& s, size_t run, size_t stopFromEnd) {
  const size_t point = s.find('.');
  if (point == std::string::npos || point + stopFromEnd > s.size()) return -1;
  for (size_t i = point + 1; i + run <= s.size(); ++i) {
    const std::string part = s.substr(i, run);
    if (part == std::string(run, '0') || part == std::string(run, '9'))
      return static_cast<int>(i - point - 1);
  }
  return -1;
}
}  // namespace

double RoundX(int digits, double x) {
  const std::string s = CStr(Value(x));
  if (s.size() > 13) {
    const int e = exponentOf(s);
    const int j = runBehindPoint(s, 4, 7);
    if (j >= 0) {
      const double p = std::pow(10.0, j + 1);
      x = roundWhole(x / std::pow(10.0, e) * p) * std::pow(10.0, e) / p;
    }
  }
  const double a = std::fabs(x);
  if (a < 1e-12) return 0;
  if (a < 1) {
    int k = 0;
    while (k < 308 && a * std::pow(10.0, k) < 1) ++k;
    const double p = std::pow(10.0, k + digits - 1);
    return roundWhole(x * p) / p;
  }
  int k = 0;
  while (k < 307 && a / std::pow(10.0, k) >= 1) ++k;
  const double p = std::pow(10.0, k - digits);
  return roundWhole(x / p) * p;
}

void OviCalc::PubMode() { walkRefine(true); }
void OviCalc::pubDoWhile22() { walkRefine(false); }

// The two re-walks differ in their counts and in how far a wrong turn cuts
// the step; PubMode counts its calls.
void OviCalc::walkRefine(bool plateau) {
  if (plateau) ++PlateauTries;
  const double saved[] = {TOld, FOld, TPrev, FPrev, TNext, FNext};
  const int rounds = plateau ? 18 : 11, mostWrong = plateau ? 2 : 8;
  const double cut = plateau ? 10 : 3;
  double step = StepBase / 10;
  TPrev = TOld;
  FPrev = FOld;
  TNext = TPrev + step;
  double dPrev = 0;
  int wrong = 0;
  const double tiny = Tiny.number();
  for (int r = 0; r < rounds; ++r) {
    ErrFlag = false;
    FNext = evalAt(TNext);
    if (!ErrFlag) {
      const double dNow = FNext - FPrev;
      if (FNext == 0) {
        AnsT = TNext;
        AnsF = 0;
        AnswerCode += 100;
        break;
      }
      if (std::fabs(FNext) < tiny) {
        AnswerCode += 200;
        TNow = Value(TNext);
        AnsT = TNext;
        AnsF = FNext;
        pubSolveDetail();
        break;
      }
      if (!(std::fabs(FPrev) < 1e100) || !(std::fabs(FNext) < 1e100)) break;
      if (FPrev * FNext < 0) {
        AnswerCode += 51;
        pubSolveCross();
        if (accepted(AnswerCode)) break;
      } else if (dPrev * dNow < 0) {
        pubMaxMin();
        if (accepted(AnswerCode)) break;
        // The vertex of the parabola through the last three points.
        const double denom = 2 * FPrev - FOld - FNext;
        const double t = denom != 0 ? TPrev + step * (FNext - FOld) / denom / 2 : TPrev;
        ErrFlag = false;
        const double f = evalAt(t);
        if (!ErrFlag && f == 0) {
          AnsT = t;
          AnsF = 0;
          AnswerCode = 101.11f;
          break;
        }
        if (!ErrFlag && std::fabs(f) < 1e-160) {
          // The digits TPrev and TNext share make the candidate.
          const std::string a = CStr(Value(TPrev)), b = CStr(Value(TNext));
          const size_t n = std::min(a.size(), b.size());
          for (size_t i = 1; i + 6 <= n; ++i) {
            if (a.compare(0, i, b, 0, i) == 0) continue;
            std::string cand = a.substr(0, i);
            const size_t e = a.find_first_of("Ee", a.size() > 5 ? a.size() - 5 : 0);
            if (e != std::string::npos) cand += a.substr(e);
            TNow = Value(Val(cand));
            AnsT = TNow.number();
            AnsF = f;
            AnswerCode = 101.12f;
            pubSolveDetail();
            if (AnsF != 0) PubSolveFin();
            if (filed(AnswerCode)) break;
          }
          if (filed(AnswerCode)) break;
        }
      }
      // Moving away from zero is a wrong turn: back, with a smaller step.
      if (std::fabs(FNext) > std::fabs(FPrev)) {
        ++wrong;
        step = -step / cut;
        if (wrong > mostWrong && std::fabs(FNext) > 100) break;
      }
      dPrev = dNow;
    }
    TOld = TPrev;
    FOld = FPrev;
    TPrev = TNext;
    if (!ErrFlag) FPrev = FNext;
    TNext = TPrev + step;
    const bool atLimit = domainActive() && (TNext < DomainTab[100] || TNext > DomainTab[200]);
    if (TPrev == TNext || atLimit) {
      if (std::fabs(FNext) < 1e-8) {
        TNow = Value(TPrev);
        AnsT = TPrev;
        AnsF = FNext;
        AnswerCode = 99.9f;
        pubSolveDetail();
        if (AnsF != 0) PubSolveFin();
      }
      break;
    }
  }
  TOld = saved[0];
  FOld = saved[1];
  TPrev = saved[2];
  FPrev = saved[3];
  TNext = saved[4];
  FNext = saved[5];
  if (!accepted(AnswerCode)) {
    ErrFlag = false;
    const double f = evalAt(TPrev);
    if (std::fabs(f) < 1e-10 && !ErrFlag) {
      AnsT = TPrev;
      AnsF = f;
      AnswerCode += 222;
    }
  }
}

void OviCalc::pubSolveDetail() {
  const double centre = TNow.number();
  const double best = std::fabs(readF());
  const double low = DomainTab[100], pointLimit = DomainTab[300];
  bool found = false;
  int down = 0, up = 0;
  for (int k = 1; k <= 3333; ++k) {
    const double t = centre - k / 1e5;
    if (domainActive() && t < low) break;
    ErrFlag = false;
    const double f = evalAt(t);
    if (f == 0 && !ErrFlag) {
      AnsT = t;
      AnsF = 0;
      found = true;
      break;
    }
    down = k;
    if (std::fabs(f) > best) break;
  }
  for (int k = 1; !found && k <= 3333; ++k) {
    const double t = centre + k / 1e5;
    // Upward the limit read is the overall point, not the high end.
    if (domainActive() && t > pointLimit) break;
    ErrFlag = false;
    const double f = evalAt(t);
    if (f == 0 && !ErrFlag) {
      AnsT = t;
      AnsF = 0;
      found = true;
      break;
    }
    up = k;
    if (std::fabs(f) > best) break;
  }
  if (found) {
    AnswerCode += 105;
    return;
  }
  const double t = centre + ((up - down) / 2.0) / 1e5;
  ErrFlag = false;
  const double f = evalAt(t);
  if (std::fabs(f) < 1e-8 && !ErrFlag) {
    AnsT = t;
    AnsF = f;
    AnswerCode += 107;
  }
}

void OviCalc::PubSolveFin() {
  PubSolveRound();
  if (!filed(AnswerCode)) return;
  if (std::fabs(AnsT) < Tiny.number()) {
    ErrFlag = false;
    const double f = evalAt(0);
    if (!ErrFlag) {
      AnsT = 0;
      AnsF = f;
    }
  }
  if (AnsT > 1e17) AnsT = 1e100;
  if (AnsT < -1e17) AnsT = -1e100;
  TNow = TValue;
  pubFunkWrite();
}

void OviCalc::PubSolveRound() {
  const std::string s = CStr(Value(AnsT));
  const float code = AnswerCode;
  const double quarter = Atn(1);
  // A multiple of Pi/4 is pressed first, and its result deliberately left.
  evalAt(quarter * roundWhole(AnsT / quarter * 1e6) / 1e6);
  ErrFlag = false;
  const double t = roundWhole(AnsT * 1e5) / 1e5;
  const double f = evalAt(t);
  if (!ErrFlag) {
    if (std::fabs(f) < Tiny.number() && std::fabs(f) <= std::fabs(AnsF)) {
      AnsT = t;
      AnsF = f;
      return;
    }
  } else {
    AnswerCode = code;
  }
  if (s.size() <= 13) return;
  const int e = exponentOf(s);
  const int j = runBehindPoint(s, 6, 7);
  if (j < 0) return;
  const double p = std::pow(10.0, j + 1), scale = std::pow(10.0, e);
  const double cand = roundWhole(AnsT / scale * p) * scale / p;
  ErrFlag = false;
  const double fc = evalAt(cand);
  if (!ErrFlag) {
    AnsT = cand;
    AnsF = fc;
  }
}

}  // namespace tessaron
