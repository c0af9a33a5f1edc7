#include <classes/CCheckListBox.h>

#include <classes/CClientDC.h>
#include <classes/CFont.h>

#include "controls/ControlMessages.h"

#include <vector>

namespace {

// What is kept of an item.
constexpr BYTE checkMask = 0x03;
constexpr BYTE disabledFlag = 0x80;

constexpr int margin = 1;     // Pixels around a check box.
constexpr int textMargin = 2; // Pixels before a text.

CSize SizeOfCheck()
{
    return CSize(::GetSystemMetrics(SM_CXMENUCHECK), ::GetSystemMetrics(SM_CYMENUCHECK));
}

UINT LookOfCheck(int check, bool enabled)
{
    UINT look = check == BST_INDETERMINATE ? DFCS_BUTTON3STATE : DFCS_BUTTONCHECK;
    if (check != BST_UNCHECKED)
        look |= DFCS_CHECKED;
    return enabled ? look : look | DFCS_INACTIVE;
}

/// The part of an item beside its check box.
CRect BesideCheck(CRect item, const CRect& check)
{
    if (check.left - item.left <= item.right - check.right)
        item.left = min(check.right + margin, item.right);
    else
        item.right = max(check.left - margin, item.left);
    return item;
}

} // namespace

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_SETFONT, &CCheckListBox::OnSetFont)
    ON_MESSAGE(LB_ADDSTRING, &CCheckListBox::OnInsertItem)
    ON_MESSAGE(LB_INSERTSTRING, &CCheckListBox::OnInsertItem)
    ON_MESSAGE(LB_ADDFILE, &CCheckListBox::OnInsertItem)
    ON_MESSAGE(LB_DELETESTRING, &CCheckListBox::OnDeleteString)
    ON_MESSAGE(LB_DIR, &CCheckListBox::OnDir)
END_MESSAGE_MAP()

CCheckListBox::CCheckListBox() = default;

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CListBox::Create(dwStyle, rect, pParentWnd, nID);
}

void CCheckListBox::SetCheckStyle(UINT nStyle)
{
    ASSERT(nStyle == BS_CHECKBOX || nStyle == BS_AUTOCHECKBOX || nStyle == BS_3STATE ||
           nStyle == BS_AUTO3STATE);
    style_ = nStyle;
}

UINT CCheckListBox::GetCheckStyle()
{
    return style_;
}

void CCheckListBox::SetCheck(int nIndex, int nCheck)
{
    if (!HasItem(nIndex))
        return;
    MatchCount();
    SetState(nIndex, (states_[nIndex] & ~checkMask) | (nCheck & checkMask));
}

int CCheckListBox::GetCheck(int nIndex)
{
    if (!HasItem(nIndex))
        return LB_ERR;
    MatchCount();
    return states_[nIndex] & checkMask;
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled)
{
    if (!HasItem(nIndex))
        return;
    MatchCount();
    const BYTE check = states_[nIndex] & checkMask;
    SetState(nIndex, bEnabled ? check : check | disabledFlag);
}

BOOL CCheckListBox::IsEnabled(int nIndex)
{
    if (!HasItem(nIndex))
        return FALSE;
    MatchCount();
    return (states_[nIndex] & disabledFlag) == 0;
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox)
{
    return rectCheckBox;
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC& dc = *CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect area = lpDrawItemStruct->rcItem;
    const int index = static_cast<int>(lpDrawItemStruct->itemID);
    const bool selected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const COLORREF formerText = dc.GetTextColor();
    const COLORREF formerBack = dc.GetBkColor();

    if (selected)
        dc.SetTextColor(::GetSysColor(COLOR_HIGHLIGHTTEXT));
    if (!IsWindowEnabled() || !IsEnabled(index))
        dc.SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    dc.FillSolidRect(area, selected ? ::GetSysColor(COLOR_HIGHLIGHT) : formerBack);
    if ((GetStyle() & LBS_HASSTRINGS) != 0) {
        CString text;
        GetText(index, text);
        CRect line = area;
        line.left += textMargin;
        dc.DrawText(text, line, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_EXPANDTABS);
    }
    dc.SetTextColor(formerText);
    dc.SetBkColor(formerBack);
    if ((lpDrawItemStruct->itemState & ODS_FOCUS) != 0)
        dc.DrawFocusRect(area);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    CClientDC dc(this);
    CFont* font = GetFont();
    CFont* former = font == NULL ? NULL : dc.SelectObject(font);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    if (former != NULL)
        dc.SelectObject(former);
    lpMeasureItemStruct->itemHeight = metrics.tmHeight;
}

void CCheckListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    ASSERT((GetStyle() & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0);
    FitItems();
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (message == WM_DRAWITEM) {
        if (!CWnd::OnChildNotify(message, wParam, lParam, pLResult))
            DrawWithCheck(*reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    }
    if (!CListBox::OnChildNotify(message, wParam, lParam, pLResult))
        return FALSE;
    if (message == WM_MEASUREITEM) {
        UINT& height = reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam)->itemHeight;
        height = max(height, static_cast<UINT>(LeastHeight()));
    }
    return TRUE;
}

void CCheckListBox::OnLButtonDown(UINT nFlags, CPoint point)
{
    const bool single = (GetStyle() & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) == 0;
    // Several selected items stay so: the click is about their boxes.
    if (single || CheckAt(point) == LB_ERR)
        CListBox::OnLButtonDown(nFlags, point);
    else
        SetFocus();
    ClickCheck(point);
}

void CCheckListBox::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if (!ClickCheck(point)) // The second click on a box is one more.
        CListBox::OnLButtonDblClk(nFlags, point);
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const int caret = nChar == VK_SPACE ? GetCaretIndex() : LB_ERR;
    if (HasItem(caret))
        ChangeCheck(caret);
    else
        CListBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

LRESULT CCheckListBox::OnSetFont(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    FitItems();
    return result;
}

LRESULT CCheckListBox::OnInsertItem(WPARAM, LPARAM)
{
    MatchCount();
    const LRESULT index = Default();
    if (index >= 0 && index <= states_.GetSize())
        states_.InsertAt(index, BYTE());
    return index;
}

LRESULT CCheckListBox::OnDeleteString(WPARAM wParam, LPARAM)
{
    MatchCount();
    const LRESULT left = Default();
    if (left >= 0)
        states_.RemoveAt(wParam);
    return left;
}

LRESULT CCheckListBox::OnDir(WPARAM, LPARAM)
{
    // In a sorted list the files go between the items: these carry numbers meanwhile.
    MatchCount();
    const CByteArray& former = states_;
    std::vector<DWORD_PTR> data(former.GetSize());
    for (size_t i = 0; i < data.size(); ++i) {
        data[i] = GetItemData(i);
        SetItemData(i, i + 1);
    }
    const LRESULT last = Default();
    CByteArray moved;
    moved.SetSize(GetCount());
    for (int i = 0; i < moved.GetSize(); ++i) {
        const DWORD_PTR number = GetItemData(i);
        if (number == 0 || number > data.size())
            continue;
        SetItemData(i, data[number - 1]);
        moved[i] = former[number - 1];
    }
    states_.Copy(moved);
    return last;
}

/// Items may have come before the object, and go all at once.
void CCheckListBox::MatchCount()
{
    const int count = max(GetCount(), 0);
    if (states_.GetSize() != count)
        states_.SetSize(count);
}

bool CCheckListBox::HasItem(int index) const
{
    return index >= 0 && index < GetCount();
}

void CCheckListBox::SetState(int index, BYTE state)
{
    states_[index] = state;
    CRect item;
    if (GetItemRect(index, item) != LB_ERR)
        InvalidateRect(item, FALSE);
}

CRect CCheckListBox::PlaceOfCheck(const CRect& item)
{
    const CSize size = SizeOfCheck();
    const CPoint corner(item.left + margin, item.top + (item.Height() - size.cy) / 2);
    return OnGetCheckPosition(item, CRect(corner, size));
}

/// The item whose check box is at the point, unless it is disabled.
int CCheckListBox::CheckAt(CPoint point)
{
    BOOL outside = FALSE;
    const int index = static_cast<short>(ItemFromPoint(point, outside));
    CRect item;
    if (outside || !IsEnabled(index) || GetItemRect(index, item) == LB_ERR)
        return LB_ERR;
    return PlaceOfCheck(item).PtInRect(point) ? index : LB_ERR;
}

void CCheckListBox::DrawWithCheck(DRAWITEMSTRUCT item)
{
    const int index = static_cast<int>(item.itemID);
    CDC& dc = *CDC::FromHandle(item.hDC);
    if (!HasItem(index)) { // The focus of an empty list.
        if ((item.itemState & ODS_FOCUS) != 0)
            dc.DrawFocusRect(&item.rcItem);
        return;
    }
    CRect check = PlaceOfCheck(item.rcItem);
    dc.FillSolidRect(&item.rcItem, dc.GetBkColor());
    dc.DrawFrameControl(check, DFC_BUTTON,
                        LookOfCheck(GetCheck(index), IsWindowEnabled() && IsEnabled(index)));
    item.rcItem = BesideCheck(item.rcItem, check);
    DrawItem(&item);
}

int CCheckListBox::LeastHeight()
{
    return SizeOfCheck().cy + 2 * margin;
}

/// Gives the items their heights: those of a template measured them before there was an object.
void CCheckListBox::FitItems()
{
    if (GetItemHeight(0) <= 0) // It is still being created, or has no items of different heights.
        return;
    if ((GetStyle() & LBS_OWNERDRAWVARIABLE) != 0) {
        for (int i = 0; i < GetCount(); ++i)
            SetItemHeight(i, max(GetItemHeight(i), LeastHeight()));
        return;
    }
    MEASUREITEMSTRUCT item = {};
    item.CtlType = ODT_LISTBOX;
    item.CtlID = GetDlgCtrlID();
    item.itemHeight = GetItemHeight(0);
    MeasureItem(&item);
    SetItemHeight(0, max(item.itemHeight, static_cast<UINT>(LeastHeight())));
}

/// False when there is no enabled check box.
bool CCheckListBox::ClickCheck(CPoint point)
{
    const int index = CheckAt(point);
    if (index == LB_ERR)
        return false;
    ChangeCheck(index);
    return true;
}

/// What the user does to an item: to all selected ones, if it is one of them.
void CCheckListBox::ChangeCheck(int index)
{
    if (!IsEnabled(index))
        return;
    const int check = NextCheck(GetCheck(index));
    const bool several = GetSelCount() > 1 && GetSel(index) > 0;
    for (int i = 0; i < GetCount(); ++i) {
        if (i == index || (several && GetSel(i) > 0 && IsEnabled(i)))
            SetCheck(i, check);
    }
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE),
                             reinterpret_cast<LPARAM>(m_hWnd));
}

int CCheckListBox::NextCheck(int check) const
{
    switch (style_) {
    case BS_AUTOCHECKBOX:
        return check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED;
    case BS_AUTO3STATE:
        return (check + 1) % 3;
    default:
        return check;
    }
}
