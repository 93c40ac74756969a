// Copies of a source side by side: the pixels of one draw for each, in few calls.
#include "raster/repeated.h"

#include "raster/kernel_table.h"
#include "raster/lookup_tables.h"
#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

// The table's kernels, counted.
int calls;
KernelSet real;

template <auto slot, int member, class Kernel>
struct Counting;
template <auto slot, int member, class... Args>
struct Counting<slot, member, int (*)(Args...)> {
    static int Run(Args... args) {
        ++calls;
        return real.At(Slot<int (*)(Args...)>{slot.index + member, slot.rows, slot.op})(args...);
    }
};

template <auto group, class Kernel>
void Count(const Group<Kernel>&) {
    constexpr Slot<Kernel> first = group[SourceDepth::palette8];
    KernelTable.Put(group[SourceDepth::palette8], Counting<first, 0, Kernel>::Run);
    KernelTable.Put(group[SourceDepth::rgb24], Counting<first, 1, Kernel>::Run);
    KernelTable.Put(group[SourceDepth::argb32], Counting<first, 2, Kernel>::Run);
}
template <auto slot, class Kernel>
void Count(const Slot<Kernel>&) {}

void CountCalls() {
    real = KernelTable;
    calls = 0;
    [&]<std::size_t... i>(std::index_sequence<i...>) { (Count<std::get<i>(slots::all)>(std::get<i>(slots::all)), ...); }
    (std::make_index_sequence<std::tuple_size_v<decltype(slots::all)>>());
}

struct RowJob {
    Placement placement;
    std::uint32_t operationWord, filterMode;
    std::uint8_t alpha;
};

void DrawOneByOne(const BitmapLockInfo& dst, const RowJob& job, const BitmapLockInfo& src) {
    const auto& [left, top, width, height] = job.placement;
    for (int x = 0; x < dst.bmWidth;) {
        const std::int64_t inCopy = (left + x) % width;
        const int n = static_cast<int>(std::min<std::int64_t>(width - inCopy, dst.bmWidth - x));
        SelectPlacedKernel(PartOf(dst, x, 0, n, dst.bmHeight), {inCopy, top, width, height}, src, job.operationWord,
                           job.filterMode, job.alpha);
        x += n;
    }
}

TEST(Repeated, DrawsWhatCopiesOneByOneDraw) {
    Random random(1);
    constexpr int depths[] = {8, 24, 32};
    for (int i = 0; i < 4000; ++i) {
        SetStretchKernelMode(static_cast<std::uint32_t>(random.Below(2)));
        FillTables({true, i % 2 == 0, false, false});
        const Image source(random, 1 + random.Below(12), 1 + random.Below(12), depths[random.Below(3)]);
        const bool isScaled = i % 4 != 0;
        const int width = isScaled ? 1 + random.Below(70) : source.Info().bmWidth;
        const int height = isScaled ? 1 + random.Below(20) : source.Info().bmHeight;
        RowJob job{
            {}, static_cast<std::uint32_t>(random.Below(8)) << 24, static_cast<std::uint32_t>(random.Below(6)), 255};
        if (job.operationWord >> 24 == 2) job.operationWord |= source.At(0, 0) & 0xFFFFFF;
        if (random.Below(2) == 0) job.alpha = static_cast<std::uint8_t>(random.Word());
        Image dst(random, 1 + random.Below(150), height, 32, {random.Below(3) * 4, 0}), wanted = dst;
        Repeated repeated(dst.Info(), job.operationWord, job.filterMode, job.alpha);
        // Several rows of copies into one image; the next one has samples of the former, or other ones.
        for (int row = 0; row < 3; ++row) {
            const int top = random.Below(height), rows = 1 + random.Below(height - top);
            job.placement = {random.Below(3) == 0 ? 1000000007LL * width + 1 : random.Below(100), top, width, height};
            const auto part = [&](const Image& image) {
                return PartOf(image.Info(), 0, top, image.Info().bmWidth, rows);
            };
            repeated.Draw(part(dst), job.placement, source.Info());
            DrawOneByOne(part(wanted), job, source.Info());
        }
        ASSERT_TRUE(SameBytes(dst, wanted))
            << "case " << i << ": " << width << " x " << height << ", operation " << (job.operationWord >> 24)
            << ", filter " << job.filterMode << ", alpha " << int{job.alpha} << ", bits " << source.Info().bmBitsPixel;
    }
    SetStretchKernelMode(1);
    InitKernelTable();
}

// A copy that is drawn over its own source shows what the copies before it have drawn.
TEST(Repeated, DrawsOverItsSourceStepByStep) {
    Random random(2);
    Image dst(random, 60, 4), wanted = dst;
    const RowJob job{{0, 0, 2, 4}, 0x01000000, 1, 200};
    const auto source = [](const Image& image) { return PartOf(image.Info(), 5, 0, 2, 4); };
    Repeated(dst.Info(), job.operationWord, job.filterMode, job.alpha).Draw(dst.Info(), job.placement, source(dst));
    DrawOneByOne(wanted.Info(), job, source(wanted));
    EXPECT_TRUE(SameBytes(dst, wanted));
}

// Ten rows of 1920 pixels. Samples are taken once, whatever the source's size.
TEST(Repeated, CostsWhatItShows) {
    Random random(3);
    Image dst(1920, 10);
    const Image source(random, 300, 200);
    const struct {
        std::int64_t width;
        std::uint32_t filterMode;
        int most;
    } cases[] = {{1, 1, 31}, {3, 4, 31}, {63, 1, 30}, {1, 5, 31}, {100, 5, 25 + 200}};
    for (const auto& [width, filterMode, most] : cases) {
        CountCalls();
        Repeated repeated(dst.Info(), 0, filterMode, 255);
        for (int y = 0; y < 10; ++y) repeated.Draw(PartOf(dst.Info(), 0, y, 1920, 1), {0, 0, width, 1}, source.Info());
        EXPECT_LE(calls, most) << width << ", filter " << filterMode;
        KernelTable = real;
    }
}

}  // namespace
}  // namespace zorvic
