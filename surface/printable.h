#pragma once
// Whether a typed character is one a text box shows, as the real box decides.

namespace tessaron {

bool Printable(char32_t c);

}  // namespace tessaron
