// Which controls there are, and what each of them changes.
#include "ui/panel.h"

namespace {

constexpr int margin = 14;
constexpr int rowHeight = 23;
constexpr int rowStep = 26;
constexpr int labelWidth = 88;
constexpr int gap = 4;

}  // namespace

template <class C>
C& Panel::Add(std::unique_ptr<C> control, const RECT& where) {
    C& added = *control;
    added.place = where;
    added.begin = [this] { document.Begin(); };
    added.end = [this] { document.End(); };
    controls.push_back(std::move(control));
    return added;
}

template <class Edit>
void Panel::Change(Edit edit) {
    Settings settings = document.Now();
    edit(settings);
    document.Change(settings);
}

void Panel::AddTitle(const wchar_t* text) {
    Add(std::make_unique<Label>(text, true), {margin, rowTop + 3, width - margin, rowTop + 21});
    rowTop += 24;
}

void Panel::AddButtons(
    std::initializer_list<std::tuple<const wchar_t*, const wchar_t*, std::function<void()>>> buttons) {
    const int count = static_cast<int>(buttons.size());
    const int room = width - 2 * margin + gap;
    int i = 0;
    for (const auto& [text, tip, action] : buttons) {
        const RECT where{margin + room * i / count, rowTop, margin + room * (i + 1) / count - gap, rowTop + 26};
        Add(std::make_unique<Button>(text, action), where).tip = tip;
        ++i;
    }
    rowTop += 26 + gap;
}

RECT Panel::AddRow(const wchar_t* label) {
    Add(std::make_unique<Label>(label, false), {margin, rowTop, margin + labelWidth, rowTop + rowHeight});
    const RECT where{margin + labelWidth, rowTop, width - margin, rowTop + rowHeight};
    rowTop += rowStep;
    return where;
}

template <class T, std::size_t n>
ChoiceBox& Panel::AddChoice(const wchar_t* label, const wchar_t* tip, const Choice<T> (&choices)[n],
                            T Settings::*field) {
    ChoiceBox& box = Add(std::make_unique<ChoiceBox>(), AddRow(label));
    box.tip = tip;
    for (const Choice<T>& choice : choices) box.names.emplace_back(choice.name);
    box.get = [this, &choices, field] { return static_cast<int>(&ChoiceOf(choices, document.Now().*field) - choices); };
    box.set = [this, &choices, field](int i) { Change([&](Settings& s) { s.*field = choices[i].value; }); };
    box.openList = [this](ChoiceBox& owner) { OpenList(owner); };
    return box;
}

Slider& Panel::AddSlider(const wchar_t* label, const wchar_t* tip, int least, int most, const wchar_t* unit,
                         int Settings::*field) {
    Slider& slider = Add(std::make_unique<Slider>(), AddRow(label));
    slider.tip = tip;
    slider.least = least;
    slider.most = most;
    slider.unit = unit;
    slider.get = [this, field] { return document.Now().*field; };
    slider.set = [this, field](int value) { Change([&](Settings& s) { s.*field = value; }); };
    return slider;
}

void Panel::AddEdges(const wchar_t* label, const wchar_t* tip, RECT Settings::*field, bool asSize) {
    static constexpr LONG RECT::*edges[]{&RECT::left, &RECT::top, &RECT::right, &RECT::bottom};
    const RECT row = AddRow(label);
    for (int i = 0; i < 4; ++i) {
        const int room = Width(row) + gap;
        Number& number = Add(std::make_unique<Number>(),
                             {row.left + room * i / 4, row.top, row.left + room * (i + 1) / 4 - gap, row.bottom});
        number.tip = tip;
        LONG RECT::*edge = edges[i];
        // A rectangle is shown by its place and size, margins by their four values.
        LONG RECT::*base = i == 2 ? &RECT::left : &RECT::top;
        if (asSize && i < 2) {
            number.least = -32767;
            LONG RECT::*opposite = edges[i + 2];
            number.get = [this, field, edge] { return static_cast<int>((document.Now().*field).*edge); };
            number.set = [this, field, edge, opposite](int value) {
                Change([&](Settings& s) {
                    RECT& rect = s.*field;
                    rect.*opposite += value - rect.*edge;
                    rect.*edge = value;
                });
            };
        } else if (asSize) {
            number.least = 1;
            number.get = [this, field, edge, base] {
                const RECT& rect = document.Now().*field;
                return static_cast<int>(rect.*edge - rect.*base);
            };
            number.set = [this, field, edge, base](int value) {
                Change([&](Settings& s) { (s.*field).*edge = (s.*field).*base + value; });
            };
        } else {
            number.enabled = [this] { return UsesMargins(document.Now().layout); };
            number.get = [this, field, edge] { return static_cast<int>((document.Now().*field).*edge); };
            number.set = [this, field, edge](int value) { Change([&](Settings& s) { (s.*field).*edge = value; }); };
        }
    }
}

CheckBox& Panel::AddCheck(const RECT& where, std::function<std::wstring()> text, const wchar_t* tip,
                          std::function<bool()> get, std::function<void(bool)> set) {
    CheckBox& box = Add(std::make_unique<CheckBox>(std::move(text), std::move(get), std::move(set)), where);
    box.tip = tip;
    return box;
}

void Panel::Build() {
    rowTop = 10;
    const auto now = [this]() -> const Settings& { return document.Now(); };
    AddButtons({{L"Open\u2026", L"Open a picture (Ctrl+O). Or drop a file on the window.", commands.open},
                {L"Paste", L"Take a picture or a file from the clipboard (Ctrl+V).", commands.paste},
                {L"Save\u2026", L"Save what the destination rectangle shows as PNG (Ctrl+S).", commands.save}});
    AddButtons({{L"Copy call", L"Copy the C++ that draws this to the clipboard (Ctrl+C).", commands.copyCall},
                {L"Undo", L"Take the last change back (Ctrl+Z).", [this] { document.Undo(); }},
                {L"Redo", L"Do it again (Ctrl+Y).", [this] { document.Redo(); }}});
    const auto count = controls.size();
    const auto hasPicture = [this] { return document.HasPicture(); };
    controls[count - 6 + 2]->enabled = hasPicture;
    controls[count - 6 + 3]->enabled = hasPicture;
    controls[count - 2]->enabled = [this] { return document.CanUndo(); };
    controls[count - 1]->enabled = [this] { return document.CanRedo(); };

    AddTitle(L"Drawing");
    AddChoice(L"Operation", L"How the picture meets what is there.", operations, &Settings::operation);
    Swatch& key = Add(std::make_unique<Swatch>(), AddRow(L"Key colour"));
    key.tip = L"The colour that is not drawn. Click here, then a pixel of the picture.";
    key.get = [now] { return now().colorKey; };
    key.picking = [this] { return view.pickingKey; };
    key.pick = [this] { view.pickingKey = !view.pickingKey; };
    key.enabled = [now] { return now().operation == zorvic::Operation::colorKey; };
    AddSlider(L"Opacity", L"0 is nothing, 255 all. Multiply and destination over ignore it.", 0, 255, L"",
              &Settings::opacity)
        .enabled = [now] {
        return now().operation != zorvic::Operation::multiply && now().operation != zorvic::Operation::destinationOver;
    };
    AddChoice(L"Filter", L"How the picture is sampled when it is drawn at another size.", filters, &Settings::filter);
    AddChoice(L"Kernel", L"The curve of the bicubic filter; enlargements by area use it too.", kernels,
              &Settings::kernel)
        .enabled = [now] { return now().filter == zorvic::Filter::bicubic || now().filter == zorvic::Filter::area; };
    AddChoice(L"Ground", L"What the picture is drawn on.", grounds, &Settings::ground);

    AddTitle(L"Layout");
    AddChoice(L"Layout", L"How the picture fills the destination rectangle.", layouts, &Settings::layout);
    AddEdges(L"Margins", L"Left, top, right and bottom, in picture pixels. Drag, turn the wheel or type.",
             &Settings::margins, false);
    AddSlider(L"Scale", L"Of tiles and of nine-grid margins.", 25, 400, L" %", &Settings::scalePercent).enabled =
        [now] { return IsNineGrid(now().layout) || (now().layout == zorvic::Layout::tile && now().layoutFlag); };
    AddEdges(L"Destination", L"Left, top, width and height. Drag, turn the wheel or type.", &Settings::destination,
             true);
    const RECT row = AddRow(L"");
    const int half = (row.left + row.right) / 2;
    AddCheck(
        {row.left, row.top, half + 20, row.bottom},
        [now] { return now().layout == zorvic::Layout::uniform ? L"Centred" : L"Scaled tiles"; },
        L"Tiles are drawn at the scale above; or the middle of the picture is shown, not its corner.",
        [now] { return now().layoutFlag; }, [this](bool on) { Change([&](Settings& s) { s.layoutFlag = on; }); })
        .enabled = [now] { return now().layout == zorvic::Layout::tile || now().layout == zorvic::Layout::uniform; };
    Button& own =
        Add(std::make_unique<Button>(L"Own size", commands.ownSize), {half + 24, row.top, row.right, row.bottom});
    own.tip = L"The destination rectangle becomes as large as the picture, at 0, 0.";
    own.enabled = hasPicture;

    AddTitle(L"Picture");
    AddChoice(L"Transform", L"Turns or mirrors the picture before it is drawn.", transforms, &Settings::transform);
    AddChoice(L"Effect", L"Changes the picture's pixels before it is drawn.", effects, &Settings::effect);
    AddSlider(L"Box", L"Side of the box whose mean each pixel becomes, twice.", 1, 64, L" px", &Settings::box).enabled =
        [now] { return now().effect == Effect::boxBlur; };
    const auto colorizes = [now] { return now().effect == Effect::colorize; };
    AddSlider(L"Hue", L"100 is half the circle of colours.", -100, 100, L" %", &Settings::hue).enabled = colorizes;
    AddSlider(L"Saturation", L"100 is the strongest colour, -100 nearly grey.", -100, 100, L" %", &Settings::saturation)
        .enabled = colorizes;
    AddSlider(L"Lightness", L"100 is white, -100 black.", -100, 100, L" %", &Settings::lightness).enabled = colorizes;

    AddTitle(L"View");
    ChoiceBox& channels = Add(std::make_unique<ChoiceBox>(), AddRow(L"Channels"));
    channels.tip = L"What is shown of each pixel, over a checkerboard. Only for the eye: it is not saved.";
    channels.names = {L"Colour and alpha", L"Colour only", L"Alpha as grey"};
    channels.get = [this] { return static_cast<int>(view.channels); };
    channels.set = [this](int i) {
        view.channels = static_cast<Channels>(i);
        commands.changedView();
    };
    channels.openList = [this](ChoiceBox& owner) { OpenList(owner); };
    const RECT checks = AddRow(L"");
    const int third = margin + (width - 2 * margin) / 2;
    AddCheck(
        {margin, checks.top, third - gap, checks.bottom}, [] { return L"Handles (H)"; },
        L"Shows the destination rectangle and the nine-grid's margins, to be dragged.", [this] { return view.handles; },
        [this](bool on) { view.handles = on; });
    AddCheck(
        {third, checks.top, width - margin, checks.bottom}, [] { return L"Pixel grid (G)"; },
        L"Lines between the pixels, from a zoom of 800 % on.", [this] { return view.grid; },
        [this](bool on) { view.grid = on; });
}

Panel::Panel(Document& shown, ViewOptions& options, Commands does)
    : document(shown), view(options), commands(std::move(does)) {
    Build();
}
