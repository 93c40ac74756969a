// The live objects that random calls are made with: surfaces of all depths, canvases of all three kinds, paths,
// gradients, and GDI's objects.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "calls/fence.h"
#include "support/gdi.h"
#include "support/random.h"

namespace calls {

using zorvic::Random;

enum class Kind { bitmap, texture, canvas, path, gradient };

constexpr Kind KindOf(HGBITMAP) { return Kind::bitmap; }
constexpr Kind KindOf(HGTEXTURE) { return Kind::texture; }
constexpr Kind KindOf(HGCANVAS) { return Kind::canvas; }
constexpr Kind KindOf(HGPATH) { return Kind::path; }
constexpr Kind KindOf(HGGRADIENT) { return Kind::gradient; }

template <class Handle>
concept ObjectHandle = requires(Handle handle) {
    KindOf(handle);
};

// A place in the pool.
struct Object {
    Kind kind;
    void* handle = nullptr;  // null: the place is free
    void* lender = nullptr;  // the canvas whose pixels or device context it uses, which it must not outlive
    SIZE size{};             // of its surface, which never changes; 0 x 0 without one
    BYTE bitsPixel = 0;      // turns to 32 when it becomes a DIB section
    HDC dc = nullptr;        // of a canvas: the host's, or its own once it was asked for

    template <ObjectHandle Handle>
    Handle As() const {
        return static_cast<Handle>(handle);
    }
    HGBITMAP Surface() const;
};

class Pool {
public:
    Pool();
    ~Pool();
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    // A live object of a kind; null when there is none.
    Object* Pick(Kind kind, Random& random);
    Object* Find(const void* handle);
    // Takes a new object in. Where all places of its kind are taken, the object in one of them is deleted.
    void Adopt(Object object, Random& random);
    // Gives a surface random pixels and, if it has one of its own, a random palette.
    void Fill(const Object& object, Random& random) const;
    // Frees the place of an object that a call is about to end; what borrows from it is deleted.
    void Release(Object& object);
    // Changes how some surfaces are drawn.
    void ChangeOperations(Random& random);
    HDC PickDc(Random& random);
    // The canvas that such a device context belongs to; null for the host's.
    void* OwnerOf(HDC dc) const;
    HGDIOBJ PickGdiObject(Random& random);
    ResourceManager* Manager() { return &listener; }

    // What is wrong with the objects; empty, nothing.
    std::string Check() const;
    // Of all that can be locked.
    std::vector<std::byte> Pixels() const;
    std::uint64_t Checksum() const;
    // "canvas2", or the address in hexadecimal digits.
    std::string NameOf(const void* handle) const;

    Fences fences;  // for the records and images of a call

private:
    void Delete(Object& object);

    // Looks at the pixels of whatever it hears of.
    class Listener final : public ResourceManager {
        void OnRelease(HGBITMAP bitmap) override;
        void OnChange(HGBITMAP bitmap, DWORD value) override;
    };

    std::vector<Object> objects;
    std::vector<std::string> names;  // of their places
    Listener listener;
    host::GdiBitmap hostBitmaps[2] = {host::GdiBitmap::Dib(48, 40),
                                      host::GdiBitmap::Dib(30, 20, 24, host::GdiBitmap::RowOrder::bottomUp)};
    std::vector<HGDIOBJ> gdiObjects;
    const DWORD* grayRamp = nullptr;
};

// A quick hash that knows the order of the words.
inline std::uint64_t Mixed(std::uint64_t sum, std::uint64_t word) {
    sum = (sum ^ word) * 0x9E3779B97F4A7C15;
    return sum ^ sum >> 29;
}

}  // namespace calls
