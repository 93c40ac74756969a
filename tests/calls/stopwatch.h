// The time that calls take, without that of other programs.
#pragma once

#include <windows.h>

#include <chrono>

namespace calls {

class Stopwatch {
public:
    explicit Stopwatch(double seconds) : tooLong(seconds) {}

    // The system is asked for the processor's time only when the time that passed is too long.
    bool SaysTooLong() const {
        using Seconds = std::chrono::duration<double>;
        return Seconds(Clock::now() - start).count() > tooLong && ProcessorTime() - processorStart > tooLong;
    }
    // Forgets the time since the start, but not the processor's.
    void Restart() { start = Clock::now(); }

private:
    using Clock = std::chrono::steady_clock;

    static double ProcessorTime() {
        FILETIME created, ended, kernel, user;
        GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
        const auto seconds = [](const FILETIME& time) {
            return (static_cast<double>(time.dwHighDateTime) * 4294967296 + time.dwLowDateTime) * 1e-7;
        };
        return seconds(kernel) + seconds(user);
    }

    const double tooLong;
    Clock::time_point start = Clock::now();
    double processorStart = ProcessorTime();
};

}  // namespace calls
