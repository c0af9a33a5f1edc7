#include <afxtempl.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <map>
#include <random>
#include <string>

namespace {

struct Place
{
    int x = 0;
    int y = 0;
    bool operator==(const Place& other) const { return x == other.x && y == other.y; }
};

/// Equal when the letters are, whatever their case.
struct Word
{
    CString text;
};

} // namespace

template <>
UINT AFXAPI HashKey<const Place&>(const Place& place)
{
    return place.x * 31 + place.y;
}

template <>
UINT AFXAPI HashKey<const Word&>(const Word& word)
{
    return static_cast<UINT>(word.text.GetLength());
}

template <>
BOOL AFXAPI CompareElements<Word, Word>(const Word* a, const Word* b)
{
    return a->text.CompareNoCase(b->text) == 0;
}

TEST_CASE("values are set, looked up and removed by their key")
{
    CMap<int, int, CString, LPCTSTR> map;
    CHECK(map.IsEmpty());
    map.SetAt(1, _T("one"));
    map[2] = "two";
    CHECK(map.GetCount() == 2);
    CHECK(map.GetSize() == 2);
    CString text = "before";
    CHECK(map.Lookup(1, text));
    CHECK(text == "one");
    CHECK_FALSE(map.Lookup(3, text));
    CHECK(text == "one");
    map.SetAt(1, _T("uno"));
    CHECK(map.GetCount() == 2);
    CHECK(map[1] == "uno");
    CHECK(map[9].IsEmpty());
    CHECK(map.GetCount() == 3);
    CHECK(map.RemoveKey(1));
    CHECK_FALSE(map.RemoveKey(1));
    CHECK_FALSE(map.Lookup(1, text));
    map.RemoveAll();
    CHECK(map.IsEmpty());
    CHECK(map.GetStartPosition() == NULL);
}

TEST_CASE("strings are keys by their characters")
{
    CMap<CString, LPCTSTR, int, int> map;
    TCHAR key[] = _T("key");
    map.SetAt(key, 1);
    key[0] = 'K';
    map.SetAt(key, 2);
    int value = 0;
    CHECK(map.Lookup(CString("key"), value));
    CHECK(value == 1);
    CHECK(map.Lookup(_T("Key"), value));
    CHECK(value == 2);

    CMap<CString, const CString&, int, int> byReference;
    byReference[CString("a")] = 3;
    CHECK(byReference.Lookup(CString("a"), value));
    CHECK(value == 3);
}

TEST_CASE("a walk meets every entry once, in the order of their making")
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 500; ++i)
        map[i * 7919] = i;
    int expected = 0;
    for (POSITION position = map.GetStartPosition(); position != NULL; ++expected) {
        int key = -1;
        int value = -1;
        map.GetNextAssoc(position, key, value);
        REQUIRE(value == expected);
        REQUIRE(key == expected * 7919);
    }
    CHECK(expected == 500);

    expected = 0;
    for (auto* pair = map.PGetFirstAssoc(); pair != NULL; pair = map.PGetNextAssoc(pair)) {
        pair->value += 1;
        ++expected;
    }
    CHECK(expected == 500);
    CHECK(map.PLookup(7919)->value == 2);
    CHECK(map.PLookup(1) == NULL);
}

TEST_CASE("the entry just met may be removed during a walk")
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 20; ++i)
        map[i] = i;
    for (POSITION position = map.GetStartPosition(); position != NULL;) {
        int key = -1;
        int value = -1;
        map.GetNextAssoc(position, key, value);
        if (key % 2 == 0)
            map.RemoveKey(key);
    }
    CHECK(map.GetCount() == 10);
    int value = 0;
    CHECK(map.Lookup(1, value));
    CHECK_FALSE(map.Lookup(2, value));
}

TEST_CASE("keys of a program's own kind use its hash and comparison")
{
    CMap<Place, const Place&, int, int> places;
    places[Place{1, 2}] = 12;
    places[Place{2, 1}] = 21;
    int value = 0;
    CHECK(places.Lookup(Place{2, 1}, value));
    CHECK(value == 21);
    CHECK_FALSE(places.Lookup(Place{1, 1}, value));

    CMap<Word, const Word&, int, int> words;
    words[Word{"Hello"}] = 1;
    words[Word{"hELLO"}] = 2;
    CHECK(words.GetCount() == 1);
    CHECK(words[Word{"hello"}] == 2);
}

TEST_CASE("the table's size may be set for an empty map")
{
    CMap<int, int, int, int> map;
    map.InitHashTable(257);
    CHECK(map.GetHashTableSize() == 257);
    map[1] = 1;
    CHECK(Throws<CInvalidArgException>([&] { map.InitHashTable(17); }));
    POSITION none = NULL;
    int key = 0;
    CHECK(Throws<CInvalidArgException>([&] { map.GetNextAssoc(none, key, key); }));
}

TEST_CASE("a map agrees with the standard library's over many random changes")
{
    std::mt19937 random(2026);
    CMap<int, int, int, int> map;
    std::map<int, int> model;
    for (int round = 0; round < 20000; ++round) {
        const int key = static_cast<int>(random() % 300);
        if (random() % 3 == 0) {
            REQUIRE((map.RemoveKey(key) != FALSE) == (model.erase(key) == 1));
        } else {
            map[key] = round;
            model[key] = round;
        }
        REQUIRE(map.GetCount() == static_cast<INT_PTR>(model.size()));
    }
    for (const auto& [key, value] : model) {
        int found = -1;
        REQUIRE(map.Lookup(key, found));
        REQUIRE(found == value);
    }
    INT_PTR met = 0;
    for (POSITION position = map.GetStartPosition(); position != NULL; ++met) {
        int key = 0;
        int value = 0;
        map.GetNextAssoc(position, key, value);
        REQUIRE(model.at(key) == value);
    }
    CHECK(met == map.GetCount());
}
