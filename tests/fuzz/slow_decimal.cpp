#include "tests/fuzz/slow_decimal.h"

#include <algorithm>
#include <vector>

namespace tessaron::fuzz::slow {

namespace {
const Digits kLimit = "79228162514264337593543950335";  // 2^96 - 1
}

Digits trim(Digits a) {
  const size_t nz = a.find_first_not_of('0');
  return nz == Digits::npos ? "0" : a.substr(nz);
}

int compare(const Digits& a0, const Digits& b0) {
  const Digits a = trim(a0), b = trim(b0);
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  return a < b ? -1 : a > b ? 1 : 0;
}

Digits add(const Digits& a, const Digits& b) {
  Digits r;
  int carry = 0;
  for (size_t i = 0; i < std::max(a.size(), b.size()) || carry; ++i) {
    int s = carry;
    if (i < a.size()) s += a[a.size() - 1 - i] - '0';
    if (i < b.size()) s += b[b.size() - 1 - i] - '0';
    r += static_cast<char>('0' + s % 10);
    carry = s / 10;
  }
  std::reverse(r.begin(), r.end());
  return trim(r);
}

Digits sub(const Digits& a, const Digits& b) {
  Digits r;
  int borrow = 0;
  for (size_t i = 0; i < a.size(); ++i) {
    int s = (a[a.size() - 1 - i] - '0') - borrow;
    if (i < b.size()) s -= b[b.size() - 1 - i] - '0';
    borrow = s < 0;
    r += static_cast<char>('0' + (s + 10) % 10);
  }
  std::reverse(r.begin(), r.end());
  return trim(r);
}

Digits mul(const Digits& a, const Digits& b) {
  std::string acc(a.size() + b.size(), 0);
  std::vector<int> cells(a.size() + b.size(), 0);
  for (size_t i = 0; i < a.size(); ++i)
    for (size_t j = 0; j < b.size(); ++j) cells[i + j + 1] += (a[i] - '0') * (b[j] - '0');
  for (size_t k = cells.size() - 1; k > 0; --k) {
    cells[k - 1] += cells[k] / 10;
    cells[k] %= 10;
  }
  for (size_t k = 0; k < cells.size(); ++k) acc[k] = static_cast<char>('0' + cells[k]);
  return trim(acc);
}

Digits shift(const Digits& a, int tens) { return a == "0" ? a : a + Digits(tens, '0'); }

void divmod(const Digits& a, const Digits& b, Digits& q, Digits& r) {
  q.clear();
  r = "0";
  for (char c : a) {
    r = trim(r + c);
    int d = 0;
    while (compare(r, b) >= 0) {
      r = sub(r, b);
      ++d;
    }
    q += static_cast<char>('0' + d);
  }
  q = trim(q);
}

bool same(const Number& a, const Number& b) {
  const Digits x = shift(a.digits, b.scale), y = shift(b.digits, a.scale);
  if (compare(x, y) != 0) return false;
  return x == "0" || a.neg == b.neg;
}

bool settle(bool neg, const Digits& num, const Digits& den, Number& out) {
  for (int scale = 28; scale >= 0; --scale) {
    // A quotient of thirty digits or more is at least 10^29, beyond 2^96.
    if (static_cast<int>(num.size()) + scale - static_cast<int>(den.size()) >= 30) continue;
    Digits q, r;
    divmod(shift(num, scale), den, q, r);
    const int half = compare(add(r, r), den);
    if (half > 0 || (half == 0 && (q.back() - '0') % 2 == 1)) q = add(q, "1");
    if (compare(q, kLimit) <= 0) {
      out = {neg && q != "0", q, scale};
      return true;
    }
  }
  return false;
}

}  // namespace tessaron::fuzz::slow
