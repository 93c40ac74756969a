// What holds for every draw on every kind of canvas: a clip only cuts and origins only move what a canvas without them
// shows, and device contexts of any depth and row order show the same pixels.
#include "canvas/targets.h"
#include "draw/random_draw.h"

using namespace host;

namespace {

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
    for (const CanvasKind& kind : CanvasKinds())
        for (int round = 0; round < 300; ++round) {
            const Target target(kind, width, height);
            const bool surface = target.HostDc() == nullptr;
            const RandomDraw draw = sources.Next(random, surface);
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
