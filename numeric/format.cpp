// Format(value, mask): numbers to text by the masks of the forms.
#include <cstring>
#include <string>
#include <vector>

#include "numeric/detail.h"
#include "numeric/numeric.h"

namespace tessaron {
namespace {

enum class T : char { Zero, Hash, Lit, Pct };

struct Tok {
  T t;
  char c;  // the character of a literal (one byte of it, for UTF-8 text)
};

struct Mask {
  std::vector<Tok> whole;  // left of the point
  std::vector<Tok> frac;   // right of the point, up to an exponent
  std::vector<Tok> expo;   // after "e+"
  bool point = false;
  bool grouping = false;
  bool percent = false;
  bool sci = false;
  bool sci_plus = false;  // "e+" writes the sign always, "e-" only when negative
  char e = 'e';
};

bool IsPos(const Tok& k) { return k.t == T::Zero || k.t == T::Hash; }

void Parse(std::string_view m, Mask& mk) {
  mk.whole.reserve(m.size());
  std::vector<Tok>* sec = &mk.whole;
  bool comma = false;  // a comma seen after a whole digit position
  for (size_t i = 0; i < m.size(); ++i) {
    const char c = m[i];
    if (c == '.' && !mk.point && !mk.sci) {
      mk.point = true;
      sec = &mk.frac;
    } else if (c == ',' && sec == &mk.whole) {
      // Grouping is switched on by a comma between whole digit positions,
      // wherever it stands; the comma itself is not copied.
      for (const Tok& k : mk.whole)
        if (IsPos(k)) comma = true;
    } else if ((c == 'e' || c == 'E') && i + 1 < m.size() && (m[i + 1] == '+' || m[i + 1] == '-') &&
               !mk.sci) {
      mk.sci = true;
      mk.sci_plus = m[i + 1] == '+';
      mk.e = c;
      ++i;
      sec = &mk.expo;
    } else if (c == '0') {
      if (comma && sec == &mk.whole) mk.grouping = true;
      sec->push_back({T::Zero, c});
    } else if (c == '#') {
      if (comma && sec == &mk.whole) mk.grouping = true;
      sec->push_back({T::Hash, c});
    } else if (c == '%') {
      mk.percent = true;
      sec->push_back({T::Pct, c});
    } else if (c == '\\' && i + 1 < m.size()) {
      sec->push_back({T::Lit, m[++i]});
    } else {
      sec->push_back({T::Lit, c});
    }
  }
}

// The number as decimal digits: value = 0.D * 10^point read with the point
// after `point` digits; `carried` is how many decimal places the number
// itself carries (a Real its 15 significant digits, a Dec its scale).
struct Digits {
  bool neg = false;
  std::string d;
  int point = 0;
  int carried = 0;
};

void FromValue(const Value& v, Digits& n) {
  switch (v.kind()) {
    case Kind::Real: {
      const double x = v.AsReal();
      if (x != 0) {
        char d[15];
        int e;
        detail::RealDigits(x, d, e);
        n.neg = x < 0;
        n.d.assign(d, 15);
        n.point = e + 1;
      } else {
        n.point = 1;  // "0.00000000000000": 14 places carried, as for any Real
        n.carried = 14;
        return;
      }
      break;
    }
    case Kind::Dec: {
      int scale;
      v.AsDec().Digits(n.d, scale);
      n.neg = v.AsDec().IsNegative();
      n.point = static_cast<int>(n.d.size()) - scale;
      break;
    }
    case Kind::String:
      FromValue(Value(v.number()), n);
      return;
    default: {
      long long w = v.kind() == Kind::Bool    ? (v.AsBool() ? -1 : 0)
                    : v.kind() == Kind::Int16 ? v.AsInt16()
                    : v.kind() == Kind::Int32 ? v.AsInt32()
                                              : 0;
      n.neg = w < 0;
      n.d = std::to_string(w < 0 ? -w : w);
      n.point = static_cast<int>(n.d.size());
    }
  }
  size_t lead = 0;
  while (lead < n.d.size() && n.d[lead] == '0') ++lead;
  n.d.erase(0, lead);
  n.point -= static_cast<int>(lead);
  n.carried = static_cast<int>(n.d.size()) - n.point;
}

// Half away from zero on the decimal digits, keeping `places` decimals.
void RoundTo(Digits& n, int places) {
  const int cut = n.point + places;
  if (cut < 0) {
    n.d.clear();
    return;
  }
  if (cut >= static_cast<int>(n.d.size())) return;
  const bool up = n.d[cut] >= '5';
  n.d.resize(cut);
  if (!up) return;
  int i = cut - 1;
  while (i >= 0 && n.d[i] == '9') n.d[i--] = '0';
  if (i >= 0) {
    ++n.d[i];
  } else {
    n.d.insert(0, 1, '1');
    ++n.point;
  }
}

bool IsZero(const Digits& n) { return n.d.find_first_not_of('0') == std::string::npos; }

}  // namespace

std::string Format(const Value& v, std::string_view mask) {
  if (v.kind() == Kind::String && !IsNumeric(v)) return v.AsString();
  // The forms format with a handful of fixed masks, often the same one many
  // times in a row: keep the last one parsed.
  thread_local std::string last_mask;
  thread_local Mask mk;
  if (mask != last_mask || last_mask.empty()) {
    mk = Mask();
    Parse(mask, mk);
    last_mask.assign(mask);
  }
  Digits n;
  FromValue(v, n);
  if (mk.percent && !n.d.empty()) {
    n.point += 2;
    n.carried -= 2;
  }

  int whole_pos = 0, frac_pos = 0;
  for (const Tok& k : mk.whole) whole_pos += IsPos(k);
  for (const Tok& k : mk.frac) frac_pos += IsPos(k);

  // Literals among the decimal positions. When the fraction is grouped by
  // literals ("0.### ### ###"), each of its characters stands for one
  // decimal place: the value keeps as many decimals as the fraction has
  // characters, the digits the positions cannot take follow the end of the
  // mask, and there a place beyond the digits the number carries reads as a
  // blank (so a 15-digit Real keeps the width of the grouped column). A
  // fraction with literals only after its positions (" in", " %") counts
  // its positions alone.
  int places = frac_pos;
  bool grouped_frac = false;
  {
    bool lit = false;
    int chars = 0;
    for (const Tok& k : mk.frac) {
      if ((static_cast<unsigned char>(k.c) & 0xC0) != 0x80) ++chars;
      if (k.t == T::Lit) lit = true;
      if (IsPos(k) && lit) grouped_frac = true;
    }
    if (grouped_frac) places = chars;
  }

  int exp10 = 0;
  if (mk.sci && !n.d.empty()) {
    exp10 = n.point - whole_pos;
    n.point = whole_pos;
  }
  RoundTo(n, places);
  if (mk.sci && whole_pos > 0 && n.point > whole_pos) {  // 9.9995 became 10.000
    --n.point;
    ++exp10;
  }
  if (IsZero(n)) {
    n.neg = false;
    n.d.clear();
  }
  if (mk.sci) n.carried = static_cast<int>(n.d.size()) - n.point + places;

  std::string out;
  out.reserve(mask.size() + 32);
  if (n.neg) out += '-';

  // Whole digits, without leading zeros.
  std::string whole;
  if (n.point > 0 && !n.d.empty()) {
    whole = n.d.substr(0, n.point);
    if (static_cast<int>(whole.size()) < n.point) whole.append(n.point - whole.size(), '0');
  }

  // Each whole position takes one digit from the right; the leftmost takes
  // all that remain. Unfilled '0' shows 0, unfilled '#' nothing.
  {
    // What each position shows: a run of `whole` (from, count), or a pad '0'
    // (from -1). Reused between calls: Format runs in display loops.
    struct Take {
      int from, count;
    };
    thread_local std::vector<Take> at;
    at.assign(mk.whole.size(), Take{0, 0});
    int left = static_cast<int>(whole.size());
    int seen = 0, shown = 0;
    for (int i = static_cast<int>(mk.whole.size()) - 1; i >= 0; --i) {
      const Tok& k = mk.whole[i];
      if (!IsPos(k)) continue;
      ++seen;
      const bool leftmost = seen == whole_pos;
      const int take = leftmost ? left : (left > 0 ? 1 : 0);
      if (take > 0) {
        left -= take;
        at[i] = {left, take};
      } else if (k.t == T::Zero) {
        at[i] = {-1, 1};
      }
      shown += at[i].count;
    }
    // With no whole position at all, the whole digits stand before the point.
    const Take spill = {0, whole_pos == 0 ? static_cast<int>(whole.size()) : 0};
    shown += spill.count;
    int rest = shown;  // digits still to write, for placing group commas
    auto put = [&](Take t) {
      for (int j = 0; j < t.count; ++j) {
        if (mk.grouping && rest < shown && rest % 3 == 0) out += ',';
        out += t.from < 0 ? '0' : whole[t.from + j];
        --rest;
      }
    };
    for (size_t i = 0; i < mk.whole.size(); ++i) {
      if (IsPos(mk.whole[i]))
        put(at[i]);
      else
        out += mk.whole[i].c;
    }
    put(spill);
  }

  if (mk.point) out += '.';

  // Decimal digits fill from the left. A place shows up to the last nonzero
  // digit or the last '0' position, whichever is further right.
  auto digit = [&](int j) -> char {  // 0 for a place the number does not carry
    const int idx = n.point + j;
    if (idx < 0) return '0';
    if (idx < static_cast<int>(n.d.size())) return n.d[idx];
    return j < n.carried ? '0' : 0;
  };
  int last = -1;
  {
    int j = 0;
    for (const Tok& k : mk.frac) {
      if (!IsPos(k)) continue;
      if (k.t == T::Zero) last = j;
      ++j;
    }
    for (j = 0; j < places; ++j) {
      const char c = digit(j);
      if (c && c != '0') last = j > last ? j : last;
    }
  }
  {
    int j = 0;
    for (const Tok& k : mk.frac) {
      if (!IsPos(k)) {
        out += k.c;
        continue;
      }
      if (j <= last) out += digit(j) ? digit(j) : '0';
      ++j;
    }
    for (; j < places; ++j) {
      const char c = digit(j);
      if (j <= last && c)
        out += c;
      else if (!c)
        out += ' ';
    }
  }

  if (mk.sci) {
    int min_digits = 0;
    for (const Tok& k : mk.expo) min_digits += k.t == T::Zero;
    std::string e = std::to_string(exp10 < 0 ? -exp10 : exp10);
    if (static_cast<int>(e.size()) < min_digits) e.insert(0, min_digits - e.size(), '0');
    out += mk.e;
    if (exp10 < 0)
      out += '-';
    else if (mk.sci_plus)
      out += '+';
    bool written = false;
    for (const Tok& k : mk.expo) {
      if (IsPos(k)) {
        if (!written) out += e;
        written = true;
      } else {
        out += k.c;
      }
    }
    if (!written) out += e;
  }
  return out;
}

std::string FormatNumber(const Value& v, int decimals) {
  std::string mask = "#,##0";
  if (decimals > 0) {
    mask += '.';
    mask.append(static_cast<size_t>(decimals), '0');
  }
  return Format(v, mask);
}

}  // namespace tessaron
