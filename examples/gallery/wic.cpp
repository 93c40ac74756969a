// Reading and writing picture files. COM has been initialized by main.
#include "wic.h"

#include <windows.h>

#include <wincodec.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;

namespace {

struct Failed {};
void Check(HRESULT result) {
    if (FAILED(result)) throw Failed{};
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

Bitmap Read(const std::wstring& file) {
    const auto factory = Factory();
    ComPtr<IWICBitmapDecoder> decoder;
    Check(factory->CreateDecoderFromFilename(file.c_str(), nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                             &decoder));
    ComPtr<IWICBitmapFrameDecode> frame;
    Check(decoder->GetFrame(0, &frame));
    ComPtr<IWICBitmapSource> premultiplied;
    Check(WICConvertBitmapSource(GUID_WICPixelFormat32bppPBGRA, frame.Get(), &premultiplied));

    UINT width = 0;
    UINT height = 0;
    Check(premultiplied->GetSize(&width, &height));
    const HGBITMAP bitmap = CreateMemBitmap(static_cast<int>(width), static_cast<int>(height));
    if (!bitmap) throw Failed{};  // more than 32767 pixels on a side, or no memory
    Bitmap picture(bitmap);
    BITMAP locked{};
    LockBitmapBits(picture, &locked, nullptr);
    const auto stride = static_cast<UINT>(locked.bmWidthBytes);
    Check(premultiplied->CopyPixels(nullptr, stride, stride * height, static_cast<BYTE*>(locked.bmBits)));
    UnlockBitmapBits(picture, 0, 1);
    return picture;
}

void Write(HGBITMAP bitmap, const std::wstring& file) {
    const auto factory = Factory();
    BITMAP pixels{};
    LockBitmapBits(bitmap, &pixels, nullptr);
    const auto width = static_cast<UINT>(pixels.bmWidth);
    const auto height = static_cast<UINT>(pixels.bmHeight);
    const auto stride = static_cast<UINT>(pixels.bmWidthBytes);
    ComPtr<IWICBitmap> source;
    Check(factory->CreateBitmapFromMemory(width, height, GUID_WICPixelFormat32bppBGR, stride, stride * height,
                                          static_cast<BYTE*>(pixels.bmBits), &source));
    UnlockBitmapBits(bitmap, 0, 0);
    ComPtr<IWICBitmapSource> opaque;
    Check(WICConvertBitmapSource(GUID_WICPixelFormat24bppBGR, source.Get(), &opaque));

    ComPtr<IWICStream> stream;
    Check(factory->CreateStream(&stream));
    Check(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE));
    ComPtr<IWICBitmapEncoder> encoder;
    Check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder));
    Check(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache));
    ComPtr<IWICBitmapFrameEncode> frame;
    Check(encoder->CreateNewFrame(&frame, nullptr));
    Check(frame->Initialize(nullptr));
    Check(frame->SetSize(width, height));
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    Check(frame->SetPixelFormat(&format));
    Check(frame->WriteSource(opaque.Get(), nullptr));
    Check(frame->Commit());
    Check(encoder->Commit());
    Check(stream->Commit(STGC_DEFAULT));
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

Bitmap ReadPicture(const std::wstring& file) {
    try {
        return Read(FullPath(file));
    } catch (const Failed&) {
        throw std::runtime_error("cannot read the picture " + Utf8(file));
    }
}

void WritePng(HGBITMAP bitmap, const std::wstring& file) {
    try {
        Write(bitmap, FullPath(file));
    } catch (const Failed&) {
        throw std::runtime_error("cannot write the page " + Utf8(file));
    }
}
