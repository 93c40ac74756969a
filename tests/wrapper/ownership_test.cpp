// The C++ wrapper's owners and locks: nothing is deleted twice or not at all, conversions use their argument up, locks
// end with their scope.
#include <type_traits>

#include "support/allocations.h"
#include "support/recorder.h"
#include "zorvic/zorvic.hpp"

namespace {

using zorvic::Bitmap;
using zorvic::Canvas;
using zorvic::Gradient;
using zorvic::Path;
using zorvic::PixelLock;
using zorvic::Texture;

template <class T>
concept Converts = requires(T from) {
    zorvic::ToTexture(std::forward<T>(from));
};
static_assert(Converts<Bitmap> && !Converts<Bitmap&> && Converts<Canvas> && !Converts<Canvas&>);
static_assert(!Converts<zorvic::BitmapRef> && !Converts<Texture>, "what is borrowed or a texture is no argument");
static_assert(!std::is_copy_constructible_v<Bitmap> && !std::is_convertible_v<HGBITMAP, Bitmap>);
static_assert(!std::is_convertible_v<zorvic::BitmapRef, zorvic::TextureRef>, "not every bitmap is a texture");
static_assert(std::is_convertible_v<Texture&, zorvic::BitmapRef> && sizeof(Canvas) == sizeof(HGCANVAS));

// Whatever ends twice meets a fence.
template <class Owner>
void EndsOnce(Owner (*make)()) {
    make();  // the backend has what it keeps by then
    const Allocations allocations(true);
    Owner first = make(), second = make();
    ASSERT_TRUE(first && second);
    const auto handle = first.Get();
    {
        Owner moved(std::move(first));
        EXPECT_FALSE(first);
        EXPECT_EQ(moved.Get(), handle);
        first = std::move(moved);
    }
    Owner& self = first;
    first = std::move(self);
    EXPECT_EQ(first.Get(), handle);
    second = std::move(first);
    EXPECT_FALSE(first);
    EXPECT_EQ(second.Get(), handle);
    first.Reset(second.Release());
    EXPECT_FALSE(second);
    EXPECT_EQ(first.Get(), handle);
    first.Reset(make().Release());
    first.Reset();
    EXPECT_FALSE(first);
    EXPECT_EQ(allocations.Outstanding(), "");
}

TEST(WrapperOwners, EndWhatTheyOwnOnce) {
    EndsOnce<Bitmap>([] { return Bitmap::Create(4, 4); });
    EndsOnce<Texture>([] { return Texture::Create(4, 4); });
    EndsOnce<Canvas>([] { return Canvas::CreateSystem(4, 4); });
    EndsOnce<Path>(Path::Create);
    EndsOnce<Gradient>([] { return Gradient::CreateLinear(0, 0, 1, 1); });
    EXPECT_FALSE(Bitmap::Create(0, 4));
}

TEST(WrapperOwners, ConversionsUseTheirArgumentUp) {
    const Allocations allocations(true);
    Bitmap bitmap = Bitmap::Create(5, 3);
    host::Fill(bitmap.Get(), host::Pattern{});
    Canvas canvas = Canvas::Create(5, 3);
    canvas.SetOperation(zorvic::Operation::sourceOver);
    host::Fill(canvas.Surface().Get(), host::Pattern{});
    for (const Texture& texture : {ToTexture(std::move(bitmap)), ToTexture(std::move(canvas))})
        EXPECT_TRUE(host::Shows(texture.Get(), host::Pattern{}));
    EXPECT_FALSE(bitmap || canvas || ToTexture(Canvas()));
    EXPECT_EQ(allocations.Outstanding(), "");
}

TEST(WrapperLocks, GiveRowsOfTheSurfacesPixels) {
    const Bitmap words = Bitmap::Create(7, 5), triples = Bitmap::Create(7, 5, 24), bytes = Bitmap::Create(7, 5, 8, 16);
    for (const Bitmap* bitmap : {&words, &triples, &bytes}) host::Fill(bitmap->Get(), host::Pattern{});
    const RECT area{2, 1, 6, 4};
    const PixelLock all = words.Lock(), part = words.Lock(&area), rgb = triples.Lock(), indexed = bytes.Lock(&area);
    EXPECT_EQ(all.Row(4).size(), 7U);
    EXPECT_EQ(part.Row(2).size(), 4U);
    EXPECT_EQ(part.Row(2).data(), &all.Row(3)[2]);
    EXPECT_EQ(all.Row(3)[5], host::Pattern{}(5, 3));
    EXPECT_EQ(rgb.Row<RGBTriple>(1)[2].green, host::Pattern{}(2, 1) >> 8 & 0xFF);
    EXPECT_EQ(indexed.Row<BYTE>(0)[1], host::Pattern{}(3, 1) & 0xFF);
    EXPECT_EQ(indexed.Palette().size(), 16U);
    EXPECT_TRUE(all.Palette().empty());
    const RECT outside{0, 0, 8, 5};
    const PixelLock refused = words.Lock(&outside);
    EXPECT_FALSE(refused || PixelLock(nullptr));
    for (const auto& row : {all.Row(-1), all.Row(5), part.Row(3), rgb.Row(0), indexed.Row(0), refused.Row(0)})
        EXPECT_TRUE(row.empty());
}

TEST(WrapperLocks, TellOfChangesOnceAtTheirEnd) {
    const Bitmap bitmap = Bitmap::Create(4, 4);
    host::Recorder manager;
    {
        PixelLock first = bitmap.Lock(), lock = bitmap.Lock();
        first.TellChange(6);
        lock.TellChange(7);
        PixelLock moved(std::move(lock));
        EXPECT_FALSE(lock);
        EXPECT_TRUE(lock.Row(0).empty());
        first = std::move(moved);
        EXPECT_EQ(manager.log, "change 6;");
    }
    EXPECT_EQ(manager.log, "change 6;change 7;");
}

}  // namespace
