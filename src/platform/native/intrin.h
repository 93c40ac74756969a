// The processor intrinsics that Windows compilers declare here, for builds on other systems.
#pragma once

#include <x86intrin.h>

inline void __cpuid(int registers[4], int leaf) {
    asm volatile("cpuid"
                 : "=a"(registers[0]), "=b"(registers[1]), "=c"(registers[2]), "=d"(registers[3])
                 : "a"(leaf), "c"(0));
}
