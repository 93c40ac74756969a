// The part of the window that shows the stage: where it is scrolled and zoomed to, what lies under the pointer, and what
// is dragged there.
#pragma once

#include <optional>

#include "document/document.h"
#include "engine/frame.h"
#include "ui/painter.h"
#include "ui/panel.h"

class View {
public:
    View(Document& shown, ViewOptions& chosen) : document(shown), options(chosen) {}

    void Layout(const RECT& where);
    const RECT& Place() const { return place; }
    ViewPart Part() const { return {origin, zoom, {Width(place), Height(place)}}; }
    int Zoom() const { return zoom; }

    void SetFrame(Frame made) { frame = std::move(made); }
    void ForgetFrame() { frame = {}; }
    bool IsCurrent() const { return frame.pixels && frame.part == Part(); }
    const DrawCost& Cost() const { return frame.cost; }

    void Draw(const Painter& painter) const;

    // Zooms keep the stage pixel at `at`, in client pixels, where it is.
    void ZoomBy(int steps, POINT at);
    void ZoomToFit();
    void ZoomToNatural();
    void Scroll(int dx, int dy);  // screen pixels

    // All in client pixels. Press answers whether a drag has begun.
    bool Press(POINT at, bool panOnly);
    void Drag(POINT at);
    void Release();
    void Cancel();
    bool IsDragging() const { return grip != Grip::none; }
    HCURSOR CursorAt(POINT at) const;

    POINT StageAt(POINT client) const;
    // The pixel there, as far as it has been drawn; the mean of some where the view reduces.
    std::optional<DWORD> PixelAt(POINT client) const;

private:
    // Edges are combined for corners.
    enum class Grip { none = 0, left = 1, top = 2, right = 4, bottom = 8, move = 16, margin = 32, pan = 64 };
    friend Grip operator|(Grip a, Grip b) { return static_cast<Grip>(static_cast<int>(a) | static_cast<int>(b)); }
    static bool Has(Grip grip, Grip part) { return (static_cast<int>(grip) & static_cast<int>(part)) != 0; }

    struct Handle {
        Grip grip;
        POINT at;
    };

    int ToClientX(double x) const;
    int ToClientY(double y) const;
    RECT DestinationOnScreen() const;
    std::vector<Handle> Handles() const;
    RECT MarginLines() const;  // client coordinates of the four lines
    Grip GripAt(POINT at) const;
    void ResizeTo(POINT stage);
    void MarginTo(POINT stage);
    void DrawFrame(const Painter& painter) const;
    void DrawGrid(const Painter& painter) const;
    void DrawHandles(const Painter& painter) const;
    void SetZoom(int to, POINT at);

    Document& document;
    ViewOptions& options;
    RECT place{};
    POINT origin{};
    int zoom = 1;
    Frame frame;
    Grip grip = Grip::none;
    POINT pressedClient{};
    POINT pressedStage{};
    POINT originAtPress{};
    Settings atPress;
};
