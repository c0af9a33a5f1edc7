// The words of the program's command line; the first one is its own name.
#pragma once

#include <classes/Platform.h>

namespace afxint {

#ifdef UNICODE

/// The C library has wide words in programs that begin with wmain only, so the system splits them.
class ProgramArguments
{
public:
    ProgramArguments() : words_(::CommandLineToArgvW(::GetCommandLineW(), &count_)) {}
    ~ProgramArguments() { ::LocalFree(words_); }
    ProgramArguments(const ProgramArguments&) = delete;
    ProgramArguments& operator=(const ProgramArguments&) = delete;

    int Count() const { return words_ == NULL ? 0 : count_; }
    LPCTSTR operator[](int index) const { return words_[index]; }

private:
    int count_ = 0;
    LPWSTR* words_;
};

#else

class ProgramArguments
{
public:
    int Count() const { return __argc; }
    LPCTSTR operator[](int index) const { return __argv[index]; }
};

#endif

} // namespace afxint
