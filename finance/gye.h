#pragma once
// The mutual financing calculator (Gye): a circle of members pays in every
// month and one member in turn receives the pot. What each number pays
// falls by one month's interest from number to number, in whole units, and
// the list adds up exactly to the amount.
#include <array>
#include <string>

#include "surface/form.h"

namespace tessaron {

std::vector<Design> GyeDesign();

class frmGye : public Form {
 public:
  explicit frmGye(Application& app);

  void Load() override;
  void PubCalc();
  void PubClear();
  void PubDelete();
  void PubPrint();
  // True for one to six blanks and nothing else.
  static bool PubCheckSpace(const std::string& text);

  // The inputs: 1 the amount, 2 the number of members, 3 the annual rate in percent.
  std::array<Value, 4> Cond;
  // Ans(i) what number i pays, Ans(0) the total.
  std::array<Value, 26> Ans;
  std::array<double, 26> Frac{};
  std::array<Value, 26> Ordr;
  Value GyePay;
  std::string OldText;
  Value MaskWhole, MaskRate, MaskPay;

 private:
  void GotFocus(int i);
  void LostFocus(int i);
  void KeyPress(int i, EventArgs& e);
  // Refuses the box's text: white box, the message, the box emptied and focused.
  void Refuse(Control& box, const char* words);
  void cmdPrintClick();
};

}  // namespace tessaron
