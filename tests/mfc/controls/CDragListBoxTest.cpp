#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

/// Tells what it is asked.
class CToldList : public CDragListBox
{
public:
    int begins = 0, drags = 0, cancels = 0, source = -2;
    bool refuses = false;
    std::vector<int> marks;

    BOOL BeginDrag(CPoint pt) override
    {
        ++begins;
        return CDragListBox::BeginDrag(pt) && !refuses;
    }
    void CancelDrag(CPoint pt) override
    {
        ++cancels;
        CDragListBox::CancelDrag(pt);
    }
    UINT Dragging(CPoint pt) override
    {
        ++drags;
        return CDragListBox::Dragging(pt);
    }
    void Dropped(int nSrcIndex, CPoint pt) override
    {
        source = nSrcIndex;
        CDragListBox::Dropped(nSrcIndex, pt);
    }
    void DrawInsert(int nItem) override
    {
        marks.push_back(nItem);
        CDragListBox::DrawInsert(nItem);
    }
};

struct DragList
{
    ControlHost host;
    CToldList list;

    DragList()
    {
        REQUIRE(list.Create(shownChild | LBS_NOTIFY, CRect(40, 10, 170, 150), &host, 30));
        for (LPCTSTR item : {_T("a"), _T("b"), _T("c"), _T("d")})
            list.SetItemData(list.AddString(item), item[0]);
        list.UpdateWindow();
    }
    CPoint Middle(int index)
    {
        CRect item;
        REQUIRE(list.GetItemRect(index, item) != LB_ERR);
        return item.CenterPoint();
    }
    CString Order()
    {
        CString all;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            all += text;
            CHECK(list.GetItemData(i) == (DWORD_PTR)text[0]);
        }
        return all;
    }
};

} // namespace

TEST_CASE("an item is dragged to another place with its data")
{
    DragList list;
    REQUIRE(Drag(list.list.m_hWnd, list.Middle(0), list.Middle(2)));
    CHECK(list.Order() == _T("bacd"));
    CHECK(list.list.begins == 1);
    CHECK(list.list.drags > 0);
    CHECK(list.list.source == 0);
    CHECK(list.list.GetCurSel() == 1);
    CHECK(list.list.marks.back() == LB_ERR); // The mark is gone.
    REQUIRE(Drag(list.list.m_hWnd, list.Middle(3), list.Middle(0)));
    CHECK(list.Order() == _T("dbac"));
}

TEST_CASE("an item that is dropped where it was stays")
{
    DragList list;
    REQUIRE(Drag(list.list.m_hWnd, list.Middle(1), list.Middle(2)));
    CHECK(list.Order() == _T("abcd"));
}

TEST_CASE("a drag can be refused")
{
    DragList list;
    list.list.refuses = true;
    REQUIRE(Drag(list.list.m_hWnd, list.Middle(0), list.Middle(2)));
    CHECK(list.Order() == _T("abcd"));
    CHECK(list.list.drags == 0);
}

TEST_CASE("a drag can be cancelled")
{
    DragList list;
    REQUIRE(MovePointer(list.list.m_hWnd, list.Middle(0)));
    REQUIRE(PressLeft());
    REQUIRE(MovePointer(list.list.m_hWnd, list.Middle(2)));
    REQUIRE(PressKey(VK_ESCAPE));
    CHECK(list.list.cancels == 1);
    REQUIRE(ReleaseLeft());
    CHECK(list.Order() == _T("abcd"));
}

TEST_CASE("a drag list finds items by points of the screen")
{
    DragList list;
    CPoint middle = list.Middle(2);
    list.list.ClientToScreen(&middle);
    CHECK(list.list.ItemFromPt(middle, FALSE) == 2);
    CHECK(list.list.ItemFromPt(CPoint(0, 0), FALSE) == LB_ERR);
    CHECK(list.list.Dragging(CPoint(0, 0)) == DL_STOPCURSOR);
    CHECK(list.list.Dragging(middle) == DL_MOVECURSOR);
    list.list.DrawInsert(-1);
}
