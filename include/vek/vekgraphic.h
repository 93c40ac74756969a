/* vekgraphic: anti-aliased vector drawing on 32-bit pixels. Usable from C and C++; link libvekgraphic. Any other DLL of
 * that name with these functions can stand in for it.
 *
 * Handles.  A canvas draws on a bitmap; paths and gradients are built once and drawn often. Handles are opaque; a
 *   vek...Create... call makes one (0 when memory is short) and its vek...Destroy ends it. 0 is "none": every call with
 *   a 0 handle does nothing and returns 0.
 * Pixels.  The caller's memory: 32-bit words 0xAARRGGBB, colour premultiplied by alpha, rows top-down. Drawing writes
 *   straight into it and nothing stays buffered when a call returns. Pixels that were premultiplied stay so.
 * Colours.  Arguments are straight (not premultiplied) 0xAARRGGBB.
 * Coordinates.  Floats, x right and y down; pixel (i, j) covers [i, i + 1) x [j, j + 1). No half-pixel offset is added.
 *   With smoothing off a pixel belongs to a shape when its centre does; on an edge, to the shape on its left or above.
 *   A box with a negative width or height is the box between the same edges; a negative radius counts as 0.
 * Results.  1 is done, also when nothing was visible. 0 is refused: a 0 handle or null pointer, a canvas without a
 *   bitmap, a number that is not finite, or memory that ran out. Nothing prints, and the next call works.
 * Threads.  Any thread may use the library; each object is used by one thread at a time. */
#ifndef VEK_VEKGRAPHIC_H
#define VEK_VEKGRAPHIC_H

#include <windows.h>

#ifdef __cplusplus
#define VEK_EXTERN extern "C"
#else
#define VEK_EXTERN extern
#endif
#ifdef VEK_BUILD
#define VEK_API VEK_EXTERN
#else
#define VEK_API VEK_EXTERN __declspec(dllimport)
#endif
#define VEK_CALL __cdecl

/** What everything draws on: a bitmap, a style, a clip, a translation and a stack of saved states. */
DECLARE_HANDLE(VekCanvas);
/** Pixels of the caller. */
DECLARE_HANDLE(VekBitmap);
/** An outline of one or more figures. */
DECLARE_HANDLE(VekPath);
/** Colours along a line or between two circles. */
DECLARE_HANDLE(VekGradient);

/** How shapes are drawn. */
enum {
    VEK_DRAW_FILL = 0,    /**< inside, with the colour, by the non-zero rule */
    VEK_DRAW_STROKE = 1,  /**< along the outline, with the colour */
    VEK_DRAW_GRADIENT = 2 /**< inside, with the gradient; with the colour when none is set */
};

/** How an open figure ends under a stroke. */
enum {
    VEK_CAP_BUTT = 0,  /**< at the end point */
    VEK_CAP_ROUND = 1, /**< with half a disc beyond it */
    VEK_CAP_SQUARE = 2 /**< half a stroke width beyond it */
};

/** How a stroke turns a corner. A miter longer than 10 stroke widths becomes a bevel. */
enum {
    VEK_JOIN_MITER = 0, /**< pointed */
    VEK_JOIN_ROUND = 1, /**< rounded by a disc */
    VEK_JOIN_BEVEL = 2  /**< cut off */
};

/** Dashes: a dash is 3, a dot 1 and a gap 1 stroke widths long, measured with the width at drawing time. */
enum {
    VEK_DASH_SOLID = 0,       /**< no gaps */
    VEK_DASH_DASH = 1,        /**< dashes */
    VEK_DASH_DOT = 2,         /**< dots */
    VEK_DASH_DASH_DOT = 3,    /**< a dash and a dot by turns */
    VEK_DASH_DASH_DOT_DOT = 4 /**< a dash and two dots by turns */
};

/** How a colour S (alpha s) meets the pixel D (alpha d), both premultiplied; R is the composed pixel.
 *  Coverage c of the shape times the blend value mix them: the pixel becomes D + (R - D) * c * value / 255. Shapes change
 *  no pixel that they do not cover; bitmaps under SOURCE_IN, SOURCE_OUT, DESTINATION_IN and DESTINATION_ATOP count as
 *  transparent beyond their edges and change the whole clip.
 *  From MULTIPLY on, R = S(1 - d) + D(1 - s) + s d B(S/s, D/d) with alpha s + d - s d, B being the function of that name
 *  in PDF's blend modes. */
enum {
    VEK_BLEND_SOURCE_OVER = 0,      /**< S + D(1 - s) */
    VEK_BLEND_SOURCE = 1,           /**< S */
    VEK_BLEND_DESTINATION_OVER = 2, /**< S(1 - d) + D */
    VEK_BLEND_CLEAR = 3,            /**< 0 */
    VEK_BLEND_SOURCE_IN = 4,        /**< S d */
    VEK_BLEND_DESTINATION_IN = 5,   /**< D s */
    VEK_BLEND_SOURCE_OUT = 6,       /**< S(1 - d) */
    VEK_BLEND_DESTINATION_OUT = 7,  /**< D(1 - s) */
    VEK_BLEND_SOURCE_ATOP = 8,      /**< S d + D(1 - s) */
    VEK_BLEND_DESTINATION_ATOP = 9, /**< S(1 - d) + D s */
    VEK_BLEND_XOR = 10,             /**< S(1 - d) + D(1 - s) */
    VEK_BLEND_PLUS = 11,            /**< the smaller of S + D and 1; here S is scaled by coverage and value first */
    VEK_BLEND_MULTIPLY = 12,        /**< Multiply */
    VEK_BLEND_SCREEN = 13,          /**< Screen */
    VEK_BLEND_OVERLAY = 14,         /**< Overlay */
    VEK_BLEND_DARKEN = 15,          /**< Darken */
    VEK_BLEND_LIGHTEN = 16,         /**< Lighten */
    VEK_BLEND_COLOR_DODGE = 17,     /**< ColorDodge */
    VEK_BLEND_COLOR_BURN = 18,      /**< ColorBurn */
    VEK_BLEND_HARD_LIGHT = 19,      /**< HardLight */
    VEK_BLEND_SOFT_LIGHT = 20,      /**< SoftLight */
    VEK_BLEND_DIFFERENCE = 21,      /**< Difference */
    VEK_BLEND_EXCLUSION = 22,       /**< Exclusion */
    VEK_BLEND_HUE = 23,             /**< Hue */
    VEK_BLEND_SATURATION = 24,      /**< Saturation */
    VEK_BLEND_COLOR = 25,           /**< Color */
    VEK_BLEND_LUMINOSITY = 26       /**< Luminosity */
};

/** The extent of a path. */
typedef struct VekBounds {
    float left;   /**< the smallest x */
    float top;    /**< the smallest y */
    float right;  /**< the largest x */
    float bottom; /**< the largest y */
} VekBounds;

/* ------------------------------------------------------------------------------------------------------- bitmaps */

/** Wraps pixels of the caller without a copy.
 *  \param bits          first pixel of the first row, on a 4-byte boundary; must outlive every use through the bitmap
 *                       or a canvas that it was set on
 *  \param width,height  pixels, 1..32767 each
 *  \param stride        bytes from one row to the next, a multiple of 4 and at least 4 * width
 *  \return a bitmap to be ended with vekBitmapDestroy; 0 for bad arguments or when memory is short */
VEK_API VekBitmap VEK_CALL vekBitmapCreateFromData(void* bits, int width, int height, int stride);

/** Ends a bitmap. The pixels stay the caller's; a canvas that it was set on goes on drawing on them. */
VEK_API void VEK_CALL vekBitmapDestroy(VekBitmap bitmap);

/* ------------------------------------------------------------------------------------------------------ canvases */

/** Creates a canvas without a bitmap, with the style written at each setter, no clip and no translation.
 *  \return a canvas to be ended with vekCanvasDestroy; 0 when memory is short */
VEK_API VekCanvas VEK_CALL vekCanvasCreate(void);

/** Ends a canvas. Layers that were not restored are dropped. */
VEK_API void VEK_CALL vekCanvasDestroy(VekCanvas canvas);

/** Draws on this bitmap from now on. Style, clip, translation and saved states stay as they are. The bitmap may be
 *  destroyed at once; its pixels must stay until the canvas is destroyed or gets another bitmap.
 *  \return 1; 0 for a 0 handle, and the former bitmap stays */
VEK_API int VEK_CALL vekCanvasSetBitmap(VekCanvas canvas, VekBitmap bitmap);

/** Saves style, clip and translation for the matching vekCanvasRestore. */
VEK_API int VEK_CALL vekCanvasSave(VekCanvas canvas);

/** Saves as vekCanvasSave, and sends what is drawn until the matching restore to a layer that starts transparent. The
 *  restore draws it on what was there before with source-over, whatever the blend mode then.
 *  \param bounds  the part that the layer needs to have, clipped; NULL means all of the clip
 *  \param alpha   opacity of the layer 0..255, clamped
 *  \return 1; 0 for a 0 handle, without a bitmap or without memory for the layer: the state is saved all the same
 *          (except for a 0 handle), and drawing goes on without a layer */
VEK_API int VEK_CALL vekCanvasSaveLayer(VekCanvas canvas, const RECT* bounds, int alpha);

/** Goes back to the latest saved state. \return 1; 0 when none is saved, and nothing changes */
VEK_API int VEK_CALL vekCanvasRestore(VekCanvas canvas);

/** Cuts the clip to a rectangle. The clip consists of whole pixels: with a fractional translation, of those whose centre
 *  is inside.
 *  \param rect  in the coordinates of this moment, right and bottom exclusive; an empty one clips everything away
 *  \return 1; 0 for NULL */
VEK_API int VEK_CALL vekCanvasClipRect(VekCanvas canvas, const RECT* rect);

/** Moves the origin of later coordinates by (dx, dy), on top of earlier translations. The clip stays. */
VEK_API int VEK_CALL vekCanvasTranslate(VekCanvas canvas, float dx, float dy);

/* --------------------------------------------------------------------------------------------------------- style
 * Setters return 1, or 0 when the value is refused and the state stays as it was. */

/** One of VEK_DRAW_FILL..GRADIENT, other values are refused. At first VEK_DRAW_FILL. */
VEK_API int VEK_CALL vekCanvasSetDrawStyle(VekCanvas canvas, int style);

/** The colour of fills and strokes. At first 0xFF000000. */
VEK_API int VEK_CALL vekCanvasSetColor(VekCanvas canvas, DWORD color);

/** 0 turns anti-aliasing off, any other value on. At first on. */
VEK_API int VEK_CALL vekCanvasSetSmooth(VekCanvas canvas, int smooth);

/** One of VEK_BLEND_SOURCE_OVER..LUMINOSITY, other values are refused. At first VEK_BLEND_SOURCE_OVER. */
VEK_API int VEK_CALL vekCanvasSetBlendMode(VekCanvas canvas, int mode);

/** \return the blend mode */
VEK_API int VEK_CALL vekCanvasGetBlendMode(VekCanvas canvas);

/** Opacity 0..255 of every draw, clamped. At first 255. */
VEK_API int VEK_CALL vekCanvasSetBlendValue(VekCanvas canvas, int value);

/** \return the opacity */
VEK_API int VEK_CALL vekCanvasGetBlendValue(VekCanvas canvas);

/** One of VEK_CAP_BUTT..SQUARE, other values are refused. At first VEK_CAP_BUTT. */
VEK_API int VEK_CALL vekCanvasSetStrokeCap(VekCanvas canvas, int cap);

/** One of VEK_JOIN_MITER..BEVEL, other values are refused. At first VEK_JOIN_MITER. */
VEK_API int VEK_CALL vekCanvasSetStrokeJoin(VekCanvas canvas, int join);

/** Width of strokes in pixels, above 0; other values are refused. At first 1. */
VEK_API int VEK_CALL vekCanvasSetStrokeWidth(VekCanvas canvas, float width);

/** \return the width of strokes */
VEK_API float VEK_CALL vekCanvasGetStrokeWidth(VekCanvas canvas);

/** One of VEK_DASH_SOLID..DASH_DOT_DOT, other values are solid. At first solid. Ends a dash pattern. */
VEK_API int VEK_CALL vekCanvasSetDashStyle(VekCanvas canvas, int style);

/** Dashes of the caller's own. Ends a dash style.
 *  \param pattern  lengths in pixels, on and off by turns, starting with on; copied. When their number is odd, on and
 *                  off change places at every repetition. NULL is solid
 *  \param count    lengths; 0 is solid
 *  \return 1; 0 for a negative count, a length that is negative or not finite, or lengths that are all 0 */
VEK_API int VEK_CALL vekCanvasSetDashPattern(VekCanvas canvas, const float* pattern, int count);

/** The gradient of VEK_DRAW_GRADIENT. It may be destroyed at once; colour stops added later count. At first none.
 *  \param gradient  0, none */
VEK_API int VEK_CALL vekCanvasSetGradient(VekCanvas canvas, VekGradient gradient);

/* ------------------------------------------------------------------------------------------------------- drawing */

/** Paints the pixel square [x, x + 1) x [y, y + 1) with the colour, whatever the draw style. */
VEK_API int VEK_CALL vekCanvasDrawPoint(VekCanvas canvas, float x, float y);

/** Strokes a line, whatever the draw style. */
VEK_API int VEK_CALL vekCanvasDrawLine(VekCanvas canvas, float x1, float y1, float x2, float y2);

/** Draws a rectangle. */
VEK_API int VEK_CALL vekCanvasDrawRectangle(VekCanvas canvas, float x, float y, float width, float height);

/** Draws a rectangle with rounded corners.
 *  \param rect   right and bottom exclusive; nothing is drawn when it is inverted
 *  \param rx,ry  radii of the corners, at most half the width and height; a corner is square when either is 0 */
VEK_API int VEK_CALL vekCanvasDrawRoundRect(VekCanvas canvas, const RECT* rect, float rx, float ry);

/** Draws a circle. */
VEK_API int VEK_CALL vekCanvasDrawCircle(VekCanvas canvas, float cx, float cy, float radius);

/** Draws the ellipse inscribed in a box. */
VEK_API int VEK_CALL vekCanvasDrawEllipse(VekCanvas canvas, float x, float y, float width, float height);

/** Draws a path; open figures are filled as if they were closed. */
VEK_API int VEK_CALL vekCanvasDrawPath(VekCanvas canvas, VekPath path);

/** Fills a rectangle with a colour, whatever colour and draw style are set.
 *  \param rect  right and bottom exclusive; nothing is drawn when it is empty */
VEK_API int VEK_CALL vekCanvasDrawColor(VekCanvas canvas, DWORD color, const RECT* rect);

/** Draws a bitmap at its own size with its top left corner at (x, y). At fractional positions it is sampled bilinearly,
 *  with smoothing off to the nearest pixel. */
VEK_API int VEK_CALL vekCanvasDrawBitmap(VekCanvas canvas, VekBitmap bitmap, float x, float y);

/* --------------------------------------------------------------------------------------------------------- paths */

/** \return an empty path to be ended with vekPathDestroy; 0 when memory is short */
VEK_API VekPath VEK_CALL vekPathCreate(void);

/** Ends a path. */
VEK_API void VEK_CALL vekPathDestroy(VekPath path);

/** Starts a new figure: what was built stays, the current point is forgotten. */
VEK_API int VEK_CALL vekPathBegin(VekPath path);

/** Closes the current figure by a line to its start, which becomes the current point. */
VEK_API int VEK_CALL vekPathClose(VekPath path);

/** Starts a new figure at a point. */
VEK_API int VEK_CALL vekPathMoveTo(VekPath path, float x, float y);

/* Without a current point, the next four start a figure at the first point they are given. */

/** Adds a line. */
VEK_API int VEK_CALL vekPathLineTo(VekPath path, float x, float y);

/** Adds a line to, and the arc of a circle that touches, the lines from the current point to (x1, y1) and from there to
 *  (x2, y2). Only the line to (x1, y1) when these lines are one or the radius is 0. */
VEK_API int VEK_CALL vekPathArcTo(VekPath path, float x1, float y1, float x2, float y2, float radius);

/** Adds a cubic Bezier curve with two control points. */
VEK_API int VEK_CALL vekPathBezierCurveTo(VekPath path, float c1x, float c1y, float c2x, float c2y, float x, float y);

/** Adds a quadratic Bezier curve. */
VEK_API int VEK_CALL vekPathQuadraticCurveTo(VekPath path, float cx, float cy, float x, float y);

/** Adds the arc of a circle, joined to the current point by a line.
 *  \param startAngle,endAngle  radians from the positive x axis towards the positive y axis
 *  \param anticlockwise        0: towards growing angles, clockwise to the eye; else the other way. An end that lies
 *                              the other way is moved by whole turns; beyond a whole turn, further ones are left out */
VEK_API int VEK_CALL vekPathAddArc(VekPath path, float cx, float cy, float radius, float startAngle, float endAngle,
                                   int anticlockwise);

/* Each of the next three adds a closed figure; the current point is forgotten. */

/** Adds a rectangle. */
VEK_API int VEK_CALL vekPathAddRectangle(VekPath path, float x, float y, float width, float height);

/** Adds a circle. */
VEK_API int VEK_CALL vekPathAddCircle(VekPath path, float cx, float cy, float radius);

/** Adds the ellipse inscribed in a box. */
VEK_API int VEK_CALL vekPathAddEllipse(VekPath path, float x, float y, float width, float height);

/** Writes the exact extent of the outline, without the width of a stroke; zeros for an empty path.
 *  \return 1; 0 for a 0 handle or NULL, and nothing is written */
VEK_API int VEK_CALL vekPathGetBounds(VekPath path, VekBounds* bounds);

/* ----------------------------------------------------------------------------------------------------- gradients */

/* Coordinates are those of the canvas at drawing time: its translation applies. Between two stops colours are mixed
 * straight, then premultiplied; beyond the ends the end colours go on. Without stops a gradient is transparent. */

/** A gradient along the line from (x1, y1), offset 0, to (x2, y2), offset 1; when they are one point, the last colour.
 *  \return a gradient to be ended with vekGradientDestroy; 0 for numbers that are not finite or when memory is short */
VEK_API VekGradient VEK_CALL vekGradientCreateLinear(float x1, float y1, float x2, float y2);

/** A gradient over the family of circles from the first, offset 0, to the second, offset 1, and on beyond both. Where
 *  several circles pass, the largest offset shows; where none does, nothing.
 *  \return a gradient to be ended with vekGradientDestroy; 0 for numbers that are not finite or when memory is short */
VEK_API VekGradient VEK_CALL vekGradientCreateRadial(float x0, float y0, float r0, float x1, float y1, float r1);

/** Adds a colour. Of stops at one offset, the earlier one ends the colours before it, the later one begins those after.
 *  \param offset  0..1, clamped */
VEK_API int VEK_CALL vekGradientAddColorStop(VekGradient gradient, float offset, DWORD color);

/** Ends a gradient. Canvases that it was set on keep what they need. */
VEK_API void VEK_CALL vekGradientDestroy(VekGradient gradient);

#endif
