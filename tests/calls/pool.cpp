#include "calls/pool.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "support/pixel_bytes.h"

namespace calls {

namespace {

// In the order of Kind.
const struct {
    const char* name;
    int places;
    void (*end)(void* handle);
} kinds[] = {{"bitmap", 5, [](void* handle) { DeleteBitmap(static_cast<HGBITMAP>(handle)); }},
             {"texture", 5, [](void* handle) { DeleteTexture(static_cast<HGTEXTURE>(handle)); }},
             {"canvas", 4, [](void* handle) { DeleteCanvas(static_cast<HGCANVAS>(handle)); }},
             {"path", 2, [](void* handle) { PathDestroy(static_cast<HGPATH>(handle)); }},
             {"gradient", 2, [](void* handle) { GradientDestroy(static_cast<HGGRADIENT>(handle)); }}};

BitmapLockInfo Locked(HGBITMAP surface) {
    BitmapLockInfo image{};
    if (LockBitmapBitsEx(surface, &image, nullptr)) UnlockBitmapBits(surface, 0, 0);
    return image;
}

std::size_t RowBytes(const BitmapLockInfo& image) {
    return static_cast<std::size_t>(image.bmWidth) * image.bmBitsPixel / 8;
}

std::byte* Row(const BitmapLockInfo& image, int y) { return zorvic::PixelAt(image, 0, y); }

void ReadLastByte(const BitmapLockInfo& image) {
    const volatile std::byte* last = Row(image, image.bmHeight - 1) + RowBytes(image) - 1;
    static_cast<void>(*last);
}

const char* CheckSurface(const Object& object) {
    SIZE size{};
    BYTE bitsPixel = 0;
    if (!GetBitmapSize(object.Surface(), &size) || !GetBitmapBitsPixel(object.Surface(), &bitsPixel))
        return " has no size or depth";
    if (size.cx != object.size.cx || size.cy != object.size.cy) return " has another size";
    if (bitsPixel != object.bitsPixel) return " has another depth";
    const BitmapLockInfo image = Locked(object.Surface());
    if ((image.bmBits != nullptr) != (bitsPixel >= 8)) return " is locked though it should not be, or not locked";
    if (image.bmBits == nullptr) return nullptr;
    if (image.bmWidth != size.cx || image.bmHeight != size.cy || image.bmBitsPixel != bitsPixel)
        return " is locked with another size or depth";
    if (static_cast<std::size_t>(image.bmWidthBytes) < RowBytes(image)) return " has short rows";
    ReadLastByte(image);
    return nullptr;
}

const char* CheckCanvas(const Object& object) {
    const HGCANVAS canvas = object.As<HGCANVAS>();
    SIZE size{};
    POINT viewport{}, window{};
    if (GetCanvasSize(canvas, &size) != (object.size.cx != 0)) return " won or lost its surface";
    if (size.cx != object.size.cx || size.cy != object.size.cy) return " has another size";
    if (!GetViewportOrg(canvas, &viewport) || !GetWindowOrg(canvas, &window)) return " has no origins";
    RECT rect{1, 2, INT_MAX, INT_MIN};
    WindowToDevice(canvas, &rect);
    if (static_cast<DWORD>(rect.left) - 1 != static_cast<DWORD>(viewport.x) - static_cast<DWORD>(window.x))
        return " maps wrongly";
    DeviceToWindow(canvas, &rect);
    if (!(rect == RECT{1, 2, INT_MAX, INT_MIN})) return " does not map back";
    // A device context's clip box need not be right where coordinates overflow, or where others set its origins.
    const auto isFar = [](LONG origin) { return origin < -0x10000 || origin > 0x10000; };
    if (object.dc || isFar(viewport.x) || isFar(viewport.y) || isFar(window.x) || isFar(window.y)) return nullptr;
    GetCanvasClipRect(canvas, &rect);
    WindowToDevice(canvas, &rect);
    if (rect.left < 0 || rect.top < 0 || rect.right > size.cx || rect.bottom > size.cy) return " has a clip outside";
    return nullptr;
}

}  // namespace

HGBITMAP Object::Surface() const {
    return kind == Kind::canvas ? GetBitmap(As<HGCANVAS>()) : static_cast<HGBITMAP>(handle);
}

void Pool::Listener::OnRelease(HGBITMAP bitmap) { OnChange(bitmap, 0); }

void Pool::Listener::OnChange(HGBITMAP bitmap, DWORD) {
    if (const BitmapLockInfo image = Locked(bitmap); image.bmBits) ReadLastByte(image);
}

Pool::Pool() {
    const host::OwnedBitmap gray = host::MakeBitmap(1, 1, 8);
    grayRamp = Locked(gray.get()).palette;
    for (const auto& kind : kinds)
        for (int i = 0; i < kind.places; ++i) {
            objects.push_back({static_cast<Kind>(&kind - kinds)});
            names.push_back(kind.name + std::to_string(i));
        }
    gdiObjects = {nullptr,
                  GetStockObject(BLACK_PEN),
                  GetStockObject(NULL_BRUSH),
                  CreatePen(PS_DASH, 1, RGB(200, 100, 50)),
                  CreatePen(PS_SOLID, 5, RGB(1, 2, 3)),
                  CreateSolidBrush(RGB(90, 80, 70)),
                  reinterpret_cast<HGDIOBJ>(0x1234)};

    Random random(0);
    const auto adopt = [&](auto handle, HDC dc = nullptr) {
        Adopt({.kind = KindOf(handle), .handle = handle, .dc = dc}, random);
        Fill(*Find(handle), random);
    };
    adopt(CreateMemBitmapEx(20, 16, 8, 200));
    adopt(CreateMemBitmapEx(17, 9, 24, 0));
    adopt(CreateMemBitmap(64, 48));
    adopt(CreateSystemBitmap(33, 21));
    adopt(CreateTextureEx(12, 40, 8, 0));
    adopt(CreateTexture(40, 40));
    const RECT slices[] = {{0, 0, 10, 40}, {10, 0, 40, 20}, {-5, 0, 90, 4}};
    SetTextureSlice(Pick(Kind::texture, random)->As<HGTEXTURE>(), 3, slices);
    adopt(CreateCanvas(60, 50, nullptr));
    adopt(CreateCanvas(40, 40, nullptr));
    SetCanvasFilter(Pick(Kind::canvas, random)->As<HGCANVAS>(), ZORVIC_OP_SOURCE_OVER);
    const HGCANVAS onDib = CreateSystemCanvas(50, 30, nullptr);
    adopt(onDib, GetCanvasHandle(onDib));
    adopt(CreateCanvasFromDC(hostBitmaps[0].Dc()), hostBitmaps[0].Dc());
    const HGPATH path = PathCreate();
    PathAddEllipse(path, 5, 5, 30, 20);
    adopt(path);
    const HGGRADIENT gradient = GradientCreateLinear(0, 0, 40, 30);
    GradientAddColorStop(gradient, 0, 0xFF2040FF);
    adopt(gradient);
}

Pool::~Pool() {
    RegisterD2DResoureMgr(nullptr);
    SetStretchKernelMode(ZORVIC_KERNEL_B_SPLINE);
    for (Object& object : objects)
        if (object.handle) Delete(object);
    for (const HGDIOBJ object : gdiObjects) DeleteObject(object);
}

Object* Pool::Pick(Kind kind, Random& random) {
    std::vector<Object*> live;
    for (Object& object : objects)
        if (object.kind == kind && object.handle) live.push_back(&object);
    return live.empty() ? nullptr : live[static_cast<std::size_t>(random.Below(static_cast<int>(live.size())))];
}

Object* Pool::Find(const void* handle) {
    const auto found = std::ranges::find(objects, handle, &Object::handle);
    return handle && found != objects.end() ? &*found : nullptr;
}

void Pool::Adopt(Object object, Random& random) {
    if (!object.handle) return;
    if (object.kind <= Kind::canvas && object.Surface()) {
        GetBitmapSize(object.Surface(), &object.size);
        GetBitmapBitsPixel(object.Surface(), &object.bitsPixel);
    }
    std::vector<Object*> places;
    for (Object& place : objects)
        if (place.kind == object.kind && (!place.handle || place.handle != object.lender)) places.push_back(&place);
    Object* place = places[static_cast<std::size_t>(random.Below(static_cast<int>(places.size())))];
    if (const auto free = std::ranges::find(places, nullptr, &Object::handle); free != places.end()) place = *free;
    if (place->handle) Delete(*place);
    *place = object;
}

void Pool::Fill(const Object& object, Random& random) const {
    if (object.kind > Kind::canvas || !object.Surface()) return;
    const BitmapLockInfo image = Locked(object.Surface());
    if (!image.bmBits) return;
    // A few random rows, repeated: large surfaces must not cost much.
    std::vector<DWORD> pixels(997);
    for (DWORD& pixel : pixels) pixel = random.Pixel();
    for (int y = 0; y < image.bmHeight; ++y)
        for (std::size_t at = 0, n; at < RowBytes(image); at += n) {
            n = std::min(RowBytes(image) - at, pixels.size() * 4);
            std::memcpy(Row(image, y) + at, pixels.data(), n);
        }
    if (image.palette && image.palette != grayRamp) std::copy_n(pixels.data(), image.colorCount, image.palette);
}

void Pool::Release(Object& object) {
    for (Object& other : objects)
        if (other.handle && other.lender == object.handle) Delete(other);
    object = {object.kind};
}

void Pool::Delete(Object& object) {
    const Object ended = object;
    Release(object);
    kinds[static_cast<std::size_t>(ended.kind)].end(ended.handle);
}

void Pool::ChangeOperations(Random& random) {
    for (const Kind kind : {Kind::bitmap, Kind::texture, Kind::canvas})
        if (const Object* object = Pick(kind, random); object && object->Surface()) {
            const DWORD operation = random.Word() % 7 << 24;
            SetBitmapFilter(object->Surface(), operation);
            if (kind == Kind::canvas) SetCanvasFilter(object->As<HGCANVAS>(), operation);
        }
    const TextureMode mode{random.Below(7), random.Word() % 32, {3, 4, 5, 2}};
    if (const Object* texture = Pick(Kind::texture, random)) SetTextureMode(texture->As<HGTEXTURE>(), &mode);
}

HDC Pool::PickDc(Random& random) {
    const Object* canvas = random.Below(2) == 0 ? Pick(Kind::canvas, random) : nullptr;
    return canvas && canvas->dc ? canvas->dc : hostBitmaps[random.Word() % std::size(hostBitmaps)].Dc();
}

void* Pool::OwnerOf(HDC dc) const {
    const auto owner =
        std::ranges::find_if(objects, [&](const Object& object) { return object.dc == dc && object.size.cx != 0; });
    return owner == objects.end() ? nullptr : owner->handle;
}

HGDIOBJ Pool::PickGdiObject(Random& random) { return gdiObjects[random.Word() % gdiObjects.size()]; }

std::string Pool::Check() const {
    for (const Object& object : objects) {
        if (!object.handle) continue;
        const char* wrong = object.kind == Kind::canvas ? CheckCanvas(object) : nullptr;
        if (!wrong && object.kind <= Kind::canvas && object.Surface()) wrong = CheckSurface(object);
        if (wrong) return NameOf(object.handle) + wrong;
    }
    return {};
}

std::vector<std::byte> Pool::Pixels() const {
    std::vector<std::byte> pixels;
    for (const Object& object : objects) {
        if (!object.handle || object.kind > Kind::canvas || !object.Surface()) continue;
        const BitmapLockInfo image = Locked(object.Surface());
        for (int y = 0; image.bmBits && y < image.bmHeight; ++y)
            pixels.insert(pixels.end(), Row(image, y), Row(image, y) + RowBytes(image));
    }
    return pixels;
}

std::uint64_t Pool::Checksum() const {
    std::uint64_t sum = 0;
    for (const std::byte byte : Pixels()) sum = Mixed(sum, std::to_integer<std::uint64_t>(byte));
    return sum;
}

std::string Pool::NameOf(const void* handle) const {
    if (!handle) return "NULL";
    const auto place = std::ranges::find(objects, handle, &Object::handle) - objects.begin();
    if (place < std::ssize(names)) return names[static_cast<std::size_t>(place)];
    std::ostringstream text;
    text << handle;
    return text.str();
}

}  // namespace calls
