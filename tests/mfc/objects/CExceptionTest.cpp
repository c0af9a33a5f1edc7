#include <afxwin.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "testing/NextDialog.h"

#include "tests/mfc/MessageBoxText.h"

using umbra::testing::NextDialog;

namespace {

int living = 0;

class CCountedException : public CException
{
    DECLARE_DYNAMIC(CCountedException)
public:
    CCountedException() { ++living; }
    ~CCountedException() override { --living; }
};
IMPLEMENT_DYNAMIC(CCountedException, CException)

CString Explain(CException& exception)
{
    TCHAR text[256];
    return exception.GetErrorMessage(text, 256) ? text : _T("none");
}

void RethrowLast()
{
    TRY
    {
        THROW(new CCountedException);
    }
    CATCH(CCountedException, e)
    {
        THROW_LAST();
    }
    END_CATCH
}

} // namespace

TEST_CASE("each throwing function throws a pointer to its class")
{
    const auto thrownBy = [](void (*throwing)()) {
        CRuntimeClass* thrown = nullptr;
        try {
            throwing();
        } catch (CException* e) {
            thrown = e->GetRuntimeClass();
            e->Delete();
        }
        return thrown;
    };
    CHECK(thrownBy([] { AfxThrowMemoryException(); }) == RUNTIME_CLASS(CMemoryException));
    CHECK(thrownBy([] { AfxThrowNotSupportedException(); }) ==
          RUNTIME_CLASS(CNotSupportedException));
    CHECK(thrownBy([] { AfxThrowResourceException(); }) == RUNTIME_CLASS(CResourceException));
    CHECK(thrownBy([] { AfxThrowUserException(); }) == RUNTIME_CLASS(CUserException));
    CHECK(thrownBy([] { AfxThrowInvalidArgException(); }) == RUNTIME_CLASS(CInvalidArgException));
    CHECK(thrownBy([] { ENSURE(1 == 2); }) == RUNTIME_CLASS(CInvalidArgException));
}

TEST_CASE("the library's exceptions are caught by their own class across modules")
{
    bool caught = false;
    try {
        AfxThrowResourceException();
    } catch (CUserException* e) {
        e->Delete();
    } catch (CResourceException* e) {
        caught = true;
        e->Delete();
    }
    CHECK(caught);
}

TEST_CASE("Delete frees an exception made with new and spares a static one")
{
    living = 0;
    CException* made = new CCountedException;
    made->Delete();
    CHECK(living == 0);

    class CLasting : public CException
    {
    public:
        explicit CLasting(int& ends) : CException(FALSE), m_nEnds(ends) {}
        ~CLasting() override { ++m_nEnds; }
        int& m_nEnds;
    };
    int ends = 0;
    {
        CLasting lasting(ends);
        lasting.Delete();
        CHECK(ends == 0);
    }
    CHECK(ends == 1);
}

TEST_CASE("exceptions explain themselves, user exceptions do not")
{
    CMemoryException memory;
    CHECK(Explain(memory) != "none");
    CHECK(Explain(memory).GetLength() > 5);
    CResourceException resource;
    CHECK(Explain(resource) != "none");
    CHECK(Explain(resource) != Explain(memory));
    CUserException user;
    CHECK(Explain(user) == "none");
}

TEST_CASE("CATCH deletes the exception at the end of its block")
{
    living = 0;
    int inside = 0;
    TRY
    {
        throw new CCountedException;
    }
    CATCH(CCountedException, e)
    {
        inside = living;
        CHECK(e->IsKindOf(RUNTIME_CLASS(CCountedException)));
    }
    END_CATCH
    CHECK(inside == 1);
    CHECK(living == 0);
}

TEST_CASE("the first CATCH of a matching class gets the exception")
{
    CString taken;
    TRY
    {
        AfxThrowMemoryException();
    }
    CATCH(CUserException, e)
    {
        taken = "user";
    }
    AND_CATCH(CMemoryException, e)
    {
        taken = "memory";
    }
    AND_CATCH_ALL(e)
    {
        taken = "all";
    }
    END_CATCH_ALL
    CHECK(taken == "memory");

    TRY
    {
        AfxThrowNotSupportedException();
    }
    CATCH_ALL(e)
    {
        taken = e->GetRuntimeClass()->m_lpszClassName;
    }
    END_CATCH_ALL
    CHECK(taken == "CNotSupportedException");
}

TEST_CASE("THROW_LAST hands the exception on alive")
{
    living = 0;
    bool caught = false;
    try {
        RethrowLast();
    } catch (CCountedException* e) {
        caught = true;
        CHECK(living == 1);
        e->Delete();
    }
    CHECK(caught);
    CHECK(living == 0);
}

TEST_CASE("END_TRY ends an exception quietly")
{
    living = 0;
    TRY
    {
        throw new CCountedException;
    }
    END_TRY
    CHECK(living == 0);
}

TEST_CASE("an exception is reported in a message box with its text")
{
    CString shown;
    CString expected;
    NextDialog answer([&](HWND box) {
        shown = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    CResourceException exception;
    CHECK(exception.ReportError(MB_OK) == IDOK);
    CHECK(answer.HasRun());
    expected.LoadString(AFX_IDS_RESOURCE_EXCEPTION);
    CHECK(shown == expected.GetString());
}

TEST_CASE("an exception without a text is reported with the string asked for")
{
    CString shown;
    NextDialog answer([&](HWND box) {
        shown = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    CUserException exception;
    exception.ReportError(MB_OK, AFX_IDP_COMMAND_FAILURE);
    CString expected;
    expected.LoadString(AFX_IDP_COMMAND_FAILURE);
    CHECK(shown == expected.GetString());
    CHECK_FALSE(expected.IsEmpty());
}
