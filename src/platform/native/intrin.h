// The processor intrinsics that Windows compilers declare here, for builds on other systems.
#pragma once

#include <x86intrin.h>

#include <cstddef>

inline void __cpuidex(int registers[4], int leaf, int subleaf) {
    asm volatile("cpuid"
                 : "=a"(registers[0]), "=b"(registers[1]), "=c"(registers[2]), "=d"(registers[3])
                 : "a"(leaf), "c"(subleaf));
}

inline void __cpuid(int registers[4], int leaf) { __cpuidex(registers, leaf, 0); }

inline void __movsb(unsigned char* dst, const unsigned char* src, std::size_t n) {
    asm volatile("rep movsb" : "+D"(dst), "+S"(src), "+c"(n) : : "memory");
}

// Windows' long has 32 bits.
inline void __stosd(unsigned long* dst, unsigned long value, std::size_t n) {
    asm volatile("rep stosl" : "+D"(dst), "+c"(n) : "a"(value) : "memory");
}
