// The memory bank's rules and the history of saved calculations.
#include <gtest/gtest.h>

#include "calc/kernels/history.h"
#include "calc/kernels/memory.h"

namespace tessaron::kernels {
namespace {

TEST(Memory, StripRowsAddressMemories) {
  EXPECT_EQ(MemoryRow(1, 0), 1);
  EXPECT_EQ(MemoryRow(4, 0), 4);
  // Scrolled to the end, the first row is Memory(30) and the last Memory(33).
  EXPECT_EQ(MemoryRow(1, kMemoryScrollMax), 30);
  EXPECT_EQ(MemoryRow(4, kMemoryScrollMax), kMemories);
  EXPECT_EQ(MemoryKeyCode(1), 61);
  EXPECT_EQ(MemoryKeyCode(33), 93);
  // The colour rows 0 to 6 repeat along the bank.
  EXPECT_EQ(MemoryColourRow(1), 1);
  EXPECT_EQ(MemoryColourRow(6), 6);
  EXPECT_EQ(MemoryColourRow(7), 0);
  EXPECT_EQ(MemoryColourRow(30), 2);
}

TEST(Memory, FontNarrowsForLongValues) {
  EXPECT_EQ(MemoryFontSize("123456789"), 12.0f);
  EXPECT_EQ(MemoryFontSize("1234567890"), 10.0f);
  EXPECT_EQ(MemoryLoadFontSize("1234567"), 12.0f);
  EXPECT_EQ(MemoryLoadFontSize("12345678"), 10.0f);
}

TEST(Memory, AddNeverOverwrites) {
  Value m = Value(0);
  m = MemoryAdd(m, "5");
  m = MemoryAdd(m, "5");
  EXPECT_EQ(m.number(), 10);
  // Comma groups of the display are read past.
  EXPECT_EQ(MemoryAdd(Value(1), "1,234.5").number(), 1235.5);
  EXPECT_EQ(MemoryAdd(Value(2), "-7").number(), -5);
  // An empty display adds nothing.
  EXPECT_EQ(MemoryAdd(Value(3), "").number(), 3);
}

TEST(Memory, RecallByEntryState) {
  // Not typing: an empty memory over "0" changes nothing; over "7" shows "0".
  EXPECT_EQ(MemoryRecall(false, "0", Value(0)), Recall::Unchanged);
  EXPECT_EQ(MemoryRecall(false, "7", Value(0)), Recall::ShowZero);
  EXPECT_EQ(MemoryRecall(false, "7", Value(2.5)), Recall::ShowMemory);
  EXPECT_EQ(MemoryRecall(false, "0", Value(2.5)), Recall::ShowMemory);
  // Typing: refused unless display and memory are equal.
  EXPECT_EQ(MemoryRecall(true, "12", Value(5)), Recall::Refuse);
  EXPECT_EQ(MemoryRecall(true, "0", Value(5)), Recall::Refuse);
  EXPECT_EQ(MemoryRecall(true, "12", Value(0)), Recall::Refuse);
  EXPECT_EQ(MemoryRecall(true, "1,234", Value(1234)), Recall::Unchanged);
  EXPECT_EQ(MemoryRecall(true, "0", Value(0)), Recall::Unchanged);
  EXPECT_EQ(std::string(kRecallRefusal),
            " Need Operating Sign or . . . after Numbers/Functions/Memories.");
}

TEST(Memory, ClearAllAndLoadCleaning) {
  MemoryBank bank;
  for (auto& v : bank) v = Value(0);
  EXPECT_TRUE(MemoriesAllZero(bank));
  // Slots 0 and 34 are not the user's: they ask no question.
  bank[0] = Value(9);
  bank[34] = Value(9);
  EXPECT_TRUE(MemoriesAllZero(bank));
  bank[33] = Value(1e-20);
  EXPECT_FALSE(MemoriesAllZero(bank));
  bank[5] = Value(-4);
  bank[6] = Value(-1e-13);
  bank[7] = Value(1e-12);
  CleanMemories(bank);
  EXPECT_EQ(bank[33].number(), 0);
  EXPECT_EQ(bank[6].number(), 0);
  EXPECT_EQ(bank[7].number(), 1e-12);
  EXPECT_EQ(bank[5].number(), -4);
  EXPECT_EQ(bank[34].number(), 9);
  ClearMemories(bank);
  EXPECT_TRUE(MemoriesAllZero(bank));
  EXPECT_EQ(bank[0].number(), 9);
  EXPECT_EQ(std::string(kClearAllQuestion), "    Clear All Memories ?  ");
}

struct Rows {
  std::array<std::string, kHistoryRows> text;
  std::array<Value, kHistoryRows> value;
  std::array<int, kHistoryRows> colour{};
  HistoryRefs refs() { return {text, value, colour}; }
};

TEST(History, SavingNeedsAFinishedNewTranscript) {
  EXPECT_TRUE(SaveAtEqual(" 2 + 3 =", "", 0, false, false));
  // A bare "5 =" is too short.
  EXPECT_FALSE(SaveAtEqual(" 5 =", "", 0, false, false));
  EXPECT_FALSE(SaveAtEqual("12345", "", 0, false, false));
  EXPECT_TRUE(SaveAtEqual("123456", "", 0, false, false));
  // The same calculation again is not saved twice in a row.
  EXPECT_FALSE(SaveAtEqual(" 2 + 3 =", " 2 + 3 =", 0, false, false));
  EXPECT_FALSE(SaveAtEqual(" 2 + 3 =", "", 2, false, false));
  EXPECT_FALSE(SaveAtEqual(" 2 + 3 =", "", 0, true, false));
  EXPECT_FALSE(SaveAtEqual(" 2 + 3 =", "", 0, false, true));
  // CA keeps an open chain, not one that already ended in "=".
  EXPECT_TRUE(SaveAtCancel(" 2 + 3 X", false));
  EXPECT_FALSE(SaveAtCancel(" 2 + 3 =", false));
  EXPECT_FALSE(SaveAtCancel(" 2 + 3 X", true));
  EXPECT_FALSE(SaveAtCancel(" 2 +", false));
}

TEST(History, ThirtySeventhDropsTheOldest) {
  Rows rows;
  for (int k = 1; k <= 37; ++k)
    SaveCalculation(rows.refs(), " calc " + std::to_string(k) + " =", Value(k), k % 8);
  // Newest first in rows 1 to 36; the first calculation has gone.
  EXPECT_EQ(rows.text[1], " calc 37 =");
  EXPECT_EQ(rows.value[1].number(), 37);
  EXPECT_EQ(rows.colour[1], 37 % 8);
  EXPECT_EQ(rows.text[36], " calc 2 =");
  EXPECT_EQ(rows.value[36].number(), 2);
  for (int i = 1; i <= 36; ++i) EXPECT_NE(rows.text[i], " calc 1 =");
  // Row 0 still holds the calculation in hand.
  EXPECT_EQ(rows.text[0], " calc 37 =");
}

TEST(History, OneSaveMovesEveryRowDownOne) {
  Rows rows;
  SaveCalculation(rows.refs(), " 2 + 3 =", Value(5), 3);
  SaveCalculation(rows.refs(), " 4 X 5 =", Value(20), 4);
  EXPECT_EQ(rows.text[1], " 4 X 5 =");
  EXPECT_EQ(rows.value[1].number(), 20);
  EXPECT_EQ(rows.colour[1], 4);
  EXPECT_EQ(rows.text[2], " 2 + 3 =");
  EXPECT_EQ(rows.value[2].number(), 5);
  EXPECT_EQ(rows.colour[2], 3);
  EXPECT_EQ(rows.text[3], "");
}

}  // namespace
}  // namespace tessaron::kernels
