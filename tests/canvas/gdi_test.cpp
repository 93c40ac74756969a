// Drawing on device contexts: what scaling does, two locks at once, and clips that GDI refuses.
#include "canvas/targets.h"
#include "support/allocations.h"

using namespace host;

// GDI scales the position; our own arithmetic would have painted (4, 4) to (8, 8) and missed.
TEST(CanvasGdi, PaintsWhereAScaledDeviceContextSaysSo) {
    for (const CanvasKind& kind : canvasKinds) {
        if (kind.create) continue;
        SCOPED_TRACE(kind.name);
        const Target target(kind, 13, 9);
        const Snapshot before = target.Shown();
        SetMapMode(target.HostDc(), MM_ANISOTROPIC);
        SetWindowExtEx(target.HostDc(), 2, 2, nullptr);
        SetViewportExtEx(target.HostDc(), 1, 1, nullptr);
        const RECT rect{4, 4, 8, 8}, painted{2, 2, 6, 6};  // pixels keep their size
        EXPECT_EQ(FillPreMulColorRectEx(target.Get(), 0xFF80A0C0, &rect, ZORVIC_OP_COPY), 1);
        EXPECT_TRUE(target.Keeps([&](int x, int y) { return Inside(painted, x, y) ? 0xFF80A0C0 : before(x, y); }));
    }
}

// Both rectangles of the call are locked at once. One begins in the middle row, which tells nothing of the row order.
TEST(CanvasGdi, OneCanvasMayBeSourceAndDestination) {
    for (const CanvasKind& kind : canvasKinds) {
        SCOPED_TRACE(kind.name);
        const Target target(kind, 20, 15);
        const Snapshot before = target.Shown();
        const RECT src{1, 2, 8, 9}, dst{11, 7, 18, 14};
        EXPECT_EQ(MixCanvas(target.Get(), &dst, target.Get(), &src, 255), 1);
        EXPECT_TRUE(
            target.Keeps([&](int x, int y) { return Inside(dst, x, y) ? before(x - 10, y - 5) : before(x, y); }));
    }
}

// Meanwhile GDI draws nothing, not even a host on the device context that it got from the canvas; then all goes on.
TEST(CanvasGdi, AClipThatGdiRefusesIsTheCanvassAllTheSame) {
    const RECT all{0, 0, 40, 30}, first{4, 3, 30, 20}, second{10, 1, 36, 15};
    constexpr DWORD blue = 0xFF0000FF;
    for (const CanvasKind& kind : canvasKinds)
        for (const auto call : {SetCanvasClipRect, IntersectCanvasClipRect}) {
            SCOPED_TRACE(testing::Message() << kind.name << (call == SetCanvasClipRect ? ", set" : ", intersected"));
            const Target target(kind, 40, 30);
            const HGCANVAS canvas = target.Get();
            const HDC held = GetCanvasHandle(canvas);
            SetViewportOrg(canvas, 1, 2, nullptr);
            SetCanvasClipRect(canvas, &first);
            RECT asked = second, clip{}, rect{-90, -90, 90, 90};
            if (call == IntersectCanvasClipRect) IntersectRect(&asked, &first, &second);
            RECT device = asked;
            OffsetRect(&device, 1, 2);
            const Snapshot before = target.Shown();
            const auto isBlueInside = [&](int x, int y) { return Inside(device, x, y) ? blue : before(x, y); };
            const auto refused = [&](auto run) {
                Allocations memory;
                memory.FailAt(1, Allocations::allLater);
                run();
                EXPECT_TRUE(memory.HasFailed());
            };
            refused([&] {
                EXPECT_EQ(call(canvas, &second), 1);
                EXPECT_EQ(GetCanvasClipRect(canvas, &clip), 1);
                EXPECT_EQ(clip, asked);
                EXPECT_EQ(GetCanvasHandle(canvas), nullptr);
                if (!target.HostDc()) PatBlt(held, -90, -90, 180, 180, WHITENESS);
                GeoRectangle(canvas, &all, nullptr, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
                if (target.HostDc()) MixCanvasWithColor(canvas, &all, blue, 255);  // elsewhere no clip applies
            });
            EXPECT_TRUE(target.Keeps(before));
            if (target.HostDc()) {
                refused([&] { FillPreMulColorRectEx(canvas, blue, &rect, ZORVIC_OP_COPY); });
                EXPECT_TRUE(target.Keeps(before));
            }
            FillPreMulColorRectEx(canvas, blue, &rect, ZORVIC_OP_COPY);
            EXPECT_TRUE(target.Keeps(isBlueInside));
            EXPECT_EQ(GetCanvasHandle(canvas), held);
            PatBlt(held, -90, -90, 180, 180, BLACKNESS);
            EXPECT_TRUE(target.Keeps([&](int x, int y) { return Inside(device, x, y) ? 0 : before(x, y); }));
            GetCanvasClipRect(canvas, &clip);
            EXPECT_EQ(clip, asked);
        }
}
