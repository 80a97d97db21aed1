#pragma once
// The rules of the memory bank that need no control: which memory a row of
// the strip addresses, adding to a memory, what a recall does, clearing and
// the cleaning at load. The strip itself (captions, fonts, colours) is drawn
// by the form from these answers.
#include <array>
#include <string>

#include "numeric/numeric.h"

namespace tessaron::kernels {

// Slots 0 to 34; the user's memories are 1 to 33.
using MemoryBank = std::array<Value, 35>;
inline constexpr int kMemories = 33;
inline constexpr int kMemoryScrollMax = 29;

// The memory a strip row (1 to 4) addresses with the bar at `scroll`.
inline int MemoryRow(int index, int scroll) { return index + scroll; }
// The recall key's code.
inline int MemoryKeyCode(int n) { return 60 + n; }
// The colour row of memory n's keys: the table's rows 0 to 6 repeat.
inline int MemoryColourRow(int n) { return n - (n / 7) * 7; }
// Font of a row's content at a redraw, and at load.
float MemoryFontSize(const std::string& text);
float MemoryLoadFontSize(const std::string& text);

// M+: the memory plus the display text read as a number (comma groups
// accepted). An empty display leaves the memory as it is.
Value MemoryAdd(const Value& memory, const std::string& display);

// What a recall does with the display.
enum class Recall {
  Unchanged,   // nothing changes (display "0" and memory 0, or equal values)
  ShowZero,    // the display becomes "0"
  ShowMemory,  // PubShow(Readout, memory) and PubLast
  Refuse,      // kRecallRefusal (below stage 5); the display stays
};
inline constexpr const char* kRecallRefusal =
    " Need Operating Sign or . . . after Numbers/Functions/Memories.";
// `typing` is sEntry(nLevel) = "NUMS", after the pubNew of a finished chain.
Recall MemoryRecall(bool typing, const std::string& display, const Value& memory);

// "Clear all" asks its question only when some memory is not 0.
bool MemoriesAllZero(const MemoryBank& bank);
inline constexpr const char* kClearAllQuestion = "    Clear All Memories ?  ";
void ClearMemories(MemoryBank& bank);

// At load: dust below 10^-12 in magnitude becomes 0 (slots 0 to 33).
void CleanMemories(MemoryBank& bank);

}  // namespace tessaron::kernels
