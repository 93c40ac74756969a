// A stand-in for vekgraphic.dll that draws nothing and writes down what it is called with: a line for each call, the
// function's name without its prefix and the arguments. Of handles and of other memory it only tells when there is none.
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "vek/vekgraphic.h"

// Creating canvases fails while this is not 0.
extern "C" {
__declspec(dllexport) int vekRefuseCanvases = 0;
__declspec(dllexport) int vekMisalignedRects = 0;  // how many did not lie at a multiple of 16 bytes
}

namespace {

std::ostringstream log;

void Write(float value) { log << ' ' << value; }
void Write(int value) { log << ' ' << value; }
void Write(DWORD color) { log << " #" << std::hex << color << std::dec; }
void Write(const float* lengths) { log << ' ' << *lengths; }
void Write(const RECT* r) {
    vekMisalignedRects += reinterpret_cast<std::uintptr_t>(r) % 16 != 0;
    log << " (" << r->left << ' ' << r->top << ' ' << r->right << ' ' << r->bottom << ')';
}
void Write(VekBounds* bounds) { *bounds = {1, 2, 3, 4}; }
void Write(const void* handle) {
    if (!handle) log << " null";
}

template <class Result, class... Args>
Result Recorded(std::string_view name, Args... args) {
    name.remove_prefix(name.starts_with("vekCanvas") ? 9 : 3);
    log << name;
    (Write(args), ...);
    log << '\n';
    if (std::is_same_v<Result, VekCanvas> && vekRefuseCanvases) return Result();
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<Result>(13);  // never used
    else
        return static_cast<Result>(13);
}

}  // namespace

// What was called since the last time.
extern "C" __declspec(dllexport) const char* VEK_CALL vekRecordedCalls(void) {
    static std::string taken;
    taken = log.str();
    log.str({});
    return taken.c_str();
}

#define RECORDED(Result, name, parameters, ...) \
    Result VEK_CALL name parameters { return Recorded<Result>(#name __VA_OPT__(, ) __VA_ARGS__); }
#include "backend_functions.inl"
