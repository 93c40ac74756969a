// The host's resource manager: which calls it hears, and what it may still ask about a bitmap that goes.
#include "support/recorder.h"

namespace {

using namespace host;

TEST(ResourceManager, HearsOfChangesAndReleasesWhileItIsRegistered) {
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

    bitmap = MakeBitmap(4, 4);
    RegisterD2DResoureMgr(nullptr);
    UnlockBitmapBits(bitmap.get(), 1, 1);
    bitmap.reset();
    EXPECT_EQ(manager.log, "change 7;release;");
}

TEST(ResourceManager, HearsOfEachTextureAndCanvas) {
    OwnedBitmap bitmap = MakeBitmap(4, 4);
    OwnedCanvas canvas(CreateCanvas(4, 4, nullptr));
    const HGBITMAP surface = GetBitmap(canvas.get());
    Recorder manager;
    OwnedTexture texture(BitmapToTexture(bitmap.release())), view(GetTexture(canvas.get()));
    EXPECT_EQ(manager.log, "") << "pixels that move are not released";
    view.reset();
    EXPECT_EQ(manager.log, "release;");
    canvas.reset();
    EXPECT_EQ(manager.log, "release;release;");
    EXPECT_EQ(manager.last, surface);

    const RECT set{1, 2, 3, 4};
    SetTextureSlice(texture.get(), 1, &set);
    const HGTEXTURE handle = texture.get();
    manager.whileReleasing = [=] {
        RECT slice{};
        EXPECT_EQ(GetTextureCurSlice(handle, &slice), 1);
        EXPECT_EQ(slice, set) << "the texture is still whole";
    };
    texture.reset();
    EXPECT_EQ(manager.log, "release;release;release;");
    EXPECT_EQ(manager.last, AsBitmap(handle));
}

}  // namespace
