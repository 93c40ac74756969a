// Drawing on a host's device context: what scaling does, and two locks at once.
#include "canvas/targets.h"

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
