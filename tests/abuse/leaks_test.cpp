// Long cycles of creating, drawing and deleting leak neither memory nor GDI handles. Handles are told by exhaustion: a
// process has 65536 at most, and every round needs its own.
#include "support/gdi.h"
// After windows.h.
#include <psapi.h>

using namespace host;

namespace {

constexpr int warmUp = 2000;  // heaps and GDI's caches have grown to their size by then
constexpr RECT part{1, 1, 6, 5};
constexpr RECT all{0, 0, 8, 6};

// Bytes in use on all heaps of the process.
std::size_t HeapBytes() {
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    EXPECT_TRUE(count > 0 && count <= 64);
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

std::size_t WorkingSet() {
    PROCESS_MEMORY_COUNTERS counters{};
    EXPECT_TRUE(GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters));
    return counters.WorkingSetSize;
}

// Draws everything that draws on the canvas, on it and from it.
bool Draw(HGCANVAS canvas, HGBITMAP bitmap, HGTEXTURE texture, HGCANVAS other) {
    SetViewportOrg(canvas, 1, 0, nullptr);
    SetCanvasClipRect(canvas, &part);
    return FillSolidRect(canvas, 0x80123456, &all) && DrawBitmap(canvas, &all, bitmap, ZORVIC_FILTER_BICUBIC) &&
           DrawTexture(canvas, &part, texture, ZORVIC_FILTER_BILINEAR) &&
           DrawModulation(canvas, 0, 0, bitmap, nullptr, 0x80FFFFFF) && MixCanvas(canvas, &part, other, &all, 99) &&
           MixCanvasWithColor(canvas, &part, 0xFF112233, 99) && BlendCanvas(canvas, &part, other, &all, 128);
}

struct Sources {
    OwnedBitmap bitmap = MakeBitmap(8, 6, 8, 16);
    OwnedTexture texture{CreateTexture(8, 6)};
    OwnedCanvas canvas{CreateCanvas(8, 6, nullptr)};
    const GdiBitmap dib = GdiBitmap::Dib(8, 6);
    const GdiBitmap dib24 = GdiBitmap::Dib(8, 6, 24);

    Sources() {
        EXPECT_NE(GetCanvasHandle(canvas.get()), nullptr);
        EXPECT_EQ(SetTextureSlice(texture.get(), 1, &part), 1);
    }
    bool Draw(HGCANVAS target) const { return ::Draw(target, bitmap.get(), texture.get(), canvas.get()); }
};

struct Cycle {
    const char* name;
    bool (*round)(const Sources& sources);
    int rounds = 100000;
};

const Cycle cycles[] = {
    {"memory bitmap",
     [](const Sources& sources) {
         const OwnedBitmap bitmap(CreateMemBitmapEx(9, 7, 8, 256));
         return bitmap && CopyBitmap(bitmap.get(), nullptr, sources.bitmap.get(), nullptr);
     }},
    {"converted bitmap",
     [](const Sources&) {
         const OwnedBitmap bitmap(CreateMemBitmapEx(9, 7, 24, 0));
         return bitmap && GetBitmapHandle(bitmap.get());
     }},
    {"system bitmap",
     [](const Sources&) {
         const OwnedBitmap bitmap(CreateSystemBitmap(9, 7));
         return bitmap && GetBitmapHandle(bitmap.get());
     }},
    {"texture with slices",
     [](const Sources& sources) {
         const OwnedTexture texture(CreateTexture(9, 7));
         const RECT slices[] = {all, part, part};
         return texture && SetTextureSlice(texture.get(), 2, slices) == 2 &&
                SetTextureSlice(texture.get(), 3, slices) == 3 &&
                DrawTexture(sources.canvas.get(), &all, texture.get(), 0);
     }},
    {"texture from a bitmap",
     [](const Sources&) {
         const OwnedTexture texture(BitmapToTexture(CreateMemBitmap(9, 7)));
         return texture && GetTextureHandle(texture.get());
     }},
    {"texture of a canvas",
     [](const Sources& sources) {
         const OwnedTexture texture(GetTexture(sources.canvas.get()));
         return texture != nullptr;
     }},
    {"texture from a canvas",
     [](const Sources&) {
         const HGCANVAS canvas = CreateCanvas(9, 7, nullptr);
         if (!GetCanvasHandle(canvas)) return false;
         const OwnedTexture texture(CanvasToTexture(canvas));
         return texture && GetTextureHandle(texture.get());
     }},
    {"memory canvas",
     [](const Sources& sources) {
         const OwnedCanvas canvas(CreateCanvas(9, 7, sources.canvas.get()));
         return canvas && sources.Draw(canvas.get());
     }},
    {"system canvas",
     [](const Sources& sources) {
         const OwnedCanvas canvas(CreateSystemCanvas(9, 7, nullptr));
         return canvas && sources.Draw(canvas.get()) && GetCanvasHandle(canvas.get()) &&
                GdiTransCanvas(sources.dib.Dc(), &all, canvas.get(), &part, 128);
     }},
    {"canvas on a DIB section",
     [](const Sources& sources) {
         const OwnedCanvas canvas(CreateCanvasFromDC(sources.dib.Dc()));
         return canvas && sources.Draw(canvas.get());
     }},
    {"canvas on a DIB section of 24 bits",
     [](const Sources& sources) {
         const OwnedCanvas canvas(CreateCanvasFromDC(sources.dib24.Dc()));
         return canvas && sources.Draw(canvas.get());
     },
     20000},  // a round makes six DIB sections with a device context each
    {"effects and a region",
     [](const Sources& sources) {
         const HGTEXTURE texture = sources.texture.get();
         SetTextureFilter(texture, ZORVIC_OP_SOURCE_OVER);
         const HRGN region = CreateTextureRgn(texture, nullptr);
         return BlurTexture(texture, texture) && LightTexture(texture) && DeleteObject(region);
     }},
    {"refused creations",
     [](const Sources&) {
         return !CreateMemBitmap(0, 1) && !CreateSystemBitmap(1, 40000) && !CreateCanvas(0, 0, nullptr) &&
                !CreateSystemCanvas(-1, 3, nullptr) && !CreateTextureEx(3, 3, 99, 0) && !CreateCanvasFromDC(nullptr);
     }},
};

}  // namespace

TEST(Leaks, LongCyclesOfEveryObjectGrowNothing) {
    const Sources sources;
    for (const Cycle& cycle : cycles) {
        SCOPED_TRACE(cycle.name);
        for (int i = 0; i < warmUp; ++i) ASSERT_TRUE(cycle.round(sources)) << "round " << i;
        const std::size_t heap = HeapBytes();
        const std::size_t workingSet = WorkingSet();
        for (int i = 0; i < cycle.rounds; ++i) ASSERT_TRUE(cycle.round(sources)) << "round " << i;
        const auto rounds = static_cast<std::size_t>(cycle.rounds);
        EXPECT_LT(HeapBytes(), heap + rounds) << "a byte per round";
        EXPECT_LT(WorkingSet(), workingSet + 16 * rounds) << "16 bytes per round";
    }
}
