// Zorvic for C++20: handles with an owner and without. Every kind of object has a pair of types: a reference (BitmapRef),
// which names an object, is copied freely and has all its functions, and an owner (Bitmap), which is a reference too and
// deletes the object at its end.
#pragma once

#include <utility>

#include "zorvic/zorvic.h"

namespace zorvic {

// A handle that somebody else owns; empty when it is NULL. Every function of an empty one is refused as the export does.
template <class H>
class HandleRef {
public:
    // The handle's type in zorvic.h.
    using Handle = H;
    // Empty.
    HandleRef() = default;
    // Names an object without owning it.
    HandleRef(Handle borrowed) : handle(borrowed) {}

    // The handle for the functions of zorvic.h. It stays where it is.
    Handle Get() const { return handle; }
    // Whether it names an object.
    explicit operator bool() const { return handle != nullptr; }
    // Whether both name the same object.
    friend bool operator==(const HandleRef&, const HandleRef&) = default;

protected:
    // NULL when empty.
    Handle handle = nullptr;
};

// Owns what a reference names. Moved from, it is empty.
template <class Ref>
class Owned : public Ref {
public:
    // The handle's type in zorvic.h.
    using Handle = typename Ref::Handle;
    // Empty.
    Owned() = default;
    // Takes the object over from its former owner.
    explicit Owned(Handle owned) : Ref(owned) {}
    // Takes over what the other owns.
    Owned(Owned&& other) noexcept : Ref(other.Release()) {}
    // Deletes its object and takes over the other's.
    Owned& operator=(Owned&& other) noexcept {
        Reset(other.Release());
        return *this;
    }
    ~Owned() { Reset(); }

    // The caller deletes it from now on.
    [[nodiscard]] Handle Release() {
        const Handle released = Ref::Get();
        Ref::operator=(Ref());
        return released;
    }
    // Deletes its object and takes over another one, or none.
    void Reset(Handle owned = nullptr) {
        if (*this) Ref::Delete(Ref::Get());
        Ref::operator=(Ref(owned));
    }
};

}  // namespace zorvic
