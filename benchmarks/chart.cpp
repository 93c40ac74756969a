// The chart: one bar per operation, as long as the library's time in units of pixman's, or of the limit's where pixman
// has no such operation.
#include <algorithm>
#include <ostream>

#include "report.h"

namespace bench {

namespace {

constexpr int width = 900, left = 235, right = 70, lineHeight = 19, barHeight = 12;
constexpr int headHeight = 48, footHeight = 12;  // of a panel: title and scale above, space below
constexpr const char *barColor = "#2f6fb5", *limitColor = "#d9822b", *textColor = "#24292f", *gridColor = "#d0d7de";

// A panel's bars share one unit and one scale.
struct Panel {
    const char* title;
    Who unit;
    double step;     // of the grid
    double longest;  // longer bars are cut
    std::vector<const Result*> results;

    double X(double ratio) const { return left + std::min(ratio, longest) / longest * (width - left - right); }
    int Height() const {
        return results.empty() ? 0 : headHeight + static_cast<int>(results.size()) * lineHeight + footHeight;
    }
};

void WriteText(std::ostream& out, double x, double y, const char* anchor, const std::string& text) {
    // White around the letters, where the line of 1 runs through them.
    out << "<text x=\"" << x << "\" y=\"" << y << "\" text-anchor=\"" << anchor
        << "\" stroke=\"#ffffff\" stroke-width=\"3\" paint-order=\"stroke\">" << text << "</text>\n";
}

std::string TwoDigits(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return text;
}

void WriteBar(std::ostream& out, const Panel& panel, const Result& result, int y) {
    const double ratio = *result.RatioTo(panel.unit);
    const double end = panel.X(ratio);
    WriteText(out, left - 8, y + 11, "end", TitleOf(*result.row));
    out << "<rect x=\"" << left << "\" y=\"" << y << "\" width=\"" << end - left << "\" height=\"" << barHeight
        << "\" fill=\"" << barColor << "\"/>\n";
    const auto limit = result.RatioTo(Who::limit);
    if (limit && panel.unit != Who::limit) {
        const double x = panel.X(ratio / *limit);
        out << "<rect x=\"" << x - 1.5 << "\" y=\"" << y - 2 << "\" width=\"3\" height=\"" << barHeight + 4
            << "\" fill=\"" << limitColor << "\"/>\n";
    }
    WriteText(out, end + 6, y + 11, "start", TwoDigits(ratio) + (ratio > panel.longest ? " \xE2\x86\x92" : ""));
}

void WritePanel(std::ostream& out, const Panel& panel, int top) {
    out << "<text x=\"12\" y=\"" << top + 18 << "\" font-weight=\"bold\">" << panel.title << "</text>\n";
    const int first = top + headHeight, last = top + panel.Height() - footHeight;
    for (double value = 0; value <= panel.longest; value += panel.step) {
        const double x = panel.X(value);
        out << "<line x1=\"" << x << "\" x2=\"" << x << "\" y1=\"" << first - 6 << "\" y2=\"" << last << "\" stroke=\""
            << (value == 1 ? textColor : gridColor) << "\"/>\n";
        WriteText(out, x, first - 10, "middle", TwoDigits(value));
    }
    int y = first;
    for (const Result* result : panel.results) {
        WriteBar(out, panel, *result, y);
        y += lineHeight;
    }
}

}  // namespace

void WriteChart(const Report& report, std::ostream& out) {
    Panel panels[]{
        {"Time in units of pixman's (shorter is faster), 512 x 512 and small draws; the mark is the machine's limit",
         Who::pixman,
         0.25,
         1.25,
         {}},
        {"No such operation in pixman: time in units of the machine's limit", Who::limit, 1, 5, {}}};
    for (const Result& result : report.results) {
        if (!IsStandardSize(result)) continue;
        for (Panel& panel : panels) {
            if (!result.RatioTo(panel.unit)) continue;
            panel.results.push_back(&result);
            break;
        }
    }
    const int height = panels[0].Height() + panels[1].Height();
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\"" << height
        << "\" viewBox=\"0 0 " << width << ' ' << height
        << "\" font-family=\"DejaVu Sans, Verdana, sans-serif\" font-size=\"13\" fill=\"" << textColor << "\">\n"
        << "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
    int top = 0;
    for (const Panel& panel : panels) {
        if (panel.results.empty()) continue;
        WritePanel(out, panel, top);
        top += panel.Height();
    }
    out << "</svg>\n";
}

}  // namespace bench
