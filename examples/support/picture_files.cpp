// Decoders and encoders are found by the content of a file, not by its name.
#include "support/picture_files.h"

#include <windows.h>

#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace {

struct Failed {
    HRESULT result;
};
void Check(HRESULT result) {
    if (FAILED(result)) throw Failed{result};
}

// Why a file could not be read or written, in words.
std::string Reason(HRESULT result) {
    switch (static_cast<unsigned>(result)) {
        case static_cast<unsigned>(WINCODEC_ERR_COMPONENTNOTFOUND):
        case static_cast<unsigned>(WINCODEC_ERR_UNKNOWNIMAGEFORMAT):
            return "it is not a picture, or of a kind that this system does not know";
        case static_cast<unsigned>(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND)):
        case static_cast<unsigned>(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND)):
            return "there is no such file or folder";
        case static_cast<unsigned>(E_ACCESSDENIED):
            return "access is denied";
        case static_cast<unsigned>(E_OUTOFMEMORY):
            return "it has more than 32767 pixels on a side, or memory is short";
        default:
            return "it is damaged or incomplete";
    }
}

ComPtr<IWICImagingFactory> Factory() {
    ComPtr<IWICImagingFactory> factory;
    Check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory)));
    return factory;
}

// The codecs want a path with a drive.
std::wstring FullPath(const std::wstring& file) {
    std::wstring full(GetFullPathNameW(file.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(file.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

zorvic::Bitmap Decode(IWICBitmapDecoder& decoder, const PictureProgress& progress) {
    const auto report = [&](double done) {
        if (progress && !progress(done)) throw PictureCanceled{};
    };
    report(0);
    ComPtr<IWICBitmapFrameDecode> frame;
    Check(decoder.GetFrame(0, &frame));
    ComPtr<IWICBitmapSource> premultiplied;
    Check(WICConvertBitmapSource(GUID_WICPixelFormat32bppPBGRA, frame.Get(), &premultiplied));
    UINT width = 0;
    UINT height = 0;
    Check(premultiplied->GetSize(&width, &height));
    zorvic::Bitmap picture = zorvic::Bitmap::Create(static_cast<int>(width), static_cast<int>(height));
    const zorvic::PixelLock pixels = picture.Lock();
    if (!pixels) throw Failed{E_OUTOFMEMORY};

    // In bands of about two megapixels, between which the work can be stopped.
    const int band = std::max(1, (2 << 20) / pixels.Width());
    for (int y = 0; y < pixels.Height(); y += band) {
        const int rows = std::min(band, pixels.Height() - y);
        const WICRect part{0, y, pixels.Width(), rows};
        const auto stride = static_cast<UINT>(pixels.Info().bmWidthBytes);
        BYTE* first = static_cast<BYTE*>(pixels.Info().bmBits) + static_cast<std::size_t>(y) * stride;
        Check(premultiplied->CopyPixels(&part, stride, stride * static_cast<UINT>(rows), first));
        report(double(y + rows) / pixels.Height());
    }
    return picture;
}

[[noreturn]] void ThrowUnreadable(const std::wstring& name, const Failed& failed) {
    throw PictureError("cannot read the picture " + Utf8(name) + ": " + Reason(failed.result));
}

[[noreturn]] void ThrowUnwritable(const std::wstring& name, const Failed& failed) {
    const HRESULT denied = E_ACCESSDENIED;
    const std::string why =
        failed.result == denied ? "access is denied" : "is the folder there, and the disk not full?";
    throw PictureError("cannot write the picture " + Utf8(name) + ": " + why);
}

BYTE Straight(DWORD channel, DWORD alpha) {
    return static_cast<BYTE>(std::min<DWORD>(255, (channel * 255 + alpha / 2) / alpha));
}

}  // namespace

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

std::wstring Utf16(const std::string& text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

zorvic::Bitmap ReadPicture(const std::wstring& file, const PictureProgress& progress) {
    try {
        ComPtr<IWICBitmapDecoder> decoder;
        Check(Factory()->CreateDecoderFromFilename(FullPath(file).c_str(), nullptr, GENERIC_READ,
                                                   WICDecodeMetadataCacheOnDemand, &decoder));
        return Decode(*decoder.Get(), progress);
    } catch (const Failed& failed) {
        ThrowUnreadable(file, failed);
    }
}

zorvic::Bitmap ReadPicture(std::span<const BYTE> bytes, const std::wstring& name, const PictureProgress& progress) {
    try {
        const auto factory = Factory();
        ComPtr<IWICStream> stream;
        Check(factory->CreateStream(&stream));
        // The stream only reads, but its interface does not say so.
        Check(stream->InitializeFromMemory(const_cast<BYTE*>(bytes.data()), static_cast<DWORD>(bytes.size())));
        ComPtr<IWICBitmapDecoder> decoder;
        Check(factory->CreateDecoderFromStream(stream.Get(), nullptr, WICDecodeMetadataCacheOnDemand, &decoder));
        return Decode(*decoder.Get(), progress);
    } catch (const Failed& failed) {
        ThrowUnreadable(name, failed);
    }
}

struct PngWriter::Encoder {
    std::wstring name;
    UINT width = 0;
    UINT bytesPerPixel = 0;
    ComPtr<IWICStream> stream;
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    std::vector<BYTE> rows;
};

PngWriter::PngWriter(const std::wstring& file, int width, int height, Alpha alpha)
    : encoder(std::make_unique<Encoder>()) {
    Encoder& png = *encoder;
    png.name = file;
    png.width = static_cast<UINT>(width);
    png.bytesPerPixel = alpha == Alpha::none ? 3 : 4;
    try {
        const auto factory = Factory();
        Check(factory->CreateStream(&png.stream));
        Check(png.stream->InitializeFromFilename(FullPath(file).c_str(), GENERIC_WRITE));
        Check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &png.encoder));
        Check(png.encoder->Initialize(png.stream.Get(), WICBitmapEncoderNoCache));
        Check(png.encoder->CreateNewFrame(&png.frame, nullptr));
        Check(png.frame->Initialize(nullptr));
        Check(png.frame->SetSize(png.width, static_cast<UINT>(height)));
        WICPixelFormatGUID format = alpha == Alpha::none ? GUID_WICPixelFormat24bppBGR : GUID_WICPixelFormat32bppBGRA;
        Check(png.frame->SetPixelFormat(&format));
    } catch (const Failed& failed) {
        ThrowUnwritable(file, failed);
    }
}

PngWriter::~PngWriter() = default;

void PngWriter::WriteRows(zorvic::BitmapRef surface) {
    Encoder& png = *encoder;
    const zorvic::PixelLock pixels = surface.Lock();
    const UINT stride = png.width * png.bytesPerPixel;
    png.rows.resize(std::size_t{stride} * static_cast<std::size_t>(pixels.Height()));
    BYTE* to = png.rows.data();
    for (int y = 0; y < pixels.Height(); ++y)
        for (const DWORD pixel : pixels.Row(y)) {
            const DWORD alpha = png.bytesPerPixel == 3 ? 255 : pixel >> 24;
            for (int shift = 0; shift < 24; shift += 8)
                *to++ = alpha == 0 ? BYTE{0} : Straight(pixel >> shift & 255, alpha);
            if (png.bytesPerPixel == 4) *to++ = static_cast<BYTE>(alpha);
        }
    try {
        Check(png.frame->WritePixels(static_cast<UINT>(pixels.Height()), stride, static_cast<UINT>(png.rows.size()),
                                     png.rows.data()));
    } catch (const Failed& failed) {
        ThrowUnwritable(png.name, failed);
    }
}

void PngWriter::Finish() {
    Encoder& png = *encoder;
    try {
        Check(png.frame->Commit());
        Check(png.encoder->Commit());
        Check(png.stream->Commit(STGC_DEFAULT));
    } catch (const Failed& failed) {
        ThrowUnwritable(png.name, failed);
    }
}
