// Where the transforms move pixels, byte for byte: at every depth, around the block size, with rows at odd distances.
#include "pixel/move_pixels.h"

#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

// What the destination's column is of the source's column and row, then its row. Negative: counted from the other end.
struct Move {
    Transform transform;
    int across[2], down[2];
};
constexpr Move moves[] = {
    {Transform::rotate90, {0, -1}, {1, 0}},       {Transform::rotate180, {-1, 0}, {0, -1}},
    {Transform::rotate270, {0, 1}, {-1, 0}},      {Transform::flipVertical, {1, 0}, {0, -1}},
    {Transform::flipHorizontal, {-1, 0}, {0, 1}}, {Transform::transpose, {0, 1}, {1, 0}},
    {Transform::antiTranspose, {0, -1}, {-1, 0}},
};
int Place(const int (&of)[2], int x, int y, LONG extent) {
    return of[0] * x + of[1] * y + (of[0] + of[1] < 0 ? static_cast<int>(extent) - 1 : 0);
}

class MoveEveryPixel : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, MoveEveryPixel, testing::ValuesIn(Levels()), LevelName);

TEST_P(MoveEveryPixel, ToItsPlaceAndTouchNoOtherByte) {
    Random random(1);
    for (const Move& move : moves)
        for (const int depth : {8, 24, 32})
            for (const auto& [width, height] :
                 {std::pair{1, 1}, {3, 2}, {1, 45}, {45, 1}, {16, 16}, {15, 33}, {32, 17}, {70, 5}, {37, 71}}) {
                const bool turns = move.across[0] == 0;
                const Image source(random, width, height, depth, {3, 1});
                const Image moved(turns ? height : width, turns ? width : height, depth, {random.Below(6), 3});
                Image wanted = moved;
                for (int y = 0; y < height; ++y)
                    for (int x = 0; x < width; ++x)
                        wanted.Set(Place(move.across, x, y, moved.Info().bmWidth),
                                   Place(move.down, x, y, moved.Info().bmHeight), source.At(x, y));
                MovePixels(moved.Info(), source.Info(), move.transform);
                ASSERT_TRUE(SameBytes(moved, wanted))
                    << width << " x " << height << ", transform " << static_cast<int>(move.transform);
            }
}

}  // namespace
}  // namespace zorvic
