// Writes down the calls that this program makes to zorvic, with their arguments, and lets them through: while a spy
// lives, the entries of the program's import table lead to functions that do so.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/import_table.h"
#include "zorvic/zorvic.hpp"

class CallSpy {
public:
    CallSpy() { WatchAll(true); }
    ~CallSpy() { WatchAll(false); }
    CallSpy(const CallSpy&) = delete;
    CallSpy& operator=(const CallSpy&) = delete;

    // How objects and records are called in the text: as many words as addresses.
    void Name(const std::string& words, const std::vector<const void*>& addresses) {
        std::istringstream text(words);
        for (const void* address : addresses) text >> names[address];
    }
    // The calls since the last question: a name and its arguments each, with a semicolon behind.
    std::string Calls() { return std::exchange(calls, {}); }
    // What the last call returned, and the record or number that it wrote through its last argument.
    std::string Result() const { return result; }
    std::string Output() const { return output; }

    // Objects and records by their name, other records by the words in them, colours in hexadecimal digits.
    template <class Value>
    std::string ToText(const Value& value) const {
        std::ostringstream text;
        if constexpr (isRecord<Value>) {
            for (const LONG word : std::bit_cast<std::array<LONG, sizeof value / sizeof(LONG)>>(value))
                text << (text.tellp() == 0 ? '{' : ' ') << word;
            text << '}';
        } else if constexpr (std::is_pointer_v<Value>) {
            const auto named = names.find(value);
            named != names.end() ? text << named->second : value ? text << value : text << "null";
        } else if constexpr (requires { value.Get(); }) {
            text << ToText(value.Get());
        } else if constexpr (std::is_enum_v<Value>) {
            text << static_cast<int>(value);
        } else if constexpr (std::is_arithmetic_v<Value>) {
            if (std::is_same_v<Value, DWORD>) text << std::hex;
            text << +value;
        }
        return text.str();
    }

private:
    template <class Value>
    static constexpr bool isRecord =
        std::is_same_v<Value, RECT> || std::is_same_v<Value, POINT> || std::is_same_v<Value, SIZE> ||
        std::is_same_v<Value, TextureMode> || std::is_same_v<Value, PathBounds>;

    // The function in an export's place.
    template <class Function, int number>
    struct Watched;
    template <class Value, class... Args, int number>
    struct Watched<Value ZORVIC_CALL(Args...), number> {
        static inline const char* name;
        static inline CallSpy* spy;
        static inline Value(ZORVIC_CALL* original)(Args...);

        static Value ZORVIC_CALL Call(Args... args) {
            spy->calls += name;
            ((spy->calls += ' ' + spy->ArgumentText(args)), ...);
            spy->calls += ';';
            if constexpr (std::is_void_v<Value>) {
                original(args...);
            } else {
                spy->output.clear();
                const Value value = original(args...);
                if constexpr (std::is_scalar_v<Value>) spy->result = spy->ToText(value);
                (spy->ReadOutput(args), ...);
                return value;
            }
        }
    };

    // Names stand for what they name; other records are told by their words, and the rest of what is pointed to by &.
    template <class Argument>
    std::string ArgumentText(Argument argument) const {
        if constexpr (std::is_pointer_v<Argument>)
            if (argument && !names.contains(argument)) {
                if constexpr (isRecord<std::remove_cv_t<std::remove_pointer_t<Argument>>>) return ToText(*argument);
                return "&";
            }
        return ToText(argument);
    }

    template <class Argument>
    void ReadOutput(Argument argument) {
        using Written = std::remove_pointer_t<Argument>;
        if constexpr (std::is_pointer_v<Argument> && !std::is_const_v<Written> &&
                      (isRecord<Written> || std::is_arithmetic_v<Written>))
            output = argument ? ToText(*argument) : std::string();
    }

    // Leads the entries of one name to the watching function, or back.
    template <class Function, int number>
    void Watch(const std::multimap<std::string, void**>& entries, const char* name, bool on) {
        using Here = Watched<Function, number>;
        Here::name = name;
        Here::spy = this;
        for (const auto& [decorated, entry] : entries) {
            if (decorated != name && !decorated.starts_with('?' + std::string(name) + '@')) continue;
            const auto target = on ? &Here::Call : Here::original;
            void* const former = Redirect(entry, reinterpret_cast<void*>(target));
            if (on) Here::original = reinterpret_cast<decltype(Here::original)>(former);
        }
    }

    void WatchAll(bool on) {
        const auto entries = PeImage(GetModuleHandleW(nullptr)).ImportEntries("zorvic");
#define EXPORT(name, ...) Watch<decltype(name), __LINE__>(entries, #name, on);
#include "every_export.inl"
#undef EXPORT
    }

    std::map<const void*, std::string> names;
    std::string calls, result, output;
};
