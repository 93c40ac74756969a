// What the library has GDI draw: rectangles that end near the clip, and GdiFlush before it touches the pixels itself.
#include <climits>

#include "support/gdi.h"
#include "support/import_table.h"

using namespace host;

namespace {

// The library's calls of some functions, put down and passed on.
class GdiCalls {
public:
    GdiCalls() {
        calls.clear();
        rectangles.clear();
        for (auto& [name, hook] : hooks) hook = Redirect(Entry(name), hook);
    }
    ~GdiCalls() {
        for (auto& [name, hook] : hooks) hook = Redirect(Entry(name), hook);
    }
    GdiCalls(const GdiCalls&) = delete;
    GdiCalls& operator=(const GdiCalls&) = delete;

    static inline std::string calls;
    static inline std::vector<RECT> rectangles;

private:
    static void** Entry(const char* name) { return PeImage(LoadedDll()).ImportEntries().find(name)->second; }

    static BOOL WINAPI HookOfRectangle(HDC dc, int left, int top, int right, int bottom) {
        calls += "Rectangle ";
        rectangles.push_back({left, top, right, bottom});
        return Rectangle(dc, left, top, right, bottom);
    }
    static BOOL WINAPI HookOfFlush() {
        calls += "GdiFlush ";
        return GdiFlush();
    }
    template <auto function, class... Args>
    static BOOL WINAPI HookOfBlt(HDC dc, Args... args) {
        calls += sizeof...(Args) == 8 ? "BitBlt " : "StretchBlt ";
        return function(dc, args...);
    }

    struct {
        const char* name;
        void* hook;  // or where the entry led before
    } hooks[4] = {
        {"Rectangle", reinterpret_cast<void*>(&HookOfRectangle)},
        {"GdiFlush", reinterpret_cast<void*>(&HookOfFlush)},
        {"BitBlt", reinterpret_cast<void*>(&HookOfBlt<BitBlt, int, int, int, int, HDC, int, int, DWORD>)},
        {"StretchBlt",
         reinterpret_cast<void*>(&HookOfBlt<StretchBlt, int, int, int, int, HDC, int, int, int, int, DWORD>)},
    };
};

struct DashedPen {
    const char* name;
    HPEN (*make)();
    LONG period;  // or a multiple of it
};
template <DWORD style, DWORD width>
HPEN MakePen(std::initializer_list<DWORD> lengths) {
    const LOGBRUSH brush{BS_SOLID, RGB(255, 128, 64), 0};
    return ExtCreatePen(style, width, &brush, static_cast<DWORD>(lengths.size()),
                        lengths.size() ? lengths.begin() : nullptr);
}
const DashedPen pens[] = {
    {"host's dots",
     [] {
         return MakePen<PS_GEOMETRIC | PS_USERSTYLE | PS_ENDCAP_FLAT, 1>({1, 1});
     },
     2},
    {"host's three lengths",
     [] {
         return MakePen<PS_GEOMETRIC | PS_USERSTYLE | PS_ENDCAP_FLAT, 3>({5, 3, 2});
     },
     20},
    {"wide dashes and dots", [] { return MakePen<PS_GEOMETRIC | PS_DASHDOT, 4>({}); }, 24},
    {"cosmetic", [] { return CreatePen(PS_DASHDOTDOT, 1, RGB(255, 128, 64)); }, 24},
    {"solid", [] { return CreatePen(PS_INSIDEFRAME, 7, RGB(255, 128, 64)); }, 1},
};

}  // namespace

TEST(GdiCalls, AreFlushedWhereTheLibraryTouchesThePixelsNext) {
    const OwnedCanvas canvas = MakeCanvas(12, 8, Plain{});
    const GdiBitmap dib = GdiBitmap::Dib(12, 9), compatible = GdiBitmap::Compatible(12, 8);
    const OwnedCanvas onDib(CreateCanvasFromDC(dib.Dc())), onOther(CreateCanvasFromDC(compatible.Dc()));
    const RECT rect{2, 1, 9, 6};
    const GdiCalls hooks;
    const auto expect = [](int, const char* wanted) { EXPECT_EQ(std::exchange(GdiCalls::calls, {}), wanted); };
    expect(GeoRectangle(canvas.get(), &rect, nullptr, nullptr), "Rectangle GdiFlush ");
    expect(GeoRectFocusEx(canvas.get(), &rect, 0xFFFFFFFF), "Rectangle GdiFlush ");
    expect(BlendCanvas(canvas.get(), &rect, onDib.get(), &rect, 255), "StretchBlt GdiFlush ");
    expect(FillSolidRect(onOther.get(), 0x80FFFFFF, &rect), "BitBlt GdiFlush ");
    // A DIB section's own pixels need no copy, not even from its middle row on, which does not tell the order of rows.
    for (const LONG top : {0, 3, 4, 5}) {
        const RECT part{2, top, 9, top + 3};
        expect(FillSolidRect(onDib.get(), 0x80FFFFFF, &part), "");
    }
}

TEST(GdiCalls, CutFarRectanglesAndKeepTheDashesInSight) {
    // Where the edges lie: in sight, or -1 and 1 for far outside.
    constexpr RECT places[] = {{3, 2, 1, 1}, {-1, 2, 30, 1}, {-1, -1, 33, 22}, {3, -1, 1, 22}, {-1, -1, 1, 1}};
    for (const DashedPen& dashed : pens) {
        const HPEN pen = dashed.make();
        ASSERT_NE(pen, nullptr);
        for (const RECT& place : places) {
            SCOPED_TRACE(dashed.name + ToText(place));
            const auto placed = [&](LONG outside) {
                const auto edge = [=](LONG value) { return std::abs(value) == 1 ? value * outside : value; };
                return RECT{edge(place.left), edge(place.top), edge(place.right), edge(place.bottom)};
            };
            const RECT nearRect = placed(211), farRect = placed(211 + (1 << 27) / dashed.period * dashed.period);
            const OwnedCanvas canvas = MakeCanvas(40, 30, Plain{}), wanted = MakeCanvas(40, 30, Plain{});
            const GdiCalls hooks;
            EXPECT_EQ(GeoRectangle(canvas.get(), &farRect, pen, nullptr), 1);
            const RECT cut = GdiCalls::rectangles.back();
            EXPECT_TRUE(cut.left > -400 && cut.top > -400 && cut.right < 400 && cut.bottom < 400) << ToText(cut);
            const HDC dc = GetCanvasHandle(wanted.get());
            const HGDIOBJ former[] = {SelectObject(dc, pen), SelectObject(dc, GetStockObject(NULL_BRUSH))};
            Rectangle(dc, nearRect.left, nearRect.top, nearRect.right, nearRect.bottom);
            GdiFlush();
            for (const HGDIOBJ before : former) SelectObject(dc, before);
            EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get())));
        }
        DeleteObject(pen);
    }
}
