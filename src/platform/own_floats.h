// For the length of a scope floating-point numbers are computed as this code expects it: rounded to nearest, with no
// exception unmasked. Hosts whose runtime unmasks exceptions would meet them at numbers that are not finite.
#pragma once

#include <xmmintrin.h>

#include <cstdint>

namespace zorvic {

class OwnFloats {
public:
    OwnFloats() {
        _mm_setcsr(0x1F80);
        SetX87(0x37F);
    }
    ~OwnFloats() {
        _mm_setcsr(callersSse);
        SetX87(callersX87);
    }
    OwnFloats(const OwnFloats&) = delete;
    OwnFloats& operator=(const OwnFloats&) = delete;

private:
    // MinGW's mathematical functions work on the x87.
#ifdef __GNUC__
    static std::uint16_t X87() {
        std::uint16_t control;
        asm volatile("fnstcw %0" : "=m"(control));
        return control;
    }
    static void SetX87(std::uint16_t control) { asm volatile("fnclex\n\tfldcw %0" : : "m"(control)); }
#else
    static std::uint16_t X87() { return 0; }
    static void SetX87(std::uint16_t) {}
#endif

    unsigned callersSse = _mm_getcsr();
    std::uint16_t callersX87 = X87();
};

}  // namespace zorvic
