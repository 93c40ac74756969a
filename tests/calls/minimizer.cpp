#include "calls/minimizer.h"

#include <process.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numeric>
#include <vector>

#include "calls/sequence.h"

namespace calls {

namespace {

struct Outcome {
    bool failed;
    std::string output;

    // From the last of these words on; all of it without them.
    std::string Last(const char* words) const {
        const std::size_t at = output.rfind(words);
        return at == output.npos ? "ended without a word: " + output : output.substr(at);
    }
};

// Runs this program with other arguments.
Outcome RunSelf(const std::string& arguments) {
    const auto code = _spawnl(_P_WAIT, _pgmptr, "call_tests", intoLog, arguments.c_str(), nullptr);
    std::ifstream file(LogPath());
    return {code != 0, {std::istreambuf_iterator<char>(file), {}}};
}

std::string RangeText(int first, int end) { return " " + std::to_string(first) + " " + std::to_string(end); }

std::string ReplayText(int seed, const std::vector<int>& calls) {
    std::string text = " --seed " + std::to_string(seed) + " --calls ";
    for (const int call : calls) text += (call == calls.front() ? "" : ",") + std::to_string(call);
    return text;
}

// Leaves out ever smaller parts of the calls, as long as what is left still fails.
std::vector<int> FewestCalls(int seed, const std::string& mode) {
    std::vector<int> calls(callsOfSequence);
    std::iota(calls.begin(), calls.end(), 0);
    for (std::size_t part = calls.size(); part > 0; part /= 2)
        for (std::size_t at = 0; at < calls.size();) {
            std::vector<int> fewer = calls;
            const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
            fewer.erase(first, first + static_cast<std::ptrdiff_t>(std::min(part, calls.size() - at)));
            if (!fewer.empty() && RunSelf(mode + ReplayText(seed, fewer)).failed)
                calls = fewer;
            else
                at += part;
        }
    return calls;
}

}  // namespace

std::string LogPath() { return std::string(_pgmptr) + ".log"; }

std::string FaultOfSeeds(int first, int end, const std::string& mode) {
    const Outcome all = RunSelf(mode + " --seeds" + RangeText(first, end));
    if (!all.failed) return {};
    const std::string fault = all.Last("seed ");
    if (!fault.starts_with("seed ")) return fault;
    const int seed = std::stoi(fault.substr(5));
    const std::string replay = mode + ReplayText(seed, FewestCalls(seed, mode));
    const Outcome last = RunSelf(replay);
    return last.failed ? "call_tests " + replay + "\n" + last.output : "Not to be repeated alone: " + fault;
}

std::string FaultOfExports(int first, int end) {
    const Outcome all = RunSelf("--edges" + RangeText(first, end));
    return all.failed ? all.Last("export ") : "";
}

}  // namespace calls
