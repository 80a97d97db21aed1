#pragma once
// The script driver's --gui mode: the script's actions reach the real widgets
// as mouse and key events, and what the widgets show is read back.
#include <memory>

#include "tools/player.h"

namespace tessaron {

// Creates the Qt application (offscreen when no display is set) and the view
// of the application's forms.
std::unique_ptr<Player> makeGuiPlayer(Application& app, int& argc, char** argv);

}  // namespace tessaron
