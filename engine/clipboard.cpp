// The display to and from the clipboard, through the hidden box txtCopy. A
// constant pasted while f(T) is keyed is kept in PasteList, so that the
// function holds its place by a key code as it does a memory's.
#include <cmath>

#include "calc/ovicalc.h"

namespace tessaron {

namespace {
constexpr double kFree = 1e296;
}

void OviCalc::cmdCopy() {
  txtCopy->Text = disp();
  ClipboardClear();
  ClipboardSetText(txtCopy->Text);
}

void OviCalc::cmdPaste() {
  txtCopy->Text = ClipboardGetText();
  const Value text(txtCopy->Text);
  if (!IsNumeric(text)) {
    MsgBox(" Not Numeric or None ! ", 48, " Vantor Calc");
    return;
  }
  PubSettingB();
  const double v = text.number();
  if (std::fabs(v) >= 1e295 || (v != 0 && std::fabs(v) < 1 / 1e295)) {
    MsgBox(" Beyond/Below Control   ! ", 48, " Vantor Calc");
    return;
  }
  if (CalcStage == 3 && InputForm && KeyLog) {
    int slot = 0;
    while (slot < kPasteSlots && PasteList[slot] != v && PasteList[slot] != kFree) ++slot;
    if (slot == kPasteSlots) {
      MsgBox(" Beyond/Below Control   ! ", 48, " Vantor Calc");
      return;
    }
    PasteList[slot] = v;
    logKey(100 + slot);
    pubPasteXY(slot);
    return;
  }
  if (v == 0) txtCopy->Text = "0";
  sEntry[nLevel] = Entry::Nums;
  PubShow(*Readout, Value(v));
  PubLast();
}

// The same paste from the scientific block.
void OviCalc::cmdPasteX() { cmdPaste(); }

// A pasted constant pressed again, as a memory recall is.
void OviCalc::pubPasteXY(int slot) {
  const Value value(PasteList[slot]);
  PubSettingB();
  if (chainEnded()) Cancel();
  if (sEntry[nLevel] != Entry::Nums) {
    PubShow(*Readout, value);
    PubLast();
  } else if ((disp() != "0" || value != Value(0)) && Value(displayValue()) != value) {
    warn(" Need Operating Sign or . . . after Numbers/Functions/Memories.");
  }
  sEntry[nLevel] = Entry::Nums;
}

}  // namespace tessaron
