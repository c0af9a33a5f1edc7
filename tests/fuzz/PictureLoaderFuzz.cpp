// Paths of pictures and working directories. Built from shell/PictureLoader.cpp, PicturePath.cpp
// and WorkingFolder.cpp.
#include "tests/fuzz/Input.h"

#include "shell/WorkingFolder.h"
#include "shell/PictureLoader.h"
#include "shell/PicturePath.h"

#include <direct.h>
#include <ocidl.h>
#include <olectl.h>

using namespace umbra;

namespace {

Input* input;
std::string folder;    // The working directory.
std::string changedTo; // Where it was moved last.
IPicture thePicture;
int pictures; // Those that were not released.
int loads;
char bitmaps[2]; // Addresses to hand out.

} // namespace

char* _getcwd(char* out, int capacity)
{
    if (folder.size() >= static_cast<std::size_t>(capacity))
        return nullptr;
    return std::strcpy(out, folder.c_str());
}

int _chdir(const char* to)
{
    changedTo = to;
    return 0;
}

int MultiByteToWideChar(UINT, DWORD, const char* text, int length, wchar_t* wide, int capacity)
{
    REQUIRE(length == -1);
    if (input->Byte() == 0x77)
        return 0;
    int count = 0;
    for (; text[count] != '\0'; ++count) {
        REQUIRE(count < capacity);
        wide[count] = static_cast<unsigned char>(text[count]);
    }
    REQUIRE(count < capacity);
    wide[count] = L'\0';
    return count + 1;
}

HRESULT OleLoadPicturePath(wchar_t* path, void*, DWORD, COLORREF, const IID&, void** picture)
{
    ++loads;
    std::size_t length = 0;
    while (path != nullptr && path[length] != L'\0')
        ++length;
    const bool found = input->Byte() % 4 == 0;
    *picture = found ? &thePicture : nullptr;
    pictures += found ? 1 : 0;
    return found ? 0 : -1;
}

HRESULT IPicture::get_Handle(OLE_HANDLE* handle)
{
    if (input->Byte() % 4 != 0)
        *handle = 0x1234;
    return 0;
}

unsigned IPicture::Release()
{
    return static_cast<unsigned>(--pictures);
}

HANDLE CopyImage(HANDLE image, UINT, int, int, UINT flags)
{
    if (flags == LR_COPYRETURNORG && input->Byte() % 2 == 0)
        return image;
    return input->Byte() % 4 == 0 ? nullptr : &bitmaps[0];
}

BOOL DeleteObject(HGDIOBJ object)
{
    REQUIRE(object != &bitmaps[0]); // The copy is the caller's.
    return TRUE;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input made(data, size);
    input = &made;
    pictures = loads = 0;
    folder = "/" + made.Text(); // Never empty.
    const std::string path = made.Text();

    const std::size_t capacity = 1 + made.Number() % 600;
    const std::unique_ptr<char[]> out(new char[capacity]);
    const BOOL joined = JoinPicturePath(ExactText(folder), ExactText(path), out.get(), capacity);
    REQUIRE(joined == (folder.size() + 2 + path.size() < capacity));
    REQUIRE(out.get() == (joined ? folder + "//" + path : std::string()));

    const HBITMAP bitmap = LoadPictureBitmap(ExactText(path));
    REQUIRE(bitmap == nullptr || bitmap == &bitmaps[0]);
    REQUIRE(pictures == 0);
    REQUIRE(loads <= 2);

    changedTo.clear();
    {
        const WorkingFolder moved(ExactText{path});
        REQUIRE(changedTo == (folder.size() <= MAX_PATH ? path : ""));
    }
    REQUIRE(changedTo == (folder.size() <= MAX_PATH ? folder : ""));
    return 0;
}
