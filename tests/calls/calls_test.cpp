// Every export as a random call. Besides the tests there are two modes of this program:
//   call_tests --seed N [--calls I,J,K...]   makes the calls of a sequence, or some of them, and prints each one before
//   call_tests --seeds FIRST END             runs the sequences of several seeds
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "calls/minimizer.h"
#include "calls/sequence.h"

namespace {

using namespace calls;

constexpr int sequences = 5000, sequencesOfProcess = 250;

TEST(Calls, KeepTheirPromisesInRandomSequences) {
    for (int first = 0; first < sequences; first += sequencesOfProcess)
        ASSERT_EQ(FaultOfSeeds(first, first + sequencesOfProcess), "");
}

int RunSeeds(int first, int end, const Replay& replay) {
    for (int seed = first; seed < end; ++seed)
        if (const std::string fault = RunSequence(seed, replay).fault; !fault.empty()) {
            std::cout << "seed " << seed << ", " << fault << std::endl;
            return 1;
        }
    return 0;
}

std::set<int> Numbers(const std::string& list) {
    std::set<int> numbers;
    std::istringstream stream(list);
    for (std::string number; std::getline(stream, number, ',');) numbers.insert(std::stoi(number));
    return numbers;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const bool isSeed = words.size() >= 2 && words[0] == "--seed";
    if (isSeed || (words.size() == 3 && words[0] == "--seeds")) {
        ReportCrashes();
        const int seed = std::stoi(words[1]);
        Replay replay;
        replay.trace = isSeed;
        if (isSeed && words.size() == 4) replay.only = Numbers(words[3]);
        return RunSeeds(seed, isSeed ? seed + 1 : std::stoi(words[2]), replay);
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
