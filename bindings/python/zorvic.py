"""Zorvic from Python: every export of zorvic32.dll or zorvic64.dll, for 32- and 64-bit Python on Windows, by ctypes.

    import zorvic
    canvas = zorvic.CreateCanvas(320, 200, None)
    zorvic.FillSolidRect(canvas, 0xFF4080C0, zorvic.RECT(10, 10, 110, 60))
    size = zorvic.SIZE()
    zorvic.GetCanvasSize(canvas, size)
    zorvic.DeleteCanvas(canvas)

The DLLs, this one and vekgraphic.dll, are looked for beside this file, or in the folder that the environment variable
ZORVIC_PATH names. Records are passed as they are where the interface takes a pointer; None is NULL; a plain value that
is written needs an object: word = DWORD(), and then word.value. Handles are true unless they are NULL. Objects live
until they are deleted by the function that the header names; Python deletes none.

Made by scripts/generate-exports from api/exports.json and the headers. It has been compared with the headers by a
compiler, for 32 and 64 bits, but not yet been run on Windows."""
import ctypes
import functools
import os
from ctypes import POINTER, Structure, c_bool, c_double, c_float, c_int, c_uint, c_void_p

BYTE = ctypes.c_uint8
WORD = ctypes.c_uint16
DWORD = ctypes.c_uint32
LONG = ctypes.c_int32
HDC = HWND = HPEN = HBRUSH = HRGN = HBITMAP = c_void_p


class HGBITMAP(c_void_p):
    """A bitmap: one pixel surface."""


class HGTEXTURE(HGBITMAP):
    """A texture: a bitmap with a layout mode and slices. It can be passed where a bitmap is asked for."""


class HGCANVAS(c_void_p):
    """A canvas: what everything draws on."""


class HGPATH(c_void_p):
    """A path: an outline of one or more figures."""


class HGGRADIENT(c_void_p):
    """A gradient: colours along a line or between two circles."""


class POINT(Structure):
    """A point, as GDI has it."""

    _fields_ = [("x", LONG), ("y", LONG)]


class SIZE(Structure):
    """A size, as GDI has it."""

    _fields_ = [("cx", LONG), ("cy", LONG)]


class RECT(Structure):
    """A rectangle, as GDI has it: right and bottom exclusive."""

    _fields_ = [("left", LONG), ("top", LONG), ("right", LONG), ("bottom", LONG)]


class BITMAP(Structure):
    """A described image, as GDI has it."""

    _fields_ = [
        ("bmType", LONG),
        ("bmWidth", LONG),
        ("bmHeight", LONG),
        ("bmWidthBytes", LONG),
        ("bmPlanes", WORD),
        ("bmBitsPixel", WORD),
        ("bmBits", c_void_p),
    ]


class BitmapLockInfo(Structure):
    """A locked image: the platform's BITMAP, field for field, then its palette. 32 bytes; 48 in 64-bit programs.
    The pixels belong to the surface; they stay where they are until the surface is deleted or converted."""

    _fields_ = [
        ("bmType", LONG),
        ("bmWidth", LONG),
        ("bmHeight", LONG),
        ("bmWidthBytes", LONG),
        ("bmPlanes", WORD),
        ("bmBitsPixel", WORD),
        ("bmBits", c_void_p),
        ("colorCount", WORD),
        ("reserved", WORD),
        ("palette", POINTER(DWORD)),
    ]


class RGBTriple(Structure):
    """A colour without alpha: the low three bytes of a word 0xAARRGGBB."""

    _fields_ = [
        ("blue", BYTE),
        ("green", BYTE),
        ("red", BYTE),
    ]


class HSLTriple(Structure):
    """The same in hue, saturation and lightness: the low three bytes of a word 0xAAHHSSLL, see
    ARGBtoAHSL."""

    _fields_ = [
        ("lightness", BYTE),
        ("saturation", BYTE),
        ("hue", BYTE),
    ]


class TextureMode(Structure):
    """How a texture is laid out in the rectangle it is drawn to."""

    _fields_ = [
        ("layout", LONG),
        ("argument", DWORD),
        ("margins", RECT),
    ]


class TextureDrawParams(Structure):
    """All choices of a texture draw; zero what is not used."""

    _fields_ = [
        ("filterMode", DWORD),
        ("alpha", BYTE),
        ("reserved0", BYTE * 3),
        ("tileScale", c_float),
        ("reserved1", BYTE * 4),
        ("scale", c_double),
        ("cornerRadii", c_float * 4),
        ("ellipse", LONG),
        ("reserved2", BYTE * 4),
        ("rounded", LONG),
        ("reserved3", BYTE * 4),
    ]


class PathBounds(Structure):
    """The extent of a path."""

    _fields_ = [
        ("left", c_float),
        ("top", c_float),
        ("right", c_float),
        ("bottom", c_float),
    ]


# Operation words: how a source, or a fill's colour, meets the pixels that are there.
OP_COPY = 0x00000000  # replaces them; below opacity 255 a source is blended as SOURCE_OVER
OP_SOURCE_OVER = 0x01000000  # drawn over them by its alpha
OP_COLOR_KEY = 0x02000000  # copies what differs from the key, OR'ed in as 0xRRGGBB; fills: SOURCE_OVER
OP_MULTIPLY = 0x03000000  # multiplies channel by channel; scaled bilinearly; ignores the opacity
OP_OR = 0x04000000  # fills only: bitwise OR; 0 clears, 0xFFFFFFFF changes nothing
OP_GRAY_WASH = 0x05000000  # fills only: opaque pixels become their grey, times the colour's alpha
OP_DESTINATION_OVER = 0x06000000  # drawn behind them; scaled bilinearly; ignores the opacity

# Sampling filters: how a source is read when it is drawn at another size. Any other value is
# bilinear too.
FILTER_NEAREST = 0  # the source pixel at the scaled position, counted from the top left: hard edges
FILTER_BILINEAR = 1  # mean of 2 x 2 source pixels, weighted by their distance
FILTER_BICUBIC = 4  # kernel chosen by SetStretchKernelMode
FILTER_AREA = 5  # mean of the covered source pixels; enlargements are bicubic

# How a picture is turned or mirrored. W and H are the new width and height; the pixel at (x, y) of
# the source goes to the place behind each name.
TRANSFORM_ROTATE_90 = 1  # clockwise: (W - 1 - y, x)
TRANSFORM_ROTATE_180 = 2  # (W - 1 - x, H - 1 - y)
TRANSFORM_ROTATE_270 = 3  # clockwise: (y, H - 1 - x)
TRANSFORM_FLIP_VERTICAL = 4  # top to bottom: (x, H - 1 - y)
TRANSFORM_FLIP_HORIZONTAL = 5  # left to right: (W - 1 - x, y)
TRANSFORM_TRANSPOSE = 6  # about the diagonal through the top left corner: (y, x)
TRANSFORM_ANTI_TRANSPOSE = 7  # about the other diagonal: (W - 1 - y, H - 1 - x)

# Kernels of FILTER_BICUBIC; any other value is cubic convolution too. Sources: R. Keys, "Cubic
# convolution interpolation for digital image processing", 1981; the B-spline is the cubic basis
# spline sampled as a kernel.
KERNEL_CUBIC_CONVOLUTION = 0  # with a = -1: sharp
KERNEL_B_SPLINE = 1  # smooth; the default

# Values of TextureMode::layout; any other value stretches.
LAYOUT_STRETCH = 0  # the slice fills the rectangle
LAYOUT_NINE_GRID = 1  # DrawTexture9Grid; the argument holds its edge flags
LAYOUT_TILE = 2  # DrawTextureTile; the argument holds its flags
LAYOUT_CENTER = 3  # DrawTextureCenter
LAYOUT_NINE_GRID_FILLED = 4  # DrawTexture9Grid with a one-colour centre
LAYOUT_TOP_TILE = 5  # DrawTextureTopTile
LAYOUT_UNIFORM = 6  # DrawTextureUniform; the argument may be UNIFORM_CENTERED

# Flags of DrawTextureTile.
TILE_SCALED = 0x10  # tiles are drawn scaled

# The argument of LAYOUT_UNIFORM.
UNIFORM_CENTERED = 1  # the middle of the texture is shown

# Edge flags of DrawTexture9Grid, to be combined.
EDGE_LEFT = 1  # the left margin
EDGE_TOP = 2  # the top margin
EDGE_RIGHT = 4  # the right margin
EDGE_BOTTOM = 8  # the bottom margin

# Directions of FillGradualRect.
GRADUAL_TOP_TO_BOTTOM = 1  # the first row has colorFrom
GRADUAL_LEFT_TO_RIGHT = 2  # the first column has colorFrom

# Draw styles.
DRAW_FILL = 0  # inside, by the non-zero rule
DRAW_STROKE = 1  # along the outline
DRAW_GRADIENT = 2  # inside, with the gradient; with the colour when none is set

# How shapes, of colour S and alpha s, meet the pixels, of colour D and alpha d, both premultiplied.
# From MULTIPLY on they are composed as SOURCE_OVER, but mixed by the function of that name in PDF's
# blend modes where both cover.
BLEND_SOURCE_OVER = 0  # S + D(1 - s)
BLEND_SOURCE = 1  # S
BLEND_DESTINATION_OVER = 2  # S(1 - d) + D
BLEND_CLEAR = 3  # 0
BLEND_SOURCE_IN = 4  # S d
BLEND_DESTINATION_IN = 5  # D s
BLEND_SOURCE_OUT = 6  # S(1 - d)
BLEND_DESTINATION_OUT = 7  # D(1 - s)
BLEND_SOURCE_ATOP = 8  # S d + D(1 - s)
BLEND_DESTINATION_ATOP = 9  # S(1 - d) + D s
BLEND_XOR = 10  # S(1 - d) + D(1 - s)
BLEND_PLUS = 11  # S + D, at most 1
BLEND_MULTIPLY = 12  # Multiply
BLEND_SCREEN = 13  # Screen
BLEND_OVERLAY = 14  # Overlay
BLEND_DARKEN = 15  # Darken
BLEND_LIGHTEN = 16  # Lighten
BLEND_COLOR_DODGE = 17  # ColorDodge
BLEND_COLOR_BURN = 18  # ColorBurn
BLEND_HARD_LIGHT = 19  # HardLight
BLEND_SOFT_LIGHT = 20  # SoftLight
BLEND_DIFFERENCE = 21  # Difference
BLEND_EXCLUSION = 22  # Exclusion
BLEND_HUE = 23  # Hue
BLEND_SATURATION = 24  # Saturation
BLEND_COLOR = 25  # Color
BLEND_LUMINOSITY = 26  # Luminosity

# Ends of open strokes.
CAP_BUTT = 0  # at the end point
CAP_ROUND = 1  # with half a disc beyond it
CAP_SQUARE = 2  # half a stroke width beyond it

# Corners of strokes. A miter longer than 10 stroke widths becomes a bevel.
JOIN_MITER = 0  # pointed
JOIN_ROUND = 1  # rounded by a disc
JOIN_BEVEL = 2  # cut off

# Dash styles: a dash is 3 stroke widths long, dots and gaps 1.
DASH_SOLID = 0  # no gaps
DASH_DASH = 1  # dashes
DASH_DOT = 2  # dots
DASH_DASH_DOT = 3  # a dash and a dot by turns
DASH_DASH_DOT_DOT = 4  # a dash and two dots by turns

# What ShuffleBitmap moves between the channels.
SHUFFLE_ALPHA_TO_GRAY = 1  # blue, green and red become the alpha
SHUFFLE_COLOR_TO_ALPHA = 6  # alpha becomes the largest of blue, green and red

# How Mirror and MirrorEx mirror.
MIRROR_VERTICAL = 0  # top to bottom
MIRROR_HORIZONTAL = 1  # left to right
MIRROR_BOTH = 2  # half a turn


def _load():
    folder = os.environ.get("ZORVIC_PATH") or os.path.dirname(os.path.abspath(__file__))
    name = "zorvic64.dll" if ctypes.sizeof(c_void_p) == 8 else "zorvic32.dll"
    # Windows looks for vekgraphic.dll where this DLL is only when it is named by its full path.
    return ctypes.CDLL(os.path.join(os.path.abspath(folder), name))


_dll = _load()


def _export(restype, *argtypes, x86=None, x64=None):
    """Makes a function that returns its arguments in order into a call of the export of its name."""

    def bind(function):
        decorated = x64 if ctypes.sizeof(c_void_p) == 8 else x86
        call = getattr(_dll, decorated or function.__name__)
        call.restype = restype
        call.argtypes = argtypes

        @functools.wraps(function)
        def forward(*arguments, **named):
            return call(*function(*arguments, **named))

        return forward

    return bind


@_export(HGBITMAP, c_int, c_int)
def CreateSystemBitmap(width, height):
    """Creates a bitmap with its pixels in a top-down 32-bit DIB section, for GDI to draw on. Pixels start at 0.
    width, height: pixels, 1..32767 each
    Returns: a bitmap to be deleted with DeleteBitmap; None for a bad size or when memory is short"""
    return (width, height)


@_export(HGBITMAP, c_int, c_int)
def CreateMemBitmap(width, height):
    """Creates a 32-bit bitmap in heap memory. Its pixels start undefined.
    width, height: pixels, 1..32767 each
    Returns: a bitmap to be deleted with DeleteBitmap; None for a bad size or when memory is short"""
    return (width, height)


@_export(HGBITMAP, c_int, c_int, c_int, c_int)
def CreateMemBitmapEx(width, height, bitsPixel, colorCount):
    """Creates a bitmap in heap memory with a depth and a palette of its own. Pixels and palette start undefined.
    width, height: pixels, 1..32767 each
    bitsPixel: 1..32; only depths from 8 on can be locked, and only 8, 24 and 32 are drawn as such
    colorCount: palette entries, cut to 2^bitsPixel; 0 or less, the grey ramp; ignored above 8 bits
    Returns: a bitmap to be deleted with DeleteBitmap; None for a bad size or depth, or when memory is short"""
    return (width, height, bitsPixel, colorCount)


@_export(None, HGBITMAP)
def DeleteBitmap(bitmap):
    """Deletes a bitmap or texture and the pixels it owns. None is ignored, and so is the surface of
    a canvas."""
    return (bitmap,)


@_export(None, HGBITMAP)
def ReleaseBitmap(bitmap):
    """Does nothing: the bitmap stays alive. Kept for hosts that call it; see DeleteBitmap."""
    return (bitmap,)


@_export(HBITMAP, HGBITMAP)
def GetBitmapHandle(bitmap):
    """The bitmap's pixels as a GDI bitmap. A bitmap in heap memory is first turned into a 32-bit DIB section, once and
    for good, which moves its pixels; earlier locks end.
    Returns: a handle that stays the bitmap's and must not be deleted by the host; 0 for None, for a bitmap without
        pixels of its own, or when GDI refuses. A bitmap has lost its pixels then, a canvas has not"""
    return (bitmap,)


@_export(c_int, HGBITMAP, POINTER(SIZE))
def GetBitmapSize(bitmap, size):
    """Writes width and height in pixels (0 and 0 without pixels). Returns: 1; 0 for None"""
    return (bitmap, size)


@_export(c_int, HGBITMAP, POINTER(BITMAP), POINTER(RECT))
def LockBitmapBits(bitmap, out, area):
    """Describes the pixels of a bitmap, for reading and writing in place. Locks do not count or exclude one another.
    out: receives the description of the area
    area: surface pixels; None means all of it
    Returns: 1; 0 for None, without pixels, below 8 bits per pixel, or for an area that is empty or reaches outside"""
    return (bitmap, out, area)


@_export(c_int, HGBITMAP, POINTER(BitmapLockInfo), POINTER(RECT))
def LockBitmapBitsEx(bitmap, out, area):
    """LockBitmapBits with the palette: the bitmap's own, the grey ramp (256 entries) for 8 bits
    without one, none above 8."""
    return (bitmap, out, area)


@_export(c_int, HGBITMAP, DWORD, c_int)
def UnlockBitmapBits(bitmap, value, changed):
    """Ends a lock.
    value: passed on to the resource manager
    changed: not 0: tells the registered resource manager that the pixels changed
    Returns: 1; 0 for None"""
    return (bitmap, value, changed)


@_export(c_int, HGBITMAP, POINTER(DWORD))
def GetBitmapFilter(bitmap, filter):
    """Reads the operation word. Returns: 1; 0 for None"""
    return (bitmap, filter)


@_export(c_int, HGBITMAP, DWORD)
def SetBitmapFilter(bitmap, filter):
    """Sets the operation word with which the bitmap is drawn from now on. Returns: 1; 0 for None"""
    return (bitmap, filter)


@_export(c_int, HGBITMAP, POINTER(BYTE))
def GetBitmapBitsPixel(bitmap, bitsPixel):
    """Writes the bits per pixel (0 without pixels). Returns: 1; 0 for None"""
    return (bitmap, bitsPixel)


@_export(c_int, HGBITMAP, POINTER(RECT), HGBITMAP, POINTER(RECT))
def CopyBitmap(dst, dstArea, src, srcArea):
    """Copies pixels, palette and operation word between surfaces of one depth and palette size, or widens any source
    into a 32-bit surface. Other pairs copy nothing. Nothing is stretched: the source area's size is copied.
    dst, src: may be the same bitmap
    dstArea, srcArea: surface pixels; None means all of it. The destination area places the copy, which is cut to what
        lies inside the destination surface
    Returns: 1 for two valid handles, whatever was copied; else 0"""
    return (dst, dstArea, src, srcArea)


@_export(c_void_p, c_void_p)
def RegisterD2DResoureMgr(manager):
    """Registers the process-wide resource manager; None means none. It stays the host's. Returns:
    manager"""
    return (manager,)


@_export(HGTEXTURE, c_int, c_int)
def CreateTexture(width, height):
    """CreateTextureEx(width, height, 32, 0)."""
    return (width, height)


@_export(HGTEXTURE, c_int, c_int, c_int, c_int)
def CreateTextureEx(width, height, bitsPixel, colorCount):
    """Creates a texture in heap memory, without slices and with a plain stretch as its layout.
    Arguments and failures are those of CreateMemBitmapEx. Returns: a texture to be deleted with DeleteTexture"""
    return (width, height, bitsPixel, colorCount)


@_export(HGTEXTURE, HGCANVAS)
def GetTexture(canvas):
    """A texture that shows a canvas's pixels without owning them. Delete it before the canvas; it goes on showing the old
    pixels when the canvas's surface is turned into a DIB section (GetCanvasHandle) after this call.
    Returns: a texture to be deleted with DeleteTexture; None for None or a canvas without a surface"""
    return (canvas,)


@_export(HGTEXTURE, HGBITMAP)
def BitmapToTexture(bitmap):
    """Turns a bitmap into a texture: the pixels move, the bitmap is deleted and its handle ends.
    Returns: None for None and for the surface of a canvas"""
    return (bitmap,)


@_export(HGTEXTURE, HGCANVAS)
def CanvasToTexture(canvas):
    """Turns a canvas into a texture: the surface moves, the canvas is deleted and its handle ends. Unless the canvas's
    operation is OP_SOURCE_OVER, every pixel becomes opaque. Returns: None for None"""
    return (canvas,)


@_export(c_int, HGTEXTURE, POINTER(SIZE))
def GetTextureSize(texture, size):
    """Writes the size of the current slice, or of the surface when there are no slices, in pixels.
    Returns: 1; 0 for None"""
    return (texture, size)


@_export(c_int, HGTEXTURE, POINTER(TextureMode))
def SetTextureMode(texture, mode):
    """Copies a layout record in. Returns: 1; 0 for None"""
    return (texture, mode)


@_export(c_int, HGTEXTURE, POINTER(TextureMode))
def GetTextureMode(texture, mode):
    """Copies the layout record out; all zero at creation. Returns: 1; 0 for None"""
    return (texture, mode)


@_export(c_int, HGTEXTURE, c_uint, POINTER(RECT))
def SetTextureSlice(texture, count, rects):
    """Replaces the slices: rectangles that cut one surface into several images. The last one becomes current.
    count: rectangles; 0 removes all
    rects: surface pixels; not checked against the surface here, drawing does
    Returns: count; 0 for None"""
    return (texture, count, rects)


@_export(c_int, HGTEXTURE, c_int)
def SetTextureCurSlice(texture, index):
    """Selects the slice that size queries and drawing use.
    Returns: the previous index (-1, none was); -1 without a change for None or an index outside the slices"""
    return (texture, index)


@_export(c_int, HGTEXTURE, POINTER(RECT))
def GetTextureCurSlice(texture, slice):
    """Writes the current slice, or the whole surface when there is none. Returns: 1; 0 for None"""
    return (texture, slice)


@_export(c_int, HGTEXTURE)
def GetTextureSliceCount(texture):
    """Returns: the number of slices; -1 for None"""
    return (texture,)


@_export(None, HGTEXTURE)
def DeleteTexture(texture):
    """Another name of DeleteBitmap."""
    return (texture,)


@_export(None, HGTEXTURE)
def ReleaseTexture(texture):
    """Another name of DeleteBitmap."""
    return (texture,)


@_export(HBITMAP, HGTEXTURE)
def GetTextureHandle(texture):
    """Another name of GetBitmapHandle."""
    return (texture,)


@_export(c_int, HGTEXTURE, POINTER(BITMAP), POINTER(RECT))
def LockTextureBits(texture, out, area):
    """Another name of LockBitmapBits."""
    return (texture, out, area)


@_export(c_int, HGTEXTURE, POINTER(BitmapLockInfo), POINTER(RECT))
def LockTextureBitsEx(texture, out, area):
    """Another name of LockBitmapBitsEx."""
    return (texture, out, area)


@_export(c_int, HGTEXTURE, DWORD, c_int)
def UnlockTextureBits(texture, value, changed):
    """Another name of UnlockBitmapBits."""
    return (texture, value, changed)


@_export(c_int, HGTEXTURE, POINTER(DWORD))
def GetTextureFilter(texture, filter):
    """Another name of GetBitmapFilter."""
    return (texture, filter)


@_export(c_int, HGTEXTURE, DWORD)
def SetTextureFilter(texture, filter):
    """Another name of SetBitmapFilter."""
    return (texture, filter)


@_export(c_int, HGTEXTURE, POINTER(BYTE))
def GetTextureBitsPixel(texture, bitsPixel):
    """Another name of GetBitmapBitsPixel."""
    return (texture, bitsPixel)


@_export(c_int, HGTEXTURE, POINTER(RECT), HGTEXTURE, POINTER(RECT))
def CopyTexture(dst, dstArea, src, srcArea):
    """Another name of CopyBitmap."""
    return (dst, dstArea, src, srcArea)


@_export(HGBITMAP, HGBITMAP, c_int, c_int, c_int)
def ResizeBitmap(source, width, height, mode):
    """A new 32-bit bitmap that shows the source in another size, with its operation word; in a DIB section if the source
    is in one. At the source's own size the pixels are copied exactly.
    source: 8, 24 or 32 bits per pixel; only read
    width, height: pixels, 1..32767 each
    mode: sampling, see FILTER_NEAREST
    Returns: a bitmap to be deleted with DeleteBitmap; None for None, a bad size, or when memory is short. A source
        whose pixels cannot be locked gives undefined ones"""
    return (source, width, height, mode)


@_export(HGTEXTURE, HGTEXTURE, c_int, c_int, c_int)
def ResizeTexture(source, width, height, mode):
    """ResizeBitmap for textures: the new one is in heap memory, without slices and with a plain
    stretch as its layout."""
    return (source, width, height, mode)


@_export(HGBITMAP, HGBITMAP, c_int)
def TransformBitmap(source, op):
    """A new bitmap with the source's pixels turned or mirrored, and its depth, palette and operation word; in a DIB
    section if the source is in one.
    source: 8, 24 or 32 bits per pixel (pixels of other depths are not moved: the new ones are undefined)
    op: see TRANSFORM_ROTATE_90
    Returns: a bitmap to be deleted with DeleteBitmap; None for None, another op, or when memory is short"""
    return (source, op)


@_export(HGTEXTURE, HGTEXTURE, c_int)
def TransformTexture(source, op):
    """TransformBitmap for textures: the new one is in heap memory, without slices and with a plain
    stretch as its layout."""
    return (source, op)


@_export(HGBITMAP, HGBITMAP, c_int)
def RotateBitmap(source, op):
    """TransformBitmap by a quarter, half or three quarter turn; None for any other op."""
    return (source, op)


@_export(HGTEXTURE, HGTEXTURE, c_int)
def RotateTexture(source, op):
    """TransformBitmap by a quarter, half or three quarter turn; None for any other op."""
    return (source, op)


@_export(HGBITMAP, HGBITMAP, c_int)
def FlipBitmap(source, op):
    """TransformBitmap top to bottom or left to right; None for any other op."""
    return (source, op)


@_export(HGTEXTURE, HGTEXTURE, c_int)
def FlipTexture(source, op):
    """TransformBitmap top to bottom or left to right; None for any other op."""
    return (source, op)


@_export(HGCANVAS, c_int, c_int, HGCANVAS)
def CreateCanvas(width, height, reference):
    """Creates a canvas on a 32-bit surface in heap memory, all transparent. GetCanvasHandle later turns it into a DIB
    section.
    width, height: pixels, 1..32767 each
    reference: a canvas whose operation word the new one takes over; may be None
    Returns: a canvas to be deleted with DeleteCanvas; None for a bad size or when memory is short"""
    return (width, height, reference)


@_export(HGCANVAS, c_int, c_int, HGCANVAS)
def CreateSystemCanvas(width, height, reference):
    """CreateCanvas on a DIB section, with its device context made at once."""
    return (width, height, reference)


@_export(HGCANVAS, HDC)
def CreateCanvasFromDC(dc):
    """Creates a canvas that draws on a device context of the host. It has no surface: vector drawing and everything that
    asks for one answers 0. The origins are read from the device context now. The device context stays the host's and
    must outlive the canvas.
    Returns: a canvas to be deleted with DeleteCanvas; None for None"""
    return (dc,)


@_export(None, HGCANVAS)
def DeleteCanvas(canvas):
    """Deletes a canvas, its surface and its device context (not the host's). None is ignored."""
    return (canvas,)


@_export(HDC, HGCANVAS)
def GetCanvasHandle(canvas):
    """The canvas's device context, made on the first call with the canvas's clip and origins; this turns the surface into
    a DIB section for good. GDI writes colour but clears or keeps alpha as it likes.
    Returns: a device context that stays the canvas's (or the host's); None for None, or when GDI refuses it or the clip;
        the picture stays as it is then"""
    return (canvas,)


@_export(c_int, HGCANVAS, POINTER(SIZE))
def GetCanvasSize(canvas, size):
    """Writes the surface's width and height in pixels. Returns: 1; 0 for None or a canvas without a
    surface"""
    return (canvas, size)


@_export(c_int, HGCANVAS, c_int, c_int, POINTER(POINT))
def SetViewportOrg(canvas, x, y, previous):
    """Sets the viewport origin, in pixels. The clip stays where it is on the surface.
    previous: receives the former origin (the device context's own, once there is one); may be None
    Returns: 1, or the device context's result; 0 for None"""
    return (canvas, x, y, previous)


@_export(c_int, HGCANVAS, POINTER(POINT))
def GetViewportOrg(canvas, origin):
    """Reads the viewport origin. Returns: 1; 0 for None"""
    return (canvas, origin)


@_export(c_int, HGCANVAS, c_int, c_int, POINTER(POINT))
def SetWindowOrg(canvas, x, y, previous):
    """Sets the window origin, as SetViewportOrg does the viewport's."""
    return (canvas, x, y, previous)


@_export(c_int, HGCANVAS, POINTER(POINT))
def GetWindowOrg(canvas, origin):
    """Reads the window origin. Returns: 1; 0 for None"""
    return (canvas, origin)


@_export(c_int, HGCANVAS, POINTER(RECT))
def WindowToDevice(canvas, rect):
    """Maps a rectangle from logical to surface pixels, in place. Returns: 1; 0 for None"""
    return (canvas, rect)


@_export(c_int, HGCANVAS, POINTER(RECT))
def DeviceToWindow(canvas, rect):
    """Maps a rectangle from surface to logical pixels, in place. Returns: 1; 0 for None"""
    return (canvas, rect)


@_export(HWND, HGCANVAS, HWND)
def SetCanvasWindow(canvas, window):
    """Stores a window for the host's own use. Returns: the window stored before"""
    return (canvas, window)


@_export(HWND, HGCANVAS)
def GetCanvasWindow(canvas):
    """Returns: the stored window; at first that of the device context a canvas was made from, else
    None"""
    return (canvas,)


@_export(c_int, HGCANVAS, POINTER(DWORD))
def GetCanvasFilter(canvas, filter):
    """Reads the operation word. Returns: 1; 0 for None"""
    return (canvas, filter)


@_export(c_int, HGCANVAS, DWORD)
def SetCanvasFilter(canvas, filter):
    """Sets the operation word of the canvas and its surface: how it is drawn when it is a source, and whether its alpha
    counts (OP_SOURCE_OVER). Returns: 1; 0 for None or a canvas without a surface"""
    return (canvas, filter)


@_export(c_int, HGCANVAS, DWORD, POINTER(DWORD))
def SetCanvasBkColor(canvas, color, previous):
    """Stores a background colour for the host's own use. previous: receives the former one; may be None
    Returns: 1; 0 for None"""
    return (canvas, color, previous)


@_export(c_int, HGCANVAS, POINTER(DWORD))
def GetCanvasBkColor(canvas, color):
    """Reads the background colour, 0 at first. Returns: 1; 0 for None"""
    return (canvas, color)


@_export(c_int, HGCANVAS, POINTER(RECT))
def SetCanvasClipRect(canvas, rect):
    """Replaces the clip: nothing is drawn outside it. It is cut to the surface and does not move with the origins. When GDI
    refuses it, it is the canvas's all the same: nothing is drawn through the device context until a later call can give
    it the clip.
    rect: logical pixels
    Returns: 1; 0 for None"""
    return (canvas, rect)


@_export(c_int, HGCANVAS, POINTER(RECT), POINTER(RECT))
def SetCanvasClipRoundRect(canvas, rect, corner):
    """SetCanvasClipRect: the clip is a rectangle, the corner has no effect."""
    return (canvas, rect, corner)


@_export(c_int, HGCANVAS, POINTER(RECT))
def IntersectCanvasClipRect(canvas, rect):
    """Cuts the clip to a rectangle in logical pixels. Returns: as SetCanvasClipRect"""
    return (canvas, rect)


@_export(c_int, HGCANVAS, POINTER(RECT))
def GetCanvasClipRect(canvas, rect):
    """Writes the clip in logical pixels; the clip box of a device context that has taken the clip.
    Returns: 1; 0 for None"""
    return (canvas, rect)


@_export(HGBITMAP, HGCANVAS)
def GetBitmap(canvas):
    """Returns: the canvas's surface, which stays the canvas's; None for None or a canvas without
    one"""
    return (canvas,)


@_export(c_int, DWORD)
def SetStretchKernelMode(mode):
    """Chooses the kernel of the bicubic filter, for the whole process. No other thread may be stretching.
    mode: see KERNEL_CUBIC_CONVOLUTION
    Returns: 1; 0 when this mode is set already"""
    return (mode,)


@_export(DWORD)
def GetStretchKernelMode():
    """Returns: the kernel of the bicubic filter, see KERNEL_CUBIC_CONVOLUTION"""
    return ()


@_export(c_int, HGCANVAS, POINTER(RECT), HGBITMAP, DWORD)
def DrawBitmap(canvas, dst, bitmap, filter):
    """DrawBitmapEx with opacity 255."""
    return (canvas, dst, bitmap, filter)


@_export(c_int, HGCANVAS, POINTER(RECT), HGBITMAP, DWORD, BYTE)
def DrawBitmapEx(canvas, dst, bitmap, filter, alpha):
    """Draws a bitmap into a rectangle of a canvas by the bitmap's operation word, stretched to fit and clipped. What is
    visible has the pixels of the unclipped draw. Drawn unstretched onto itself, a canvas's surface counts as a copy.
    canvas: target; its origins and clip apply
    dst: logical pixels; None means the bitmap's own size at (0, 0)
    bitmap: 8, 24 or 32 bits per pixel; only read
    filter: sampling, see FILTER_NEAREST
    alpha: opacity 0..255; ignored by OP_MULTIPLY and OP_DESTINATION_OVER
    Returns: 1 once both handles are valid, even if nothing was visible; else 0"""
    return (canvas, dst, bitmap, filter, alpha)


@_export(c_int, HGCANVAS, POINTER(RECT), HGBITMAP, POINTER(RECT), DWORD, BYTE)
def DrawBitmapEx2(canvas, dst, bitmap, src, filter, alpha):
    """DrawBitmapEx from a part of the bitmap.
    src: bitmap pixels, inside the bitmap (else nothing is drawn); None means all of it"""
    return (canvas, dst, bitmap, src, filter, alpha)


@_export(c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, DWORD)
def DrawTexture(canvas, dst, texture, filter):
    """Draws a texture's current slice into a rectangle by the texture's layout and operation word.
    dst: logical pixels
    filter: sampling, see FILTER_NEAREST
    Returns: 1 once the handles are valid; 0 for None, for a plain stretch when no slice is current, and always from the
        layouts that tile"""
    return (canvas, dst, texture, filter)


@_export(c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, DWORD, BYTE, DWORD, c_int)
def DrawTextureEx(canvas, dst, texture, filter, alpha, tileScale, doubleScale):
    """DrawTexture with an opacity and scales.
    tileScale: the bits of a float: scale of tiles and of nine-grid margins
    doubleScale: not 0: the nine-grid's source is at scale 2"""
    return (canvas, dst, texture, filter, alpha, tileScale, doubleScale)


@_export(c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, DWORD, BYTE, c_float, c_double)
def DrawTextureEx2(canvas, dst, texture, filter, alpha, tileScale, scale):
    """DrawTexture with an opacity and scales. scale: the nine-grid's source scale"""
    return (canvas, dst, texture, filter, alpha, tileScale, scale)


@_export(c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, POINTER(TextureDrawParams), c_void_p)
def DrawTextureEx3(canvas, dst, texture, params, reserved):
    """DrawTexture with every choice in a record. reserved: None"""
    return (canvas, dst, texture, params, reserved)


@_export(
    c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, POINTER(RECT), DWORD, BYTE,
    x86="?DrawTextureCenter@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE@Z",
    x64="?DrawTextureCenter@@YAHPEAUHGCANVAS__@@PEBUtagRECT@@PEAUHGTEXTURE__@@1KE@Z",
)
def DrawTextureCenter(canvas, dst, texture, slice, filter, alpha):
    """Draws a slice as large as dst allows without distortion, in the middle of dst.
    Returns: 1; 0 for None or a bad slice"""
    return (canvas, dst, texture, slice, filter, alpha)


@_export(
    c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, POINTER(RECT), DWORD, BYTE, c_bool,
    x86="?DrawTextureUniform@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE_N@Z",
    x64="?DrawTextureUniform@@YAHPEAUHGCANVAS__@@PEBUtagRECT@@PEAUHGTEXTURE__@@1KE_N@Z",
)
def DrawTextureUniform(canvas, dst, texture, margins, filter, alpha, center):
    """Fills dst without distortion: the texture inside its margins is cropped to the shape of dst.
    margins: texture pixels, measured inward from each edge of the texture
    center: the middle of that area is shown, else its top left corner
    Returns: 1; 0 for None"""
    return (canvas, dst, texture, margins, filter, alpha, center)


@_export(
    c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, POINTER(RECT), DWORD, BYTE, DWORD, c_float,
    x86="?DrawTextureTile@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KEKM@Z",
    x64="?DrawTextureTile@@YAHPEAUHGCANVAS__@@PEBUtagRECT@@PEAUHGTEXTURE__@@1KEKM@Z",
)
def DrawTextureTile(canvas, dst, texture, slice, filter, alpha, flags, scale):
    """Tiles dst with a slice, from its top left corner. The last tile of a row is cut at the right edge of dst, and the
    rows below it consist of tiles as narrow as that: with full rows below, make dst a multiple of the tile's width.
    flags: TILE_SCALED or 0
    scale: size of a tile in slices, when it is scaled
    Returns: 0, whatever was drawn"""
    return (canvas, dst, texture, slice, filter, alpha, flags, scale)


@_export(
    c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, POINTER(RECT), POINTER(RECT), DWORD, BYTE,
    x86="?DrawTextureTopTile@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KE@Z",
    x64="?DrawTextureTopTile@@YAHPEAUHGCANVAS__@@PEBUtagRECT@@PEAUHGTEXTURE__@@11KE@Z",
)
def DrawTextureTopTile(canvas, dst, texture, slice, margins, filter, alpha):
    """Tiles dst from left to right with a slice of which the top margin is drawn along the top, at its own height, and the
    bottom margin stretched over what is left below.
    margins: heights in texture pixels: top and bottom count
    Returns: 0, whatever was drawn"""
    return (canvas, dst, texture, slice, margins, filter, alpha)


@_export(
    c_int, HGCANVAS, POINTER(RECT), HGTEXTURE, POINTER(RECT), POINTER(RECT), DWORD, c_int, BYTE, DWORD, c_float, c_double,
    x86="?DrawTexture9Grid@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KHEKMN@Z",
    x64="?DrawTexture9Grid@@YAHPEAUHGCANVAS__@@PEBUtagRECT@@PEAUHGTEXTURE__@@11KHEKMN@Z",
)
def DrawTexture9Grid(canvas, dst, texture, slice, margins, filter, centerFill, alpha, edgeFlags, destinationScale, sourceScale):
    """Draws a slice as a frame: corners as large as its margins, edges stretched along dst, the centre stretched or filled.
    margins: texture pixels, measured inward from each edge of the slice; limited to the smaller of
        the two widths and heights
    centerFill: not 0: the centre is filled (as by FillPreMulColorRectEx, with the texture's operation
        word) with the pixel in the middle of the slice's centre, scaled by the opacity
    edgeFlags: margins to be limited once more, see EDGE_LEFT. Without effect
    destinationScale: above 1: margins on dst are that much larger; the record is scaled as a rectangle, so that
        right and bottom may differ by the rounding
    sourceScale: not 1: slice and margins are divided by it, and margins on dst multiplied
    Returns: 1; 0 for None or a bad slice"""
    return (canvas, dst, texture, slice, margins, filter, centerFill, alpha, edgeFlags, destinationScale, sourceScale)


@_export(c_int, HGCANVAS, POINTER(RECT), HGCANVAS, POINTER(RECT), DWORD)
def MixCanvas(dst, dstRect, src, srcRect, value):
    """Cross-fades one canvas into another: each channel becomes (src * (a + 1) + dst * (255 - a)) >> 8, a = 0 changing
    nothing. Rectangles of different sizes are sampled to the nearest pixel. The clip does not apply. Mixed into itself
    at the same size, a canvas counts as a copy.
    dstRect, srcRect: logical pixels, wholly inside their canvases (else nothing happens)
    value: its low byte is the amount a
    Returns: 1; 0 for None"""
    return (dst, dstRect, src, srcRect, value)


@_export(c_int, HGCANVAS, POINTER(RECT), DWORD, DWORD)
def MixCanvasWithColor(canvas, rect, color, value):
    """Cross-fades a rectangle of a canvas into a colour, alpha included. The clip does not apply.
    rect: logical pixels, wholly inside the canvas (else nothing happens)
    color: premultiplied ARGB
    value: its low byte is the amount; 0 changes nothing, 255 replaces
    Returns: 1; 0 for None"""
    return (canvas, rect, color, value)


@_export(c_int, HGCANVAS, POINTER(RECT), HGCANVAS, POINTER(RECT), BYTE)
def BlendCanvas(dst, dstRect, src, srcRect, alpha):
    """Draws one canvas on another. A source with OP_SOURCE_OVER is composed by its alpha. Otherwise, when the
    destination has it or alpha is below 255, the source counts as opaque and is blended by the constant alpha, but for
    draws that are both stretched and clipped; else it is copied, alpha included. Stretching is nearest. When either
    canvas is on a host's device context, GDI does the transfer: AlphaBlend for a source with alpha, else StretchBlt,
    which ignores alpha and obeys the target's stretch mode. Drawn unstretched onto itself, a canvas counts as a copy.
    dstRect, srcRect: logical pixels
    alpha: opacity; without effect on a source with alpha between surfaces
    Returns: 1, or GDI's result; 0 for None"""
    return (dst, dstRect, src, srcRect, alpha)


@_export(c_int, HGCANVAS, c_int, c_int)
def CanvasScroll(canvas, dx, dy):
    """Moves the whole surface dy rows, down when positive; the rows that are uncovered keep their pixels.
    dx: 0
    Returns: 1; 0 for None, dx other than 0, a canvas without a surface, or while its origins differ"""
    return (canvas, dx, dy)


@_export(c_int, HDC, POINTER(RECT), HGCANVAS, POINTER(RECT), BYTE)
def GdiTransCanvas(target, dst, canvas, src, alpha):
    """Brings a canvas to a device context through GDI: AlphaBlend when the canvas has OP_SOURCE_OVER or alpha is
    below 255, else StretchBlt. A reduced picture wants SetStretchBltMode(target, COLORONCOLOR) or HALFTONE before.
    target: device context of a window, a printer or a bitmap
    dst: logical units of the target
    src: logical pixels of the canvas
    Returns: GDI's result; 0 for None"""
    return (target, dst, canvas, src, alpha)


@_export(c_int, HGCANVAS, c_int, c_int, HGBITMAP, POINTER(RECT), DWORD)
def DrawModulation(canvas, x, y, bitmap, src, color):
    """Draws a bitmap at its own size in a colour. With an opaque colour the bitmap is a light map: its brightness tints
    what is there. Otherwise it is multiplied by the colour and drawn over.
    x, y: logical position of the top left corner
    bitmap: 8, 24 or 32 bits per pixel
    src: bitmap pixels; None means all of it
    color: premultiplied ARGB
    Returns: 1; 0 for None"""
    return (canvas, x, y, bitmap, src, color)


@_export(c_int, HGCANVAS, DWORD, POINTER(RECT))
def FillSolidRect(canvas, color, rect):
    """FillSolidRectEx with OP_SOURCE_OVER. A colour of alpha 0 returns 1 even without a canvas."""
    return (canvas, color, rect)


@_export(c_int, HGCANVAS, DWORD, POINTER(RECT), DWORD)
def FillSolidRectEx(canvas, color, rect, mode):
    """Fills a rectangle with a colour.
    color: straight ARGB; premultiplied here as (channel * (alpha + 1)) >> 8
    rect: logical pixels; clipped
    mode: an operation word, see OP_COPY; its low 24 bits are ignored, unknown operations are SOURCE_OVER
    Returns: 1, even if nothing was visible; 0 for None"""
    return (canvas, color, rect, mode)


@_export(c_int, HGCANVAS, DWORD, POINTER(RECT), DWORD)
def FillPreMulColorRectEx(canvas, color, rect, mode):
    """FillSolidRectEx with a colour that is premultiplied already."""
    return (canvas, color, rect, mode)


@_export(c_int, HGCANVAS, POINTER(RECT), DWORD)
def FillRectangleEx(canvas, rect, color):
    """Fills a rectangle through the vector backend: by the canvas's blend mode, blend value and smoothing.
    rect: logical pixels
    color: straight ARGB
    Returns: 1; 0 for None or a canvas without a surface"""
    return (canvas, rect, color)


@_export(c_int, HGCANVAS, POINTER(RECT), POINTER(POINT), DWORD)
def FillRoundRectEx(canvas, rect, corner, color):
    """FillRectangleEx with rounded corners. corner: x and y radius in pixels"""
    return (canvas, rect, corner, color)


@_export(c_int, HGCANVAS, DWORD, DWORD, POINTER(RECT), DWORD)
def FillGradualRect(canvas, colorFrom, colorTo, rect, direction):
    """Fills a rectangle with a gradient between two colours.
    colorFrom, colorTo: straight ARGB; when they are equal once premultiplied, this is FillSolidRect
    rect: logical pixels
    direction: see GRADUAL_TOP_TO_BOTTOM; any other value is FillSolidRect with colorFrom
    Returns: 1; 0 for None"""
    return (canvas, colorFrom, colorTo, rect, direction)


@_export(c_int, HGCANVAS, c_float, c_float)
def DrawPoint(canvas, x, y):
    """Paints the pixel square at (x, y) with the colour, whatever the draw style."""
    return (canvas, x, y)


@_export(c_int, HGCANVAS, c_float, c_float, c_float, c_float)
def DrawLine(canvas, x1, y1, x2, y2):
    """Strokes a line, whatever the draw style."""
    return (canvas, x1, y1, x2, y2)


@_export(c_int, HGCANVAS, c_float, c_float, c_float, c_float)
def DrawRectangle(canvas, x, y, width, height):
    """Draws a rectangle."""
    return (canvas, x, y, width, height)


@_export(c_int, HGCANVAS, POINTER(RECT), c_float, c_float)
def DrawRoundRect(canvas, rect, rx, ry):
    """Draws a rectangle with rounded corners of radii rx and ry, which are limited to half the
    width and height."""
    return (canvas, rect, rx, ry)


@_export(c_int, HGCANVAS, c_float, c_float, c_float)
def DrawCircle(canvas, cx, cy, radius):
    """Draws a circle."""
    return (canvas, cx, cy, radius)


@_export(c_int, HGCANVAS, c_float, c_float, c_float, c_float)
def DrawEllipse(canvas, x, y, width, height):
    """Draws the ellipse inscribed in a box."""
    return (canvas, x, y, width, height)


@_export(c_int, HGCANVAS, c_uint, POINTER(POINT))
def DrawPolygon(canvas, count, points):
    """Draws a closed polygon.
    points: count points in logical pixels; the first is read even when count is 0"""
    return (canvas, count, points)


@_export(c_int, HGCANVAS, POINTER(POINT), POINTER(POINT), POINTER(POINT), POINTER(POINT))
def DrawBezier(canvas, p0, p1, p2, p3):
    """Draws a cubic Bezier curve from p0 to p3, open, with the control points p1 and p2."""
    return (canvas, p0, p1, p2, p3)


@_export(c_int, HGCANVAS, DWORD, POINTER(RECT))
def DrawColor(canvas, color, rect):
    """Fills a rectangle with a colour (straight ARGB) by the blend mode and value, whatever colour
    and style are set."""
    return (canvas, color, rect)


@_export(c_int, HGCANVAS, HGPATH)
def DrawPath(canvas, path):
    """Draws a path."""
    return (canvas, path)


@_export(None, HGCANVAS)
def Save(canvas):
    """Saves the style, for the matching Restore."""
    return (canvas,)


@_export(None, HGCANVAS)
def Restore(canvas):
    """Goes back to the style of the latest Save."""
    return (canvas,)


@_export(None, HGCANVAS, c_int)
def SetDrawStyle(canvas, style):
    """One of DRAW_FILL..GRADIENT. At first FILL."""
    return (canvas, style)


@_export(None, HGCANVAS, DWORD)
def SetColor(canvas, color):
    """Colour of fills and strokes, straight ARGB. At first 0xFF000000."""
    return (canvas, color)


@_export(None, HGCANVAS, c_int)
def SetSmooth(canvas, smooth):
    """0 turns anti-aliasing off. At first on."""
    return (canvas, smooth)


@_export(None, HGCANVAS, c_int)
def SetBlendMode(canvas, mode):
    """How shapes meet the pixels, see BLEND_SOURCE_OVER, which is set at first. Other values change
    nothing."""
    return (canvas, mode)


@_export(c_int, HGCANVAS)
def GetBlendMode(canvas):
    """Returns: the blend mode; -1 for None or a canvas without a surface"""
    return (canvas,)


@_export(None, HGCANVAS, c_int)
def SetBlendValue(canvas, value):
    """Opacity 0..255 of every shape. At first 255."""
    return (canvas, value)


@_export(c_int, HGCANVAS)
def GetBlendValue(canvas):
    """Returns: the opacity; 255 for None or a canvas without a surface"""
    return (canvas,)


@_export(None, HGCANVAS, c_int)
def SetStrokeCap(canvas, cap):
    """How strokes end, see CAP_BUTT, which is set at first."""
    return (canvas, cap)


@_export(None, HGCANVAS, c_int)
def SetStrokeJoin(canvas, join):
    """How strokes turn corners, see JOIN_MITER, which is set at first."""
    return (canvas, join)


@_export(None, HGCANVAS, HGGRADIENT)
def SetGradient(canvas, gradient):
    """The gradient of DRAW_GRADIENT; None means none. The canvas keeps what it needs: it may be
    destroyed at once."""
    return (canvas, gradient)


@_export(None, HGCANVAS, c_float)
def SetStrokeWidth(canvas, width):
    """Width of strokes in pixels, above 0; other values change nothing. At first 1."""
    return (canvas, width)


@_export(c_float, HGCANVAS)
def GetStrokeWidth(canvas):
    """Returns: the width of strokes; 1 for None or a canvas without a surface"""
    return (canvas,)


@_export(None, HGCANVAS, BYTE)
def SetDashStyle(canvas, style):
    """Dashes, see DASH_SOLID, which is set at first. The later of a dash style and a dash pattern
    counts."""
    return (canvas, style)


@_export(None, HGCANVAS, POINTER(c_float), BYTE)
def SetDashPattern(canvas, pattern, count):
    """Dashes of the host's own.
    pattern: count lengths in pixels, on and off by turns; None or 0 of them is solid. A pattern with a negative
        length, or of zeros only, changes nothing"""
    return (canvas, pattern, count)


@_export(HGPATH)
def PathCreate():
    """Returns: an empty path to be ended with PathDestroy; None when memory is short"""
    return ()


@_export(None, HGPATH)
def PathDestroy(path):
    """Ends a path. None is ignored."""
    return (path,)


@_export(c_int, HGPATH)
def PathBegin(path):
    """Starts a new figure: what was built stays, the current point is forgotten."""
    return (path,)


@_export(c_int, HGPATH)
def PathClose(path):
    """Closes the current figure."""
    return (path,)


@_export(c_int, HGPATH, c_float, c_float)
def PathMoveTo(path, x, y):
    """Starts a new figure at a point."""
    return (path, x, y)


@_export(c_int, HGPATH, c_float, c_float)
def PathLineTo(path, x, y):
    """Adds a line. Like the curves it starts a figure where there is no current point."""
    return (path, x, y)


@_export(c_int, HGPATH, c_float, c_float, c_float, c_float, c_float)
def PathArcTo(path, x1, y1, x2, y2, radius):
    """Adds a line to, and the arc of a circle that touches, the lines from the current point to (x1, y1) and from there to
    (x2, y2)."""
    return (path, x1, y1, x2, y2, radius)


@_export(c_int, HGPATH, c_float, c_float, c_float, c_float, c_float, c_float)
def PathBezierCurveTo(path, c1x, c1y, c2x, c2y, x, y):
    """Adds a cubic Bezier curve with the control points c1 and c2."""
    return (path, c1x, c1y, c2x, c2y, x, y)


@_export(c_int, HGPATH, c_float, c_float, c_float, c_float)
def PathQuadraticCurveTo(path, cx, cy, x, y):
    """Adds a quadratic Bezier curve with the control point c."""
    return (path, cx, cy, x, y)


@_export(c_int, HGPATH, c_float, c_float, c_float, c_float, c_float, c_int)
def PathAddArc(path, cx, cy, radius, startAngle, endAngle, anticlockwise):
    """Adds the arc of a circle, joined to the current point by a line.
    startAngle, endAngle: radians from the positive x axis, y down
    anticlockwise: 0: by growing angles"""
    return (path, cx, cy, radius, startAngle, endAngle, anticlockwise)


@_export(c_int, HGPATH, c_float, c_float, c_float, c_float)
def PathAddRectangle(path, x, y, width, height):
    """Adds a closed rectangle."""
    return (path, x, y, width, height)


@_export(c_int, HGPATH, c_float, c_float, c_float)
def PathAddCircle(path, cx, cy, radius):
    """Adds a circle."""
    return (path, cx, cy, radius)


@_export(c_int, HGPATH, c_float, c_float, c_float, c_float)
def PathAddEllipse(path, x, y, width, height):
    """Adds the ellipse inscribed in a box."""
    return (path, x, y, width, height)


@_export(c_int, HGPATH, POINTER(PathBounds))
def PathGetBounds(path, bounds):
    """Writes the exact extent of the outline, without a stroke's width; zeros for an empty path.
    Returns: 1; 0 for None"""
    return (path, bounds)


@_export(HGGRADIENT, c_float, c_float, c_float, c_float)
def GradientCreateLinear(x1, y1, x2, y2):
    """A gradient along the line from (x1, y1), offset 0, to (x2, y2), offset 1. Colours beyond the ends repeat.
    Returns: a gradient to be ended with GradientDestroy; None for numbers that are not finite or when memory is short"""
    return (x1, y1, x2, y2)


@_export(HGGRADIENT, c_float, c_float, c_float, c_float, c_float, c_float)
def GradientCreateRadial(x0, y0, r0, x1, y1, r1):
    """A gradient over the family of circles from the first, offset 0, to the second, offset 1."""
    return (x0, y0, r0, x1, y1, r1)


@_export(c_int, HGGRADIENT, c_float, DWORD)
def GradientAddColorStop(gradient, offset, color):
    """Adds a colour (straight ARGB) at an offset, which is clamped to 0..1."""
    return (gradient, offset, color)


@_export(None, HGGRADIENT)
def GradientDestroy(gradient):
    """Ends a gradient. None is ignored."""
    return (gradient,)


@_export(c_int, HGCANVAS, POINTER(RECT), HPEN, HBRUSH)
def GeoRectangle(canvas, rect, pen, brush):
    """Outlines a rectangle. On a canvas with OP_SOURCE_OVER the library draws one opaque pixel in the pen's colour,
    so that alpha survives; otherwise GDI draws with pen and brush. It gets edges outside the clip
    nearer than they are, by whole periods of the pen's dashes.
    rect: logical pixels
    pen: None means black
    brush: None leaves the inside as it is
    Returns: 1; 0 for None"""
    return (canvas, rect, pen, brush)


@_export(c_int, HGCANVAS, POINTER(RECT), DWORD, c_int)
def GeoRectangleEx(canvas, rect, color, width):
    """Strokes a rectangle, not smoothed; the stroke's middle runs through the last pixels inside.
    color: straight ARGB
    width: pixels
    Returns: 1; 0 for None or a canvas without a surface"""
    return (canvas, rect, color, width)


@_export(c_int, HGCANVAS, POINTER(RECT), POINTER(POINT), HPEN)
def GeoRoundRect(canvas, rect, corner, pen):
    """Draws a rectangle with rounded corners in a GDI pen's colour (opaque), width and dashes.
    corner: x and y radius in pixels
    pen: None leaves the canvas's style as it is
    Returns: 1; 0 for None or a canvas without a surface"""
    return (canvas, rect, corner, pen)


@_export(c_int, HGCANVAS, POINTER(RECT), POINTER(POINT), DWORD, c_int)
def GeoRoundRectEx(canvas, rect, corner, color, width):
    """Strokes a rectangle with rounded corners, smoothed. corner: x and y radius in pixels"""
    return (canvas, rect, corner, color, width)


@_export(c_int, HGCANVAS, POINTER(RECT), DWORD)
def GeoRectFocusEx(canvas, rect, color):
    """Draws a dotted frame: every other pixel of each side. GDI draws opaque colours on canvases without alpha.
    color: straight ARGB
    Returns: 1, or 0 when the pixels cannot be reached; 0 for None"""
    return (canvas, rect, color)


@_export(DWORD, DWORD)
def ARGBtoAHSL(argb):
    """Converts a colour to hue, saturation and lightness, in integers.
    argb: 0xAARRGGBB
    Returns: 0xAAHHSSLL, each 0..255: hue goes round the circle (0 red, 85 green, 170 blue; 170 for greys), alpha stays"""
    return (argb,)


@_export(DWORD, DWORD)
def AHSLtoARGB(ahsl):
    """Converts it back, in single precision and truncated: a round trip may change a colour a
    little."""
    return (ahsl,)


@_export(HSLTriple, RGBTriple)
def RGBtoHSL(rgb):
    """The same without alpha."""
    return (rgb,)


@_export(RGBTriple, HSLTriple)
def HSLtoRGB(hsl):
    """The same without alpha."""
    return (hsl,)


@_export(DWORD, DWORD, c_float, c_float, c_float)
def ARGBColorize(argb, hue, saturation, lightness):
    """Turns the hue and scales the saturation and lightness of a colour, by way of AHSL. Amounts are meant for -1..1 and
    not checked; larger ones wrap modulo 256. Three amounts of 0 return the colour bit for bit; with any other, a colour
    that was grey becomes very slightly coloured, because the saturation is kept at 1 or more.
    hue: 1 is half the circle
    saturation: 1 the strongest colour, -1 nearly grey
    lightness: 1 white, -1 black
    Returns: the changed colour with its alpha"""
    return (argb, hue, saturation, lightness)


@_export(RGBTriple, RGBTriple, c_float, c_float, c_float)
def RGBColorize(rgb, hue, saturation, lightness):
    """The same for the other forms of a colour."""
    return (rgb, hue, saturation, lightness)


@_export(DWORD, DWORD, c_float, c_float, c_float)
def AHSLColorize(ahsl, hue, saturation, lightness):
    """The same for the other forms of a colour."""
    return (ahsl, hue, saturation, lightness)


@_export(HSLTriple, HSLTriple, c_float, c_float, c_float)
def HSLColorize(hsl, hue, saturation, lightness):
    """The same for the other forms of a colour."""
    return (hsl, hue, saturation, lightness)


@_export(c_int, HGBITMAP)
def GrayBitmap(bitmap):
    """Makes a surface grey: blue, green and red become (blue + 2 * green + red) >> 2. 8, 24 and 32
    bits."""
    return (bitmap,)


@_export(c_int, HGTEXTURE)
def GrayTexture(texture):
    """GrayBitmap that tells the resource manager of the change."""
    return (texture,)


@_export(c_int, HGBITMAP)
def InvertBitmap(bitmap):
    """Inverts premultiplied colour within its alpha: a channel becomes alpha - channel, modulo 256.
    32 bits."""
    return (bitmap,)


@_export(c_int, HGBITMAP)
def NormalizeBitmap(bitmap):
    """Premultiplies straight colour: a channel becomes (channel * (alpha + 1)) >> 8. 32 bits, and 8 with the fourth byte
    of the palette's entries as alpha."""
    return (bitmap,)


@_export(c_int, POINTER(BitmapLockInfo))
def NormalizeBitmap2(image):
    """NormalizeBitmap for an image that the caller has locked or describes. Returns: 1; 0 for
    None"""
    return (image,)


@_export(c_int, HGBITMAP, c_int)
def ShuffleBitmap(bitmap, mode):
    """ShuffleBitmapEx on the whole surface."""
    return (bitmap, mode)


@_export(c_int, HGBITMAP, POINTER(RECT), c_int)
def ShuffleBitmapEx(bitmap, area, mode):
    """Moves values between the channels of an area. 32 bits.
    area: surface pixels, not empty and inside the surface; None means all of it
    mode: see SHUFFLE_ALPHA_TO_GRAY; others change nothing
    Returns: 1; 0 for None or an area that is not inside"""
    return (bitmap, area, mode)


@_export(c_int, HGTEXTURE, DWORD, DWORD)
def TranslateTexture(texture, from_, to):
    """Replaces one exact colour by another: all four bytes of a pixel or palette entry, the low
    three with 24 bits."""
    return (texture, from_, to)


@_export(c_int, HGTEXTURE, c_float, c_float, c_float)
def ColorizeTexture(texture, hue, saturation, lightness):
    """ARGBColorize of every pixel or palette entry as it is stored, and a word to the resource manager. 8, 24, 32 bits.
    Premultiplied colour may become brighter than its alpha: where alpha counts, colorize straight colour and then call
    NormalizeBitmap.
    Returns: 1, also for None when the three amounts are 0; otherwise 0 for None and for what cannot be locked"""
    return (texture, hue, saturation, lightness)


@_export(c_int, HGBITMAP, HGBITMAP)
def BlurBitmap(dst, src):
    """Blurs all of one 32-bit surface into another: each channel becomes the mean of 3 x 3 pixels, truncated, edge pixels
    repeated. A larger destination keeps what lies outside the source's size; a smaller one shows the source's last
    column and row in its own.
    dst, src: may be the same bitmap
    Returns: 1, whatever could be locked; 0 for None"""
    return (dst, src)


@_export(c_int, HGBITMAP)
def LightBitmap(bitmap):
    """Turns a 32-bit surface into a soft white glow in the shape of what is not transparent.
    Returns: 1; 0 for None"""
    return (bitmap,)


@_export(c_int, HGTEXTURE)
def LightTexture(texture):
    """Turns a 32-bit surface into a soft white glow in the shape of what is not transparent.
    Returns: 1; 0 for None"""
    return (texture,)


@_export(c_int, HGBITMAP)
def DarkBitmap(bitmap):
    """Softens a 32-bit surface by four blurs, as for a shadow. Returns: 1; 0 for None"""
    return (bitmap,)


@_export(c_int, HGTEXTURE)
def InvertTexture(texture):
    """Another name of InvertBitmap."""
    return (texture,)


@_export(c_int, HGTEXTURE)
def NormalizeTexture(texture):
    """Another name of NormalizeBitmap."""
    return (texture,)


@_export(c_int, HGTEXTURE, c_int)
def ShuffleTexture(texture, mode):
    """Another name of ShuffleBitmap."""
    return (texture, mode)


@_export(c_int, HGTEXTURE, POINTER(RECT), c_int)
def ShuffleTextureEx(texture, area, mode):
    """Another name of ShuffleBitmapEx."""
    return (texture, area, mode)


@_export(c_int, HGTEXTURE, HGTEXTURE)
def BlurTexture(dst, src):
    """Another name of BlurBitmap."""
    return (dst, src)


@_export(HRGN, HGTEXTURE, POINTER(RECT))
def CreateTextureRgn(texture, area):
    """Makes a GDI region of all pixels that are not 0x00000000, to shape a window or to clip by. While the top byte of the
    operation word is 0 (OP_COPY) alpha does not count, and the region is the whole area.
    texture: 8 (palette), 24 (always the whole area) or 32 bits; a bitmap will do
    area: surface pixels, inside the surface; None means all of it. Its corner is the region's origin
    Returns: a region that is the caller's to delete; None for None, an area that is not inside, another depth, or
        when memory is short. When memory runs short halfway, the region has the parts that could be made"""
    return (texture, area)


@_export(c_int, POINTER(BITMAP), POINTER(BITMAP), POINTER(RECT))
def CopyBitmap_IPP(src, dst, area):
    """Copies pixels. Nothing is stretched, and destinations of other depths get the source's bytes.
    src: 24 or 32 bits per pixel
    dst: may overlap src if the row steps are the same. A record with width and height 0 states bits, row step
        and depth only: its memory must be large enough
    area: which rows of both images, top to bottom, and how many pixels of each, right - left; they start
        bmBitsPixel * left / 4 bytes into the row, which is column 2 * left: pass left 0 where the place
        matters. None: as many as src has, from the first pixels on
    Returns: 0 also for other depths and when right or bottom lies outside src"""
    return (src, dst, area)


@_export(c_int, POINTER(BITMAP), c_int)
def Mirror(image, axis):
    """Mirrors an image of four bytes per pixel in place.
    axis: see MIRROR_VERTICAL
    Returns: 0 also for another axis"""
    return (image, axis)


@_export(c_int, POINTER(BITMAP), POINTER(BITMAP), c_int)
def MirrorEx(src, dst, axis):
    """Mirror into another image. Returns: 0 also for images of two sizes"""
    return (src, dst, axis)


@_export(c_int, POINTER(BITMAP), POINTER(BITMAP))
def AlphaBlend_IPP(src, dst):
    """Draws a premultiplied image of four bytes per pixel over the first pixels of another one: every byte becomes
    s + d * (255 - alpha of s) / 255, rounded to nearest, at most 255. Drawing on canvases truncates instead.
    dst: gets no more than it has room for; with width and height 0 it is trusted to be as large as src"""
    return (src, dst)


@_export(c_int, POINTER(BITMAP), DWORD, c_int)
def SetColor_IPP(image, color, keepAlpha):
    """Fills an image of four bytes per pixel.
    color: 0xAARRGGBB, stored as it is
    keepAlpha: not 0: every pixel keeps its alpha"""
    return (image, color, keepAlpha)


@_export(c_int, POINTER(BITMAP), POINTER(BITMAP), DWORD)
def ARGBOrBitmap_IPP(src, dst, value):
    """Each pixel of dst becomes the pixel of src OR the value. Four bytes per pixel, and rows without gaps, from bmBits on:
    row steps only tell how much memory there is, and count as the length of a row where they are shorter.
    src, dst: may be the same image
    Returns: 1 for two records of one size, whatever could be written; else 0"""
    return (src, dst, value)


@_export(c_int, POINTER(BITMAP), POINTER(BITMAP), DWORD)
def ARGBAndBitmap_IPP(src, dst, value):
    """The same with AND."""
    return (src, dst, value)


@_export(c_int, c_int, c_int, c_int, c_void_p, WORD, c_int)
def BlurBitmapData(width, height, stride, bits, bitsPixel, box):
    """Blurs an image in place: twice, each channel becomes the mean of the box * box pixels around it, rounded to
    nearest, edge pixels repeated. An even box reaches one pixel further to the left and top. The time does not depend
    on the box.
    stride: bytes from one row to the next; below the length of a row nothing happens
    bitsPixel: 24 or 32; other depths are left alone
    box: 1 changes nothing
    Returns: 1, also when nothing happened, as for None bits, or memory was short; 0 for a width, height or box below 1"""
    return (width, height, stride, bits, bitsPixel, box)
