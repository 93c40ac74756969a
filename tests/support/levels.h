// For suites that run once at every level that this processor has: they derive from AtLevel.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "pixel/primitive_set.h"

namespace zorvic {

inline std::vector<Level> Levels() {
    std::vector<Level> levels;
    for (const Level level : {Level::generic, Level::sse2, Level::avx2, Level::avx512})
        if (LimitLevel(level) == level) levels.push_back(level);
    return levels;
}

class AtLevel : public testing::TestWithParam<Level> {
protected:
    AtLevel() { LimitLevel(GetParam()); }
    ~AtLevel() override { LimitLevel(widestLevel); }
};

inline const char* LevelName(const testing::TestParamInfo<Level>& info) {
    constexpr const char* names[] = {"generic", "sse2", "avx2", "avx512"};
    return names[static_cast<int>(info.param)];
}

}  // namespace zorvic
