// Takes what a fuzzer made apart into numbers and texts, and stops where a result is wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

/// Ends the run; the fuzzer keeps the input.
#define REQUIRE(condition)                                                                         \
    ((condition) ? void(0) : (std::fprintf(stderr, "wrong: %s\n", #condition), std::abort()))

class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}

    bool IsEmpty() const { return m_next == m_end; }
    unsigned Byte() { return IsEmpty() ? 0 : *m_next++; }
    std::uint32_t Number()
    {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | Byte();
        return number;
    }
    int Between(int least, int most)
    {
        const unsigned count = static_cast<unsigned>(most) - static_cast<unsigned>(least) + 1;
        return static_cast<int>(static_cast<unsigned>(least) + Number() % count);
    }

    /// A text without a 0 in it: some bytes of the input, or many of one byte.
    std::string Text()
    {
        const unsigned form = Byte();
        if (form >= 0xC0) // As long as any buffer.
            return std::string(form == 0xFF ? 70000 : Number() % 600,
                               static_cast<char>('a' + form % 26));
        std::string text;
        for (unsigned i = 0; i < form && !IsEmpty(); ++i) {
            const char c = static_cast<char>(Byte());
            if (c == '\0')
                break;
            text += c;
        }
        return text;
    }

private:
    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};

/// A text in a block of just its size, so that a read past its end is found.
class ExactText
{
public:
    explicit ExactText(const std::string& text) : m_text(new char[text.size() + 1])
    {
        std::memcpy(m_text.get(), text.c_str(), text.size() + 1);
    }
    operator const char*() const { return m_text.get(); }
    operator char*() { return m_text.get(); }

private:
    std::unique_ptr<char[]> m_text;
};
