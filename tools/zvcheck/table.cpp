#include "table.h"

#include <cstdio>
#include <fstream>

namespace zorvic {

namespace {

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

}  // namespace

std::string LineOf(const Subject& subject, const std::vector<std::uint64_t>& checksums) {
    char text[80];
    std::snprintf(text, sizeof text, "%3d  %2d  %-8s  %-16s  %-6s", subject.slot.slot, subject.slot.bitsPixel,
                  NameOf(subject.slot.rows), NameOf(subject.slot.op), subject.packedWeights ? "packed" : "plain");
    std::string line = text;
    for (const std::uint64_t sum : checksums) {
        std::snprintf(text, sizeof text, "  %08lx%08lx", static_cast<unsigned long>(sum >> 32),
                      static_cast<unsigned long>(sum & 0xFFFFFFFF));
        line += text;
    }
    return line;
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

bool Compare(const char* name, const Table& got, const Table& wanted) {
    const std::string end = "(the end)";
    for (std::size_t i = 0; i < got.size() || i < wanted.size(); ++i) {
        const std::string& gotLine = i < got.size() ? got[i] : end;
        const std::string& wantedLine = i < wanted.size() ? wanted[i] : end;
        if (gotLine.starts_with(wantedLine) || wantedLine.starts_with(gotLine)) continue;
        std::fprintf(stderr, "%s:%u says\n  %s\nhere it is\n  %s\n", name, static_cast<unsigned>(i + 1),
                     wantedLine.c_str(), gotLine.c_str());
        return false;
    }
    return true;
}

}  // namespace zorvic
