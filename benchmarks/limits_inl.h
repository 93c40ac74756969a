// The loops over any vector type V: V::Word, V::pixels, Load, Store, Add and Splat.
#pragma once

#include "limits.h"

namespace bench {

namespace {

// Blocks of four vectors, written out because compilers leave such short loops as they are.
template <class V, class Step>
void ForEachBlock(std::size_t n, const Step& step) {
    for (std::size_t i = 0; i + 4 * V::pixels <= n; i += 4 * V::pixels) {
        step(i);
        step(i + V::pixels);
        step(i + 2 * V::pixels);
        step(i + 3 * V::pixels);
    }
}

template <class V>
void StoreAll(std::uint32_t* dst, std::size_t n, std::uint32_t value) {
    const auto word = V::Splat(value);
    ForEachBlock<V>(n, [=](std::size_t i) { V::Store(dst + i, word); });
}

template <class V>
void ModifyAll(std::uint32_t* dst, std::size_t n, std::uint32_t value) {
    const auto word = V::Splat(value);
    ForEachBlock<V>(n, [=](std::size_t i) { V::Store(dst + i, V::Add(V::Load(dst + i), word)); });
}

template <class V>
void CopyAll(std::uint32_t* dst, const std::uint32_t* src, std::size_t n) {
    ForEachBlock<V>(n, [=](std::size_t i) { V::Store(dst + i, V::Load(src + i)); });
}

template <class V>
void CombineAll(std::uint32_t* dst, const std::uint32_t* src, std::size_t n) {
    ForEachBlock<V>(n, [=](std::size_t i) { V::Store(dst + i, V::Add(V::Load(dst + i), V::Load(src + i))); });
}

template <class V>
constexpr LimitLoops LoopsOf(const char* name) {
    return {name, StoreAll<V>, ModifyAll<V>, CopyAll<V>, CombineAll<V>};
}

}  // namespace

}  // namespace bench
