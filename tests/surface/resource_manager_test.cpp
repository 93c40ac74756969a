// The host's resource manager: which calls it hears, and what it may still ask about a bitmap that goes.
#include "support/recorder.h"

namespace {

using namespace host;

TEST(ResourceManager, HearsOfChangesAndReleases) {
    OwnedBitmap bitmap = MakeBitmap(4, 4);
    const HGBITMAP handle = bitmap.get();
    Recorder manager;
    UnlockBitmapBits(handle, 7, 0);
    GetBitmapHandle(handle);
    EXPECT_EQ(OwnedBitmap(CreateMemBitmap(0, 1)), nullptr);
    EXPECT_EQ(manager.log, "");
    UnlockBitmapBits(handle, 7, 1);
    EXPECT_EQ(manager.log, "change 7;");
    EXPECT_EQ(manager.last, handle);

    Fill(handle, Pattern{});
    manager.whileReleasing = [&] { EXPECT_TRUE(Shows(handle, Pattern{})) << "the pixels are still there"; };
    bitmap.reset();
    EXPECT_EQ(manager.log, "change 7;release;");
    EXPECT_EQ(manager.last, handle);
}

TEST(ResourceManager, PixelsThatMoveIntoATextureAreNotReleased) {
    OwnedBitmap bitmap = MakeBitmap(4, 4);
    Recorder manager;
    OwnedTexture texture(BitmapToTexture(bitmap.release()));
    EXPECT_EQ(manager.log, "");

    const RECT set{1, 2, 3, 4};
    SetTextureSlice(texture.get(), 1, &set);
    const HGTEXTURE handle = texture.get();
    manager.whileReleasing = [=] {
        RECT slice{};
        EXPECT_EQ(GetTextureCurSlice(handle, &slice), 1);
        EXPECT_EQ(slice, set) << "the texture is still whole";
    };
    texture.reset();
    EXPECT_EQ(manager.log, "release;");
    EXPECT_EQ(manager.last, AsBitmap(handle));
}

TEST(ResourceManager, HearsOfEachViewOfACanvas) {
    Recorder manager;
    OwnedCanvas canvas(CreateCanvas(4, 4, nullptr));
    OwnedTexture view(GetTexture(canvas.get()));
    const HGBITMAP surface = GetBitmap(canvas.get());
    EXPECT_EQ(manager.log, "");
    view.reset();
    EXPECT_EQ(manager.log, "release;");
    canvas.reset();
    EXPECT_EQ(manager.log, "release;release;");
    EXPECT_EQ(manager.last, surface);
}

TEST(ResourceManager, HearsNothingOnceItIsUnregistered) {
    OwnedBitmap bitmap = MakeBitmap(4, 4);
    Recorder manager;
    RegisterD2DResoureMgr(nullptr);
    UnlockBitmapBits(bitmap.get(), 1, 1);
    bitmap.reset();
    EXPECT_EQ(manager.log, "");
}

}  // namespace
