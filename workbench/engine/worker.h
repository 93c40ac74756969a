// The thread that does everything slow: reading, preparing, drawing and writing. The picture is its own; others get frames.
// Results wait in a queue, and the window is told by a message that there are some.
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <shared_mutex>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#include "engine/frame.h"

// Where a picture comes from: a file, or a file's content in memory.
struct OpenJob {
    std::wstring name;
    std::vector<BYTE> content;  // empty: read the file of that name
};
struct SaveJob {
    std::wstring file;
    Settings settings;
};
struct FrameJob {
    ViewPart part;
    Channels channels = Channels::color;
    Settings settings;
};

struct Opened {
    std::wstring name;
    SIZE size{};
};
struct Saved {
    std::wstring file;
};
// A line for the user.
struct Failure {
    std::wstring message;
};
using WorkResult = std::variant<Opened, Saved, Failure, Frame>;

class Worker {
public:
    // The message is posted without arguments.
    Worker(HWND window, UINT message);
    ~Worker();

    void Open(OpenJob job);
    void Save(SaveJob job);
    // Takes the place of a frame that is waiting. One that is being made is given up when it shows another part; otherwise
    // it is finished first, so that something moves while a slider does.
    void Show(FrameJob job);
    // Gives up reading or writing.
    void Cancel() { canceled = true; }

    std::optional<WorkResult> TakeResult();
    bool IsBusy() const { return activity != nullptr; }
    // What is being done (NULL, nothing) and how much of it is, 0..1.
    const wchar_t* Activity() const { return activity; }
    double Progress() const { return progress; }

    // Held by everyone who draws on another thread: process-wide settings change only while nobody does.
    static std::shared_mutex drawing;

private:
    using Job = std::variant<OpenJob, SaveJob>;
    void Run();
    void Do(const OpenJob& job);
    void Do(const SaveJob& job);
    void Do(const FrameJob& job);
    // The picture to be drawn, prepared as the settings say; empty when memory is short.
    zorvic::TextureRef Prepared(const Settings& settings);
    void Give(WorkResult result);
    bool Report(double done);

    const HWND window;
    const UINT message;
    std::mutex mutex;
    std::condition_variable wake;
    std::deque<Job> jobs;
    std::optional<FrameJob> frameJob;
    std::deque<WorkResult> results;
    bool ending = false;
    ViewPart shownPart;               // of the frame being made
    std::atomic<bool> stale = false;  // the frame being made is not worth finishing
    std::atomic<bool> canceled = false;
    std::atomic<const wchar_t*> activity = nullptr;
    std::atomic<double> progress = 0;

    // The thread's own.
    zorvic::Texture source;
    zorvic::Texture prepared;
    Settings preparation;
    std::thread thread;
};
