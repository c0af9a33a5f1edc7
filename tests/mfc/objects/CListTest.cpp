#include <afxtempl.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <string>

namespace {

using Numbers = CList<int, int>;

std::string TextOf(const Numbers& list)
{
    std::string text;
    for (POSITION position = list.GetHeadPosition(); position != NULL;)
        text += std::to_string(list.GetNext(position)) + " ";
    std::string reversed;
    INT_PTR count = 0;
    for (POSITION position = list.GetTailPosition(); position != NULL; ++count)
        reversed = std::to_string(list.GetPrev(position)) + " " + reversed;
    return reversed == text && count == list.GetCount() ? text : "the list is broken";
}

bool ThrowsInvalidArg(auto action)
{
    return Throws<CInvalidArgException>(action);
}

} // namespace

TEST_CASE("elements are added and taken at both ends")
{
    Numbers list;
    CHECK(list.IsEmpty());
    CHECK(list.GetHeadPosition() == NULL);
    list.AddTail(2);
    list.AddHead(1);
    list.AddTail(3);
    CHECK(TextOf(list) == "1 2 3 ");
    CHECK(list.GetHead() == 1);
    CHECK(list.GetTail() == 3);
    list.GetHead() = 10;
    list.GetTail() = 30;
    CHECK(list.RemoveHead() == 10);
    CHECK(list.RemoveTail() == 30);
    CHECK(TextOf(list) == "2 ");
    CHECK(list.RemoveTail() == 2);
    CHECK(list.IsEmpty());
    CHECK(list.GetTailPosition() == NULL);
}

TEST_CASE("a whole list is added at either end, also to itself")
{
    Numbers list;
    list.AddTail(5);
    Numbers others;
    others.AddTail(1);
    others.AddTail(2);
    list.AddHead(&others);
    CHECK(TextOf(list) == "1 2 5 ");
    list.AddTail(&others);
    CHECK(TextOf(list) == "1 2 5 1 2 ");
    others.AddTail(&others);
    CHECK(TextOf(others) == "1 2 1 2 ");
    others.AddHead(&others);
    CHECK(TextOf(others) == "1 2 1 2 1 2 1 2 ");
}

TEST_CASE("a position stays valid while other elements come and go")
{
    Numbers list;
    const POSITION first = list.AddTail(1);
    const POSITION second = list.AddTail(2);
    const POSITION third = list.AddTail(3);
    list.RemoveAt(first);
    CHECK(list.GetAt(second) == 2);
    list.RemoveAt(third);
    CHECK(list.GetAt(second) == 2);
    const POSITION before = list.InsertBefore(second, 20);
    const POSITION after = list.InsertAfter(second, 21);
    CHECK(TextOf(list) == "20 2 21 ");
    list.SetAt(second, 22);
    list.GetAt(before) = 0;
    CHECK(TextOf(list) == "0 22 21 ");
    CHECK(list.GetHeadPosition() == before);
    CHECK(list.GetTailPosition() == after);
    list.RemoveAt(before);
    list.RemoveAt(after);
    list.RemoveAt(second);
    CHECK(list.IsEmpty());
}

TEST_CASE("without a position, elements are inserted at the ends")
{
    Numbers list;
    list.AddTail(1);
    list.InsertBefore(NULL, 0);
    list.InsertAfter(NULL, 2);
    CHECK(TextOf(list) == "0 1 2 ");
}

TEST_CASE("the current element may be removed during a walk")
{
    Numbers list;
    for (int i = 0; i < 10; ++i)
        list.AddTail(i);
    for (POSITION position = list.GetHeadPosition(); position != NULL;) {
        const POSITION current = position;
        if (list.GetNext(position) % 2 == 0)
            list.RemoveAt(current);
    }
    CHECK(TextOf(list) == "1 3 5 7 9 ");
}

TEST_CASE("elements are found by value and by index")
{
    Numbers list;
    for (int value : {1, 2, 1, 3})
        list.AddTail(value);
    const POSITION first = list.Find(1);
    CHECK(first == list.GetHeadPosition());
    const POSITION again = list.Find(1, first);
    CHECK(again == list.FindIndex(2));
    CHECK(list.Find(1, again) == NULL);
    CHECK(list.Find(9) == NULL);
    CHECK(list.FindIndex(0) == first);
    CHECK(list.FindIndex(3) == list.GetTailPosition());
    CHECK(list.FindIndex(4) == NULL);
    CHECK(list.FindIndex(-1) == NULL);
}

TEST_CASE("empty lists and missing positions throw")
{
    Numbers list;
    CHECK(ThrowsInvalidArg([&] { list.GetHead(); }));
    CHECK(ThrowsInvalidArg([&] { list.GetTail(); }));
    CHECK(ThrowsInvalidArg([&] { list.RemoveHead(); }));
    CHECK(ThrowsInvalidArg([&] { list.RemoveTail(); }));
    CHECK(ThrowsInvalidArg([&] { list.GetAt(NULL); }));
    CHECK(ThrowsInvalidArg([&] { list.RemoveAt(NULL); }));
    POSITION none = NULL;
    CHECK(ThrowsInvalidArg([&] { list.GetNext(none); }));
}

TEST_CASE("a list of strings is searched with plain text")
{
    CList<CString, LPCTSTR> texts;
    texts.AddTail(_T("one"));
    texts.AddTail(_T("two"));
    CHECK(texts.Find(_T("two")) == texts.GetTailPosition());
    CHECK(texts.Find(_T("three")) == NULL);
    texts.AddHead(texts.GetTail());
    CHECK(texts.RemoveHead() == "two");
}
