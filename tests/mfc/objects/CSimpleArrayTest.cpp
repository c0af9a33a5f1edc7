#include <atlimage.h>

#include <doctest/doctest.h>

TEST_CASE("a simple array grows, finds and forgets")
{
    CSimpleArray<int> numbers;
    CHECK(numbers.GetSize() == 0);
    CHECK(numbers.Find(1) == -1);
    for (const int number : {4, 5, 6})
        CHECK(numbers.Add(number));
    CHECK(numbers.GetSize() == 3);
    CHECK(numbers[1] == 5);
    CHECK(numbers.GetData()[2] == 6);
    CHECK(numbers.Find(6) == 2);
    CHECK(numbers.SetAtIndex(0, 7));
    CHECK_FALSE(numbers.SetAtIndex(3, 7));
    CHECK(numbers.Remove(5));
    CHECK_FALSE(numbers.Remove(5));
    CHECK_FALSE(numbers.RemoveAt(2));
    CHECK(numbers.GetSize() == 2);
    CHECK(numbers[0] == 7);
    numbers.RemoveAll();
    CHECK(numbers.GetSize() == 0);
}
