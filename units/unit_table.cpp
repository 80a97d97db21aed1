// The conversion table as data: the cells a user reads, and behind each
// conversion its two units and the factor from unit A to unit B.
#include "units/unit_table.h"

#include "units/conver.h"

namespace tessaron {

namespace {

constexpr const char* kHeadings[] = {"DISTANCE",    "AREA",   "VOLUME",    "WEIGHT,MASS", "WATER",
                                     "ENERGY,WORK", "POWER ", "PRESSURE ", "TEMPERATURE", "OTHERS"};

// Column by column, in the order of the rows.
constexpr UnitCell kCells[] = {
    {1, 1, "ft=12 in ,   yd=3 ft", 0, false},
    {1, 2, "inch=in=2.54 cm", 1, false},
    {1, 3, "foot=ft=30.48 cm", 2, false},
    {1, 4, "yard=yd=91.44 cm", 3, false},
    {1, 5, "mile= 1760 yd", 4, false},
    {1, 6, "       = 1.609 km", 5, false},
    {1, 7, "nautical Mile=1.852 km", 6, false},
    {1, 8, "micron=0.001 mm", 0, false},
    {1, 9, "cm= 1 x 10^8 Angstrom", 0, false},
    {1, 10, "chuck=ja=30.3 cm", 7, true},
    {1, 11, "         chi=3.03 cm", 8, true},

    {2, 1, "are=a=100 M2", 11, false},
    {2, 2, "acre=4047 M2", 12, false},
    {2, 3, "   =4840 sq.yd", 13, false},
    {2, 4, "   =43,560 sq.ft", 14, false},
    {2, 5, " =abt 70yd X 70yd", 0, true},
    {2, 6, "   =1224 pyong", 15, true},
    {2, 7, "sq.ft = 0.0929 M2", 19, false},
    {2, 8, "pyong= 3.3 M2", 16, true},
    {2, 9, "     = 6 ja X 6 ja", 0, true},
    {2, 10, "     = abt  36 sq.ft", 17, true},
    {2, 11, "jungbo=3000 pyong", 18, true},

    {3, 1, "cu.inch=16.4 cc", 21, false},
    {3, 2, "61024 cu.in=1 M3    ", 22, false},
    {3, 3, "cu.ft=28.3 Liter", 23, false},
    {3, 4, "gallon(Liq)=3.785 L", 24, false},
    {3, 5, "quart(Liq)=0.946 L", 25, false},
    {3, 6, "gal=4 Qt =8 pint", 0, false},
    {3, 7, "Barrel(oil)=42Gal=159L", 26, false},
    {3, 8, "fl.oz=29.57 cc", 27, false},
    {3, 9, "bushel(dry)=35.239 L", 28, false},
    {3, 10, "doe=1.8 Liter", 29, true},
    {3, 11, "mal=10 doe=100 hob", 0, true},

    {4, 1, "pound=16 ounce", 31, false},
    {4, 2, "lb=0.4536 kg", 32, false},
    {4, 3, "ounce=28.35 g", 33, false},
    {4, 4, "kg=2.2046 lb", 32, false},
    {4, 5, "ton= 2204.6 lb", 34, false},
    {4, 6, "short ton=2000 lb", 0, false},
    {4, 7, "carat= 0.2 gram", 35, false},
    {4, 9, "gwan=3.75 kg(or 1kg)", 0, true},
    {4, 10, "don=3.75 g", 0, true},
    {4, 11, "gun=600 g (or 100g)", 0, true},

    {5, 1, "W. 1 cc = 1 gram", 0, false},
    {5, 2, "W. 1 Liter = 1 kg", 0, false},
    {5, 3, "W. 1 M3 = 1 ton ", 0, false},
    {5, 4, "W. 1 gal = 8.344 lbs ", 39, false},
    {5, 5, "1 cal = W. 1 gram * 1 DegC", 0, false},
    {5, 6, "1 BTU = W. 1 lb * 1 DegF", 0, false},
    {5, 7, "freeze  @ 0 degC = 32 degF", 0, false},
    {5, 8, "boil @ 100 degC =212 degF", 0, false},
    {5, 9, "   fusion = 80 cal/gram", 0, false},
    {5, 10, "   vaporization = 540 cal/gram", 0, false},

    {6, 1, "BTU=0.252 Kcal", 41, false},
    {6, 2, "   =0.293 WH", 42, false},
    {6, 3, "WH= 0.86 Kcal", 43, false},
    {6, 4, "Joule=1 Watt.sec", 0, false},
    {6, 5, " =1 Newton.Meter", 0, false},
    {6, 6, "   =10^7 Erg", 0, false},
    {6, 7, "Kcal=4184 J", 44, false},
    {6, 8, "ft-lb-force=1.356 J", 45, false},
    {6, 9, "KgForce.M=9.8 J", 46, false},

    {7, 1, "kw=3412 BTU/h", 51, false},
    {7, 2, "HP=550 ft.lb/s", 52, false},
    {7, 3, "   =2544 BTU/h", 53, false},
    {7, 4, "   =0.7457 kw", 54, false},
    {7, 5, "   =76 kg.m/sec", 55, false},
    {7, 6, "ton = 12000 Btu/h", 56, false},
    {7, 7, "   = 4.716HP ", 57, false},
    {7, 8, "   = 3.517 kw", 58, false},
    {7, 10, "Watt= Volt * Amp", 0, false},
    {7, 11, "(Amp = Volt / Ohm)", 0, false},

    {8, 1, "Atm=1013 miliBar", 61, false},
    {8, 2, "   =760 mmHg", 62, false},
    {8, 3, "   =29.92 inchHg", 63, false},
    {8, 4, "   =406.8 inchH2O", 64, false},
    {8, 5, "   =1033.2 cmH2O", 65, false},
    {8, 6, "   =1.0332 kg/cm2", 66, false},
    {8, 7, "   =14.7 Psi", 67, false},
    {8, 8, "Psi= 0.07031 kg/cm2", 68, false},

    {9, 1, "degF=9/5 x C + 32", 71, false},
    {9, 2, "degC=(F-32) x 5/9", 71, false},
    {9, 4, "97.7F= 36.5C", 71, false},
    {9, 6, "Kelvin=273.15 + C", 72, false},
    {9, 7, "Rankine=459.67+F", 73, false},
    {9, 8, " R = 9/5 x K", 74, false},

    {10, 1, "(Calorific Value)", 0, false},
    {10, 2, "Kcal/Kg = 1.8 Btu/lb", 81, false},
    {10, 4, "(Speed) ", 0, false},
    {10, 5, "mph = 0.447 m/s", 82, false},
    {10, 6, "mph = 1.609 km/hr", 83, false},
    {10, 7, "mach = 742 mph", 84, false},
    {10, 8, " = 331.6 m/s = 1194 km/h ", 0, false},
    {10, 10, "(Density) ", 0, false},
    {10, 11, "lb/ft3 = 16.018 kg/m3", 85, false},
};

}  // namespace

std::span<const UnitCell> UnitCells() { return kCells; }
std::span<const char* const> UnitHeadings() { return kHeadings; }

int UnitAt(int col, int row) {
  for (const UnitCell& c : kCells)
    if (c.col == col && c.row == row) return c.k;
  return 0;
}

void frmConver::PubUnits() {
  const auto unit = [this](int k, const char* a, const char* b, const Value& factor) {
    UnitA[k] = a;
    UnitB[k] = b;
    UnitFactor[k] = factor;
  };
  unit(1, " inch ", " cm ", Value(2.54));
  unit(2, " foot ", " cm ", Value(30.48));
  unit(3, " yard ", " meter ", Value(0.9144));
  unit(4, " mile ", " yard ", Value(1760));
  unit(5, " mile ", " km ", UnitFactor[4] * UnitFactor[3] / Value(1000));
  unit(6, "nautical mile", " km ", Value(1.852));
  unit(7, " Ja ", " meter ", Value(0.303));
  unit(8, " chi ", " cm ", Value(3.03));

  unit(11, " a=are ", " M2 ", Value(100));
  unit(12, " acre ", " M2 ", Value(4047));
  unit(13, " acre ", " sq.yd ", Value(4840));
  unit(14, " acre ", " sq.ft ", Value(43560));
  unit(15, " acre ", " pyong ", Value(1224));
  unit(16, "pyong", " M2 ", Value(3.305));
  unit(17, " pyong ", " sq.ft ", Value(35.576));
  unit(18, " jungbo ", " pyong ", Value(3000));
  unit(19, " sq.ft ", " M2 ", Value(0.092903));

  unit(21, " cu.in ", " cc=cm3 ", Pow(Value(2.54), Value(3)));
  unit(22, " cu.in ", " cu.M ", Pow(Value(0.0254), Value(3)));
  unit(23, " cu.ft ", " liter ", Value(28.317));
  unit(24, " gallon ", " liter ", Value(3.785412));
  unit(25, " quart ", " liter ", UnitFactor[24] / Value(4));
  unit(26, " barrel ", " liter ", Value(158.987));
  unit(27, " fl.oz. ", " cc ", Value(29.5735));
  unit(28, " bushel ", " liter ", Value(35.239));
  unit(29, " doe ", " liter ", Value(1.8));

  unit(31, " lb=pound ", " oz ", Value(16));
  unit(32, " lb=pound ", " kg ", Value(0.45359237));
  unit(33, " oz=ounce ", " gram ", Value(28.3495));
  unit(34, " ton ", " lb=pound ", Value(1000) / UnitFactor[32]);
  unit(35, " carat ", " gram ", Value(0.2));

  unit(39, " gallon of W. ", " lb=pound ", Value(8.3444));

  unit(41, " BTU ", " Kcal ", Value(0.252));
  unit(42, " BTU ", " WH ", Value(0.293));
  unit(43, " WH ", " Kcal ", Value(0.86042));
  unit(44, " Kcal ", " Joule ", Value(4184));
  unit(45, " ft.lb ", " Joule ", Value(1.3558));
  unit(46, " Kg.M ", " Joule ", Value(9.80665));

  unit(51, " KW ", " BTU/hr ", Value(3412));
  unit(52, " HP ", " ft.lb/sec ", Value(550));
  unit(53, " HP ", " BTU/hr ", Value(2544));
  unit(54, " HP ", " KW ", Value(0.7457));
  unit(55, " HP ", " kg.m/sec ", Value(76.04));
  unit(56, " ton ", " BTU/hr ", Value(12000));
  unit(57, " ton ", " HP ", Value(4.716));
  unit(58, " ton ", " KW ", Value(3.517));

  unit(61, " Atm ", " miliBar ", Value(1013));
  unit(62, " Atm ", " mmHg ", Value(760));
  unit(63, " Atm ", " inchHg ", Value(29.92));
  unit(64, " Atm ", " inchH2O ", Value(406.8));
  unit(65, " Atm ", " cmH2O ", Value(1033.2));
  unit(66, " Atm ", " kg/cm2 ", Value(1.0332));
  unit(67, " Atm ", " Psi ", Value(14.696));
  unit(68, " Psi ", " kg/cm2 ", Value(0.07031));

  // The temperatures: 71 and the two offsets 72 and 73 have rules of their
  // own in the conversion; 74 is a plain ratio.
  unit(71, " degF ", " degC ", Value(1.8));
  unit(72, " degK ", " degC ", Value(273.15));
  unit(73, " degR ", " degF ", Value(459.67));
  unit(74, " degR ", " degK ", Value(5) / Value(9));

  unit(81, " Kcal/Kg ", " Btu/lb ", Value(1.8));
  unit(82, " mph ", " meter/sec ", Value(0.447));
  unit(83, " mph ", " km/hr ", UnitFactor[5]);
  unit(84, " mach ", " mph ", Value(741.8));
  unit(85, " lb/ft3 ", " kg/m3 ", Value(16.018));
}

}  // namespace tessaron
