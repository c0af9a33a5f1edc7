#include <afxtempl.h>

#include <doctest/doctest.h>

#include <memory>

namespace {

class Thing : public CObject
{
public:
    explicit Thing(int number) : value(number) {}
    int value;
};

} // namespace

TEST_CASE("arrays of fixed types hold their values")
{
    CStringArray texts;
    texts.Add(_T("one"));
    texts.Add(CString("two"));
    texts.InsertAt(1, _T("middle"));
    texts.SetAtGrow(4, _T("five"));
    CHECK(texts.GetSize() == 5);
    CHECK(texts[1] == "middle");
    CHECK(texts[3].IsEmpty());
    texts[0] += "!";
    CHECK(texts.GetAt(0) == "one!");
    CStringArray copy;
    copy.Copy(texts);
    texts.RemoveAll();
    CHECK(copy.GetSize() == 5);
    CHECK(copy[4] == "five");

    CByteArray bytes;
    bytes.Add(200);
    CWordArray words;
    words.Add(60000);
    CDWordArray doubleWords;
    doubleWords.Add(4000000000u);
    CUIntArray numbers;
    numbers.SetSize(2);
    CHECK(bytes[0] == 200);
    CHECK(words[0] == 60000);
    CHECK(doubleWords[0] == 4000000000u);
    CHECK(numbers[1] == 0);
    CPtrArray pointers;
    pointers.Add(&numbers);
    CHECK(pointers[0] == &numbers);
    CObArray objects;
    objects.Add(&numbers);
    CHECK(objects.GetAt(0)->IsKindOf(RUNTIME_CLASS(CUIntArray)));
}

TEST_CASE("lists of fixed types hold their values")
{
    CStringList texts;
    texts.AddTail(_T("one"));
    texts.AddHead(_T("zero"));
    CHECK(texts.GetHead() == "zero");
    CHECK(texts.Find(_T("one")) == texts.GetTailPosition());
    POSITION position = texts.GetHeadPosition();
    CString both = texts.GetNext(position);
    both += texts.GetNext(position);
    CHECK(both == "zeroone");
    CHECK(position == NULL);
    CHECK(texts.RemoveTail() == "one");

    int number = 0;
    CPtrList pointers;
    pointers.AddTail(&number);
    CHECK(pointers.Find(&number) != NULL);
    CHECK(pointers.RemoveHead() == &number);

    Thing first(1);
    Thing second(2);
    CObList objects;
    objects.AddTail(&first);
    objects.InsertBefore(objects.GetHeadPosition(), &second);
    CHECK(static_cast<Thing*>(objects.GetHead())->value == 2);
    objects.RemoveAt(objects.Find(&second));
    CHECK(objects.GetTail() == &first);
}

TEST_CASE("maps of fixed types hold their values")
{
    CMapStringToString texts;
    texts[_T("key")] = _T("value");
    texts.SetAt(_T("other"), CString(_T("thing")));
    CString value;
    CHECK(texts.Lookup(_T("key"), value));
    CHECK(value == "value");
    LPCTSTR key = NULL;
    CString wanted("other");
    REQUIRE(texts.LookupKey(wanted, key));
    CHECK(CString(key) == "other");
    CHECK(key != wanted.GetString());
    CHECK_FALSE(texts.LookupKey(_T("missing"), key));
    CHECK(texts.HashKey(_T("key")) == texts.HashKey(CString(_T("key"))));
    const CMapStringToString::CPair* pair = texts.PLookup(_T("key"));
    REQUIRE(pair != NULL);
    CHECK(pair->key == "key");

    int number = 0;
    CMapStringToPtr toPointer;
    toPointer[_T("number")] = &number;
    void* found = NULL;
    CHECK(toPointer.Lookup(_T("number"), found));
    CHECK(found == &number);
    CHECK(toPointer[_T("missing")] == NULL);

    CMapPtrToPtr pointers;
    pointers[&number] = &found;
    CHECK(pointers[&number] == &found);
    CMapPtrToWord toWord;
    toWord[&number] = 7;
    CHECK(toWord[&number] == 7);
    CMapWordToPtr fromWord;
    fromWord[7] = &number;
    WORD wordKey = 0;
    CHECK(fromWord.LookupKey(7, wordKey));
    CHECK(wordKey == 7);
    CHECK(fromWord[7] == &number);
    Thing thing(3);
    CMapWordToOb objects;
    objects[1] = &thing;
    CMapStringToOb named;
    named[_T("thing")] = objects[1];
    CHECK(named[_T("thing")] == &thing);
}

TEST_CASE("the collections can be made by their run-time class")
{
    for (CRuntimeClass* made :
         {RUNTIME_CLASS(CObArray), RUNTIME_CLASS(CPtrArray), RUNTIME_CLASS(CStringArray),
          RUNTIME_CLASS(CByteArray), RUNTIME_CLASS(CWordArray), RUNTIME_CLASS(CDWordArray),
          RUNTIME_CLASS(CUIntArray), RUNTIME_CLASS(CObList), RUNTIME_CLASS(CPtrList),
          RUNTIME_CLASS(CStringList), RUNTIME_CLASS(CMapStringToString),
          RUNTIME_CLASS(CMapStringToPtr), RUNTIME_CLASS(CMapStringToOb),
          RUNTIME_CLASS(CMapPtrToPtr), RUNTIME_CLASS(CMapPtrToWord), RUNTIME_CLASS(CMapWordToPtr),
          RUNTIME_CLASS(CMapWordToOb)}) {
        CAPTURE(made->m_lpszClassName);
        const std::unique_ptr<CObject> object(made->CreateObject());
        REQUIRE(object != nullptr);
        CHECK(object->IsKindOf(made));
        CHECK(object->IsKindOf(RUNTIME_CLASS(CObject)));
    }
}
