// Stops are sorted when they are asked for.
#include "color_stops.h"

#include <algorithm>

namespace zorvic::vek {

void ColorStops::Add(double offset, std::uint32_t color) { stops.push_back({std::clamp(offset, 0.0, 1.0), color}); }

const std::vector<Stop>& ColorStops::Shown() {
    if (sorted == stops.size()) return shown;
    std::ranges::stable_sort(stops, {}, &Stop::offset);
    shown.clear();
    int inPart = 0;
    for (const Stop& stop : stops) {
        const auto partOf = [](const Stop& s) { return static_cast<int>(s.offset * parts); };
        inPart = shown.empty() || partOf(shown.back()) != partOf(stop) ? 1 : inPart + 1;
        if (inPart > 2) shown.pop_back();
        shown.push_back(stop);
    }
    sorted = stops.size();
    return shown;
}

}  // namespace zorvic::vek
