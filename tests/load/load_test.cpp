// Hosts that load the library from another folder than their own, and free it again.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <vector>

#include "support/import_table.h"
#include "zorvic/zorvic.h"

namespace {

using Path = std::filesystem::path;

Path PathOf(HMODULE module) {
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(module, path.data(), MAX_PATH);
    return path.data();
}

// The DLLs lie in the folder above the program's own.
HMODULE Load(DWORD flags = LOAD_WITH_ALTERED_SEARCH_PATH) {
    const Path folder = PathOf(nullptr).parent_path().parent_path();
    return LoadLibraryExW((folder / (sizeof(void*) == 8 ? "zorvic64.dll" : "zorvic32.dll")).c_str(), nullptr, flags);
}
HMODULE Backend() { return GetModuleHandleW(L"vekgraphic.dll"); }

template <class Take, class GiveBack>
std::size_t CountFree(Take take, GiveBack giveBack) {
    std::vector<DWORD> slots;
    for (DWORD slot = take(); slot != TLS_OUT_OF_INDEXES; slot = take()) slots.push_back(slot);
    for (const DWORD slot : slots) giveBack(slot);
    return slots.size();
}

// What this process has of all that a DLL may leave behind. No memory of its own.
enum Holding { freeThreadSlots, freeFiberSlots, blocks, bytes, handles, kinds };
using Holdings = std::array<std::size_t, kinds>;

Holdings Count() {
    Holdings all{};
    all[freeThreadSlots] = CountFree(TlsAlloc, TlsFree);
    all[freeFiberSlots] = CountFree([] { return FlsAlloc(nullptr); }, FlsFree);
    std::array<HANDLE, 64> heaps{};
    const DWORD heapCount = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    for (DWORD i = 0; i < heapCount; ++i) {
        for (PROCESS_HEAP_ENTRY entry{}; HeapWalk(heaps[i], &entry);) {
            if (!(entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)) continue;
            ++all[blocks];
            all[bytes] += entry.cbData;
        }
    }
    DWORD handleCount = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handleCount);
    all[handles] = handleCount;
    return all;
}

thread_local int mallocsToFailure;
void* Malloc(std::size_t size) { return --mallocsToFailure == 0 ? nullptr : std::malloc(size); }

template <class Function, class... Args>
auto Call(HMODULE library, const char* name, Args... args) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)))(args...);
}

// Draws pixels and shapes, and lets an exception be thrown and caught inside each DLL.
void Use(HMODULE library) {
    const auto create = [&] { return Call<decltype(CreateCanvas)>(library, "CreateCanvas", 64, 64, nullptr); };
    const auto drawEllipse = [&](HGCANVAS canvas, float size) {
        return Call<decltype(DrawEllipse)>(library, "DrawEllipse", canvas, 1.0F, 1.0F, size, size);
    };
    const RECT all{0, 0, 64, 64};
    for (const HMODULE module : {library, Backend()})
        for (const auto& [name, entry] : PeImage(module).ImportEntries())
            if (name == "malloc") Redirect(entry, reinterpret_cast<void*>(&Malloc));

    mallocsToFailure = 1;
    EXPECT_FALSE(create());
    const HGCANVAS canvas = create();
    EXPECT_EQ(Call<decltype(FillSolidRect)>(library, "FillSolidRect", canvas, 0xFF102030, &all), 1);
    EXPECT_EQ(drawEllipse(canvas, 50), 1);
    mallocsToFailure = 1;
    EXPECT_EQ(drawEllipse(canvas, 40), 0);
    Call<decltype(DeleteCanvas)>(library, "DeleteCanvas", canvas);
}

void LoadAndFree() {
    const HMODULE library = Load();
    ASSERT_TRUE(library);
    Use(library);
    EXPECT_THROW(throw std::runtime_error("the host's own"), std::runtime_error);
    std::thread([&] { Use(library); }).join();

    // Outlives the library.
    const HANDLE drawn = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const HANDLE freed = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    std::thread other([&] {
        Use(library);
        SetEvent(drawn);
        WaitForSingleObject(freed, INFINITE);
    });
    WaitForSingleObject(drawn, INFINITE);
    FreeLibrary(library);
    EXPECT_FALSE(Backend());
    SetEvent(freed);
    other.join();
    CloseHandle(drawn);
    CloseHandle(freed);
}

TEST(Loading, LeavesNothingBehind) {
    for (int i = 0; i < 5; ++i) LoadAndFree();  // the system's DLLs keep what they make at first
    const Holdings before = Count();
    for (int i = 0; i < 50 && !HasFailure(); ++i) LoadAndFree();
    EXPECT_EQ(Count(), before);
}

// A host that knows nothing of the DLLs' folder.
TEST(Loading, FindsTheBackendBesideTheLibraryWhenAsked) {
    SetCurrentDirectoryW(PathOf(nullptr).parent_path().c_str());
    EXPECT_FALSE(Load(0));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_MOD_NOT_FOUND});
    for (const int flags :
         {LOAD_WITH_ALTERED_SEARCH_PATH, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS}) {
        const HMODULE library = Load(static_cast<DWORD>(flags));
        ASSERT_TRUE(library) << "flags " << flags;
        EXPECT_EQ(PathOf(Backend()).parent_path(), PathOf(library).parent_path());
        FreeLibrary(library);
    }
}

}  // namespace
