// gallery OUTDIR [PICTURE...]: writes labelled pages to OUTDIR/*.png that show what each call of the library does, with
// the pictures given or with samples. Fails with one line on stderr.
#include <windows.h>

#include <shellapi.h>

#include <cstdio>

#include "pages/pages.h"
#include "support/picture_files.h"

namespace {

std::vector<std::wstring> Arguments() {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    return arguments;
}

struct Page {
    const wchar_t* file;
    Sheet (*draw)(const Pictures& pictures);
};
constexpr Page pages[]{
    {L"01-pictures.png", PicturesPage},       {L"02-fills.png", FillsPage},
    {L"03-depths.png", DepthsPage},           {L"04-operations.png", OperationsPage},
    {L"05-color-key.png", ColorKeyPage},      {L"06-clip-and-origins.png", ClipPage},
    {L"07-nearest.png", NearestPage},         {L"08-filters.png", FiltersPage},
    {L"09-slices.png", SlicesPage},           {L"10-layouts.png", LayoutsPage},
    {L"11-composition.png", CompositionPage}, {L"12-gdi.png", GdiPage},
    {L"13-transforms.png", TransformsPage},   {L"14-effects.png", EffectsPage},
    {L"15-colorize.png", ColorizePage},       {L"16-blur.png", BlurPage},
    {L"17-glow-and-shadow.png", GlowPage},    {L"18-regions.png", RegionsPage},
    {L"19-shapes.png", ShapesPage},           {L"20-strokes.png", StrokesPage},
    {L"21-blend-modes.png", BlendingPage},    {L"22-gradients.png", GradientsPage},
    {L"23-outlines.png", OutlinesPage},
};

// Opaque, whatever the alpha of the bitmap.
void WritePage(HGBITMAP page, const std::wstring& file) {
    PngWriter png(file, SizeOf(page).cx, SizeOf(page).cy, PngWriter::Alpha::none);
    png.WriteRows(page);
    png.Finish();
}

void DrawPages(const std::wstring& folder, const std::vector<std::wstring>& files) {
    const Pictures pictures = LoadPictures(files);
    for (const Page& page : pages) {
        const Canvas canvas = page.draw(pictures).Compose();
        WritePage(GetBitmap(canvas), folder + L"/" + page.file);
        std::printf("%s\n", Utf8(page.file).c_str());
    }
}

}  // namespace

int main() {
    auto arguments = Arguments();
    if (arguments.empty()) {
        std::fprintf(stderr, "usage: gallery OUTDIR [PICTURE...]\n");
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try {
        const std::wstring folder = arguments.front();
        arguments.erase(arguments.begin());
        DrawPages(folder, arguments);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "gallery: %s\n", failure.what());
        status = 1;
    }
    CoUninitialize();
    return status;
}
