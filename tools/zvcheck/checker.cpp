#include "checker.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <stdexcept>

namespace zorvic {

namespace {

bool IsReduction(const Job& job) {
    return job.src.bmWidth >= job.placement.width && job.src.bmHeight >= job.placement.height;
}

// Whether the baseline's weights make no difference.
bool IsComparable(const SlotCall& slot, const Job& job) {
    return slot.rows != Rows::bicubic && (slot.rows != Rows::area || IsReduction(job));
}

}  // namespace

std::vector<Subject> AllSubjects() {
    std::vector<Subject> subjects;
    for (const bool packedWeights : {true, false})
        for (const SlotCall& slot : AllSlotCalls())
            if (packedWeights || slot.rows == Rows::bicubic || slot.rows == Rows::area)
                subjects.push_back({slot, packedWeights});
    const auto order = [](const Subject& s) { return std::pair{!s.packedWeights, s.slot.slot}; };
    std::ranges::sort(subjects, {}, order);
    return subjects;
}

Checker::Checker(const Subject& checkedSubject) : subject(checkedSubject) {
    if (!subject.packedWeights) {
        FillTables({});
        forms.push_back({"baseline", &baselineKernels, Level::generic});
        return;
    }
    forms.push_back({"packed", &packedKernels, Level::generic});
    for (const NamedKernels& set : kernelSets)
        if (set.kernels != &packedKernels && set.form <= BestLevel() && IsInSet(set, subject.slot))
            forms.push_back({set.name, set.kernels, set.form});
    forms.push_back({"library's choice", &KernelTable, widestLevel});
}

Checker::~Checker() {
    if (!subject.packedWeights) InitKernelTable();
}

const Job& Checker::Prepare(int number) {
    caseNumber = number;
    return job = MakeCase(subject.slot, number, images);
}

void Checker::RunForms() {
    for (Form& form : forms)
        if (!form.failed) Run(form);
    LimitLevel(widestLevel);
    if (!images.src.Holds(images.srcBytes)) failures.push_back({"some form", caseNumber, "wrote to the source"});
    AddToChecksum();
}

void Checker::Run(Form& form) {
    const bool isFirst = &form == forms.data();
    if (form.kernels == &baselineKernels && !isFirst && !IsComparable(subject.slot, job)) return;
    if (form.kernels == &routedKernels) LimitLevel(form.level);
    images.dst.Put(images.dstBytes);
    std::string fault;
    running = form.name;
    try {
        if (subject.slot.run(*form.kernels, job) != 1) fault = "did not return 1";
    } catch (const std::runtime_error& broken) {
        fault = std::string("not left as found: ") + broken.what();
    }
    if (isFirst) images.dst.Get(wanted);
    if (fault.empty()) fault = isFirst ? ChangeOutside() : DifferenceFromFirst();
    if (fault.empty()) return;
    failures.push_back({form.name, caseNumber, fault});
    form.failed = true;
}

std::string Checker::ChangeOutside() {
    // The rows are what may change.
    expected = images.dstBytes;
    for (int y = 0; y < job.dst.bmHeight; ++y) {
        const auto start = static_cast<std::ptrdiff_t>(images.dst.RowStart(y));
        std::copy_n(wanted.begin() + start, images.dst.Shape().RowBytes(), expected.begin() + start);
    }
    return wanted == expected ? std::string() : images.dst.DifferenceBetween(wanted, expected);
}

std::string Checker::DifferenceFromFirst() const {
    if (images.dst.Holds(wanted)) return {};
    ImageBytes got;
    images.dst.Get(got);
    return images.dst.DifferenceBetween(got, wanted);
}

// Two sums of alternate words: a byte at a time takes longer than many a kernel.
void Checker::AddToChecksum() {
    wanted.resize((wanted.size() + 7) / 8 * 8);
    for (std::size_t i = 0; i < wanted.size(); i += 8) {
        std::uint32_t words[2];
        std::memcpy(words, wanted.data() + i, sizeof words);
        for (int k = 0; k < 2; ++k) sums[k] = (std::rotl(sums[k], 5) ^ words[k]) * 0x9E3779B1U;
    }
}

}  // namespace zorvic
