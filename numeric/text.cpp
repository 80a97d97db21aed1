#include <string>

#include "numeric/numeric.h"

namespace tessaron {
namespace {

bool Ascii(const std::string& s) {
  for (unsigned char c : s)
    if (c >= 0x80) return false;
  return true;
}

}  // namespace

// A lone surrogate left by a cut through a pair is written in the three-byte
// form so that nothing is lost silently.
std::u16string ToUtf16(std::string_view s) {
  std::u16string u;
  u.reserve(s.size());
  for (size_t i = 0; i < s.size();) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    char32_t cp;
    int len;
    if (c < 0x80) {
      cp = c;
      len = 1;
    } else if (c >= 0xF0) {
      cp = c & 0x07;
      len = 4;
    } else if (c >= 0xE0) {
      cp = c & 0x0F;
      len = 3;
    } else if (c >= 0xC0) {
      cp = c & 0x1F;
      len = 2;
    } else {
      cp = 0xFFFD;  // a stray continuation byte
      len = 1;
    }
    for (int k = 1; k < len && i + k < s.size(); ++k) cp = (cp << 6) | (s[i + k] & 0x3F);
    i += len;
    if (cp >= 0x10000) {
      cp -= 0x10000;
      u += static_cast<char16_t>(0xD800 + (cp >> 10));
      u += static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
    } else {
      u += static_cast<char16_t>(cp);
    }
  }
  return u;
}

std::string ToUtf8(std::u16string_view u) {
  std::string s;
  const size_t end = u.size();
  for (size_t i = 0; i < end; ++i) {
    char32_t cp = u[i];
    if (cp >= 0xD800 && cp < 0xDC00 && i + 1 < end && u[i + 1] >= 0xDC00 && u[i + 1] < 0xE000) {
      cp = 0x10000 + ((cp - 0xD800) << 10) + (u[i + 1] - 0xDC00);
      ++i;
    }
    if (cp < 0x80) {
      s += static_cast<char>(cp);
    } else if (cp < 0x800) {
      s += static_cast<char>(0xC0 | (cp >> 6));
      s += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
      s += static_cast<char>(0xE0 | (cp >> 12));
      s += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      s += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
      s += static_cast<char>(0xF0 | (cp >> 18));
      s += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
      s += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      s += static_cast<char>(0x80 | (cp & 0x3F));
    }
  }
  return s;
}

namespace {

// Units [from, from + count) of s, clipped to its length.
std::string Slice(const std::string& s, size_t from, size_t count) {
  if (Ascii(s)) return from >= s.size() ? std::string() : s.substr(from, count);
  const std::u16string u = ToUtf16(s);
  if (from >= u.size()) return std::string();
  return ToUtf8(std::u16string_view(u).substr(from, count));
}

}  // namespace

int Len(const Value& v) {
  const std::string s = CStr(v);
  int n = 0;
  for (unsigned char c : s) {
    if ((c & 0xC0) != 0x80) ++n;
    if (c >= 0xF0) ++n;  // outside the basic plane: a surrogate pair
  }
  return n;
}

std::string Left(const Value& v, int n) {
  if (n < 0) fail::Invalid();
  return Slice(CStr(v), 0, static_cast<size_t>(n));
}

std::string Right(const Value& v, int n) {
  if (n < 0) fail::Invalid();
  const std::string s = CStr(v);
  const size_t len = static_cast<size_t>(Len(Value(s)));
  const size_t k = static_cast<size_t>(n) < len ? static_cast<size_t>(n) : len;
  return Slice(s, len - k, k);
}

std::string Mid(const Value& v, int start, int n) {
  if (start < 1 || n < 0) fail::Invalid();
  return Slice(CStr(v), static_cast<size_t>(start - 1), static_cast<size_t>(n));
}

std::string Mid(const Value& v, int start) {
  if (start < 1) fail::Invalid();
  return Slice(CStr(v), static_cast<size_t>(start - 1), std::string::npos);
}

std::string Space(int n) {
  if (n < 0) fail::Invalid();
  return std::string(static_cast<size_t>(n), ' ');
}

bool IsBlankRun(std::string_view text, int most) {
  return !text.empty() && static_cast<int>(text.size()) <= most &&
         text.find_first_not_of(' ') == std::string_view::npos;
}

namespace {
std::string Radix(const Value& v, unsigned shift) {
  // After CLng; a negative value reads as its 32-bit two's complement.
  uint32_t x = static_cast<uint32_t>(CLng(v).AsInt32());
  const unsigned mask = (1u << shift) - 1;
  char buf[16];
  char* p = buf + sizeof buf;
  do {
    *--p = "0123456789ABCDEF"[x & mask];
    x >>= shift;
  } while (x);
  return std::string(p, buf + sizeof buf);
}
}  // namespace

std::string Hex(const Value& v) { return Radix(v, 4); }
std::string Oct(const Value& v) { return Radix(v, 3); }

}  // namespace tessaron
