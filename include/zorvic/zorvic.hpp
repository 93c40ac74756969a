// Zorvic for C++20: zorvic.h with owning handles, locks as scopes, and choices as types; headers only, no logic of its own.
// The functions of zorvic.h stay at hand: every object gives its handle by Get().
//
//     zorvic::Canvas canvas = zorvic::Canvas::Create(320, 200);
//     zorvic::Bitmap disc = zorvic::Bitmap::Create(64, 64);
//     if (!canvas || !disc) return;
//     {
//         zorvic::PixelLock pixels = disc.Lock();
//         for (int y = 0; y < pixels.Height(); ++y)
//             for (DWORD& pixel : pixels.Row(y)) pixel = 0x80800000;  // premultiplied
//     }
//     disc.SetOperation(zorvic::Operation::sourceOver);
//     canvas.DrawBitmap({10, 10, 138, 138}, disc, zorvic::Filter::bicubic, 200);
//     canvas.SetOperation(zorvic::Operation::sourceOver);
//     zorvic::Texture texture = ToTexture(std::move(canvas));
//
// Rectangles that a function needs are references, those that may be NULL pointers. Nothing throws: an object that could
// not be made is false, and a function answers as its export does. Single colours (ARGBtoAHSL and others) have neither
// handles nor choices, and are used as they are.
#pragma once

#include "zorvic/canvas.hpp"
#include "zorvic/memory.hpp"

namespace zorvic {

// Process-wide settings: no other thread may be drawing.
inline bool SetStretchKernel(StretchKernel kernel) { return ::SetStretchKernelMode(static_cast<DWORD>(kernel)) != 0; }
inline StretchKernel GetStretchKernel() { return static_cast<StretchKernel>(::GetStretchKernelMode()); }
inline ResourceManager* RegisterResourceManager(ResourceManager* manager) { return ::RegisterD2DResoureMgr(manager); }

}  // namespace zorvic
