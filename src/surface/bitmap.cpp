// The bitmap object: making, sharing, locking and converting its pixel store.
#include "surface/bitmap.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "raster/kernel_table.h"
#include "zorvic/zorvic.h"

namespace zorvic {

constinit ResourceManager* RegisteredManager = nullptr;

namespace {

constexpr bool IsExtent(int pixels) { return pixels >= 1 && pixels <= maxExtent; }

// std::make_shared that answers null when memory is short.
template <class Store>
std::shared_ptr<Store> MakeStore() {
    try {
        return std::make_shared<Store>();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace

Bitmap::~Bitmap() { ReleaseStore(); }

void Bitmap::ReleaseStore() {
    if (store && RegisteredManager) {
        const bool former = std::exchange(isHosts, false);
        RegisteredManager->OnRelease(ToHandle(this));
        isHosts = former;
    }
    Forget();
}

bool Bitmap::Create(int width, int height, int bitsPixel, int colorCount, StoreKind newKind) {
    ReleaseStore();
    if (!IsExtent(width) || !IsExtent(height) || bitsPixel < 1 || bitsPixel > 32) return false;

    std::shared_ptr<PixelStore> newStore;
    if (newKind == StoreKind::system)
        newStore = MakeStore<DibPixelStore>();
    else
        newStore = MakeStore<MemoryPixelStore>();
    BITMAP description{};
    description.bmWidth = width;
    description.bmHeight = height;
    description.bmBitsPixel = static_cast<WORD>(bitsPixel);
    const int colors = std::clamp<int>(colorCount, 0, std::numeric_limits<std::uint16_t>::max());
    if (!newStore || !newStore->Create(&description, static_cast<std::uint16_t>(colors))) return false;
    store = std::move(newStore);
    kind = newKind;
    return true;
}

bool Bitmap::Attach(const Bitmap* other, bool borrow) {
    ReleaseStore();
    if (!other || !other->store || other->store->IsEmpty()) return false;
    store = other->store;
    kind = other->kind;
    filter = other->filter;
    ownsStore = !borrow;
    return true;
}

void Bitmap::Detach() { ReleaseStore(); }

void Bitmap::Forget() {
    store.reset();
    ownsStore = true;
    filter = 0;
}

SIZE Bitmap::Size() const {
    if (!store) return {};
    return {static_cast<LONG>(store->GetWidth()), static_cast<LONG>(store->GetHeight())};
}

std::uint8_t Bitmap::BitsPixel() const { return store ? store->GetBitsPixel() : std::uint8_t{0}; }
std::uint16_t Bitmap::ColorCount() const { return store ? store->GetColorCount() : std::uint16_t{0}; }

HBITMAP Bitmap::ToSystem() {
    if (!store) return nullptr;
    if (kind == StoreKind::system) return static_cast<const DibPixelStore&>(*store).Handle();
    if (!ownsStore) return nullptr;

    const auto dib = MakeStore<DibPixelStore>();
    const bool copied = dib && CopyInto(*dib);
    // A canvas keeps its picture. A host's bitmap changes its kind for good and loses pixels that cannot be converted.
    if (!copied && (!dib || !isHosts)) return nullptr;
    store = dib;
    kind = StoreKind::system;
    return dib->Handle();
}

bool Bitmap::CopyInto(DibPixelStore& dib) const {
    const SurfaceLock src(*this);
    if (!src) return false;
    BITMAP description{};
    description.bmWidth = src->bmWidth;
    description.bmHeight = src->bmHeight;
    BitmapLockInfo dst;
    if (!dib.Create(&description, 0) || !dib.LockEx(&dst, nullptr)) return false;
    KernelTable.At(slots::copySameSize, DepthOf(src->bmBitsPixel))(dst, *src);
    return true;
}

void NotifyChange(Bitmap& bitmap, DWORD value) {
    if (RegisteredManager) RegisteredManager->OnChange(ToHandle(&bitmap), value);
}

}  // namespace zorvic
