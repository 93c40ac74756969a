// Sequences in processes of their own, so that a crash is seen and the calls that lead to it are found.
#pragma once

#include <string>

namespace calls {

inline constexpr const char* intoLog = "--log";  // a first argument of those processes: their output goes to LogPath()
std::string LogPath();

// Runs the sequences of the seeds in [first, end). Returns the first one's fault with the fewest calls that still show
// it, and how to repeat it; empty when there is none. mode: an argument that the processes get before the seeds.
std::string FaultOfSeeds(int first, int end, const std::string& mode = "");

// The fault of the edge rectangles of the exports at the places [first, end) of the table.
std::string FaultOfExports(int first, int end);

}  // namespace calls
