/* Zorvic: the records and handles of the public interface. Layouts are part of the interface and checked at the end.
 *
 * Pixels are 32-bit words 0xAARRGGBB (bytes blue, green, red, alpha), colour premultiplied by alpha, rows top-down.
 * Sources may also have 24 bits (bytes blue, green, red; opaque) or 8 bits (indices into a palette of 32-bit words). */
#ifndef ZORVIC_TYPES_H
#define ZORVIC_TYPES_H

#include <stddef.h>
#include <windows.h>

/** A bitmap: one pixel surface. */
DECLARE_HANDLE(HGBITMAP);
/** A texture: a bitmap with a layout mode and slices. Any function that takes an HGBITMAP accepts a texture, by a cast.
 */
DECLARE_HANDLE(HGTEXTURE);
/** A canvas: what everything draws on. */
DECLARE_HANDLE(HGCANVAS);
/** A path: an outline of one or more figures, drawn by DrawPath. */
DECLARE_HANDLE(HGPATH);
/** A gradient: colours along a line or between two circles, chosen by SetGradient. */
DECLARE_HANDLE(HGGRADIENT);

/** A locked image: the platform's BITMAP, field for field, then its palette. 32 bytes; 48 in 64-bit programs.
 *  The pixels belong to the surface; they stay where they are until the surface is deleted or converted. */
typedef struct BitmapLockInfo {
    LONG bmType;       /**< 0 */
    LONG bmWidth;      /**< pixels */
    LONG bmHeight;     /**< rows */
    LONG bmWidthBytes; /**< bytes from one row to the next */
    WORD bmPlanes;     /**< 1 */
    WORD bmBitsPixel;  /**< 8, 24 or 32; other depths are read as 32 */
    LPVOID bmBits;     /**< the first pixel of the first row */
    WORD colorCount;   /**< palette entries; 0 above 8 bits per pixel */
    WORD reserved;     /**< 0 */
    DWORD* palette;    /**< colorCount words 0xAARRGGBB, or NULL. A surface without a palette of its own shows the
                            library's grey ramp, which is read-only. */
} BitmapLockInfo;

/** A colour without alpha: the low three bytes of a word 0xAARRGGBB. */
typedef struct RGBTriple {
    BYTE blue;  /**< 0..255 */
    BYTE green; /**< 0..255 */
    BYTE red;   /**< 0..255 */
} RGBTriple;

/** The same in hue, saturation and lightness: the low three bytes of a word 0xAAHHSSLL, see ARGBtoAHSL. */
typedef struct HSLTriple {
    BYTE lightness;  /**< 0 black .. 255 white */
    BYTE saturation; /**< 0 grey .. 255 */
    BYTE hue;        /**< round the circle: 0 red, 85 green, 170 blue */
} HSLTriple;

/** How a texture is laid out in the rectangle it is drawn to. */
typedef struct TextureMode {
    LONG layout;    /**< see ZORVIC_LAYOUT_STRETCH */
    DWORD argument; /**< flags of the layout */
    RECT margins;   /**< texture pixels, measured inward from each edge */
} TextureMode;

/** All choices of a texture draw; zero what is not used. */
typedef struct TextureDrawParams {
    DWORD filterMode;     /**< a sampling filter, see ZORVIC_FILTER_NEAREST */
    BYTE alpha;           /**< opacity, 255 opaque */
    BYTE reserved0[3];    /**< 0 */
    float tileScale;      /**< scale of tiles and of nine-grid margins on the destination; 1 is none */
    BYTE reserved1[4];    /**< 0 */
    double scale;         /**< scale of the nine-grid's source; 1 is none, 0 leaves nothing to be drawn */
    float cornerRadii[4]; /**< rounded corners: x and y radius in destination pixels, then two values that only ask
                               for rounding when they are not 0 */
    LONG ellipse;         /**< not 0: rounding cuts the ellipse that fills the destination */
    BYTE reserved2[4];    /**< 0 */
    LONG rounded;         /**< not 0: rounding even with radii of 0 */
    BYTE reserved3[4];    /**< 0 */
} TextureDrawParams;

/** The extent of a path. */
typedef struct PathBounds {
    float left;   /**< the smallest x */
    float top;    /**< the smallest y */
    float right;  /**< the largest x */
    float bottom; /**< the largest y */
} PathBounds;

#ifdef __cplusplus
static_assert(offsetof(BitmapLockInfo, bmBits) == offsetof(BITMAP, bmBits), "starts like a BITMAP");
static_assert(offsetof(BitmapLockInfo, colorCount) == sizeof(BITMAP), "the palette follows the BITMAP");
static_assert(sizeof(BitmapLockInfo) == sizeof(BITMAP) + 2 * sizeof(void*), "nothing follows the palette");
static_assert(sizeof(BitmapLockInfo) == (sizeof(void*) == 8 ? 48 : 32), "the only record that grows with pointers");
static_assert(sizeof(RGBTriple) == 3 && sizeof(HSLTriple) == 3, "passed and returned by value");
static_assert(sizeof(TextureMode) == 24, "stored and returned verbatim");
static_assert(sizeof(TextureDrawParams) == 56 && offsetof(TextureDrawParams, scale) == 16, "no hidden padding");
static_assert(offsetof(TextureDrawParams, cornerRadii) == 24 && offsetof(TextureDrawParams, rounded) == 48,
              "fixed offsets");
#endif

#endif
