// The process's kernel table, chosen once at load by the processor's features, and the policy that fills any such
// table.
#pragma once

#include <optional>

#include "pixel/primitive_set.h"
#include "raster/cpu_features.h"
#include "raster/kernel_set.h"

namespace zorvic {

// The stages in which a table is filled; a later one that applies takes its slots over. The last two belong to the pixel
// primitives: their widest form, and the slots that try the primitives themselves first.
enum class Stage { baseline, mmx, sse, sse2, wide, routed };

// The stage that has the last word on a slot. primitives: the level of the pixel primitives that serve this process.
Stage StageOfSlot(int slot, const CpuFeatures& features, std::optional<Level> primitives = {});

// The table of any processor.
KernelSet MakeKernelTable(const CpuFeatures& features, std::optional<Level> primitives = {});

// Fills KernelTable and the lookup tables that its kernels read for a processor: this one, or one that a test forces.
void FillTables(const CpuFeatures& features, std::optional<Level> primitives = {});

// Fills the tables for this processor. A static initialiser runs it before any export.
void InitKernelTable();

extern KernelSet KernelTable;

}  // namespace zorvic
