// Owning pointers to Cairo's objects, and the one exception for everything that fails inside Cairo.
#pragma once

#include <cairo.h>

#include <exception>
#include <memory>

namespace zorvic::vek {

struct CairoDelete {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using CairoContext = std::unique_ptr<cairo_t, CairoDelete>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDelete>;
using CairoPattern = std::unique_ptr<cairo_pattern_t, CairoDelete>;

struct CairoFailure : std::exception {
    const char* what() const noexcept override { return "Cairo failed"; }
};

inline void Require(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS) throw CairoFailure();
}

}  // namespace zorvic::vek
