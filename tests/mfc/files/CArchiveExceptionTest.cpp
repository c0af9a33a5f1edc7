#include <afxwin.h>

#include <doctest/doctest.h>

#include <set>
#include <string>

namespace {

CString Explain(int cause, LPCTSTR file)
{
    const CArchiveException exception(cause, file);
    TCHAR text[256];
    return exception.GetErrorMessage(text, _countof(text)) ? text : _T("none");
}

} // namespace

TEST_CASE("the exception of an archive has its cause and the file's name")
{
    try {
        AfxThrowArchiveException(CArchiveException::badIndex, _T("some.dat"));
        FAIL("nothing was thrown");
    } catch (CException* e) {
        REQUIRE(e->IsKindOf(RUNTIME_CLASS(CArchiveException)));
        CHECK(static_cast<CArchiveException*>(e)->m_cause == CArchiveException::badIndex);
        CHECK(static_cast<CArchiveException*>(e)->m_strFileName == "some.dat");
        e->Delete();
    }
    CArchiveException plain;
    CHECK(plain.m_cause == CArchiveException::none);
    CHECK(plain.m_strFileName.IsEmpty());
}

TEST_CASE("each cause is explained in its own words")
{
    CHECK(Explain(CArchiveException::endOfFile, _T("some.dat")) == "some.dat ends too early.");
    CHECK(Explain(CArchiveException::badSchema, NULL) ==
          "Untitled was written by another version of the program.");
    std::set<std::string> texts;
    for (int cause = CArchiveException::none; cause <= CArchiveException::bufferFull; ++cause)
        texts.insert(std::string(CStringA(Explain(cause, _T("a")))));
    CHECK(texts.size() == CArchiveException::bufferFull + 1);
    CHECK(texts.count("none") == 0);
    CHECK(Explain(-1, _T("a")) == Explain(CArchiveException::generic, _T("a")));
    CHECK(Explain(1000, _T("a")) == Explain(CArchiveException::generic, _T("a")));
}

TEST_CASE("a text that is too long for the buffer is cut")
{
    const CArchiveException exception(CArchiveException::endOfFile, _T("some.dat"));
    TCHAR text[6];
    UINT help = 5;
    CHECK(exception.GetErrorMessage(text, _countof(text), &help));
    CHECK(CString(text) == "some.");
    CHECK(help == 0);
    CHECK_FALSE(exception.GetErrorMessage(NULL, 0));
}
