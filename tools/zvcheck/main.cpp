// zvcheck: does every form of every kernel draw the same pixels on this processor? Prints a checksum for each slot and
// "identical", or for each form the first slot that differs.
//   zvcheck            the table and the forms of this processor
//   zvcheck --table    the table alone, to be compared with another machine's
//   zvcheck TABLE.txt  the forms of this processor and that table, as another machine printed it
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "checksums.h"
#include "raster/kernel_table.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace zorvic {
namespace {

using Table = std::vector<std::string>;

const char* NameOf(Rows rows) {
    constexpr const char* names[] = {"solid", "unscaled", "nearest", "bilinear", "bicubic", "area"};
    return names[static_cast<int>(rows)];
}

const char* NameOf(Op op) {
    constexpr const char* names[] = {"copy",      "source-over", "constant-alpha",   "opaque-alpha",
                                     "color-key", "multiply",    "destination-over", "or",
                                     "gray-wash", "cross-fade",  "mix-color",        "make-opaque"};
    return names[static_cast<int>(op)];
}

std::string LineOf(const SlotCall& slot, std::uint64_t checksum) {
    char line[80];
    std::snprintf(line, sizeof line, "%3d  %2d  %-8s  %-16s  %08lx%08lx", slot.slot, slot.bitsPixel, NameOf(slot.rows),
                  NameOf(slot.op), static_cast<unsigned long>(checksum >> 32),
                  static_cast<unsigned long>(checksum & 0xFFFFFFFF));
    return line;
}

std::vector<SlotCall> SlotsInOrder() {
    std::vector<SlotCall> slots = AllSlotCalls();
    std::ranges::sort(slots, {}, &SlotCall::slot);
    return slots;
}

Table TableOf(const std::vector<SlotCall>& slots, const KernelSet& kernels) {
    Table table;
    for (const SlotCall& slot : slots) table.push_back(LineOf(slot, ChecksumOf(slot, kernels)));
    return table;
}

Table TableIn(const char* file) {
    Table table;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r')) line.pop_back();
        table.push_back(line);
    }
    return table;
}

// Says how a table compares with the one that all have to equal.
bool Compare(const char* name, const Table& got, const Table& wanted) {
    if (got == wanted) {
        std::printf("%-16s identical\n", name);
        return true;
    }
    std::size_t i = 0;
    while (i < got.size() && i < wanted.size() && got[i] == wanted[i]) ++i;
    std::printf("%-16s differs first at\n  %s\n  instead of\n  %s\n", name,
                i < got.size() ? got[i].c_str() : "(the end)", i < wanted.size() ? wanted[i].c_str() : "(the end)");
    return false;
}

// The set's own slots; those that the routed kernels leave out come from the wanted table.
Table TableOf(const NamedKernels& set, const std::vector<SlotCall>& slots, const Table& wanted) {
    LimitLevel(set.form);
    Table table = wanted;
    for (std::size_t i = 0; i < slots.size(); ++i)
        if (IsInSet(set, slots[i])) table[i] = LineOf(slots[i], ChecksumOf(slots[i], *set.kernels));
    LimitLevel(widestLevel);
    return table;
}

bool CompareForms(const std::vector<SlotCall>& slots, const Table& wanted) {
    bool same = true;
    for (const NamedKernels& set : kernelSets) {
        // Plain weights give other bicubic pixels than packed ones, on purpose: they are for processors without MMX.
        if (!set.packedWeights) continue;
        if (set.form > BestLevel())
            std::printf("%-16s not on this processor\n", set.name);
        else
            same &= Compare(set.name, TableOf(set, slots, wanted), wanted);
    }
    return same & Compare("library's choice", TableOf(slots, KernelTable), wanted);
}

int Run(const char* argument) {
    const std::vector<SlotCall> slots = SlotsInOrder();
    const Table table = TableOf(slots, packedKernels);
    const bool bare = argument != nullptr && std::string(argument) == "--table";
    if (bare || argument == nullptr)
        for (const std::string& line : table) std::printf("%s\n", line.c_str());
    if (bare) return 0;

    std::printf("\n");
    bool same = CompareForms(slots, table);
    if (argument != nullptr) same &= Compare(argument, table, TableIn(argument));
    std::printf("(compared in packed bicubic weights, which all processors with MMX use)\n%s\n",
                same ? "identical" : "different");
    return same ? 0 : 1;
}

}  // namespace
}  // namespace zorvic

int main(int count, char** arguments) {
#ifdef _WIN32
    // Tables of all systems have the same line ends.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    const bool asks =
        count == 2 && std::string(arguments[1]).starts_with("--") && std::string(arguments[1]) != "--table";
    if (count > 2 || asks) {
        std::printf("usage: zvcheck [--table | TABLE.txt]\n");
        return 2;
    }
    return zorvic::Run(count == 2 ? arguments[1] : nullptr);
}
