#pragma once
// The function engine's variables: the store of key lists with their
// answers, the limits of T, the walk of the root finder and the answers of
// one solve. They belong to the calculator's form, beside its own state.
#include <array>
#include <string>

#include "numeric/value.h"

namespace tessaron {

// Rows of a function slot and the slots themselves: 0 is the slot in hand,
// 1 to 32 the stored functions, newest first, 33 the running demo.
inline constexpr int kEqnRows = 334;
inline constexpr int kEqnCols = 37;
inline constexpr int kDemoSlot = 33;
inline constexpr int kPasteSlots = 33;

struct EngineState {
  // The store, column by column. Every cell is a number, so the store keeps
  // them as such: answers, T values, colours, stages and key codes.
  std::array<std::array<double, kEqnRows>, kEqnCols> EqnTable{};
  std::array<std::string, kEqnCols> EqnText;
  std::array<int, kEqnCols> EqnColor{};
  // The display each slot's list starts from (its header key 99 reads it).
  std::array<Value, kEqnCols> EqnFirst;
  std::array<int, kEqnRows> KeyCopy{};
  int EqnPrev = 0;     // the slot before the last move of ScrForm
  int DemoSub = 0;     // the demo's sub-state
  int DemoNumber = 0;  // the running demo
  bool TChanged = false;
  bool SilentNote = false;  // answers found by a new T, not by Solve
  std::string FormulaKeep, FormulaSave, FormulaNote;

  // Constants pasted into a recorded function; 1E+296 marks a free slot.
  std::array<double, kPasteSlots> PasteList{};

  // The limits of T: kinds at k, then bands, points and gaps at fixed
  // distances from it.
  std::array<double, 600> DomainTab{};
  int DomScan = 0, DomRec = 0;
  bool LinFound = false, DomainScan = false;
  double LinB = 0, LinA = 0, LinT = 0;

  // The walk.
  double TPrev = 0, FPrev = 0, TNext = 0, FNext = 0, TOld = 0, FOld = 0;
  double StepBase = 0.01;
  int Iter = 0, HitCount = 0, CrossTries = 0, PlateauTries = 0, FlatRun = 0;
  short SkipCount = 0, FailCount = 0;
  int SkipFlag = 0;
  int CrossSteps = 0;  // rounds of the last bisection, kept as its record
  float AnswerCode = 0;
  // How far the last solve walked upward and downward before a cap or its
  // answers ended the pass.
  std::array<double, 2> WalkReach{};
  double AnsT = 0, AnsF = 0;

  // The answers of one solve.
  int AnsCount = 0, AnsMem = 0, MemScan = 0;
  std::array<double, 34> AnsList{};
  bool DupFlag = false;

  // Replays since the form was loaded: what a solve costs.
  long long EvalCount = 0;
};

}  // namespace tessaron
