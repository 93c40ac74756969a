// What code that is compiled with -fstack-protector refers to. GCC's own libssp asks the system's cryptography for the
// guard, which a DLL must not do while it is loaded.
#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C" {

std::uintptr_t __stack_chk_guard = 0x5A9D00C3;

// The stack is overwritten: nothing of the process can be trusted, handlers included.
[[noreturn]] void __stack_chk_fail() {
    asm volatile("int $0x29" : : "c"(FAST_FAIL_STACK_COOKIE_CHECK_FAILURE));
    __builtin_unreachable();
}

}  // extern "C"

namespace {

// Before any other constructor. A byte of 0 stops the copies of strings.
[[gnu::constructor(101)]] void MakeGuard() {
    LARGE_INTEGER ticks{};
    QueryPerformanceCounter(&ticks);
    FILETIME time{};
    GetSystemTimeAsFileTime(&time);
    auto mixed = reinterpret_cast<std::uintptr_t>(&ticks) ^ reinterpret_cast<std::uintptr_t>(&MakeGuard);
    for (const DWORD part : {time.dwLowDateTime, time.dwHighDateTime, GetCurrentProcessId(), GetCurrentThreadId(),
                             ticks.LowPart, static_cast<DWORD>(ticks.HighPart)}) {
        mixed = (mixed ^ part) * std::uintptr_t{0x9E3779B1};
        mixed ^= mixed >> 15;
    }
    __stack_chk_guard = mixed & ~std::uintptr_t{0xFF};
}

}  // namespace
