// The memory bank's rules.
#include "calc/kernels/memory.h"

#include <cmath>

namespace tessaron::kernels {

namespace {

double DisplayNumber(const std::string& display) {
  return display.empty() ? 0 : Value(display).number();
}

std::size_t Units(const std::string& text) { return static_cast<std::size_t>(Len(Value(text))); }

}  // namespace

float MemoryFontSize(const std::string& text) { return Units(text) < 10 ? 12.0f : 10.0f; }
float MemoryLoadFontSize(const std::string& text) { return Units(text) > 7 ? 10.0f : 12.0f; }

Value MemoryAdd(const Value& memory, const std::string& display) {
  if (display.empty()) return memory;
  return memory + Value(display);
}

Recall MemoryRecall(bool typing, const std::string& display, const Value& memory) {
  const bool memoryZero = memory.number() == 0;
  if (!typing) {
    if (display == "0" && memoryZero) return Recall::Unchanged;
    if (memoryZero) return Recall::ShowZero;
    return Recall::ShowMemory;
  }
  if (display == "0" && memoryZero) return Recall::Unchanged;
  if (DisplayNumber(display) != memory.number()) return Recall::Refuse;
  return Recall::Unchanged;
}

bool MemoriesAllZero(const MemoryBank& bank) {
  for (int n = 1; n <= kMemories; ++n)
    if (bank[n].number() != 0) return false;
  return true;
}

void ClearMemories(MemoryBank& bank) {
  for (int n = 1; n <= kMemories; ++n) bank[n] = Value(0);
}

void CleanMemories(MemoryBank& bank) {
  for (int n = 0; n <= kMemories; ++n)
    if (std::fabs(bank[n].number()) < 1e-12) bank[n] = Value(0);
}

}  // namespace tessaron::kernels
