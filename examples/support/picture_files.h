// Picture files through the Windows Imaging Component. Failures are PictureError with one line for the user. The thread
// has initialized COM.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

#include "zorvic/zorvic.hpp"

std::string Utf8(const std::wstring& text);
std::wstring Utf16(const std::string& text);

struct PictureError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Told how much is done, 0..1, now and then. Its answer false ends the work with PictureCanceled.
using PictureProgress = std::function<bool(double done)>;
struct PictureCanceled {};

// Reads the first frame of a PNG, JPEG, BMP... as 32-bit premultiplied pixels.
zorvic::Bitmap ReadPicture(const std::wstring& file, const PictureProgress& progress = {});
// The same from the bytes of a file; the name is for the message.
zorvic::Bitmap ReadPicture(std::span<const BYTE> bytes, const std::wstring& name, const PictureProgress& progress = {});

// Writes a PNG from top to bottom. Until Finish the file is not complete.
class PngWriter {
public:
    enum class Alpha { none, straight };
    PngWriter(const std::wstring& file, int width, int height, Alpha alpha);
    ~PngWriter();

    // All rows of a 32-bit premultiplied surface as wide as the picture are the next ones. Without alpha its colours are
    // written as they are; else they are divided by their alpha first.
    void WriteRows(zorvic::BitmapRef rows);
    void Finish();

private:
    struct Encoder;
    std::unique_ptr<Encoder> encoder;
};
