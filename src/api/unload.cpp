// The library is loaded and freed.
#include <windows.h>

#include "platform/runtime/runtime.h"

// Nothing remains after FreeLibrary. When the process ends, Windows takes all back, and other threads may have died inside
// a lock.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void* processEnds) {
    if (reason == DLL_PROCESS_DETACH && !processEnds) zorvic::runtime::Free();
    return TRUE;
}
