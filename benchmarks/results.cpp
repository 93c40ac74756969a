// Ratios and verdicts.
#include "results.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

constexpr LONG standardSize = 512;

std::optional<double> Reached(const Target& target, const Result& result, const std::vector<Result>& all) {
    switch (target.of) {
        case Target::Of::pixman:
            return result.RatioTo(Who::pixman);
        case Target::Of::limit:
            return result.RatioTo(Who::limit);
        case Target::Of::nanoseconds:
            return Median(result.Of(Who::library));
        case Target::Of::row: {
            const auto other = std::ranges::find_if(all, [&](const Result& each) {
                return std::string_view(each.row->name) == target.row && each.size.cx == result.size.cx;
            });
            if (other == all.end()) return {};
            return Median(result.Of(Who::library)) / Median(other->Of(Who::library));
        }
        case Target::Of::nothing:
            break;
    }
    return {};
}

}  // namespace

std::optional<double> Result::RatioTo(Who who) const {
    if (Of(Who::library).empty() || Of(who).empty()) return {};
    return MedianRatio(Of(Who::library), Of(who));
}

std::vector<Verdict> Judge(const Result& result, const std::vector<Result>& all, bool narrow) {
    const Target narrowTargets[]{{Target::Of::pixman, result.row->narrowOfPixman}};
    const auto targets = narrow ? std::span<const Target>(narrowTargets) : std::span<const Target>(result.row->targets);
    std::vector<Verdict> verdicts;
    if (!IsStandardSize(result)) return verdicts;
    for (const Target& target : targets)
        if (const auto reached = Reached(target, result, all)) verdicts.push_back({target, *reached});
    return verdicts;
}

std::string TitleOf(const Row& row) {
    const bool byAlpha = row.operation == ZORVIC_OP_SOURCE_OVER && row.work == Work::draw && row.per != Per::call;
    if (!byAlpha) return row.name;
    const char* content = row.content == Content::opaque ? "opaque" : row.content == Content::random ? "random" : "UI";
    return std::string(row.name) + ", " + content;
}

std::string ToText(const Target& target) {
    char text[64];
    switch (target.of) {
        case Target::Of::pixman:
            std::snprintf(text, sizeof text, "%.2f of pixman", target.most);
            return text;
        case Target::Of::limit:
            std::snprintf(text, sizeof text, "%.2f of the limit", target.most);
            return text;
        case Target::Of::nanoseconds:
            std::snprintf(text, sizeof text, target.most < 100 ? "%.2f ns" : "%.0f ns", target.most);
            return text;
        case Target::Of::row:
            std::snprintf(text, sizeof text, "%.2f of %s", target.most, target.row);
            return text;
        case Target::Of::nothing:
            break;
    }
    return {};
}

bool IsStandardSize(const Result& result) { return result.row->drawnSize != 0 || result.size.cx == standardSize; }

}  // namespace bench
