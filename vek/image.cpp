// Keeping one Cairo surface, context and pattern per image.
#include "image.h"

#include <functional>

namespace zorvic::vek {

Image::Image(std::uint32_t* data, const Rect& where, int strideBytes)
    : bits(data), strideWords(strideBytes / static_cast<int>(sizeof(std::uint32_t))), place(where) {}

void Image::Allocate(const Rect& where) {
    const auto count = static_cast<std::size_t>(where.Width()) * static_cast<std::size_t>(where.Height());
    if (where.Width() != place.Width() || where.Height() != place.Height() || own.size() < count) Drop();
    if (own.size() < count) own.resize(count);
    bits = own.data();
    strideWords = where.Width();
    place = where;
    currentClip = {};
}

bool Image::SharesPixels(const Image& other) const {
    const auto end = [](const Image& image) { return image.At(image.place.right, image.place.bottom - 1); };
    return std::less<>()(bits, end(other)) && std::less<>()(other.bits, end(*this));
}

void Image::Drop() {
    pattern.reset();
    context.reset();
    surface.reset();
}

cairo_surface_t* Image::Surface() {
    if (surface && cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) Drop();
    if (!surface) {
        surface.reset(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(bits), CAIRO_FORMAT_ARGB32,
                                                          place.Width(), place.Height(),
                                                          static_cast<int>(strideWords * 4)));
        Require(cairo_surface_status(surface.get()));
    }
    // The owner writes to the pixels too.
    cairo_surface_mark_dirty(surface.get());
    return surface.get();
}

cairo_t* Image::Begin(const Rect& clip) {
    cairo_surface_t* drawnOn = Surface();
    if (!context || cairo_status(context.get()) != CAIRO_STATUS_SUCCESS) {
        context.reset(cairo_create(drawnOn));
        currentClip = place;
        solidIsSet = false;
    }
    cairo_new_path(context.get());
    if (!(clip == currentClip)) {
        cairo_reset_clip(context.get());
        if (!(clip == place)) {
            cairo_rectangle(context.get(), clip.left - place.left, clip.top - place.top, clip.Width(), clip.Height());
            cairo_clip(context.get());
        }
        currentClip = clip;
    }
    Require(cairo_status(context.get()));
    return context.get();
}

void Image::End() { Require(cairo_status(context.get())); }

void Image::SetSolid(std::uint32_t premultiplied) {
    if (solidIsSet && currentSolid == premultiplied) return;
    // Cairo keeps 16 bits of each premultiplied channel: 257 v stands for the byte v exactly, the half is for rounding.
    const auto channel = [&](int shift) { return ((premultiplied >> shift & 0xFF) * 257 + 0.5) / 65536; };
    const double alpha = channel(24);
    cairo_set_source_rgba(context.get(), channel(16) / alpha, channel(8) / alpha, channel(0) / alpha, alpha);
    currentSolid = premultiplied;
    solidIsSet = true;
}

void Image::SetPattern(cairo_pattern_t* source) {
    cairo_set_source(context.get(), source);
    solidIsSet = false;
}

cairo_pattern_t* Image::Pattern(Point position) {
    cairo_surface_t* source = Surface();
    if (!pattern || cairo_pattern_status(pattern.get()) != CAIRO_STATUS_SUCCESS) {
        pattern.reset(cairo_pattern_create_for_surface(source));
        Require(cairo_pattern_status(pattern.get()));
    }
    cairo_matrix_t matrix;
    cairo_matrix_init_translate(&matrix, -position.x, -position.y);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    return pattern.get();
}

}  // namespace zorvic::vek
