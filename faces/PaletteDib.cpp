#include "faces/PaletteDib.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

WORD NormalizeBitCount(int bitCount)
{
    if (bitCount <= 1)
        return 1;
    if (bitCount <= 4)
        return 4;
    return bitCount <= 8 ? 8 : 24;
}

WORD CountPalette(WORD bitCount)
{
    return bitCount <= 8 ? static_cast<WORD>(1 << bitCount) : 0;
}

// Channels that are blended at a time: those of two colours, so that they fill a vector of 16-bit
// numbers. Every colour table has an even number of colours.
constexpr int lanes = 8;

struct BlendTerms
{
    std::uint16_t keep[lanes]; // percent of the old channel
    std::uint16_t add[lanes];  // percent times the new one
};

BlendTerms TermsOf(COLORREF color, UINT percent)
{
    const UINT rest = 100 - percent;
    BlendTerms terms;
    for (int i = 0; i < lanes; i += 4) {
        const UINT keep[4] = {rest, rest, rest, 100};
        const UINT add[4] = {GetBValue(color) * percent, GetGValue(color) * percent,
                             GetRValue(color) * percent, 0};
        for (int channel = 0; channel < 4; ++channel) {
            terms.keep[i + channel] = static_cast<std::uint16_t>(keep[channel]);
            terms.add[i + channel] = static_cast<std::uint16_t>(add[channel]);
        }
    }
    return terms;
}

} // namespace

PaletteDib::~PaletteDib()
{
    Destroy();
}

BYTE* PaletteDib::Create(int width, int height, int bitCount)
{
    const WORD bits = NormalizeBitCount(bitCount);
    const WORD paletteCount = CountPalette(bits);
    const std::int64_t stride = (std::int64_t{bits} * width + 31) / 32 * 4;

    // Sizes stay within 31 bits: GDI counts the image's bytes in 32 bits, and rows are reached
    // with int arithmetic. A stride that fits makes the product safe in 64 bits.
    const std::int64_t tableEnd = sizeof(BITMAPINFOHEADER) + paletteCount * sizeof(RGBQUAD);
    if (width < 0 || height < 0 || stride > INT32_MAX || tableEnd + stride * height > INT32_MAX) {
        Destroy();
        return nullptr;
    }

    const bool sameSize = m_bits != nullptr && m_header.biWidth == width &&
                          m_header.biHeight == height && m_header.biBitCount == bits;
    if (!sameSize) {
        Destroy();
        m_bits =
            static_cast<BYTE*>(std::malloc(static_cast<std::size_t>(tableEnd + stride * height)));
        if (m_bits == nullptr)
            return nullptr;
    }

    m_header = {};
    m_header.biSize = sizeof(BITMAPINFOHEADER);
    m_header.biWidth = width;
    m_header.biHeight = height;
    m_header.biPlanes = 1;
    m_header.biBitCount = bits;
    m_header.biCompression = BI_RGB;
    m_header.biSizeImage = static_cast<DWORD>(stride * height);
    m_stride = static_cast<int>(stride);
    m_paletteCount = paletteCount;
    std::memcpy(m_bits, &m_header, sizeof(m_header));
    return m_bits;
}

void PaletteDib::Clone(const PaletteDib& source)
{
    if (&source == this)
        return;
    if (!source.IsValid()) {
        Destroy();
        return;
    }
    if (Create(source.GetWidth(), source.GetHeight(), source.m_header.biBitCount) != nullptr)
        std::memcpy(m_bits, source.m_bits, source.GetSize());
}

void PaletteDib::Destroy()
{
    std::free(m_bits);
    m_bits = nullptr;
    m_header = {};
    m_stride = 0;
    m_paletteCount = 0;
}

BYTE* PaletteDib::GetBits() const
{
    if (m_bits == nullptr)
        return nullptr;
    return m_bits + m_header.biSize + m_paletteCount * sizeof(RGBQUAD);
}

DWORD PaletteDib::GetSize() const
{
    return m_header.biSize + m_paletteCount * static_cast<DWORD>(sizeof(RGBQUAD)) +
           m_header.biSizeImage;
}

RGBQUAD* PaletteDib::GetPalette() const
{
    if (m_bits == nullptr || m_paletteCount == 0)
        return nullptr;
    return reinterpret_cast<RGBQUAD*>(m_bits + m_header.biSize);
}

void PaletteDib::SetPaletteIndex(UINT index, BYTE red, BYTE green, BYTE blue)
{
    if (m_bits == nullptr || index >= m_paletteCount)
        return;
    GetPalette()[index] = {blue, green, red, 0};
}

void PaletteDib::SetPixelIndex(int x, int y, BYTE value)
{
    if (m_bits == nullptr || m_header.biBitCount != 8)
        return;
    if (x < 0 || y < 0 || x >= m_header.biWidth || y >= m_header.biHeight)
        return;
    GetBits()[(m_header.biHeight - y - 1) * m_stride + x] = value;
}

void PaletteDib::BlendPalette(COLORREF color, UINT percent)
{
    RGBQUAD* palette = GetPalette();
    if (palette == nullptr)
        return;
    const BlendTerms terms = TermsOf(color, percent > 100 ? 100 : percent);
    BYTE* channels = reinterpret_cast<BYTE*>(palette);
    BYTE* const end = channels + m_paletteCount * sizeof(RGBQUAD);
    for (; channels < end; channels += lanes) {
        for (int i = 0; i < lanes; ++i) {
            const auto sum = static_cast<std::uint16_t>(channels[i] * terms.keep[i] + terms.add[i]);
            channels[i] = static_cast<BYTE>(sum / 100);
        }
    }
}

void PaletteDib::Clear(BYTE value)
{
    if (m_bits != nullptr)
        std::memset(GetBits(), value, m_header.biSizeImage);
}

BOOL PaletteDib::Draw(HDC dc, int x, int y) const
{
    if (m_bits == nullptr || dc == nullptr)
        return FALSE;
    ::SetStretchBltMode(dc, COLORONCOLOR);
    ::SetDIBitsToDevice(dc, x, y, m_header.biWidth, m_header.biHeight, 0, 0, 0, m_header.biHeight,
                        GetBits(), reinterpret_cast<const BITMAPINFO*>(m_bits), DIB_RGB_COLORS);
    return TRUE;
}
