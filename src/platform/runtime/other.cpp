// Runtimes other than GCC's free what they have when a DLL is unloaded.
#include "platform/runtime/runtime.h"

void zorvic::runtime::Free() {}
