// What holds for every draw on every kind of canvas: a clip only cuts and origins only move what a canvas without them
// shows, and device contexts of any depth and row order show the same pixels.
#include <functional>

#include "canvas/targets.h"
#include "support/random.h"

using namespace host;

namespace {

constexpr int sourceWidth = 23, sourceHeight = 17;

// Inside 0..sourceWidth, 0..sourceHeight, not empty.
RECT PartOf(zorvic::Random& random) {
    const int left = random.Below(sourceWidth), top = random.Below(sourceHeight);
    return {left, top, left + 1 + random.Below(sourceWidth - left), top + 1 + random.Below(sourceHeight - top)};
}

// Now and then an edge lies at the end of the world.
RECT WithExtremes(zorvic::Random& random, RECT rect) {
    constexpr LONG extremes[] = {LONG_MIN, LONG_MIN + 1, -40000, 40000, LONG_MAX - 1, LONG_MAX};
    for (LONG* edge : {&rect.left, &rect.top, &rect.right, &rect.bottom})
        if (random.Below(20) == 0) *edge = extremes[random.Below(6)];
    return rect;
}

// One in three is as large as the part, one in three as the whole source.
RECT RectByChance(zorvic::Random& random, const RECT& part) {
    const int left = random.Below(80) - 40, top = random.Below(80) - 40;
    const SIZE sizes[] = {{part.right - part.left, part.bottom - part.top},
                          {sourceWidth, sourceHeight},
                          {1 + random.Below(50), 1 + random.Below(50)}};
    const SIZE size = sizes[random.Below(3)];
    return WithExtremes(random, {left, top, left + size.cx, top + size.cy});
}

RECT MarginsByChance(zorvic::Random& random) {
    return WithExtremes(random, {random.Below(12), random.Below(9), random.Below(12), random.Below(9)});
}

// Most draws lie between -40 and 90 logical pixels.
struct RandomDraw {
    std::string name;
    std::function<int(HGCANVAS)> call;
    // For draws that the clip does not hold and that are refused when they leave the surface.
    RECT unclipped{};
};

// What draws read from: bitmaps of every depth, a texture and a canvas.
struct DrawSources {
    DrawSources() {
        for (const int depth : {8, 8, 24, 32}) {
            bitmaps.push_back(MakeBitmap(sourceWidth, sourceHeight, depth, bitmaps.empty() ? 0 : 200));
            Pixels pixels(bitmaps.back().get());
            for (int i = 0; pixels->colorCount == 200 && i < 200; ++i) pixels->palette[i] = picture(i, 20);
            pixels.Fill([=](int x, int y) { return depth == 8 ? Pattern{9}(x, y) % 200 : picture(x, y); });
        }
        Fill(skin.get(), picture);
        Fill(canvas.get(), picture);
    }

    static constexpr PremultipliedPattern picture{7};
    std::vector<OwnedBitmap> bitmaps;
    const OwnedTexture skin{CreateTexture(sourceWidth, sourceHeight)};
    const OwnedCanvas canvas{CreateCanvas(sourceWidth, sourceHeight, nullptr)};
};

// The operation words of the sources are the draw's, until the next one. onSurface: also what only canvases with a
// surface do, and what asks for their alpha.
RandomDraw NextDraw(const DrawSources& sources, zorvic::Random& random, bool onSurface) {
    constexpr DWORD operations[] = {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER, ZORVIC_OP_COLOR_KEY, ZORVIC_OP_MULTIPLY,
                                    ZORVIC_OP_DESTINATION_OVER};
    constexpr DWORD filters[] = {ZORVIC_FILTER_NEAREST, ZORVIC_FILTER_BILINEAR, ZORVIC_FILTER_BICUBIC,
                                 ZORVIC_FILTER_AREA};
    constexpr BYTE alphas[] = {0, 1, 128, 254, 255, 255};
    const HGBITMAP bitmap = sources.bitmaps[static_cast<std::size_t>(random.Below(4))].get();
    const HGTEXTURE t = sources.skin.get();
    const HGCANVAS o = sources.canvas.get();
    const RECT part = PartOf(random), dst = RectByChance(random, part), margins = MarginsByChance(random);
    const DWORD color = random.Pixel(), filter = filters[random.Below(4)];
    const DWORD operation = operations[random.Below(onSurface ? 5 : 4)];  // the last one asks the canvas for its alpha
    const BYTE alpha = alphas[random.Below(6)];
    const float scale = static_cast<float>(random.Below(5)) * .5F;
    SetBitmapFilter(bitmap, operation);
    SetTextureFilter(t, operation);
    SetCanvasFilter(o, ZORVIC_OP_SOURCE_OVER);  // of others, stretches change when they are clipped
    const POINT corner{margins.left, margins.top};
    const RandomDraw draws[] = {
        // those that need a surface come last
        {"fill", [=](HGCANVAS c) { return FillSolidRectEx(c, color, &dst, operation); }},
        {"bitmap", [=](HGCANVAS c) { return DrawBitmapEx(c, &dst, bitmap, filter, alpha); }},
        {"part", [=](HGCANVAS c) { return DrawBitmapEx2(c, &dst, bitmap, &part, filter, alpha); }},
        {"modulation",
         [=](HGCANVAS c) { return DrawModulation(c, dst.left, dst.top, bitmap, scale > 1 ? &part : nullptr, color); }},
        {"nine-grid",
         [=](HGCANVAS c) {
             return DrawTexture9Grid(c, &dst, t, &part, &margins, filter, scale > 1, alpha, 0, scale, 1);
         }},
        {"tiles",
         [=](HGCANVAS c) { return 1 + DrawTextureTile(c, &dst, t, &part, filter, alpha, ZORVIC_TILE_SCALED, scale); }},
        {"top tiles", [=](HGCANVAS c) { return 1 + DrawTextureTopTile(c, &dst, t, &part, &margins, filter, alpha); }},
        {"uniform", [=](HGCANVAS c) { return DrawTextureUniform(c, &dst, t, &margins, filter, alpha, scale > 1); }},
        {"mix color", [=](HGCANVAS c) { return MixCanvasWithColor(c, &dst, color, alpha); }, dst},
        {"mix", [=](HGCANVAS c) { return MixCanvas(c, &dst, o, &part, alpha); }, dst},
        {"center", [=](HGCANVAS c) { return DrawTextureCenter(c, &dst, t, &part, filter, alpha); }},
        {"blend", [=](HGCANVAS c) { return BlendCanvas(c, &dst, o, &part, 255); }},
        {"frame", [=](HGCANVAS c) { return GeoRectangle(c, &dst, nullptr, nullptr); }},
        {"focus", [=](HGCANVAS c) { return GeoRectFocusEx(c, &dst, 0x80FFFFFF & color); }},
        {"rounded", [=](HGCANVAS c) { return FillRoundRectEx(c, &dst, &corner, color); }},
        {"circle",
         [=](HGCANVAS c) { return DrawCircle(c, static_cast<float>(dst.left), static_cast<float>(dst.top), 9); }}};
    return draws[random.Below(onSurface ? 16 : 10)];
}

constexpr int width = 40, height = 31, margin = 90;  // margin: around the canvas that shows all of a draw
constexpr RECT all{0, 0, width, height};

// Device pixels.
RECT ClipByChance(zorvic::Random& random) {
    const int left = random.Below(30) - 5, top = random.Below(25) - 5;
    return {left, top, left + random.Below(45), top + random.Below(40)};
}

void SetOrigins(const Target& target, POINT viewport, POINT window, bool byHost) {
    if (byHost) {
        SetViewportOrgEx(target.HostDc(), viewport.x, viewport.y, nullptr);
        SetWindowOrgEx(target.HostDc(), window.x, window.y, nullptr);
    } else {
        SetViewportOrg(target.Get(), viewport.x, viewport.y, nullptr);
        SetWindowOrg(target.Get(), window.x, window.y, nullptr);
    }
}

// What a draw shows around an area when nothing clips it.
Snapshot ShownWithoutClip(const RandomDraw& draw, const Snapshot& before, POINT viewport, POINT window, DWORD filter) {
    const OwnedCanvas whole = MakeCanvas(
        width + 2 * margin, height + 2 * margin,
        [&](int x, int y) { return Inside(all, x - margin, y - margin) ? before(x - margin, y - margin) : 0xFF000000; },
        filter);
    SetViewportOrg(whole.get(), viewport.x + margin, viewport.y + margin, nullptr);
    SetWindowOrg(whole.get(), window.x, window.y, nullptr);
    EXPECT_EQ(draw.call(whole.get()), 1) << draw.name;
    return Snapshot(whole.get());
}

}  // namespace

TEST(Draws, AreCutByTheClipAndMovedByTheOriginsOnEveryCanvas) {
    const DrawSources sources;
    zorvic::Random random(1);
    for (const CanvasKind& kind : canvasKinds)
        for (int round = 0; round < 300; ++round) {
            const Target target(kind, width, height);
            const bool surface = target.HostDc() == nullptr;
            const RandomDraw draw = NextDraw(sources, random, surface);
            const DWORD filter = random.Below(2) ? ZORVIC_OP_SOURCE_OVER : ZORVIC_OP_COPY;
            const POINT viewport{random.Below(30) - 9, random.Below(30) - 9},
                window{random.Below(20) - 9, random.Below(20) - 9};
            const RECT clip = ClipByChance(random), second = ClipByChance(random);
            const bool region = !surface && random.Below(2);  // of both

            const Snapshot before = target.Shown();
            const Snapshot wanted = ShownWithoutClip(draw, before, viewport, window, filter);
            SetCanvasFilter(target.Get(), filter);
            SetCanvasClipRect(target.Get(), &clip);
            if (region) ClipTo(target.HostDc(), {clip, second});
            if (random.Below(2)) GetCanvasHandle(target.Get());
            SetOrigins(target, viewport, window, !surface && random.Below(2));
            EXPECT_EQ(draw.call(target.Get()), 1) << draw.name;

            RECT device = draw.unclipped, common{};
            OffsetRect(&device, viewport.x - window.x, viewport.y - window.y);
            const bool inside = IntersectRect(&common, &device, &all) && common == device;
            const auto visible = [&](int x, int y) {
                if (surface && !IsRectEmpty(&draw.unclipped)) return inside;
                return Inside(clip, x, y) || (region && Inside(second, x, y));
            };
            ASSERT_TRUE(target.Keeps([&](int x, int y) {
                return visible(x, y) ? wanted(x + margin, y + margin) : before(x, y);
            })) << kind.name
                << ", " << draw.name << ", round " << round;
        }
}

// In all directions and, where the source lies half outside the clip of a device context, with one of both locked apart.
TEST(Draws, OntoTheirOwnCanvasAreAsFromACopy) {
    const struct {
        const char* name;
        bool onSurface;
        void (*call)(HGCANVAS canvas, const RECT& dst, HGCANVAS source, const RECT& src);
    } draws[] = {
        {"mix", false,
         [](HGCANVAS c, const RECT& dst, HGCANVAS s, const RECT& src) { MixCanvas(c, &dst, s, &src, 99); }},
        {"blend", true,
         [](HGCANVAS c, const RECT& dst, HGCANVAS s, const RECT& src) { BlendCanvas(c, &dst, s, &src, 200); }},
        {"bitmap", true,
         [](HGCANVAS c, const RECT& dst, HGCANVAS s, const RECT& src) {
             DrawBitmapEx2(c, &dst, GetBitmap(s), &src, ZORVIC_FILTER_BILINEAR, 255);
         }},
        {"texture", true,
         [](HGCANVAS c, const RECT& dst, HGCANVAS s, const RECT& src) {
             const OwnedTexture view(GetTexture(s));
             SetTextureSlice(view.get(), 1, &src);
             DrawTextureEx(c, &dst, view.get(), ZORVIC_FILTER_AREA, 130, 0, 0);
         }},
        {"modulation", true,
         [](HGCANVAS c, const RECT& dst, HGCANVAS s, const RECT& src) {
             DrawModulation(c, dst.left, dst.top, GetBitmap(s), &src, 0xFF80F0A0);
         }},
    };
    const RECT src{10, 4, 290, 11};  // several runs wide
    for (const CanvasKind& kind : canvasKinds)
        for (const auto& draw : draws)
            for (const DWORD operation : {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER, ZORVIC_OP_DESTINATION_OVER})
                for (int direction = 0; direction < 18; ++direction) {
                    const int dx = direction % 3 - 1, dy = direction / 3 % 3 - 1;
                    RECT dst = src;
                    OffsetRect(&dst, direction < 9 ? dx : 9 * dx, direction < 9 ? dy : 3 * dy);
                    const Target target(kind, 300, 15), copy(kind, 300, 15), wanted(kind, 300, 15);
                    if (draw.onSurface && target.HostDc()) continue;
                    for (const Target* each : {&target, &copy, &wanted}) {
                        SetCanvasFilter(each->Get(), operation);
                        if (direction % 2 && each != &copy)
                            SetCanvasClipRect(each->Get(), target.HostDc() ? &dst : &src);
                    }
                    draw.call(target.Get(), dst, target.Get(), src);
                    draw.call(wanted.Get(), dst, copy.Get(), src);
                    ASSERT_TRUE(target.Keeps(wanted.Shown()))
                        << kind.name << ", " << draw.name << ' ' << operation << " to " << ToText(dst);
                }
}
