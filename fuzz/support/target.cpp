// What libFuzzer calls, and how a target tells that something is wrong.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "support/input.h"

void zorvic::Fail(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::fputs("wrong: ", stderr);
    std::vfprintf(stderr, format, arguments);
    std::fputc('\n', stderr);
    va_end(arguments);
    std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zorvic::Input input(data, size);
    zorvic::RunInput(input);
    return 0;
}
