// Those that do the work of a row in turns. Each function makes a job that does it once, on the row's images, or an
// empty one when there is no such work there.
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "surfaces.h"

namespace bench {

using Job = std::function<void()>;

Job ExportJob(const Row& row, const Surfaces& images);  // zorvic32.dll, called as a host calls it
Job EngineJob(const Row& row, const Surfaces& images);  // the pixel engine inside this program
Job PixmanJob(const Row& row, const Surfaces& images);
Job GdiJob(const Row& row, const Surfaces& images);
Job LimitJob(const Row& row, const Surfaces& images);  // the loads and stores alone, by the best loop of this machine

// Limits the engine inside this program to a form, for the rest of the process. False if there is no such form, or the
// processor has not got it.
bool UseForm(std::string_view name);

}  // namespace bench
