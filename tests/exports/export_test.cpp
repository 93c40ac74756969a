// The DLL as the world sees it: names, aliases, imports, record layouts, and what calls without valid arguments return.
#include <cstddef>

#include "exports/c_host.h"
#include "exports/null_cases.h"
#include "support/host.h"
#include "support/pe_image.h"

namespace {

// A host may have been compiled long ago: these numbers never change.
static_assert(sizeof(void*) != 4 ||
              (sizeof(BitmapLockInfo) == 32 && offsetof(BitmapLockInfo, bmBits) == 20 &&
               offsetof(BitmapLockInfo, colorCount) == 24 && offsetof(BitmapLockInfo, palette) == 28));
static_assert(sizeof(void*) != 8 ||
              (sizeof(BitmapLockInfo) == 48 && offsetof(BitmapLockInfo, bmBits) == 24 &&
               offsetof(BitmapLockInfo, colorCount) == 32 && offsetof(BitmapLockInfo, palette) == 40));
static_assert(offsetof(TextureMode, argument) == 4 && offsetof(TextureMode, margins) == 8);

PeImage Dll() { return PeImage(host::LoadedDll()); }

// In the decorated names of 64-bit programs every pointer has an E more.
std::string NameHere(std::string name) {
    if (sizeof(void*) == 8 && name.starts_with('?'))
        for (const char* pointer : {"PAU", "PBU"})
            for (auto at = name.find(pointer); at != std::string::npos; at = name.find(pointer, at))
                name.insert(at + 1, "E");
    return name;
}

TEST(Exports, AreExactlyTheDocumentedNames) {
    std::set<std::string> wanted;
    for (const NullCase& c : NullCases()) wanted.insert(NameHere(c.name));
    std::set<std::string> got;
    for (const auto& [name, address] : Dll().Exports()) got.insert(name);
    EXPECT_EQ(got, wanted);
    EXPECT_EQ(got.size(), 178U);
}

TEST(Exports, AliasesAreOneFunction) {
    const std::pair<const char*, const char*> aliases[] = {{"DeleteTexture", "DeleteBitmap"},
                                                           {"ReleaseTexture", "DeleteBitmap"},
                                                           {"GetTextureHandle", "GetBitmapHandle"},
                                                           {"LockTextureBits", "LockBitmapBits"},
                                                           {"LockTextureBitsEx", "LockBitmapBitsEx"},
                                                           {"UnlockTextureBits", "UnlockBitmapBits"},
                                                           {"GetTextureFilter", "GetBitmapFilter"},
                                                           {"SetTextureFilter", "SetBitmapFilter"},
                                                           {"CopyTexture", "CopyBitmap"},
                                                           {"GetTextureBitsPixel", "GetBitmapBitsPixel"},
                                                           {"InvertTexture", "InvertBitmap"},
                                                           {"NormalizeTexture", "NormalizeBitmap"},
                                                           {"ShuffleTexture", "ShuffleBitmap"},
                                                           {"ShuffleTextureEx", "ShuffleBitmapEx"},
                                                           {"BlurTexture", "BlurBitmap"}};
    const auto exports = Dll().Exports();
    for (const auto& [alias, name] : aliases) EXPECT_EQ(exports.at(alias), exports.at(name)) << alias;

    std::set<const void*> addresses;
    for (const auto& [name, address] : exports) addresses.insert(address);
    EXPECT_EQ(addresses.size(), exports.size() - std::size(aliases)) << "other names are functions of their own";
}

// Hosts that MSVC compiled ask for decorated names; the import library leads all others, in C or C++, to the same ones.
TEST(Exports, LayoutsAreLinkedByHostsOfEveryKind) {
    Function fromC[layoutCount];
    LayoutsSeenFromC(fromC);
    const auto seen = [](auto* function) { return reinterpret_cast<Function>(function); };
    const std::pair<std::string, Function> layouts[layoutCount] = {{"?DrawTextureCenter@", seen(DrawTextureCenter)},
                                                                   {"?DrawTextureUniform@", seen(DrawTextureUniform)},
                                                                   {"?DrawTextureTile@", seen(DrawTextureTile)},
                                                                   {"?DrawTextureTopTile@", seen(DrawTextureTopTile)},
                                                                   {"?DrawTexture9Grid@", seen(DrawTexture9Grid)}};
    const auto exports = Dll().Exports();
    for (int i = 0; i < layoutCount; ++i) {
        const auto& [name, fromCpp] = layouts[i];
        const auto found = exports.lower_bound(name);
        ASSERT_TRUE(found != exports.end() && found->first.starts_with(name)) << name;
        EXPECT_EQ(reinterpret_cast<const void*>(fromCpp), found->second) << name;
        EXPECT_EQ(fromC[i], fromCpp) << name;
    }
}

TEST(Exports, DependOnTheSystemAndTheVectorBackendOnly) {
    const std::set<std::string> allowed = {"gdi32.dll",  "kernel32.dll", "msimg32.dll",
                                           "msvcrt.dll", "user32.dll",   "vekgraphic.dll"};
    for (const std::string& name : Dll().Imports()) EXPECT_TRUE(allowed.contains(name)) << name;
}

TEST(Exports, RefuseNullHandles) {
    Partners with;
    for (const NullCase& c : NullCases()) {
        const auto place = &c - NullCases().data();
        EXPECT_EQ(c.call(with), c.wanted) << c.name << ", case " << place;
    }
}

TEST(Exports, RefuseNullResultsOfBitmapsAndTextures) {
    const Partners with;
    const HGBITMAP bitmap = with.bitmap.get();
    const HGTEXTURE texture = with.texture.get();
    EXPECT_EQ(GetBitmapSize(bitmap, nullptr), 0);
    EXPECT_EQ(LockBitmapBits(bitmap, nullptr, nullptr), 0);
    EXPECT_EQ(LockBitmapBitsEx(bitmap, nullptr, nullptr), 0);
    EXPECT_EQ(GetBitmapFilter(bitmap, nullptr), 0);
    EXPECT_EQ(GetBitmapBitsPixel(bitmap, nullptr), 0);
    EXPECT_EQ(GetTextureSize(texture, nullptr), 0);
    EXPECT_EQ(SetTextureMode(texture, nullptr), 0);
    EXPECT_EQ(GetTextureMode(texture, nullptr), 0);
    EXPECT_EQ(GetTextureCurSlice(texture, nullptr), 0);
}

}  // namespace
