// Every export as a random call. Besides the tests there are four modes of this program:
//   call_tests --seed N [--calls I,J,K...]   makes the calls of a sequence, or some of them, and prints each one before
//   call_tests --seeds FIRST END             runs the sequences of several seeds
//   call_tests --edge N, --edges FIRST END   calls exports, by their places in the table, with edge rectangles
// After --states each sequence is run under processors in several states.
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "calls/edges.h"
#include "calls/minimizer.h"
#include "calls/sequence.h"
#include "calls/table.h"

namespace {

using namespace calls;

constexpr const char* inAllStates = "--states";

// Processes of so many sequences cost little, and a crash is found soon.
constexpr int sequencesOfProcess = 250;

TEST(Calls, KeepTheirPromisesInRandomSequences) {
    for (int first = 0; first < 5000; first += sequencesOfProcess)
        ASSERT_EQ(FaultOfSeeds(first, first + sequencesOfProcess), "");
}

TEST(Calls, DoNotDependOnTheProcessorsState) { ASSERT_EQ(FaultOfSeeds(0, sequencesOfProcess, inAllStates), ""); }

TEST(Calls, TakeAnyRectangle) {
    const int exports = static_cast<int>(Exports().size()), ofProcess = 20;
    for (int first = 0; first < exports; first += ofProcess)
        ASSERT_EQ(FaultOfExports(first, std::min(first + ofProcess, exports)), "");
}

int RunEdges(int first, int end, bool trace) {
    for (int place = first; place < end; ++place)
        if (const std::string fault = FaultOfEdges(place, trace); !fault.empty()) {
            std::cout << fault << std::endl;
            return 1;
        }
    return 0;
}

int RunSeeds(int first, int end, const Replay& replay, bool allStates) {
    for (int seed = first; seed < end; ++seed) {
        const SequenceResult result = allStates ? RunSequenceInAllStates(seed, replay) : RunSequence(seed, replay);
        if (result.fault.empty()) continue;
        std::cout << "seed " << seed << ", " << result.fault << std::endl;
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
    std::vector<std::string> words(argv + 1, argv + argc);
    const bool allStates = !words.empty() && words[0] == inAllStates;
    if (allStates) words.erase(words.begin());
    const bool isSeed = words.size() >= 2 && words[0] == "--seed";
    if (isSeed || (words.size() == 3 && words[0] == "--seeds")) {
        ReportCrashes();
        const int first = std::stoi(words[1]), end = isSeed ? first + 1 : std::stoi(words[2]);
        Replay replay;
        replay.trace = isSeed;
        if (isSeed && words.size() == 4) replay.only = Numbers(words[3]);
        return RunSeeds(first, end, replay, allStates);
    }
    const bool isEdge = words.size() == 2 && words[0] == "--edge";
    if (isEdge || (words.size() == 3 && words[0] == "--edges")) {
        ReportCrashes();
        const int first = std::stoi(words[1]), end = isEdge ? first + 1 : std::stoi(words[2]);
        return RunEdges(first, end, isEdge);
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
