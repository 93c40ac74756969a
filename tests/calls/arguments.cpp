#include "calls/arguments.h"

#include <bit>
#include <cfloat>
#include <limits>

namespace calls {

namespace {

constexpr std::string_view endings[] = {"DeleteBitmap",    "DeleteTexture", "ReleaseTexture", "BitmapToTexture",
                                        "CanvasToTexture", "DeleteCanvas",  "PathDestroy",    "GradientDestroy"};

// A record without a depth counts as one of 32 bits.
std::int64_t RowBytes(const auto& image) {
    return std::int64_t{image.bmWidth} * (image.bmBitsPixel == 0 ? 32 : image.bmBitsPixel) / 8;
}

void FillWithRubbish(auto& record) { std::memset(&record, 0x6D, sizeof record); }

}  // namespace

RECT EdgeRect(int number, SIZE surface) {
    const auto next = [&](LONG extent) {
        const LONG values[edges] = {INT_MIN,    INT_MIN + 1, -32768,     -1,    0,      1,
                                    extent - 1, extent,      extent + 1, 32767, INT_MAX};
        const LONG value = values[number % edges];
        number /= edges;
        return value;
    };
    return {next(surface.cx), next(surface.cy), next(surface.cx), next(surface.cy)};
}

int Arguments::Absurd() {
    constexpr int values[] = {INT_MIN, INT_MIN + 1, -65536, -32768, -1,          0,       1,
                              32767,   32768,       65535,  65536,  INT_MAX - 1, INT_MAX, 0x40000000};
    return values[random.Word() % std::size(values)];
}

// Mostly small; the pixels of huge ones would take the time of the others.
int Arguments::Extent() {
    if (Rarely(24)) return Absurd();
    if (Rarely(64)) return Between(1000, 32767);
    return OneIn(4) ? Between(1, 5) : Between(1, 64);
}

int Arguments::Count() {
    if (count < 0) count = OneIn(16) ? Between(100, 255) : Between(0, 9);
    return count;
}

DWORD Arguments::OperationWord() {
    return static_cast<DWORD>(Between(0, 7)) << 24 | (OneIn(4) ? random.Pixel() & 0xFFFFFF : 0);
}

std::int64_t Arguments::Integer() {
    if (name == "count") return Count();
    if (name == "width") return width = Extent();
    if (name == "height") return height = width > 1000 ? Between(1, 16) : Extent();
    if (name == "stride") return stride = OneIn(4) ? Between(0, 300) : (width & 0xFF) * 4 + Between(-1, 9);
    if (name == "alpha") return OneIn(2) ? 255 : Between(0, 255);
    if (name == "center") return OneIn(2);
    if (Rarely(24)) return Absurd();
    if (name == "bitsPixel") {
        constexpr int depths[] = {8, 8, 24, 24, 32, 32, 32, 16, 1, 4};
        return depths[random.Word() % std::size(depths)];
    }
    if (name == "colorCount") return OneIn(2) ? 0 : Between(1, 300);
    if (name == "filter") return callee.starts_with("Set") ? OperationWord() : static_cast<DWORD>(Between(0, 6));
    if (name == "mode" && callee.starts_with("Fill")) return OperationWord();
    if (name == "tileScale") return std::bit_cast<std::uint32_t>(static_cast<float>(Number()));
    if (name == "dx") return OneIn(4) ? 1 : 0;
    if (name.size() == 1 || name == "dy") return Coordinate(size.cx);
    if (name == "flags" || name.starts_with("edge")) return random.Below(32);
    if (name.find("olor") != name.npos || name == "value" || name.ends_with("hsl") || name == "argb" || name == "to")
        return random.Pixel();
    return OneIn(3) ? Between(0, 31) : Between(-1, 8);
}

double Arguments::Number() {
    using Limits = std::numeric_limits<float>;
    if (OneIn(24) && wishes.absurd != Absurd::nothing) {
        constexpr float absurd[] = {Limits::quiet_NaN(),
                                    Limits::infinity(),
                                    -Limits::infinity(),
                                    FLT_MAX,
                                    -FLT_MAX,
                                    Limits::denorm_min(),
                                    0,
                                    -1,
                                    1e9F,
                                    32768};
        return static_cast<double>(absurd[random.Word() % std::size(absurd)]);
    }
    if (name.ends_with("cale")) return OneIn(3) ? 1 : Between(1, 16) / 4.0;
    if (name == "hue" || name == "saturation" || name == "lightness" || name == "offset")
        return Between(-40, 40) / 32.0;
    if (name.ends_with("Angle")) return Between(-60, 60) / 8.0;
    return Between(-40, 260) / 4.0;
}

bool Arguments::EndsItsObject() const { return std::ranges::find(endings, callee) != std::end(endings); }

void* Arguments::PickHandle(Kind kind) {
    if (Rarely(32)) return nullptr;
    // What takes a bitmap takes a texture or a canvas's surface as well, unless it is going to end it.
    const int other = kind == Kind::bitmap && !EndsItsObject() ? random.Below(5) : 0;
    object = pool.Pick(other == 1 ? Kind::texture : other == 2 ? Kind::canvas : kind, random);
    if (!object) return nullptr;
    if (object->size.cx != 0) size = object->size;
    if (callee == "GetTexture") lender = object->handle;
    return other == 2 ? object->Surface() : object->handle;
}

HDC Arguments::PickDc() {
    dc = pool.PickDc(random);
    lender = pool.OwnerOf(dc);
    return dc;
}

void Arguments::Fill(RECT& rect) {
    if (parameter == wishes.edgeParameter) {
        rect = EdgeRect(wishes.edgeRect, size);
        return;
    }
    if (name == "margins" && !OneIn(6)) {
        rect = {Between(0, 9), Between(0, 9), Between(0, 9), Between(0, 9)};
        return;
    }
    rect = {0, 0, size.cx, size.cy};
    if (OneIn(4)) return;
    const int outside = name.starts_with("src") || name == "area" || name.starts_with("slice") ? 0 : 8;
    const auto place = [&](LONG extent) {
        return Rarely(48) ? Absurd() : Between(-outside, static_cast<int>(extent) + outside);
    };
    rect = {place(size.cx), place(size.cy), place(size.cx), place(size.cy)};
    if (Rarely(8)) return;  // empty or the wrong way round
    if (rect.left > rect.right) std::swap(rect.left, rect.right);
    if (rect.top > rect.bottom) std::swap(rect.top, rect.bottom);
}

std::byte* Arguments::PlaceImage(std::int64_t bytes) {
    images |= std::size_t{1} << places;
    std::byte* const image = Place(static_cast<std::size_t>(bytes));
    for (std::int64_t i = 0; i < bytes; i += 4) {
        const std::uint32_t pixel = random.Pixel();
        std::memcpy(image + i, &pixel, static_cast<std::size_t>(std::min<std::int64_t>(bytes - i, 4)));
    }
    return image;
}

// The memory ends with the last pixel that the record tells of. Sizes below 1 are the call's affair.
void Arguments::Fill(BITMAP& image) {
    if (name == "out") return FillWithRubbish(image);
    if (images != 0 && OneIn(6)) {
        image = hostImage;
        if (OneIn(2)) image.bmWidth = image.bmHeight = 0;  // tells of bits and step only
        return;
    }
    const auto extent = [&] { return Rarely(24) ? Absurd() : Between(1, 40); };
    const int bitsPixel = OneIn(6) ? 24 : OneIn(12) ? random.Below(40) : 32;
    image = {0, extent(), extent(), 0, 1, static_cast<WORD>(bitsPixel), nullptr};
    const std::int64_t rowBytes = RowBytes(image), capacity = Fence::capacity;
    if (!OneIn(6)) image.bmWidthBytes = static_cast<LONG>((OneIn(8) ? 0 : rowBytes & 0xFFFFF) + Between(0, 9));
    // Two calls take rows without gaps, whatever the step is; for all, negative steps run upwards.
    const bool isPacked = callee.starts_with("ARGB");
    const std::int64_t step = image.bmWidthBytes, distance = isPacked ? std::max(rowBytes, step) : step;
    const std::int64_t most =
        rowBytes > capacity ? -1 : 1 + (capacity - rowBytes) / std::max<std::int64_t>(distance, 1);
    image.bmHeight = static_cast<LONG>(std::min<std::int64_t>(image.bmHeight, most));
    if (image.bmWidth == 0 && image.bmHeight == 0) image.bmHeight = -1;  // the source is not there yet
    const bool hasPixels = image.bmWidth > 0 && image.bmHeight > 0;
    const std::int64_t toLastRow = hasPixels ? distance * (image.bmHeight - 1) : 0;
    std::byte* const first = PlaceImage(hasPixels ? toLastRow + rowBytes : 0);
    image.bmBits = Rarely(32) ? nullptr : first;
    if (OneIn(3) && hasPixels) {
        image.bmWidthBytes = -image.bmWidthBytes;
        if (image.bmBits) image.bmBits = first + step * (image.bmHeight - 1);
    }
    hostImage = image;
}

void Arguments::Fill(BitmapLockInfo& image) {
    if (name == "out") return FillWithRubbish(image);
    const int bitsPixel = OneIn(3) ? 8 : OneIn(3) ? 24 : 32;
    image = {0, Between(-1, 40), Between(-1, 40), 0, 1, static_cast<WORD>(bitsPixel), nullptr, 0, 0, nullptr};
    image.bmWidthBytes = static_cast<LONG>(std::max<std::int64_t>(RowBytes(image), 0)) + Between(0, 9);
    const std::int64_t toLastRow = std::int64_t{image.bmWidthBytes} * (image.bmHeight - 1);
    image.bmBits = PlaceImage(image.bmHeight > 0 ? toLastRow + std::max<std::int64_t>(RowBytes(image), 0) : 0);
    if (bitsPixel != 8) return;
    image.colorCount = static_cast<WORD>(Between(0, 256));
    image.palette = OneIn(8) ? nullptr : reinterpret_cast<DWORD*>(PlaceImage(image.colorCount * std::int64_t{4}));
}

void* Arguments::BlurredBits() {
    const std::int64_t rowBytes = std::clamp<std::int64_t>(std::int64_t{width} * 4, 0, stride);
    const std::int64_t bytes = height > 0 && stride > 0 ? (height - std::int64_t{1}) * stride + rowBytes : 0;
    return Rarely(24) || bytes > std::int64_t{Fence::capacity} ? nullptr : PlaceImage(bytes);
}

void Arguments::Fill(TextureMode& mode) {
    mode = {Between(-1, 7), static_cast<DWORD>(random.Below(32)), {}};
    name = "margins";
    Fill(mode.margins);
}

void Arguments::Fill(TextureDrawParams& params) {
    params = {};
    params.filterMode = static_cast<DWORD>(Between(0, 6));
    params.alpha = static_cast<BYTE>(OneIn(2) ? 255 : Between(0, 255));
    name = "scale";
    params.tileScale = static_cast<float>(Number());
    params.scale = Number();
    name = "radius";
    if (OneIn(2))
        for (float& radius : params.cornerRadii) radius = static_cast<float>(Number());
    params.ellipse = OneIn(4);
    params.rounded = OneIn(4);
}

bool Arguments::FencesAreIntact() const {
    return std::all_of(pool.fences.begin(), pool.fences.begin() + places,
                       [](const Fence& fence) { return fence.IsIntact(); });
}

std::uint64_t Arguments::Checksum() const {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < places; ++i)
        if (images >> i & 1)
            for (const std::byte byte : pool.fences[i].Placed()) sum = Mixed(sum, std::to_integer<std::uint64_t>(byte));
    return sum;
}

void Arguments::NoteImage(const BITMAP* image) {
    if (!image || name == "out") return Note(static_cast<const void*>(image));
    text += "{";
    for (const LONG member : {image->bmWidth, image->bmHeight, image->bmWidthBytes})
        text += std::to_string(member) + ", ";
    text += std::to_string(image->bmBitsPixel) + " bits at " + pool.NameOf(image->bmBits) + "}";
}

}  // namespace calls
