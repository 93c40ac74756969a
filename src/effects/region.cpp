// Runs of pixels, gathered into regions.
#include "effects/region.h"

#include <algorithm>
#include <climits>
#include <utility>

#include "effects/pixels/runs.h"
#include "raster/request.h"

namespace zorvic {

namespace {

// Rectangles go to GDI by the batch: one call for all would ask it for a block of any size, one call each is slow.
class RegionBuilder {
public:
    RegionBuilder() { Start(); }
    ~RegionBuilder() {
        if (region) DeleteObject(region);
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

    // The caller owns it. Null when GDI has refused a part.
    HRGN Finish() {
        if (batch.header.nCount > 0) Flush();
        if (refused) return nullptr;
        return region ? std::exchange(region, nullptr) : CreateRectRgn(0, 0, 0, 0);
    }

private:
    static constexpr DWORD batchSize = 2000;

    void Start() { batch.header = {sizeof batch.header, RDH_RECTANGLES, 0, 0, {INT_MAX, INT_MAX, 0, 0}}; }

    void Flush() {
        const HRGN part = ExtCreateRegion(nullptr, sizeof batch, reinterpret_cast<const RGNDATA*>(&batch));
        Start();
        if (!part) refused = true;
        if (!region) {
            region = part;
        } else {
            if (CombineRgn(region, region, part, RGN_OR) == ERROR) refused = true;
            DeleteObject(part);
        }
    }

    HRGN region = nullptr;
    bool refused = false;
    struct {
        RGNDATAHEADER header;
        RECT rects[batchSize];
    } batch;
};

constexpr std::uint32_t transparentBlack = 0;

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
    for (int y = 0; y < height; ++y)
        for (Run run = NextRun(*image, y, 0, transparentBlack); run.first < run.end;
             run = NextRun(*image, y, run.end, transparentBlack))
            region.Add({run.first, y, run.end, y + 1});
    return region.Finish();
}

}  // namespace zorvic
