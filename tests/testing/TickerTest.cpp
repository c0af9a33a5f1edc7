#include "testing/Pump.h"
#include "testing/Ticker.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

TEST_CASE("a ticker calls while messages are taken, and no more when it is stopped")
{
    int calls = 0;
    Ticker ticker([&] { ++calls; });
    CHECK(WaitUntil([&] { return calls >= 3; }));
    ticker.Stop();
    const int before = calls;
    int others = 0;
    const Ticker other([&] { ++others; });
    CHECK(WaitUntil([&] { return others >= 5; }));
    CHECK(calls == before);
}

TEST_CASE("a ticker may stop itself, and is called within a loop that it runs")
{
    int depth = 0;
    int deepest = 0;
    Ticker* self = nullptr;
    Ticker ticker([&] {
        deepest = ++depth > deepest ? depth : deepest;
        if (depth == 2)
            self->Stop();
        else
            WaitUntil([&] { return deepest == 2; });
        --depth;
    });
    self = &ticker;
    CHECK(WaitUntil([&] { return deepest == 2 && depth == 0; }));
}
