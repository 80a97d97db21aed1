#pragma once
// Keys as the forms know them: KeyDown gets the key code of the keyboard
// (37 to 40 the arrows, 46 Delete, 112 F1 ...), KeyPress the character.
#include <QKeyEvent>
#include <utility>

namespace tessaron::view {

// The key code of a key event, 0 when it names no key.
int keyCode(const QKeyEvent& event);
// 1 Shift, 2 Ctrl, 4 Alt.
int shiftState(Qt::KeyboardModifiers modifiers);
// The character of a key event, 0 when it types none.
int keyAscii(const QKeyEvent& event);
// The Qt key and modifiers that produce a key code, for delivering keys.
std::pair<int, Qt::KeyboardModifiers> qtKey(int keyCode, int shift);

}  // namespace tessaron::view
