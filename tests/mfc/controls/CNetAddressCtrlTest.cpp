#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

using namespace umbra::testing;

TEST_CASE("a network address field is there when the system has one, and fails otherwise")
{
    ControlHost host;
    CNetAddressCtrl address;
    const BOOL created = address.Create(shownChild, CRect(10, 10, 210, 34), &host, 60);
    WNDCLASS known;
    const BOOL has = ::GetClassInfo(AfxGetInstanceHandle(), _T("msctls_netaddress"), &known);
    CHECK(created == has);
    CHECK((address.m_hWnd != NULL) == (created != FALSE));
}

TEST_CASE("a network address field is asked for its address and what it allows")
{
    ControlHost host;
    CEdit edit; // In place of the control: the messages are those of any window.
    REQUIRE(edit.Create(shownChild, CRect(10, 10, 210, 34), &host, 60));
    const HWND window = edit.Detach();
    CNetAddressCtrl address;
    REQUIRE(address.SubclassWindow(window));
    const MessageLog log(window);
    address.SetAllowType(3);
    CheckSent(log, WM_USER + 2, 3, 0);
    address.GetAllowType();
    CheckSent(log, WM_USER + 3, 0, 0);
    address.GetAddress(NULL);
    CheckSent(log, WM_USER + 1, 0, 0);
    address.DisplayErrorTip();
    CheckSent(log, WM_USER + 4, 0, 0);
}
