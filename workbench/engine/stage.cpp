#include "engine/stage.h"

#include <algorithm>

namespace {

double Seconds() {
    LARGE_INTEGER now{}, frequency{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

void ApplyEffect(zorvic::TextureRef picture, const Settings& s) {
    switch (s.effect) {
        case Effect::none:
            break;
        case Effect::gray:
            picture.Gray();
            break;
        case Effect::invert:
            picture.Invert();
            break;
        case Effect::blur:
            picture.BlurFrom(picture);
            break;
        case Effect::boxBlur: {
            const zorvic::PixelLock pixels = picture.Lock();
            BlurBitmapData(pixels.Width(), pixels.Height(), pixels.Info().bmWidthBytes, pixels.Info().bmBits, 32,
                           s.box);
            break;
        }
        case Effect::colorize:
            picture.Colorize(static_cast<float>(s.hue) / 100, static_cast<float>(s.saturation) / 100,
                             static_cast<float>(s.lightness) / 100);
            break;
        case Effect::light:
            picture.Light();
            break;
        case Effect::dark:
            picture.Dark();
            break;
        case Effect::alphaToGray:
            picture.ShuffleChannels(zorvic::Shuffle::alphaToGray);
            break;
        case Effect::colorToAlpha:
            picture.ShuffleChannels(zorvic::Shuffle::colorToAlpha);
            break;
    }
}

void FillGround(zorvic::CanvasRef canvas, const RECT& area, Ground ground) {
    DWORD flat = 0;
    if (FlatGround(ground, flat)) {
        canvas.FillPremultipliedRect(flat, area, zorvic::Operation::copy);
        return;
    }
    // Columns of 32 pixels that stay where they are when another part is shown.
    static constexpr DWORD bars[]{0xFFF2F2F2, 0xFFE8C33A, 0xFF3FB6C9, 0xFF4CA64C,
                                  0xFFB452A8, 0xFFCF4436, 0xFF3556B8, 0xFF26262B};
    constexpr int width = 32;
    constexpr int count = static_cast<int>(std::size(bars));
    const int first = area.left >= 0 ? area.left / width : -((width - 1 - area.left) / width);
    for (int i = first; i * width < area.right; ++i)
        canvas.FillPremultipliedRect(bars[(i % count + count) % count],
                                     {i * width, area.top, (i + 1) * width, area.bottom}, zorvic::Operation::copy);
}

}  // namespace

bool NeedsPreparation(const Settings& s) { return s.transform != 0 || s.effect != Effect::none; }

zorvic::Texture Prepare(zorvic::TextureRef source, const Settings& s) {
    if (!NeedsPreparation(s)) return {};
    zorvic::Texture prepared;
    if (s.transform != 0) {
        prepared = source.Transformed(static_cast<zorvic::Transform>(s.transform));
    } else {
        prepared = zorvic::Texture::Create(source.Size().cx, source.Size().cy);
        if (prepared) prepared.CopyFrom(source);
    }
    if (prepared) ApplyEffect(prepared, s);
    return prepared;
}

bool FlatGround(Ground ground, DWORD& color) {
    color = ground == Ground::white ? 0xFFFFFFFF : ground == Ground::black ? 0xFF000000 : 0;
    return ground != Ground::bars;
}

DrawCost DrawStage(zorvic::CanvasRef canvas, POINT corner, zorvic::TextureRef picture, const Settings& s) {
    const SIZE size = canvas.Size();
    const RECT area{corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
    canvas.SetOperation(zorvic::Operation::sourceOver);  // its alpha counts
    canvas.SetViewportOrigin(-corner.x, -corner.y);
    FillGround(canvas, area, s.ground);

    picture.SetOperation(s.operation, s.operation == zorvic::Operation::colorKey ? s.colorKey : 0);
    DWORD argument = 0;
    if (s.layout == zorvic::Layout::tile && s.layoutFlag) argument = ZORVIC_TILE_SCALED;
    if (s.layout == zorvic::Layout::uniform && s.layoutFlag) argument = ZORVIC_UNIFORM_CENTERED;
    picture.SetLayout(s.layout, s.margins, argument);
    const auto alpha = static_cast<BYTE>(s.opacity);
    const double start = Seconds();
    // A plain stretch of a texture shows its current slice; the whole of it is drawn as a bitmap.
    if (s.layout == zorvic::Layout::stretch)
        canvas.DrawBitmap(s.destination, picture, s.filter, alpha);
    else
        canvas.DrawTexture(s.destination, picture, s.filter, alpha, Scale(s));
    const double seconds = Seconds() - start;

    RECT drawn{};
    IntersectRect(&drawn, &area, &s.destination);
    return {seconds, double(drawn.right - drawn.left) * (drawn.bottom - drawn.top)};
}
