// Every export with one of its pointers NULL and all else in order. Handles are refused; so is what a call cannot do
// without, and elsewhere NULL stands for everything or for nothing to be done.
#include <map>
#include <set>
#include <string>
#include <tuple>

#include "support/host.h"

namespace {

using namespace host;

// Arguments of any type with which calls would succeed.
class Valid {
public:
    template <class T>
    T Argument() {
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
    OwnedCanvas canvas{CreateCanvas(8, 8, nullptr)};
    OwnedBitmap bitmap{CreateMemBitmap(8, 8)};
    OwnedTexture texture{CreateTexture(8, 8)};
    alignas(8) BYTE room[256] = {};  // for results; as a record, one of nothing
};

// What a call returns without this argument.
template <class Parameter>
double Wanted(const std::string& name, const std::string& parameter) {
    static const std::set<std::string> optional = {"reference", "previous", "pen",
                                                   "brush",     "bits",     "SetCanvasClipRoundRect corner"};
    // Other calls have nothing to do without a rectangle, or take all.
    static const std::set<std::string> needRect = {"SetTextureSlice",
                                                   "SetCanvasClipRect",
                                                   "SetCanvasClipRoundRect",
                                                   "IntersectCanvasClipRect",
                                                   "DrawTextureTile",
                                                   "DrawTextureTopTile",
                                                   "GdiTransCanvas",
                                                   "FillRectangleEx",
                                                   "FillRoundRectEx",
                                                   "DrawRoundRect",
                                                   "DrawColor",
                                                   "GeoRectangleEx",
                                                   "GeoRoundRect",
                                                   "GeoRoundRectEx",
                                                   "CopyBitmap_IPP"};
    static const std::map<std::string, double> refusals = {{"SetTextureCurSlice", -1},
                                                           {"GetTextureSliceCount", -1},
                                                           {"GetBlendMode", -1},
                                                           {"GetBlendValue", 255},
                                                           {"GetStrokeWidth", 1}};
    if (optional.contains(parameter) || optional.contains(name + ' ' + parameter)) return 1;
    if (std::is_same_v<Parameter, const RECT*>) return needRect.contains(name) ? 0 : 1;
    const auto refusal = refusals.find(name);
    return refusal == refusals.end() ? 0 : refusal->second;
}

template <class Call, class Arguments>
double Result(Call call, const Arguments& arguments) {
    using Value = decltype(std::apply(call, arguments));
    if constexpr (std::is_void_v<Value>) {
        std::apply(call, arguments);
        return 0;
    } else if constexpr (std::is_pointer_v<Value>) {
        return std::apply(call, arguments) != nullptr;
    } else {
        return static_cast<double>(std::apply(call, arguments));
    }
}

template <std::size_t index, class Value, class... Args>
void ExpectWithoutOne(const char* name, Value(ZORVIC_CALL* call)(Args...), const std::vector<const char*>& parameters) {
    using Arguments = std::tuple<Args...>;
    if constexpr (index < sizeof...(Args)) {
        using Parameter = std::tuple_element_t<index, Arguments>;
        if constexpr (std::is_pointer_v<Parameter>) {
            Valid valid;
            Arguments arguments{valid.Argument<Args>()...};
            std::get<index>(arguments) = nullptr;
            EXPECT_EQ(Result(call, arguments), Wanted<Parameter>(name, parameters[index]))
                << name << ' ' << parameters[index];
        }
        ExpectWithoutOne<index + 1>(name, call, parameters);
    }
}

TEST(Exports, TakeOrRefuseNull) {
#define EXPORT(name, function, ...) ExpectWithoutOne<0>(#name, name, {__VA_ARGS__});
#include "every_export.inl"
#undef EXPORT
    EXPECT_EQ(BlurBitmapData(8, 8, 32, nullptr, 32, 3), 1) << "nothing to blur";
}

}  // namespace
