#include <afxtempl.h>

#include <doctest/doctest.h>

#include <type_traits>
#include <utility>

namespace {

class CItem : public CObject
{
public:
    explicit CItem(int number) : value(number) {}
    int value;
};

using Array = CTypedPtrArray<CObArray, CItem*>;
using List = CTypedPtrList<CPtrList, CItem*>;
using Map = CTypedPtrMap<CMapStringToPtr, CString, CItem*>;

} // namespace

TEST_CASE("a typed array gives its own pointers back")
{
    CItem first(1);
    CItem second(2);
    Array array;
    CHECK(array.Add(&first) == 0);
    array.SetAtGrow(2, &second);
    CHECK(array[0]->value == 1);
    CHECK(array[1] == nullptr);
    CHECK(array.GetAt(2)->value == 2);
    array[1] = &second;
    CHECK(array.ElementAt(1)->value == 2);
    array.SetAt(1, &first);
    CHECK(std::as_const(array)[1] == &first);
    static_assert(std::is_same_v<decltype(std::as_const(array)[0]), CItem*>);
}

TEST_CASE("typed arrays are copied, appended to each other, and take elements in between")
{
    CItem first(1);
    CItem second(2);
    Array array;
    array.Add(&first);
    array.Add(&second);
    Array other;
    other.Copy(array);
    CHECK(other.Append(array) == 2);
    CHECK(other.GetSize() == 4);
    CHECK(other[3]->value == 2);
    other.InsertAt(1, &second, 2);
    CHECK(other.GetSize() == 6);
    CHECK(other[2]->value == 2);
    CHECK(other[3]->value == 2);
    CHECK(other[4]->value == 1);
    other.InsertAt(0, &array);
    CHECK(other.GetSize() == 8);
    CHECK(other[0] == &first);
    CHECK(other[1] == &second);
}

TEST_CASE("a typed list gives its own pointers back, from both ends")
{
    CItem first(1);
    CItem second(2);
    CItem third(3);
    List list;
    list.AddTail(&first);
    list.AddHead(&second);
    const POSITION last = list.AddTail(&third);
    const List& readOnly = list;
    CHECK(list.GetHead()->value == 2);
    CHECK(readOnly.GetHead() == &second);
    CHECK(list.GetTail()->value == 3);
    CHECK(readOnly.GetTail() == &third);
    CHECK(readOnly.GetAt(last) == &third);
    list.SetAt(last, &first);
    CHECK(list.GetAt(last)->value == 1);
    list.GetHead() = &third; // A reference to the element itself.
    CHECK(list.RemoveHead() == &third);
    CHECK(list.RemoveTail() == &first);
    CHECK(list.GetCount() == 1);
}

TEST_CASE("a typed list is walked both ways")
{
    CItem first(1);
    CItem second(2);
    List list;
    list.AddTail(&first);
    list.AddTail(&second);
    const List& readOnly = list;
    POSITION position = list.GetHeadPosition();
    list.GetNext(position)->value += 10;
    CHECK(readOnly.GetNext(position)->value == 2);
    CHECK(position == nullptr);
    position = list.GetTailPosition();
    CHECK(list.GetPrev(position) == &second);
    CHECK(readOnly.GetPrev(position)->value == 11);
    CHECK(position == nullptr);
}

TEST_CASE("a typed list takes in another one, at either end and in its order")
{
    CItem items[] = {CItem(0), CItem(1), CItem(2)};
    List inner;
    inner.AddTail(&items[0]);
    inner.AddTail(&items[1]);
    List list;
    list.AddTail(&items[2]);
    list.AddHead(&inner);
    list.AddTail(&inner);
    const int wanted[] = {0, 1, 2, 0, 1};
    POSITION position = list.GetHeadPosition();
    for (const int value : wanted) {
        REQUIRE(position != nullptr);
        CHECK(list.GetNext(position)->value == value);
    }
    CHECK(position == nullptr);
}

TEST_CASE("a typed map gives its own keys and values back")
{
    CItem first(1);
    CItem second(2);
    Map map;
    map.SetAt("first", &first);
    map[_T("second")] = &second;
    CItem* found = NULL;
    CHECK(map.Lookup(_T("second"), found));
    CHECK(found->value == 2);
    CHECK_FALSE(map.Lookup(_T("third"), found));
    CHECK(found == &second);
    CString key;
    POSITION position = map.GetStartPosition();
    map.GetNextAssoc(position, key, found);
    CHECK(key == "first");
    CHECK(found == &first);
    CHECK(map.RemoveKey("first"));
    CHECK_FALSE(map.RemoveKey("first"));
    CHECK(map.GetCount() == 1);
}
