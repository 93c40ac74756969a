// The clip: cut to the surface, fixed in surface pixels, and the same for our drawing and for GDI's.
#include "support/gdi.h"

using namespace host;

namespace {

constexpr RECT everything{-1000, -1000, 1000, 1000};
constexpr DWORD ink = 0xFF102030;

RECT ClipOf(const OwnedCanvas& canvas) {
    RECT clip{-1, -1, -1, -1};
    EXPECT_EQ(GetCanvasClipRect(canvas.get(), &clip), 1);
    return clip;
}

// Canvases of 40 x 30 pixels: without a device context, with one made late, and with one from the start.
struct Kind {
    const char* name;
    HGCANVAS (*create)();
};
const Kind kinds[] = {
    {"memory", [] { return CreateCanvas(40, 30, nullptr); }},
    {"memory with a device context",
     [] {
         const HGCANVAS canvas = CreateCanvas(40, 30, nullptr);
         GetCanvasHandle(canvas);
         return canvas;
     }},
    {"system", [] { return CreateSystemCanvas(40, 30, nullptr); }},
};

testing::AssertionResult PaintsExactly(const OwnedCanvas& canvas, const RECT& device) {
    Fill(canvas.get(), Plain{});
    FillPreMulColorRectEx(canvas.get(), ink, &everything, ZORVIC_OP_COPY);
    return Shows(canvas.get(), [&](int x, int y) { return Inside(device, x, y) ? ink : 0; });
}

}  // namespace

TEST(CanvasClip, IsCutToTheSurface) {
    const struct {
        RECT set, clip;
    } cases[] = {
        {{3, 4, 20, 21}, {3, 4, 20, 21}},
        {{-5, -5, 50, 50}, {0, 0, 40, 30}},
        {{30, -9, 90, 7}, {30, 0, 40, 7}},
        {{40, 0, 50, 10}, {}},
        {{5, 5, 5, 9}, {}},
    };
    for (const Kind& kind : kinds)
        for (const auto& [set, clip] : cases) {
            SCOPED_TRACE(testing::Message() << kind.name << " " << ToText(set));
            const OwnedCanvas canvas(kind.create());
            EXPECT_EQ(ClipOf(canvas), (RECT{0, 0, 40, 30}));
            EXPECT_EQ(SetCanvasClipRect(canvas.get(), &set), 1);
            const RECT got = ClipOf(canvas);
            EXPECT_TRUE(got == clip || (IsRectEmpty(&got) && IsRectEmpty(&clip))) << ToText(got);
            EXPECT_TRUE(PaintsExactly(canvas, clip));

            const OwnedCanvas round(kind.create());
            const RECT corner{3, 3, 9, 9};
            EXPECT_EQ(SetCanvasClipRoundRect(round.get(), &set, &corner), 1);
            EXPECT_TRUE(PaintsExactly(round, clip)) << "the corner has no effect";
            EXPECT_EQ(SetCanvasClipRoundRect(round.get(), &set, nullptr), 1);

            EXPECT_EQ(SetCanvasClipRect(canvas.get(), &everything), 1) << "a new clip replaces the old one";
            EXPECT_EQ(ClipOf(canvas), (RECT{0, 0, 40, 30}));
        }
}

TEST(CanvasClip, StaysWhereItIsWhenTheOriginsMove) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        const OwnedCanvas canvas(kind.create());
        SetViewportOrg(canvas.get(), 5, 6, nullptr);
        const RECT logical{4, 4, 14, 12};
        SetCanvasClipRect(canvas.get(), &logical);
        EXPECT_EQ(ClipOf(canvas), logical);
        const RECT device{9, 10, 19, 18};
        EXPECT_TRUE(PaintsExactly(canvas, device));

        SetViewportOrg(canvas.get(), 0, 1, nullptr);
        EXPECT_EQ(ClipOf(canvas), (RECT{9, 9, 19, 17}));
        EXPECT_TRUE(PaintsExactly(canvas, device));
        SetWindowOrg(canvas.get(), 2, 3, nullptr);
        EXPECT_EQ(ClipOf(canvas), (RECT{11, 12, 21, 20}));
        EXPECT_TRUE(PaintsExactly(canvas, device));
    }
}

TEST(CanvasClip, OnlyShrinksByIntersection) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        const OwnedCanvas canvas(kind.create());
        SetViewportOrg(canvas.get(), 2, 1, nullptr);
        const RECT first{-10, 3, 20, 25};
        EXPECT_EQ(IntersectCanvasClipRect(canvas.get(), &first), 1);
        EXPECT_TRUE(PaintsExactly(canvas, {0, 4, 22, 26}));
        const RECT second{5, -10, 100, 11};
        IntersectCanvasClipRect(canvas.get(), &second);
        EXPECT_EQ(ClipOf(canvas), (RECT{5, 3, 20, 11}));
        EXPECT_TRUE(PaintsExactly(canvas, {7, 4, 22, 12}));
        const RECT apart{30, 20, 35, 25};
        IntersectCanvasClipRect(canvas.get(), &apart);
        EXPECT_TRUE(PaintsExactly(canvas, {}));
        const RECT clip = ClipOf(canvas);
        EXPECT_TRUE(IsRectEmpty(&clip));
    }
}

TEST(CanvasClip, BindsGdiToo) {
    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    SetViewportOrg(canvas.get(), 5, 6, nullptr);
    RECT clip{0, 0, 8, 7};
    SetCanvasClipRect(canvas.get(), &clip);
    const HDC dc = GetCanvasHandle(canvas.get());  // a clip set before, and one set after, it is made
    for (const RECT device : {RECT{5, 6, 13, 13}, RECT{8, 9, 20, 10}}) {
        Fill(canvas.get(), Plain{});
        PatBlt(dc, -100, -100, 200, 200, WHITENESS);
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return Inside(device, x, y) ? 0xFFFFFFFF : 0; }));
        clip = {3, 3, 15, 4};
        SetCanvasClipRect(canvas.get(), &clip);
    }
}

// On a host's device context the clip is that of the device context, also when the host changes it.
TEST(CanvasClip, OfAHostsDeviceContext) {
    const GdiBitmap dib = GdiBitmap::Dib(40, 30);
    SetViewportOrgEx(dib.Dc(), 5, 6, nullptr);
    const OwnedCanvas canvas(CreateCanvasFromDC(dib.Dc()));
    EXPECT_EQ(ClipOf(canvas), (RECT{-5, -6, 35, 24}));
    const auto paintsExactly = [&](const RECT& device) {
        dib.Fill(Plain{});
        FillPreMulColorRectEx(canvas.get(), ink, &everything, ZORVIC_OP_COPY);
        return Shows(dib.Shown().get(), [&](int x, int y) { return Inside(device, x, y) ? ink : 0; });
    };
    EXPECT_TRUE(paintsExactly({0, 0, 40, 30}));
    const RECT set{1, 1, 20, 20};
    EXPECT_EQ(SetCanvasClipRect(canvas.get(), &set), 1);
    EXPECT_EQ(ClipOf(canvas), set);
    EXPECT_TRUE(paintsExactly({6, 7, 25, 26}));
    const RECT cut{10, -5, 90, 11};
    EXPECT_EQ(IntersectCanvasClipRect(canvas.get(), &cut), 1);
    EXPECT_EQ(ClipOf(canvas), (RECT{10, 1, 20, 11}));
    EXPECT_TRUE(paintsExactly({15, 7, 25, 17}));
    SelectClipRgn(dib.Dc(), nullptr);
    EXPECT_TRUE(paintsExactly({0, 0, 40, 30}));
}
