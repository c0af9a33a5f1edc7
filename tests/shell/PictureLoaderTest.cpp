#include "shell/PictureLoader.h"

#include "tests/BitmapFile.h"
#include "tests/Folders.h"
#include "tests/ForeignFolder.h"
#include "tests/LibraryFiles.h"

#include "testing/CallFault.h"
#include "testing/GdiObjects.h"
#include "testing/ImportHook.h"
#include "testing/Picture.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <ocidl.h>
#include <olectl.h>
#include <stdio.h>
#include <string.h>
#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

/// The bytes of a file; none when it cannot be read.
std::vector<BYTE> ReadFile(const TString& path)
{
    std::vector<BYTE> bytes;
    if (FILE* file = _tfopen(path.c_str(), _T("rb"))) {
        BYTE buffer[4096];
        size_t count;
        while ((count = fread(buffer, 1, sizeof(buffer), file)) > 0)
            bytes.insert(bytes.end(), buffer, buffer + count);
        fclose(file);
    }
    return bytes;
}

/// A bitmap file of one colour.
std::vector<BYTE> MakeBmp(int width, int height, COLORREF color, int present)
{
    return MakeBitmapFile(
        width, height, [=](int, int) { return color; }, present);
}

/// The size of a bitmap in pixels.
CSize SizeOf(HBITMAP bitmap)
{
    BITMAP record = {};
    ::GetObject(bitmap, sizeof(record), &record);
    return CSize(record.bmWidth, record.bmHeight);
}

/// Loads and deletes; tells whether a bitmap came, and that it was a good one.
bool Loads(const TString& path)
{
    const HBITMAP bitmap = LoadPictureBitmap(path.c_str());
    if (bitmap == nullptr)
        return false;
    CHECK(SizeOf(bitmap).cx > 0);
    CHECK(::DeleteObject(bitmap));
    return true;
}

/// The working directory for the length of a scope.
struct InFolder
{
    explicit InFolder(const TString& folder)
    {
        ::GetCurrentDirectory(MAX_PATH, former);
        REQUIRE(::SetCurrentDirectory(folder.c_str()));
    }
    ~InFolder() { ::SetCurrentDirectory(former); }
    TCHAR former[MAX_PATH];
};

} // namespace

TEST_CASE("a GIF by its absolute path comes as a bitmap of its size, owned by the caller")
{
    const HBITMAP bitmap = LoadPictureBitmap(ImagePath(_T("Next.gif")).c_str());
    REQUIRE(bitmap != nullptr);
    CHECK(SizeOf(bitmap) == CSize(19, 19));
    CHECK(::DeleteObject(bitmap));
}

TEST_CASE("an absolute path that loads does not ask for the working directory")
{
    const CountCalls loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath");
    REQUIRE(loads.IsInstalled());
    CHECK(Loads(ImagePath(_T("Next.gif"))));
    CHECK(loads.Calls() == 1);
}

TEST_CASE("a relative path is tried as it is and then below the working directory")
{
    const InFolder folder(ProgramFolder());
    CHECK(Loads(_T("images\\Next.gif")));
    CHECK(Loads(_T("\\images\\InfoIcon1.gif")));
    const CountCalls loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath");
    CHECK_FALSE(Loads(_T("images\\no such file.gif")));
    CHECK(loads.Calls() == 2);
}

TEST_CASE("a joined path longer than 255 characters gives no picture, and no second attempt")
{
    const InFolder folder(ProgramFolder());
    const size_t room = 255 - ProgramFolder().size() - 2;
    const CountCalls loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath");
    CHECK_FALSE(Loads(TString(room, 'x')));
    CHECK(loads.Calls() == 2);
    CHECK_FALSE(Loads(TString(room + 1, 'x')));
    CHECK(loads.Calls() == 3);
}

TEST_CASE("no path, an empty one, a huge one, a folder and a missing file give no picture")
{
    CHECK(LoadPictureBitmap(nullptr) == nullptr);
    CHECK_FALSE(Loads(TString()));
    CHECK_FALSE(Loads(TString(10000, 'p')));
    CHECK_FALSE(Loads(ProgramFolder()));
    CHECK_FALSE(Loads(ProgramFolder() + _T("\\")));
    CHECK_FALSE(Loads(ImagePath(_T("Missing.gif"))));
}

TEST_CASE("a null path does not even try")
{
    const CountCalls loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath");
    CHECK(LoadPictureBitmap(nullptr) == nullptr);
    CHECK(loads.Calls() == 0);
}

TEST_CASE("broken files give no picture or a good one, and never more")
{
    const std::vector<BYTE> whole = ReadFile(ImagePath(_T("Next.gif")));
    REQUIRE(whole.size() > 50);
    const TString path = TemporaryPath(_T("umbra-broken.gif"));
    for (size_t length = 0; length < whole.size(); length += 7) {
        REQUIRE(WriteBytes(path, std::vector<BYTE>(whole.begin(), whole.begin() + length)));
        Loads(path); // Checks what comes.
    }
    const TCHAR text[] = _T("This is no picture, whatever its name says.");
    REQUIRE(WriteBytes(path, std::vector<BYTE>(text, text + sizeof(text))));
    CHECK_FALSE(Loads(path));
    REQUIRE(WriteBytes(path, {}));
    CHECK_FALSE(Loads(path));
    ::DeleteFile(path.c_str());
}

TEST_CASE("a picture of one pixel loads")
{
    const TString path = TemporaryPath(_T("umbra-one.bmp"));
    REQUIRE(WriteBytes(path, MakeBmp(1, 1, RGB(10, 20, 30), 1)));
    const HBITMAP bitmap = LoadPictureBitmap(path.c_str());
    REQUIRE(bitmap != nullptr);
    CHECK(SizeOf(bitmap) == CSize(1, 1));
    CHECK(Picture::OfBitmap(bitmap).At(0, 0) == RGB(10, 20, 30));
    ::DeleteObject(bitmap);
    ::DeleteFile(path.c_str());
}

TEST_CASE("a picture of 10,000 by 10,000 pixels gives no picture or a good one")
{
    const TString path = TemporaryPath(_T("umbra-huge.bmp"));
    REQUIRE(WriteBytes(path, MakeBmp(10000, 10000, RGB(10, 20, 30), 2)));
    const HBITMAP bitmap = LoadPictureBitmap(path.c_str());
    if (bitmap != nullptr) {
        CHECK(SizeOf(bitmap) == CSize(10000, 10000));
        ::DeleteObject(bitmap);
    }
    ::DeleteFile(path.c_str());
}

TEST_CASE("an icon gives no picture")
{
    // One image of 16 x 16 pixels in two colours.
    const BYTE directory[] = {0, 0, 1, 0,   1, 0, 16, 16, 2, 0, 1,
                              0, 1, 0, 176, 0, 0, 0,  22, 0, 0, 0};
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof(info);
    info.biWidth = 16;
    info.biHeight = 32;
    info.biPlanes = 1;
    info.biBitCount = 1;
    const BYTE palette[] = {0, 0, 0, 0, 255, 255, 255, 0};
    std::vector<BYTE> icon(sizeof(directory) + sizeof(info) + sizeof(palette) + 128, 0x55);
    memcpy(icon.data(), directory, sizeof(directory));
    memcpy(icon.data() + sizeof(directory), &info, sizeof(info));
    memcpy(icon.data() + sizeof(directory) + sizeof(info), palette, sizeof(palette));
    const TString path = TemporaryPath(_T("umbra-icon.ico"));
    REQUIRE(WriteBytes(path, icon));
    CHECK_FALSE(Loads(path));
    ::DeleteFile(path.c_str());
}

TEST_CASE("the bitmap outlives the picture object and is no copy in name only")
{
    const TString path = TemporaryPath(_T("umbra-copy.bmp"));
    REQUIRE(WriteBytes(path, MakeBmp(40, 30, RGB(200, 100, 50), 30)));
    std::vector<HBITMAP> bitmaps;
    for (int i = 0; i < 8; ++i) {
        bitmaps.push_back(LoadPictureBitmap(path.c_str()));
        REQUIRE(bitmaps.back() != nullptr);
    }
    ::DeleteFile(path.c_str());
    for (const HBITMAP bitmap : bitmaps) {
        const Picture picture = Picture::OfBitmap(bitmap);
        CHECK(picture.CountOf(RGB(200, 100, 50)) == 40 * 30);
    }
    for (const HBITMAP bitmap : bitmaps)
        CHECK(::DeleteObject(bitmap));
}

TEST_CASE("no road leaves a graphics object behind")
{
    Loads(ImagePath(_T("Next.gif")));
    const BalancedGdi objects;
    for (int i = 0; i < 50; ++i) {
        Loads(ImagePath(_T("Next.gif")));
        Loads(ImagePath(_T("Missing.gif")));
    }
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

TEST_CASE("a failed copy gives no picture and leaves nothing behind")
{
    Loads(ImagePath(_T("Next.gif")));
    const BalancedGdi objects;
    {
        const FailAlways copy(FindModule(UMBRA_DLL), "user32", "CopyImage");
        REQUIRE(copy.IsInstalled());
        CHECK_FALSE(Loads(ImagePath(_T("Next.gif"))));
        CHECK(copy.Failed() > 0);
    }
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

#ifndef UNICODE
TEST_CASE("a path that cannot be converted gives no picture")
{
    const FailAlways conversion(FindModule(UMBRA_DLL), "kernel32", "MultiByteToWideChar");
    REQUIRE(conversion.IsInstalled());
    CHECK_FALSE(Loads(ImagePath(_T("Next.gif"))));
}
#endif

namespace {

/// How often a copy was asked for.
int copies = 0;

/// Answers the picture's own bitmap where that is allowed.
HANDLE WINAPI AnswerSource(HANDLE image, UINT type, int width, int height, UINT flags)
{
    ++copies;
    return flags == LR_COPYRETURNORG ? image : ::CopyImage(image, type, width, height, flags);
}

} // namespace

TEST_CASE("where the copy would be the picture's own bitmap, a real copy is made")
{
    const ImportHook copy(FindModule(UMBRA_DLL), "user32", "CopyImage", AnswerSource);
    REQUIRE(copy.IsInstalled());
    copies = 0;
    const BalancedGdi objects;
    const HBITMAP bitmap = LoadPictureBitmap(ImagePath(_T("Next.gif")).c_str());
    REQUIRE(bitmap != nullptr);
    CHECK(copies == 2);
    CHECK(SizeOf(bitmap) == CSize(19, 19)); // It lives, although the picture's own is deleted.
    CHECK(::DeleteObject(bitmap));
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

namespace {

/// A picture that counts who holds it. It is on the stack, so nobody's Release ends it.
class CountingPicture : public IPicture
{
public:
    explicit CountingPicture(HBITMAP bitmap) : m_bitmap(bitmap) {}
    virtual ~CountingPicture() = default;

    long Holders() const { return m_holders; }
    long HighestCount() const { return m_highest; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override
    {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IPicture);
        *out = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override
    {
        ++m_holders;
        m_highest = max(m_highest, m_holders);
        return static_cast<ULONG>(m_holders);
    }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--m_holders); }

    HRESULT STDMETHODCALLTYPE get_Handle(OLE_HANDLE* handle) override
    {
        *handle = static_cast<OLE_HANDLE>(HandleToLong(m_bitmap));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_Type(SHORT* type) override
    {
        *type = PICTYPE_BITMAP;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE get_hPal(OLE_HANDLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Width(OLE_XSIZE_HIMETRIC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Height(OLE_YSIZE_HIMETRIC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Render(HDC, LONG, LONG, LONG, LONG, OLE_XPOS_HIMETRIC,
                                     OLE_YPOS_HIMETRIC, OLE_XSIZE_HIMETRIC, OLE_YSIZE_HIMETRIC,
                                     LPCRECT) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE set_hPal(OLE_HANDLE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_CurDC(HDC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectPicture(HDC, HDC*, OLE_HANDLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_KeepOriginalFormat(BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_KeepOriginalFormat(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE PictureChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SaveAsFile(LPSTREAM, BOOL, LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Attributes(DWORD*) override { return E_NOTIMPL; }

private:
    HBITMAP m_bitmap;
    long m_holders = 1; // Whoever it is handed to.
    long m_highest = 1;
};

CountingPicture* offered = nullptr; // What the loader hands out.
HRESULT offeredCode = S_OK;

/// Stands in for the system's picture loader.
HRESULT WINAPI OfferPicture(LPOLESTR, LPUNKNOWN, DWORD, OLE_COLOR, REFIID, LPVOID* picture)
{
    *picture = offered;
    return offeredCode;
}

/// A bitmap of 7 by 5 pixels.
HBITMAP MakeBitmap()
{
    return ::CreateBitmap(7, 5, 1, 32, nullptr);
}

} // namespace

TEST_CASE("the loaded picture is released, and its own bitmap with it")
{
    const ImportHook loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath", OfferPicture);
    REQUIRE(loads.IsInstalled());
    // What came back counts, not the code.
    for (const HRESULT code : {S_OK, S_FALSE, E_FAIL}) {
        const HBITMAP own = MakeBitmap();
        CountingPicture picture(own);
        offered = &picture;
        offeredCode = code;
        const HBITMAP bitmap = LoadPictureBitmap(_T("any name"));
        CHECK(SizeOf(bitmap) == CSize(7, 5));
        CHECK(bitmap != own);
        CHECK(picture.Holders() == 0);
        CHECK(picture.HighestCount() >= 1);
        CHECK(::GetObjectType(own) != OBJ_BITMAP);
        ::DeleteObject(bitmap);
    }
}

TEST_CASE("a picture without a bitmap, or whose bitmap cannot be copied, is released as well")
{
    const ImportHook loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath", OfferPicture);
    REQUIRE(loads.IsInstalled());
    offeredCode = S_OK;
    CountingPicture empty(nullptr);
    offered = &empty;
    CHECK(LoadPictureBitmap(_T("any name")) == nullptr);
    CHECK(empty.Holders() == 0);

    const HBITMAP own = MakeBitmap();
    CountingPicture picture(own);
    offered = &picture;
    const FailAlways copy(FindModule(UMBRA_DLL), "user32", "CopyImage");
    REQUIRE(copy.IsInstalled());
    CHECK(LoadPictureBitmap(_T("any name")) == nullptr);
    CHECK(picture.Holders() == 0);
    CHECK(::GetObjectType(own) != OBJ_BITMAP);
}

TEST_CASE("no road leaves a handle of the system behind")
{
    // A new handle takes the first number that is free.
    const auto firstFree = [] {
        const HANDLE event = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
        ::CloseHandle(event);
        return HandleToULong(event);
    };
    const auto load = [] {
        Loads(ImagePath(_T("Next.gif")));
        Loads(ImagePath(_T("Missing.gif")));
    };
    for (int i = 0; i < 5; ++i)
        load();
    const ULONG before = firstFree();
    const int times = 50;
    for (int i = 0; i < times; ++i)
        load();
    const ULONG step = 4; // Between the numbers of two handles.
    CHECK(firstFree() < before + times * step);
}

TEST_CASE("pictures are found under paths beyond ASCII, relative ones too")
{
    const ForeignFolder foreign;
    REQUIRE(foreign.IsThere());
    CHECK(Loads(foreign.ImagePath(_T("Next.gif"))));
    const InFolder folder(foreign.Path());
    CHECK(Loads(_T("images\\Next.gif")));
    CHECK(Loads(_T("\\images\\Next.gif")));
    CHECK_FALSE(Loads(_T("images\\Missing.gif")));
}

#ifndef UNICODE
TEST_CASE("a path is read in the code page of the thread, not in that of the system")
{
    // A Japanese character, and its two bytes in code page 932.
    const TString folder = TemporaryPath(_T(""));
    const TString path = folder + _T("umbra-\x8A\x47.gif");
    const std::wstring wide = std::wstring(folder.begin(), folder.end()) + L"umbra-\x7D75.gif";
    const TString source = ImagePath(_T("Next.gif"));
    REQUIRE(::CopyFileW(std::wstring(source.begin(), source.end()).c_str(), wide.c_str(), FALSE));
    const LCID former = ::GetThreadLocale();
    REQUIRE(::SetThreadLocale(MAKELCID(MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT), SORT_DEFAULT)));
    const HBITMAP bitmap = LoadPictureBitmap(path.c_str());
    ::SetThreadLocale(former);
    CHECK(SizeOf(bitmap) == CSize(19, 19));
    ::DeleteObject(bitmap);
    ::DeleteFileW(wide.c_str());
}
#endif
