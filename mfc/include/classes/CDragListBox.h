// A list whose items can be dragged to other places in it.
#pragma once

#include <classes/CListBox.h>

/// A list box that moves its items under the mouse. Points are on the screen; the parent has to be
/// a window with an object, through which the notifications come back.
class AFX_EXPORTED CDragListBox : public CListBox
{
    DECLARE_DYNAMIC(CDragListBox)

public:
    CDragListBox();

    /// The item at the point, LB_ERR (-1) for none. At the ends of the list it may scroll.
    int ItemFromPt(CPoint pt, BOOL bAutoScroll = TRUE) const;
    /// Draws the mark that tells where the item goes; -1 draws none.
    virtual void DrawInsert(int nItem);

    /// FALSE keeps the item where it is.
    virtual BOOL BeginDrag(CPoint pt);
    virtual void CancelDrag(CPoint pt);
    /// Which cursor to show: DL_STOPCURSOR, DL_COPYCURSOR, DL_MOVECURSOR, or DL_CURSORSET for the
    /// one that is.
    virtual UINT Dragging(CPoint pt);
    /// Moves the item and its data before the one at the point.
    virtual void Dropped(int nSrcIndex, CPoint pt);

protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    int source_ = LB_ERR; ///< The item under way.
};
