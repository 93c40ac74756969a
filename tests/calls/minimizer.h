// Sequences in processes of their own, so that a crash is seen and the calls that lead to it are found.
#pragma once

#include <string>

namespace calls {

// Makes crashes end this process quietly, with a line that tells the kind and the place.
void ReportCrashes();

// Runs the sequences of the seeds in [first, end). Returns the first one's fault with the fewest calls that still show
// it, and how to repeat it; empty when there is none.
std::string FaultOfSeeds(int first, int end);

}  // namespace calls
