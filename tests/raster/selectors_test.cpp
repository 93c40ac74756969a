// From request to slot number, for every kind of request, and that the selectors draw by the slot they choose.
#include "raster/selectors.h"

#include "kernels/model.h"
#include "support/image.h"

namespace zorvic {
namespace {

constexpr int any = -1, none = -1;

// The first rule that fits a request decides. Slots are those of 8-bit sources; 24 and 32 bits follow.
struct Rule {
    int operation, lowestAlpha, highestAlpha, filterMode;
    int sameSize, placedSameSize, scaled, placed;
};
// clang-format off
constexpr Rule rules[] = {
    {3,   0,   255, any, 47,   47,   17,   35},
    {6,   0,   255, any, 32,   44,   44,   38},
    {any, 0,   0,   any, none, none, none, none},
    {any, 1,   254, 0,   50,   50,   23,   56},
    {any, 1,   254, 4,   50,   50,   69,   102},
    {any, 1,   254, any, 50,   50,   41,   53},
    {1,   255, 255, 0,   96,   96,   105,  88},
    {1,   255, 255, 4,   96,   96,   92,   29},
    {1,   255, 255, any, 96,   96,   26,   64},
    {2,   255, 255, 0,   85,   85,   99,   82},
    {2,   255, 255, 4,   85,   85,   92,   29},
    {2,   255, 255, any, 85,   85,   26,   64},
    {any, 255, 255, 0,   6,    6,    0,    76},
    {any, 255, 255, 4,   6,    6,    12,   79},
    {any, 255, 255, 5,   6,    6,    9,    20},
    {any, 255, 255, any, 6,    6,    3,    72},
};
// clang-format on

struct Request {
    std::uint32_t operation, filterMode;
    std::uint8_t alpha;
    int depth;  // 0, 1, 2 for 8, 24, 32 bits
    bool sameSize;
};

int WantedSlot(const Request& r, bool placed) {
    // 24-bit sources are keyed by the nearest sample, whatever the filter.
    if (r.operation == 2 && r.alpha == 255 && r.depth == 1 && !r.sameSize) return placed ? 83 : 100;
    for (const Rule& rule : rules) {
        const bool fits = (rule.operation == any || static_cast<std::uint32_t>(rule.operation) == r.operation) &&
                          rule.lowestAlpha <= r.alpha && r.alpha <= rule.highestAlpha &&
                          (rule.filterMode == any || static_cast<std::uint32_t>(rule.filterMode) == r.filterMode);
        if (!fits) continue;
        const int group =
            r.sameSize ? (placed ? rule.placedSameSize : rule.sameSize) : (placed ? rule.placed : rule.scaled);
        return group == none ? none : group + r.depth;
    }
    return none;
}

int IndexOf(const DrawChoice& choice) {
    return std::visit(
        [](const auto& slot) {
            if constexpr (requires { slot.index; }) return slot.index;
            return none;
        },
        choice);
}

constexpr std::uint32_t key = 0x00123456;

// With many pixels of the key's color, transparent and opaque.
Image KeyedSource(Random& random, int width, int height, int bitsPixel) {
    Image source(random, width, height, bitsPixel);
    const std::uint32_t keyPixels[] = {key, key | 0xFF000000};
    for (std::uint32_t i = 0; i < source.Palette().size() && i < 2; ++i) source.Palette()[i] = keyPixels[i];
    for (std::uint32_t i = 0; i < 60; ++i)
        source.Set(random.Below(width), random.Below(height), bitsPixel == 8 ? i % 2 : keyPixels[i % 2]);
    return source;
}

// That a request chooses its slot, and draws by it.
void Check(const Request& r, Random& random) {
    const std::uint32_t word = r.operation << 24 | key;
    const DrawRequest request{static_cast<SourceDepth>(r.depth), r.sameSize, OperationOf(word), FilterOf(r.filterMode),
                              r.alpha};
    EXPECT_EQ(IndexOf(ChooseStretchKernel(request)), WantedSlot(r, false));
    EXPECT_EQ(IndexOf(ChoosePlacedKernel(request)), WantedSlot(r, true)) << "placed";
    if (r.operation == 0 && r.alpha == 255) {
        EXPECT_EQ(ChooseResizeKernel(request.depth, r.sameSize, request.filter).index, WantedSlot(r, false));
    }

    constexpr int bits[] = {8, 24, 32};
    const Image source = KeyedSource(random, r.sameSize ? 21 : 9, r.sameSize ? 13 : 17, bits[r.depth]);
    const bool keyed = r.operation == 2 && r.alpha == 255;
    const std::uint32_t argument = keyed ? key | (r.depth == 1 ? 0xFF000000 : 0) : r.alpha;
    for (const bool placed : {false, true}) {
        Image dst(random, placed ? 11 : 21, placed ? 7 : 13);
        const Image wanted = dst;
        const Placement placement = placed ? Placement{4, 2, 21, 13} : WholeOf(dst.Info());
        const int slot = WantedSlot(r, placed);
        if (slot != none) DrawByModel(slot, {wanted.Info(), placement, source.Info(), 0, argument});
        EXPECT_EQ(placed ? SelectPlacedKernel(dst.Info(), placement, source.Info(), word, r.filterMode, r.alpha)
                         : SelectStretchKernel(dst.Info(), source.Info(), word, r.filterMode, r.alpha),
                  1);
        EXPECT_TRUE(SameBytes(dst, wanted)) << (placed ? "placed" : "whole");
    }
}

TEST(Selectors, ChooseASlotForEveryDraw) {
    Random random(11);
    for (const std::uint32_t operation : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 128U, 255U})
        for (const std::uint32_t filterMode : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 0xFFFFFFFFU})
            for (const int alpha : {0, 1, 2, 127, 254, 255})
                for (const int depth : {0, 1, 2})
                    for (const bool sameSize : {false, true}) {
                        SCOPED_TRACE(testing::Message()
                                     << "operation " << operation << ", filter " << filterMode << ", opacity " << alpha
                                     << ", depth " << depth << (sameSize ? ", same size" : ""));
                        Check({operation, filterMode, static_cast<std::uint8_t>(alpha), depth, sameSize}, random);
                    }
}

TEST(Selectors, ChooseASlotForEveryFill) {
    struct {
        std::uint32_t operation;
        int black, white, opaque, transparent, translucent;  // 0, 0xFFFFFFFF, alpha 255, alpha 0, any other
    } constexpr cases[] = {
        {0, 91, 91, 91, 91, 91},       {1, none, 91, 91, none, 59}, {2, none, 91, 91, none, 59},
        {3, 91, none, 62, 62, 62},     {4, 91, none, 68, 68, 68},   {5, none, 63, 63, none, 63},
        {6, 75, 75, 75, 75, 75},       {7, none, 91, 91, none, 59}, {128, none, 91, 91, none, 59},
        {255, none, 91, 91, none, 59},
    };
    for (const auto& c : cases) {
        const auto choose = [&](std::uint32_t color) {
            const auto slot = ChooseFillKernel(color, OperationOf(c.operation << 24 | 0x00ABCDEF));
            return slot ? slot->index : none;
        };
        EXPECT_EQ(choose(0x00000000), c.black) << c.operation;
        EXPECT_EQ(choose(0xFFFFFFFF), c.white) << c.operation;
        EXPECT_EQ(choose(0xFF000000), c.opaque) << c.operation;
        EXPECT_EQ(choose(0x00FFFFFF), c.transparent) << c.operation;
        for (const std::uint32_t color : {0x01000000U, 0x80808080U, 0xFE000000U})
            EXPECT_EQ(choose(color), c.translucent) << c.operation;
    }
}

TEST(Selectors, DrawNothingForEmptyImages) {
    Random random(5);
    const Image dst(random, 4, 3), src(random, 9, 9), before = dst;
    for (const auto& [width, height] : {std::pair{0, 3}, {4, 0}, {4, -3}, {-4, 3}, {0, 0}})
        for (const bool emptySource : {false, true}) {
            BitmapLockInfo to = dst.Info(), from = src.Info();
            (emptySource ? from : to).bmWidth = width;
            (emptySource ? from : to).bmHeight = height;
            for (const std::uint32_t operationWord : {0U, 0x03000000U, 0x06000000U}) {
                EXPECT_EQ(SelectStretchKernel(to, from, operationWord, 0, 255), 1);
                EXPECT_EQ(SelectPlacedKernel(to, {1, 1, 8, 8}, from, operationWord, 0, 255), 1);
                EXPECT_EQ(SelectFillKernel(emptySource ? from : to, 0x80402010, operationWord), 1);
            }
            EXPECT_EQ(SelectResizeKernel(to, from, 0), 1);
        }
    EXPECT_TRUE(SameBytes(dst, before));
}

TEST(Selectors, ReadOtherDepthsAs32Bits) {
    const Image src = RowOf({0x80402010, 0x00ABCDEF});
    BitmapLockInfo deep = src.Info();
    deep.bmBitsPixel = 16;
    Image dst = RowOf({0, 0});
    SelectStretchKernel(dst.Info(), deep, 0x02ABCDEF, 0, 255);
    EXPECT_EQ(dst.Pixels(), (std::vector<std::uint32_t>{0x80402010, 0}));
    SelectPlacedKernel(PartOf(dst.Info(), 1, 0, 1, 1), {1, 0, 2, 1}, deep, 0, 0, 255);
    EXPECT_EQ(dst.At(1, 0), 0x00ABCDEFU);
}

}  // namespace
}  // namespace zorvic
