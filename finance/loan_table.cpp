// The amortization of a loan: the schedule, its grid and its two printouts.
// Each recomputes the schedule from the unrounded payment; nothing is
// carried from one to the other.
#include "finance/loan.h"
#include "shell/print_frame.h"
#include "surface/application.h"

namespace tessaron {

namespace {
constexpr const char* kRowMask = "###,###,###.00";
constexpr const char* kListHeader =
    "Period  /         Principal     /     Interest     /    Sum of Int.  /   Princpl Paid    /    "
    "Balance";
constexpr const char* kHeaders[] = {"Period",          "Principal",      "Interest",
                                    "Sum of Interest", "Principal Paid", "Balance"};
}  // namespace

void frmLoan::ScheduleStart() {
  SumPrincipal = Value(0);
  SumInterest = Value(0);
  if (!PaidAtEnd()) Balance = Amount;
}

void frmLoan::ScheduleRow() {
  if (PaidAtEnd()) {
    RowInterest = (Amount - SumPrincipal) * AnnualRate / Value(12);
    RowPrincipal = Payment - RowInterest;
    SumInterest = SumInterest + RowInterest;
    SumPrincipal = SumPrincipal + RowPrincipal;
    Balance = Amount - SumPrincipal;
  } else {
    // Paid at the first of the month, the payment earns a month's interest
    // before the balance pays its own.
    RowPrincipal = Payment * (Value(1) + AnnualRate / Value(12)) - Balance * AnnualRate / Value(12);
    RowInterest = Payment - RowPrincipal;
    SumInterest = SumInterest + RowInterest;
    SumPrincipal = SumPrincipal + RowPrincipal;
    Balance = Balance - RowPrincipal;
  }
}

void frmLoan::SetColWidth() {
  int narrow = 1000, wide = 1250;
  if (Amount > Value(1000000)) narrow = 1400, wide = 1650;
  if (Amount > Value(1e10)) narrow = 1700, wide = 1950;
  if (Amount > Value(1e12)) narrow = 1800, wide = 2050;
  Grid& grid = control("Table").grid();
  grid.setColWidth(0, 700);
  grid.setColWidth(1, narrow);
  grid.setColWidth(2, narrow);
  for (int c = 3; c <= CInt(GridColumns).AsInt16(); ++c) grid.setColWidth(c, wide);
}

void frmLoan::PubDetails() {
  control("cmdReturn").SetFocus();
  Grid& grid = control("Table").grid();
  const int months = CInt(Months).AsInt16();
  grid.setRows(months + 1);
  GridColumns = Value(5);
  SetColWidth();
  grid.setCellAlignment(1);
  grid.setRow(0);
  for (int c = 0; c <= 5; ++c) {
    grid.setCol(c);
    grid.setText(kHeaders[c]);
  }
  grid.setRowHeight(0, 400);
  ScheduleStart();
  for (int i = 1; i <= months; ++i) {
    ScheduleRow();
    grid.setRow(i);
    grid.setCol(0);
    grid.setText(CStr(Value(i)));
    const Value* columns[] = {&RowPrincipal, &RowInterest, &SumInterest, &SumPrincipal, &Balance};
    for (int c = 1; c <= 5; ++c) {
      grid.setCol(c);
      grid.setText(Format(*columns[c - 1], kRowMask));
    }
  }
}

// The list's font and column width follow the size of the loan, so that
// the widest figure still fits its column.
void frmLoan::ListFont(PrinterDevice& printer, Value& colWidth, int& decimals) const {
  printer.FontSize = Amount >= Value(1e11) ? 10 : 12;
  decimals = Amount < Value(10000000) ? 2 : 0;
  colWidth = Value(Len(Value(FormatNumber(Amount, decimals)))) / Value(2) + Value(22);
}

// One row of the printed list. A digit is as wide as two blanks, so each
// figure is right-aligned by twice its length in blanks.
void frmLoan::ListRow(PrinterDevice& printer, int lead, int i, const Value& colWidth,
                      int decimals) {
  printer.Print({Value(Space(lead - 2 * Len(Value(FormatNumber(Value(i), 0)))))}, false);
  printer.Print({Value(i)}, false);
  const Value* columns[] = {&RowPrincipal, &RowInterest, &SumInterest, &SumPrincipal, &Balance};
  for (const Value* v : columns) {
    const std::string t = FormatNumber(*v, decimals);
    Value pad = colWidth - Value(2 * Len(Value(t)));
    if (pad < Value(1)) pad = Value(1);
    printer.Print({Value(Space(CLng(pad).AsInt32())), Value(t)}, false);
  }
  printer.Print({});
}

void frmLoan::cmdPrintFClick() {
  PubCalc();
  if (!(Amount > Value(0))) return;
  if (!PubPrintBegin(*this, kPlaceTop)) return;
  PrinterDevice& printer = Printer();
  const std::string mask = Mask.str();
  const bool noAmor = control("frameAmor").Visible;
  printer.FontSize = 14;
  printer.Print({Tab{20}, Value("-  Loan  /  Mortgage  -   ")});
  printer.Print({});
  printer.Print({Tab{40}, Value("Loan Amount : "), Value(Format(Amount, mask))});
  printer.Print({});
  printer.Print({Tab{10}, Value("Annual Rate : "), Value(Format(AnnualRate, " ##0.###### %"))});
  if (noAmor)
    printer.Print({Tab{10}, Value("Interest Only. No Amortizing ")});
  else
    printer.Print({Tab{10}, Value("Terms : "), Value(Format(Months, " ##0 Months.  Amortizing"))});
  if (PaidAtEnd())
    printer.Print({Tab{10}, Value("Payment due :  End of Month "), Tab{12},
                   Value(" = 1st of Month with skip 1st Month = (Common)")});
  else
    printer.Print(
        {Tab{10}, Value("Payment due: 1st of Month from the 1st Month (without skipping) ")});
  printer.Print({});
  printer.Print({Tab{40}, Value("Monthly Payment : "), Value(Format(Payment, mask))});
  if (noAmor) {
    printer.Print({Tab{10}, Value("Some ask more on 31-day Month: "),
                   Value(Format(Payment * Value(31) / Value(30), mask))});
    printer.EndDoc();
    return;
  }
  printer.Print({Tab{40}, Value("Total  Payment : "), Value(Format(TotalPaid, mask))});
  printer.Print({});
  Value colWidth;
  int decimals = 2;
  ListFont(printer, colWidth, decimals);
  printer.Print({Tab{5}, Value(kListHeader)});
  printer.Print({});
  // The front page shows the first two years and the last payment.
  const int months = CInt(Months).AsInt16();
  ScheduleStart();
  for (int i = 1; i <= months; ++i) {
    ScheduleRow();
    if (i <= 24 || i == months) {
      if (i == months && months > 25) printer.Print({});
      ListRow(printer, 15, i, colWidth, decimals);
    }
  }
  if (months > 36) {
    printer.Print({});
    printer.Print({Value(Space(10)), Value(" * Full details: go to Detail Status")});
  }
  printer.EndDoc();
}

void frmLoan::cmdPrintClick() {
  if (!PubPrintAsk(*this)) return;
  control("cmdReturn").SetFocus();
  PubPageHead(*this, kPlaceTop);
  PrinterDevice& printer = Printer();
  Value colWidth;
  int decimals = 2;
  ListFont(printer, colWidth, decimals);
  printer.Print({Tab{1}, Value(kListHeader)});
  printer.Print({});
  const int months = CInt(Months).AsInt16();
  ScheduleStart();
  for (int i = 1; i <= months; ++i) {
    ScheduleRow();
    ListRow(printer, 10, i, colWidth, decimals);
    // A rest of up to three rows stays on the page.
    if (i % 36 == 0 && months > i + 3) {
      printer.NewPage();
      for (int k = 0; k < 5; ++k) printer.Print({});
      printer.Print({Tab{1}, Value(kListHeader)});
      printer.Print({});
    }
  }
  printer.EndDoc();
}

}  // namespace tessaron
