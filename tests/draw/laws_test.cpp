// What holds for every draw on every kind of canvas: a clip only cuts and origins only move what a canvas without them
// shows, and device contexts of any depth and row order show the same pixels.
#include "draw/random_draw.h"
#include "support/gdi.h"

using namespace host;

namespace {

constexpr int width = 40, height = 31, margin = 90;  // margin: around the canvas that shows all of a draw

using Random = zorvic::Random;
using RowOrder = GdiBitmap::RowOrder;

struct Kind {
    const char* name;
    // A canvas with a surface, or a host's bitmap to make one on.
    HGCANVAS (*create)();
    GdiBitmap (*makeTarget)();
    DWORD kept;  // bits of a pixel that survive
};
const Kind kinds[] = {
    {"memory", [] { return CreateCanvas(width, height, nullptr); }, nullptr, 0xFFFFFFFF},
    {"system", [] { return CreateSystemCanvas(width, height, nullptr); }, nullptr, 0xFFFFFFFF},
    {"32 bits", nullptr, [] { return GdiBitmap::Dib(width, height); }, 0xFFFFFFFF},
    {"32 bits, bottom-up", nullptr, [] { return GdiBitmap::Dib(width, height, 32, RowOrder::bottomUp); }, 0x00FFFFFF},
    {"24 bits", nullptr, [] { return GdiBitmap::Dib(width, height, 24); }, 0x00FFFFFF},
    {"24 bits, bottom-up", nullptr, [] { return GdiBitmap::Dib(width, height, 24, RowOrder::bottomUp); }, 0x00FFFFFF},
    {"16 bits", nullptr, [] { return GdiBitmap::Dib(width, height, 16); }, 0x00F8F8F8},
    {"compatible", nullptr, [] { return GdiBitmap::Compatible(width, height); }, 0x00FFFFFF},
};

// A canvas of any kind, with what its pixels were at first.
class Target {
public:
    explicit Target(const Kind& kind) {
        if (kind.create) {
            canvas.reset(kind.create());
            Fill(canvas.get(), PremultipliedPattern{3});
        } else {
            bitmap.reset(new GdiBitmap(kind.makeTarget()));
            bitmap->Fill(PremultipliedPattern{3});
            canvas.reset(CreateCanvasFromDC(bitmap->Dc()));
        }
    }
    HGCANVAS Get() const { return canvas.get(); }
    HDC HostDc() const { return bitmap ? bitmap->Dc() : nullptr; }
    Snapshot Shown() const { return bitmap ? Snapshot(bitmap->Shown().get()) : Snapshot(canvas.get()); }

private:
    std::unique_ptr<GdiBitmap> bitmap;
    OwnedCanvas canvas;
};

RECT ClipByChance(Random& random) {
    const int left = random.Below(30) - 5, top = random.Below(25) - 5;
    return {left, top, left + random.Below(45), top + random.Below(40)};
}

}  // namespace

TEST(Draws, AreCutByTheClipAndMovedByTheOriginsOnEveryCanvas) {
    const DrawSources sources;
    Random random(1);
    for (const Kind& kind : kinds)
        for (int round = 0; round < 300; ++round) {
            const Target target(kind);
            const bool surface = target.HostDc() == nullptr;
            const RandomDraw draw =
                sources.Next(random, surface ? RandomDraw::Needs::surface : RandomDraw::Needs::anyCanvas);
            const Snapshot before = target.Shown();
            const DWORD filter = random.Below(2) ? ZORVIC_OP_SOURCE_OVER : ZORVIC_OP_COPY;
            const POINT viewport{random.Below(30) - 9, random.Below(30) - 9},
                window{random.Below(20) - 9, random.Below(20) - 9};

            const OwnedCanvas whole(CreateCanvas(width + 2 * margin, height + 2 * margin, nullptr));
            Fill(whole.get(), [&](int x, int y) {
                return Inside({margin, margin, margin + width, margin + height}, x, y) ? before(x - margin, y - margin)
                                                                                       : 0xFF000000;
            });
            SetCanvasFilter(whole.get(), filter);
            SetViewportOrg(whole.get(), viewport.x + margin, viewport.y + margin, nullptr);
            SetWindowOrg(whole.get(), window.x, window.y, nullptr);
            EXPECT_EQ(draw.call(whole.get()), 1) << draw.name;
            const Snapshot wanted(whole.get());

            // Device pixels; a second part makes a region of it.
            const RECT clip = ClipByChance(random), second = ClipByChance(random);
            const bool region = !surface && random.Below(2);
            SetCanvasFilter(target.Get(), filter);
            SetCanvasClipRect(target.Get(), &clip);
            if (region) ClipTo(target.HostDc(), {clip, second});
            if (random.Below(2)) GetCanvasHandle(target.Get());
            if (!surface && random.Below(2)) {
                SetViewportOrgEx(target.HostDc(), viewport.x, viewport.y, nullptr);
                SetWindowOrgEx(target.HostDc(), window.x, window.y, nullptr);
            } else {
                SetViewportOrg(target.Get(), viewport.x, viewport.y, nullptr);
                SetWindowOrg(target.Get(), window.x, window.y, nullptr);
            }
            EXPECT_EQ(draw.call(target.Get()), 1) << draw.name;

            const RECT all{0, 0, width, height};
            RECT device = draw.unclipped, common{};
            OffsetRect(&device, viewport.x - window.x, viewport.y - window.y);
            const bool inside = IntersectRect(&common, &device, &all) && common == device;
            const auto visible = [&](int x, int y) {
                if (surface && !IsRectEmpty(&draw.unclipped)) return inside;
                return Inside(clip, x, y) || (region && Inside(second, x, y));
            };
            const Snapshot shown = target.Shown();
            int different = 0;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    different += ((shown(x, y) ^ (visible(x, y) ? wanted(x + margin, y + margin) : before(x, y))) &
                                  kind.kept) != 0;
            ASSERT_EQ(different, 0) << kind.name << ", " << draw.name << ", round " << round;
        }
}
