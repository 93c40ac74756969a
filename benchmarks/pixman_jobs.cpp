// The same work by pixman, on the same pixels. Its images, transforms and filters are made once, outside the job.
#include <pixman.h>

#include <cstdlib>
#include <stdexcept>

#include "contenders.h"

namespace bench {

namespace {

using Image = std::shared_ptr<pixman_image_t>;

Image Owning(pixman_image_t* image) {
    if (!image) throw std::runtime_error("pixman: out of memory");
    return {image, pixman_image_unref};
}

Image ImageOf(const BitmapLockInfo& pixels) {
    return Owning(pixman_image_create_bits(PIXMAN_a8r8g8b8, pixels.bmWidth, pixels.bmHeight,
                                           reinterpret_cast<std::uint32_t*>(pixels.bmBits), pixels.bmWidthBytes));
}

Image Solid(DWORD color) {
    const auto channel = [=](int shift) { return static_cast<std::uint16_t>((color >> shift & 0xFF) * 0x101); };
    const pixman_color_t solid{channel(16), channel(8), channel(0), channel(24)};
    return Owning(pixman_image_create_solid_fill(&solid));
}

void UseKernels(pixman_image_t* image, pixman_kernel_t reconstruct, pixman_kernel_t sample, double xScale,
                double yScale) {
    int count = 0;
    pixman_fixed_t* values = pixman_filter_create_separable_convolution(&count, pixman_double_to_fixed(xScale),
                                                                        pixman_double_to_fixed(yScale), reconstruct,
                                                                        reconstruct, sample, sample, 4, 4);
    pixman_image_set_filter(image, PIXMAN_FILTER_SEPARABLE_CONVOLUTION, values, count);
    std::free(values);
}

void Scale(pixman_image_t* image, const BitmapLockInfo& source, const BitmapLockInfo& target, DWORD filter) {
    const double x = static_cast<double>(source.bmWidth) / target.bmWidth;
    const double y = static_cast<double>(source.bmHeight) / target.bmHeight;
    if (x == 1 && y == 1) return;
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, pixman_double_to_fixed(x), pixman_double_to_fixed(y));
    pixman_image_set_transform(image, &transform);
    pixman_image_set_repeat(image, PIXMAN_REPEAT_PAD);
    switch (filter) {
        case ZORVIC_FILTER_NEAREST:
            pixman_image_set_filter(image, PIXMAN_FILTER_NEAREST, nullptr, 0);
            break;
        case ZORVIC_FILTER_BICUBIC:
            UseKernels(image, PIXMAN_KERNEL_CUBIC, PIXMAN_KERNEL_IMPULSE, x, y);
            break;
        case ZORVIC_FILTER_AREA:
            UseKernels(image, PIXMAN_KERNEL_IMPULSE, PIXMAN_KERNEL_BOX, x, y);
            break;
        default:
            pixman_image_set_filter(image, PIXMAN_FILTER_BILINEAR, nullptr, 0);
    }
}

// From the place on the target to that on the source.
void Turn(pixman_image_t* image, int transform, LONG sourceHeight) {
    const pixman_fixed_t one = pixman_fixed_1, height = pixman_int_to_fixed(sourceHeight);
    pixman_transform_t matrix{};
    matrix.matrix[0][1] = matrix.matrix[2][2] = one;
    matrix.matrix[1][0] = transform == ZORVIC_TRANSFORM_TRANSPOSE ? one : -one;
    matrix.matrix[1][2] = transform == ZORVIC_TRANSFORM_TRANSPOSE ? 0 : height;
    pixman_image_set_transform(image, &matrix);
    pixman_image_set_filter(image, PIXMAN_FILTER_NEAREST, nullptr, 0);
}

Job Composite(pixman_op_t op, const Image& from, const Image& mask, const Image& to, const RECT& area) {
    const int width = area.right - area.left, height = area.bottom - area.top;
    return [=] {
        pixman_image_composite32(op, from.get(), mask.get(), to.get(), 0, 0, 0, 0, area.left, area.top, width, height);
    };
}

Job FillJob(const Row& row, const Surfaces& images) {
    const RECT area = images.area;
    if (row.operation != ZORVIC_OP_COPY)
        return Composite(PIXMAN_OP_OVER, Solid(row.color), {}, ImageOf(images.canvasPixels), area);
    return [=, pixels = images.canvasPixels, color = row.color] {
        pixman_fill(reinterpret_cast<std::uint32_t*>(pixels.bmBits), pixels.bmWidthBytes / 4, 32, area.left, area.top,
                    area.right - area.left, area.bottom - area.top, color);
    };
}

Job DrawJob(const Row& row, const Surfaces& images) {
    if (row.operation == ZORVIC_OP_MULTIPLY) return {};  // pixman's is another formula
    const pixman_op_t op = row.operation == ZORVIC_OP_COPY               ? PIXMAN_OP_SRC
                           : row.operation == ZORVIC_OP_DESTINATION_OVER ? PIXMAN_OP_OVER_REVERSE
                                                                         : PIXMAN_OP_OVER;
    const Image source = ImageOf(images.source);
    Scale(source.get(), images.source, images.target, row.filter);
    const Image mask = row.alpha == 255 ? Image{} : Solid(DWORD{row.alpha} << 24);
    return Composite(op, source, mask, ImageOf(images.canvasPixels), images.area);
}

}  // namespace

Job PixmanJob(const Row& row, const Surfaces& images) {
    switch (row.work) {
        case Work::fill:
            return FillJob(row, images);
        case Work::draw:
            return DrawJob(row, images);
        case Work::move: {
            const Image source = ImageOf(images.source);
            Turn(source.get(), row.argument, images.source.bmHeight);
            return Composite(PIXMAN_OP_SRC, source, {}, ImageOf(images.canvasPixels), images.area);
        }
        case Work::newTransform: {
            const Image source = ImageOf(images.source);
            Turn(source.get(), row.argument, images.source.bmHeight);
            const int width = images.source.bmHeight, height = images.source.bmWidth;
            return [=] {
                const Image made =
                    Owning(pixman_image_create_bits_no_clear(PIXMAN_a8r8g8b8, width, height, nullptr, 0));
                pixman_image_composite32(PIXMAN_OP_SRC, source.get(), nullptr, made.get(), 0, 0, 0, 0, 0, 0, width,
                                         height);
            };
        }
        default:
            return {};
    }
}

}  // namespace bench
