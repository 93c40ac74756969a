// Whether two jobs do the same work: times of different pictures say nothing.
#pragma once

#include "contenders.h"

namespace bench {

// The mean difference of a channel, 0..255, between what the jobs make of the row's target.
double MeanDifference(Surfaces& images, const Job& job, const Job& other);

// The largest that rounding and the place of samples explain.
double AllowedDifference(const Row& row);

}  // namespace bench
