// Where the transforms move pixels, byte for byte: at every depth, around the block size, with rows at odd distances.
#include "pixel/move_pixels.h"

#include <optional>

#include "support/image.h"

namespace zorvic {
namespace {

struct MoveCase {
    Transform transform;
    bool transposes;
    // Where the source pixel (x, y) goes in a destination of w x h pixels.
    int (*toX)(int x, int y, int w);
    int (*toY)(int x, int y, int h);
};

constexpr MoveCase cases[] = {
    {Transform::rotate90, true, [](int, int y, int w) { return w - 1 - y; }, [](int x, int, int) { return x; }},
    {Transform::rotate180, false, [](int x, int, int w) { return w - 1 - x; },
     [](int, int y, int h) { return h - 1 - y; }},
    {Transform::rotate270, true, [](int, int y, int) { return y; }, [](int x, int, int h) { return h - 1 - x; }},
    {Transform::flipVertical, false, [](int x, int, int) { return x; }, [](int, int y, int h) { return h - 1 - y; }},
    {Transform::flipHorizontal, false, [](int x, int, int w) { return w - 1 - x; }, [](int, int y, int) { return y; }},
    {Transform::transpose, true, [](int, int y, int) { return y; }, [](int x, int, int) { return x; }},
    {Transform::antiTranspose, true, [](int, int y, int w) { return w - 1 - y; },
     [](int x, int, int h) { return h - 1 - x; }},
};

constexpr SIZE sizes[] = {{1, 1}, {3, 2}, {1, 45}, {45, 1}, {16, 16}, {15, 33}, {32, 17}, {70, 5}};

Image Transformed(const Image& source, Transform transform, Margins margins = {}) {
    const BitmapLockInfo& info = source.Info();
    const bool transposes = MovesOf(transform).transposes;
    Image result(transposes ? info.bmHeight : info.bmWidth, transposes ? info.bmWidth : info.bmHeight, info.bmBitsPixel,
                 margins);
    MovePixels(result.Info(), info, transform);
    return result;
}

TEST(MovePixels, TakesEveryPixelToItsPlaceAndTouchesNoOtherByte) {
    Random random(1);
    for (const int depth : {8, 24, 32})
        for (const SIZE size : sizes)
            for (const Margins margins : {Margins{}, Margins{5, 3}}) {
                const Image source(random, size.cx, size.cy, depth, {3, 1});
                for (const MoveCase& c : cases) {
                    const int w = c.transposes ? size.cy : size.cx, h = c.transposes ? size.cx : size.cy;
                    Image wanted(w, h, depth, margins);
                    for (int y = 0; y < size.cy; ++y)
                        for (int x = 0; x < size.cx; ++x) wanted.Set(c.toX(x, y, w), c.toY(x, y, h), source.At(x, y));
                    ASSERT_TRUE(SameBytes(Transformed(source, c.transform, margins), wanted))
                        << size.cx << " x " << size.cy << " depth " << depth << " op " << static_cast<int>(c.transform);
                }
            }
}

// Laws of the group of the square: what one transform after another comes to.
TEST(MovePixels, FollowOneAnotherAsTheSymmetriesOfASquareDo) {
    using enum Transform;
    const struct {
        std::vector<Transform> steps, same;
    } laws[] = {{{rotate90, rotate90, rotate90, rotate90}, {}},
                {{rotate90, rotate90, rotate90}, {rotate270}},
                {{rotate90, rotate90}, {rotate180}},
                {{flipVertical, flipHorizontal}, {rotate180}},
                {{flipVertical, flipVertical}, {}},
                {{flipHorizontal, flipHorizontal}, {}},
                {{rotate90, flipHorizontal}, {transpose}},
                {{rotate90, flipVertical}, {antiTranspose}},
                {{transpose, transpose}, {}},
                {{transpose, rotate180}, {antiTranspose}}};
    Random random(2);
    for (const int depth : {8, 24, 32})
        for (const SIZE size : sizes) {
            const Image source(random, size.cx, size.cy, depth);
            const auto result = [&](const std::vector<Transform>& steps) {
                std::optional<Image> image(source);
                for (const Transform step : steps) {
                    const Image next = Transformed(*image, step);
                    image.emplace(next);
                }
                return image->Pixels();
            };
            for (const auto& law : laws)
                ASSERT_EQ(result(law.steps), result(law.same))
                    << "law " << &law - laws << ' ' << size.cx << " x " << size.cy << " depth " << depth;
        }
}

TEST(MovePixels, LeavesOtherDepthsAlone) {
    Random random(3);
    const Image source(random, 4, 3, 16);
    Image image(4, 3, 16);
    const Image before = image;
    MovePixels(image.Info(), source.Info(), Transform::rotate180);
    EXPECT_TRUE(SameBytes(image, before));
}

}  // namespace
}  // namespace zorvic
