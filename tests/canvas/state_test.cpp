// Origins and clip against a model: whatever is set in whatever order, before or after the device context is made, what
// is reported, mapped and painted follows from device pixels.
#include <climits>

#include "canvas/targets.h"
#include "support/random.h"

using namespace host;

namespace {

constexpr int width = 40, height = 30;
constexpr RECT everything{-1000, -1000, 1000, 1000};
constexpr DWORD ink = 0xFF102030;

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
    RECT clip{0, 0, width, height};  // surface pixels

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
    const RECT device = Common(model.ToDevice(rect), {0, 0, width, height});
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
    for (const CanvasKind& kind : CanvasKinds())
        for (int round = 0; round < 60; ++round) {
            SCOPED_TRACE(testing::Message() << kind.name << ", round " << round);
            const Target target(kind, width, height);
            Model model;
            for (int i = 0; i < 8; ++i) {
                Change(target.Get(), model, random);
                ExpectState(target.Get(), model);
            }
            const auto inClip = [&](DWORD pixel) {
                return [=](int x, int y) { return Inside(model.clip, x, y) ? pixel : 0; };
            };
            target.FillPlain(0);
            FillPreMulColorRectEx(target.Get(), ink, &everything, ZORVIC_OP_COPY);
            EXPECT_TRUE(target.Keeps(inClip(ink)));
            // GDI's own drawing as well.
            const HDC dc = GetCanvasHandle(target.Get());
            target.FillPlain(0);
            PatBlt(dc, -1000, -1000, 2000, 2000, WHITENESS);
            EXPECT_TRUE(target.Keeps(inClip(0xFFFFFFFF)));
            POINT mapped{0, 0};
            LPtoDP(dc, &mapped, 1);
            EXPECT_EQ(mapped, (POINT{model.viewport.x - model.window.x, model.viewport.y - model.window.y}));
            ASSERT_FALSE(HasFailure());
        }
}

TEST(CanvasState, BelongsToTheDeviceContextOnceThereIsOne) {
    const GdiBitmap dib = GdiBitmap::Dib(width, height);
    const OwnedCanvas canvas(CreateCanvasFromDC(dib.Dc()));
    SetViewportOrgEx(dib.Dc(), 11, 12, nullptr);
    POINT previous{};
    SetViewportOrg(canvas.get(), 0, 0, &previous);
    EXPECT_EQ(previous, (POINT{11, 12}));
    const RECT clip{1, 1, 20, 20};
    SetCanvasClipRect(canvas.get(), &clip);
    SelectClipRgn(dib.Dc(), nullptr);
    FillPreMulColorRectEx(canvas.get(), ink, &everything, ZORVIC_OP_COPY);
    EXPECT_TRUE(Shows(dib.Shown().get(), Plain{ink}));
}

// Coordinates that leave 32 bits wrap around: no trap, and exact on the way back.
TEST(CanvasState, WrapsAround) {
    constexpr LONG extremes[] = {INT_MIN, INT_MIN + 3, -1, 0, 7, INT_MAX - 3, INT_MAX};
    const OwnedCanvas canvas(CreateCanvas(12, 9, nullptr));
    for (const LONG viewport : extremes)
        for (const LONG window : extremes)
            for (const LONG edge : extremes) {
                SetViewportOrg(canvas.get(), viewport, window, nullptr);
                SetWindowOrg(canvas.get(), window, viewport, nullptr);
                const RECT rect{edge, viewport, window, edge};
                RECT mapped = rect;
                WindowToDevice(canvas.get(), &mapped);
                DeviceToWindow(canvas.get(), &mapped);
                EXPECT_EQ(mapped, rect);
                SetCanvasClipRect(canvas.get(), &rect);
                FillPreMulColorRectEx(canvas.get(), ink, &rect, ZORVIC_OP_COPY);
            }
}
