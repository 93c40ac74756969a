// The watching functions, one for each export.
#include "wrapper/call_spy.h"

#include <map>

#include "support/import_table.h"

namespace {

std::map<const void*, std::string> names;
std::string calls, result, output;

template <class... Values>
std::string Joined(Values... values) {
    std::string text;
    ((text += (text.empty() ? "{" : " ") + ToText(values)), ...);
    return text + '}';
}

template <class Record>
constexpr bool isRecord =
    std::is_same_v<Record, RECT> || std::is_same_v<Record, POINT> || std::is_same_v<Record, SIZE> ||
    std::is_same_v<Record, TextureMode> || std::is_same_v<Record, PathBounds>;

template <class Argument>
std::string ArgumentText(Argument argument) {
    if constexpr (std::is_pointer_v<Argument>) {
        if (argument && !names.contains(argument)) {
            if constexpr (isRecord<std::remove_cv_t<std::remove_pointer_t<Argument>>>) return ToText(*argument);
            return "&";
        }
    }
    return ToText(argument);
}

// Only what is written, and shown, as one value.
template <class Argument>
void ReadOutput(Argument argument) {
    if constexpr (std::is_pointer_v<Argument>) {
        using Written = std::remove_pointer_t<Argument>;
        if constexpr (isRecord<Written> || (std::is_arithmetic_v<Written> && !std::is_const_v<Written>))
            if (argument) output = ToText(*argument);
    }
}

// The function in an export's place.
template <class Function, int export_>
struct Watched;
template <class Value, class... Args, int export_>
struct Watched<Value ZORVIC_CALL(Args...), export_> {
    static inline const char* name;
    static inline Value(ZORVIC_CALL* original)(Args...);

    static Value ZORVIC_CALL Call(Args... args) {
        calls += name;
        ((calls += ' ' + ArgumentText(args)), ...);
        calls += ';';
        if constexpr (std::is_void_v<Value>) {
            original(args...);
        } else {
            const Value value = original(args...);
            if constexpr (std::is_scalar_v<Value>) result = ToText(value);
            output.clear();
            (ReadOutput(args), ...);
            return value;
        }
    }
};

// Leads the entries of one name to the watching function, or back.
template <class Function, int export_>
void Watch(const std::multimap<std::string, void**>& entries, const char* name, bool on) {
    using Here = Watched<Function, export_>;
    Here::name = name;
    for (const auto& [decorated, entry] : entries) {
        if (decorated != name && !decorated.starts_with('?' + std::string(name) + '@')) continue;
        void* const former =
            Redirect(entry, on ? reinterpret_cast<void*>(Here::Call) : reinterpret_cast<void*>(Here::original));
        if (on) Here::original = reinterpret_cast<decltype(Here::original)>(former);
    }
}

void WatchAll(bool on) {
    const auto entries = PeImage(GetModuleHandleW(nullptr)).ImportEntries("zorvic");
#define EXPORT(name, ...) Watch<decltype(name), __LINE__>(entries, #name, on);
#include "every_export.inl"
#undef EXPORT
}

}  // namespace

std::string PointerText(const void* pointer) {
    const auto named = names.find(pointer);
    std::ostringstream text;
    text << pointer;
    return named != names.end() ? named->second : pointer ? text.str() : "null";
}
std::string ToText(const RECT& rect) { return Joined(rect.left, rect.top, rect.right, rect.bottom); }
std::string ToText(const POINT& point) { return Joined(point.x, point.y); }
std::string ToText(const SIZE& size) { return Joined(size.cx, size.cy); }
std::string ToText(const TextureMode& mode) { return Joined(mode.layout, mode.argument, mode.margins); }
std::string ToText(const PathBounds& b) { return Joined(b.left, b.top, b.right, b.bottom); }

CallSpy::CallSpy() { WatchAll(true); }
CallSpy::~CallSpy() {
    WatchAll(false);
    names.clear();
}
void CallSpy::Name(const std::string& words, const std::vector<const void*>& addresses) {
    std::istringstream text(words);
    for (const void* address : addresses) text >> names[address];
}
std::string CallSpy::Calls() { return std::exchange(calls, {}); }
std::string CallSpy::Result() const { return result; }
std::string CallSpy::Output() const { return output; }
