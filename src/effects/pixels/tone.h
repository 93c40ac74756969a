// Effects on single pixels, in place. Images of a depth that an effect does not know stay as they are.
#pragma once

#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

// Blue, green and red become (blue + 2 x green + red) >> 2. 8 (palette), 24 and 32 bits.
void GrayImage(const BitmapLockInfo& image);

// Colour within its alpha: each channel becomes alpha - channel, modulo 256. 32 bits.
void InvertImage(const BitmapLockInfo& image);

// Each channel becomes channel x (alpha + 1) >> 8. 8 (palette, fourth byte as alpha) and 32 bits.
void PremultiplyImage(const BitmapLockInfo& image);

// The numbers are the interface's.
enum class Shuffle { alphaToGray = 1, colorToAlpha = 6 };

// Alpha shown as grey, or alpha made from the largest channel; other modes change nothing. 32 bits.
void ShuffleImage(const BitmapLockInfo& image, Shuffle mode);

// Replaces one exact colour, alpha included where there is one. 8 (palette), 24 and 32 bits.
void ReplaceColor(const BitmapLockInfo& image, std::uint32_t from, std::uint32_t to);

// Whatever is not transparent becomes opaque white. 32 bits.
void WhitenImage(const BitmapLockInfo& image);

}  // namespace zorvic
