// The loops over any form of the pixel engine: with its vectors, so that they are what its kernels could reach.
#pragma once

#include "limits.h"

namespace bench {

namespace {

// Blocks of four vectors, written out because compilers leave such short loops as they are.
template <class V, class Step>
void ForEachBlock(std::size_t n, const Step& step) {
    constexpr std::size_t lanes = V::lanes;
    for (std::size_t i = 0; i + 4 * lanes <= n; i += 4 * lanes) {
        step(i);
        step(i + lanes);
        step(i + 2 * lanes);
        step(i + 3 * lanes);
    }
}

template <class V>
void StoreAll(std::uint32_t* dst, std::size_t n, std::uint32_t value) {
    const V word = V::Broadcast(value);
    ForEachBlock<V>(n, [=](std::size_t i) { word.Store(dst + i); });
}

template <class V>
void ModifyAll(std::uint32_t* dst, std::size_t n, std::uint32_t value) {
    const V word = V::Broadcast(value);
    ForEachBlock<V>(n, [=](std::size_t i) { (V::Load(dst + i) + word).Store(dst + i); });
}

template <class V>
void CopyAll(std::uint32_t* dst, const std::uint32_t* src, std::size_t n) {
    ForEachBlock<V>(n, [=](std::size_t i) { V::Load(src + i).Store(dst + i); });
}

template <class V>
void CombineAll(std::uint32_t* dst, const std::uint32_t* src, std::size_t n) {
    ForEachBlock<V>(n, [=](std::size_t i) { (V::Load(dst + i) + V::Load(src + i)).Store(dst + i); });
}

template <class V>
constexpr LimitLoops LoopsOf() {
    return {StoreAll<V>, ModifyAll<V>, CopyAll<V>, CombineAll<V>};
}

}  // namespace

}  // namespace bench
