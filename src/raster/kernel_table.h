// The process's kernel table, chosen once at load by the processor's features, and the policy that fills any such
// table.
#pragma once

#include "raster/cpu_features.h"
#include "raster/kernel_set.h"

namespace zorvic {

// The stages in which a table is filled; a later one that applies takes its slots over.
enum class Stage { baseline, mmx, sse, sse2, primitives };

// The stage that has the last word on a slot. primitiveLayer: the pixel primitive layer serves this process.
Stage StageOfSlot(int slot, const CpuFeatures& features, bool primitiveLayer = false);

// The table of any processor.
KernelSet MakeKernelTable(const CpuFeatures& features, bool primitiveLayer = false);

// Fills KernelTable and the lookup tables that its kernels read for a processor: this one, or one that a test forces.
void FillTables(const CpuFeatures& features, bool primitiveLayer = false);

// Fills the tables for this processor. A static initialiser runs it before any export.
void InitKernelTable();

extern KernelSet KernelTable;

}  // namespace zorvic
