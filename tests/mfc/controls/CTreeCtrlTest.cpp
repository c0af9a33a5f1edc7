#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Tree
{
    ControlHost host;
    CTreeCtrl tree;
    HTREEITEM fruit, apple, pear, stone;

    Tree()
    {
        const DWORD style = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES | TVS_EDITLABELS;
        REQUIRE(tree.Create(shownChild | style, CRect(10, 10, 210, 210), &host, 95));
        fruit = tree.InsertItem(_T("Fruit"));
        pear = tree.InsertItem(_T("Pear"), fruit);
        apple = tree.InsertItem(_T("Apple"), fruit, TVI_FIRST);
        stone = tree.InsertItem(_T("Stone"));
    }
};

} // namespace

TEST_CASE("the items of a tree are parents, children and siblings")
{
    Tree tree;
    CHECK(tree.tree.GetCount() == 4);
    CHECK(tree.tree.GetRootItem() == tree.fruit);
    CHECK(tree.tree.GetChildItem(tree.fruit) == tree.apple);
    CHECK(tree.tree.GetNextSiblingItem(tree.apple) == tree.pear);
    CHECK(tree.tree.GetPrevSiblingItem(tree.pear) == tree.apple);
    CHECK(tree.tree.GetParentItem(tree.pear) == tree.fruit);
    CHECK(tree.tree.GetNextSiblingItem(tree.fruit) == tree.stone);
    CHECK(tree.tree.ItemHasChildren(tree.fruit));
    CHECK_FALSE(tree.tree.ItemHasChildren(tree.stone));
    CHECK(tree.tree.DeleteItem(tree.fruit));
    CHECK(tree.tree.GetCount() == 1);
    CHECK(tree.tree.DeleteAllItems());
    CHECK(tree.tree.GetCount() == 0);
}

TEST_CASE("the items of a tree have texts, data, states and images")
{
    Tree tree;
    CHECK(tree.tree.GetItemText(tree.apple) == "Apple");
    CHECK(tree.tree.SetItemText(tree.apple, _T("Quince")));
    CHECK(tree.tree.GetItemText(tree.apple) == "Quince");
    CHECK(tree.tree.SetItemData(tree.apple, wideItemData));
    CHECK(tree.tree.GetItemData(tree.apple) == wideItemData);
    CHECK(tree.tree.SetItemState(tree.apple, TVIS_BOLD, TVIS_BOLD));
    CHECK(tree.tree.GetItemState(tree.apple, TVIS_BOLD) == TVIS_BOLD);
    CHECK(tree.tree.SetItemImage(tree.apple, 2, 3));
    int normal = 0, selected = 0;
    CHECK(tree.tree.GetItemImage(tree.apple, normal, selected));
    CHECK(normal == 2);
    CHECK(selected == 3);
}

TEST_CASE("a tree unfolds and folds")
{
    Tree tree;
    CHECK(tree.tree.GetNextVisibleItem(tree.fruit) == tree.stone);
    CHECK(tree.tree.Expand(tree.fruit, TVE_EXPAND));
    CHECK(tree.tree.GetNextVisibleItem(tree.fruit) == tree.apple);
    CHECK(tree.tree.GetPrevVisibleItem(tree.stone) == tree.pear);
    CHECK(tree.tree.GetFirstVisibleItem() == tree.fruit);
    CHECK(tree.tree.GetLastVisibleItem() == tree.stone);
    CHECK(tree.tree.Expand(tree.fruit, TVE_COLLAPSE));
    tree.tree.EnsureVisible(tree.pear);
    CHECK(tree.tree.GetNextVisibleItem(tree.fruit) == tree.apple);
}

TEST_CASE("a click on an item of a tree selects it, and the parent hears of it")
{
    Tree tree;
    CRect item;
    REQUIRE(tree.tree.GetItemRect(tree.stone, item, TRUE));
    UINT flags = 0;
    CHECK(tree.tree.HitTest(item.CenterPoint(), &flags) == tree.stone);
    CHECK((flags & TVHT_ONITEMLABEL) != 0);
    ClickWaitingControl(tree.tree.m_hWnd, item.CenterPoint());
    CHECK(tree.tree.GetSelectedItem() == tree.stone);
    CHECK(tree.host.Heard((UINT)TVN_SELCHANGED));
    CHECK(tree.tree.SelectItem(tree.fruit));
    CHECK(tree.tree.GetSelectedItem() == tree.fruit);
    CHECK(tree.tree.SelectDropTarget(tree.stone));
    CHECK(tree.tree.GetDropHilightItem() == tree.stone);
}

TEST_CASE("the children of a tree's item are sorted")
{
    Tree tree;
    const HTREEITEM banana = tree.tree.InsertItem(_T("Banana"), tree.fruit);
    CHECK(tree.tree.SortChildren(tree.fruit));
    CHECK(tree.tree.GetNextSiblingItem(tree.apple) == banana);
}

TEST_CASE("a label of a tree is edited in place")
{
    Tree tree;
    tree.tree.SetFocus();
    CEdit* field = tree.tree.EditLabel(tree.stone);
    REQUIRE(field != NULL);
    CHECK(tree.tree.GetEditControl() == field);
    field->SetWindowText(_T("Pebble"));
    CHECK(tree.tree.EndEditLabelNow(FALSE));
    CHECK(tree.host.Heard((UINT)TVN_ENDLABELEDIT));
}

TEST_CASE("a tree keeps colours, indent, height and image lists")
{
    Tree tree;
    tree.tree.SetBkColor(RGB(1, 2, 3));
    CHECK(tree.tree.GetBkColor() == RGB(1, 2, 3));
    tree.tree.SetTextColor(RGB(4, 5, 6));
    CHECK(tree.tree.GetTextColor() == RGB(4, 5, 6));
    tree.tree.SetLineColor(RGB(7, 8, 9));
    CHECK(tree.tree.GetLineColor() == RGB(7, 8, 9));
    tree.tree.SetIndent(40);
    CHECK(tree.tree.GetIndent() == 40);
    tree.tree.SetItemHeight(30);
    CHECK(tree.tree.GetItemHeight() == 30);
    CHECK(tree.tree.GetVisibleCount() == 6);

    CImageList images;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 2, 1));
    CHECK(tree.tree.SetImageList(&images, TVSIL_NORMAL) == NULL);
    CHECK(tree.tree.GetImageList(TVSIL_NORMAL) == &images);
    tree.tree.SetImageList(NULL, TVSIL_NORMAL);
}
