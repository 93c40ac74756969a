// Creating the images and their contents.
#include "surfaces.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>

namespace bench {

namespace {

using Generator = std::mt19937;

DWORD Below(Generator& generator, DWORD n) { return static_cast<DWORD>(generator() % n); }

DWORD PixelOfAlpha(Generator& generator, DWORD alpha) {
    DWORD pixel = alpha;
    for (int channel = 0; channel < 3; ++channel) pixel = pixel << 8 | Below(generator, alpha + 1);
    return pixel;
}

// Runs of transparent and opaque pixels, few of others; a run starts smoothly.
void DrawRuns(Generator& generator, std::span<DWORD> row) {
    while (!row.empty()) {
        const std::size_t length = std::min<std::size_t>(4 + Below(generator, 60), row.size());
        const DWORD kind = Below(generator, 20);
        const DWORD alpha = kind < 9 ? 0 : kind < 18 ? 255 : 128;
        for (DWORD& pixel : row.first(length)) pixel = PixelOfAlpha(generator, alpha);
        row.front() = PixelOfAlpha(generator, Below(generator, 256));
        row = row.subspan(length);
    }
}

// As tall as controls are: most rows are like the one above.
void DrawInterface(Generator& generator, std::span<DWORD> pixels, std::size_t width) {
    for (std::size_t first = 0; first < pixels.size(); first += width) {
        if (first == 0 || Below(generator, 12) == 0)
            DrawRuns(generator, pixels.subspan(first, width));
        else
            std::ranges::copy(pixels.subspan(first - width, width),
                              pixels.begin() + static_cast<std::ptrdiff_t>(first));
    }
}

std::vector<DWORD> MakePixels(Content content, SIZE size, unsigned seed) {
    Generator generator(seed);
    std::vector<DWORD> pixels(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy));
    if (content == Content::userInterface) {
        DrawInterface(generator, pixels, static_cast<std::size_t>(size.cx));
    } else {
        for (DWORD& pixel : pixels)
            pixel = PixelOfAlpha(generator, content == Content::opaque ? 255 : Below(generator, 256));
    }
    return pixels;
}

SIZE Scaled(SIZE size, double factor) {
    return {std::max(1L, std::lround(size.cx * factor)), std::max(1L, std::lround(size.cy * factor))};
}

SIZE TargetSize(const Row& row, SIZE size) {
    if (row.per == Per::sourcePixel) return Scaled(size, row.scale);
    if (row.work == Work::move) return {size.cy, size.cx};
    return size;
}

SIZE SourceSize(const Row& row, SIZE size) { return row.per == Per::sourcePixel ? size : Scaled(size, 1 / row.scale); }

// A lock that ends at once: pixels stay where they are as long as nothing converts the surface.
BitmapLockInfo Locked(HGBITMAP bitmap, const RECT* area = nullptr) {
    BitmapLockInfo info;
    if (!LockBitmapBitsEx(bitmap, &info, area)) throw std::runtime_error("out of memory for the images");
    UnlockBitmapBits(bitmap, 0, 0);
    return info;
}

}  // namespace

Surfaces::Surfaces(const Row& row, SIZE size) {
    const SIZE drawn = TargetSize(row, size), sourceSize = SourceSize(row, size);
    const LONG inset = row.drawnSize ? 10 : 0;
    area = {inset, inset, inset + drawn.cx, inset + drawn.cy};
    const SIZE canvasSize = row.drawnSize ? SIZE{256, 256} : drawn;
    canvas.reset(CreateCanvas(canvasSize.cx, canvasSize.cy, nullptr));
    texture.reset(CreateTexture(sourceSize.cx, sourceSize.cy));
    canvasPixels = Locked(GetBitmap(canvas.get()));
    target = Locked(GetBitmap(canvas.get()), &area);
    source = Locked(Bitmap());
    SetTextureFilter(texture.get(), row.operation);
    firstTarget = MakePixels(Content::random, canvasSize, 1);
    firstSource = MakePixels(row.content, sourceSize, 2);
    Restore();
}

void Surfaces::Restore() {
    std::copy(firstTarget.begin(), firstTarget.end(), PixelsOf(canvasPixels));
    std::copy(firstSource.begin(), firstSource.end(), PixelsOf(source));
}

}  // namespace bench
