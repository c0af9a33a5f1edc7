#include "gallery/PngFile.h"

#include <wincodec.h>

namespace {

// A COM interface that is released with its scope.
template <class Interface>
class ComPtr
{
public:
    ComPtr() = default;
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr()
    {
        if (m_interface != NULL)
            m_interface->Release();
    }

    Interface** operator&() { return &m_interface; }
    Interface* operator->() const { return m_interface; }
    operator Interface*() const { return m_interface; }

private:
    Interface* m_interface = NULL;
};

HRESULT Encode(IWICImagingFactory* factory, const wchar_t* path, HBITMAP bitmap)
{
    ComPtr<IWICBitmap> source;
    HRESULT result = factory->CreateBitmapFromHBITMAP(bitmap, NULL, WICBitmapIgnoreAlpha, &source);
    UINT width = 0;
    UINT height = 0;
    if (SUCCEEDED(result))
        result = source->GetSize(&width, &height);

    ComPtr<IWICStream> stream;
    if (SUCCEEDED(result))
        result = factory->CreateStream(&stream);
    if (SUCCEEDED(result))
        result = stream->InitializeFromFilename(path, GENERIC_WRITE);

    ComPtr<IWICBitmapEncoder> encoder;
    if (SUCCEEDED(result))
        result = factory->CreateEncoder(GUID_ContainerFormatPng, NULL, &encoder);
    if (SUCCEEDED(result))
        result = encoder->Initialize(stream, WICBitmapEncoderNoCache);

    ComPtr<IWICBitmapFrameEncode> frame;
    if (SUCCEEDED(result))
        result = encoder->CreateNewFrame(&frame, NULL);
    if (SUCCEEDED(result))
        result = frame->Initialize(NULL);
    if (SUCCEEDED(result))
        result = frame->SetSize(width, height);
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    if (SUCCEEDED(result))
        result = frame->SetPixelFormat(&format);
    if (SUCCEEDED(result))
        result = frame->WriteSource(source, NULL);
    if (SUCCEEDED(result))
        result = frame->Commit();
    if (SUCCEEDED(result))
        result = encoder->Commit();
    return result;
}

} // namespace

BOOL WritePng(const CString& path, HBITMAP bitmap)
{
    ComPtr<IWICImagingFactory> factory;
    if (FAILED(::CoCreateInstance(CLSID_WICImagingFactory, NULL, CLSCTX_INPROC_SERVER,
                                  __uuidof(IWICImagingFactory),
                                  reinterpret_cast<void**>(&factory))))
        return FALSE;
    wchar_t widePath[MAX_PATH] = L"";
    if (::MultiByteToWideChar(CP_ACP, 0, path, -1, widePath, MAX_PATH) == 0)
        return FALSE;
    return SUCCEEDED(Encode(factory, widePath, bitmap));
}
