// Runs of pixels, gathered into regions.
#include "effects/region.h"

#include <algorithm>
#include <climits>
#include <utility>

#include "effects/pixels/runs.h"
#include "raster/request.h"

namespace zorvic {

namespace {

// GDI joins the rectangles of a call one after another, each at the cost of all before it, and a region to another at the
// cost of both. So each call has only a few, and only regions of as many calls are joined: n rectangles cost n log n.
// What GDI refuses is left out.
class RegionBuilder {
public:
    RegionBuilder() { Start(); }
    ~RegionBuilder() {
        for (const HRGN part : parts)
            if (part) DeleteObject(part);
    }
    RegionBuilder(const RegionBuilder&) = delete;
    RegionBuilder& operator=(const RegionBuilder&) = delete;

    void Add(const RECT& rect) {
        batch.rects[batch.header.nCount++] = rect;
        RECT& bound = batch.header.rcBound;
        bound = {std::min(bound.left, rect.left), std::min(bound.top, rect.top), std::max(bound.right, rect.right),
                 std::max(bound.bottom, rect.bottom)};
        if (batch.header.nCount == batchSize) Flush();
    }

    // The caller owns it. Null when GDI has refused every part.
    HRGN Finish() {
        if (calls == 0 && batch.header.nCount == 0) return CreateRectRgn(0, 0, 0, 0);
        if (batch.header.nCount > 0) Flush();
        HRGN region = nullptr;
        for (HRGN& part : parts) region = Join(std::exchange(part, nullptr), region);
        return region;
    }

private:
    static constexpr DWORD batchSize = 32;

    void Start() { batch.header = {sizeof batch.header, RDH_RECTANGLES, 0, 0, {INT_MAX, INT_MAX, 0, 0}}; }

    void Flush() {
        HRGN region = ExtCreateRegion(nullptr, sizeof batch, reinterpret_cast<const RGNDATA*>(&batch));
        Start();
        // The bits of the number of calls say which parts there are.
        std::size_t i = 0;
        for (; (calls >> i & 1) != 0; ++i) region = Join(std::exchange(parts[i], nullptr), region);
        parts[i] = region;
        ++calls;
    }

    // Either may be null. When GDI refuses, the lower one is lost.
    static HRGN Join(HRGN upper, HRGN lower) {
        if (!upper || !lower) return upper ? upper : lower;
        CombineRgn(upper, upper, lower, RGN_OR);
        DeleteObject(lower);
        return upper;
    }

    std::uint32_t calls = 0;
    HRGN parts[32] = {};  // of 1, 2, 4... calls; what comes later in the image stands before what comes earlier
    struct {
        RGNDATAHEADER header;
        RECT rects[batchSize];
    } batch;
};

constexpr std::uint32_t transparentBlack = 0;

// Calls use(run) for the runs of a row, until it returns false. Returns whether it never did.
template <class Use>
bool EveryRun(const BitmapLockInfo& image, int y, Use use) {
    for (Run run = NextRun(image, y, 0, transparentBlack); run.first < run.end;
         run = NextRun(image, y, run.end, transparentBlack))
        if (!use(run)) return false;
    return true;
}

bool HaveSameRuns(const BitmapLockInfo& image, int y, int otherY) {
    int end = 0;  // of the last run of both
    const auto isInOther = [&](const Run& run) {
        const Run other = NextRun(image, otherY, end, transparentBlack);
        end = run.end;
        return other.first == run.first && other.end == run.end;
    };
    if (!EveryRun(image, y, isInOther)) return false;
    const Run rest = NextRun(image, otherY, end, transparentBlack);
    return rest.first == rest.end;
}

}  // namespace

HRGN MakeRegion(const Bitmap& bitmap, const RECT* area) {
    const SIZE size = bitmap.Size();
    const RECT all{0, 0, size.cx, size.cy};
    const RECT part = area ? *area : all;
    if (part.left < 0 || part.top < 0 || part.right < part.left || part.bottom < part.top || part.right > size.cx ||
        part.bottom > size.cy)
        return nullptr;
    // Without an operation the pixels have no alpha that counts. An empty area cannot be locked, but has a region.
    const int width = part.right - part.left, height = part.bottom - part.top;
    if (OperationOf(bitmap.filter) == Operation::copy || (bitmap.HasStore() && IsRectEmpty(&part)))
        return CreateRectRgn(0, 0, width, height);

    const SurfaceLock image(bitmap, &part);
    if (!image || (image->bmBitsPixel != 8 && image->bmBitsPixel != 24 && image->bmBitsPixel != 32)) return nullptr;
    RegionBuilder region;
    for (int top = 0, bottom = 0; top < height; top = bottom) {
        for (bottom = top + 1; bottom < height && HaveSameRuns(*image, top, bottom); ++bottom) {
        }
        EveryRun(*image, top, [&](const Run& run) {
            region.Add({run.first, top, run.end, bottom});
            return true;
        });
    }
    return region.Finish();
}

}  // namespace zorvic
