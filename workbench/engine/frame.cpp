#include "engine/frame.h"

#include <algorithm>

namespace {

// Stage pixels on a side of a block.
constexpr int blockSide = 2048;

int Reduction(const ViewPart& part) { return part.zoom < 0 ? -part.zoom : 1; }

// Size of the stored pixels.
SIZE StoredSize(const ViewPart& part) {
    const int times = std::max(1, part.zoom);
    return {(part.size.cx + times - 1) / times, (part.size.cy + times - 1) / times};
}

// One block of the stage, reduced into its place in the frame.
bool AddBlock(zorvic::BitmapRef frame, const RECT& place, const ViewPart& part, zorvic::TextureRef picture,
              const Settings& settings, DrawCost& cost) {
    const int n = Reduction(part);
    const POINT corner{part.origin.x + place.left * n, part.origin.y + place.top * n};
    const SIZE size{place.right - place.left, place.bottom - place.top};
    zorvic::Canvas canvas = zorvic::Canvas::Create(size.cx * n, size.cy * n);
    if (!canvas) return false;
    const DrawCost block = DrawStage(canvas, corner, picture, settings);
    cost.seconds += block.seconds;
    cost.pixels += block.pixels;
    if (n == 1) {
        frame.CopyFrom(canvas.Surface(), &place);
    } else {
        const zorvic::Bitmap reduced = canvas.Surface().Resized(size.cx, size.cy, zorvic::Filter::area);
        if (!reduced) return false;
        frame.CopyFrom(reduced, &place);
    }
    return true;
}

zorvic::Bitmap ChannelsOf(zorvic::BitmapRef pixels, Channels channels) {
    if (channels == Channels::color) return {};
    const SIZE size = pixels.Size();
    zorvic::Bitmap shown = zorvic::Bitmap::Create(size.cx, size.cy);
    if (!shown) return {};
    shown.CopyFrom(pixels);
    if (channels == Channels::alpha) shown.ShuffleChannels(zorvic::Shuffle::alphaToGray);
    shown.SetOperation(zorvic::Operation::copy);
    return shown;
}

}  // namespace

Frame MakeFrame(const ViewPart& part, Channels channels, zorvic::TextureRef picture, const Settings& settings,
                const FrameProgress& progress) {
    Frame frame;
    frame.part = part;
    const SIZE size = StoredSize(part);
    zorvic::Bitmap pixels = zorvic::Bitmap::Create(size.cx, size.cy);
    if (!pixels) return frame;

    const int n = Reduction(part);
    const int side = std::max(1, blockSide / n);
    RECT drawn = settings.destination;
    OffsetRect(&drawn, -part.origin.x, -part.origin.y);
    DWORD flat = 0;
    const bool flatGround = FlatGround(settings.ground, flat);
    for (int y = 0; y < size.cy; y += side)
        for (int x = 0; x < size.cx; x += side) {
            const RECT place{x, y, std::min<LONG>(x + side, size.cx), std::min<LONG>(y + side, size.cy)};
            const RECT covered{place.left * n, place.top * n, place.right * n, place.bottom * n};
            RECT common{};
            if (flatGround && !IntersectRect(&common, &covered, &drawn)) {
                BITMAP rows{};
                LockBitmapBits(pixels.Get(), &rows, &place);
                zorvic::FillPixels(rows, flat);
                UnlockBitmapBits(pixels.Get(), 0, 1);
            } else if (!AddBlock(pixels, place, part, picture, settings, frame.cost)) {
                return frame;
            }
            if (!progress((double(y) * size.cx + double(x) * (place.bottom - y)) / (double(size.cx) * size.cy)))
                return frame;
        }
    pixels.SetOperation(zorvic::Operation::sourceOver);
    frame.shown = ChannelsOf(pixels, channels);
    frame.pixels = std::move(pixels);
    return frame;
}

DrawCost Measure(const ViewPart& part, zorvic::TextureRef picture, const Settings& settings,
                 const FrameProgress& progress) {
    const SIZE size = StoredSize(part);
    const zorvic::Canvas canvas = zorvic::Canvas::Create(size.cx, size.cy);
    DrawCost best;
    double spent = 0;
    for (int i = 0; canvas && i < 20 && spent < 0.03 && progress(1); ++i) {
        const DrawCost cost = DrawStage(canvas, part.origin, picture, settings);
        spent += cost.seconds;
        if (i == 0 || cost.seconds < best.seconds) best = cost;
    }
    return best;
}
