#include <classes/CDragListBox.h>

#include "controls/ControlMessages.h"
#include "windows/DragListMessage.h"

IMPLEMENT_DYNAMIC(CDragListBox, CListBox)

CDragListBox::CDragListBox() = default;

int CDragListBox::ItemFromPt(CPoint pt, BOOL bAutoScroll) const
{
    return ::LBItemFromPt(m_hWnd, pt, bAutoScroll);
}

void CDragListBox::DrawInsert(int nItem)
{
    ::DrawInsert(::GetParent(m_hWnd), m_hWnd, nItem);
}

BOOL CDragListBox::BeginDrag(CPoint pt)
{
    DrawInsert(ItemFromPt(pt, FALSE));
    return TRUE;
}

void CDragListBox::CancelDrag(CPoint)
{
    DrawInsert(LB_ERR);
}

UINT CDragListBox::Dragging(CPoint pt)
{
    const int item = ItemFromPt(pt);
    DrawInsert(item);
    return item == LB_ERR ? DL_STOPCURSOR : DL_MOVECURSOR;
}

void CDragListBox::Dropped(int nSrcIndex, CPoint pt)
{
    DrawInsert(LB_ERR);
    const int target = ItemFromPt(pt);
    // An item before itself or before its successor is where it was.
    if (nSrcIndex == LB_ERR || target == LB_ERR || target == nSrcIndex || target == nSrcIndex + 1)
        return;
    CString text;
    GetText(nSrcIndex, text);
    const DWORD_PTR data = GetItemData(nSrcIndex);
    DeleteString(nSrcIndex);
    const int place = InsertString(nSrcIndex < target ? target - 1 : target, text);
    SetItemData(place, data);
    SetCurSel(place);
}

void CDragListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    ASSERT((GetStyle() & (LBS_MULTIPLESEL | LBS_SORT)) == 0);
    VERIFY(::MakeDragList(m_hWnd));
}

BOOL CDragListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (!afxint::IsDragListMessage(message))
        return CListBox::OnChildNotify(message, wParam, lParam, pLResult);
    const auto& info = *reinterpret_cast<const DRAGLISTINFO*>(lParam);
    switch (info.uNotification) {
    case DL_BEGINDRAG:
        source_ = ItemFromPt(info.ptCursor, FALSE);
        *pLResult = BeginDrag(info.ptCursor);
        break;
    case DL_DRAGGING:
        *pLResult = Dragging(info.ptCursor);
        break;
    case DL_DROPPED:
        Dropped(source_, info.ptCursor);
        break;
    case DL_CANCELDRAG:
        CancelDrag(info.ptCursor);
        break;
    default:
        return FALSE;
    }
    return TRUE;
}
