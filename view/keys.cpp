#include "view/keys.h"

#include <array>

namespace tessaron::view {

namespace {

struct KeyName {
  int code;
  int key;
};

// Keys whose code is not their character.
constexpr std::array<KeyName, 40> kNamed{{
    {8, Qt::Key_Backspace},      {9, Qt::Key_Tab},           {12, Qt::Key_Clear},
    {13, Qt::Key_Return},        {16, Qt::Key_Shift},        {17, Qt::Key_Control},
    {18, Qt::Key_Alt},           {19, Qt::Key_Pause},        {20, Qt::Key_CapsLock},
    {27, Qt::Key_Escape},        {32, Qt::Key_Space},        {33, Qt::Key_PageUp},
    {34, Qt::Key_PageDown},      {35, Qt::Key_End},          {36, Qt::Key_Home},
    {37, Qt::Key_Left},          {38, Qt::Key_Up},           {39, Qt::Key_Right},
    {40, Qt::Key_Down},          {44, Qt::Key_Print},        {45, Qt::Key_Insert},
    {46, Qt::Key_Delete},        {144, Qt::Key_NumLock},     {145, Qt::Key_ScrollLock},
    {186, Qt::Key_Semicolon},    {187, Qt::Key_Equal},       {188, Qt::Key_Comma},
    {189, Qt::Key_Minus},        {190, Qt::Key_Period},      {191, Qt::Key_Slash},
    {192, Qt::Key_QuoteLeft},    {219, Qt::Key_BracketLeft}, {220, Qt::Key_Backslash},
    {221, Qt::Key_BracketRight}, {222, Qt::Key_Apostrophe},  {13, Qt::Key_Enter},
    {186, Qt::Key_Colon},        {187, Qt::Key_Plus},        {222, Qt::Key_QuoteDbl},
    {189, Qt::Key_Underscore},
}};

// The number pad: 96 to 105 its digits, then * + separator - . /
constexpr std::array<KeyName, 6> kPad{{{106, Qt::Key_Asterisk},
                                       {107, Qt::Key_Plus},
                                       {109, Qt::Key_Minus},
                                       {110, Qt::Key_Period},
                                       {110, Qt::Key_Comma},
                                       {111, Qt::Key_Slash}}};

}  // namespace

int keyCode(const QKeyEvent& e) {
  const int key = e.key();
  const bool pad = e.modifiers() & Qt::KeypadModifier;
  if (pad) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return 96 + (key - Qt::Key_0);
    for (const KeyName& k : kPad)
      if (k.key == key) return k.code;
  }
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return 65 + (key - Qt::Key_A);
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return 48 + (key - Qt::Key_0);
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + (key - Qt::Key_F1);
  for (const KeyName& k : kNamed)
    if (k.key == key) return k.code;
  // Shifted digits and the like still name the key under them.
  static constexpr std::array<std::pair<int, int>, 10> shifted{{{Qt::Key_Exclam, 49},
                                                                {Qt::Key_At, 50},
                                                                {Qt::Key_NumberSign, 51},
                                                                {Qt::Key_Dollar, 52},
                                                                {Qt::Key_Percent, 53},
                                                                {Qt::Key_AsciiCircum, 54},
                                                                {Qt::Key_Ampersand, 55},
                                                                {Qt::Key_Asterisk, 56},
                                                                {Qt::Key_ParenLeft, 57},
                                                                {Qt::Key_ParenRight, 48}}};
  for (const auto& [q, code] : shifted)
    if (q == key) return code;
  // A key delivered by its code alone.
  if (key == 0 || key == Qt::Key_unknown) return static_cast<int>(e.nativeVirtualKey());
  return 0;
}

int shiftState(Qt::KeyboardModifiers m) {
  return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
         (m & Qt::AltModifier ? 4 : 0);
}

int keyAscii(const QKeyEvent& e) {
  switch (e.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Tab:
      return 0;
    default:
      break;
  }
  const QString t = e.text();
  if (t.isEmpty()) return 0;
  const uint c = t.toUcs4().value(0);
  if (c == 127) return 0;  // Delete types nothing
  return static_cast<int>(c);
}

std::pair<int, Qt::KeyboardModifiers> qtKey(int code, int shift) {
  Qt::KeyboardModifiers m;
  if (shift & 1) m |= Qt::ShiftModifier;
  if (shift & 2) m |= Qt::ControlModifier;
  if (shift & 4) m |= Qt::AltModifier;
  if (code >= 65 && code <= 90) return {Qt::Key_A + (code - 65), m};
  if (code >= 48 && code <= 57) return {Qt::Key_0 + (code - 48), m};
  if (code >= 96 && code <= 105) return {Qt::Key_0 + (code - 96), m | Qt::KeypadModifier};
  if (code >= 112 && code <= 135) return {Qt::Key_F1 + (code - 112), m};
  for (const KeyName& k : kPad)
    if (k.code == code) return {k.key, m | Qt::KeypadModifier};
  for (const KeyName& k : kNamed)
    if (k.code == code) return {k.key, m};
  return {Qt::Key_unknown, m};
}

}  // namespace tessaron::view
