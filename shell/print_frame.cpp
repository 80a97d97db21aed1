#include "shell/print_frame.h"

#include <cmath>

#include "numeric/numeric.h"
#include "surface/form.h"
#include "surface/printer.h"

namespace tessaron {

bool PubPrintAsk(Form& form) { return form.MsgBox(" Print out ??? ", 4, " Tessaron") == 6; }

void PubPageHead(Form& form, const PrintPlace& place) {
  PrinterDevice& printer = form.Printer();
  printer.CurrentX = place.nameX;
  printer.CurrentY = place.nameY;
  printer.ForeColor = Rgb(0, 0, 0);
  printer.FontSize = 8;
  printer.Print({Value("Tessaron")});
  PubLogo(printer, place.logoLeft, place.logoTop);
  printer.FontSize = 14;
  printer.ForeColor = 0;
}

bool PubPrintBegin(Form& form, const PrintPlace& place) {
  if (!PubPrintAsk(form)) return false;
  PubPageHead(form, place);
  return true;
}

// A lens where two circles of radius R overlap, their centres R apart on the
// line through LogoTop (the left one at LogoLeft), with small caps at its two
// ends; dotted outline, a brown cross through it and a red rising stroke.
void PubLogo(PrinterDevice& printer, double logoLeft, double logoTop) {
  const double R = 320;
  const double halfHeight = R * 0.866;
  const long fill = Rgb(255, 231, 153);
  const long black = Rgb(0, 0, 0);
  const long brown = Rgb(96, 48, 24);
  const long red = Rgb(255, 0, 0);
  // How far the caps at the lens's ends reach up and down at i from an end.
  auto capInset = [R](double i) { return R - std::pow(R * R - std::pow(R / 2 - i, 2), 0.5); };

  printer.DrawWidth = 2;
  printer.DrawStyle = 2;
  for (double i = 0; i <= halfHeight; i += 1) {
    const double h = std::pow(R * R - i * i, 0.5);
    if (h > R / 2 + 2) {
      printer.Line(logoLeft + R - h + 2, logoTop - i, logoLeft + h - 2, logoTop - i, fill);
      printer.Line(logoLeft + R - h + 2, logoTop + i, logoLeft + h - 2, logoTop + i, fill);
    }
  }
  for (double i = 0; i <= R / 2; i += 1) {
    const double inset = capInset(i);
    if (inset > 2) {
      printer.Line(logoLeft + i, logoTop - inset, logoLeft + i, logoTop + inset, fill);
      printer.Line(logoLeft + R - i, logoTop - inset, logoLeft + R - i, logoTop + inset, fill);
    }
  }

  printer.DrawWidth = 5;
  printer.DrawStyle = 1;
  for (double i = 0; i <= halfHeight; i += 1) {
    const double h = std::pow(R * R - i * i, 0.5);
    if (h > R / 2 + 2) {
      printer.Circle(logoLeft + R - h, logoTop - i, 1, black);
      printer.Circle(logoLeft + h, logoTop - i, 1, black);
      printer.Circle(logoLeft + R - h, logoTop + i, 1, black);
      printer.Circle(logoLeft + h, logoTop + i, 1, black);
    }
  }
  for (double i = 0; i <= R / 2; i += 1) {
    const double inset = capInset(i);
    if (inset > 2) {
      printer.Circle(logoLeft + i, logoTop - inset, 1, black);
      printer.Circle(logoLeft + i, logoTop + inset, 1, black);
      printer.Circle(logoLeft + R - i, logoTop - inset, 1, black);
      printer.Circle(logoLeft + R - i, logoTop + inset, 1, black);
    }
  }

  printer.DrawWidth = 4;
  printer.DrawStyle = 2;
  printer.Line(logoLeft + R / 2, logoTop - halfHeight, logoLeft + R / 2, logoTop + halfHeight,
               brown);
  printer.Line(logoLeft, logoTop, logoLeft + R, logoTop, brown);

  printer.DrawWidth = 4;
  printer.DrawStyle = 2;
  printer.Line(logoLeft + 40, logoTop + 90, logoLeft + 120, logoTop - 10, red);
  printer.Line(logoLeft + 120, logoTop - 10, logoLeft + 190, logoTop + 50, red);
  printer.Line(logoLeft + 190, logoTop + 50, logoLeft + 290, logoTop - 130, red);
}

std::string PubColumn(const std::string& text, int w) {
  return Space(w - 2 * Len(Value(text))) + text;
}

}  // namespace tessaron
