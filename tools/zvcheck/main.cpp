// zvcheck: does every form of every kernel draw the same pixels on this processor, and touch nothing else? Runs the same
// numbered cases everywhere; see docs/64-bit.md.
//   zvcheck                        1,000 cases of each slot; writes the table of checksums to standard output
//   zvcheck TABLE.txt              compares with the table of another machine instead of printing one
//   zvcheck --cases N [TABLE.txt]  so many cases; the table has a second column from 10,000 on, a third from 100,000 on
//   zvcheck --soak-cases N ...     so many instead where the environment says ZORVIC_SOAK=1
//   zvcheck --slot S [--cases N]   this slot's cases
//   zvcheck --slot S --case N      one case: what it is, and which form differs where
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>

#include "support/amount.h"
#include "table.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace zorvic {
namespace {

// What runs, for the last words of a program that touched what it may not.
const Checker* runningChecker;
int runningSlot;

void OnForbiddenAccess(int) {
    std::fprintf(stderr, "%s: slot %d, case %d: touches memory outside its images\n", runningChecker->RunningForm(),
                 runningSlot, runningChecker->CaseNumber());
    std::_Exit(1);
}

std::unique_ptr<Checker> MakeChecker(const Subject& subject) {
    auto checker = std::make_unique<Checker>(subject);
    runningChecker = checker.get();
    runningSlot = subject.slot.slot;
    return checker;
}

bool PrintFailures(const Checker& checker, int slot) {
    for (const Failure& failure : checker.Failures())
        std::fprintf(stderr, "%s: slot %d, case %d: %s\n", failure.form.c_str(), slot, failure.caseNumber,
                     failure.what.c_str());
    return checker.Failures().empty();
}

int Verdict(bool same) {
    std::fprintf(stderr, "%s\n", same ? "identical" : "different");
    return same ? 0 : 1;
}

int Replay(int slot, int caseNumber) {
    bool same = true;
    for (const Subject& subject : AllSubjects()) {
        if (subject.slot.slot != slot) continue;
        const auto checker = MakeChecker(subject);
        std::printf("%s\n", DescriptionOf(checker->Prepare(caseNumber)).c_str());
        checker->RunForms();
        same &= PrintFailures(*checker, slot);
    }
    return Verdict(same);
}

void PrintForms() {
    std::fprintf(stderr, "forms:");
    for (const NamedKernels& set : kernelSets)
        std::fprintf(stderr, " %s%s", set.name, set.form > BestLevel() ? " (not on this processor)" : "");
    std::fprintf(stderr, "\n");
}

// Slot -1 stands for all of them.
int CheckCases(int slot, int cases, const char* tableFile) {
    PrintForms();
    bool same = true;
    Table table;
    for (const Subject& subject : AllSubjects()) {
        if (slot >= 0 && subject.slot.slot != slot) continue;
        const auto checker = MakeChecker(subject);
        std::vector<std::uint64_t> checksums;
        for (int i = 0; i < cases; ++i) {
            checker->Prepare(i);
            checker->RunForms();
            if (std::count(std::begin(columns), std::end(columns), i + 1) > 0) checksums.push_back(checker->Checksum());
        }
        table.push_back(LineOf(subject, checksums));
        if (tableFile == nullptr) std::printf("%s\n", table.back().c_str());
        same &= PrintFailures(*checker, subject.slot.slot);
    }
    if (tableFile != nullptr) same &= Compare(tableFile, table, TableIn(tableFile));
    return Verdict(same);
}

// Takes an option and its number off the arguments.
int TakeNumber(std::vector<const char*>& arguments, const char* option, int otherwise) {
    for (std::size_t i = 0; i + 1 < arguments.size(); ++i) {
        if (std::strcmp(arguments[i], option) != 0) continue;
        const int number = std::atoi(arguments[i + 1]);
        arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(i),
                        arguments.begin() + static_cast<std::ptrdiff_t>(i) + 2);
        return number;
    }
    return otherwise;
}

int Run(std::vector<const char*> arguments) {
    const int usual = TakeNumber(arguments, "--cases", columns[0]);
    const int cases = Amount(usual, TakeNumber(arguments, "--soak-cases", usual));
    const int slot = TakeNumber(arguments, "--slot", -1), caseNumber = TakeNumber(arguments, "--case", -1);
    const bool hasTable = arguments.size() == 1 && arguments[0][0] != '-' && slot < 0;
    if ((!arguments.empty() && !hasTable) || (caseNumber >= 0 && slot < 0)) {
        std::printf("usage: zvcheck [--cases N] [TABLE.txt] | --slot S [--cases N | --case N]\n");
        return 2;
    }
    std::signal(SIGSEGV, OnForbiddenAccess);
    if (caseNumber >= 0) return Replay(slot, caseNumber);
    return CheckCases(slot, cases, hasTable ? arguments[0] : nullptr);
}

}  // namespace
}  // namespace zorvic

int main(int count, char** arguments) {
#ifdef _WIN32
    // Tables of all systems have the same line ends.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    return zorvic::Run({arguments + 1, arguments + count});
}
