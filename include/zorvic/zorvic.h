/* Zorvic: 2D raster graphics for Windows desktop programs. Usable from C and C++; link libzorvic32.
 * C++20 hosts may prefer zorvic.hpp, where handles own what they name.
 *
 * Handles.  A bitmap (HGBITMAP) is one pixel surface, in heap memory or in a GDI DIB section. A texture (HGTEXTURE) is
 *   a bitmap with a layout mode and slices; a canvas (HGCANVAS) is what everything draws on: a surface of its own, or a
 *   device context of the host. The host deletes what it created. A NULL handle gives 0 or NULL at once.
 * Pixels.  See types.h. A canvas always has 32-bit premultiplied pixels; drawing never divides by 255: a byte is scaled
 *   by k = 1..256 as (byte * k) >> 8.
 * Operation word.  Every bitmap, texture and canvas carries one, called its filter (SetBitmapFilter, SetCanvasFilter).
 *   Its top byte says how the pixels are composed when drawn, see ZORVIC_OP_COPY; the colour key has its colour in the
 *   low 24 bits.
 * Coordinates.  Rectangles on a canvas are logical pixels, right and bottom exclusive; the surface pixel is
 *   logical + viewport origin - window origin. The clip stays where it was set, in surface pixels.
 * Results.  1 is done, 0 is refused. Drawing returns 1 once its handles are valid, even if nothing was visible; textures
 *   without slices and tiles differ, see DrawTexture. There are no error codes and no messages.
 * Threads.  Any thread may use the library; each object is used by one thread at a time. The two process-wide settings
 *   (SetStretchKernelMode, RegisterD2DResoureMgr) are changed while no other thread draws. */
#ifndef ZORVIC_ZORVIC_H
#define ZORVIC_ZORVIC_H

#include "zorvic/types.h"
#ifndef __cplusplus
#include <stdbool.h>
#endif

/* <windowsx.h> has a macro of this name. */
#undef DeleteBitmap

#ifdef __cplusplus
#define ZORVIC_EXTERN extern "C"
#else
#define ZORVIC_EXTERN extern
#endif
#ifdef ZORVIC_BUILD
#define ZORVIC_API ZORVIC_EXTERN
#else
#define ZORVIC_API ZORVIC_EXTERN __declspec(dllimport)
#endif
/* In C++ these have C++ linkage. */
#if defined(__cplusplus) && !defined(ZORVIC_BUILD)
#define ZORVIC_API_CXX __declspec(dllimport)
#else
#define ZORVIC_API_CXX ZORVIC_API
#endif
#define ZORVIC_CALL __cdecl

/* ---------------------------------------------------------------------------------------- operations and filters */

/** Operation words: how a source, or a fill's colour, meets the pixels that are there. */
enum {
    ZORVIC_OP_COPY = 0x00000000,        /**< replaces them; below opacity 255 a source is blended as SOURCE_OVER */
    ZORVIC_OP_SOURCE_OVER = 0x01000000, /**< drawn over them by its alpha */
    ZORVIC_OP_COLOR_KEY = 0x02000000, /**< copies what differs from the key, OR'ed in as 0xRRGGBB; fills: SOURCE_OVER */
    ZORVIC_OP_MULTIPLY = 0x03000000,  /**< multiplies channel by channel; scaled bilinearly; ignores the opacity */
    ZORVIC_OP_OR = 0x04000000,        /**< fills only: bitwise OR; 0 clears, 0xFFFFFFFF changes nothing */
    ZORVIC_OP_GRAY_WASH = 0x05000000, /**< fills only: opaque pixels become their grey, times the colour's alpha */
    ZORVIC_OP_DESTINATION_OVER = 0x06000000 /**< drawn behind them; scaled bilinearly; ignores the opacity */
};

/** Sampling filters: how a source is read when it is drawn at another size. Any other value is bilinear too. */
enum {
    ZORVIC_FILTER_NEAREST = 0,  /**< the source pixel at the scaled position, counted from the top left: hard edges */
    ZORVIC_FILTER_BILINEAR = 1, /**< mean of 2 x 2 source pixels, weighted by their distance */
    ZORVIC_FILTER_BICUBIC = 4,  /**< kernel chosen by SetStretchKernelMode */
    ZORVIC_FILTER_AREA = 5      /**< mean of the covered source pixels; enlargements are bicubic */
};

/* ------------------------------------------------------------------------------------------------------- bitmaps */

/** Creates a bitmap with its pixels in a top-down 32-bit DIB section, for GDI to draw on. Pixels start at 0.
 *  \param width,height  pixels, 1..32767 each
 *  \return a bitmap to be deleted with DeleteBitmap; NULL for a bad size or when memory is short */
ZORVIC_API HGBITMAP ZORVIC_CALL CreateSystemBitmap(int width, int height);

/** Creates a 32-bit bitmap in heap memory. Its pixels start undefined.
 *  \param width,height  pixels, 1..32767 each
 *  \return a bitmap to be deleted with DeleteBitmap; NULL for a bad size or when memory is short */
ZORVIC_API HGBITMAP ZORVIC_CALL CreateMemBitmap(int width, int height);

/** Creates a bitmap in heap memory with a depth and a palette of its own. Pixels and palette start undefined.
 *  \param width,height  pixels, 1..32767 each
 *  \param bitsPixel     1..32; only depths from 8 on can be locked, and only 8, 24 and 32 are drawn as such
 *  \param colorCount    palette entries, cut to 2^bitsPixel; 0 or less, the grey ramp; ignored above 8 bits
 *  \return a bitmap to be deleted with DeleteBitmap; NULL for a bad size or depth, or when memory is short */
ZORVIC_API HGBITMAP ZORVIC_CALL CreateMemBitmapEx(int width, int height, int bitsPixel, int colorCount);

/** Deletes a bitmap or texture and the pixels it owns. NULL is ignored, and so is the surface of a canvas. */
ZORVIC_API void ZORVIC_CALL DeleteBitmap(HGBITMAP bitmap);

/** Does nothing: the bitmap stays alive. Kept for hosts that call it; see DeleteBitmap. */
ZORVIC_API void ZORVIC_CALL ReleaseBitmap(HGBITMAP bitmap);

/** The bitmap's pixels as a GDI bitmap. A bitmap in heap memory is first turned into a 32-bit DIB section, once and
 *  for good, which moves its pixels; earlier locks end.
 *  \return a handle that stays the bitmap's and must not be deleted by the host; 0 for NULL, for a bitmap without
 *          pixels of its own, or when GDI refuses. A bitmap has lost its pixels then, a canvas has not */
ZORVIC_API HBITMAP ZORVIC_CALL GetBitmapHandle(HGBITMAP bitmap);

/** Writes width and height in pixels (0 and 0 without pixels). \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetBitmapSize(HGBITMAP bitmap, SIZE* size);

/** Describes the pixels of a bitmap, for reading and writing in place. Locks do not count or exclude one another.
 *  \param out   receives the description of the area
 *  \param area  surface pixels; NULL means all of it
 *  \return 1; 0 for NULL, without pixels, below 8 bits per pixel, or for an area that is empty or reaches outside */
ZORVIC_API int ZORVIC_CALL LockBitmapBits(HGBITMAP bitmap, BITMAP* out, const RECT* area);

/** LockBitmapBits with the palette: the bitmap's own, the grey ramp (256 entries) for 8 bits without one, none above 8.
 */
ZORVIC_API int ZORVIC_CALL LockBitmapBitsEx(HGBITMAP bitmap, BitmapLockInfo* out, const RECT* area);

/** Ends a lock.
 *  \param value    passed on to the resource manager
 *  \param changed  not 0: tells the registered resource manager that the pixels changed
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL UnlockBitmapBits(HGBITMAP bitmap, DWORD value, int changed);

/** Reads the operation word. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetBitmapFilter(HGBITMAP bitmap, DWORD* filter);

/** Sets the operation word with which the bitmap is drawn from now on. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL SetBitmapFilter(HGBITMAP bitmap, DWORD filter);

/** Writes the bits per pixel (0 without pixels). \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetBitmapBitsPixel(HGBITMAP bitmap, BYTE* bitsPixel);

/** Copies pixels, palette and operation word between surfaces of one depth and palette size, or widens any source
 *  into a 32-bit surface. Other pairs copy nothing. Nothing is stretched: the source area's size is copied.
 *  \param dst,src          may be the same bitmap
 *  \param dstArea,srcArea  surface pixels; NULL means all of it. The destination area places the copy, which is cut to what
 *                          lies inside the destination surface
 *  \return 1 for two valid handles, whatever was copied; else 0 */
ZORVIC_API int ZORVIC_CALL CopyBitmap(HGBITMAP dst, const RECT* dstArea, HGBITMAP src, const RECT* srcArea);

/* The same functions for textures: each is the bitmap function of that name under another one. */
ZORVIC_API void ZORVIC_CALL DeleteTexture(HGTEXTURE texture);
ZORVIC_API void ZORVIC_CALL ReleaseTexture(HGTEXTURE texture); /* deletes, unlike ReleaseBitmap */
ZORVIC_API HBITMAP ZORVIC_CALL GetTextureHandle(HGTEXTURE texture);
ZORVIC_API int ZORVIC_CALL LockTextureBits(HGTEXTURE texture, BITMAP* out, const RECT* area);
ZORVIC_API int ZORVIC_CALL LockTextureBitsEx(HGTEXTURE texture, BitmapLockInfo* out, const RECT* area);
ZORVIC_API int ZORVIC_CALL UnlockTextureBits(HGTEXTURE texture, DWORD value, int changed);
ZORVIC_API int ZORVIC_CALL GetTextureFilter(HGTEXTURE texture, DWORD* filter);
ZORVIC_API int ZORVIC_CALL SetTextureFilter(HGTEXTURE texture, DWORD filter);
ZORVIC_API int ZORVIC_CALL GetTextureBitsPixel(HGTEXTURE texture, BYTE* bitsPixel);
ZORVIC_API int ZORVIC_CALL CopyTexture(HGTEXTURE dst, const RECT* dstArea, HGTEXTURE src, const RECT* srcArea);

#ifdef __cplusplus
/** What a host implements to follow its bitmaps, for example to drop copies of their pixels. */
class ResourceManager {
public:
    /** The pixels of the bitmap are about to be released or replaced. */
    virtual void OnRelease(HGBITMAP bitmap) = 0;
    /** The pixels of the bitmap were changed; value is what UnlockBitmapBits was given, 0 for effects. */
    virtual void OnChange(HGBITMAP bitmap, DWORD value) = 0;

protected:
    ~ResourceManager() = default;
};
#else
typedef struct ResourceManager ResourceManager;
#endif

/** Registers the process-wide resource manager; NULL means none. It stays the host's. \return manager */
ZORVIC_API ResourceManager* ZORVIC_CALL RegisterD2DResoureMgr(ResourceManager* manager);

/* ------------------------------------------------------------------------------------------------------ textures */

/** CreateTextureEx(width, height, 32, 0). */
ZORVIC_API HGTEXTURE ZORVIC_CALL CreateTexture(int width, int height);

/** Creates a texture in heap memory, without slices and with a plain stretch as its layout.
 *  Arguments and failures are those of CreateMemBitmapEx. \return a texture to be deleted with DeleteTexture */
ZORVIC_API HGTEXTURE ZORVIC_CALL CreateTextureEx(int width, int height, int bitsPixel, int colorCount);

/** A texture that shows a canvas's pixels without owning them. Delete it before the canvas; it goes on showing the old
 *  pixels when the canvas's surface is turned into a DIB section (GetCanvasHandle) after this call.
 *  \return a texture to be deleted with DeleteTexture; NULL for NULL or a canvas without a surface */
ZORVIC_API HGTEXTURE ZORVIC_CALL GetTexture(HGCANVAS canvas);

/** Turns a bitmap into a texture: the pixels move, the bitmap is deleted and its handle ends.
 *  \return NULL for NULL and for the surface of a canvas */
ZORVIC_API HGTEXTURE ZORVIC_CALL BitmapToTexture(HGBITMAP bitmap);

/** Turns a canvas into a texture: the surface moves, the canvas is deleted and its handle ends. Unless the canvas's
 *  operation is ZORVIC_OP_SOURCE_OVER, every pixel becomes opaque. \return NULL for NULL */
ZORVIC_API HGTEXTURE ZORVIC_CALL CanvasToTexture(HGCANVAS canvas);

/** Writes the size of the current slice, or of the surface when there are no slices, in pixels.
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetTextureSize(HGTEXTURE texture, SIZE* size);

/** Copies a layout record in. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL SetTextureMode(HGTEXTURE texture, const TextureMode* mode);

/** Copies the layout record out; all zero at creation. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetTextureMode(HGTEXTURE texture, TextureMode* mode);

/** Replaces the slices: rectangles that cut one surface into several images. The last one becomes current.
 *  \param count  rectangles; 0 removes all
 *  \param rects  surface pixels; not checked against the surface here, drawing does
 *  \return count; 0 for NULL */
ZORVIC_API int ZORVIC_CALL SetTextureSlice(HGTEXTURE texture, unsigned int count, const RECT* rects);

/** Selects the slice that size queries and drawing use.
 *  \return the previous index (-1, none was); -1 without a change for NULL or an index outside the slices */
ZORVIC_API int ZORVIC_CALL SetTextureCurSlice(HGTEXTURE texture, int index);

/** Writes the current slice, or the whole surface when there is none. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetTextureCurSlice(HGTEXTURE texture, RECT* slice);

/** \return the number of slices; -1 for NULL */
ZORVIC_API int ZORVIC_CALL GetTextureSliceCount(HGTEXTURE texture);

/* ------------------------------------------------------------------------------ bitmaps and textures from others */

/** How a picture is turned or mirrored. W and H are the new width and height; the pixel at (x, y) of the source goes to
 *  the place behind each name. */
enum {
    ZORVIC_TRANSFORM_ROTATE_90 = 1,       /**< clockwise: (W - 1 - y, x) */
    ZORVIC_TRANSFORM_ROTATE_180 = 2,      /**< (W - 1 - x, H - 1 - y) */
    ZORVIC_TRANSFORM_ROTATE_270 = 3,      /**< clockwise: (y, H - 1 - x) */
    ZORVIC_TRANSFORM_FLIP_VERTICAL = 4,   /**< top to bottom: (x, H - 1 - y) */
    ZORVIC_TRANSFORM_FLIP_HORIZONTAL = 5, /**< left to right: (W - 1 - x, y) */
    ZORVIC_TRANSFORM_TRANSPOSE = 6,       /**< about the diagonal through the top left corner: (y, x) */
    ZORVIC_TRANSFORM_ANTI_TRANSPOSE = 7   /**< about the other diagonal: (W - 1 - y, H - 1 - x) */
};

/** A new 32-bit bitmap that shows the source in another size, with its operation word; in a DIB section if the source
 *  is in one. At the source's own size the pixels are copied exactly.
 *  \param source        8, 24 or 32 bits per pixel; only read
 *  \param width,height  pixels, 1..32767 each
 *  \param mode          sampling, see ZORVIC_FILTER_NEAREST
 *  \return a bitmap to be deleted with DeleteBitmap; NULL for NULL, a bad size, or when memory is short. A source
 *          whose pixels cannot be locked gives undefined ones */
ZORVIC_API HGBITMAP ZORVIC_CALL ResizeBitmap(HGBITMAP source, int width, int height, int mode);

/** ResizeBitmap for textures: the new one is in heap memory, without slices and with a plain stretch as its layout. */
ZORVIC_API HGTEXTURE ZORVIC_CALL ResizeTexture(HGTEXTURE source, int width, int height, int mode);

/** A new bitmap with the source's pixels turned or mirrored, and its depth, palette and operation word; in a DIB
 *  section if the source is in one.
 *  \param source  8, 24 or 32 bits per pixel (pixels of other depths are not moved: the new ones are undefined)
 *  \param op      see ZORVIC_TRANSFORM_ROTATE_90
 *  \return a bitmap to be deleted with DeleteBitmap; NULL for NULL, another op, or when memory is short */
ZORVIC_API HGBITMAP ZORVIC_CALL TransformBitmap(HGBITMAP source, int op);

/** TransformBitmap for textures: the new one is in heap memory, without slices and with a plain stretch as its layout.
 */
ZORVIC_API HGTEXTURE ZORVIC_CALL TransformTexture(HGTEXTURE source, int op);

/** TransformBitmap by a quarter, half or three quarter turn; NULL for any other op. */
ZORVIC_API HGBITMAP ZORVIC_CALL RotateBitmap(HGBITMAP source, int op);
ZORVIC_API HGTEXTURE ZORVIC_CALL RotateTexture(HGTEXTURE source, int op);

/** TransformBitmap top to bottom or left to right; NULL for any other op. */
ZORVIC_API HGBITMAP ZORVIC_CALL FlipBitmap(HGBITMAP source, int op);
ZORVIC_API HGTEXTURE ZORVIC_CALL FlipTexture(HGTEXTURE source, int op);

/* ------------------------------------------------------------------------------------------------------ canvases */

/** Creates a canvas on a 32-bit surface in heap memory, all transparent. GetCanvasHandle later turns it into a DIB
 *  section.
 *  \param width,height  pixels, 1..32767 each
 *  \param reference     a canvas whose operation word the new one takes over; may be NULL
 *  \return a canvas to be deleted with DeleteCanvas; NULL for a bad size or when memory is short */
ZORVIC_API HGCANVAS ZORVIC_CALL CreateCanvas(int width, int height, HGCANVAS reference);

/** CreateCanvas on a DIB section, with its device context made at once. */
ZORVIC_API HGCANVAS ZORVIC_CALL CreateSystemCanvas(int width, int height, HGCANVAS reference);

/** Creates a canvas that draws on a device context of the host. It has no surface: vector drawing and everything that
 *  asks for one answers 0. The origins are read from the device context now. The device context stays the host's and
 *  must outlive the canvas.
 *  \return a canvas to be deleted with DeleteCanvas; NULL for NULL */
ZORVIC_API HGCANVAS ZORVIC_CALL CreateCanvasFromDC(HDC dc);

/** Deletes a canvas, its surface and its device context (not the host's). NULL is ignored. */
ZORVIC_API void ZORVIC_CALL DeleteCanvas(HGCANVAS canvas);

/** The canvas's device context, made on the first call with the canvas's clip and origins; this turns the surface into
 *  a DIB section for good. GDI writes colour but clears or keeps alpha as it likes.
 *  \return a device context that stays the canvas's (or the host's); NULL for NULL, or when GDI refuses it or the clip;
 *          the picture stays as it is then */
ZORVIC_API HDC ZORVIC_CALL GetCanvasHandle(HGCANVAS canvas);

/** Writes the surface's width and height in pixels. \return 1; 0 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL GetCanvasSize(HGCANVAS canvas, SIZE* size);

/** Sets the viewport origin, in pixels. The clip stays where it is on the surface.
 *  \param previous  receives the former origin (the device context's own, once there is one); may be NULL
 *  \return 1, or the device context's result; 0 for NULL */
ZORVIC_API int ZORVIC_CALL SetViewportOrg(HGCANVAS canvas, int x, int y, POINT* previous);

/** Reads the viewport origin. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetViewportOrg(HGCANVAS canvas, POINT* origin);

/** Sets the window origin, as SetViewportOrg does the viewport's. */
ZORVIC_API int ZORVIC_CALL SetWindowOrg(HGCANVAS canvas, int x, int y, POINT* previous);

/** Reads the window origin. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetWindowOrg(HGCANVAS canvas, POINT* origin);

/** Maps a rectangle from logical to surface pixels, in place. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL WindowToDevice(HGCANVAS canvas, RECT* rect);

/** Maps a rectangle from surface to logical pixels, in place. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL DeviceToWindow(HGCANVAS canvas, RECT* rect);

/** Stores a window for the host's own use. \return the window stored before */
ZORVIC_API HWND ZORVIC_CALL SetCanvasWindow(HGCANVAS canvas, HWND window);

/** \return the stored window; at first that of the device context a canvas was made from, else NULL */
ZORVIC_API HWND ZORVIC_CALL GetCanvasWindow(HGCANVAS canvas);

/** Reads the operation word. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetCanvasFilter(HGCANVAS canvas, DWORD* filter);

/** Sets the operation word of the canvas and its surface: how it is drawn when it is a source, and whether its alpha
 *  counts (ZORVIC_OP_SOURCE_OVER). \return 1; 0 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL SetCanvasFilter(HGCANVAS canvas, DWORD filter);

/** Stores a background colour for the host's own use. \param previous receives the former one; may be NULL
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL SetCanvasBkColor(HGCANVAS canvas, DWORD color, DWORD* previous);

/** Reads the background colour, 0 at first. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetCanvasBkColor(HGCANVAS canvas, DWORD* color);

/** Replaces the clip: nothing is drawn outside it. It is cut to the surface and does not move with the origins. When GDI
 *  refuses it, it is the canvas's all the same: nothing is drawn through the device context until a later call can give
 *  it the clip.
 *  \param rect  logical pixels
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL SetCanvasClipRect(HGCANVAS canvas, const RECT* rect);

/** SetCanvasClipRect: the clip is a rectangle, the corner has no effect. */
ZORVIC_API int ZORVIC_CALL SetCanvasClipRoundRect(HGCANVAS canvas, const RECT* rect, const RECT* corner);

/** Cuts the clip to a rectangle in logical pixels. \return as SetCanvasClipRect */
ZORVIC_API int ZORVIC_CALL IntersectCanvasClipRect(HGCANVAS canvas, const RECT* rect);

/** Writes the clip in logical pixels; the clip box of a device context that has taken the clip. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GetCanvasClipRect(HGCANVAS canvas, RECT* rect);

/** \return the canvas's surface, which stays the canvas's; NULL for NULL or a canvas without one */
ZORVIC_API HGBITMAP ZORVIC_CALL GetBitmap(HGCANVAS canvas);

/* ------------------------------------------------------------------------------------------- drawing bitmaps */

/** Kernels of ZORVIC_FILTER_BICUBIC; any other value is cubic convolution too. Sources: R. Keys, "Cubic convolution
 *  interpolation for digital image processing", 1981; the B-spline is the cubic basis spline sampled as a kernel. */
enum {
    ZORVIC_KERNEL_CUBIC_CONVOLUTION = 0, /**< with a = -1: sharp */
    ZORVIC_KERNEL_B_SPLINE = 1           /**< smooth; the default */
};

/** Chooses the kernel of the bicubic filter, for the whole process. No other thread may be stretching.
 *  \param mode  see ZORVIC_KERNEL_CUBIC_CONVOLUTION
 *  \return 1; 0 when this mode is set already */
ZORVIC_API int ZORVIC_CALL SetStretchKernelMode(DWORD mode);

/** \return the kernel of the bicubic filter, see ZORVIC_KERNEL_CUBIC_CONVOLUTION */
ZORVIC_API DWORD ZORVIC_CALL GetStretchKernelMode(void);

/** DrawBitmapEx with opacity 255. */
ZORVIC_API int ZORVIC_CALL DrawBitmap(HGCANVAS canvas, const RECT* dst, HGBITMAP bitmap, DWORD filter);

/** Draws a bitmap into a rectangle of a canvas by the bitmap's operation word, stretched to fit and clipped. What is
 *  visible has the pixels of the unclipped draw. Drawn unstretched onto itself, a canvas's surface counts as a copy.
 *  \param canvas  target; its origins and clip apply
 *  \param dst     logical pixels; NULL means the bitmap's own size at (0, 0)
 *  \param bitmap  8, 24 or 32 bits per pixel; only read
 *  \param filter  sampling, see ZORVIC_FILTER_NEAREST
 *  \param alpha   opacity 0..255; ignored by ZORVIC_OP_MULTIPLY and ZORVIC_OP_DESTINATION_OVER
 *  \return 1 once both handles are valid, even if nothing was visible; else 0 */
ZORVIC_API int ZORVIC_CALL DrawBitmapEx(HGCANVAS canvas, const RECT* dst, HGBITMAP bitmap, DWORD filter, BYTE alpha);

/** DrawBitmapEx from a part of the bitmap.
 *  \param src  bitmap pixels, inside the bitmap (else nothing is drawn); NULL means all of it */
ZORVIC_API int ZORVIC_CALL DrawBitmapEx2(HGCANVAS canvas, const RECT* dst, HGBITMAP bitmap, const RECT* src,
                                         DWORD filter, BYTE alpha);

/** Draws a texture's current slice into a rectangle by the texture's layout and operation word.
 *  \param dst     logical pixels
 *  \param filter  sampling, see ZORVIC_FILTER_NEAREST
 *  \return 1 once the handles are valid; 0 for NULL, for a plain stretch when no slice is current, and always from the
 *          layouts that tile */
ZORVIC_API int ZORVIC_CALL DrawTexture(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, DWORD filter);

/** DrawTexture with an opacity and scales.
 *  \param tileScale    the bits of a float: scale of tiles and of nine-grid margins
 *  \param doubleScale  not 0: the nine-grid's source is at scale 2 */
ZORVIC_API int ZORVIC_CALL DrawTextureEx(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, DWORD filter, BYTE alpha,
                                         DWORD tileScale, int doubleScale);

/** DrawTexture with an opacity and scales. \param scale the nine-grid's source scale */
ZORVIC_API int ZORVIC_CALL DrawTextureEx2(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, DWORD filter, BYTE alpha,
                                          float tileScale, double scale);

/** DrawTexture with every choice in a record. \param reserved NULL */
ZORVIC_API int ZORVIC_CALL DrawTextureEx3(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture,
                                          const TextureDrawParams* params, void* reserved);

/* ----------------------------------------------------------------------------------------------- texture layouts
 * What DrawTexture does for a texture's layout mode, for hosts that choose the layout themselves. Arguments that all
 * have in common:
 *   - dst: logical pixels; each piece is clipped and drawn as DrawBitmapEx2 would draw it
 *   - slice: texture pixels; NULL means all of the texture. Edges may be given in either order. A slice that is empty or
 *             reaches outside the texture makes the call return 0 without drawing
 *   - filter: sampling, see ZORVIC_FILTER_NEAREST
 *   - alpha: opacity 0..255, as for DrawBitmapEx
 *
 * In C++ these five have C++ linkage: a host compiled by MSVC links them from zorvic32.lib, others (and C hosts) from
 * libzorvic32.dll.a, which knows them by both names. */

/** Values of TextureMode::layout; any other value stretches. */
enum {
    ZORVIC_LAYOUT_STRETCH = 0,          /**< the slice fills the rectangle */
    ZORVIC_LAYOUT_NINE_GRID = 1,        /**< DrawTexture9Grid; the argument holds its edge flags */
    ZORVIC_LAYOUT_TILE = 2,             /**< DrawTextureTile; the argument holds its flags */
    ZORVIC_LAYOUT_CENTER = 3,           /**< DrawTextureCenter */
    ZORVIC_LAYOUT_NINE_GRID_FILLED = 4, /**< DrawTexture9Grid with a one-colour centre */
    ZORVIC_LAYOUT_TOP_TILE = 5,         /**< DrawTextureTopTile */
    ZORVIC_LAYOUT_UNIFORM = 6           /**< DrawTextureUniform; the argument may be ZORVIC_UNIFORM_CENTERED */
};

/** Flags of DrawTextureTile. */
enum { ZORVIC_TILE_SCALED = 0x10 /**< tiles are drawn scaled */ };

/** The argument of ZORVIC_LAYOUT_UNIFORM. */
enum { ZORVIC_UNIFORM_CENTERED = 1 /**< the middle of the texture is shown */ };

/** Edge flags of DrawTexture9Grid, to be combined. */
enum {
    ZORVIC_EDGE_LEFT = 1,  /**< the left margin */
    ZORVIC_EDGE_TOP = 2,   /**< the top margin */
    ZORVIC_EDGE_RIGHT = 4, /**< the right margin */
    ZORVIC_EDGE_BOTTOM = 8 /**< the bottom margin */
};

/** Draws a slice as large as dst allows without distortion, in the middle of dst.
 *  \return 1; 0 for NULL or a bad slice */
ZORVIC_API_CXX int ZORVIC_CALL DrawTextureCenter(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice,
                                                 DWORD filter, BYTE alpha);

/** Fills dst without distortion: the texture inside its margins is cropped to the shape of dst.
 *  \param margins  texture pixels, measured inward from each edge of the texture
 *  \param center   the middle of that area is shown, else its top left corner
 *  \return 1; 0 for NULL */
ZORVIC_API_CXX int ZORVIC_CALL DrawTextureUniform(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture,
                                                  const RECT* margins, DWORD filter, BYTE alpha, bool center);

/** Tiles dst with a slice, from its top left corner. The last tile of a row is cut at the right edge of dst, and the
 *  rows below it consist of tiles as narrow as that: with full rows below, make dst a multiple of the tile's width.
 *  \param flags  ZORVIC_TILE_SCALED or 0
 *  \param scale  size of a tile in slices, when it is scaled
 *  \return 0, whatever was drawn */
ZORVIC_API_CXX int ZORVIC_CALL DrawTextureTile(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice,
                                               DWORD filter, BYTE alpha, DWORD flags, float scale);

/** Tiles dst from left to right with a slice of which the top margin is drawn along the top, at its own height, and the
 *  bottom margin stretched over what is left below.
 *  \param margins  heights in texture pixels: top and bottom count
 *  \return 0, whatever was drawn */
ZORVIC_API_CXX int ZORVIC_CALL DrawTextureTopTile(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture,
                                                  const RECT* slice, const RECT* margins, DWORD filter, BYTE alpha);

/** Draws a slice as a frame: corners as large as its margins, edges stretched along dst, the centre stretched or filled.
 *  \param margins           texture pixels, measured inward from each edge of the slice; limited to the smaller of
 *                           the two widths and heights
 *  \param centerFill        not 0: the centre is filled (as by FillPreMulColorRectEx, with the texture's operation
 *                           word) with the pixel in the middle of the slice's centre, scaled by the opacity
 *  \param edgeFlags         margins to be limited once more, see ZORVIC_EDGE_LEFT. Without effect
 *  \param destinationScale  above 1: margins on dst are that much larger; the record is scaled as a rectangle, so that
 *                           right and bottom may differ by the rounding
 *  \param sourceScale       not 1: slice and margins are divided by it, and margins on dst multiplied
 *  \return 1; 0 for NULL or a bad slice */
ZORVIC_API_CXX int ZORVIC_CALL DrawTexture9Grid(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice,
                                                const RECT* margins, DWORD filter, int centerFill, BYTE alpha,
                                                DWORD edgeFlags, float destinationScale, double sourceScale);

/* ------------------------------------------------------------------------------------------- composing canvases */

/** Cross-fades one canvas into another: each channel becomes (src * (a + 1) + dst * (255 - a)) >> 8, a = 0 changing
 *  nothing. Rectangles of different sizes are sampled to the nearest pixel. The clip does not apply. Mixed into itself
 *  at the same size, a canvas counts as a copy.
 *  \param dstRect,srcRect  logical pixels, wholly inside their canvases (else nothing happens)
 *  \param value            its low byte is the amount a
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL MixCanvas(HGCANVAS dst, const RECT* dstRect, HGCANVAS src, const RECT* srcRect, DWORD value);

/** Cross-fades a rectangle of a canvas into a colour, alpha included. The clip does not apply.
 *  \param rect   logical pixels, wholly inside the canvas (else nothing happens)
 *  \param color  premultiplied ARGB
 *  \param value  its low byte is the amount; 0 changes nothing, 255 replaces
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL MixCanvasWithColor(HGCANVAS canvas, const RECT* rect, DWORD color, DWORD value);

/** Draws one canvas on another. A source with ZORVIC_OP_SOURCE_OVER is composed by its alpha. Otherwise, when the
 *  destination has it or alpha is below 255, the source counts as opaque and is blended by the constant alpha, but for
 *  draws that are both stretched and clipped; else it is copied, alpha included. Stretching is nearest. When either
 *  canvas is on a host's device context, GDI does the transfer: AlphaBlend for a source with alpha, else StretchBlt,
 *  which ignores alpha and obeys the target's stretch mode. Drawn unstretched onto itself, a canvas counts as a copy.
 *  \param dstRect,srcRect  logical pixels
 *  \param alpha            opacity; without effect on a source with alpha between surfaces
 *  \return 1, or GDI's result; 0 for NULL */
ZORVIC_API int ZORVIC_CALL BlendCanvas(HGCANVAS dst, const RECT* dstRect, HGCANVAS src, const RECT* srcRect,
                                       BYTE alpha);

/** Moves the whole surface dy rows, down when positive; the rows that are uncovered keep their pixels.
 *  \param dx  0
 *  \return 1; 0 for NULL, dx other than 0, a canvas without a surface, or while its origins differ */
ZORVIC_API int ZORVIC_CALL CanvasScroll(HGCANVAS canvas, int dx, int dy);

/** Brings a canvas to a device context through GDI: AlphaBlend when the canvas has ZORVIC_OP_SOURCE_OVER or alpha is
 *  below 255, else StretchBlt. A reduced picture wants SetStretchBltMode(target, COLORONCOLOR) or HALFTONE before.
 *  \param target  device context of a window, a printer or a bitmap
 *  \param dst     logical units of the target
 *  \param src     logical pixels of the canvas
 *  \return GDI's result; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GdiTransCanvas(HDC target, const RECT* dst, HGCANVAS canvas, const RECT* src, BYTE alpha);

/** Draws a bitmap at its own size in a colour. With an opaque colour the bitmap is a light map: its brightness tints
 *  what is there. Otherwise it is multiplied by the colour and drawn over.
 *  \param x,y     logical position of the top left corner
 *  \param bitmap  8, 24 or 32 bits per pixel
 *  \param src     bitmap pixels; NULL means all of it
 *  \param color   premultiplied ARGB
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL DrawModulation(HGCANVAS canvas, int x, int y, HGBITMAP bitmap, const RECT* src, DWORD color);

/* --------------------------------------------------------------------------------------------------------- fills */

/** FillSolidRectEx with ZORVIC_OP_SOURCE_OVER. A colour of alpha 0 returns 1 even without a canvas. */
ZORVIC_API int ZORVIC_CALL FillSolidRect(HGCANVAS canvas, DWORD color, const RECT* rect);

/** Fills a rectangle with a colour.
 *  \param color  straight ARGB; premultiplied here as (channel * (alpha + 1)) >> 8
 *  \param rect   logical pixels; clipped
 *  \param mode   an operation word, see ZORVIC_OP_COPY; its low 24 bits are ignored, unknown operations are SOURCE_OVER
 *  \return 1, even if nothing was visible; 0 for NULL */
ZORVIC_API int ZORVIC_CALL FillSolidRectEx(HGCANVAS canvas, DWORD color, const RECT* rect, DWORD mode);

/** FillSolidRectEx with a colour that is premultiplied already. */
ZORVIC_API int ZORVIC_CALL FillPreMulColorRectEx(HGCANVAS canvas, DWORD color, const RECT* rect, DWORD mode);

/** Fills a rectangle through the vector backend: by the canvas's blend mode, blend value and smoothing.
 *  \param rect   logical pixels
 *  \param color  straight ARGB
 *  \return 1; 0 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL FillRectangleEx(HGCANVAS canvas, const RECT* rect, DWORD color);

/** FillRectangleEx with rounded corners. \param corner x and y radius in pixels */
ZORVIC_API int ZORVIC_CALL FillRoundRectEx(HGCANVAS canvas, const RECT* rect, const POINT* corner, DWORD color);

/** Directions of FillGradualRect. */
enum {
    ZORVIC_GRADUAL_TOP_TO_BOTTOM = 1, /**< the first row has colorFrom */
    ZORVIC_GRADUAL_LEFT_TO_RIGHT = 2  /**< the first column has colorFrom */
};

/** Fills a rectangle with a gradient between two colours.
 *  \param colorFrom,colorTo  straight ARGB; when they are equal once premultiplied, this is FillSolidRect
 *  \param rect               logical pixels
 *  \param direction          see ZORVIC_GRADUAL_TOP_TO_BOTTOM; any other value is FillSolidRect with colorFrom
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL FillGradualRect(HGCANVAS canvas, DWORD colorFrom, DWORD colorTo, const RECT* rect,
                                           DWORD direction);

/* ------------------------------------------------------------------------------------------------ vector drawing
 * Anti-aliased shapes, drawn by the vector backend (vekgraphic.dll) on canvases that have a surface. Coordinates are
 * floats in logical pixels, x right, y down; pixel (i, j) covers [i, i + 1) x [j, j + 1). Clip and origins apply. Every
 * shape returns 1, even if nothing was visible, and 0 for NULL, a canvas without a surface or numbers that are not
 * finite. Style belongs to the canvas and stays until it is changed or undone by Restore. */

/** Draw styles. */
enum {
    ZORVIC_DRAW_FILL = 0,    /**< inside, by the non-zero rule */
    ZORVIC_DRAW_STROKE = 1,  /**< along the outline */
    ZORVIC_DRAW_GRADIENT = 2 /**< inside, with the gradient; with the colour when none is set */
};

/** Paints the pixel square at (x, y) with the colour, whatever the draw style. */
ZORVIC_API int ZORVIC_CALL DrawPoint(HGCANVAS canvas, float x, float y);

/** Strokes a line, whatever the draw style. */
ZORVIC_API int ZORVIC_CALL DrawLine(HGCANVAS canvas, float x1, float y1, float x2, float y2);

/** Draws a rectangle. */
ZORVIC_API int ZORVIC_CALL DrawRectangle(HGCANVAS canvas, float x, float y, float width, float height);

/** Draws a rectangle with rounded corners of radii rx and ry, which are limited to half the width and height. */
ZORVIC_API int ZORVIC_CALL DrawRoundRect(HGCANVAS canvas, const RECT* rect, float rx, float ry);

/** Draws a circle. */
ZORVIC_API int ZORVIC_CALL DrawCircle(HGCANVAS canvas, float cx, float cy, float radius);

/** Draws the ellipse inscribed in a box. */
ZORVIC_API int ZORVIC_CALL DrawEllipse(HGCANVAS canvas, float x, float y, float width, float height);

/** Draws a closed polygon.
 *  \param points  count points in logical pixels; the first is read even when count is 0 */
ZORVIC_API int ZORVIC_CALL DrawPolygon(HGCANVAS canvas, unsigned int count, const POINT* points);

/** Draws a cubic Bezier curve from p0 to p3, open, with the control points p1 and p2. */
ZORVIC_API int ZORVIC_CALL DrawBezier(HGCANVAS canvas, const POINT* p0, const POINT* p1, const POINT* p2,
                                      const POINT* p3);

/** Fills a rectangle with a colour (straight ARGB) by the blend mode and value, whatever colour and style are set. */
ZORVIC_API int ZORVIC_CALL DrawColor(HGCANVAS canvas, DWORD color, const RECT* rect);

/** Draws a path. */
ZORVIC_API int ZORVIC_CALL DrawPath(HGCANVAS canvas, HGPATH path);

/** Saves the style, for the matching Restore. */
ZORVIC_API void ZORVIC_CALL Save(HGCANVAS canvas);

/** Goes back to the style of the latest Save. */
ZORVIC_API void ZORVIC_CALL Restore(HGCANVAS canvas);

/** One of ZORVIC_DRAW_FILL..GRADIENT. At first FILL. */
ZORVIC_API void ZORVIC_CALL SetDrawStyle(HGCANVAS canvas, int style);

/** Colour of fills and strokes, straight ARGB. At first 0xFF000000. */
ZORVIC_API void ZORVIC_CALL SetColor(HGCANVAS canvas, DWORD color);

/** 0 turns anti-aliasing off. At first on. */
ZORVIC_API void ZORVIC_CALL SetSmooth(HGCANVAS canvas, int smooth);

/** How shapes, of colour S and alpha s, meet the pixels, of colour D and alpha d, both premultiplied. From MULTIPLY on
 *  they are composed as SOURCE_OVER, but mixed by the function of that name in PDF's blend modes where both cover. */
enum {
    ZORVIC_BLEND_SOURCE_OVER = 0,      /**< S + D(1 - s) */
    ZORVIC_BLEND_SOURCE = 1,           /**< S */
    ZORVIC_BLEND_DESTINATION_OVER = 2, /**< S(1 - d) + D */
    ZORVIC_BLEND_CLEAR = 3,            /**< 0 */
    ZORVIC_BLEND_SOURCE_IN = 4,        /**< S d */
    ZORVIC_BLEND_DESTINATION_IN = 5,   /**< D s */
    ZORVIC_BLEND_SOURCE_OUT = 6,       /**< S(1 - d) */
    ZORVIC_BLEND_DESTINATION_OUT = 7,  /**< D(1 - s) */
    ZORVIC_BLEND_SOURCE_ATOP = 8,      /**< S d + D(1 - s) */
    ZORVIC_BLEND_DESTINATION_ATOP = 9, /**< S(1 - d) + D s */
    ZORVIC_BLEND_XOR = 10,             /**< S(1 - d) + D(1 - s) */
    ZORVIC_BLEND_PLUS = 11,            /**< S + D, at most 1 */
    ZORVIC_BLEND_MULTIPLY = 12,        /**< Multiply */
    ZORVIC_BLEND_SCREEN = 13,          /**< Screen */
    ZORVIC_BLEND_OVERLAY = 14,         /**< Overlay */
    ZORVIC_BLEND_DARKEN = 15,          /**< Darken */
    ZORVIC_BLEND_LIGHTEN = 16,         /**< Lighten */
    ZORVIC_BLEND_COLOR_DODGE = 17,     /**< ColorDodge */
    ZORVIC_BLEND_COLOR_BURN = 18,      /**< ColorBurn */
    ZORVIC_BLEND_HARD_LIGHT = 19,      /**< HardLight */
    ZORVIC_BLEND_SOFT_LIGHT = 20,      /**< SoftLight */
    ZORVIC_BLEND_DIFFERENCE = 21,      /**< Difference */
    ZORVIC_BLEND_EXCLUSION = 22,       /**< Exclusion */
    ZORVIC_BLEND_HUE = 23,             /**< Hue */
    ZORVIC_BLEND_SATURATION = 24,      /**< Saturation */
    ZORVIC_BLEND_COLOR = 25,           /**< Color */
    ZORVIC_BLEND_LUMINOSITY = 26       /**< Luminosity */
};

/** How shapes meet the pixels, see ZORVIC_BLEND_SOURCE_OVER, which is set at first. Other values change nothing. */
ZORVIC_API void ZORVIC_CALL SetBlendMode(HGCANVAS canvas, int mode);

/** \return the blend mode; -1 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL GetBlendMode(HGCANVAS canvas);

/** Opacity 0..255 of every shape. At first 255. */
ZORVIC_API void ZORVIC_CALL SetBlendValue(HGCANVAS canvas, int value);

/** \return the opacity; 255 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL GetBlendValue(HGCANVAS canvas);

/** Ends of open strokes. */
enum {
    ZORVIC_CAP_BUTT = 0,  /**< at the end point */
    ZORVIC_CAP_ROUND = 1, /**< with half a disc beyond it */
    ZORVIC_CAP_SQUARE = 2 /**< half a stroke width beyond it */
};

/** How strokes end, see ZORVIC_CAP_BUTT, which is set at first. */
ZORVIC_API void ZORVIC_CALL SetStrokeCap(HGCANVAS canvas, int cap);

/** Corners of strokes. A miter longer than 10 stroke widths becomes a bevel. */
enum {
    ZORVIC_JOIN_MITER = 0, /**< pointed */
    ZORVIC_JOIN_ROUND = 1, /**< rounded by a disc */
    ZORVIC_JOIN_BEVEL = 2  /**< cut off */
};

/** How strokes turn corners, see ZORVIC_JOIN_MITER, which is set at first. */
ZORVIC_API void ZORVIC_CALL SetStrokeJoin(HGCANVAS canvas, int join);

/** The gradient of ZORVIC_DRAW_GRADIENT; NULL means none. The canvas keeps what it needs: it may be destroyed at once. */
ZORVIC_API void ZORVIC_CALL SetGradient(HGCANVAS canvas, HGGRADIENT gradient);

/** Width of strokes in pixels, above 0; other values change nothing. At first 1. */
ZORVIC_API void ZORVIC_CALL SetStrokeWidth(HGCANVAS canvas, float width);

/** \return the width of strokes; 1 for NULL or a canvas without a surface */
ZORVIC_API float ZORVIC_CALL GetStrokeWidth(HGCANVAS canvas);

/** Dash styles: a dash is 3 stroke widths long, dots and gaps 1. */
enum {
    ZORVIC_DASH_SOLID = 0,       /**< no gaps */
    ZORVIC_DASH_DASH = 1,        /**< dashes */
    ZORVIC_DASH_DOT = 2,         /**< dots */
    ZORVIC_DASH_DASH_DOT = 3,    /**< a dash and a dot by turns */
    ZORVIC_DASH_DASH_DOT_DOT = 4 /**< a dash and two dots by turns */
};

/** Dashes, see ZORVIC_DASH_SOLID, which is set at first. The later of a dash style and a dash pattern counts. */
ZORVIC_API void ZORVIC_CALL SetDashStyle(HGCANVAS canvas, BYTE style);

/** Dashes of the host's own.
 *  \param pattern  count lengths in pixels, on and off by turns; NULL or 0 of them is solid. A pattern with a negative
 *                  length, or of zeros only, changes nothing */
ZORVIC_API void ZORVIC_CALL SetDashPattern(HGCANVAS canvas, const float* pattern, BYTE count);

/* ------------------------------------------------------------------------------------------- paths and gradients
 * They belong to no canvas; coordinates are those of the canvas at drawing time. Building returns 1, and 0 for NULL or
 * numbers that are not finite. */

/** \return an empty path to be ended with PathDestroy; NULL when memory is short */
ZORVIC_API HGPATH ZORVIC_CALL PathCreate(void);

/** Ends a path. NULL is ignored. */
ZORVIC_API void ZORVIC_CALL PathDestroy(HGPATH path);

/** Starts a new figure: what was built stays, the current point is forgotten. */
ZORVIC_API int ZORVIC_CALL PathBegin(HGPATH path);

/** Closes the current figure. */
ZORVIC_API int ZORVIC_CALL PathClose(HGPATH path);

/** Starts a new figure at a point. */
ZORVIC_API int ZORVIC_CALL PathMoveTo(HGPATH path, float x, float y);

/** Adds a line. Like the curves it starts a figure where there is no current point. */
ZORVIC_API int ZORVIC_CALL PathLineTo(HGPATH path, float x, float y);

/** Adds a line to, and the arc of a circle that touches, the lines from the current point to (x1, y1) and from there to
 *  (x2, y2). */
ZORVIC_API int ZORVIC_CALL PathArcTo(HGPATH path, float x1, float y1, float x2, float y2, float radius);

/** Adds a cubic Bezier curve with the control points c1 and c2. */
ZORVIC_API int ZORVIC_CALL PathBezierCurveTo(HGPATH path, float c1x, float c1y, float c2x, float c2y, float x, float y);

/** Adds a quadratic Bezier curve with the control point c. */
ZORVIC_API int ZORVIC_CALL PathQuadraticCurveTo(HGPATH path, float cx, float cy, float x, float y);

/** Adds the arc of a circle, joined to the current point by a line.
 *  \param startAngle,endAngle  radians from the positive x axis, y down
 *  \param anticlockwise        0: by growing angles */
ZORVIC_API int ZORVIC_CALL PathAddArc(HGPATH path, float cx, float cy, float radius, float startAngle, float endAngle,
                                      int anticlockwise);

/** Adds a closed rectangle. */
ZORVIC_API int ZORVIC_CALL PathAddRectangle(HGPATH path, float x, float y, float width, float height);

/** Adds a circle. */
ZORVIC_API int ZORVIC_CALL PathAddCircle(HGPATH path, float cx, float cy, float radius);

/** Adds the ellipse inscribed in a box. */
ZORVIC_API int ZORVIC_CALL PathAddEllipse(HGPATH path, float x, float y, float width, float height);

/** Writes the exact extent of the outline, without a stroke's width; zeros for an empty path. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL PathGetBounds(HGPATH path, PathBounds* bounds);

/** A gradient along the line from (x1, y1), offset 0, to (x2, y2), offset 1. Colours beyond the ends repeat.
 *  \return a gradient to be ended with GradientDestroy; NULL for numbers that are not finite or when memory is short */
ZORVIC_API HGGRADIENT ZORVIC_CALL GradientCreateLinear(float x1, float y1, float x2, float y2);

/** A gradient over the family of circles from the first, offset 0, to the second, offset 1. */
ZORVIC_API HGGRADIENT ZORVIC_CALL GradientCreateRadial(float x0, float y0, float r0, float x1, float y1, float r1);

/** Adds a colour (straight ARGB) at an offset, which is clamped to 0..1. */
ZORVIC_API int ZORVIC_CALL GradientAddColorStop(HGGRADIENT gradient, float offset, DWORD color);

/** Ends a gradient. NULL is ignored. */
ZORVIC_API void ZORVIC_CALL GradientDestroy(HGGRADIENT gradient);

/* ------------------------------------------------------------------------------------------------------ outlines */

/** Outlines a rectangle. On a canvas with ZORVIC_OP_SOURCE_OVER the library draws one opaque pixel in the pen's colour,
 *  so that alpha survives; otherwise GDI draws with pen and brush. It gets edges outside the clip
 *  nearer than they are, by whole periods of the pen's dashes.
 *  \param rect   logical pixels
 *  \param pen    NULL means black
 *  \param brush  NULL leaves the inside as it is
 *  \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GeoRectangle(HGCANVAS canvas, const RECT* rect, HPEN pen, HBRUSH brush);

/** Strokes a rectangle, not smoothed; the stroke's middle runs through the last pixels inside.
 *  \param color  straight ARGB
 *  \param width  pixels
 *  \return 1; 0 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL GeoRectangleEx(HGCANVAS canvas, const RECT* rect, DWORD color, int width);

/** Draws a rectangle with rounded corners in a GDI pen's colour (opaque), width and dashes.
 *  \param corner  x and y radius in pixels
 *  \param pen     NULL leaves the canvas's style as it is
 *  \return 1; 0 for NULL or a canvas without a surface */
ZORVIC_API int ZORVIC_CALL GeoRoundRect(HGCANVAS canvas, const RECT* rect, const POINT* corner, HPEN pen);

/** Strokes a rectangle with rounded corners, smoothed. \param corner x and y radius in pixels */
ZORVIC_API int ZORVIC_CALL GeoRoundRectEx(HGCANVAS canvas, const RECT* rect, const POINT* corner, DWORD color,
                                          int width);

/** Draws a dotted frame: every other pixel of each side. GDI draws opaque colours on canvases without alpha.
 *  \param color  straight ARGB
 *  \return 1, or 0 when the pixels cannot be reached; 0 for NULL */
ZORVIC_API int ZORVIC_CALL GeoRectFocusEx(HGCANVAS canvas, const RECT* rect, DWORD color);

/* ------------------------------------------------------------------------------------------------- single colours */

/** Converts a colour to hue, saturation and lightness, in integers.
 *  \param argb  0xAARRGGBB
 *  \return 0xAAHHSSLL, each 0..255: hue goes round the circle (0 red, 85 green, 170 blue; 170 for greys), alpha stays */
ZORVIC_API DWORD ZORVIC_CALL ARGBtoAHSL(DWORD argb);

/** Converts it back, in single precision and truncated: a round trip may change a colour a little. */
ZORVIC_API DWORD ZORVIC_CALL AHSLtoARGB(DWORD ahsl);

/** The same without alpha. */
ZORVIC_API HSLTriple ZORVIC_CALL RGBtoHSL(RGBTriple rgb);
ZORVIC_API RGBTriple ZORVIC_CALL HSLtoRGB(HSLTriple hsl);

/** Turns the hue and scales the saturation and lightness of a colour, by way of AHSL. Amounts are meant for -1..1 and
 *  not checked; larger ones wrap modulo 256. Three amounts of 0 return the colour bit for bit; with any other, a colour
 *  that was grey becomes very slightly coloured, because the saturation is kept at 1 or more.
 *  \param hue         1 is half the circle
 *  \param saturation  1 the strongest colour, -1 nearly grey
 *  \param lightness   1 white, -1 black
 *  \return the changed colour with its alpha */
ZORVIC_API DWORD ZORVIC_CALL ARGBColorize(DWORD argb, float hue, float saturation, float lightness);

/** The same for the other forms of a colour. */
ZORVIC_API RGBTriple ZORVIC_CALL RGBColorize(RGBTriple rgb, float hue, float saturation, float lightness);
ZORVIC_API DWORD ZORVIC_CALL AHSLColorize(DWORD ahsl, float hue, float saturation, float lightness);
ZORVIC_API HSLTriple ZORVIC_CALL HSLColorize(HSLTriple hsl, float hue, float saturation, float lightness);

/* ------------------------------------------------------------------------------------------------- effects
 * Effects change a surface in place. Those that know 8 bits change the surface's own palette, never the grey ramp.
 * A depth that an effect does not know stays as it is, and the result is 1 all the same. Where nothing else is said,
 * the result is 1, or 0 for NULL and for a surface that cannot be locked. */

/** Makes a surface grey: blue, green and red become (blue + 2 * green + red) >> 2. 8, 24 and 32 bits. */
ZORVIC_API int ZORVIC_CALL GrayBitmap(HGBITMAP bitmap);

/** GrayBitmap that tells the resource manager of the change. */
ZORVIC_API int ZORVIC_CALL GrayTexture(HGTEXTURE texture);

/** Inverts premultiplied colour within its alpha: a channel becomes alpha - channel, modulo 256. 32 bits. */
ZORVIC_API int ZORVIC_CALL InvertBitmap(HGBITMAP bitmap);

/** Premultiplies straight colour: a channel becomes (channel * (alpha + 1)) >> 8. 32 bits, and 8 with the fourth byte
 *  of the palette's entries as alpha. */
ZORVIC_API int ZORVIC_CALL NormalizeBitmap(HGBITMAP bitmap);

/** NormalizeBitmap for an image that the caller has locked or describes. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL NormalizeBitmap2(BitmapLockInfo* image);

/** What ShuffleBitmap moves between the channels. */
enum {
    ZORVIC_SHUFFLE_ALPHA_TO_GRAY = 1, /**< blue, green and red become the alpha */
    ZORVIC_SHUFFLE_COLOR_TO_ALPHA = 6 /**< alpha becomes the largest of blue, green and red */
};

/** ShuffleBitmapEx on the whole surface. */
ZORVIC_API int ZORVIC_CALL ShuffleBitmap(HGBITMAP bitmap, int mode);

/** Moves values between the channels of an area. 32 bits.
 *  \param area  surface pixels, not empty and inside the surface; NULL means all of it
 *  \param mode  see ZORVIC_SHUFFLE_ALPHA_TO_GRAY; others change nothing
 *  \return 1; 0 for NULL or an area that is not inside */
ZORVIC_API int ZORVIC_CALL ShuffleBitmapEx(HGBITMAP bitmap, const RECT* area, int mode);

/** Replaces one exact colour by another: all four bytes of a pixel or palette entry, the low three with 24 bits. */
ZORVIC_API int ZORVIC_CALL TranslateTexture(HGTEXTURE texture, DWORD from, DWORD to);

/** ARGBColorize of every pixel or palette entry as it is stored, and a word to the resource manager. 8, 24, 32 bits.
 *  Premultiplied colour may become brighter than its alpha: where alpha counts, colorize straight colour and then call
 *  NormalizeBitmap.
 *  \return 1, also for NULL when the three amounts are 0; otherwise 0 for NULL and for what cannot be locked */
ZORVIC_API int ZORVIC_CALL ColorizeTexture(HGTEXTURE texture, float hue, float saturation, float lightness);

/** Blurs all of one 32-bit surface into another: each channel becomes the mean of 3 x 3 pixels, truncated, edge pixels
 *  repeated. A larger destination keeps what lies outside the source's size; a smaller one shows the source's last
 *  column and row in its own.
 *  \param dst,src  may be the same bitmap
 *  \return 1, whatever could be locked; 0 for NULL */
ZORVIC_API int ZORVIC_CALL BlurBitmap(HGBITMAP dst, HGBITMAP src);

/** Turns a 32-bit surface into a soft white glow in the shape of what is not transparent. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL LightBitmap(HGBITMAP bitmap);
ZORVIC_API int ZORVIC_CALL LightTexture(HGTEXTURE texture);

/** Softens a 32-bit surface by four blurs, as for a shadow. \return 1; 0 for NULL */
ZORVIC_API int ZORVIC_CALL DarkBitmap(HGBITMAP bitmap);

/* The same functions for textures: each is the bitmap function of that name under another one. */
ZORVIC_API int ZORVIC_CALL InvertTexture(HGTEXTURE texture);
ZORVIC_API int ZORVIC_CALL NormalizeTexture(HGTEXTURE texture);
ZORVIC_API int ZORVIC_CALL ShuffleTexture(HGTEXTURE texture, int mode);
ZORVIC_API int ZORVIC_CALL ShuffleTextureEx(HGTEXTURE texture, const RECT* area, int mode);
ZORVIC_API int ZORVIC_CALL BlurTexture(HGTEXTURE dst, HGTEXTURE src);

/** Makes a GDI region of all pixels that are not 0x00000000, to shape a window or to clip by. While the top byte of the
 *  operation word is 0 (ZORVIC_OP_COPY) alpha does not count, and the region is the whole area.
 *  \param texture  8 (palette), 24 (always the whole area) or 32 bits; a bitmap will do
 *  \param area     surface pixels, inside the surface; NULL means all of it. Its corner is the region's origin
 *  \return a region that is the caller's to delete; NULL for NULL, an area that is not inside, another depth, or
 *          when memory is short. When memory runs short halfway, the region has the parts that could be made */
ZORVIC_API HRGN ZORVIC_CALL CreateTextureRgn(HGTEXTURE texture, const RECT* area);

/* -------------------------------------------------------------------------------------- pixels in the host's memory
 * These work on memory that the host describes: bmWidth, bmHeight, bmWidthBytes (negative where rows run upwards),
 * bmBitsPixel and bmBits. What is called four bytes per pixel has them whatever bmBitsPixel says. The memory of a record
 * reaches from its first pixel to the last pixel of its last row, and all bytes between belong to it; a record of more
 * bytes than any memory has describes none. Pixels that do not lie in that memory as a whole are left out, in both images
 * of a call, and the rest is done. Where nothing else is said, the result is 1, or 0 for a NULL record, NULL bits, and
 * a width or height below 1 of what is worked on. */

/** Copies pixels. Nothing is stretched, and destinations of other depths get the source's bytes.
 *  \param src   24 or 32 bits per pixel
 *  \param dst   may overlap src if the row steps are the same. A record with width and height 0 states bits, row step
 *               and depth only: its memory must be large enough
 *  \param area  which rows of both images, top to bottom, and how many pixels of each, right - left; they start
 *               bmBitsPixel * left / 4 bytes into the row, which is column 2 * left: pass left 0 where the place
 *               matters. NULL: as many as src has, from the first pixels on
 *  \return 0 also for other depths and when right or bottom lies outside src */
ZORVIC_API int ZORVIC_CALL CopyBitmap_IPP(const BITMAP* src, BITMAP* dst, const RECT* area);

/** How Mirror and MirrorEx mirror. */
enum {
    ZORVIC_MIRROR_VERTICAL = 0,   /**< top to bottom */
    ZORVIC_MIRROR_HORIZONTAL = 1, /**< left to right */
    ZORVIC_MIRROR_BOTH = 2        /**< half a turn */
};

/** Mirrors an image of four bytes per pixel in place.
 *  \param axis  see ZORVIC_MIRROR_VERTICAL
 *  \return 0 also for another axis */
ZORVIC_API int ZORVIC_CALL Mirror(BITMAP* image, int axis);

/** Mirror into another image. \return 0 also for images of two sizes */
ZORVIC_API int ZORVIC_CALL MirrorEx(const BITMAP* src, BITMAP* dst, int axis);

/** Draws a premultiplied image of four bytes per pixel over the first pixels of another one: every byte becomes
 *  s + d * (255 - alpha of s) / 255, rounded to nearest, at most 255. Drawing on canvases truncates instead.
 *  \param dst  gets no more than it has room for; with width and height 0 it is trusted to be as large as src */
ZORVIC_API int ZORVIC_CALL AlphaBlend_IPP(const BITMAP* src, BITMAP* dst);

/** Fills an image of four bytes per pixel.
 *  \param color      0xAARRGGBB, stored as it is
 *  \param keepAlpha  not 0: every pixel keeps its alpha */
ZORVIC_API int ZORVIC_CALL SetColor_IPP(BITMAP* image, DWORD color, int keepAlpha);

/** Each pixel of dst becomes the pixel of src OR the value. Four bytes per pixel, and rows without gaps, from bmBits on:
 *  row steps only tell how much memory there is, and count as the length of a row where they are shorter.
 *  \param src,dst  may be the same image
 *  \return 1 for two records of one size, whatever could be written; else 0 */
ZORVIC_API int ZORVIC_CALL ARGBOrBitmap_IPP(const BITMAP* src, BITMAP* dst, DWORD value);

/** The same with AND. */
ZORVIC_API int ZORVIC_CALL ARGBAndBitmap_IPP(const BITMAP* src, BITMAP* dst, DWORD value);

/** Blurs an image in place: twice, each channel becomes the mean of the box * box pixels around it, rounded to
 *  nearest, edge pixels repeated. An even box reaches one pixel further to the left and top. The time does not depend
 *  on the box.
 *  \param stride     bytes from one row to the next; below the length of a row nothing happens
 *  \param bitsPixel  24 or 32; other depths are left alone
 *  \param box        1 changes nothing
 *  \return 1, also when nothing happened, as for NULL bits, or memory was short; 0 for a width, height or box below 1 */
ZORVIC_API int ZORVIC_CALL BlurBitmapData(int width, int height, int stride, void* bits, WORD bitsPixel, int box);

#endif
