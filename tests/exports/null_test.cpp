// Every export with one of its pointers NULL and all else in order. Handles are refused; so is what a call cannot do
// without, and elsewhere NULL stands for everything or for nothing to be done.
#include <string>
#include <tuple>

#include "support/host.h"

namespace {

using namespace host;

// Arguments of any type with which a call would succeed, but for one.
class Arguments {
public:
    explicit Arguments(int missingOne) : missing(missingOne) {}

    template <class T>
    T Next() {
        if (missing-- == 0) return T{};
        if constexpr (std::is_same_v<T, HGCANVAS>) return canvas.get();
        if constexpr (std::is_same_v<T, HGBITMAP>) return bitmap.get();
        if constexpr (std::is_same_v<T, HGTEXTURE>) return texture.get();
        if constexpr (std::is_same_v<T, HDC>) return GetCanvasHandle(canvas.get());
        if constexpr (std::is_same_v<T, DWORD>) return 0xFF102030;
        if constexpr (std::is_pointer_v<T>)
            return reinterpret_cast<T>(room);
        else if constexpr (std::is_arithmetic_v<T>)
            return static_cast<T>(8);
        else
            return T{};
    }

private:
    int missing;
    OwnedCanvas canvas{CreateCanvas(8, 8, nullptr)};
    OwnedBitmap bitmap{CreateMemBitmap(8, 8)};
    OwnedTexture texture{CreateTexture(8, 8)};
    alignas(8) BYTE room[256] = {};  // for results; as a record, one of nothing
};

// Parameters that may be missing; exports with a rectangle that may not, while others take all or have nothing to do;
// and exports that refuse by -1.
constexpr std::string_view optional = " reference previous pen brush bits ";
constexpr std::string_view needRect =
    " SetTextureSlice SetCanvasClipRect SetCanvasClipRoundRect IntersectCanvasClipRect DrawTextureTile "
    "DrawTextureTopTile GdiTransCanvas FillRectangleEx FillRoundRectEx DrawRoundRect DrawColor GeoRectangleEx "
    "GeoRoundRect GeoRoundRectEx CopyBitmap_IPP ";
constexpr std::string_view minusOne = " SetTextureCurSlice GetTextureSliceCount GetBlendMode ";

bool Names(std::string_view words, const std::string& word) { return words.find(' ' + word + ' ') != words.npos; }

// What a call returns without this argument.
double Wanted(const std::string& name, const std::string& parameter, bool isRect) {
    if (Names(optional, parameter) || name + parameter == "SetCanvasClipRoundRectcorner") return 1;
    if (isRect) return Names(needRect, name) ? 0 : 1;
    if (Names(minusOne, name)) return -1;
    return name == "GetBlendValue" ? 255 : name == "GetStrokeWidth" ? 1 : 0;
}

template <class Value, class... Args>
void ExpectWithoutEach(const char* name, Value(ZORVIC_CALL* call)(Args...), const std::vector<const char*>& names) {
    const bool isPointer[] = {std::is_pointer_v<Args>..., false};
    const bool isRect[] = {std::is_same_v<Args, const RECT*>..., false};
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!isPointer[i]) continue;
        Arguments arguments(static_cast<int>(i));
        const std::tuple<Args...> values{arguments.Next<Args>()...};  // in this order
        double result = 0;
        if constexpr (std::is_pointer_v<Value>)
            result = std::apply(call, values) != nullptr;
        else if constexpr (std::is_arithmetic_v<Value>)
            result = static_cast<double>(std::apply(call, values));
        else
            std::apply(call, values);
        EXPECT_EQ(result, Wanted(name, names[i], isRect[i])) << name << ' ' << names[i];
    }
}

TEST(Exports, TakeOrRefuseNull) {
#define EXPORT(name, function, ...) ExpectWithoutEach(#name, name, {__VA_ARGS__});
#include "every_export.inl"
#undef EXPORT
    EXPECT_EQ(BlurBitmapData(8, 8, 32, nullptr, 32, 3), 1) << "nothing to blur";
}

}  // namespace
