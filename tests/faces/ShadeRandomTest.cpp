#include "faces/ShadeRandom.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <initializer_list>

TEST_CASE("a fresh stream gives the numbers of an unseeded program")
{
    ShadeRandom random;
    const int expected[] = {41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464};
    for (int number : expected)
        CHECK(random.Next() == number);
}

TEST_CASE("skipping is the same as drawing")
{
    for (int count : {0, 1, 2, 3, 31, 32, 33, 1000, 65536, 100003}) {
        ShadeRandom drawn(123456789u);
        for (int i = 0; i < count; ++i)
            drawn.Next();
        ShadeRandom skipped(123456789u);
        skipped.Skip(count);
        CHECK(skipped.GetState() == drawn.GetState());
    }
}

TEST_CASE("skipping the whole period comes back to the start")
{
    ShadeRandom random(42);
    random.Skip(std::uint64_t{1} << 32);
    CHECK(random.GetState() == 42);
    random.Skip((std::uint64_t{1} << 32) - 1);
    random.Next();
    CHECK(random.GetState() == 42);
}

TEST_CASE("all callers share one process stream")
{
    CHECK(&ShadeRandom::OfProcess() == &ShadeRandom::OfProcess());
}

#ifdef _WIN32
TEST_CASE("the numbers are those of the run-time's rand, which stays as it was")
{
    std::srand(1);
    ShadeRandom random;
    for (int i = 0; i < 1000; ++i)
        REQUIRE(random.Next() == std::rand());

    std::srand(7);
    const int first = std::rand();
    const int second = std::rand();
    std::srand(7);
    CHECK(std::rand() == first);
    random.Next();
    ShadeRandom::OfProcess().Next();
    CHECK(std::rand() == second);
}
#endif
