#pragma once

// The numbers and text services every form of Tessaron is written against:
// Real (double), Dec, the tagged Value, conversions, Format and the string
// functions. Text is UTF-8; lengths and positions count UTF-16 code units,
// as the forms' column layouts were measured that way.

#include <string>
#include <string_view>

#include "numeric/dec.h"
#include "numeric/failure.h"
#include "numeric/value.h"

namespace tessaron {

// Conversions.
Value CDec(const Value&);  // kind Dec
Value CDbl(const Value&);  // kind Real
Value CInt(const Value&);  // kind Int16, ties to even
Value CLng(const Value&);  // kind Int32, ties to even
float CSng(const Value&);  // positions, sizes and colours for the surface
std::string CStr(const Value&);
// What the CStr text of a Real reads back as, x to fifteen significant
// digits, without making the text: a display that shows a number knows it.
double CStrValue(double x);
std::string Str(const Value&);  // as CStr, a blank before a non-negative number
double Val(std::string_view text);
bool IsNumeric(const Value&);

// Text by mask.
std::string Format(const Value&, std::string_view mask);
std::string FormatNumber(const Value&, int decimals);

// Numeric functions, all checked: no infinity or not-a-number comes out.
double Pmt(double rate, double nper, double pv, double fv, int due);
double Sqr(double);
double Exp(double);
double Log(double);
double Sin(double);
double Cos(double);
double Tan(double);
double Atn(double);

// Text functions.
std::string Hex(const Value&);
std::string Oct(const Value&);
int Len(const Value&);
// UTF-8 text as UTF-16 code units, and back: the units the text functions
// count in, and the characters a key delivers.
std::u16string ToUtf16(std::string_view text);
std::string ToUtf8(std::u16string_view units);
std::string Left(const Value&, int n);
std::string Right(const Value&, int n);
std::string Mid(const Value&, int start, int n);
std::string Mid(const Value&, int start);  // to the end
std::string Space(int n);
// True when the text is a run of 1 to `most` blanks and nothing else: the
// forms' test that a box holding only blanks counts as empty.
bool IsBlankRun(std::string_view text, int most);
long Rgb(int r, int g, int b);
long QBColor(int n);

}  // namespace tessaron
