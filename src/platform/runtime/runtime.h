// What the compiler's runtime keeps inside a DLL.
#pragma once

namespace zorvic::runtime {

// Frees it: the DLL is about to be unloaded, and no exception can be thrown in it any more.
void Free();

}  // namespace zorvic::runtime
