// The memory bank: 33 memories, four on view in a strip that a scroll bar
// moves. A memory is added to, never overwritten; a recall is recorded by the
// memory's number, so a function keyed with it reads the memory afresh.
#include "calc/kernels/memory.h"
#include "calc/ovicalc.h"

namespace tessaron {

namespace k = kernels;

namespace {
constexpr int kYesNo = 4, kYes = 6;
}

void OviCalc::MMMinKey(int Index) {
  const int n = k::MemoryRow(Index, scrMem->value().AsInt16());
  if (disp().empty()) return;
  vMemory[n] = k::MemoryAdd(vMemory[n], disp());
  PubShow(*MMMout[Index], vMemory[n]);
}

void OviCalc::MMMsubKey(int Index) {
  const int n = k::MemoryRow(Index, scrMem->value().AsInt16());
  vMemory[n] = Value(0);
  PubShow(*MMMout[Index], Value(0));
}

void OviCalc::MMMoutKey(int Index) {
  const int n = k::MemoryRow(Index, scrMem->value().AsInt16());
  nMemLast = n;
  logKey(k::MemoryKeyCode(n));
  const Value memory = vMemory[n];
  if (memory.number() != 0) show(frameSlide, false);
  if (nLastOp[nLevel] == Value(2)) pubNew();
  switch (k::MemoryRecall(sEntry[nLevel] == Entry::Nums, disp(), memory)) {
    case k::Recall::Unchanged:
      break;
    case k::Recall::ShowZero:
      setDisp("0");
      break;
    case k::Recall::ShowMemory:
      PubShow(*Readout, memory);
      PubLast();
      break;
    case k::Recall::Refuse:
      warn(k::kRecallRefusal);
      break;
  }
  sEntry[nLevel] = Entry::Nums;
}

// A recorded recall drives the same key by moving the bar. Codes 92 to 94
// reach one memory below their own: functions keep that as they were keyed.
void OviCalc::recallCode(int code) {
  if (code <= 64) {
    scrMem->setValue(Value(0));
    MMMoutKey(code - 60);
  } else if (code <= 91) {
    scrMem->setValue(Value(code - 64));
    MMMoutKey(4);
  } else {
    scrMem->setValue(Value(29));
    MMMoutKey(code - 90);
  }
}

// The strip follows the bar; the memories' keys repeat seven colours.
void OviCalc::scrMemChange() {
  const int top = scrMem->value().AsInt16();
  for (int i = 1; i <= 4; ++i) {
    const int n = i + top;
    const std::string text = CStr(vMemory[n]);
    MMMout[i]->FontSize = k::MemoryFontSize(text);
    MMMout[i]->Caption = text;
    MMMin[i]->Caption = std::to_string(n);
    const long c = vColorRead[k::MemoryColourRow(n)];
    MMMin[i]->BackColor = c;
    MMMsub[i]->BackColor = c;
  }
}

void OviCalc::MMMclear() {
  if (k::MemoriesAllZero(vMemory)) return;
  if (MsgBox(k::kClearAllQuestion, kYesNo, " Vantor Calc ") != kYes) return;
  k::ClearMemories(vMemory);
  for (int i = 1; i <= 4; ++i) {
    MMMout[i]->FontSize = 12;
    MMMout[i]->Caption = "0";
  }
  scrMem->setValue(Value(0));
}

void OviCalc::loadMemories() {
  for (auto& m : vMemory)
    if (m.kind() == Kind::Empty) m = Value(0);
  k::CleanMemories(vMemory);
  scrMemChange();
  for (int i = 1; i <= 4; ++i) {
    PubShow(*MMMout[i], vMemory[i]);
    MMMout[i]->FontSize = k::MemoryLoadFontSize(MMMout[i]->Caption);
  }
}

}  // namespace tessaron
