// What lies around the toolkit when a monkey plays with it: a shell that starts nothing, a registry
// that answers anything, and a hand that sweeps up the graphics objects left behind on purpose.
#pragma once

#include "tests/robustness/Dice.h"

#include "tests/LibraryFiles.h"
#include "tests/StartStandIn.h"

#include "testing/ImportHook.h"

#include <algorithm>
#include <functional>
#include <vector>

/// Catches everything with which the toolkit opens a target. Nothing is ever started.
class FakeShell
{
public:
    explicit FakeShell(Dice& dice)
    {
        TheDice() = &dice;
        WhileOpening() = nullptr;
    }
    ~FakeShell() { WhileOpening() = nullptr; }

    bool IsInstalled() const
    {
        return m_shell.IsInstalled() && m_start.IsInstalled() && m_open.IsInstalled() &&
               m_query.IsInstalled() && m_close.IsInstalled();
    }
    int Opened() const { return Count(); }

    /// Called inside the shell's call, as a real shell works off messages there.
    static std::function<void()>& WhileOpening()
    {
        static std::function<void()> steps;
        return steps;
    }

private:
    static Dice*& TheDice()
    {
        static Dice* dice;
        return dice;
    }
    static int& Count()
    {
        static int count;
        return count;
    }

    static HINSTANCE WINAPI Open(HWND, LPCTSTR, LPCTSTR, LPCTSTR, LPCTSTR, INT)
    {
        ++Count();
        if (WhileOpening())
            WhileOpening()();
        return reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(TheDice()->Below(66)));
    }
    static UINT Execute(LPCTSTR, UINT)
    {
        ++Count();
        return TheDice()->Below(66);
    }
    static LSTATUS WINAPI OpenKey(HKEY, LPCTSTR, DWORD, REGSAM, HKEY* key)
    {
        if (TheDice()->Percent(30))
            return ERROR_FILE_NOT_FOUND;
        *key = HKEY_CURRENT_USER; // Any: nothing is read from it.
        return ERROR_SUCCESS;
    }
    /// A value as long as it likes, and one without a terminator.
    static LSTATUS WINAPI QueryValue(HKEY, LPCTSTR, LPTSTR value, LONG* size)
    {
        const umbra::testing::TString text =
            TheDice()->Percent(50) ? _T("run.exe \"%1\" -x") : TheDice()->Text();
        const size_t room = static_cast<size_t>(*size) / sizeof(TCHAR);
        *size = static_cast<LONG>(text.size() * sizeof(TCHAR)); // Bytes, as the system counts.
        if (text.size() > room)
            return ERROR_MORE_DATA;
        std::copy(text.begin(), text.end(), value);
        if (text.size() < room)
            value[text.size()] = _T('\0');
        return ERROR_SUCCESS;
    }
    static LSTATUS WINAPI CloseKey(HKEY) { return ERROR_SUCCESS; }

    using Starts = StartStandIn<Execute>;

    HMODULE m_umbra = umbra::testing::FindModule(UMBRA_DLL);
    umbra::testing::ImportHook m_shell{m_umbra, "shell32", TEXT_FUNCTION("ShellExecute"), Open};
    umbra::testing::ImportHook m_start{m_umbra, "kernel32", Starts::function, Starts::Start};
    umbra::testing::ImportHook m_open{m_umbra, "advapi32", TEXT_FUNCTION("RegOpenKeyEx"), OpenKey};
    umbra::testing::ImportHook m_query{m_umbra, "advapi32", TEXT_FUNCTION("RegQueryValue"),
                                       QueryValue};
    umbra::testing::ImportHook m_close{m_umbra, "advapi32", "RegCloseKey", CloseKey};
};

/// Notes the fonts and bitmaps that the toolkit makes, and deletes those that it has left behind.
/// Whatever else is missing afterwards is a loss.
class Sweeper
{
public:
    bool IsInstalled() const
    {
        return m_font.IsInstalled() && m_copy.IsInstalled() && m_bitmap.IsInstalled();
    }

    /// Only while none of the toolkit's windows and objects lives.
    int Sweep()
    {
        int count = 0;
        for (const HGDIOBJ object : Made())
            count += ::DeleteObject(object) ? 1 : 0;
        Made().clear();
        return count;
    }

private:
    static std::vector<HGDIOBJ>& Made()
    {
        static std::vector<HGDIOBJ> objects;
        return objects;
    }
    static HGDIOBJ Note(HGDIOBJ object)
    {
        if (object != nullptr)
            Made().push_back(object);
        return object;
    }
    static HFONT WINAPI MakeFont(const LOGFONT* description)
    {
        return static_cast<HFONT>(Note(::CreateFontIndirect(description)));
    }
    static HANDLE WINAPI CopyPicture(HANDLE source, UINT type, int width, int height, UINT flags)
    {
        const HANDLE copy = ::CopyImage(source, type, width, height, flags);
        if (copy != source)
            Note(copy);
        return copy;
    }
    static HBITMAP WINAPI MakeBitmap(int width, int height, UINT planes, UINT bits,
                                     const void* pixels)
    {
        return static_cast<HBITMAP>(Note(::CreateBitmap(width, height, planes, bits, pixels)));
    }

    HMODULE m_umbra = umbra::testing::FindModule(UMBRA_DLL);
    umbra::testing::ImportHook m_font{m_umbra, "gdi32", TEXT_FUNCTION("CreateFontIndirect"),
                                      MakeFont};
    umbra::testing::ImportHook m_copy{m_umbra, "user32", "CopyImage", CopyPicture};
    umbra::testing::ImportHook m_bitmap{umbra::testing::FindModule(UMBRA_MFC_DLL), "gdi32",
                                        "CreateBitmap", MakeBitmap};
};
