#include "tests/robustness/PictureFiles.h"

#include "tests/Folders.h"

#include <fstream>
#include <sstream>
#include <string.h>

namespace {

/// The bytes of one of the toolkit's images.
std::string ReadImage(LPCTSTR name)
{
    std::ifstream file(ImagePath(name).c_str(), std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

template <class Number>
void Put(std::string& bytes, size_t offset, Number number)
{
    if (offset + sizeof(number) <= bytes.size())
        memcpy(&bytes[offset], &number, sizeof(number));
}

template <class Number>
Number Get(const std::string& bytes, size_t offset)
{
    Number number = 0;
    if (offset + sizeof(number) <= bytes.size())
        memcpy(&number, &bytes[offset], sizeof(number));
    return number;
}

template <class Number>
std::string With(std::string bytes, size_t offset, Number number)
{
    Put(bytes, offset, number);
    return bytes;
}

// Where the fields of a bitmap file are.
const size_t offBits = 10;
const size_t headerSize = 14;
const size_t width = 18;
const size_t height = 22;
const size_t bitCount = 28;
const size_t compression = 30;
const size_t imageSize = 34;
const size_t colorsUsed = 46;

/// A bitmap file of 8 by 8 pixels.
std::string MakeBitmapFile(WORD bits, DWORD kind, const std::string& pixels)
{
    const DWORD colors = bits <= 8 ? 1u << bits : 0;
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits =
        static_cast<DWORD>(sizeof(file) + sizeof(BITMAPINFOHEADER) + colors * sizeof(RGBQUAD));
    file.bfSize = file.bfOffBits + static_cast<DWORD>(pixels.size());
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof(header);
    header.biWidth = header.biHeight = 8;
    header.biPlanes = 1;
    header.biBitCount = bits;
    header.biCompression = kind;
    header.biSizeImage = static_cast<DWORD>(pixels.size());

    std::string bytes(reinterpret_cast<const char*>(&file), sizeof(file));
    bytes.append(reinterpret_cast<const char*>(&header), sizeof(header));
    for (DWORD i = 0; i < colors; ++i) {
        const RGBQUAD color = {static_cast<BYTE>(i), static_cast<BYTE>(i * 7),
                               static_cast<BYTE>(255 - i), 0};
        bytes.append(reinterpret_cast<const char*>(&color), sizeof(color));
    }
    return bytes + pixels;
}

/// Bytes by their numbers.
std::string Bytes(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

/// Eight rows of eight pixels, run by run.
std::string RunLengthPixels()
{
    std::string pixels;
    for (int row = 0; row < 8; ++row)
        pixels += Bytes({8, row, 0, 0}); // Eight pixels, end of line.
    return pixels + Bytes({0, 1});       // End of bitmap.
}

/// The good file, ended early.
void AddCuts(std::vector<PictureFile>& files, const PictureFile& good)
{
    for (size_t length = 0; length < good.bytes.size(); length += length < 80 ? 1 : 13)
        files.push_back(
            {good.name + " cut to " + std::to_string(length), good.bytes.substr(0, length)});
}

/// The good GIF with one number changed in each.
void AddBadGifs(std::vector<PictureFile>& files, const std::string& good)
{
    files.push_back({"gif, screen of no width", With<WORD>(good, 6, 0)});
    files.push_back({"gif, screen of no height", With<WORD>(good, 8, 0)});
    files.push_back({"gif, screen one row high", With<WORD>(good, 8, 1)});
    files.push_back({"gif, very wide screen", With<WORD>(good, 6, 65535)});
    files.push_back({"gif, other version", With<BYTE>(good, 4, '1')});
    files.push_back({"gif, colour table where there is none", With<BYTE>(good, 10, 0xF7)});
    files.push_back({"gif, no colour table", With<BYTE>(good, 10, 0)});
    files.push_back({"gif, no end", good.substr(0, good.size() - 1)});
    const size_t image = good.find(Bytes({0x2C, 0, 0, 0, 0}));
    if (image == std::string::npos)
        return;
    files.push_back({"gif, image outside of the screen", With<WORD>(good, image + 1, 60000)});
    files.push_back({"gif, image of no width", With<WORD>(good, image + 5, 0)});
    files.push_back({"gif, image of no height", With<WORD>(good, image + 7, 0)});
    files.push_back({"gif, image wider than the screen", With<WORD>(good, image + 5, 4000)});
    files.push_back({"gif, local colour table", With<BYTE>(good, image + 9, 0x87)});
    for (const int codeSize : {0, 1, 9, 12, 13, 255})
        files.push_back({"gif, code size " + std::to_string(codeSize),
                         With<BYTE>(good, image + 10, static_cast<BYTE>(codeSize))});
    files.push_back({"gif, long block", With<BYTE>(good, image + 11, 255)});
    files.push_back({"gif, empty block", With<BYTE>(good, image + 11, 0)});
    std::string codes = good;
    for (size_t i = image + 12; i < codes.size(); ++i)
        codes[i] = static_cast<char>(0xFF);
    files.push_back({"gif, all codes set", codes});
}

/// The good bitmap with one number of its head changed in each.
void AddBadBitmaps(std::vector<PictureFile>& files, const std::string& good)
{
    for (const LONG size : {0L, -1L, -8L, 1L, 30000L, LONG{INT_MAX}, LONG{INT_MIN}}) {
        files.push_back({"bmp, width " + std::to_string(size), With<LONG>(good, width, size)});
        files.push_back({"bmp, height " + std::to_string(size), With<LONG>(good, height, size)});
    }
    for (const int bits : {0, 2, 3, 15, 16, 31, 32, 64, 65535})
        files.push_back({"bmp, bits " + std::to_string(bits),
                         With<WORD>(good, bitCount, static_cast<WORD>(bits))});
    for (const DWORD kind : {1u, 2u, 3u, 4u, 5u, 99u})
        files.push_back(
            {"bmp, compression " + std::to_string(kind), With<DWORD>(good, compression, kind)});
    for (const DWORD size : {0u, 12u, 16u, 64u, 108u, 124u, 4096u, 0xFFFFFFFFu}) {
        files.push_back(
            {"bmp, header of " + std::to_string(size), With<DWORD>(good, headerSize, size)});
        files.push_back(
            {"bmp, pixels at " + std::to_string(size), With<DWORD>(good, offBits, size)});
        files.push_back(
            {"bmp, image of " + std::to_string(size), With<DWORD>(good, imageSize, size)});
        files.push_back(
            {"bmp, colours " + std::to_string(size), With<DWORD>(good, colorsUsed, size)});
    }
}

/// Bitmaps whose runs lead out of them.
void AddBadRuns(std::vector<PictureFile>& files)
{
    const std::string codes[] = {
        Bytes({255, 1, 255, 1, 255, 1, 0, 1}), // Past the end of each line.
        Bytes({0, 2, 255, 255, 8, 1, 0, 1}),   // A jump out of the picture.
        Bytes({0, 255, 1, 2, 3}),              // Literal pixels that are not there.
        Bytes({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 8, 1}), // Past the last line.
        Bytes({8}),
        "",
    };
    int number = 0;
    for (const std::string& code : codes)
        files.push_back(
            {"bmp, bad runs " + std::to_string(++number), MakeBitmapFile(8, BI_RLE8, code)});
}

/// What is no bitmap at all, and what is nearly one.
void AddOtherFormats(std::vector<PictureFile>& files)
{
    files.push_back({"empty", ""});
    files.push_back({"text", "This is no picture.\r\n"});
    files.push_back({"zeros", std::string(4096, '\0')});
    files.push_back({"ones", std::string(4096, '\xFF')});
    files.push_back({"gif, signature only", "GIF89a"});
    files.push_back({"bmp, signature only", "BM"});
    files.push_back({"jpeg, signature only", Bytes({0xFF, 0xD8, 0xFF, 0xE0})});
    files.push_back({"png, signature only", Bytes({0x89, 'P', 'N', 'G', 13, 10, 26, 10})});
    files.push_back({"icon without images", Bytes({0, 0, 1, 0, 0, 0})});
    files.push_back(
        {"icon with an image that is not there",
         Bytes({0, 0, 1, 0, 1, 0, 16, 16, 0, 0, 1, 0, 8, 0, 0xFF, 0, 0, 0, 22, 0, 0, 0})});
    files.push_back({"cursor without images", Bytes({0, 0, 2, 0, 0, 0})});
    files.push_back(
        {"metafile without records",
         Bytes({0xD7, 0xCD, 0xC6, 0x9A, 0, 0, 0, 0, 0, 0, 9, 0, 9, 0, 96, 0, 0, 0, 0, 0, 0, 0})});
    files.push_back({"enhanced metafile without records", Bytes({1, 0, 0, 0, 88, 0, 0, 0})});
}

/// Whether all that the head of a bitmap file speaks of lies within the file.
bool IsTrueBitmap(const std::string& bytes)
{
    if (bytes.size() < sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER))
        return false;
    const DWORD header = Get<DWORD>(bytes, headerSize);
    const WORD bits = Get<WORD>(bytes, bitCount);
    if (header != sizeof(BITMAPINFOHEADER) || Get<DWORD>(bytes, compression) != BI_RGB)
        return false;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
        return false;
    const unsigned long long used = Get<DWORD>(bytes, colorsUsed);
    const unsigned long long colors = used != 0 ? used : bits <= 8 ? 1ull << bits : 0;
    if (sizeof(BITMAPFILEHEADER) + header + colors * sizeof(RGBQUAD) > bytes.size())
        return false;
    const long long w = Get<LONG>(bytes, width);
    const long long h = Get<LONG>(bytes, height);
    const long long stride = ((w < 0 ? -w : w) * bits + 31) / 32 * 4;
    const long long room =
        static_cast<long long>(bytes.size()) - static_cast<long long>(Get<DWORD>(bytes, offBits));
    return room >= 0 && stride * (h < 0 ? -h : h) <= room;
}

/// The same for an icon: its directory and each image.
bool IsTrueIcon(const std::string& bytes)
{
    const size_t head = 6;
    const size_t entry = 16;
    const size_t count = Get<WORD>(bytes, 4);
    if (head + count * entry > bytes.size())
        return false;
    for (size_t i = 0; i < count; ++i) {
        const size_t size = Get<DWORD>(bytes, head + i * entry + 8);
        const size_t offset = Get<DWORD>(bytes, head + i * entry + 12);
        if (offset + size > bytes.size())
            return false;
    }
    return true;
}

/// Whether the sizes that the file claims are such that any machine can hold them.
bool IsOfReasonableSize(const std::string& bytes)
{
    const long long mostPixels = 4000000;
    if (bytes.compare(0, 2, "GI") == 0)
        return 1LL * Get<WORD>(bytes, 6) * Get<WORD>(bytes, 8) <= mostPixels;
    if (bytes.compare(0, 2, "BM") == 0) {
        const long long w = Get<LONG>(bytes, width);
        const long long h = Get<LONG>(bytes, height);
        return (w < 0 ? -w : w) <= mostPixels && (h < 0 ? -h : h) <= mostPixels &&
               (w * h < 0 ? -w * h : w * h) <= mostPixels;
    }
    return true;
}

/// A few bytes changed, cut or put in, mostly at the head.
std::string Damage(std::string bytes, Dice& dice)
{
    for (int changes = dice.Between(1, 6); changes > 0 && !bytes.empty(); --changes) {
        // Mostly in the head, where the sizes and tables are.
        const int reach =
            static_cast<int>(dice.Percent(60) ? min(bytes.size(), size_t{64}) : bytes.size());
        const size_t at = static_cast<size_t>(dice.Below(reach));
        switch (dice.Below(10)) {
        case 0:
            bytes.resize(at);
            break;
        case 1:
            bytes.erase(at, static_cast<size_t>(dice.Between(1, 8)));
            break;
        case 2:
            bytes.insert(at, bytes.substr(at, static_cast<size_t>(dice.Between(1, 16))));
            break;
        case 3:
            bytes.insert(at, static_cast<size_t>(dice.Between(1, 8)), '\0');
            break;
        case 4:
            bytes[at] = static_cast<char>(dice.Percent(50) ? 0xFF : 0);
            break;
        case 5:
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << dice.Below(8)));
            break;
        default:
            bytes[at] = static_cast<char>(dice.Below(256));
        }
    }
    return bytes;
}

} // namespace

std::vector<PictureFile> GoodPictures()
{
    return {
        {"Ok.gif", ReadImage(_T("Ok.gif"))},
        {"Error.gif", ReadImage(_T("Error.gif"))},
        {"InfoIcon1.gif", ReadImage(_T("InfoIcon1.gif"))},
        {"1-bit bmp", MakeBitmapFile(1, BI_RGB, std::string(8 * 4, '\x55'))},
        {"4-bit bmp", MakeBitmapFile(4, BI_RGB, std::string(8 * 4, '\x37'))},
        {"8-bit bmp", MakeBitmapFile(8, BI_RGB, std::string(8 * 8, '\x09'))},
        {"8-bit bmp in runs", MakeBitmapFile(8, BI_RLE8, RunLengthPixels())},
        {"24-bit bmp", MakeBitmapFile(24, BI_RGB, std::string(8 * 24, '\x66'))},
        {"32-bit bmp", MakeBitmapFile(32, BI_RGB, std::string(8 * 32, '\xAA'))},
    };
}

std::vector<PictureFile> BadPictures()
{
    const std::vector<PictureFile> good = GoodPictures();
    std::vector<PictureFile> files;
    AddOtherFormats(files);
    AddCuts(files, good.front());
    AddCuts(files, good.back());
    AddBadGifs(files, good.front().bytes);
    AddBadBitmaps(files, MakeBitmapFile(24, BI_RGB, std::string(8 * 24, '\x66')));
    AddBadBitmaps(files, MakeBitmapFile(8, BI_RGB, std::string(8 * 8, '\x09')));
    AddBadRuns(files);
    return files;
}

bool IsSafeForSystem(const std::string& bytes)
{
    static const bool isWine =
        ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
    if (!isWine)
        return true;
    if (bytes.compare(0, 2, "BM") == 0)
        return IsTrueBitmap(bytes);
    if (bytes.compare(0, 2, "GI") == 0) // All that Wine looks at.
        return Get<WORD>(bytes, 6) != 0 && Get<WORD>(bytes, 8) != 0;
    const bool isIcon = bytes.size() >= 2 && bytes[0] == 0 && bytes[1] == 0;
    return !isIcon || IsTrueIcon(bytes);
}

PictureFile Mutate(const std::vector<PictureFile>& good, Dice& dice)
{
    for (;;) {
        const PictureFile& origin =
            good[static_cast<size_t>(dice.Below(static_cast<int>(good.size())))];
        PictureFile mutation = {origin.name + ", damaged", Damage(origin.bytes, dice)};
        if (IsOfReasonableSize(mutation.bytes) && IsSafeForSystem(mutation.bytes))
            return mutation;
    }
}
