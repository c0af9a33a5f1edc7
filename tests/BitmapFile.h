// Picture files that tests write.
#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "testing/Text.h"

/// False when it could not be written.
inline bool WriteBytes(const umbra::testing::TString& path, const std::vector<BYTE>& bytes)
{
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file.good();
}

/// A bitmap file of 24 bits a pixel. `colorAt(x, y)` answers the colours, y from the lowest row up;
/// only `present` of the rows are really there.
template <class ColorAt>
std::vector<BYTE> MakeBitmapFile(int width, int height, ColorAt colorAt, int present)
{
    const int stride = (width * 3 + 3) / 4 * 4;
    BITMAPFILEHEADER file = {};
    BITMAPINFOHEADER info = {};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + static_cast<DWORD>(stride) * height;
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 24;

    const BYTE* parts[] = {reinterpret_cast<const BYTE*>(&file),
                           reinterpret_cast<const BYTE*>(&info)};
    std::vector<BYTE> bytes(parts[0], parts[0] + sizeof(file));
    bytes.insert(bytes.end(), parts[1], parts[1] + sizeof(info));
    for (int y = 0; y < present; ++y) {
        for (int x = 0; x < width; ++x) {
            const COLORREF color = colorAt(x, y);
            bytes.insert(bytes.end(), {GetBValue(color), GetGValue(color), GetRValue(color)});
        }
        bytes.resize(file.bfOffBits + static_cast<size_t>(stride) * (y + 1));
    }
    return bytes;
}
