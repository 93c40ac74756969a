// Textures that borrow a canvas's surface or take it over.
#include "canvas/canvas_texture.h"

#include <new>

#include "raster/kernel_table.h"
#include "raster/request.h"

namespace zorvic {

Texture* TextureOfCanvas(const Canvas& canvas) {
    std::unique_ptr<Texture> texture(new (std::nothrow) Texture);
    return texture && texture->Attach(canvas.Surface(), true) ? texture.release() : nullptr;
}

Texture* CanvasIntoTexture(std::unique_ptr<Canvas> canvas) {
    std::unique_ptr<Bitmap> surface = canvas->TakeSurface();
    // A canvas on a device context makes a texture without pixels, as a bitmap without pixels does.
    if (!surface) return new (std::nothrow) Texture;
    surface->filter = canvas->Filter();
    if (OperationOf(surface->filter) != Operation::sourceOver)
        if (const SurfaceLock pixels(*surface); pixels) KernelTable.At(slots::makeOpaque)(*pixels);
    return IntoTexture(std::move(surface)).release();
}

}  // namespace zorvic
