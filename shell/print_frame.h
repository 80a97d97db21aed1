#pragma once
// The frame every printout of the suite shares: the confirmation, the
// program's name in small type with the mark beside it, the form's own lines
// at tab stops, and EndDoc.
#include <string>

namespace tessaron {

class Form;
class PrinterDevice;

// Where a form puts the name and the mark.
struct PrintPlace {
  double nameX, nameY;       // CurrentX, CurrentY of "Tessaron"
  double logoLeft, logoTop;  // LogoLeft, LogoTop of the mark
};
inline constexpr PrintPlace kPlaceTop{9000, 2000, 9800, 1900};         // the finance forms
inline constexpr PrintPlace kPlaceFoot{9000, 13000, 9800, 12900};      // frmGye, OviSum
inline constexpr PrintPlace kPlaceStatistics{9000, 9500, 9800, 9400};  // frmStatistics

// Asks " Print out ??? ": true only on Yes.
bool PubPrintAsk(Form& form);

// The page head: the name in small type and the mark beside it; leaves the
// printer at FontSize 14, ForeColor 0 for the form's lines.
void PubPageHead(Form& form, const PrintPlace& place);

// The confirmation and, on Yes, the page head; returns true. Any other answer
// prints nothing and returns false.
bool PubPrintBegin(Form& form, const PrintPlace& place);

// The mark, drawn on the printer with its centre reference at
// (logoLeft, logoTop); leaves DrawWidth and DrawStyle as its last step set them.
void PubLogo(PrinterDevice& printer, double logoLeft, double logoTop);

// A text right-aligned in a column of width w blanks: a digit of the
// printer's font is twice as wide as a blank, hence Space(w - 2 * Len(text)).
std::string PubColumn(const std::string& text, int w);

}  // namespace tessaron
