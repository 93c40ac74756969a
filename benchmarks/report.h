// The results as a table for people, as JSON and as a chart.
#pragma once

#include <ostream>

#include "extreme_calls.h"
#include "results.h"

namespace bench {

struct Report {
    std::string processor;
    std::string form;  // empty: the DLL, in the form that it chose itself
    std::vector<Result> results;
    std::vector<ExtremeResult> extremes;

    bool IsNarrow() const { return form == "sse2"; }
};

void PrintTable(const Report& report);
void PrintTargets(const Report& report);
void PrintExtremes(const Report& report);
void WriteJson(const Report& report, std::ostream& out);
void WriteChart(const Report& report, std::ostream& out);  // SVG

}  // namespace bench
