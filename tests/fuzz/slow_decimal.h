#pragma once
// A slow, plain reference for decimal arithmetic: whole numbers as strings of
// decimal digits, worked digit by digit as on paper. It shares nothing with
// the library it checks.
#include <string>

namespace tessaron::fuzz::slow {

using Digits = std::string;  // no leading zeros; "0" for zero

Digits trim(Digits a);
int compare(const Digits& a, const Digits& b);
Digits add(const Digits& a, const Digits& b);
Digits sub(const Digits& a, const Digits& b);  // a >= b
Digits mul(const Digits& a, const Digits& b);
Digits shift(const Digits& a, int tens);  // a * 10^tens
void divmod(const Digits& a, const Digits& b, Digits& q, Digits& r);

// A signed decimal value: (-1)^neg * digits / 10^scale.
struct Number {
  bool neg = false;
  Digits digits = "0";
  int scale = 0;
};
bool same(const Number& a, const Number& b);  // equal in value

// The value num/den (den > 0) as the scaled decimal keeps it: rounded half to
// even at the largest scale up to 28 whose digits stay below 2^96. False when
// even scale 0 does not fit: an Overflow.
bool settle(bool neg, const Digits& num, const Digits& den, Number& out);

}  // namespace tessaron::fuzz::slow
