// What is drawn: the picture as it is prepared, and a part of the ground with the picture on it. Coordinates are those of
// the destination rectangle.
#pragma once

#include "document/settings.h"

// The picture turned and with its effect. Empty when nothing is to be done (the source is drawn then) or memory is short.
zorvic::Texture Prepare(zorvic::TextureRef source, const Settings& settings);
bool NeedsPreparation(const Settings& settings);

// A colour that fills the whole ground, premultiplied; false for a pattern.
bool FlatGround(Ground ground, DWORD& color);

struct DrawCost {
    double seconds = 0;
    double pixels = 0;
};

// Draws the part of the stage that a canvas shows when its top left pixel is at `corner`. The cost is the picture's alone.
// The kernel of the bicubic filter has been set.
DrawCost DrawStage(zorvic::CanvasRef canvas, POINT corner, zorvic::TextureRef picture, const Settings& settings);
