#include "calls/minimizer.h"

#include <windows.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <numeric>
#include <vector>

#include "calls/sequence.h"

namespace calls {

namespace {

LONG CALLBACK EndProcess(EXCEPTION_POINTERS* happened) {
    const EXCEPTION_RECORD& record = *happened->ExceptionRecord;
    constexpr DWORD error = 0xC0000000, assertion = 0x80000101, cppException = 0x20000000;
    const DWORD code = record.ExceptionCode;
    if (code != assertion && ((code & error) != error || (code & cppException) != 0)) return EXCEPTION_CONTINUE_SEARCH;
    HMODULE module = nullptr;
    char name[MAX_PATH] = "no module";
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const char*>(record.ExceptionAddress), &module);
    if (module) GetModuleFileNameA(module, name, sizeof name);
    std::printf(
        "crash %08lX at offset %lX of %s\n", code,
        static_cast<DWORD>(static_cast<const char*>(record.ExceptionAddress) - reinterpret_cast<const char*>(module)),
        name);
    std::cout.flush();
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_CONTINUE_SEARCH;
}

std::string OwnPath() {
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, sizeof path);
    return path;
}

struct Outcome {
    bool failed;
    std::string output;
};

// Runs this program with other arguments. A process that takes minutes hangs.
Outcome RunSelf(const std::string& arguments) {
    constexpr DWORD limit = 300'000;  // ms
    const std::string path = OwnPath() + ".log";
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE log = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                   CREATE_ALWAYS, 0, nullptr);
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = log;
    PROCESS_INFORMATION process{};
    std::string line = "\"" + OwnPath() + "\" " + arguments;
    DWORD code = 1;
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process)) {
        if (WaitForSingleObject(process.hProcess, limit) != WAIT_OBJECT_0) TerminateProcess(process.hProcess, 2);
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(log);
    std::ifstream file(path);
    return {code != 0, {std::istreambuf_iterator<char>(file), {}}};
}

std::string RangeText(int first, int end) { return " " + std::to_string(first) + " " + std::to_string(end); }

// The first number of a range with which the program fails, or end; output: that of the whole range.
int FirstFailing(const std::string& mode, int first, int end, std::string& output) {
    const Outcome whole = RunSelf(mode + RangeText(first, end));
    output = whole.output;
    if (!whole.failed) return end;
    while (end - first > 1) {
        const int middle = std::midpoint(first, end);
        (RunSelf(mode + RangeText(first, middle)).failed ? end : first) = middle;
    }
    return first;
}

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

void ReportCrashes() { AddVectoredExceptionHandler(1, EndProcess); }

std::string FaultOfSeeds(int first, int end, const std::string& mode) {
    std::string output;
    const int seed = FirstFailing(mode + " --seeds", first, end, output);
    if (seed == end) return {};
    const std::string replay = mode + ReplayText(seed, FewestCalls(seed, mode));
    const Outcome last = RunSelf(replay);
    if (!last.failed) return "Not to be repeated alone, seed " + std::to_string(seed) + ": " + output;
    return "call_tests " + replay + "\n" + last.output;
}

std::string FaultOfExports(int first, int end) {
    std::string output;
    const int place = FirstFailing("--edges", first, end, output);
    if (place == end) return {};
    output = RunSelf("--edge " + std::to_string(place)).output;
    // The last lines: the call, and what happened.
    std::size_t start = output.size();
    for (int lines = 0; lines < 3 && start != std::string::npos; ++lines) start = output.rfind('\n', start - 1);
    return start == std::string::npos ? output : output.substr(start + 1);
}

}  // namespace calls
