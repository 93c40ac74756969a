// Resource managers that delete what they hear of, and hosts that delete what is not theirs.
#include "support/allocations.h"
#include "support/recorder.h"

namespace {

using namespace host;

HGTEXTURE MakeTexture(int bitsPixel = 32) {
    const HGTEXTURE texture = CreateTextureEx(9, 7, bitsPixel, 0);
    Fill(texture, Plain{0xFF808080});
    return texture;
}

void DrawRounded(int bitsPixel) {
    const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
    const OwnedTexture texture(MakeTexture(bitsPixel));
    TextureDrawParams params{};
    params.alpha = 255;
    params.ellipse = params.rounded = 1;
    const RECT rect{0, 0, 9, 7};
    DrawTextureEx3(canvas.get(), &rect, texture.get(), &params, nullptr);
    EXPECT_NE(Pixels(canvas.get()).Get(4, 3), 0U);
}

TEST(Reentrancy, ManagersMayDeleteWhatTheyHearOf) {
    const struct {
        const char* name;
        void (*run)();
        const char* log;
    } cases[] = {
        {"DeleteBitmap", [] { DeleteBitmap(CreateMemBitmap(9, 7)); }, "release;"},
        {"DeleteCanvas", [] { DeleteCanvas(CreateSystemCanvas(9, 7, nullptr)); }, "release;"},
        {"UnlockBitmapBits", [] { UnlockBitmapBits(CreateMemBitmap(9, 7), 1, 1); }, "change 1;release;"},
        {"GrayTexture", [] { GrayTexture(MakeTexture()); }, "change 0;release;"},
        {"LightTexture", [] { LightTexture(OwnedTexture(MakeTexture()).get()); }, "release;release;"},
        {"rounded, 32 bits", [] { DrawRounded(32); }, "release;release;release;"},
        {"rounded, 24 bits", [] { DrawRounded(24); }, "release;release;release;"},
    };
    const Allocations fences(true);
    for (const auto& c : cases) {
        Recorder manager;
        manager.whileChanging = [&] { DeleteBitmap(manager.last); };
        manager.whileReleasing = [&] {
            SIZE size;
            DeleteBitmap(manager.last);
            EXPECT_EQ(BitmapToTexture(manager.last), nullptr);
            EXPECT_EQ(GetBitmapSize(manager.last, &size), 1) << "still there";
        };
        c.run();
        EXPECT_EQ(manager.log, c.log) << c.name;
    }
}

TEST(Reentrancy, ACanvasKeepsItsSurface) {
    const Allocations fences(true);
    for (const auto create : {CreateCanvas, CreateSystemCanvas}) {
        const OwnedCanvas canvas(create(9, 7, nullptr));
        DeleteBitmap(GetBitmap(canvas.get()));
        EXPECT_EQ(BitmapToTexture(GetBitmap(canvas.get())), nullptr);
        Fill(canvas.get(), Pattern{});
        // Two views of the pixels are the host's.
        DeleteTexture(BitmapToTexture(AsBitmap(GetTexture(canvas.get()))));
        EXPECT_TRUE(Shows(canvas.get(), Pattern{}));
    }
}

}  // namespace
