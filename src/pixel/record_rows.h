// Jobs on the memory that callers' records describe. That memory is one interval of bytes, and a job goes through rows of
// bytes at a step: what of a row lies outside is left out before any pixel is touched.
#pragma once

#include <algorithm>
#include <cstdint>

#include "pixel/primitives.h"

namespace zorvic {

// Numbers from begin on, below end; empty where end is not larger.
struct Range {
    std::int64_t begin, end;
};
constexpr Range Common(Range a, Range b) { return {std::max(a.begin, b.begin), std::min(a.end, b.end)}; }

// The bytes that a record describes, counted from its bits: from the first pixel to the last pixel of the last row, or from
// the last row's first one where rows run upwards. Empty for a size below 1 and for more bytes than memory has.
Range MemoryOf(const BITMAP& image);

// Which pixels: so many of each of these rows.
struct Job {
    Range rows;
    std::int64_t pixels;
    int bytesPerPixel;
    bool reversesRows = false, lastRowFirst = false;
};

// One image of a job: row y starts first + y x step bytes from the bits on.
class RecordRows {
public:
    // The image whose size is the job's: in this memory, which other calls on the same bits may narrow.
    RecordRows(const BITMAP& image, Range memory, std::int64_t firstByte = 0);
    // A target that may have another size. A record of 0 x 0 states bits and step only, and is trusted.
    static RecordRows Target(const BITMAP& image, std::int64_t firstByte = 0);
    // The whole image as one row of rows without gaps: a step that is shorter than a row counts as one.
    static RecordRows Packed(const BITMAP& image);

    // The same image from its last row upwards.
    RecordRows Flipped(int height) const;

    // Where a row starts, wherever that is.
    TargetPixels Row(std::int64_t y) const;
    // A pixel that lies inside.
    TargetPixels At(std::int64_t y, std::int64_t x, const Job& job) const;

    // No row but these has pixels inside.
    Range RowsInside(const Job& job) const;
    Range PixelsInside(std::int64_t y, const Job& job) const;

private:
    std::byte* bits;
    Range memory;
    std::int64_t first, step;
    Range rows;  // those that a job may take, wherever they lie
};

// Calls run(src, dst, size) for the pixels that lie inside both images: for all at once, or else row by row. Pixels that
// are left out of one image are left out of the other. Where rows are reversed, the first pixel of a row of the target
// belongs to the last one of the source's.
template <class Run>
void RunInside(const Job& job, const RecordRows& src, const RecordRows& dst, const Run& run) {
    const auto pixelsInside = [&](std::int64_t y) {
        Range ofSrc = src.PixelsInside(y, job);
        if (job.reversesRows) ofSrc = {job.pixels - ofSrc.end, job.pixels - ofSrc.begin};
        return Common(ofSrc, dst.PixelsInside(y, job));
    };
    const auto isWhole = [&](std::int64_t y) {
        const auto [begin, end] = pixelsInside(y);
        return begin == 0 && end == job.pixels;
    };
    constexpr std::int64_t most = INT32_MAX;
    const Range rows = Common(job.rows, Common(src.RowsInside(job), dst.RowsInside(job)));
    const std::int64_t count = rows.end - rows.begin;
    if (count <= 0) return;
    if (job.pixels <= most && count <= most && isWhole(rows.begin) && isWhole(rows.end - 1)) {
        const SIZE size{static_cast<LONG>(job.pixels), static_cast<LONG>(count)};
        run(src.At(rows.begin, 0, job), dst.At(rows.begin, 0, job), size);
        return;
    }
    for (std::int64_t i = 0; i < count; ++i) {
        const std::int64_t y = job.lastRowFirst ? rows.end - 1 - i : rows.begin + i;
        const auto [begin, end] = pixelsInside(y);
        for (std::int64_t x = begin, n; x < end; x += n) {
            n = std::min(end - x, most);
            run(src.At(y, job.reversesRows ? job.pixels - x - n : x, job), dst.At(y, x, job),
                SIZE{static_cast<LONG>(n), 1});
        }
    }
}

}  // namespace zorvic
