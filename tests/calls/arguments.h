// Arguments of one call, made from the types and names of its parameters: mostly valid, partly absurd, and always such
// that a pointer points to what the call may touch.
#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

#include "calls/pool.h"

namespace calls {

// Edge values around the extent of the surface that a rectangle belongs to, in each of the four members.
inline constexpr int edges = 11, edgeRects = edges * edges * edges * edges;
RECT EdgeRect(int number, SIZE surface);

enum class Absurd { anything, numbers, nothing };  // numbers: floating-point ones

// Which arguments are wanted.
struct Wishes {
    Absurd absurd = Absurd::anything;
    int edgeParameter = -1;  // the one that gets the edge rectangle
    int edgeRect = 0;
};

class Arguments {
public:
    Arguments(Pool& objects, std::string_view exportName, Random numbers, const Wishes& wanted = {})
        : pool(objects), callee(exportName), random(numbers), wishes(wanted), text(exportName) {}

    // The argument for the next parameter, which has this name.
    template <class T>
    T Make(std::string_view parameterName) {
        ++parameter;
        name = parameterName;
        text += parameter == 0 ? "(" : ", ";
        const T argument = MakeValue<T>();
        Note(argument);
        if constexpr (ObjectHandle<T>)
            if (Object* const ended = EndsItsObject() ? pool.Find(argument) : nullptr) pool.Release(*ended);
        return argument;
    }

    // Puts new objects into the pool, and notes what else a result says of the objects.
    template <class T>
    void Take(T result) {
        if constexpr (ObjectHandle<T>) {
            if (callee == "GetBitmap") return;
            pool.Adopt({.kind = KindOf(result), .handle = result, .lender = lender, .dc = dc}, random);
            // What was created has undefined pixels.
            if (result && callee.starts_with("Create")) pool.Fill(*pool.Find(result), random);
        } else if constexpr (std::is_same_v<T, HBITMAP>) {
            if (result)
                object->bitsPixel = 32;
            else if (object && object->bitsPixel < 8)  // cannot be locked: its pixels are lost
                object->size = {}, object->bitsPixel = 0;
        } else if constexpr (std::is_same_v<T, HDC>) {
            if (object) object->dc = result;
        } else if constexpr (std::is_same_v<T, HRGN>) {
            DeleteObject(result);
        }
    }

    // "FillSolidRect(canvas0, 0xff000000, {0, 0, 8, 8})"
    std::string Text() const { return text + (parameter < 0 ? "()" : ")"); }
    bool FencesAreIntact() const;
    // Of the host's images, as the call left them.
    std::uint64_t Checksum() const;

private:
    template <class T>
    T MakeValue() {
        if constexpr (ObjectHandle<T>)
            return static_cast<T>(PickHandle(KindOf(T{})));
        else if constexpr (std::is_floating_point_v<T>)
            return static_cast<T>(Number());
        else if constexpr (std::is_integral_v<T>)
            return static_cast<T>(Integer());
        else if constexpr (std::is_same_v<T, HDC>)
            return PickDc();
        else if constexpr (std::is_same_v<T, HPEN> || std::is_same_v<T, HBRUSH>)
            return static_cast<T>(pool.PickGdiObject(random));
        else if constexpr (std::is_same_v<T, HWND>)
            return OneIn(2) ? GetDesktopWindow() : nullptr;
        else if constexpr (std::is_same_v<T, ResourceManager*>)
            return OneIn(2) ? pool.Manager() : nullptr;
        else if constexpr (std::is_same_v<T, void*>)
            return name == "bits" ? BlurredBits() : nullptr;
        else if constexpr (std::is_pointer_v<T>)
            return MakeRecords<std::remove_const_t<std::remove_pointer_t<T>>>();
        else {
            T record;
            Fill(record);
            return record;
        }
    }

    // One, or an array of as many as the call's count says.
    template <class Record>
    Record* MakeRecords() {
        const bool isArray = name == "rects" || name == "points" || name == "pattern";
        if (!isArray && Rarely(24)) return nullptr;
        const int records = isArray ? std::max(Count(), 1) : 1;
        auto* const first = reinterpret_cast<Record*>(Place(static_cast<std::size_t>(records) * sizeof(Record)));
        for (Record* record = first; record < first + records; ++record) Fill(*record);
        return first;
    }

    // What a record holds before the call.
    void Fill(RECT& rect);
    void Fill(POINT& point) { point = {Coordinate(size.cx), Coordinate(size.cy)}; }
    void Fill(BITMAP& image);
    void Fill(BitmapLockInfo& image);
    void Fill(TextureMode& mode);
    void Fill(TextureDrawParams& params);
    void Fill(float& length) { length = static_cast<float>(Between(Rarely(9) ? -1 : 1, 9)); }
    void Fill(auto& record) {
        std::memset(static_cast<void*>(&record), static_cast<int>(random.Word()), sizeof record);
    }

    // Whether to do something absurd.
    bool Rarely(int n) { return OneIn(n) && wishes.absurd == Absurd::anything; }
    bool OneIn(int n) { return random.Below(n) == 0; }
    int Between(int low, int high) { return low + random.Below(high - low + 1); }
    int Absurd();
    int Coordinate(int extent) { return Rarely(32) ? Absurd() : Between(-8, static_cast<int>(extent) + 8); }
    int Extent();
    int Count();
    DWORD OperationWord();
    std::int64_t Integer();
    double Number();
    bool EndsItsObject() const;
    void* PickHandle(Kind kind);
    HDC PickDc();
    void* BlurredBits();
    // Random bytes.
    std::byte* PlaceImage(std::int64_t bytes);
    std::byte* Place(std::size_t bytes) { return pool.fences[places++].Place(bytes); }

    template <class T>
    void Note(const T& argument) {
        if constexpr (std::is_convertible_v<T, const RECT*>)
            text += argument ? host::ToText(*argument) : "NULL";
        else if constexpr (std::is_convertible_v<T, const BITMAP*>)
            NoteImage(argument);
        else if constexpr (std::is_pointer_v<T>)
            text += pool.NameOf(argument);
        else if constexpr (std::is_same_v<T, DWORD>)
            NoteNumber("0x%08lX", argument);
        else if constexpr (std::is_floating_point_v<T>)
            NoteNumber("%g", static_cast<double>(argument));
        else if constexpr (std::is_integral_v<T>)
            text += std::to_string(argument);
    }
    void NoteImage(const BITMAP* image);
    void NoteNumber(const char* format, auto number) {
        char digits[32];
        std::snprintf(digits, sizeof digits, format, number);
        text += digits;
    }

    Pool& pool;
    const std::string_view callee;
    Random random;
    const Wishes wishes;

    int parameter = -1;
    std::string_view name;
    std::size_t places = 0;                 // fences in use
    std::size_t images = 0;                 // a bit for each of them that has pixels
    BITMAP hostImage{};                     // the latest
    int count = -1;                         // elements of the call's array, once that is known
    int width = 0, height = 0, stride = 0;  // as far as they were made
    SIZE size{40, 40};                      // of the surface that was picked last
    Object* object = nullptr;
    void* lender = nullptr;  // of the object that the call may make
    HDC dc = nullptr;        // that it may use
    std::string text;
};

}  // namespace calls
