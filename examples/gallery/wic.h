// Picture files through the Windows Imaging Component. Failures are std::runtime_error with one line for the user.
#pragma once

#include <string>

#include "surface.h"

std::string Utf8(const std::wstring& text);

// Reads the first frame of a PNG, JPEG, BMP... as 32-bit premultiplied pixels.
Bitmap ReadPicture(const std::wstring& file);

// Writes a 32-bit bitmap as an opaque PNG, whatever its alpha.
void WritePng(HGBITMAP bitmap, const std::wstring& file);
