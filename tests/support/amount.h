// How much a test does: what everyone runs, or the soak run's amount.
#pragma once

#include <cstdlib>

namespace zorvic {

inline int Amount(int usual, int soak) {
    static const bool soaks = std::getenv("ZORVIC_SOAK") != nullptr;
    return soaks ? soak : usual;
}

}  // namespace zorvic
