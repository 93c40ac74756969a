// Pictures from the clipboard, and text to it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "engine/worker.h"

// A copied file, a PNG or a device-independent bitmap; nothing when there is neither.
std::optional<OpenJob> PictureFromClipboard(HWND window);
bool TextToClipboard(HWND window, const std::wstring& text);
// The first file of a drop.
std::wstring DroppedFile(HDROP drop);
