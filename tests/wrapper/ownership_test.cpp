// The C++ wrapper's owners and locks: nothing is deleted twice or not at all, conversions use their argument up, locks
// end with their scope.
#include <type_traits>

#include "support/recorder.h"
#include "wrapper/call_spy.h"
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

class WrapperOwners : public SpyingTest {
protected:
    template <class Owner>
    void EndsOnce(const std::string& deleter, Owner first, Owner second);
};
class WrapperLocks : public SpyingTest {};

template <class Owner>
void WrapperOwners::EndsOnce(const std::string& deleter, Owner first, Owner second) {
    ASSERT_TRUE(first && second);
    const auto handle = first.Get();
    spy.Name("first second", {handle, second.Get()});
    spy.Calls();
    {
        Owner moved(std::move(first));
        EXPECT_FALSE(first);
        EXPECT_EQ(moved.Get(), handle);
        first = std::move(moved);
        Owner& self = first;
        first = std::move(self);
        EXPECT_EQ(first.Get(), handle);
    }
    EXPECT_EQ(spy.Calls(), "") << deleter << " while nothing ended";
    second = std::move(first);
    EXPECT_EQ(spy.Calls(), deleter + " second;") << "the former object";
    { const Owner end(second.Release()); }
    EXPECT_EQ(spy.Calls(), deleter + " first;");
    second.Reset();
    first.Reset();
    EXPECT_EQ(spy.Calls(), "") << "nothing was left";
}

TEST_F(WrapperOwners, EndWhatTheyOwnOnce) {
    EndsOnce("DeleteBitmap", Bitmap::Create(4, 4), Bitmap::CreateSystem(3, 3));
    EndsOnce("DeleteTexture", Texture::Create(4, 4), Texture::Create(3, 3));
    EndsOnce("DeleteCanvas", Canvas::Create(4, 4), Canvas::CreateSystem(3, 3));
    EndsOnce("PathDestroy", Path::Create(), Path::Create());
    EndsOnce("GradientDestroy", Gradient::CreateLinear(0, 0, 1, 1), Gradient::CreateRadial(0, 0, 0, 0, 0, 1));
    EXPECT_FALSE(Bitmap::Create(0, 4));
}

TEST_F(WrapperOwners, ConversionsUseTheirArgumentUp) {
    Bitmap bitmap = Bitmap::Create(5, 3);
    host::Fill(bitmap.Get(), host::Pattern{});
    Canvas canvas = Canvas::Create(5, 3);
    canvas.SetOperation(zorvic::Operation::sourceOver);
    host::Fill(canvas.Surface().Get(), host::PremultipliedPattern{});
    spy.Name("bitmap canvas", {bitmap.Get(), canvas.Get()});
    {
        spy.Calls();
        const Texture fromBitmap = ToTexture(std::move(bitmap));
        const Texture fromCanvas = ToTexture(std::move(canvas));
        EXPECT_FALSE(bitmap || canvas);
        EXPECT_EQ(spy.Calls(), "BitmapToTexture bitmap;CanvasToTexture canvas;");
        EXPECT_TRUE(host::Shows(fromBitmap.Get(), host::Pattern{}));
        EXPECT_TRUE(host::Shows(fromCanvas.Get(), host::PremultipliedPattern{}));
    }
    EXPECT_FALSE(ToTexture(Canvas()));
}

TEST_F(WrapperLocks, GiveRowsOfTheSurfacesPixels) {
    const Bitmap words = Bitmap::Create(7, 5), triples = Bitmap::Create(7, 5, 24), bytes = Bitmap::Create(7, 5, 8, 16);
    for (const Bitmap* bitmap : {&words, &triples, &bytes}) host::Fill(bitmap->Get(), host::Pattern{});
    const RECT area{2, 1, 6, 4};
    const PixelLock all = words.Lock(), part = words.Lock(&area), rgb = triples.Lock(), indexed = bytes.Lock(&area);
    EXPECT_EQ(all.Row(4).size(), 7U);
    EXPECT_EQ(part.Row(2).size(), 4U);
    EXPECT_EQ(part.Row(2).data(), &all.Row(3)[2]);
    EXPECT_EQ(all.Row(3)[5], host::Pattern{}(5, 3));
    EXPECT_EQ(rgb.Row<RGBTriple>(1).size(), 7U);
    EXPECT_EQ(rgb.Row<RGBTriple>(1)[2].green, host::Pattern{}(2, 1) >> 8 & 0xFF);
    EXPECT_EQ(indexed.Row<BYTE>(0)[1], host::Pattern{}(3, 1) & 0xFF);
    EXPECT_EQ(indexed.Palette().size(), 16U);
    EXPECT_TRUE(all.Palette().empty());
    for (const auto& row : {all.Row(-1), all.Row(5), part.Row(3), rgb.Row(0), indexed.Row(0)}) EXPECT_TRUE(row.empty());
}

TEST_F(WrapperLocks, EndOnceAndTellOfChanges) {
    const Bitmap bitmap = Bitmap::Create(4, 4);
    spy.Name("bitmap", {bitmap.Get()});
    host::Recorder manager;
    spy.Calls();
    {
        PixelLock quiet = bitmap.Lock();
        PixelLock lock = bitmap.Lock();
        lock.TellChange(7);
        PixelLock moved(std::move(lock));
        EXPECT_FALSE(lock);
        EXPECT_TRUE(lock.Row(0).empty());
        quiet = std::move(moved);
        EXPECT_EQ(manager.log, "") << "the first lock ended, of which nothing was to be told";
    }
    EXPECT_EQ(manager.log, "change 7;");
    EXPECT_EQ(spy.Calls(),
              "LockBitmapBitsEx bitmap & null;LockBitmapBitsEx bitmap & null;UnlockBitmapBits bitmap 0 0;"
              "UnlockBitmapBits bitmap 7 1;");

    const RECT outside{0, 0, 5, 5};
    for (const PixelLock& refused : {bitmap.Lock(&outside), PixelLock(nullptr)}) {
        EXPECT_FALSE(refused);
        EXPECT_TRUE(refused.Row(0).empty());
    }
    EXPECT_EQ(spy.Calls(), "LockBitmapBitsEx bitmap & {0 0 5 5};LockBitmapBitsEx null & null;");
}

}  // namespace
