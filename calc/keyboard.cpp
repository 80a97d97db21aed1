// The keyboard: the form sees every character first and presses the key it
// stands for. Focus then returns to "+", so that Enter, which the focused key
// receives, repeats the addition: an adding machine from the keyboard.
#include "calc/ovicalc.h"

namespace tessaron {

void OviCalc::Form_KeyPress(int& KeyAscii) {
  PubSetting();
  const int k = KeyAscii;
  if (k >= 48 && k <= 57) {
    Number(k - 48);
  } else if (k == 43) {
    Operator(0);
  } else if (k == 45) {
    Operator(1);
  } else if (k == 61) {
    Operator(2);
  } else if (k == 42 || k == 88 || k == 120) {
    Operator(3);
  } else if (k == 47) {
    Operator(4);
  } else if (k == 46) {
    cmdDeci();
  } else if (k == 80 || k == 112) {
    Pipi();
  } else if (k == 94) {
    Operator(7);
  } else if (k == 33) {
    pressKey(nFac);
  } else if (k == 37) {
    Percent();
  } else if (k == 40) {
    cmdOpenP();
  } else if (k == 41) {
    cmdCloseP();
  } else if (k == 8 || k == 66 || k == 98 || k == 68 || k == 100) {
    // D is Back on purpose, not Del.
    cmdBack();
  } else if (k == 67 || k == 99 || k == 78 || k == 110) {
    Cancel();
  } else if (k == 83 || k == 115) {
    Sign();
  } else if (k == 3) {
    pressKey(&control("cmdCopy"));
  } else if (k == 22) {
    pressKey(cmdPasteC);
  }
  if (unloading()) return;
  Control* plus = OperatorC[0];
  if (plus->usable()) plus->SetFocus();
}

void OviCalc::pressKey(Control* c) {
  EventArgs args;
  fire(c, Event::Click, args);
}

void OviCalc::txtKwalClick() {
  logKey(66);
  if (!cmdOpenPC->Enabled) return;
  cmdOpenP();
  if (cmdOpenPC->usable()) cmdOpenPC->SetFocus();
}

}  // namespace tessaron
