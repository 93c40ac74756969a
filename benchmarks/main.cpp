// zvbench [--quick] [--only TEXT] [--form LEVEL] [--json FILE] [--svg FILE]
// Measures zorvic32.dll against pixman, GDI and the machine's own limits. With --form it measures the pixel engine
// inside this program, limited to a form: generic, mmx, sse, sse2, avx2, avx512.
#include <intrin.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include "agreement.h"
#include "contenders.h"
#include "report.h"

namespace {

using namespace bench;

struct Options {
    bool quick = false;
    std::string only, form, json, svg;
};

Options ParseArguments(int count, char** words) {
    Options options;
    const std::pair<std::string_view, std::string*> texts[]{
        {"--only", &options.only}, {"--form", &options.form}, {"--json", &options.json}, {"--svg", &options.svg}};
    for (int i = 1; i < count; ++i) {
        const std::string_view word = words[i];
        bool known = word == "--quick";
        options.quick |= known;
        for (const auto& [name, text] : texts)
            if (word == name && i + 1 < count) {
                *text = words[++i];
                known = true;
            }
        if (!known)
            throw std::invalid_argument(
                "usage: zvbench [--quick] [--only TEXT] [--form LEVEL] [--json FILE] [--svg FILE]");
    }
    return options;
}

std::string ProcessorName() {
    char name[49]{};
    for (int i = 0; i < 3; ++i) {
        int registers[4];
        __cpuid(registers, static_cast<int>(0x80000002U + static_cast<unsigned>(i)));
        std::memcpy(name + 16 * i, registers, sizeof registers);
    }
    return name;
}

double UnitsOf(const Row& row, const Surfaces& images) {
    switch (row.per) {
        case Per::call:
            return 1;
        case Per::sourcePixel:
            return static_cast<double>(PixelCount(images.source));
        case Per::pixelAndPass:
            return 2 * static_cast<double>(PixelCount(images.target));
        case Per::pixel:
            break;
    }
    return static_cast<double>(PixelCount(images.target));
}

Result MeasureRow(const Row& row, SIZE size, bool engineOnly, Rounds rounds) {
    rounds.restoresRuns = row.wears;
    Surfaces images(row, size);
    Job library = engineOnly ? Job{} : ExportJob(row, images);
    Result result{&row, size, !library, {}};
    if (!library) library = EngineJob(row, images);
    if (!library) return result;

    const Job pixman = PixmanJob(row, images);
    if (pixman && MeanDifference(images, library, pixman) > AllowedDifference(row))
        throw std::runtime_error("pixman draws another picture: " + TitleOf(row));
    auto times = Measure(
        {library, pixman, GdiJob(row, images), LimitJob(row, images)}, [&] { images.Restore(); }, rounds);
    for (std::size_t i = 0; i < times.size(); ++i) {
        // Limits are those of one pass over the pixels.
        const bool isLimit = i == static_cast<std::size_t>(Who::limit);
        const double units = isLimit && row.per == Per::pixelAndPass ? UnitsOf(row, images) / 2 : UnitsOf(row, images);
        for (double& seconds : times[i]) seconds *= 1e9 / units;
        result.times[i] = std::move(times[i]);
    }
    return result;
}

Report Run(const Options& options) {
    if (!options.form.empty() && !UseForm(options.form))
        throw std::invalid_argument("no form " + options.form + " here");
    const Rounds rounds = options.quick ? Rounds{9, 0.0004} : Rounds{31, 0.0008};
    const std::vector<SIZE> sizes =
        options.quick ? std::vector<SIZE>{{512, 512}} : std::vector<SIZE>{{64, 64}, {512, 512}, {1920, 1080}};
    Report report{ProcessorName(), options.form, {}, {}};
    for (const Row& row : AllRows()) {
        if (TitleOf(row).find(options.only) == std::string::npos) continue;
        const std::vector<SIZE> own{{row.drawnSize, row.drawnSize}};
        for (const SIZE size : row.drawnSize ? own : sizes) {
            Result result = MeasureRow(row, size, !options.form.empty(), rounds);
            if (!result.Of(Who::library).empty()) report.results.push_back(std::move(result));
        }
        std::fprintf(stderr, "measured: %s\n", TitleOf(row).c_str());
    }
    if (options.form.empty()) report.extremes = MeasureExtremeCalls(options.only);
    if (report.results.empty() && report.extremes.empty())
        throw std::invalid_argument("no operation has \"" + options.only + "\" in its name");
    return report;
}

void WriteFile(const std::string& name, const Report& report, void (*write)(const Report&, std::ostream&)) {
    if (name.empty()) return;
    std::ofstream file(name, std::ios::binary);
    write(report, file);
    file.close();
    if (!file) throw std::runtime_error("cannot write " + name);
}

}  // namespace

int main(int count, char** words) {
    try {
        const Options options = ParseArguments(count, words);
        const Report report = Run(options);
        PrintTable(report);
        PrintTargets(report);
        PrintExtremes(report);
        WriteFile(options.json, report, WriteJson);
        WriteFile(options.svg, report, WriteChart);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "zvbench: %s\n", failure.what());
        return 1;
    }
}
