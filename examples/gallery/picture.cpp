#include "picture.h"

#include <algorithm>
#include <cmath>

#include "sample.h"
#include "support/picture_files.h"

namespace {

bool HasAlpha(HGBITMAP picture) {
    const Pixels pixels(picture);
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x)
            if (pixels.At(x, y) >> 24 != 255) return true;
    return false;
}

// The mean of a box of pixels.
DWORD Mean(const Pixels& pixels, const RECT& box) {
    std::uint64_t sum[4]{};
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x)
            for (int i = 0; i < 4; ++i) sum[i] += pixels.At(x, y) >> 8 * i & 255;
    const auto count = static_cast<std::uint64_t>(Width(box)) * static_cast<std::uint64_t>(Height(box));
    DWORD mean = 0;
    for (int i = 0; i < 4; ++i) mean |= static_cast<DWORD>((sum[i] + count / 2) / count) << 8 * i;
    return mean;
}

// A part of a picture in another size, with the operation word of the whole.
Bitmap Scaled(HGBITMAP picture, const RECT& part, SIZE size) {
    Bitmap scaled(CreateMemBitmap(size.cx, size.cy));
    const Pixels from(picture);
    const Pixels to(scaled);
    const auto column = [&](int x) { return part.left + static_cast<int>(std::int64_t{x} * Width(part) / size.cx); };
    const auto row = [&](int y) { return part.top + static_cast<int>(std::int64_t{y} * Height(part) / size.cy); };
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            to.At(x, y) = Mean(
                from, {column(x), row(y), std::max(column(x) + 1, column(x + 1)), std::max(row(y) + 1, row(y + 1))});
    DWORD filter = 0;
    GetBitmapFilter(picture, &filter);
    SetBitmapFilter(scaled, filter);
    return scaled;
}

// Calls visit(x, y, row of the new bitmap) for every pixel of a new bitmap of another depth.
template <class Visit>
Bitmap Converted(HGBITMAP picture, int bitsPixel, int colorCount, Visit visit) {
    Bitmap made(CreateMemBitmapEx(SizeOf(picture).cx, SizeOf(picture).cy, bitsPixel, colorCount));
    const Pixels from(picture);
    const Pixels to(made);
    for (int y = 0; y < to.Height(); ++y)
        for (int x = 0; x < to.Width(); ++x) visit(x, y, Color::From(from.At(x, y)), to.Row(y));
    return made;
}

// Distance from the middle of the picture: 1 on the ellipse that fills it.
double Distance(const Pixels& pixels, int x, int y) {
    return std::hypot((x + 0.5) / pixels.Width() * 2 - 1, (y + 0.5) / pixels.Height() * 2 - 1);
}

}  // namespace

Pictures LoadPictures(const std::vector<std::wstring>& files) {
    Pictures pictures;
    const auto add = [&](std::wstring name, Bitmap bitmap) {
        const bool alpha = HasAlpha(bitmap);
        const SIZE size = SizeOf(bitmap);
        SetBitmapFilter(bitmap, alpha ? ZORVIC_OP_SOURCE_OVER : ZORVIC_OP_COPY);
        (alpha || size.cx < 128 || size.cy < 128 ? pictures.sprites : pictures.photos)
            .push_back({std::move(name), std::move(bitmap)});
    };
    for (const auto& file : files) add(file.substr(file.find_last_of(L"/\\") + 1), Bitmap(ReadPicture(file).Release()));
    if (pictures.photos.empty()) add(L"sample by day", SampleLandscape(Daytime::day));
    if (pictures.photos.size() < 2) add(L"sample by night", SampleLandscape(Daytime::night));
    if (pictures.sprites.empty()) {
        add(L"sample button", SampleButton());
        add(L"sample ball", SampleBall());
    }
    return pictures;
}

HGBITMAP Pictures::Sprite() const {
    return std::ranges::max_element(sprites, {},
                                    [](const Picture& sprite) {
                                        const SIZE size = SizeOf(sprite.bitmap);
                                        return std::min(size.cx, size.cy);
                                    })
        ->bitmap;
}

HGBITMAP Pictures::WideSprite() const {
    return std::ranges::max_element(sprites, {}, [](const Picture& sprite) { return SizeOf(sprite.bitmap).cx; })
        ->bitmap;
}

Bitmap Cover(HGBITMAP picture, SIZE size) {
    const SIZE all = SizeOf(picture);
    const double scale = std::min(double(all.cx) / size.cx, double(all.cy) / size.cy);
    const int width = std::clamp(static_cast<int>(size.cx * scale), 1, static_cast<int>(all.cx));
    const int height = std::clamp(static_cast<int>(size.cy * scale), 1, static_cast<int>(all.cy));
    return Scaled(picture, Box((all.cx - width) / 2, (all.cy - height) / 2, width, height), size);
}

Bitmap Contain(HGBITMAP picture, SIZE size) {
    const SIZE all = SizeOf(picture);
    const double scale = std::max({1.0, double(all.cx) / size.cx, double(all.cy) / size.cy});
    return Scaled(picture, AreaOf(picture),
                  {std::max(1L, std::lround(all.cx / scale)), std::max(1L, std::lround(all.cy / scale))});
}

Bitmap To24Bits(HGBITMAP picture) {
    return Converted(picture, 24, 0, [](int x, int, Color color, BYTE* row) {
        row[x * 3] = static_cast<BYTE>(color.b);
        row[x * 3 + 1] = static_cast<BYTE>(color.g);
        row[x * 3 + 2] = static_cast<BYTE>(color.r);
    });
}

Bitmap ToPalette(HGBITMAP picture) {
    // 6 x 7 x 6 levels, each pixel nudged to one of its two neighbouring levels by a 4 x 4 ordered dither.
    static constexpr int bayer[4][4]{{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    Bitmap made = Converted(picture, 8, 256, [](int x, int y, Color color, BYTE* row) {
        const auto level = [&](int value, int levels) {
            return (value * (levels - 1) * 16 + bayer[y & 3][x & 3] * 255) / (255 * 16);
        };
        row[x] = static_cast<BYTE>((level(color.r, 6) * 7 + level(color.g, 7)) * 6 + level(color.b, 6));
    });
    DWORD* palette = Pixels(made).Palette();
    for (int i = 0; i < 256; ++i) {
        const int color = std::min(i, 251);
        palette[i] = Color{color / 42 * 51, color / 6 % 7 * 255 / 6, color % 6 * 51, 255}.Argb();
    }
    return made;
}

Bitmap ToGray(HGBITMAP picture) {
    return Converted(picture, 8, 0, [](int x, int, Color color, BYTE* row) {
        row[x] = static_cast<BYTE>((color.r + 2 * color.g + color.b) / 4);
    });
}

void FadeEdges(HGBITMAP picture) {
    const Pixels pixels(picture);
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) {
            const double opacity = std::clamp((1 - Distance(pixels, x, y)) * 2.5, 0.0, 1.0);
            const Color c = Color::From(pixels.At(x, y));
            const auto fade = [&](int value) { return static_cast<int>(value * opacity); };
            pixels.At(x, y) = Color{fade(c.r), fade(c.g), fade(c.b), fade(c.a)}.Argb();
        }
}

void CutOut(HGBITMAP picture, DWORD outside) {
    const Pixels pixels(picture);
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x)
            if (Distance(pixels, x, y) > 1) pixels.Set(x, y, outside);
}
