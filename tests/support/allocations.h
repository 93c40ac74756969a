// What the library and its vector backend allocate, by way of their import tables: memory, GDI objects, device contexts
// and, from the library's side, the backend's objects. It is counted, may be made to fail, and may be put before fences.
#pragma once

#include <array>
#include <climits>
#include <cstddef>
#include <functional>
#include <string>

// One at a time. What is allocated while it lives may be freed later.
class Allocations {
public:
    // fences: every block of memory ends at an inaccessible page, and is inaccessible once it is freed.
    explicit Allocations(bool fences = false);
    ~Allocations();
    Allocations(const Allocations&) = delete;
    Allocations& operator=(const Allocations&) = delete;

    // How much more there is of each kind than at the start: empty, or as "2 blocks, -1 paths". The backend keeps some
    // blocks of its own for the next draws, so that a start comes best after a first round.
    std::string Outstanding() const;
    void Restart();
    // How much a run leaves behind: what the backend keeps it does not keep once more when the run is repeated.
    std::string LeftBy(const std::function<void()>& run);

    // The k-th allocation from now fails as it does when memory is short, or several from there on. None for 0.
    static constexpr int allLater = INT_MAX;
    void FailAt(int k, int howMany = 1);
    bool HasFailed() const;

    // What has been asked for since the program began: allocations of every kind, and the bytes of memory.
    struct Amounts {
        long long allocations = 0, bytes = 0;
    };
    static Amounts Requested();

    // What the program is doing, for the report of a crash on fenced memory; may be null.
    static inline std::string (*doing)() = nullptr;

    enum class Kind { block, gdiObject, deviceContext, backendBitmap, backendCanvas, path, gradient, none };
    static constexpr auto kinds = static_cast<std::size_t>(Kind::none);

private:
    using Counts = std::array<int, kinds>;
    static Counts Living();

    Counts before{};
};
