#include "support/cpu_state.h"

#if ZORVIC_WATCHES_CALLS

#include <cstddef>

namespace zorvic {

namespace {

constexpr std::uint32_t mark = 0x5EA1C0DE;  // in each register that calls keep

// Asked and answered; the assembly knows the offsets.
struct Record {
    const void* function;
    const std::uint32_t* words;
    std::size_t count;
    int residue;
    std::uint32_t returnsReal;

    std::uint32_t result;
    double real;
    std::uint32_t ebx, esi, edi, ebp, espBefore, espAfter, flags;
    std::uint32_t mxcsrBefore, mxcsrAfter;
    std::uint16_t controlBefore, unused;
    std::uint32_t x87[7];  // control, status, tags...
};
static_assert(offsetof(Record, result) == 20 && offsetof(Record, ebx) == 32 && offsetof(Record, x87) == 72);

asm(R"(
    .text
zorvicRunWatched:
    pushl %ebp
    pushl %ebx
    pushl %esi
    pushl %edi
    movl 20(%esp), %eax
    movl %eax, zorvicWatchedRecord
    movl %esp, zorvicWatchedStack

    movl 4(%eax), %esi
    movl 8(%eax), %ecx
    leal (,%ecx,4), %edx
    subl %edx, %esp
    andl $-16, %esp
    subl $16, %esp
    addl 12(%eax), %esp
    movl %esp, %edi
    rep movsl
    movl %esp, 48(%eax)
    stmxcsr 60(%eax)
    fnstcw 68(%eax)

    movl $0x5EA1C0DE, %ebx
    movl %ebx, %esi
    movl %ebx, %edi
    movl %ebx, %ebp
    call *(%eax)

    movl %eax, %ecx
    movl zorvicWatchedRecord, %eax
    movl %ecx, 20(%eax)
    movl %ebx, 32(%eax)
    movl %esi, 36(%eax)
    movl %edi, 40(%eax)
    movl %ebp, 44(%eax)
    movl %esp, 52(%eax)
    movl zorvicWatchedStack, %esp
    pushfl
    popl 56(%eax)
    cld
    stmxcsr 64(%eax)
    cmpl $0, 16(%eax)
    je 1f
    fstpl 24(%eax)
1:  fnstenv 72(%eax)
    fldcw 72(%eax)
    emms

    popl %edi
    popl %esi
    popl %ebx
    popl %ebp
    ret

    .lcomm zorvicWatchedRecord, 4
    .lcomm zorvicWatchedStack, 4
    .text
)");

extern "C" void RunWatched(Record*) asm("zorvicRunWatched");

const char* WhatBroke(const Record& r) {
    constexpr std::uint32_t directionFlag = 0x400, mxcsrControls = 0xFFC0;  // the other bits tell what happened
    if (r.espAfter != r.espBefore) return "stack pointer";
    if (r.ebx != mark || r.esi != mark || r.edi != mark || r.ebp != mark) return "ebx, esi, edi or ebp";
    if ((r.flags & directionFlag) != 0) return "direction flag";
    if ((r.x87[0] & 0xFFFF) != r.controlBefore) return "x87 control word";
    if ((r.x87[2] & 0xFFFF) != 0xFFFF) return "x87 registers in use";
    if (((r.mxcsrBefore ^ r.mxcsrAfter) & mxcsrControls) != 0) return "MXCSR";
    return nullptr;
}

}  // namespace

CallOutcome CallWatched(const void* function, std::span<const std::uint32_t> words, int residue, bool returnsReal) {
    Record record{};
    record.function = function;
    record.words = words.data();
    record.count = words.size();
    record.residue = residue;
    record.returnsReal = returnsReal;
    RunWatched(&record);
    return {record.result, record.real, WhatBroke(record)};
}

}  // namespace zorvic

#endif
