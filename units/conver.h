#pragma once
// The unit converter: a reference table of conversion facts in which a click
// on a conversion cell chooses a pair of units, two boxes that convert either
// way between them, and a quick bar of four everyday conversions below.
#include <array>
#include <string>
#include <vector>

#include "surface/form.h"

namespace tessaron {

class frmConver : public Form {
 public:
  explicit frmConver(Application& app);

  void Load() override;

  // Fills the units and factors of every conversion of the table.
  void PubUnits();
  // Chooses conversion k: one unit A and its value in unit B.
  void PubChange(int k);

  // Index 1 to 85 in use; 0 and the gaps stand for nothing.
  std::array<std::string, 100> UnitA, UnitB;
  std::array<Value, 100> UnitFactor;
  int CurrentUnit = 0;
  Value FromValue, ToValue;
  std::string MaskBig, MaskMid, MaskSmall, MaskTiny;
  // The quick bar's conversion: the index of optChoice.
  int Choice = kFeetInch;

  static constexpr int kYard = 0, kPound = 1, kFeetInch = 2, kTemperature = 3;
  static constexpr int kMostUsa = 0, kKorea = 1;

 private:
  static std::vector<Design> designTable();
  void TableClick();
  // The conversion of the chosen unit from FromValue into txtBB, and back.
  void ConvertForward();
  void ConvertBack();
  std::string Shown(const Value& v) const;
  void FootOrFeet();
  // The boxes: focus, Enter and leaving.
  void BoxGotFocus(Control& box);
  void txtAALostFocus();
  void txtBBLostFocus();
  bool Refused(Control& box);
  // The table's texts, and the rows of one country.
  void FillTable();
  void optCounClick(int index);
  // The quick bar.
  void optChoiceClick(int index);
  void HscrAllChange();
  void FeetInch(int v);
  void Temperature(int v);
  void Pound(int v);
  void Yard(int v);
};

}  // namespace tessaron
