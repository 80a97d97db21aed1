// The printout of the stored functions with their answers, and of the saved
// calculations, in the suite's print frame.
#include "calc/ovicalc.h"
#include "shell/print_frame.h"
#include "surface/printer.h"

namespace tessaron {

namespace {
// A line at column 13, going on from column 30 past 90 characters.
void printText(PrinterDevice& printer, const std::string& head, const std::string& text) {
  const Value first(Left(Value(text), 90));
  printer.Print({Value(head), Tab{13}, first});
  if (Len(Value(text)) > 90) printer.Print({Tab{30}, Value(Mid(Value(text), 91))});
}
}  // namespace

void OviCalc::cmdPrint() {
  if (MsgBox(" Print out Equations/Calculations ??? ", 4, " Vantor Calc ") != 6) return;
  PubPageHead(*this, kPlaceTop);
  PrinterDevice& printer = Printer();
  printer.Print({Tab{20}, Value("EQUATIONS")});
  printer.Print({});
  for (int slot = 1; slot <= 32; ++slot) {
    const auto& col = EqnTable[slot];
    if (col[29] <= 2) continue;
    printText(printer, "Eqn #" + Format(Value(slot), " 0      "), EqnText[slot]);
    const int answers = static_cast<int>(col[0]);
    if (answers == 0) printer.Print({Value("  : No Answer Calculated ")});
    for (int k = 1; k <= answers; ++k) {
      if (k == 1)
        printer.Print({Value("    : Ans# 1= "), Value(col[1])});
      else
        printer.Print({Value("    : Ans#"), Value(k), Value("= "), Value(col[2 * k - 1])});
    }
  }
  printer.Print({});
  printer.Print({Tab{20}, Value("CALCULATIONS")});
  printer.Print({});
  for (int row = 1; row < kHistRows; ++row) {
    if (HistText[row].empty()) continue;
    printText(printer, "Calc #" + Format(Value(row), " 0      "), HistText[row]);
    printer.Print({Tab{13}, HistValue[row]});
  }
  printer.EndDoc();
}

}  // namespace tessaron
