// Resource managers that delete what they hear of, and hosts that delete what is not theirs.
#include "support/allocations.h"
#include "support/host.h"

namespace {

using namespace host;

// Deletes in both ways whatever it is told of, and with a change the objects of the call that makes it.
class Destroyer final : public ResourceManager {
public:
    Destroyer() { RegisterD2DResoureMgr(this); }
    ~Destroyer() { RegisterD2DResoureMgr(nullptr); }
    Destroyer(const Destroyer&) = delete;
    Destroyer& operator=(const Destroyer&) = delete;

    void OnRelease(HGBITMAP bitmap) override {
        ++releases;
        DeleteBitmap(bitmap);
        EXPECT_EQ(BitmapToTexture(bitmap), nullptr);
        SIZE size;
        EXPECT_EQ(GetBitmapSize(bitmap, &size), 1) << "still there";
    }
    void OnChange(HGBITMAP bitmap, DWORD) override {
        ++changes;
        DeleteBitmap(bitmap);
    }

    int releases = 0, changes = 0;
};

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
        int releases, changes;
    } cases[] = {
        {"DeleteBitmap", [] { DeleteBitmap(CreateMemBitmap(9, 7)); }, 1, 0},
        {"DeleteTexture", [] { DeleteTexture(MakeTexture()); }, 1, 0},
        {"DeleteCanvas", [] { DeleteCanvas(CreateSystemCanvas(9, 7, nullptr)); }, 1, 0},
        {"UnlockBitmapBits", [] { EXPECT_EQ(UnlockBitmapBits(CreateMemBitmap(9, 7), 1, 1), 1); }, 1, 1},
        {"GrayTexture", [] { EXPECT_EQ(GrayTexture(MakeTexture()), 1); }, 1, 1},
        {"ColorizeTexture", [] { EXPECT_EQ(ColorizeTexture(MakeTexture(), 1, 0, 0), 1); }, 1, 1},
        {"LightTexture", [] { EXPECT_EQ(LightTexture(OwnedTexture(MakeTexture()).get()), 1); }, 2, 0},
        {"rounded, 32 bits", [] { DrawRounded(32); }, 3, 0},
        {"rounded, 24 bits", [] { DrawRounded(24); }, 3, 0},
    };
    const Allocations fences(true);
    for (const auto& c : cases) {
        Destroyer manager;
        c.run();
        EXPECT_EQ(manager.releases, c.releases) << c.name;
        EXPECT_EQ(manager.changes, c.changes) << c.name;
    }
}

TEST(Reentrancy, ACanvasKeepsItsSurface) {
    const Allocations fences(true);
    for (const auto create : {CreateCanvas, CreateSystemCanvas}) {
        const OwnedCanvas canvas(create(9, 7, nullptr));
        DeleteBitmap(GetBitmap(canvas.get()));
        DeleteTexture(reinterpret_cast<HGTEXTURE>(GetBitmap(canvas.get())));
        EXPECT_EQ(BitmapToTexture(GetBitmap(canvas.get())), nullptr);
        Fill(canvas.get(), Pattern{});
        EXPECT_TRUE(Shows(canvas.get(), Pattern{}));
        // Two views of the pixels are the host's.
        DeleteTexture(BitmapToTexture(AsBitmap(GetTexture(canvas.get()))));
        EXPECT_TRUE(Shows(canvas.get(), Pattern{}));
    }
}

}  // namespace
