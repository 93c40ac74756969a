// The state of the floating-point registers that MMX code shares.
#pragma once

#include <cstdint>

namespace zorvic {

// Whether all eight registers are free, as calling conventions want them.
inline bool X87RegistersAreFree() {
    struct {
        std::uint32_t control, status, tags, others[4];
    } environment;
    asm volatile("fnstenv %0\n\tfldenv %0" : "=m"(environment));  // storing masks the exceptions
    return (environment.tags & 0xFFFF) == 0xFFFF;
}

}  // namespace zorvic
