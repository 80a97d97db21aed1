// The model's text box takes a typed character exactly when the real box
// does: the table behind Printable() agrees with the toolkit's own test at
// every code point.
#include <gtest/gtest.h>

#include <QChar>

#include "surface/printable.h"

namespace {

TEST(Printable, AgreesWithTheRealBoxAtEveryCodePoint) {
  int differ = 0;
  char32_t first = 0;
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    if (tessaron::Printable(c) != QChar::isPrint(c) && differ++ == 0) first = c;
  }
  EXPECT_EQ(differ, 0) << "first at U+" << std::hex << static_cast<unsigned>(first);
}

TEST(Printable, DropsControlsAndFormatCharacters) {
  for (char32_t c : {0x0U, 0x9U, 0x7FU, 0x85U, 0xADU, 0xFEFFU, 0xE000U, 0xD800U, 0xFFFFU})
    EXPECT_FALSE(tessaron::Printable(c)) << std::hex << static_cast<unsigned>(c);
  for (char32_t c : {0x20U, 0x31U, 0xE9U, 0xD55CU, 0x1F600U})
    EXPECT_TRUE(tessaron::Printable(c)) << std::hex << static_cast<unsigned>(c);
  EXPECT_FALSE(tessaron::Printable(0x110000));
}

}  // namespace
