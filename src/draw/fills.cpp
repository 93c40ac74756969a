// The worker of the solid fills.
#include "draw/fills.h"

#include "raster/selectors.h"

namespace zorvic {

namespace {

// Fills that need no canvas to be done. Other fills that change nothing are known as such only to the selector.
bool ChangesNothing(DWORD color, Operation operation) {
    switch (operation) {
        case Operation::sourceOver:
        case Operation::colorKey:
            return color >> 24 == 0;
        case Operation::multiply:
        case Operation::bitOr:
            return color == 0xFFFFFFFF;
        default:
            return false;
    }
}

}  // namespace

int FillColor(Canvas* canvas, DWORD color, const RECT* rect, DWORD mode) {
    if (ChangesNothing(color, OperationOf(mode))) return 1;
    if (!canvas) return 0;
    if (!rect) return 1;
    const CanvasLock target(*canvas, canvas->VisiblePart(*rect));
    if (target) SelectFillKernel(*target, color, mode);
    return 1;
}

void FillColor(const CanvasLock& target, DWORD color, const RECT& rect, DWORD mode) {
    const RECT visible = Intersection(target.Area(), rect);
    if (target && !IsEmpty(visible)) SelectFillKernel(target.PartAt(visible), color, mode);
}

}  // namespace zorvic
