// The results as JSON: one object per row and size.
#include <ostream>

#include "report.h"

namespace bench {

namespace {

// Names here have no character that JSON would escape.
std::string Quoted(const std::string& text) { return '"' + text + '"'; }

void WriteTimes(std::ostream& out, const Times& times) {
    out << "{\"median\": " << Median(times) << ", \"least\": " << Least(times) << '}';
}

void WriteResult(const Report& report, const Result& result, std::ostream& out) {
    static constexpr const char* units[]{"pixel", "source pixel", "pixel and pass", "call"};
    out << "    {\"operation\": " << Quoted(TitleOf(*result.row)) << ", \"width\": " << result.size.cx
        << ", \"height\": " << result.size.cy
        << ", \"unit\": " << Quoted(std::string("ns per ") + units[static_cast<std::size_t>(result.row->per)])
        << ", \"engineOnly\": " << (result.engineOnly ? "true" : "false");
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (result.times[i].empty()) continue;
        out << ",\n     \"" << names[i] << "\": ";
        WriteTimes(out, result.times[i]);
    }
    const auto verdicts = Judge(result, report.results, report.IsNarrow());
    out << ",\n     \"targets\": [";
    for (std::size_t i = 0; i < verdicts.size(); ++i)
        out << (i ? ", " : "") << "{\"atMost\": " << Quoted(ToText(verdicts[i].target))
            << ", \"measured\": " << verdicts[i].reached << ", \"met\": " << (verdicts[i].IsMet() ? "true" : "false")
            << '}';
    out << "]}";
}

}  // namespace

void WriteJson(const Report& report, std::ostream& out) {
    out << "{\n  \"processor\": " << Quoted(report.processor) << ",\n  \"form\": " << Quoted(report.form)
        << ",\n  \"results\": [\n";
    for (std::size_t i = 0; i < report.results.size(); ++i) {
        WriteResult(report, report.results[i], out);
        out << (i + 1 < report.results.size() ? ",\n" : "\n");
    }
    out << "  ],\n  \"extremeCalls\": [\n";
    for (std::size_t i = 0; i < report.extremes.size(); ++i)
        out << "    {\"call\": " << Quoted(report.extremes[i].name)
            << ", \"milliseconds\": " << report.extremes[i].milliseconds << '}'
            << (i + 1 < report.extremes.size() ? ",\n" : "\n");
    out << "  ]\n}\n";
}

}  // namespace bench
