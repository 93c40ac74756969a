// Runs the cases of a slot through all forms, which have to leave the same bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cases.h"

namespace zorvic {

// A slot with filter weights of one encoding. Plain weights, for processors without MMX, give other bicubic pixels on
// purpose, so the one form that uses them has cases and checksums of its own.
struct Subject {
    SlotCall slot;
    bool packedWeights;
};
std::vector<Subject> AllSubjects();

struct Failure {
    std::string form;
    int caseNumber;
    std::string what;  // where the first wrong byte lies, what it is and was to be
};

class Checker {
public:
    explicit Checker(const Subject& checkedSubject);
    ~Checker();
    Checker(const Checker&) = delete;
    Checker& operator=(const Checker&) = delete;

    // Makes a case, and runs it through every form that has not failed yet.
    const Job& Prepare(int number);
    void RunForms();

    // Of all bytes that the first form left, guards included.
    std::uint64_t Checksum() const { return std::uint64_t{sums[1]} << 32 | sums[0]; }

    const std::vector<Failure>& Failures() const { return failures; }

    // For whom a form ends the program.
    int CaseNumber() const { return caseNumber; }
    const char* RunningForm() const { return running; }

private:
    struct Form {
        const char* name;
        const KernelSet* kernels;
        Level level;
        bool failed = false;
    };

    void Run(Form& form);
    // What is wrong with the destination, or nothing.
    std::string ChangeOutside();
    std::string DifferenceFromFirst() const;
    void AddToChecksum();

    Subject subject;
    std::vector<Form> forms;
    CaseImages images;
    Job job{};
    ImageBytes wanted, expected;
    std::uint32_t sums[2] = {};
    std::vector<Failure> failures;
    int caseNumber = 0;
    const char* running = "";
};

}  // namespace zorvic
