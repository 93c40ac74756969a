#include "engine/worker.h"

#include <algorithm>

#include "support/picture_files.h"

std::shared_mutex Worker::drawing;

namespace {

void SetKernel(zorvic::StretchKernel kernel) {
    if (zorvic::GetStretchKernel() == kernel) return;
    const std::lock_guard alone(Worker::drawing);
    zorvic::SetStretchKernel(kernel);
}

}  // namespace

Worker::Worker(HWND told, UINT by) : window(told), message(by), thread([this] { Run(); }) {}

Worker::~Worker() {
    {
        const std::lock_guard lock(mutex);
        ending = true;
        stale = true;
        canceled = true;
    }
    wake.notify_one();
    thread.join();
}

void Worker::Open(OpenJob job) {
    const std::lock_guard lock(mutex);
    jobs.emplace_back(std::move(job));
    stale = true;
    wake.notify_one();
}

void Worker::Save(SaveJob job) {
    const std::lock_guard lock(mutex);
    jobs.emplace_back(std::move(job));
    stale = true;
    wake.notify_one();
}

void Worker::Show(FrameJob job) {
    const std::lock_guard lock(mutex);
    if (!(job.part == shownPart)) stale = true;
    frameJob = std::move(job);
    wake.notify_one();
}

std::optional<WorkResult> Worker::TakeResult() {
    const std::lock_guard lock(mutex);
    if (results.empty()) return std::nullopt;
    WorkResult result = std::move(results.front());
    results.pop_front();
    return result;
}

void Worker::Run() {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    std::unique_lock lock(mutex);
    for (;;) {
        wake.wait(lock, [this] { return ending || !jobs.empty() || frameJob; });
        if (ending) break;
        std::optional<Job> job;
        std::optional<FrameJob> frame;
        if (!jobs.empty()) {
            job = std::move(jobs.front());
            jobs.pop_front();
            canceled = false;
        } else {
            frame = std::exchange(frameJob, std::nullopt);
            shownPart = frame->part;
        }
        stale = ending;
        progress = 0;
        activity = !job ? L"Drawing" : std::holds_alternative<OpenJob>(*job) ? L"Reading" : L"Writing";
        lock.unlock();
        if (job)
            std::visit([this](const auto& work) { Do(work); }, *job);
        else
            Do(*frame);
        activity = nullptr;
        lock.lock();
    }
    CoUninitialize();
}

bool Worker::Report(double done) {
    progress = done;
    return !canceled;
}

void Worker::Give(WorkResult result) {
    {
        const std::lock_guard lock(mutex);
        results.push_back(std::move(result));
    }
    PostMessageW(window, message, 0, 0);
}

void Worker::Do(const OpenJob& job) {
    const auto report = [this](double done) { return Report(done); };
    prepared.Reset();  // room for the new picture
    preparation = {};
    try {
        zorvic::Bitmap picture =
            job.content.empty() ? ReadPicture(job.name, report) : ReadPicture(job.content, job.name, report);
        source = ToTexture(std::move(picture));
        Give(Opened{job.name, source.Size()});
    } catch (const PictureError& error) {
        Give(Failure{Utf16(error.what())});
    } catch (const PictureCanceled&) {
        Give(Failure{L"Reading was stopped."});
    }
}

zorvic::TextureRef Worker::Prepared(const Settings& settings) {
    if (!source || !NeedsPreparation(settings)) return source;
    if (!prepared || !preparation.SamePreparation(settings)) {
        prepared.Reset();
        prepared = Prepare(source, settings);
        preparation = settings;
    }
    return prepared;
}

void Worker::Do(const FrameJob& job) {
    SetKernel(job.settings.kernel);
    const zorvic::TextureRef picture = Prepared(job.settings);
    if (!source) return;
    const auto report = [this](double done) {
        progress = done;
        return !stale;
    };
    Frame frame;
    if (picture) frame = MakeFrame(job.part, job.channels, picture, job.settings, report);
    if (stale) return;
    if (!frame.pixels) return Give(Failure{L"There is not enough memory to draw this."});
    if (job.part.zoom > 0) frame.cost = Measure(job.part, picture, job.settings, report);
    Give(std::move(frame));
}

void Worker::Do(const SaveJob& job) {
    SetKernel(job.settings.kernel);
    const RECT& area = job.settings.destination;
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const zorvic::TextureRef picture = Prepared(job.settings);
    try {
        const int band = std::clamp((2 << 20) / width, 1, height);
        const zorvic::Canvas whole = zorvic::Canvas::Create(width, band);
        if (!picture || !whole) throw PictureError("There is not enough memory to write this picture.");
        PngWriter png(job.file, width, height, PngWriter::Alpha::straight);
        for (int y = 0; y < height; y += band) {
            const int rows = std::min(band, height - y);
            const zorvic::Canvas last = rows < band ? zorvic::Canvas::Create(width, rows) : zorvic::Canvas();
            const zorvic::CanvasRef canvas = last ? zorvic::CanvasRef(last) : zorvic::CanvasRef(whole);
            DrawStage(canvas, {area.left, area.top + y}, picture, job.settings);
            png.WriteRows(canvas.Surface());
            if (!Report(double(y + rows) / height)) throw PictureCanceled{};
        }
        png.Finish();
        Give(Saved{job.file});
    } catch (const PictureError& error) {
        Give(Failure{Utf16(error.what())});
    } catch (const PictureCanceled&) {
        Give(Failure{L"Writing was stopped; the file is not complete."});
    }
}
