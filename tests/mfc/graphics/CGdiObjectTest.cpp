#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

using umbra::testing::BalancedGdi;

namespace {

CGdiObject* NoObject()
{
    static CGdiObject* volatile none = nullptr;
    return none;
}

bool IsAlive(HGDIOBJ handle)
{
    return ::GetObjectType(handle) != 0;
}

} // namespace

TEST_CASE("the destructor of a drawing object deletes what it still holds")
{
    BalancedGdi balance;
    HGDIOBJ handle;
    {
        CGdiObject object;
        CHECK(object.Attach(::CreateSolidBrush(RGB(1, 2, 3))));
        handle = object;
        CHECK(handle != nullptr);
        CHECK(object.GetObjectType() == OBJ_BRUSH);
    }
    CHECK_FALSE(IsAlive(handle));
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a detached handle lives on, and the object is empty")
{
    HGDIOBJ handle;
    {
        CBrush brush(RGB(1, 2, 3));
        handle = brush.Detach();
        CHECK(brush.m_hObject == nullptr);
        CHECK(brush.GetSafeHandle() == nullptr);
        CHECK(CGdiObject::FromHandle(handle) != &brush);
    }
    CHECK(IsAlive(handle));
    ::DeleteObject(handle);
    CGdiObject::DeleteTempMap();
}

TEST_CASE("DeleteObject empties the object and can be followed by another creation")
{
    BalancedGdi balance;
    {
        CBrush brush(RGB(1, 2, 3));
        const HGDIOBJ first = brush;
        CHECK(brush.DeleteObject());
        CHECK_FALSE(IsAlive(first));
        CHECK(brush.m_hObject == nullptr);
        CHECK_FALSE(brush.DeleteObject());
        CHECK(brush.CreateSolidBrush(RGB(4, 5, 6)));
        LOGBRUSH data;
        CHECK(brush.GetLogBrush(&data) == sizeof(data));
        CHECK(data.lbColor == RGB(4, 5, 6));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("FromHandle gives the owner of a handle back")
{
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    CHECK(CPen::FromHandle(pen) == &pen);
    CHECK(CGdiObject::FromHandle(pen.m_hObject) == &pen);
    CHECK(CGdiObject::FromHandle(nullptr) == nullptr);
}

TEST_CASE("FromHandle makes a temporary object of the right class, the same each time")
{
    const HPEN pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    CPen* temporary = CPen::FromHandle(pen);
    REQUIRE(temporary != nullptr);
    CHECK(temporary->m_hObject == pen);
    CHECK(temporary->IsKindOf(RUNTIME_CLASS(CPen)));
    CHECK(CPen::FromHandle(pen) == temporary);

    CGdiObject::DeleteTempMap();
    CHECK(IsAlive(pen)); // The temporary object owned nothing.
    ::DeleteObject(pen);
}

TEST_CASE("each kind of handle gets its class")
{
    const HBRUSH brush = ::CreateSolidBrush(0);
    const HFONT font = static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
    const HBITMAP bitmap = ::CreateBitmap(1, 1, 1, 1, nullptr);
    const HRGN region = ::CreateRectRgn(0, 0, 1, 1);
    const HPALETTE palette = static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE));
    CHECK(CBrush::FromHandle(brush)->IsKindOf(RUNTIME_CLASS(CBrush)));
    CHECK(CFont::FromHandle(font)->IsKindOf(RUNTIME_CLASS(CFont)));
    CHECK(CBitmap::FromHandle(bitmap)->IsKindOf(RUNTIME_CLASS(CBitmap)));
    CHECK(CRgn::FromHandle(region)->IsKindOf(RUNTIME_CLASS(CRgn)));
    CHECK(CPalette::FromHandle(palette)->IsKindOf(RUNTIME_CLASS(CPalette)));
    CGdiObject::DeleteTempMap();
    ::DeleteObject(brush);
    ::DeleteObject(bitmap);
    ::DeleteObject(region);
}

TEST_CASE("a temporary object that is detached or dropped leaves the owner's entry alone")
{
    const HBRUSH handle = ::CreateSolidBrush(RGB(1, 2, 3));
    CBrush* temporary = CBrush::FromHandle(handle);
    CBrush owner;
    owner.Attach(handle);
    CHECK(CBrush::FromHandle(handle) == &owner);
    CHECK(temporary->Detach() == handle);
    CHECK(CBrush::FromHandle(handle) == &owner);
    CGdiObject::DeleteTempMap();
    CHECK(CBrush::FromHandle(handle) == &owner);
    CHECK(IsAlive(handle));
}

TEST_CASE("an emptied temporary object is filled again when its handle is asked for")
{
    const HBRUSH handle = ::CreateSolidBrush(RGB(1, 2, 3));
    CBrush::FromHandle(handle)->Detach();
    CHECK(CBrush::FromHandle(handle)->m_hObject == handle);
    CGdiObject::DeleteTempMap();
    ::DeleteObject(handle);
}

TEST_CASE("DeleteObject of a temporary object deletes the handle")
{
    const HBRUSH handle = ::CreateSolidBrush(RGB(1, 2, 3));
    CHECK(CBrush::FromHandle(handle)->DeleteObject());
    CHECK_FALSE(IsAlive(handle));
    CGdiObject::DeleteTempMap();
}

TEST_CASE("stock objects can be attached and deleted without harm")
{
    for (int round = 0; round < 2; ++round) {
        CBrush brush;
        CHECK(brush.CreateStockObject(WHITE_BRUSH));
        CHECK(brush.m_hObject == ::GetStockObject(WHITE_BRUSH));
        CHECK(brush.DeleteObject());
    }
    CHECK(IsAlive(::GetStockObject(WHITE_BRUSH)));
}

TEST_CASE("attaching no handle fails")
{
    CGdiObject object;
    CHECK_FALSE(object.Attach(nullptr));
    CHECK(object.m_hObject == nullptr);
    CHECK(object.Detach() == nullptr);
}

TEST_CASE("no object has no handle")
{
    CHECK(NoObject()->GetSafeHandle() == nullptr);
    CHECK(static_cast<HFONT>(*static_cast<CFont*>(NoObject())) == nullptr);
}

TEST_CASE("drawing objects are equal when their handles are")
{
    CBrush red(RGB(255, 0, 0));
    CBrush blue(RGB(0, 0, 255));
    CHECK(red == *CBrush::FromHandle(red));
    CHECK(red != blue);
}
