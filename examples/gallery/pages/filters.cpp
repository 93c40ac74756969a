// The sampling filters side by side: a photo much reduced, reduced, enlarged and much enlarged.
#include "pages.h"

#include <cmath>
#include <cstdlib>

namespace {

struct Sampling {
    const wchar_t* name;
    DWORD filter;
    DWORD kernelMode;
};
constexpr Sampling samplings[]{{L"nearest", ZORVIC_FILTER_NEAREST, 1},
                               {L"bilinear", ZORVIC_FILTER_BILINEAR, 1},
                               {L"bicubic, kernel mode 0", ZORVIC_FILTER_BICUBIC, 0},
                               {L"bicubic, kernel mode 1", ZORVIC_FILTER_BICUBIC, 1},
                               {L"area", ZORVIC_FILTER_AREA, 1}};

// Sets the kernel of the bicubic filter for a scope.
class KernelMode {
public:
    explicit KernelMode(DWORD mode) : previous(GetStretchKernelMode()) { SetStretchKernelMode(mode); }
    ~KernelMode() { SetStretchKernelMode(previous); }
    KernelMode(const KernelMode&) = delete;
    KernelMode& operator=(const KernelMode&) = delete;

private:
    DWORD previous;
};

// The middle of the most detailed part of a photo that is shown at 6 x.
POINT FindDetail(HGBITMAP photo) {
    constexpr int width = 36;
    constexpr int height = 32;
    const Pixels pixels(photo);
    const auto contrast = [&](int x, int y) {
        const Color here = Color::From(pixels.At(x, y));
        const Color next = Color::From(pixels.At(x + 1, y + 1));
        return std::abs(here.r - next.r) + std::abs(here.g - next.g) + std::abs(here.b - next.b);
    };
    int most = -1;
    POINT middle{pixels.Width() / 2, pixels.Height() / 2};
    for (int top = 0; top + height < pixels.Height(); top += height / 2)
        for (int left = 0; left + width < pixels.Width(); left += width / 2) {
            int sum = 0;
            for (int y = top; y < top + height; ++y)
                for (int x = left; x < left + width; ++x) sum += contrast(x, y);
            if (sum <= most) continue;
            most = sum;
            middle = {left + width / 2, top + height / 2};
        }
    return middle;
}

// A bitmap at a scale, so placed that a point of it is in the middle of the tile.
RECT Placed(const RECT& tile, HGBITMAP bitmap, double scale, POINT point) {
    const auto scaled = [&](LONG pixels) { return static_cast<int>(std::lround(static_cast<double>(pixels) * scale)); };
    return Box(tile.right / 2 - scaled(point.x), tile.bottom / 2 - scaled(point.y), scaled(SizeOf(bitmap).cx),
               scaled(SizeOf(bitmap).cy));
}

POINT MiddleOf(HGBITMAP bitmap) { return {SizeOf(bitmap).cx / 2, SizeOf(bitmap).cy / 2}; }

void AddScale(Sheet& sheet, HGBITMAP bitmap, double scale, POINT point) {
    for (const Sampling& sampling : samplings)
        sheet.Tile(sampling.name, [&](HGCANVAS canvas) {
            const KernelMode mode(sampling.kernelMode);
            DrawChecks(canvas);
            const RECT place = Placed(AreaOf(canvas), bitmap, scale, point);
            DrawBitmap(canvas, &place, bitmap, sampling.filter);
        });
}

// As AddScale, with every pixel drawn twice as large.
void AddMagnified(Sheet& sheet, HGBITMAP photo, double scale) {
    const SIZE tile{sheet.TileSize().cx / 2, sheet.TileSize().cy / 2};
    for (const Sampling& sampling : samplings)
        sheet.Tile(sampling.name, [&](HGCANVAS canvas) {
            const KernelMode mode(sampling.kernelMode);
            const Canvas small(CreateCanvas(tile.cx, tile.cy, nullptr));
            const RECT place = Placed(AreaOf(small), photo, scale, MiddleOf(photo));
            DrawBitmap(small, &place, photo, sampling.filter);
            const RECT whole = AreaOf(canvas);
            SetCanvasFilter(small, ZORVIC_OP_SOURCE_OVER);
            DrawBitmap(canvas, &whole, GetBitmap(small), ZORVIC_FILTER_NEAREST);
        });
}

}  // namespace

Sheet FiltersPage(const Pictures& pictures) {
    Sheet sheet(L"Filters",
                L"The same draws with every sampling filter. Reduced, only the area filter sees every pixel; "
                L"enlarged, it is bicubic.");
    const HGBITMAP photo = pictures.Photo();
    const POINT detail = FindDetail(photo);
    const int columns = static_cast<int>(std::size(samplings));
    sheet.Section(L"0.1 x, shown with every pixel doubled", columns, 120);
    AddMagnified(sheet, photo, 0.1);
    sheet.Section(L"0.37 x", columns, 190);
    AddScale(sheet, photo, 0.37, MiddleOf(photo));
    sheet.Section(L"1.7 x", columns, 190);
    AddScale(sheet, photo, 1.7, detail);
    sheet.Section(L"6 x", columns, 190);
    AddScale(sheet, photo, 6, detail);

    sheet.Section(L"6 x with edges that fade to transparent: 32 bits, OP_SOURCE_OVER", columns, 190);
    const Bitmap faded = Cover(photo, {34, 30});
    FadeEdges(faded);
    SetBitmapFilter(faded, ZORVIC_OP_SOURCE_OVER);
    AddScale(sheet, faded, 6, MiddleOf(faded));
    return sheet;
}
