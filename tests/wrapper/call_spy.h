// Writes down the calls that this program makes to zorvic, with their arguments, and lets them through: while a spy
// lives, the entries of the program's import table lead to functions that do so.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "zorvic/zorvic.hpp"

class CallSpy {
public:
    CallSpy();
    ~CallSpy();
    CallSpy(const CallSpy&) = delete;
    CallSpy& operator=(const CallSpy&) = delete;

    // How objects and records are called in the text: as many words as addresses.
    void Name(const std::string& words, const std::vector<const void*>& addresses);
    // The calls since the last question: a name and its arguments each, with a semicolon behind.
    std::string Calls();
    // What the last call returned, and what it wrote through its last argument.
    std::string Result() const;
    std::string Output() const;
};

// Values as the spy writes them: colours and other words in hexadecimal digits, pointers by their name. Of arguments
// without a name, records are written by their members, and others as &.
std::string ToText(const RECT& rect);
std::string ToText(const POINT& point);
std::string ToText(const SIZE& size);
std::string ToText(const TextureMode& mode);
std::string ToText(const PathBounds& bounds);
std::string PointerText(const void* pointer);
template <class Value>
std::string ToText(const Value& value) {
    std::ostringstream text;
    if constexpr (std::is_same_v<Value, DWORD>) text << std::hex;
    if constexpr (std::is_pointer_v<Value>)
        text << PointerText(value);
    else if constexpr (std::is_enum_v<Value>)
        text << static_cast<int>(value);
    else if constexpr (std::is_arithmetic_v<Value>)
        text << +value;
    else if constexpr (requires { value.Get(); })
        text << PointerText(value.Get());
    return text.str();
}

// Tests that look at calls. The whole test is watched, because the compiler may read the import table once for many
// calls.
class SpyingTest : public testing::Test {
protected:
    CallSpy spy;
};
