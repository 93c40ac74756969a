// Origins: how rectangles are mapped, that drawing and the device context follow, and which origin is reported back.
#include <climits>

#include "support/gdi.h"

using namespace host;

namespace {

RECT ToDevice(const OwnedCanvas& canvas, RECT rect) {
    EXPECT_EQ(WindowToDevice(canvas.get(), &rect), 1);
    return rect;
}

RECT ToLogical(const OwnedCanvas& canvas, RECT rect) {
    EXPECT_EQ(DeviceToWindow(canvas.get(), &rect), 1);
    return rect;
}

// Writing outside a surface damages the next block.
bool HeapsAreWhole() {
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    bool whole = count > 0 && count <= 64;
    for (DWORD i = 0; whole && i < count; ++i) whole = HeapValidate(heaps[i], 0, nullptr) != 0;
    return whole;
}

}  // namespace

TEST(CanvasCoordinates, MapByBothOrigins) {
    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    EXPECT_EQ(SetViewportOrg(canvas.get(), 10, 20, nullptr), 1);
    EXPECT_EQ(SetWindowOrg(canvas.get(), 3, 4, nullptr), 1);
    EXPECT_EQ(ToDevice(canvas, {0, 0, 5, 5}), (RECT{7, 16, 12, 21}));
    EXPECT_EQ(ToLogical(canvas, {7, 16, 12, 21}), (RECT{0, 0, 5, 5}));
    EXPECT_EQ(ToDevice(canvas, {9, -3, -1, 2}), (RECT{16, 13, 6, 18})) << "nothing is normalised";
}

TEST(CanvasCoordinates, ReportTheOriginBefore) {
    for (const bool withDc : {false, true}) {
        SCOPED_TRACE(withDc ? "device context" : "no device context");
        const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
        if (withDc) GetCanvasHandle(canvas.get());
        for (const auto set : {SetViewportOrg, SetWindowOrg}) {
            const auto get = set == SetViewportOrg ? GetViewportOrg : GetWindowOrg;
            POINT previous{-1, -1};
            POINT now{-1, -1};
            EXPECT_EQ(set(canvas.get(), 5, -6, &previous), 1);
            EXPECT_TRUE(previous.x == 0 && previous.y == 0);
            EXPECT_EQ(set(canvas.get(), 7, 8, &previous), 1);
            EXPECT_TRUE(previous.x == 5 && previous.y == -6);
            EXPECT_EQ(get(canvas.get(), &now), 1);
            EXPECT_TRUE(now.x == 7 && now.y == 8);
        }
    }
}

TEST(CanvasCoordinates, TheDeviceContextHasTheSameOrigins) {
    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    SetViewportOrg(canvas.get(), 10, 20, nullptr);
    SetWindowOrg(canvas.get(), 3, 4, nullptr);
    const HDC dc = GetCanvasHandle(canvas.get());
    const auto mapped = [&](POINT point) {
        LPtoDP(dc, &point, 1);
        return point;
    };
    EXPECT_TRUE(mapped({0, 0}).x == 7 && mapped({0, 0}).y == 16) << "origins set before it was made";
    SetViewportOrg(canvas.get(), 1, 2, nullptr);
    SetWindowOrg(canvas.get(), -3, -4, nullptr);
    EXPECT_TRUE(mapped({0, 0}).x == 4 && mapped({0, 0}).y == 6) << "origins set afterwards";

    SetViewportOrgEx(dc, 11, 12, nullptr);
    POINT previous{};
    SetViewportOrg(canvas.get(), 0, 0, &previous);
    EXPECT_TRUE(previous.x == 11 && previous.y == 12) << "the device context's own";
}

TEST(CanvasCoordinates, DrawingFollowsTheOrigins) {
    for (const bool withDc : {false, true}) {
        const OwnedCanvas canvas(CreateCanvas(12, 9, nullptr));
        if (withDc) GetCanvasHandle(canvas.get());
        SetViewportOrg(canvas.get(), 5, 1, nullptr);
        SetWindowOrg(canvas.get(), 2, -3, nullptr);
        const RECT rect{-1, -2, 3, 1};
        FillPreMulColorRectEx(canvas.get(), 0xFF010203, &rect, ZORVIC_OP_COPY);
        const RECT painted{2, 2, 6, 5};
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return Inside(painted, x, y) ? 0xFF010203 : 0; }));
    }
}

// Coordinates that leave 32 bits wrap around: no trap, exact on the way back, and nothing is drawn out of bounds.
TEST(CanvasCoordinates, WrapAroundAndStayInside) {
    constexpr int extremes[] = {INT_MIN, INT_MIN + 3, -1, 0, 7, INT_MAX - 3, INT_MAX};
    const OwnedCanvas canvas(CreateCanvas(12, 9, nullptr));
    const OwnedCanvas other(CreateCanvas(12, 9, nullptr));
    const OwnedBitmap bitmap = MakeBitmap(5, 5, Pattern{});
    for (const int viewport : extremes)
        for (const int window : extremes) {
            SetViewportOrg(canvas.get(), viewport, window, nullptr);
            SetWindowOrg(canvas.get(), window, viewport, nullptr);
            for (const int left : extremes)
                for (const int right : extremes) {
                    const RECT rect{left, right, right, left};
                    const RECT wide{left, left, right, right};
                    EXPECT_EQ(ToLogical(canvas, ToDevice(canvas, rect)), rect);
                    SetCanvasClipRect(canvas.get(), &wide);
                    IntersectCanvasClipRect(canvas.get(), &rect);
                    RECT clip{};
                    GetCanvasClipRect(canvas.get(), &clip);
                    FillPreMulColorRectEx(canvas.get(), 1, &wide, ZORVIC_OP_COPY);
                    MixCanvasWithColor(canvas.get(), &wide, 1, 255);
                    MixCanvas(canvas.get(), &wide, other.get(), &wide, 128);
                    BlendCanvas(canvas.get(), &wide, other.get(), &wide, 128);
                    BlendCanvas(other.get(), &wide, canvas.get(), &wide, 128);
                    DrawModulation(canvas.get(), left, right, bitmap.get(), &wide, 0xFF112233);
                    DrawModulation(canvas.get(), left, right, bitmap.get(), nullptr, 0xFF112233);
                    DrawBitmap(canvas.get(), &wide, bitmap.get(), 0);
                }
        }
    EXPECT_TRUE(HeapsAreWhole());
}
