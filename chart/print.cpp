// The chart on paper: one line a row, the columns set by the mode, the sums
// and the total or balance. The page is set in proportional type, so figures
// are aligned by the leading spaces that PubCalc worked out in CellPad.
#include "chart/ovisum.h"
#include "shell/print_frame.h"
#include "surface/application.h"

namespace tessaron {

namespace {
const char* const kMarks[7] = {"", "+", "-", "x", "/", "/Rev", "3 Col."};
}

void OviSum::cmdPrint_Click() {
  PubCalc();
  if (MsgBox(" Print out ??? ", 4, kTitle) == 6) PubPrint();
  FindNextBlank(1);
}

void OviSum::PubPrint() {
  ChartState& c = chart;
  PrinterDevice& printer = Printer();
  printer.FontSize = chosen("optSign", 0) ? 12 : 10;
  printer.ForeColor = 0;
  for (int k = 0; k < 9; ++k) printer.Print({});

  const int rowNext = CInt(c.RowNext).AsInt16();
  const int lastCell = CInt(c.LastCell).AsInt16();
  const int rowCount = CInt(c.RowCount).AsInt16();
  bool HasB = false;
  for (int I = rowNext; I <= lastCell; ++I)
    if (c.CellVal(I) != Value(0)) HasB = true;
  int LastRow = 0;
  for (int R = rowCount; R >= 1 && LastRow == 0; --R)
    if (c.CellVal(R) != Value(0) || c.CellVal(R + 12) != Value(0) || c.CellVal(R + 24) != Value(0))
      LastRow = R;

  // An empty chart prints no figures at all, only the finish.
  if (LastRow > 0) PrintFigures(LastRow, HasB);
  Finish();
}

void OviSum::PrintFigures(int LastRow, bool HasB) {
  ChartState& c = chart;
  PrinterDevice& printer = Printer();
  const int mode = c.SignMode;
  const int rowCount = CInt(c.RowCount).AsInt16();
  // A figure with its leading spaces.
  auto figure = [&](int I, const std::string& mask) {
    return Value(Space(c.CellPad(I)) + Format(c.CellShown(I), mask));
  };
  auto total = [&](int slot, const Value& sum, const std::string& mask) {
    return Value(Space(c.CellPad(slot)) + Format(sum, mask));
  };

  for (int R = 1; R <= LastRow; ++R) {
    printer.Print({});
    printer.Print({Tab{R < 10 ? 3 : 2}, Value(Format(Value(R), " #0"))}, false);
    const bool hasA = c.CellShown(R) != Value(0);
    if (!HasB) {
      if (hasA) printer.Print({Tab{6}, figure(R, c.CellMask)}, false);
      printer.Print({});
      continue;
    }
    const bool hasBB = c.CellShown(R + 12) != Value(0);
    if (hasA) printer.Print({Tab{6}, figure(R, c.CellMask)}, false);
    if (hasBB) printer.Print({Tab{42}, figure(R + 12, c.CellMask)}, false);
    if (mode == 6) {
      if (c.CellShown(R + 24) != Value(0))
        printer.Print({Tab{81}, figure(R + 24, c.CellMask)}, false);
    } else if (mode == 1 || mode == 2) {
      // As on the screen, a row blank in both columns has no result.
      if (hasA || hasBB) printer.Print({Tab{81}, figure(R + 40, c.CellMask)}, false);
    } else if (mode >= 3 && mode <= 5) {
      if (c.CellShown(R) * c.CellShown(R + 12) != Value(0))
        printer.Print({Tab{81}, figure(R + 40, mode <= 3 ? c.CellMask : "###,##0.000")}, false);
    }
    printer.Print({});
  }
  // The totals always sit at the same height.
  for (int R = LastRow + 1; R <= rowCount; ++R) {
    printer.Print({});
    printer.Print({});
  }

  if (HasB) {
    printer.Print({Value("    T"), Tab{6}, total(55, c.SumAAA, c.CellMask), Tab{42},
                   total(56, c.SumBBB, c.CellMask)},
                  false);
    if (mode == 6)
      printer.Print({Tab{81}, total(57, c.SumCCC, c.CellMask)}, false);
    else if (mode >= 1 && mode <= 3)
      printer.Print({Tab{81}, total(58, c.SumThird, c.CellMask)}, false);
    else if (mode == 4 || mode == 5)
      printer.Print({Tab{81}, total(58, c.SumThird, "###,##0.000")}, false);
    printer.Print({});
  } else {
    printer.Print({Value("    T"), Tab{6}, total(55, c.SumAAA, c.CellMask)});
  }

  if (HasB && !chosen("optSign", 3) && !chosen("optSign", 4) && !chosen("optSign", 5)) {
    printer.Print({});
    printer.Print({});
    if (!chosen("optBal")) {
      printer.Print({Tab{25}, Value(" Grand Total :"), Tab{42}, total(59, c.SumAll, c.CellMask)});
    } else if (!chosen("optSign", 6)) {
      printer.ForeColor = c.SumAll < Value(0) ? 255 : 0xFF0000;
      printer.Print({Tab{25}, Value("    Balance  :"), Tab{42}, total(59, c.SumAll, c.CellMask)});
      printer.ForeColor = 0;
    }
  }

  if (!chosen("optSign", 0)) {
    for (int k = 0; k < 20; ++k) printer.Print({});
    printer.Print({Value(Space(99) + kMarks[mode])});
  }
}

void OviSum::Finish() {
  PrinterDevice& printer = Printer();
  printer.Print({});
  printer.CurrentX = 9000;
  printer.CurrentY = 13000;
  printer.ForeColor = 0;
  printer.FontSize = 8;
  printer.Print({Value("Tessaron")});
  PubLogo(printer, kPlaceFoot.logoLeft, kPlaceFoot.logoTop);
  printer.EndDoc();
}

}  // namespace tessaron
