#include <afxwin.h>

#include <doctest/doctest.h>

#include <initializer_list>

namespace {

/// Gives the words of a command line to the object, flags without their sign.
void Parse(CCommandLineInfo& info, std::initializer_list<LPCTSTR> words)
{
    for (const LPCTSTR* word = words.begin(); word != words.end(); ++word) {
        const bool flag = **word == '/';
        info.ParseParam(*word + (flag ? 1 : 0), flag, word + 1 == words.end());
    }
}

/// The shell command of a command line.
int CommandOf(std::initializer_list<LPCTSTR> words)
{
    CCommandLineInfo info;
    Parse(info, words);
    return info.m_nShellCommand;
}

} // namespace

TEST_CASE("an empty command line asks for a new document, with the splash screen")
{
    CCommandLineInfo info;
    CHECK(info.m_nShellCommand == CCommandLineInfo::FileNew);
    CHECK(info.m_bShowSplash);
    CHECK_FALSE(info.m_bRunEmbedded);
    CHECK_FALSE(info.m_bRunAutomated);
    CHECK(info.m_strFileName.IsEmpty());
}

TEST_CASE("the first file is opened, further ones are left out")
{
    CCommandLineInfo info;
    Parse(info, {_T("letter.txt"), _T("second.txt")});
    CHECK(info.m_nShellCommand == CCommandLineInfo::FileOpen);
    CHECK(info.m_strFileName == "letter.txt");
    CHECK(info.m_strPrinterName.IsEmpty());
}

TEST_CASE("the file is opened only when the command line is at its end")
{
    CCommandLineInfo info;
    info.ParseParam(_T("letter.txt"), FALSE, FALSE);
    CHECK(info.m_nShellCommand == CCommandLineInfo::FileNew);
    info.ParseParam(_T("unknown"), TRUE, TRUE);
    CHECK(info.m_nShellCommand == CCommandLineInfo::FileOpen);
}

TEST_CASE("each flag asks for its command, in capitals or not")
{
    CHECK(CommandOf({_T("/p"), _T("letter.txt")}) == CCommandLineInfo::FilePrint);
    CHECK(CommandOf({_T("/P"), _T("letter.txt")}) == CCommandLineInfo::FilePrint);
    CHECK(CommandOf({_T("/pt"), _T("letter.txt")}) == CCommandLineInfo::FilePrintTo);
    CHECK(CommandOf({_T("/dde")}) == CCommandLineInfo::FileDDE);
    CHECK(CommandOf({_T("/Register")}) == CCommandLineInfo::AppRegister);
    CHECK(CommandOf({_T("/regserver")}) == CCommandLineInfo::AppRegister);
    CHECK(CommandOf({_T("/Unregister")}) == CCommandLineInfo::AppUnregister);
    CHECK(CommandOf({_T("/unregserver")}) == CCommandLineInfo::AppUnregister);
    CHECK(CommandOf({_T("/unknown")}) == CCommandLineInfo::FileNew);
}

TEST_CASE("a word like a flag is a file without the sign before it")
{
    CCommandLineInfo info;
    Parse(info, {_T("dde")});
    CHECK(info.m_nShellCommand == CCommandLineInfo::FileOpen);
    CHECK(info.m_strFileName == "dde");
}

TEST_CASE("printing to a printer takes the file, the printer, its driver and its port")
{
    CCommandLineInfo info;
    Parse(info, {_T("/pt"), _T("letter.txt"), _T("printer"), _T("driver"), _T("port"), _T("more")});
    CHECK(info.m_nShellCommand == CCommandLineInfo::FilePrintTo);
    CHECK(info.m_strFileName == "letter.txt");
    CHECK(info.m_strPrinterName == "printer");
    CHECK(info.m_strDriverName == "driver");
    CHECK(info.m_strPortName == "port");
}

TEST_CASE("a program that serves another one shows no splash screen")
{
    CCommandLineInfo embedded;
    Parse(embedded, {_T("/Embedding")});
    CHECK(embedded.m_bRunEmbedded);
    CHECK_FALSE(embedded.m_bRunAutomated);
    CHECK_FALSE(embedded.m_bShowSplash);

    CCommandLineInfo automated;
    Parse(automated, {_T("/Automation")});
    CHECK(automated.m_bRunAutomated);
    CHECK_FALSE(automated.m_bRunEmbedded);
    CHECK_FALSE(automated.m_bShowSplash);
}
