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
    using Handle = H;
    HandleRef() = default;
    HandleRef(Handle borrowed) : handle(borrowed) {}

    Handle Get() const { return handle; }
    explicit operator bool() const { return handle != nullptr; }
    friend bool operator==(const HandleRef&, const HandleRef&) = default;

protected:
    Handle handle = nullptr;
};

// Owns what a reference names. Moved from, it is empty.
template <class Ref>
class Owned : public Ref {
public:
    using Handle = typename Ref::Handle;
    Owned() = default;
    explicit Owned(Handle owned) : Ref(owned) {}
    Owned(Owned&& other) noexcept : Ref(other.Release()) {}
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
    void Reset(Handle owned = nullptr) {
        if (*this) Ref::Delete(Ref::Get());
        Ref::operator=(Ref(owned));
    }
};

}  // namespace zorvic
