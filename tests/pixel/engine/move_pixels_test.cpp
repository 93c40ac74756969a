// Where the transforms move pixels, byte for byte: at every depth, around the block size, with rows at odd distances.
#include "pixel/move_pixels.h"

#include "support/image.h"
#include "support/levels.h"

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

constexpr SIZE sizes[] = {{1, 1}, {3, 2}, {1, 45}, {45, 1}, {16, 16}, {15, 33}, {32, 17}, {70, 5}, {37, 71}};

class MoveEveryPixel : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, MoveEveryPixel, testing::ValuesIn(Levels()), LevelName);

TEST_P(MoveEveryPixel, ToItsPlaceAndTouchNoOtherByte) {
    Random random(1);
    for (const int depth : {8, 24, 32})
        for (const SIZE size : sizes)
            for (const Margins margins : {Margins{}, Margins{5, 3}})
                for (const MoveCase& c : cases) {
                    const Image source(random, size.cx, size.cy, depth, {3, 1});
                    const int w = c.transposes ? size.cy : size.cx, h = c.transposes ? size.cx : size.cy;
                    Image wanted(w, h, depth, margins);
                    for (int y = 0; y < size.cy; ++y)
                        for (int x = 0; x < size.cx; ++x) wanted.Set(c.toX(x, y, w), c.toY(x, y, h), source.At(x, y));
                    const Image moved(w, h, depth, margins);
                    MovePixels(moved.Info(), source.Info(), c.transform);
                    ASSERT_TRUE(SameBytes(moved, wanted))
                        << size.cx << " x " << size.cy << " depth " << depth << " op " << static_cast<int>(c.transform);
                }
}

}  // namespace
}  // namespace zorvic
