// Choosing the fastest loop for the work at hand, by a short race.
#include <intrin.h>

#include <algorithm>

#include "contenders.h"
#include "limits.h"
#include "measure.h"
#include "pixel/primitive_set.h"

namespace bench {

const LimitLoops stringLimits{
    .store = [](std::uint32_t* dst, std::size_t n,
                std::uint32_t value) { __stosd(reinterpret_cast<unsigned long*>(dst), value, n); },
    .modify = nullptr,
    .copy =
        [](std::uint32_t* dst, const std::uint32_t* src, std::size_t n) {
            __movsb(reinterpret_cast<unsigned char*>(dst), reinterpret_cast<const unsigned char*>(src), 4 * n);
        },
    .combine = nullptr,
};

namespace {

std::vector<LimitLoops> LoopsOfThisMachine() {
    std::vector<LimitLoops> loops{stringLimits, sse2Limits};
    if (zorvic::BestLevel() >= zorvic::Level::avx2) loops.push_back(avx2Limits);
    return loops;
}

// The loop's job on a source and a target of n pixels.
Job LoopJob(const LimitLoops& loops, Limit limit, std::uint32_t* dst, const std::uint32_t* src, std::size_t n) {
    // Adding zero that the compiler cannot see: the images keep their contents.
    static volatile std::uint32_t nothing = 0;
    if (limit == Limit::store) return [=, run = loops.store] { run(dst, n, 0xFF3366CC); };
    if (limit == Limit::modify && loops.modify) return [=, run = loops.modify] { run(dst, n, nothing); };
    if (limit == Limit::copy) return [=, run = loops.copy] { run(dst, src, n); };
    if (limit == Limit::combine && loops.combine) return [=, run = loops.combine] { run(dst, src, n); };
    return {};
}

}  // namespace

Job LimitJob(const Row& row, const Surfaces& images) {
    if (row.limit == Limit::none) return {};
    // The images themselves where they are large enough, so that caches and alignment are the same.
    const std::size_t n =
        std::max(PixelCount(images.target), row.per == Per::sourcePixel ? PixelCount(images.source) : 0);
    const auto spare = std::make_shared<std::vector<std::uint32_t>>(n);
    const auto pixels = [&](const BitmapLockInfo& image) {
        return PixelCount(image) >= n ? reinterpret_cast<std::uint32_t*>(PixelsOf(image)) : spare->data();
    };
    Job best;
    double least = 0;
    for (const LimitLoops& loops : LoopsOfThisMachine()) {
        const Job job = LoopJob(loops, row.limit, pixels(images.target), pixels(images.source), n);
        if (!job) continue;
        const double seconds = LeastSeconds(job);
        if (best && seconds >= least) continue;
        best = [job, spare] { job(); };
        least = seconds;
    }
    return best;
}

}  // namespace bench
