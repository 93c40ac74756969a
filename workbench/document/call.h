// The calls that draw the picture as the settings say, as C++ for zorvic.hpp.
#pragma once

#include <string>

#include "document/settings.h"

// Lines end with CR LF, as the clipboard wants them. `picture` is a zorvic::Texture, `canvas` a zorvic::Canvas.
std::string CallFor(const Settings& settings);
