#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Address
{
    ControlHost host;
    CIPAddressCtrl address;

    Address()
    {
        REQUIRE(address.Create(shownChild | WS_TABSTOP, CRect(10, 10, 210, 34), &host, 60));
    }
};

} // namespace

TEST_CASE("an address is set and read, as fields and as a number")
{
    Address address;
    CHECK(address.address.IsBlank());
    address.address.SetAddress(192, 168, 1, 20);
    CHECK_FALSE(address.address.IsBlank());
    BYTE fields[4] = {};
    CHECK(address.address.GetAddress(fields[0], fields[1], fields[2], fields[3]) == 4);
    CHECK(fields[0] == 192);
    CHECK(fields[1] == 168);
    CHECK(fields[2] == 1);
    CHECK(fields[3] == 20);
    DWORD number = 0;
    CHECK(address.address.GetAddress(number) == 4);
    CHECK(number == 0xC0A80114);
    address.address.SetAddress(0x7F000001);
    CHECK(address.address.GetAddress(number) == 4);
    CHECK(number == 0x7F000001);
    address.address.ClearAddress();
    CHECK(address.address.IsBlank());
    CHECK(address.address.GetAddress(number) == 0);
}

TEST_CASE("an address is typed, and the parent hears of each field")
{
    Address address;
    address.address.SetFieldFocus(0);
    REQUIRE(TypeText(_T("10.0.7.99")));
    DWORD number = 0;
    CHECK(address.address.GetAddress(number) == 4);
    CHECK(number == 0x0A000763);
    CHECK(address.host.Heard((UINT)IPN_FIELDCHANGED));
}

TEST_CASE("a field keeps to its range")
{
    Address address;
    address.address.SetFieldRange(0, 10, 20);
    address.address.SetFieldFocus(0);
    REQUIRE(TypeText(_T("99.1")));
    DWORD number = 0;
    address.address.GetAddress(number);
    CHECK(FIRST_IPADDRESS(number) == 20);
}

TEST_CASE("CreateEx gives an address field an extended style")
{
    ControlHost host;
    CIPAddressCtrl address;
    REQUIRE(address.CreateEx(WS_EX_STATICEDGE, shownChild, CRect(0, 0, 150, 24), &host, 61));
    CHECK((address.GetExStyle() & WS_EX_STATICEDGE) != 0);
}
