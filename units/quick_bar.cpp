// The quick bar: four everyday conversions on one scroll bar. Each option
// gives the bar its own length and starting point; the bar's value walks
// through bands whose steps are coarse at the ends and fine where everyday
// figures lie, and stops on a few round figures at the top.
#include "units/conver.h"

namespace tessaron {

namespace {
constexpr double kKgPerPound = 0.45359237;
constexpr double kMeterPerYard = 0.9144;

struct BarStart {
  int max, value;
};
// By the index of optChoice: yard, pound, ft-inch, temp. Each bar ends on
// its conversion's last stop (the mile, the long ton, ten feet, boiling
// water) and starts on an everyday figure (150 yards, 150 pounds, 5 ft 5 in,
// 68 degF).
constexpr BarStart kBarStarts[] = {{304, 150}, {642, 386}, {240, 130}, {256, 77}};
}  // namespace

void frmConver::optChoiceClick(int index) {
  Choice = index;
  Control& bar = control("HscrAll");
  // The bar first goes to a value every option's length holds, so that the
  // new length never cuts it off.
  bar.setValue(Value(130));
  bar.setMax(kBarStarts[index].max);
  bar.setValue(Value(kBarStarts[index].value));
  HscrAllChange();
}

void frmConver::HscrAllChange() {
  const int v = control("HscrAll").value().AsInt16();
  switch (Choice) {
    case kFeetInch:
      FeetInch(v);
      break;
    case kTemperature:
      Temperature(v);
      break;
    case kPound:
      Pound(v);
      break;
    case kYard:
      Yard(v);
      break;
  }
}

// The bar counts half inches.
void frmConver::FeetInch(int v) {
  Control& fp = control("lblFP");
  Control& km = control("lblKM");
  const Value half(v);
  const Value feet = Int(half / Value(24));
  const Value inches = (half - Value(24) * feet) / Value(2);
  const Value cm = half * Value(1.27);
  if (v < 24) {
    fp.Caption = Format(inches, "#0.0 in. ");
    km.Caption = Format(cm, "##0.00") + " cm ";
  } else if (v == 24) {
    fp.Caption = "1 ft = 12 in ";
    km.Caption = "30.48 cm ";
  } else {
    fp.Caption = Format(feet, "#0 ft") + Format(inches, " #0.# in ");
    km.Caption = Format(cm, "##0.0") + " cm ";
  }
}

// From -40 degF in steps of 5 up to 0, by single degrees up to 95, by tenths
// over body and fever heat up to 108, by fives up to 210, and the boiling
// point at the end.
void frmConver::Temperature(int v) {
  Control& fp = control("lblFP");
  Control& km = control("lblKM");
  if (v == 256) {
    fp.Caption = " 212. degF ";
    km.Caption = " 100. degC ";
    return;
  }
  Value degF;
  std::string mask;
  if (v <= 9) {
    degF = Value(5 * v - 45);
    mask = "##0.";
  } else if (v <= 104) {
    degF = Value(v - 9);
    mask = " ##0.";
  } else if (v <= 234) {
    degF = Value(95) + Value(v - 104) / Value(10);
    mask = " ##0.0";
  } else {
    degF = Value(110 + 5 * (v - 235));
    mask = " ##0.";
  }
  const Value degC = Value(5) * (degF - Value(32)) / Value(9);
  fp.Caption = Format(degF, mask) + " degF ";
  km.Caption = Format(degC, " ##0.0") + " degC ";
}

// Ounces up to the pound; then pounds by tenths up to 10, by halves up to
// 220.5 (100 kg), by fives up to 775, and four round weights at the top:
// 1000 lb, the short ton, the metric ton and the long ton.
void frmConver::Pound(int v) {
  Control& fp = control("lblFP");
  Control& km = control("lblKM");
  if (v < 16) {
    fp.Caption = Format(Value(v), "#0 ounce = ");
    km.Caption = Format(Value(v) / Value(16), "0.### pound ");
    return;
  }
  if (v == 16) {
    fp.Caption = "16 ounce = 1 pound ";
    km.Caption = "453.6 gram ";
    return;
  }
  static const double kTop[] = {1000, 2000, 2204.6, 2240};
  Value pounds;
  if (v <= 106)
    pounds = Value(v - 6) / Value(10);
  else if (v <= 527)
    pounds = Value(10) + Value(v - 106) / Value(2);
  else if (v <= 638)
    pounds = Value(220 + 5 * (v - 527));
  else
    pounds = Value(kTop[v - 639]);
  fp.Caption = Format(pounds, "#.0 ") + " pounds ";
  km.Caption = Format(pounds * Value(kKgPerPound), v <= 106 ? "###0.00" : "###0.0") + " kg ";
}

// Yard by yard up to 300, then the quarter mile, the half mile, 1000 yards
// and the mile.
void frmConver::Yard(int v) {
  static const int kTop[] = {440, 880, 1000, 1760};
  const Value yards(v <= 300 ? v : kTop[v - 301]);
  control("lblFP").Caption = Format(yards, "##0 yards ");
  control("lblKM").Caption = Format(yards * Value(kMeterPerYard), "###0.0 meter ");
}

}  // namespace tessaron
