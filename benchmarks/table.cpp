// The tables on the console.
#include <cstdio>

#include "report.h"

namespace bench {

namespace {

std::string Number(std::optional<double> value, int digits) {
    if (!value) return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", digits, *value);
    return text;
}

std::string SizeText(const Result& result) {
    return std::to_string(result.size.cx) + " x " + std::to_string(result.size.cy);
}

const char* UnitOf(Per per) {
    switch (per) {
        case Per::sourcePixel:
            return "source pixel";
        case Per::pixelAndPass:
            return "pixel, pass";
        case Per::call:
            return "call";
        case Per::pixel:
            break;
    }
    return "pixel";
}

}  // namespace

void PrintTable(const Report& report) {
    std::printf("%s; %s\n", report.processor.c_str(),
                report.form.empty() ? "zorvic32.dll" : ("the engine alone, form " + report.form).c_str());
    std::printf("Medians in nanoseconds per unit; the last columns are the library's time divided by the others'.\n\n");
    std::printf("%-31s %-11s %-12s %9s %9s %9s %9s %8s %8s %8s\n", "operation", "size", "unit", "zorvic", "pixman",
                "GDI", "limit", "/pixman", "/GDI", "/limit");
    for (const Result& result : report.results) {
        std::printf("%-31s %-11s %-12s",
                    (TitleOf(*result.row) + (report.form.empty() && result.engineOnly ? " *" : "")).c_str(),
                    SizeText(result).c_str(), UnitOf(result.row->per));
        for (const Times& times : result.times)
            std::printf(" %9s", Number(times.empty() ? std::nullopt : std::optional(Median(times)),
                                       result.row->per == Per::call ? 1 : 3)
                                    .c_str());
        for (const Who who : {Who::pixman, Who::gdi, Who::limit})
            std::printf(" %8s", Number(result.RatioTo(who), 2).c_str());
        std::printf("\n");
    }
    if (report.form.empty()) std::printf("\n* by the engine inside this program: no export does this work alone\n");
}

void PrintTargets(const Report& report) {
    int met = 0, all = 0;
    std::printf("\n%-31s %-24s %9s  %s\n", "operation at 512 x 512", "target: at most", "measured", "met");
    for (const Result& result : report.results)
        for (const Verdict& verdict : Judge(result, report.results, report.IsNarrow())) {
            std::printf("%-31s %-24s %9s  %s\n", TitleOf(*result.row).c_str(), ToText(verdict.target).c_str(),
                        Number(verdict.reached, verdict.target.most < 0.1 ? 3 : 2).c_str(),
                        verdict.IsMet() ? "yes" : "no");
            ++all;
            met += verdict.IsMet();
        }
    std::printf("%d of %d targets met\n", met, all);
}

void PrintExtremes(const Report& report) {
    if (report.extremes.empty()) return;
    std::printf("\n%-51s %9s  at most %.0f\n", "one call with extreme numbers, 1920 x 1080", "ms", mostMilliseconds);
    for (const ExtremeResult& result : report.extremes)
        std::printf("%-51s %9.1f  %s\n", result.name, result.milliseconds, result.IsMet() ? "yes" : "no");
}

}  // namespace bench
