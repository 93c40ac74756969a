// The processor's state around a call: as the test wants it at the start, and as calling conventions want it at the end.
#pragma once

#include <cstdint>

#include "support/cpu_state.h"

namespace calls {

struct Processor {
    int stackResidue = 0;              // of the stack pointer, modulo 16; for 32-bit programs
    std::uint16_t x87Control = 0x37F;  // 64 bits of precision, all exceptions masked
    std::uint32_t mxcsr = 0x1F80;      // all exceptions masked
};

// Sets the control registers for a scope.
class ControlRegisters {
public:
    explicit ControlRegisters(const Processor& processor) {
        asm volatile("fnstcw %0\n\tstmxcsr %1" : "=m"(before.x87Control), "=m"(before.mxcsr));
        Load(processor);
    }
    ~ControlRegisters() { Load(before); }
    ControlRegisters(const ControlRegisters&) = delete;
    ControlRegisters& operator=(const ControlRegisters&) = delete;

private:
    static void Load(const Processor& processor) {
        asm volatile("fnclex\n\tfldcw %0\n\tldmxcsr %1" : : "m"(processor.x87Control), "m"(processor.mxcsr));
    }
    Processor before;
};

}  // namespace calls
