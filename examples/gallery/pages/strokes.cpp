// Strokes: caps, joins, dashes; and what a path can hold.
#include "vector.h"

namespace {

void SetStroke(HGCANVAS canvas, float width) {
    SetDrawStyle(canvas, ZORVIC_DRAW_STROKE);
    SetColor(canvas, 0xFF2060A0);
    SetStrokeWidth(canvas, width);
}

void DrawZigzag(HGCANVAS canvas) {
    const Path path(PathCreate());
    PathMoveTo(path.get(), 30, 80);
    PathLineTo(path.get(), 90, 25);
    PathLineTo(path.get(), 150, 80);
    PathLineTo(path.get(), 180, 25);
    PathLineTo(path.get(), 200, 80);
    DrawPath(canvas, path.get());
}

}  // namespace

Sheet StrokesPage(const Pictures&) {
    Sheet sheet(L"Strokes and paths", L"How lines end, turn and break, and what paths are built of.");
    sheet.Section(L"SetStrokeCap and SetStrokeJoin, width 18", 3, 104);
    const wchar_t* caps[]{L"cap butt", L"cap round", L"cap square"};
    const wchar_t* joins[]{L"join miter", L"join round", L"join bevel"};
    for (int i = 0; i < 3; ++i)
        sheet.Tile(std::wstring(caps[i]) + L", " + joins[i], [&](HGCANVAS canvas) {
            SetStroke(canvas, 18);
            SetStrokeCap(canvas, i);
            SetStrokeJoin(canvas, i);
            DrawZigzag(canvas);
            SetStroke(canvas, 1);
            SetColor(canvas, 0xFFFFFFFF);
            DrawZigzag(canvas);
        });

    sheet.Section(L"SetDashStyle: measured in stroke widths", 5, 80);
    const wchar_t* dashes[]{L"solid", L"dash", L"dot", L"dash-dot", L"dash-dot-dot"};
    for (int style = 0; style < 5; ++style)
        sheet.Tile(dashes[style], [&](HGCANVAS canvas) {
            SetDashStyle(canvas, static_cast<BYTE>(style));
            for (int width = 1; width <= 9; width += 4) {
                SetStroke(canvas, static_cast<float>(width));
                const float y = 10.0F + 6.0F * static_cast<float>(width);
                DrawLine(canvas, 12, y, 200, y);
            }
        });
    sheet.Section(L"SetDashPattern: pixels on and off", 4, 80);
    const float patterns[][4]{{12, 4, 2, 4}, {20, 10, 20, 10}, {1, 3, 1, 3}, {0, 9, 0, 9}};
    const wchar_t* names[]{L"12 4 2 4", L"20 10", L"1 3", L"0 9, round caps"};
    for (int i = 0; i < 4; ++i)
        sheet.Tile(names[i], [&](HGCANVAS canvas) {
            SetStroke(canvas, 5);
            SetStrokeCap(canvas, i == 3 ? 1 : 0);
            SetDashPattern(canvas, patterns[i], 4);
            const RECT box = Inset(AreaOf(canvas), 14);
            DrawRoundRect(canvas, &box, 16, 16);
        });

    sheet.Section(L"Paths: filled pale by the non-zero rule, stroked dark", 4, 130);
    const auto tile = [&](const wchar_t* caption, const std::function<void(HGPATH)>& build) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            const Path path(PathCreate());
            PathBegin(path.get());
            build(path.get());
            SetColor(canvas, 0xFFB8D4F0);
            DrawPath(canvas, path.get());
            SetStroke(canvas, 3);
            DrawPath(canvas, path.get());
        });
    };
    tile(L"PathAddArc, both ways", [](HGPATH path) {
        PathAddArc(path, 70, 65, 45, 0.5F, 5.5F, 0);
        PathBegin(path);
        PathAddArc(path, 185, 65, 45, 0.5F, 5.5F, 1);
    });
    tile(L"PathArcTo, radii 10, 25 and 40", [](HGPATH path) {
        PathMoveTo(path, 20, 110);
        PathArcTo(path, 20, 20, 120, 20, 10);
        PathArcTo(path, 220, 20, 220, 110, 25);
        PathArcTo(path, 220, 115, 120, 115, 40);
        PathLineTo(path, 120, 110);
    });
    tile(L"PathBezierCurveTo, PathQuadraticCurveTo", [](HGPATH path) {
        PathMoveTo(path, 20, 65);
        PathBezierCurveTo(path, 20, -10, 120, -10, 120, 65);
        PathQuadraticCurveTo(path, 180, 150, 235, 40);
    });
    tile(L"several figures, a hole by direction", [](HGPATH path) {
        PathAddRectangle(path, 20, 20, 90, 90);
        PathMoveTo(path, 40, 40);  // against the rectangle's direction
        PathLineTo(path, 40, 90);
        PathLineTo(path, 90, 90);
        PathLineTo(path, 90, 40);
        PathClose(path);
        PathAddCircle(path, 165, 65, 30);
        PathAddEllipse(path, 190, 30, 50, 70);
    });
    return sheet;
}
