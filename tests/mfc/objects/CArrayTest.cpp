#include <afxtempl.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <climits>
#include <string>

namespace {

template <class Array>
std::string TextOf(const Array& array)
{
    std::string text;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        text += std::to_string(array[i]) + " ";
    return text;
}

/// Counts its living instances and notices when it is used outside its life.
class Counted
{
public:
    Counted(int number = 0) : value(number), self_(this) { ++alive; }
    Counted(const Counted& other) : value(other.value), self_(this) { ++alive; }
    Counted& operator=(const Counted& other)
    {
        if (self_ != this)
            ++misused;
        value = other.value;
        return *this;
    }
    ~Counted()
    {
        if (self_ != this)
            ++misused;
        self_ = nullptr;
        --alive;
    }

    int value;
    static inline int alive = 0;
    static inline int misused = 0;

private:
    const Counted* self_;
};

/// Throws when too many instances are made, in either way of moving in memory.
template <bool movesSafely>
class Limited : public Counted
{
public:
    Limited(int number = 0) : Counted(number) { Count(); }
    Limited(const Limited& other) : Counted(other) { Count(); }
    Limited(Limited&& other) noexcept(movesSafely) : Counted(other)
    {
        if (!movesSafely)
            Count();
    }
    Limited& operator=(const Limited&) = default;
    static inline int allowed = INT_MAX; ///< So many more may be made.

private:
    static void Count()
    {
        if (allowed == 0)
            throw 42;
        --allowed;
    }
};

/// Lets each construction in the middle of an insertion fail once, and looks at the array after it.
template <class Element>
void CheckFailingInsertion()
{
    Counted::misused = 0;
    for (int allowed = 0;; ++allowed) {
        CAPTURE(allowed);
        CArray<Element> array;
        array.SetSize(0, 20);
        for (int i = 0; i < 5; ++i)
            array.Add(Element(i));
        if (allowed % 2 != 0)
            array.FreeExtra(); // The insertion needs a new block then.
        bool failed = false;
        Element added(9);
        Element::allowed = allowed / 2;
        try {
            array.InsertAt(2, added, 3);
        } catch (int) {
            failed = true;
        }
        Element::allowed = INT_MAX;
        CHECK(Counted::alive == array.GetSize() + 1);
        CHECK(array[0].value == 0);
        CHECK(array[1].value == 1);
        CHECK(array[array.GetUpperBound()].value == 4);
        if (failed)
            CHECK(array.GetSize() == 5);
        else if (allowed % 2 != 0)
            break;
    }
    CHECK(Counted::alive == 0);
    CHECK(Counted::misused == 0);
}

/// Can be neither copied nor moved, like windows and files.
class Uncopyable : public CObject
{
public:
    int value = 7;
};

bool ThrowsInvalidArg(auto action)
{
    return Throws<CInvalidArgException>(action);
}

} // namespace

TEST_CASE("an array grows by adding and by setting beyond its end")
{
    CArray<int, int> numbers;
    CHECK(numbers.IsEmpty());
    CHECK(numbers.GetUpperBound() == -1);
    CHECK(numbers.Add(10) == 0);
    CHECK(numbers.Add(11) == 1);
    numbers.SetAtGrow(4, 14);
    CHECK(TextOf(numbers) == "10 11 0 0 14 ");
    CHECK(numbers.GetSize() == 5);
    CHECK(numbers.GetCount() == 5);
    CHECK(numbers.GetUpperBound() == 4);
    numbers.SetAt(2, 12);
    numbers[3] = 13;
    numbers.ElementAt(0) += 100;
    CHECK(TextOf(numbers) == "110 11 12 13 14 ");
    CHECK(numbers.GetAt(1) == 11);
    CHECK(numbers.GetData()[4] == 14);
    numbers.RemoveAll();
    CHECK(numbers.IsEmpty());
}

TEST_CASE("elements are inserted and removed in runs")
{
    CArray<int, int> numbers;
    for (int i = 0; i < 5; ++i)
        numbers.Add(i);
    numbers.InsertAt(2, 9, 3);
    CHECK(TextOf(numbers) == "0 1 9 9 9 2 3 4 ");
    numbers.RemoveAt(2, 3);
    numbers.RemoveAt(0);
    CHECK(TextOf(numbers) == "1 2 3 4 ");
    numbers.InsertAt(6, 6);
    CHECK(TextOf(numbers) == "1 2 3 4 0 0 6 ");
    CArray<int, int> more;
    more.Add(70);
    more.Add(80);
    numbers.InsertAt(1, &more);
    CHECK(TextOf(numbers) == "1 70 80 2 3 4 0 0 6 ");
    numbers.RemoveAt(9, 0);
    CHECK(numbers.GetSize() == 9);
}

TEST_CASE("arrays are copied and appended, also to themselves")
{
    CArray<int, int> a;
    a.Add(1);
    a.Add(2);
    CArray<int, int> b;
    b.Add(9);
    b.Copy(a);
    CHECK(TextOf(b) == "1 2 ");
    CHECK(b.Append(a) == 2);
    CHECK(TextOf(b) == "1 2 1 2 ");
    a.Append(a);
    CHECK(TextOf(a) == "1 2 1 2 ");
    a.Copy(a);
    CHECK(TextOf(a) == "1 2 1 2 ");
    a[0] = 5;
    CHECK(b[0] == 1);
}

TEST_CASE("setting the size value-initialises new elements and frees old ones")
{
    CArray<void*, void*> pointers;
    pointers.SetSize(3);
    CHECK(pointers[0] == nullptr);
    CHECK(pointers[2] == nullptr);
    pointers.SetSize(1, 16);
    CHECK(pointers.GetSize() == 1);
    pointers.Add(&pointers);
    const void* block = pointers.GetData();
    for (int i = 0; i < 10; ++i)
        pointers.Add(nullptr);
    CHECK(pointers.GetSize() == 12);
    pointers.FreeExtra();
    CHECK(pointers[1] == &pointers);
    pointers.SetSize(0);
    pointers.FreeExtra();
    CHECK(pointers.GetData() == nullptr);
    CHECK(block != nullptr);
}

TEST_CASE("a wrong index or size throws")
{
    CArray<int, int> numbers;
    numbers.SetSize(3);
    CHECK(ThrowsInvalidArg([&] { numbers.GetAt(3); }));
    CHECK(ThrowsInvalidArg([&] { numbers[-1] = 0; }));
    CHECK(ThrowsInvalidArg([&] { numbers.SetAt(3, 0); }));
    CHECK(ThrowsInvalidArg([&] { numbers.ElementAt(99); }));
    CHECK(ThrowsInvalidArg([&] { numbers.SetAtGrow(-1, 0); }));
    CHECK(ThrowsInvalidArg([&] { numbers.SetSize(-1); }));
    CHECK(ThrowsInvalidArg([&] { numbers.InsertAt(-1, 0); }));
    CHECK(ThrowsInvalidArg([&] { numbers.InsertAt(0, &numbers); }));
    CHECK(ThrowsInvalidArg([&] { numbers.RemoveAt(2, 2); }));
    CHECK(ThrowsInvalidArg([&] { numbers.RemoveAt(-1); }));
    CHECK(ThrowsInvalidArg([&] { numbers.RemoveAt(0, -1); }));
    CHECK(Throws<CMemoryException>([&] { numbers.SetSize(PTRDIFF_MAX); }));
    CHECK(numbers.GetSize() == 3);
}

TEST_CASE("every element is made once, moved properly and destroyed once")
{
    Counted::misused = 0;
    {
        CArray<Counted, const Counted&> array;
        for (int i = 0; i < 100; ++i)
            array.Add(i);
        array.InsertAt(50, array[99], 10);
        CHECK(array[50].value == 99);
        CHECK(array[59].value == 99);
        CHECK(array[60].value == 50);
        array.RemoveAt(0, 60);
        CHECK(array.GetSize() == 50);
        CHECK(array[0].value == 50);
        array.Add(array[0]);
        CHECK(array[50].value == 50);
        array.FreeExtra();
        CHECK(Counted::alive == 51);
        array.SetSize(3);
        CHECK(Counted::alive == 3);
    }
    CHECK(Counted::alive == 0);
    CHECK(Counted::misused == 0);
}

TEST_CASE("an insertion whose elements cannot be made leaves the array as it was")
{
    CheckFailingInsertion<Limited<true>>();
    CheckFailingInsertion<Limited<false>>();
}

TEST_CASE("an array holds objects that cannot be copied")
{
    CArray<Uncopyable, Uncopyable&> array;
    array.SetSize(3);
    array[2].value = 42;
    array.SetSize(100);
    CHECK(array[2].value == 42);
    CHECK(array[99].value == 7);
    array.RemoveAt(0, 2);
    CHECK(array[0].value == 42);
    CHECK(array.GetSize() == 98);
}

TEST_CASE("an array of strings is handed plain text")
{
    CArray<CString, LPCTSTR> texts;
    texts.Add(_T("one"));
    texts.SetAtGrow(2, _T("three"));
    CHECK(texts[0] == "one");
    CHECK(texts[1].IsEmpty());
    CHECK(texts[2] == "three");
    texts.Add(texts[0]);
    CHECK(texts[3] == "one");
    CArray<bool> flags;
    flags.Add(true);
    flags.Add(false);
    const bool* data = flags.GetData();
    CHECK(data[0]);
    CHECK_FALSE(data[1]);
}
