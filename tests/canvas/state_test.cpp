// Origins and clip against a model: whatever is set in whatever order, before or after the device context is made, what
// is reported, mapped and painted by GDI follows from device pixels.
#include "canvas/targets.h"
#include "support/random.h"

using namespace host;

namespace {

constexpr int canvasWidth = 40, canvasHeight = 30;

RECT Moved(const RECT& rect, LONG dx, LONG dy) {
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}
RECT Common(const RECT& a, const RECT& b) {
    RECT common{};
    IntersectRect(&common, &a, &b);
    return common;
}

struct Model {
    POINT viewport{}, window{};
    RECT clip{0, 0, canvasWidth, canvasHeight};  // surface pixels

    RECT ToDevice(const RECT& rect) const { return Moved(rect, viewport.x - window.x, viewport.y - window.y); }
    RECT ToLogical(const RECT& rect) const { return Moved(rect, window.x - viewport.x, window.y - viewport.y); }
};

// What the canvas tells of itself is the model's.
void ExpectState(HGCANVAS canvas, const Model& model) {
    POINT viewport{}, window{};
    EXPECT_EQ(GetViewportOrg(canvas, &viewport) + GetWindowOrg(canvas, &window), 2);
    EXPECT_EQ(viewport, model.viewport);
    EXPECT_EQ(window, model.window);
    const RECT rect{9, -3, -1, 2};  // nothing is normalised
    RECT device = rect, logical = rect, clip{-1, -1, -1, -1};
    EXPECT_EQ(WindowToDevice(canvas, &device) + DeviceToWindow(canvas, &logical), 2);
    EXPECT_EQ(device, model.ToDevice(rect));
    EXPECT_EQ(logical, model.ToLogical(rect));
    EXPECT_EQ(GetCanvasClipRect(canvas, &clip), 1);
    EXPECT_TRUE(clip == model.ToLogical(model.clip) || (IsRectEmpty(&clip) && IsRectEmpty(&model.clip)))
        << ToText(clip) << " for " << ToText(model.clip);
}

// One call by chance, on both.
void Change(HGCANVAS canvas, Model& model, zorvic::Random& random) {
    const POINT origin{random.Below(30) - 9, random.Below(30) - 9};
    const int left = random.Below(50) - 10, top = random.Below(40) - 10;
    const RECT rect{left, top, left + random.Below(40), top + random.Below(30)}, corner{3, 3, 9, 9};
    const RECT device = Common(model.ToDevice(rect), {0, 0, canvasWidth, canvasHeight});
    POINT previous{-1, -1};
    switch (random.Below(6)) {
        case 0:
            EXPECT_EQ(SetViewportOrg(canvas, origin.x, origin.y, &previous), 1);
            EXPECT_EQ(previous, std::exchange(model.viewport, origin));
            break;
        case 1:
            EXPECT_EQ(SetWindowOrg(canvas, origin.x, origin.y, &previous), 1);
            EXPECT_EQ(previous, std::exchange(model.window, origin));
            break;
        case 2:
            EXPECT_EQ(SetCanvasClipRect(canvas, &rect), 1);
            model.clip = device;
            break;
        case 3:
            EXPECT_EQ(SetCanvasClipRoundRect(canvas, &rect, &corner), 1);  // the corner has no effect
            model.clip = device;
            break;
        case 4:
            EXPECT_EQ(IntersectCanvasClipRect(canvas, &rect), 1);
            model.clip = Common(model.clip, device);
            break;
        default:
            EXPECT_NE(GetCanvasHandle(canvas), nullptr);
    }
}

}  // namespace

TEST(CanvasState, FollowsTheModel) {
    zorvic::Random random(1);
    for (const CanvasKind& kind : canvasKinds)
        for (int round = 0; round < 60; ++round) {
            SCOPED_TRACE(testing::Message() << kind.name << ", round " << round);
            const Target target(kind, canvasWidth, canvasHeight);
            Model model;
            for (int i = 0; i < 8; ++i) {
                Change(target.Get(), model, random);
                ExpectState(target.Get(), model);
            }
            const HDC dc = GetCanvasHandle(target.Get());
            target.Fill(Plain{});
            PatBlt(dc, -1000, -1000, 2000, 2000, WHITENESS);
            EXPECT_TRUE(target.Keeps([&](int x, int y) { return Inside(model.clip, x, y) ? 0xFFFFFFFF : 0; }));
            POINT mapped{0, 0};
            LPtoDP(dc, &mapped, 1);
            EXPECT_EQ(mapped, (POINT{model.viewport.x - model.window.x, model.viewport.y - model.window.y}));
            ASSERT_FALSE(HasFailure());
        }
}
