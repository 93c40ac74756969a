// The DLL as the world sees it: names, aliases, imports and record layouts.
#include <cstddef>

#include "exports/c_host.h"
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

// Hosts that MSVC compiled ask for these by decorated names; the import library leads all others, in C or C++, to the
// same functions.
struct Layout {
    const char* name;
    const char* decorations;
    Function fromCpp;
};
const auto seen = [](auto* function) { return reinterpret_cast<Function>(function); };
const Layout layouts[layoutCount] = {
    {"DrawTextureCenter", "@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE@Z", seen(DrawTextureCenter)},
    {"DrawTextureUniform", "@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE_N@Z", seen(DrawTextureUniform)},
    {"DrawTextureTile", "@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KEKM@Z", seen(DrawTextureTile)},
    {"DrawTextureTopTile", "@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KE@Z", seen(DrawTextureTopTile)},
    {"DrawTexture9Grid", "@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KHEKMN@Z", seen(DrawTexture9Grid)}};

// As the DLL exports it. In the decorated names of 64-bit programs every pointer has an E more.
std::string ExportedName(const std::string& name) {
    for (const Layout& layout : layouts) {
        if (layout.name != name) continue;
        std::string decorated = '?' + name + layout.decorations;
        for (const char* pointer : {"PAU", "PBU"})
            for (auto at = decorated.find(pointer); sizeof(void*) == 8 && at != std::string::npos;
                 at = decorated.find(pointer, at))
                decorated.insert(at + 1, "E");
        return decorated;
    }
    return name;
}

TEST(Exports, AreExactlyTheDocumentedNamesAndAliasesAreOneFunction) {
    const std::pair<std::string, std::string> documented[] = {
#define EXPORT(name, function, ...) {#name, #function},
#include "every_export.inl"
#undef EXPORT
    };
    auto exports = Dll().Exports();
    EXPECT_EQ(exports.size(), 178U);
    std::map<const void*, std::string> functions;
    for (const auto& [name, function] : documented) {
        const void* address = exports[ExportedName(name)];
        EXPECT_NE(address, nullptr) << name;
        EXPECT_EQ(functions.emplace(address, function).first->second, function) << name;
        EXPECT_EQ(address, exports[ExportedName(function)]) << name;
    }
    EXPECT_EQ(exports.size(), 178U) << "names that are not exported";
}

TEST(Exports, LayoutsAreLinkedByHostsOfEveryKind) {
    Function fromC[layoutCount];
    LayoutsSeenFromC(fromC);
    const auto exports = Dll().Exports();
    for (int i = 0; i < layoutCount; ++i) {
        EXPECT_EQ(reinterpret_cast<const void*>(layouts[i].fromCpp), exports.at(ExportedName(layouts[i].name))) << i;
        EXPECT_EQ(fromC[i], layouts[i].fromCpp) << i;
    }
}

TEST(Exports, DependOnTheSystemAndTheVectorBackendOnly) {
    const std::set<std::string> allowed = {"gdi32.dll",  "kernel32.dll", "msimg32.dll",
                                           "msvcrt.dll", "user32.dll",   "vekgraphic.dll"};
    for (const std::string& name : Dll().Imports()) EXPECT_TRUE(allowed.contains(name)) << name;
}

}  // namespace
