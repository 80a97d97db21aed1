#!/bin/sh
# Writes reference.txt: every conversion of the unit converter as GNU units
# computes it. Run once, from this folder, where `units` is installed:
#   ./make_reference.sh > reference.txt
# Each line of the list below: the conversion k, the box typed in (A or B),
# the amount typed, the GNU expression of the amount in the typed unit (%s
# stands for the amount) and the GNU unit of the other box.
set -eu
echo "# k	box	amount	from	to	figure	($(units --version | head -1))"
while IFS='|' read -r k box amount from to; do
  case "$k" in ''|'#'*) continue ;; esac
  expr=$(printf "$from" "$amount")
  figure=$(units --digits 15 --terse -- "$expr" "$to")
  printf '%s\t%s\t%s\t%s\t%s\t%s\n' "$k" "$box" "$amount" "$expr" "$to" "$figure"
done <<'LIST'
1|A|1|%s inch|cm
2|A|1|%s foot|cm
3|A|1|%s yard|m
4|A|1|%s mile|yard
5|A|1|%s mile|km
6|A|1|%s nmi|km
# The ja (chuck) of Korea is the shaku, and the chi its tenth, the sun.
7|A|1|%s shaku|m
8|A|1|%s sun|cm
11|A|1|%s are|m^2
12|A|1|%s acre|m^2
13|A|1|%s acre|yd^2
14|A|1|%s acre|ft^2
# The pyong is the tsubo; the jungbo is 3000 of them, the chou of area.
15|A|1|%s acre|tsubo
16|A|1|%s tsubo|m^2
17|A|1|%s tsubo|ft^2
18|A|1|%s chou_area|tsubo
19|A|1|%s ft^2|m^2
21|A|1|%s inch^3|cm^3
22|A|1|%s inch^3|m^3
23|A|1|%s ft^3|liter
24|A|1|%s gallon|liter
25|A|1|%s quart|liter
26|A|1|%s barrel|liter
27|A|1|%s floz|cm^3
28|A|1|%s bushel|liter
# GNU units knows the Japanese shou, not the doe of Korea.
29|A|1|%s shou|liter
31|A|1|%s lb|oz
32|A|1|%s lb|kg
33|A|1|%s oz|g
34|A|1|%s tonne|lb
35|A|1|%s carat|g
39|A|1|%s gallon water|lbf
41|A|1|%s btu|kcal
42|A|1|%s btu|Wh
43|A|1|%s Wh|kcal
44|A|1|%s kcal|J
45|A|1|%s ft lbf|J
46|A|1|%s kgf m|J
51|A|1|%s kW|btu/hr
52|A|1|%s hp|ft lbf/s
53|A|1|%s hp|btu/hr
54|A|1|%s hp|kW
55|A|1|%s hp|kgf m/s
56|A|1|%s tonref|btu/hr
57|A|1|%s tonref|hp
58|A|1|%s tonref|kW
61|A|1|%s atm|millibar
62|A|1|%s atm|mmHg
63|A|1|%s atm|inHg
64|A|1|%s atm|inH2O
65|A|1|%s atm|cm water
66|A|1|%s atm|kgf/cm^2
67|A|1|%s atm|psi
68|A|1|%s psi|kgf/cm^2
71|A|1|tempF(%s)|tempC
71|A|97.7|tempF(%s)|tempC
71|A|32|tempF(%s)|tempC
71|A|212|tempF(%s)|tempC
71|A|-40|tempF(%s)|tempC
71|A|-459|tempF(%s)|tempC
71|B|100|tempC(%s)|tempF
71|B|36.5|tempC(%s)|tempF
71|B|-273|tempC(%s)|tempF
72|A|1|tempK(%s)|tempC
72|A|0|tempK(%s)|tempC
72|A|373.15|tempK(%s)|tempC
72|B|20|tempC(%s)|tempK
72|B|-273|tempC(%s)|tempK
73|A|1|%s tempR|tempF
73|A|0|%s tempR|tempF
73|A|671.67|%s tempR|tempF
73|B|32|tempF(%s)|tempR
73|B|-459|tempF(%s)|tempR
74|A|1|%s tempR|tempK
74|A|491.67|%s tempR|tempK
74|B|373.15|tempK(%s)|tempR
# The calorific value holds for the international kilocalorie.
81|A|1|%s kcal_IT/kg|btu/lb
82|A|1|%s mph|m/s
83|A|1|%s mph|km/hr
84|A|1|%s mach|mph
85|A|1|%s lb/ft^3|kg/m^3
LIST
