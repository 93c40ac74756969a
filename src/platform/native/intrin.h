// The processor intrinsics that Windows compilers declare here, for builds on other systems.
#pragma once

#include <x86intrin.h>

inline void __cpuidex(int registers[4], int leaf, int subleaf) {
    asm volatile("cpuid"
                 : "=a"(registers[0]), "=b"(registers[1]), "=c"(registers[2]), "=d"(registers[3])
                 : "a"(leaf), "c"(subleaf));
}

inline void __cpuid(int registers[4], int leaf) { __cpuidex(registers, leaf, 0); }
