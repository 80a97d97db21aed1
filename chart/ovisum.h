#pragma once
// The Ovi Sum: a seventeen-digit adding sheet of 12 rows in two columns, AAA
// and BBB, with an optional third data column or a third column that relates
// AAA and BBB row by row. Every entry ends in PubCalc, which repaints the
// cells from the amounts and sums them; the amounts themselves are kept
// across Unload.
#include <string>
#include <vector>

#include "chart/state.h"
#include "surface/form.h"

namespace tessaron {

class OviSum : public Form {
 public:
  explicit OviSum(Application& app);
  void Load() override;

  // Entry.
  void PubClear();
  void PubCheckSpace(const std::string& text);
  void PubSizeAA();
  void PubSizeBB();
  void FindNextBlank(int from);
  void RestoreFocus();

  // Calculation.
  void PubJari();
  void PubCalc();
  void PubBal();
  void PubThird();

  // Printout.
  void PubPrint();

  // The chart's variables: the form's kept record, alive for the whole run.
  ChartState& chart;

  static constexpr const char* kTitle = " Ovi Sum";

 private:
  static std::vector<Design> designTable();
  void wire();
  Control& cell(int index) const;
  bool chosen(const char* option, int index = -1) const;
  // Characters behind the last "." of a text; 0 when there is none.
  static int DecimalsOf(const std::string& text);
  // The leading blanks that end a figure of this magnitude at `base`
  // half-digits, the chart's decimals included; a blank is half a digit.
  int PadFor(int base, const Value& magnitude) const;
  // The option buttons and layout as the kept record has them.
  void RestoreOptions();
  void ApplySignLayout(int index);

  void txtAAA_GotFocus(int Index);
  void txtAAA_LostFocus(int Index);
  void txtAAA_KeyPress(int Index, int KeyAscii);
  void Form_KeyDown(int KeyCode);
  void cmdCalc_Click();
  void cmdCalc_GotFocus();
  void cmdDitto_Click();
  void cmdCcc_Click();
  void cmdClear_Click();
  void cmdExit_Click();
  void cmdCopyD_Click();
  void cmdPrint_Click();
  void optDecimal_Click(DecimalChoice choice);
  void optSign_Click(int Index);
  void PubThirdSum(const char* mask);
  void PrintFigures(int LastRow, bool HasB);
  void Finish();

  // Refusal of an entry: the box goes white for the message.
  void Refuse(int Index, const std::string& words);
  // Set while Load puts the kept options back, so that their Clicks stay quiet.
  bool Restoring = false;
};

}  // namespace tessaron
