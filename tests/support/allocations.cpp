// Hooks in the import tables, put there once and for all: they count, and pass calls on. What they have not seen being
// made is not theirs.
#include "support/allocations.h"

#include <windows.h>
// After windows.h.
#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <unordered_map>

#include "support/host.h"
#include "support/import_table.h"
#include "support/page_slots.h"
#include "vek/vekgraphic.h"

namespace {

using Kind = Allocations::Kind;
using Lock = std::lock_guard<std::mutex>;

// The C runtime's own unless it has pages.
struct Block {
    std::size_t size = 0;
    std::size_t pages = 0;
};

struct Ledger {
    std::mutex mutex;                                                 // of all below
    std::unordered_map<const void*, Block> live[Allocations::kinds];  // by address or handle
    bool fences = false;
    long long calls = 0, bytes = 0, failFrom = LLONG_MAX, failTo = LLONG_MAX;
    host::PageSlots slots;

    std::unordered_map<const void*, Block>& Live(Kind kind) { return live[static_cast<std::size_t>(kind)]; }

    bool Fails() {
        const Lock lock(mutex);
        ++calls;
        return calls >= failFrom && calls < failTo;
    }
};

Ledger& Books() {
    static auto* const ledger = new Ledger;  // the DLLs free blocks until the very end
    return *ledger;
}

// Before a fence a block begins where its size allows, so that it ends at the fence. (Vectors of 64-bit code need what
// malloc promises.) What of its pages lies before it is filled, and looked at when the block is freed.
constexpr auto filler = std::byte{0xFD};

std::size_t AlignmentFor(std::size_t size) {
    return sizeof(void*) == 8 ? 16 : std::min<std::size_t>(size & (0 - size), 8);
}

void* NewFencedBlock(Ledger& books, std::size_t size, std::size_t alignment, std::size_t pages) {
    std::byte* const end = books.slots.Take(pages);
    if (!end) return nullptr;
    const auto address = (reinterpret_cast<std::uintptr_t>(end) - size) / alignment * alignment;
    auto* const block = reinterpret_cast<std::byte*>(address);
    std::fill(end - pages * host::pageSize, end, filler);
    return block;
}

void FreeFencedBlock(Ledger& books, void* block, const Block& was) {
    auto* const bytes = static_cast<std::byte*>(block);
    const auto pageEnd = (reinterpret_cast<std::uintptr_t>(bytes + was.size) + host::pageSize - 1) / host::pageSize;
    auto* const end = reinterpret_cast<std::byte*>(pageEnd * host::pageSize);
    const auto untouched = [](std::byte byte) { return byte == filler; };
    if (!std::all_of(end - was.pages * host::pageSize, bytes, untouched)) {
        std::printf("written before a block of %zu bytes\n", was.size);
        std::fflush(stdout);
        std::_Exit(7);
    }
    books.slots.GiveBack(end, was.pages);
}

// The functions of the C runtime as one DLL calls them; this program calls the same ones.
struct BlockHooks {
    static void* New(std::size_t size, std::size_t alignment) {
        Ledger& books = Books();
        if (books.Fails()) {
            errno = ENOMEM;
            return nullptr;
        }
        const Lock lock(books.mutex);
        books.bytes += static_cast<long long>(size);
        const Block made{size, books.fences ? host::PagesFor(size) : 0};
        void* const block =
            made.pages ? NewFencedBlock(books, size, alignment, made.pages) : _aligned_malloc(size, alignment);
        if (block) books.Live(Kind::block)[block] = made;
        return block;
    }

    static void Free(void* block) {
        Ledger& books = Books();
        const Lock lock(books.mutex);
        const auto entry = books.Live(Kind::block).extract(block);
        if (!entry) return std::free(block);
        entry.mapped().pages ? FreeFencedBlock(books, block, entry.mapped()) : _aligned_free(block);
    }

    static void* Malloc(std::size_t size) {
        size = std::max<std::size_t>(size, 1);
        return New(size, Books().fences ? AlignmentFor(size) : 16);
    }

    static void* Calloc(std::size_t count, std::size_t size) {
        if (size != 0 && count > PTRDIFF_MAX / size) return nullptr;
        void* const block = Malloc(count * size);
        if (block) std::memset(block, 0, count * size);
        return block;
    }

    static void* Realloc(void* block, std::size_t size) {
        if (!block) return Malloc(size);
        std::size_t formerSize;
        {
            const Lock lock(Books().mutex);
            const auto& live = Books().Live(Kind::block);
            const auto found = live.find(block);
            if (found == live.end()) return std::realloc(block, size);
            formerSize = found->second.size;
        }
        void* const moved = size ? Malloc(size) : nullptr;
        if (moved) std::memcpy(moved, block, std::min(size, formerSize));
        if (moved || !size) Free(block);
        return moved;
    }
};

// A function's name as a template argument.
template <std::size_t size>
struct Name {
    char text[size];
    consteval Name(const char (&literal)[size]) { std::copy_n(literal, size, text); }
};

template <class Handle>
const void* Address(Handle handle) {
    return reinterpret_cast<const void*>(handle);
}

enum class Does { makes, ends };

// What a hook does: it counts the object that a function makes or ends. A function of no kind may fail for want of memory
// like those that make objects.
template <Does does, Kind kind, class Function, class... Args>
auto Count(Function real, Args... args) {
    if (does == Does::makes && Books().Fails()) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return decltype(real(args...))();
    }
    if constexpr (kind == Kind::none) {
        return real(args...);
    } else if constexpr (does == Does::makes) {
        const auto made = real(args...);
        const Lock lock(Books().mutex);
        if (made) Books().Live(kind)[made];
        return made;
    } else {
        {
            const Lock lock(Books().mutex);
            (Books().Live(kind).erase(args), ...);
        }
        return real(args...);
    }
}

// GDI's functions and the backend's differ in their calling convention; 64-bit code has only one.
template <Name name, Does does, Kind kind, class Function>
struct Counted;
template <Name name, Does does, Kind kind, class Result, class... Args>
struct Counted<name, does, kind, Result WINAPI(Args...)> {
    static inline Result(WINAPI* real)(Args...);
    static Result WINAPI Hook(Args... args) { return Count<does, kind>(real, args...); }
};
template <Name name, Does does, Kind kind, class Result, class... Args>
requires(sizeof(void*) == 4) struct Counted<name, does, kind, Result(Args...)> {
    static inline Result (*real)(Args...);
    static Result Hook(Args... args) { return Count<does, kind>(real, args...); }
};

struct Hook {
    const char* name;
    void* hook;
    void** real = nullptr;  // where the hook wants the function's own address

    void Put(const PeImage& module) const {
        const auto entries = module.ImportEntries();
        const auto [first, last] = entries.equal_range(name);
        for (auto entry = first; entry != last; ++entry) {
            void* const before = Redirect(entry->second, hook);
            if (real) *real = before;
        }
    }
};

template <Name name, Does does, Kind kind, class Function>
Hook Of() {
    using Hooked = Counted<name, does, kind, Function>;
    return {name.text, reinterpret_cast<void*>(&Hooked::Hook), reinterpret_cast<void**>(&Hooked::real)};
}

void PutHooks() {
    constexpr auto makes = Does::makes;
    constexpr auto ends = Does::ends;
    const Hook deleteObject = Of<"DeleteObject", ends, Kind::gdiObject, decltype(DeleteObject)>();
    const Hook hooks[] = {
        Of<"CreateDIBSection", makes, Kind::gdiObject, decltype(CreateDIBSection)>(),
        Of<"CreateRectRgn", makes, Kind::gdiObject, decltype(CreateRectRgn)>(),
        Of<"ExtCreateRegion", makes, Kind::gdiObject, decltype(ExtCreateRegion)>(),
        Of<"ExtCreatePen", makes, Kind::gdiObject, decltype(ExtCreatePen)>(),
        deleteObject,
        Of<"CreateCompatibleDC", makes, Kind::deviceContext, decltype(CreateCompatibleDC)>(),
        Of<"DeleteDC", ends, Kind::deviceContext, decltype(DeleteDC)>(),
        Of<"CombineRgn", makes, Kind::none, decltype(CombineRgn)>(),
        Of<"ExtSelectClipRgn", makes, Kind::none, decltype(ExtSelectClipRgn)>(),
        Of<"IntersectClipRect", makes, Kind::none, decltype(IntersectClipRect)>(),
        Of<"vekBitmapCreateFromData", makes, Kind::backendBitmap, decltype(vekBitmapCreateFromData)>(),
        Of<"vekBitmapDestroy", ends, Kind::backendBitmap, decltype(vekBitmapDestroy)>(),
        Of<"vekCanvasCreate", makes, Kind::backendCanvas, decltype(vekCanvasCreate)>(),
        Of<"vekCanvasDestroy", ends, Kind::backendCanvas, decltype(vekCanvasDestroy)>(),
        Of<"vekPathCreate", makes, Kind::path, decltype(vekPathCreate)>(),
        Of<"vekPathDestroy", ends, Kind::path, decltype(vekPathDestroy)>(),
        Of<"vekGradientCreateLinear", makes, Kind::gradient, decltype(vekGradientCreateLinear)>(),
        Of<"vekGradientCreateRadial", makes, Kind::gradient, decltype(vekGradientCreateRadial)>(),
        Of<"vekGradientDestroy", ends, Kind::gradient, decltype(vekGradientDestroy)>(),
    };
    const PeImage library(host::LoadedDll()), backend(GetModuleHandleW(L"vekgraphic.dll"));
    for (const Hook& hook : hooks) hook.Put(library);
    // Regions are the host's to delete.
    deleteObject.Put(PeImage(GetModuleHandleW(nullptr)));
    const Hook blockHooks[] = {{"malloc", reinterpret_cast<void*>(BlockHooks::Malloc)},
                               {"calloc", reinterpret_cast<void*>(BlockHooks::Calloc)},
                               {"realloc", reinterpret_cast<void*>(BlockHooks::Realloc)},
                               {"free", reinterpret_cast<void*>(BlockHooks::Free)},
                               {"_aligned_malloc", reinterpret_cast<void*>(BlockHooks::New)},
                               {"_aligned_free", reinterpret_cast<void*>(BlockHooks::Free)}};
    for (const Hook& hook : blockHooks)
        for (const PeImage& module : {library, backend}) hook.Put(module);
}

// Instead of a debugger that waits for somebody.
LONG WINAPI Report(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    const auto* const code = static_cast<const char*>(record.ExceptionAddress);
    HMODULE module = nullptr;
    char name[MAX_PATH] = "";
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, code,
                       &module);
    GetModuleFileNameA(module, name, MAX_PATH);
    std::printf("exception 0x%08lX at %s + 0x%zX\n%s\n", record.ExceptionCode, name,
                static_cast<std::size_t>(code - reinterpret_cast<const char*>(module)),
                Allocations::doing ? Allocations::doing().c_str() : "");
    std::fflush(stdout);
    return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

Allocations::Allocations(bool fences) {
    static const bool once = (PutHooks(), true);
    static_cast<void>(once);
    if (fences) SetUnhandledExceptionFilter(Report);
    Books().fences = fences;
    Restart();
}

Allocations::~Allocations() {
    Books().fences = false;
    FailAt(0);
}

void Allocations::Restart() { before = Living(); }

std::string Allocations::Outstanding() const {
    static constexpr const char* names[kinds] = {
        "blocks", "GDI objects", "device contexts", "backend bitmaps", "backend canvases", "paths", "gradients"};
    const Counts now = Living();
    std::string text;
    for (std::size_t i = 0; i < kinds; ++i)
        if (const int more = now[i] - before[i])
            text += (text.empty() ? "" : ", ") + std::to_string(more) + " " + names[i];
    return text;
}

std::string Allocations::LeftBy(const std::function<void()>& run) {
    std::string left;
    for (int attempt = 0; attempt == 0 || (attempt < 3 && !left.empty()); ++attempt) {
        Restart();
        run();
        left = Outstanding();
    }
    return left;
}

void Allocations::FailAt(int k, int howMany) {
    Ledger& books = Books();
    const Lock lock(books.mutex);
    books.failFrom = k == 0 ? LLONG_MAX : books.calls + k;
    books.failTo = k == 0 ? LLONG_MAX : books.failFrom + howMany;
}

bool Allocations::HasFailed() const {
    const Lock lock(Books().mutex);
    return Books().calls >= Books().failFrom;
}

Allocations::Amounts Allocations::Requested() {
    const Lock lock(Books().mutex);
    return {Books().calls, Books().bytes};
}

Allocations::Counts Allocations::Living() {
    const Lock lock(Books().mutex);
    Counts counts;
    for (std::size_t i = 0; i < kinds; ++i) counts[i] = static_cast<int>(Books().live[i].size());
    return counts;
}
