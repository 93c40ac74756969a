// Vector shapes: each filled, stroked and filled with a gradient; smoothing, opacity, clip and origins.
#include "vector.h"

namespace {

struct Shape {
    const wchar_t* name;
    void (*draw)(HGCANVAS canvas, const RECT& box);
};

float X(const RECT& box) { return static_cast<float>(box.left); }
float Y(const RECT& box) { return static_cast<float>(box.top); }
float W(const RECT& box) { return static_cast<float>(Width(box)); }
float H(const RECT& box) { return static_cast<float>(Height(box)); }

constexpr Shape shapes[]{
    {L"DrawRectangle", [](HGCANVAS c, const RECT& b) { DrawRectangle(c, X(b), Y(b), W(b), H(b)); }},
    {L"DrawRoundRect", [](HGCANVAS c, const RECT& b) { DrawRoundRect(c, &b, 22, 14); }},
    {L"DrawCircle", [](HGCANVAS c, const RECT& b) { DrawCircle(c, X(b) + W(b) / 2, Y(b) + H(b) / 2, H(b) / 2); }},
    {L"DrawEllipse", [](HGCANVAS c, const RECT& b) { DrawEllipse(c, X(b), Y(b), W(b), H(b)); }},
    {L"DrawPolygon",
     [](HGCANVAS c, const RECT& b) {
         const POINT points[]{
             {b.left, b.bottom}, {b.left + 30, b.top}, {b.right, b.top + 20}, {b.right - 40, b.bottom}};
         DrawPolygon(c, 4, points);
     }},
    {L"DrawBezier",
     [](HGCANVAS c, const RECT& b) {
         const POINT points[]{
             {b.left, b.bottom}, {b.left + 10, b.top - 50}, {b.right - 10, b.bottom + 50}, {b.right, b.top}};
         DrawBezier(c, &points[0], &points[1], &points[2], &points[3]);
     }},
    {L"DrawLine", [](HGCANVAS c, const RECT& b) { DrawLine(c, X(b), Y(b), X(b) + W(b), Y(b) + H(b)); }},
    {L"DrawPath",
     [](HGCANVAS c, const RECT& b) { DrawPath(c, Star(X(b) + W(b) / 2, Y(b) + H(b) / 2, H(b) / 2).get()); }},
};

}  // namespace

Sheet ShapesPage(const Pictures&) {
    Sheet sheet(L"Shapes", L"Anti-aliased shapes through the vector backend, drawn in the style of the canvas.");
    const wchar_t* styles[]{L"SetDrawStyle(canvas, ZORVIC_DRAW_FILL)", L"ZORVIC_DRAW_STROKE, SetStrokeWidth 5",
                            L"ZORVIC_DRAW_GRADIENT, SetGradient"};
    for (int style = 0; style < 3; ++style) {
        sheet.Section(styles[style], 4, 110);
        for (const Shape& shape : shapes)
            sheet.Tile(shape.name, [&](HGCANVAS canvas) {
                const RECT box = Inset(AreaOf(canvas), 16);
                const Gradient gradient = WithStops(GradientCreateLinear(X(box), 0, X(box) + W(box), 0));
                SetDrawStyle(canvas, style);
                SetColor(canvas, 0xFF2060A0);
                SetGradient(canvas, gradient.get());
                SetStrokeWidth(canvas, 5);
                shape.draw(canvas, box);
            });
    }

    sheet.Section(L"Smoothing, opacity, points and colour", 4, 110);
    for (const int smooth : {1, 0})
        sheet.Tile(smooth ? L"SetSmooth 1" : L"SetSmooth 0", [&](HGCANVAS canvas) {
            SetSmooth(canvas, smooth);
            SetColor(canvas, 0xFF2060A0);
            DrawCircle(canvas, 60, 55, 40);
            SetDrawStyle(canvas, ZORVIC_DRAW_STROKE);
            DrawLine(canvas, 120, 15, 240, 95);
            DrawEllipse(canvas, 130.5F, 20.5F, 110, 60);
        });
    sheet.Tile(L"SetBlendValue 255, 160, 64", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        SetColor(canvas, 0xFFE0402C);
        float x = 56;
        for (const int value : {255, 160, 64}) {
            SetBlendValue(canvas, value);
            DrawCircle(canvas, x, 55, 42);
            x += 76;
        }
    });
    sheet.Tile(L"DrawPoint, DrawColor 0x8020A060", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        const RECT box = Box(30, 20, 120, 70);
        DrawColor(canvas, 0x8020A060, &box);
        for (int i = 0; i < 12; ++i) DrawPoint(canvas, static_cast<float>(170 + 6 * i), static_cast<float>(20 + 6 * i));
    });

    sheet.Section(L"Clip and origins hold for shapes", 4, 110);
    const auto scene = [](HGCANVAS canvas) {
        SetColor(canvas, 0xFF2060A0);
        DrawCircle(canvas, 60, 55, 40);
        SetColor(canvas, 0xFFE0402C);
        DrawPath(canvas, Star(150, 55, 45).get());
    };
    sheet.Tile(L"the scene", scene);
    sheet.Tile(L"SetCanvasClipRect 40, 30, 160, 80", [&](HGCANVAS canvas) {
        const RECT clip{40, 30, 160, 80};
        SetCanvasClipRect(canvas, &clip);
        scene(canvas);
    });
    sheet.Tile(L"SetViewportOrg 50, 20", [&](HGCANVAS canvas) {
        SetViewportOrg(canvas, 50, 20, nullptr);
        scene(canvas);
    });
    sheet.Tile(L"SetWindowOrg 50, 20", [&](HGCANVAS canvas) {
        SetWindowOrg(canvas, 50, 20, nullptr);
        scene(canvas);
    });
    return sheet;
}
