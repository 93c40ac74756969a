#include "draw/random_draw.h"

namespace host {

namespace {

constexpr int width = 23, height = 17;  // of all sources

// Inside 0..width, 0..height, not empty.
RECT PartOf(zorvic::Random& random) {
    const int left = random.Below(width), top = random.Below(height);
    return {left, top, left + 1 + random.Below(width - left), top + 1 + random.Below(height - top)};
}

// Now and then an edge lies at the end of the world.
RECT WithExtremes(zorvic::Random& random, RECT rect) {
    constexpr LONG extremes[] = {LONG_MIN, LONG_MIN + 1, -40000, 40000, LONG_MAX - 1, LONG_MAX};
    for (LONG* edge : {&rect.left, &rect.top, &rect.right, &rect.bottom})
        if (random.Below(20) == 0) *edge = extremes[random.Below(6)];
    return rect;
}

RECT RectByChance(zorvic::Random& random) {
    const int left = random.Below(80) - 40, top = random.Below(80) - 40;
    const bool sameSize = random.Below(4) == 0;
    return WithExtremes(random, {left, top, left + (sameSize ? width : 1 + random.Below(50)),
                                 top + (sameSize ? height : 1 + random.Below(50))});
}

RECT MarginsByChance(zorvic::Random& random) {
    return WithExtremes(random, {random.Below(12), random.Below(9), random.Below(12), random.Below(9)});
}

}  // namespace

DrawSources::DrawSources() : skin(CreateTexture(width, height)), canvas(CreateCanvas(width, height, nullptr)) {
    for (const int depth : {8, 8, 24, 32}) {
        bitmaps.push_back(MakeBitmap(width, height, depth, bitmaps.empty() ? 0 : 200));
        Pixels pixels(bitmaps.back().get());
        pixels.Fill([=](int x, int y) { return depth == 8 ? Pattern{9}(x, y) % 200 : PremultipliedPattern{7}(x, y); });
        for (int i = 0; pixels->colorCount == 200 && i < 200; ++i) pixels->palette[i] = PremultipliedPattern{5}(i, 0);
    }
    Fill(skin.get(), PremultipliedPattern{7});
    Fill(canvas.get(), PremultipliedPattern{7});
}

RandomDraw DrawSources::Next(zorvic::Random& random, bool onSurface) const {
    constexpr DWORD operations[] = {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER, ZORVIC_OP_COLOR_KEY, ZORVIC_OP_MULTIPLY,
                                    ZORVIC_OP_DESTINATION_OVER};
    constexpr DWORD filters[] = {ZORVIC_FILTER_NEAREST, ZORVIC_FILTER_BILINEAR, ZORVIC_FILTER_BICUBIC,
                                 ZORVIC_FILTER_AREA};
    constexpr BYTE alphas[] = {0, 1, 128, 254, 255, 255};
    const HGBITMAP bitmap = bitmaps[static_cast<std::size_t>(random.Below(4))].get();
    const HGTEXTURE t = skin.get();
    const HGCANVAS o = canvas.get();
    const RECT dst = RectByChance(random), part = PartOf(random), margins = MarginsByChance(random);
    const DWORD color = random.Pixel(), filter = filters[random.Below(4)];
    const DWORD operation = operations[random.Below(onSurface ? 5 : 4)];  // the last one asks the canvas for its alpha
    const BYTE alpha = alphas[random.Below(6)];
    const float scale = static_cast<float>(random.Below(5)) * .5F;
    SetBitmapFilter(bitmap, operation);
    SetTextureFilter(t, operation);
    SetCanvasFilter(o, ZORVIC_OP_SOURCE_OVER);  // of others, stretches change when they are clipped
    switch (random.Below(onSurface ? 16 : 10)) {
        case 0:
            return {"fill", [=](HGCANVAS c) { return FillSolidRectEx(c, color, &dst, operation); }};
        case 1:
            return {"bitmap", [=](HGCANVAS c) { return DrawBitmapEx(c, &dst, bitmap, filter, alpha); }};
        case 2:
            return {"part", [=](HGCANVAS c) { return DrawBitmapEx2(c, &dst, bitmap, &part, filter, alpha); }};
        case 3:
            return {"modulation", [=](HGCANVAS c) {
                        return DrawModulation(c, dst.left, dst.top, bitmap, scale > 1 ? &part : nullptr, color);
                    }};
        case 4:
            return {"nine-grid", [=](HGCANVAS c) {
                        return DrawTexture9Grid(c, &dst, t, &part, &margins, filter, scale > 1, alpha, 0, scale, 1);
                    }};
        case 5:
            return {"tiles", [=](HGCANVAS c) {
                        return 1 + DrawTextureTile(c, &dst, t, &part, filter, alpha, ZORVIC_TILE_SCALED, scale);
                    }};
        case 6:
            return {"top tiles",
                    [=](HGCANVAS c) { return 1 + DrawTextureTopTile(c, &dst, t, &part, &margins, filter, alpha); }};
        case 7:
            return {"uniform",
                    [=](HGCANVAS c) { return DrawTextureUniform(c, &dst, t, &margins, filter, alpha, scale > 1); }};
        case 14:
            return {"center", [=](HGCANVAS c) { return DrawTextureCenter(c, &dst, t, &part, filter, alpha); }};
        case 8:
            return {"mix color", [=](HGCANVAS c) { return MixCanvasWithColor(c, &dst, color, alpha); }, dst};
        case 9:
            return {"mix", [=](HGCANVAS c) { return MixCanvas(c, &dst, o, &part, alpha); }, dst};
        case 10:
            return {"blend", [=](HGCANVAS c) { return BlendCanvas(c, &dst, o, &part, 255); }};
        case 11:
            return {"frame", [=](HGCANVAS c) { return GeoRectangle(c, &dst, nullptr, nullptr); }};
        case 12:
            return {"focus", [=](HGCANVAS c) { return GeoRectFocusEx(c, &dst, 0x80FFFFFF & color); }};
        case 13:
            return {"rounded", [=](HGCANVAS c) {
                        return FillRoundRectEx(c, &dst, reinterpret_cast<const POINT*>(&margins), color);
                    }};
        default:
            return {"circle", [=](HGCANVAS c) {
                        return DrawCircle(c, static_cast<float>(dst.left), static_cast<float>(dst.top), 9);
                    }};
    }
}

}  // namespace host
