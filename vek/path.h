// An outline of lines and cubic curves, in the coordinates of whoever draws it. Arcs, ellipses and quadratic curves are
// turned into cubic curves as they are added.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry.h"

namespace zorvic::vek {

class Path {
public:
    enum class Verb : std::uint8_t { move, line, curve, close };

    void Clear();
    void Begin() { hasCurrent = false; }
    void MoveTo(Point p);
    void LineTo(Point p);
    void CurveTo(Point c1, Point c2, Point p);
    void QuadraticTo(Point c, Point p);
    void ArcTo(Point corner, Point end, double radius);
    void AddArc(Point center, double radius, double startAngle, double endAngle, bool anticlockwise);
    void Close();

    // Closed figures, clockwise to the eye, so that figures which overlap add up. The current point is forgotten.
    void AddRectangle(Point a, Point b);
    void AddEllipse(Point a, Point b);
    void AddRoundRect(Point a, Point b, double rx, double ry);

    bool Empty() const { return verbs.empty(); }
    bool HasCurves() const { return hasCurves; }
    // Of all end and control points: contains the outline.
    const Box& ControlBox() const { return controlBox; }
    // Of the outline itself.
    Box Bounds() const;
    std::size_t PointCount() const { return points.size(); }

    // Calls visitor.MoveTo(p), .LineTo(p), .CurveTo(c1, c2, p) and .Close() in order.
    template <class Visitor>
    void Visit(Visitor& visitor) const {
        const Point* p = points.data();
        for (const Verb verb : verbs) {
            switch (verb) {
                case Verb::move:
                    visitor.MoveTo(*p++);
                    break;
                case Verb::line:
                    visitor.LineTo(*p++);
                    break;
                case Verb::curve:
                    visitor.CurveTo(p[0], p[1], p[2]), p += 3;
                    break;
                case Verb::close:
                    visitor.Close();
                    break;
            }
        }
    }

    // Calls begin(p) for every figure and line(a, b) for the lines through all of its end and control points.
    template <class Begin, class Line>
    void VisitControlLines(Begin begin, Line line) const {
        struct Lines {
            Begin& callBegin;
            Line& callLine;
            Point first{}, current{};
            void MoveTo(Point p) {
                callBegin(p);
                first = current = p;
            }
            void LineTo(Point p) {
                callLine(current, p);
                current = p;
            }
            void CurveTo(Point c1, Point c2, Point p) {
                LineTo(c1);
                LineTo(c2);
                LineTo(p);
            }
            void Close() { LineTo(first); }
        };
        Lines lines{begin, line};
        Visit(lines);
    }

private:
    void Add(Verb verb, std::initializer_list<Point> added);
    void StartFigure();
    void AddArcCurves(Point center, double rx, double ry, double from, double to);

    std::vector<Verb> verbs;
    std::vector<Point> points;
    Box controlBox;
    Point start;    // of the current figure
    Point current;  // where the next segment begins
    bool hasCurrent = false;
    bool hasCurves = false;
    bool drawn = false;  // the current figure has a segment; before, its move is not recorded
};

}  // namespace zorvic::vek
