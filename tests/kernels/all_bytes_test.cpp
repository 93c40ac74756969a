// Operations on all combinations of the three bytes that decide, 2^24 of them, in every form against plain formulas.
#include "effects/pixels/effect_set.h"
#include "kernels/slot_calls.h"
#include "raster/lookup_tables.h"
#include "raster/modulation.h"
#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

using Word = std::uint32_t;

// The first byte is the column and stands in the destination, the second is the row and stands in the source, each in
// all channels. What the third one is; red stands with the other two as blue and green.
enum class Third { unused, sourceAlpha, sourceRed, destinationAlpha, destinationRed, argument };

#if defined(__SANITIZE_ADDRESS__)
constexpr Word thirdStep = 51;  // watched builds are slow, and look for other faults
#else
constexpr Word thirdStep = 1;
#endif

// Different in every channel, so that none can stand in for another.
Word InAllChannels(Word byte) { return byte * 0x01010101 ^ 0x80330F00; }
Word WithAlpha(Word pixel, Word alpha) { return (pixel & 0xFFFFFF) | alpha << 24; }

using Draw = std::function<void(const BitmapLockInfo& dst, const BitmapLockInfo& src, Word third)>;
using Formula = std::function<Word(Word dst, Word src, Word third)>;

struct Drawing {
    std::string form;
    Draw draw;
};

void CheckAllBytes(Third third, const std::vector<Drawing>& forms, const Formula& formula) {
    Image before(256, 256), src(256, 256), wanted(256, 256);
    for (Word z = 0; z < 256; z += third == Third::unused ? 256 : thirdStep) {
        auto* const d = static_cast<Word*>(before.Info().bmBits);
        auto* const s = static_cast<Word*>(src.Info().bmBits);
        auto* const w = static_cast<Word*>(wanted.Info().bmBits);
        for (Word i = 0; i < 65536; ++i) {
            const Word x = i % 256, y = i / 256, color = (x ^ y) << 24 | z << 16 | y << 8 | x;
            d[i] = third == Third::destinationRed ? color : InAllChannels(x);
            s[i] = third == Third::sourceRed ? color : InAllChannels(y);
            if (third == Third::destinationAlpha) d[i] = WithAlpha(d[i], z);
            if (third == Third::sourceAlpha) s[i] = WithAlpha(s[i], z);
            w[i] = formula(d[i], s[i], z);
        }
        for (const Drawing& form : forms) {
            const Image dst = before;
            form.draw(dst.Info(), src.Info(), z);
            ASSERT_TRUE(SameBytes(dst, wanted)) << form.form << ", third byte " << z;
        }
    }
}

Third ThirdOf(Op op) {
    if (op == Op::sourceOver) return Third::sourceAlpha;
    if (op == Op::destinationOver) return Third::destinationAlpha;
    if (op == Op::grayWash) return Third::destinationRed;
    const bool hasArgument = op == Op::constantAlpha || op == Op::opaqueAlpha || op == Op::colorKey ||
                             op == Op::crossFade || op == Op::mixColor;
    return hasArgument ? Third::argument : Third::unused;
}

// Samples of the source as it is: at its own size, from one color, or filtered without a weight for neighbours.
bool ShowsItsSource(const SlotCall& slot) {
    return slot.bitsPixel == 32 && !slot.takesPlacement &&
           (slot.rows == Rows::unscaled || slot.rows == Rows::solid ||
            (slot.rows == Rows::bicubic && slot.op != Op::copy));
}

std::vector<SlotCall> SlotsThatShowTheirSource() {
    std::vector<SlotCall> slots = AllSlotCalls();
    std::erase_if(slots, [](const SlotCall& slot) { return !ShowsItsSource(slot); });
    return slots;
}

class AllBytes : public testing::TestWithParam<SlotCall> {
protected:
    AllBytes() { SetStretchKernelMode(0); }
    ~AllBytes() override {
        SetStretchKernelMode(1);
        LimitLevel(widestLevel);
    }
};

TEST_P(AllBytes, OfASlot) {
    const SlotCall& slot = GetParam();
    const SlotMeaning meaning = MeaningOf(slot.slot);
    const auto argument = [&](Word z) { return slot.op == Op::colorKey ? InAllChannels(z) : z; };
    std::vector<Drawing> forms;
    for (const NamedKernels& set : kernelSets) {
        if (set.form > BestLevel() || !IsInSet(set, slot) || (!set.packedWeights && slot.rows == Rows::bicubic))
            continue;
        forms.push_back(
            {set.name, [&](const BitmapLockInfo& dst, const BitmapLockInfo& src, Word z) {
                 LimitLevel(set.form);
                 if (slot.rows != Rows::solid) {
                     slot.run(*set.kernels, {dst, WholeOf(dst), src, 0, argument(z)});
                     return;
                 }
                 // A color for each row.
                 for (int y = 0; y < dst.bmHeight; ++y)
                     slot.run(*set.kernels,
                              {PartOf(dst, 0, y, dst.bmWidth, 1), {}, {}, ReadPixelBytes(src, 0, y), argument(z)});
             }});
    }
    CheckAllBytes(ThirdOf(slot.op), forms,
                  [&](Word d, Word s, Word z) { return ResultByModel(meaning, d, s, argument(z)); });
}

INSTANTIATE_TEST_SUITE_P(, AllBytes, testing::ValuesIn(SlotsThatShowTheirSource()),
                         [](const auto& call) { return "slot" + std::to_string(call.param.slot); });

// Each channel by itself: formula(i) for blue, green, red and alpha, modulo 256.
template <class ChannelFormula>
Word FromChannels(ChannelFormula formula) {
    Word pixel = 0;
    for (int i = 0; i < 4; ++i) pixel |= (static_cast<Word>(formula(i)) & 255) << 8 * i;
    return pixel;
}
int Channel(Word pixel, int i) { return static_cast<int>(pixel >> 8 * i) & 255; }
int Luma(Word p) { return (Channel(p, 2) + 2 * Channel(p, 1) + Channel(p, 0)) / 4; }

Word Blended(Word d, Word s) {
    return FromChannels([=](int i) {
        const int rest = (2 * Channel(d, i) * (255 - Channel(s, 3)) + 255) / 510;  // half rounds up
        return std::min(Channel(s, i) + rest, 255);
    });
}

Word Modulated(Word d, Word s, Word color) {
    if (Channel(color, 3) == 255)
        return FromChannels([=](int i) {
            const int light = (Luma(s) + 1) * 255 / 256;
            if (i == 3) return (256 - light) * Channel(d, 3) / 256 + light;
            return (255 - Channel(s, i)) * Channel(d, i) / 256 + Channel(color, i) * Channel(s, i) / 256;
        });
    const int alpha = (Channel(s, 3) + 1) * Channel(color, 3) / 256;
    return FromChannels(
        [=](int i) { return Channel(d, i) * (256 - alpha) / 256 + (Channel(s, i) + 1) * Channel(color, i) / 256; });
}

Word* Pixels(const BitmapLockInfo& image) { return static_cast<Word*>(image.bmBits); }

template <PixelEffect EffectSet::*effect>
void InPlace(const BitmapLockInfo& image, const BitmapLockInfo&, Word) {
    (Effects().*effect)(Pixels(image), 65536);
}
Word Inverted(Word p, Word, Word) {
    return FromChannels([=](int i) { return Channel(p, 3) - (i < 3 ? Channel(p, i) : 0); });
}
Word Premultiplied(Word p, Word, Word) {
    return FromChannels([=](int i) { return i < 3 ? Channel(p, i) * (Channel(p, 3) + 1) / 256 : Channel(p, 3); });
}

// What has no slot, at every level: drawing in a color, the rounded blend, and effects on single pixels.
const struct {
    const char* name;
    Third third;
    void (*draw)(const BitmapLockInfo& dst, const BitmapLockInfo& src, Word third);
    Word (*formula)(Word dst, Word src, Word third);
} operations[] = {
    {"tint", Third::argument,
     [](const BitmapLockInfo& dst, const BitmapLockInfo& src, Word z) {
         ModulateImage(dst, src, WithAlpha(InAllChannels(z), 255));
     },
     [](Word d, Word s, Word z) { return Modulated(d, s, WithAlpha(InAllChannels(z), 255)); }},
    {"tint by luma", Third::sourceRed,
     [](const BitmapLockInfo& dst, const BitmapLockInfo& src, Word) { ModulateImage(dst, src, 0xFFFF8040); },
     [](Word d, Word s, Word) { return Modulated(d, s, 0xFFFF8040); }},
    {"modulate", Third::argument,
     [](const BitmapLockInfo& dst, const BitmapLockInfo& src, Word z) { ModulateImage(dst, src, InAllChannels(z)); },
     [](Word d, Word s, Word z) { return Modulated(d, s, InAllChannels(z)); }},
    {"blend", Third::sourceAlpha,
     [](const BitmapLockInfo& dst, const BitmapLockInfo& src, Word) {
         BlendPixels({src.bmBits, src.bmWidthBytes}, {dst.bmBits, dst.bmWidthBytes}, {dst.bmWidth, dst.bmHeight});
     },
     [](Word d, Word s, Word) { return Blended(d, s); }},
    {"gray", Third::destinationRed, InPlace<&EffectSet::gray>,
     [](Word p, Word, Word) { return WithAlpha(static_cast<Word>(Luma(p)) * 0x010101, p >> 24); }},
    {"color to alpha", Third::destinationRed, InPlace<&EffectSet::colorToAlpha>,
     [](Word p, Word, Word) {
         return WithAlpha(p, static_cast<Word>(std::max({Channel(p, 0), Channel(p, 1), Channel(p, 2)})));
     }},
    {"invert", Third::destinationAlpha, InPlace<&EffectSet::invert>, Inverted},
    {"premultiply", Third::destinationAlpha, InPlace<&EffectSet::premultiply>, Premultiplied},
};

TEST(AllBytesOfAnOperation, AtEveryLevel) {
    for (const auto& operation : operations) {
        SCOPED_TRACE(operation.name);
        std::vector<Drawing> forms;
        for (const Level level : Levels())
            forms.push_back({"level " + std::to_string(static_cast<int>(level)),
                             [&, level](const BitmapLockInfo& dst, const BitmapLockInfo& src, Word z) {
                                 LimitLevel(level);
                                 operation.draw(dst, src, z);
                             }});
        CheckAllBytes(operation.third, forms, operation.formula);
    }
    LimitLevel(widestLevel);
}

}  // namespace
}  // namespace zorvic
