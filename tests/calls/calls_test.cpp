// Every export as a random call. Besides the tests there are three modes of this program:
//   call_tests --seed N [--calls I,J,K...]   makes the calls of a sequence, or some of them, and prints each one before
//   call_tests --seeds FIRST END             runs the sequences of several seeds
//   call_tests --edges FIRST END             calls exports, by their places in the table, with edge rectangles
// After --states each sequence is run under processors in several states.
#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <functional>
#include <iostream>
#include <sstream>
#include <thread>

#include "calls/minimizer.h"
#include "calls/sequence.h"
#include "support/allocations.h"
#include "support/amount.h"

namespace {

using namespace calls;

constexpr const char* inAllStates = "--states";

// Processes of so many sequences cost little, and a crash is found soon.
constexpr int sequencesOfProcess = 250;

TEST(Calls, KeepTheirPromisesInRandomSequences) {
    const int end = zorvic::Amount(500, 5000);
    for (int first = 0; first < end; first += sequencesOfProcess)
        ASSERT_EQ(FaultOfSeeds(first, first + sequencesOfProcess), "");
}

TEST(Calls, DoNotDependOnTheProcessorsState) {
    ASSERT_EQ(FaultOfSeeds(0, zorvic::Amount(80, sequencesOfProcess), inAllStates), "");
}

TEST(Calls, TakeAnyRectangle) {
    const int exports = static_cast<int>(Exports().size()), ofProcess = 20;
    for (int first = 0; first < exports; first += ofProcess)
        ASSERT_EQ(FaultOfExports(first, std::min(first + ofProcess, exports)), "");
}

std::set<int> Numbers(const std::string& list) {
    std::set<int> numbers;
    std::istringstream stream(list);
    for (std::string number; std::getline(stream, number, ',');) numbers.insert(std::stoi(number));
    return numbers;
}

// Prints the first fault for a number of [first, end), after a line with that number. False: there is none.
bool HasFault(const char* what, int first, int end, const std::function<std::string(int)>& faultOf) {
    Allocations::doing = CurrentCall;
    // On any machine a number takes less than this. What takes more hangs.
    constexpr DWORD patience = 600'000;
    static std::atomic<int> running;
    running = first;
    std::thread([] {
        for (int before = INT_MIN; before != running; Sleep(patience)) before = running;
        std::cout << "hangs in " << CurrentCall() << std::endl;
        TerminateProcess(GetCurrentProcess(), 2);
    }).detach();
    for (int i = first; i < end; ++i) {
        running = i;
        std::cout << what << i << std::endl;
        const std::string fault = faultOf(i);
        if (fault.empty()) continue;
        std::cout << fault << std::endl;
        return true;
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    const auto take = [&words](const char* word) {
        if (words.empty() || words[0] != word) return false;
        words.erase(words.begin());
        return true;
    };
    if (take(intoLog)) std::freopen(LogPath().c_str(), "w", stdout);
    Replay replay;
    replay.allStates = take(inAllStates);
    const std::string mode = words.size() < 2 ? "" : words[0];
    if (mode == "--edges") return HasFault("export ", std::stoi(words[1]), std::stoi(words.at(2)), FaultOfEdges);
    replay.trace = mode == "--seed";
    if (replay.trace || mode == "--seeds") {
        if (replay.trace && words.size() == 4) replay.only = Numbers(words[3]);
        const int first = std::stoi(words[1]), end = replay.trace ? first + 1 : std::stoi(words.at(2));
        return HasFault("seed ", first, end, [&](int seed) { return FaultOfSequence(seed, replay); });
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
