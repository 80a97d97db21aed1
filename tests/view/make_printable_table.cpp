// Prints the ranges of code points the toolkit's text box refuses to show,
// as surface/printable.cpp holds them:
//   cmake --build build --target make_printable_table
//   build/bin/make_printable_table
#include <QChar>
#include <cstdio>

int main() {
  bool inside = false;
  unsigned start = 0;
  for (unsigned c = 0; c <= 0x110000; ++c) {
    const bool refused = c < 0x110000 && !QChar::isPrint(static_cast<char32_t>(c));
    if (refused && !inside) {
      inside = true;
      start = c;
    } else if (!refused && inside) {
      inside = false;
      std::printf("{0x%X, 0x%X},\n", start, c - 1);
    }
  }
}
