#pragma once
// The calculator's variables: one record per open parenthesis, the entry
// flags, the colour rows, the key log and the saved calculations. The number
// itself is not here: it is the text of the display.
#include <array>
#include <cstdint>
#include <string>

#include "numeric/numeric.h"

namespace tessaron {

// Level 0 is the chain outside any parenthesis; 33 levels may be opened.
inline constexpr int kLevels = 34;
inline constexpr int kMaxLevel = 33;
// Rows of the calculation history: 0 is the calculation in hand.
inline constexpr int kHistRows = 37;
// Positions of the key log.
inline constexpr int kKeySlots = 334;

// What the last act at a level was: an operator, or a number standing.
enum class Entry : std::uint8_t { Ops, Nums };

// The display kept at a level, to be read or put back later. A silent
// replay keeps the number it shows; the text is made only if it is needed.
struct KeptShow {
  std::string text = "0";
  double number = 0;
  bool numeric = false;  // the display showed `number`, its text not made
};

struct CalcState {
  // The per-level record of the precedence machine.
  std::array<Value, kLevels> vAcc, vOperand, vFuncX, vFuncY, vSumHold;
  std::array<float, kLevels> sgCount{}, sgLastOp{}, sgSumOp{};
  std::array<Entry, kLevels> sEntry{};
  // The pending operator's caption: '+', '-', '=', 'X', '/', ' ' after a
  // closed parenthesis, or 0 for none.
  std::array<char, kLevels> sOp{};
  std::array<KeptShow, kLevels> sShown;
  std::array<Value, kLevels> nLastOp;
  // Levels above this one still hold their start values.
  int nLevelHigh = kMaxLevel;

  int nLevel = 0;
  bool bDecimal = false, bResult = false, bParenValue = false, bExp = false;
  bool ErrFlag = false;
  std::string FormulaText;
  int CalcStage = 0;
  bool KeyLog = false, bReplay = false;
  bool EqnOpen = false, InputForm = false, InputT = false;
  bool bArc = false, bHyp = false, bDegree = true, bHoldKeys = false;
  int nMemLast = 0;
  int EqnIdx = 0;
  bool bColorDue = false;
  int nColor = 0;

  Value vPi, vPiLow, vPiHigh, Tiny, Huge, Margin;
  Value TValue, TNow;

  std::array<long, 8> vColorRead{};
  std::array<std::string, 8> sColorForm;

  // The keys of the calculation in hand; three header keys come first.
  std::array<int, kKeySlots> KeyOrder{};
  int KeyCount = 0;

  // The memories 1 to 33 (0 and 34 are spare slots).
  std::array<Value, 35> vMemory;

  std::array<std::string, kHistRows> HistText;
  std::array<Value, kHistRows> HistValue;
  std::array<int, kHistRows> HistColor{};

  // The number views' toggles: binary after fraction, hex after octal.
  bool bFractBin = false, bOctHex = false;
  // Keys refused and taken back; the solver reads it.
  int nFailCount = 0;
  // The hint's tick counter.
  int nSlideTick = 0;
  // Set while Cancel moves the history bar, so the bar does not replay.
  bool bCancelling = false;
};

}  // namespace tessaron
