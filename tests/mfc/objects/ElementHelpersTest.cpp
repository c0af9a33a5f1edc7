// Collections in archives and dumps.
#include <afxtempl.h>

#include <doctest/doctest.h>

#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Throws.h"
#include "tests/mfc/files/ArchiveBytes.h"

#include <memory>
#include <utility>

namespace {

using namespace std::string_literals;

struct Person
{
    CString m_strName;
    int m_nAge = 0;
};

struct Unstorable
{
    CString m_strName;
};

int living = 0;

class CElementNote : public CObject
{
    DECLARE_SERIAL(CElementNote)

public:
    explicit CElementNote(LPCTSTR text = _T("")) : m_strText(text) { ++living; }
    ~CElementNote() override { --living; }
    CString m_strText;

    void Serialize(CArchive& ar) override
    {
        if (ar.IsStoring())
            ar << m_strText;
        else
            ar >> m_strText;
    }
};
IMPLEMENT_SERIAL(CElementNote, CObject, 1)

/// Another class, which a typed collection of notes does not take.
class CElementOther : public CObject
{
    DECLARE_SERIAL(CElementOther)
};
IMPLEMENT_SERIAL(CElementOther, CObject, 1)

template <class Collection>
std::string StoredCollection(Collection& collection)
{
    return Stored([&](CArchive& ar) { collection.Serialize(ar); });
}

template <class Collection>
int CauseOfLoadingInto(Collection& collection, const std::string& bytes)
{
    return CauseOfLoading(bytes, [&](CArchive& ar) { collection.Serialize(ar); });
}

/// Fills another collection of the type from the archive of this one.
template <class Collection>
void Copy(Collection& from, Collection& to)
{
    REQUIRE(CauseOfLoadingInto(to, StoredCollection(from)) == -1);
}

/// All but the last byte.
std::string Cut(const std::string& bytes)
{
    return bytes.substr(0, bytes.size() - 1);
}

const std::string hugeCounts[] = {"\xFF\xFF\xFE\xFF\xFF\xFF"s, "\xFF\xFF\xFF\xFF\xFF\x7F"s,
                                  "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"s,
                                  "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s};

} // namespace

template <>
void AFXAPI SerializeElements<Person>(CArchive& ar, Person* pElements, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i) {
        if (ar.IsStoring())
            ar << pElements[i].m_strName << pElements[i].m_nAge;
        else
            ar >> pElements[i].m_strName >> pElements[i].m_nAge;
    }
}

template <>
void AFXAPI DumpElements<Person>(CDumpContext& dc, const Person* pElements, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
        dc << pElements[i].m_strName << ";";
}

TEST_CASE("numbers of elements are stored as short as they can be")
{
    const auto countBytes = [](INT_PTR count) {
        const std::string bytes = Stored([&](CArchive& ar) { afxint::WriteCount(ar, count); });
        LoadFrom(bytes, [&](CArchive& ar) { CHECK(afxint::ReadCount(ar) == count); });
        return bytes;
    };
    CHECK(countBytes(0) == "\0\0"s);
    CHECK(countBytes(0xFFFE) == "\xFE\xFF"s);
    CHECK(countBytes(0xFFFF) == "\xFF\xFF\xFF\xFF\0\0"s);
    CHECK(countBytes(0x7FFFFFFF) == "\xFF\xFF\xFF\xFF\xFF\x7F"s);
#ifdef _WIN64
    CHECK(countBytes(0xFFFFFFFF) == "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0\0"s);
#endif
}

TEST_CASE("arrays of values go to an archive as their bytes and replace what is there")
{
    CByteArray bytes;
    bytes.Add(1);
    bytes.Add(0xFF);
    CHECK(StoredCollection(bytes) == "\x02\0\x01\xFF"s);
    CByteArray loadedBytes;
    loadedBytes.SetSize(10);
    Copy(bytes, loadedBytes);
    REQUIRE(loadedBytes.GetSize() == 2);
    CHECK(loadedBytes[1] == 0xFF);

    CWordArray words;
    words.Add(0x1234);
    CHECK(StoredCollection(words) == "\x01\0\x34\x12"s);
    CDWordArray doubleWords;
    doubleWords.Add(0x12345678);
    CHECK(StoredCollection(doubleWords) == "\x01\0\x78\x56\x34\x12"s);
    CArray<CPoint> points;
    points.Add(CPoint(1, -1));
    CHECK(StoredCollection(points) == "\x01\0\x01\0\0\0\xFF\xFF\xFF\xFF"s);
    CArray<CPoint> loadedPoints;
    Copy(points, loadedPoints);
    CHECK(loadedPoints[0] == CPoint(1, -1));

    points.RemoveAll();
    Copy(points, loadedPoints);
    CHECK(loadedPoints.IsEmpty());
}

TEST_CASE("arrays of strings and of a program's own elements load by their own functions")
{
    CStringArray texts;
    texts.Add(_T("one"));
    texts.Add(_T("two"));
    CStringArray loadedTexts;
    loadedTexts.Add(_T("before"));
    Copy(texts, loadedTexts);
    CHECK(loadedTexts.GetSize() == 2);
    CHECK(loadedTexts[1] == "two");
    CArray<CString> sameTexts;
    REQUIRE(CauseOfLoadingInto(sameTexts, StoredCollection(texts)) == -1);
    CHECK(sameTexts[0] == "one");

    CArray<Person, const Person&> persons;
    persons.Add({_T("Ann"), 30});
    persons.Add({_T("Bob"), 40});
    CArray<Person, const Person&> loaded;
    loaded.Add({_T("before"), 1});
    Copy(persons, loaded);
    REQUIRE(loaded.GetSize() == 2);
    CHECK(loaded[1].m_strName == "Bob");
    CHECK(loaded[1].m_nAge == 40);
}

TEST_CASE("lists and maps add what they load to what they have")
{
    CList<Person, const Person&> persons;
    persons.AddTail({_T("Ann"), 30});
    CList<Person, const Person&> loadedPersons;
    loadedPersons.AddTail({_T("before"), 1});
    Copy(persons, loadedPersons);
    CHECK(loadedPersons.GetCount() == 2);
    CHECK(loadedPersons.GetTail().m_nAge == 30);

    CStringList lines;
    lines.AddTail(_T("line"));
    CStringList loadedLines;
    loadedLines.AddTail(_T("before"));
    Copy(lines, loadedLines);
    CHECK(loadedLines.GetHead() == "before");
    CHECK(loadedLines.GetTail() == "line");

    CMap<int, int, CString, LPCTSTR> names;
    names[1] = _T("one");
    names[2] = _T("two");
    CMap<int, int, CString, LPCTSTR> loadedNames;
    loadedNames[2] = _T("old");
    loadedNames[3] = _T("three");
    Copy(names, loadedNames);
    CHECK(loadedNames.GetCount() == 3);
    CHECK(loadedNames[2] == "two");
    CHECK(loadedNames[3] == "three");

    CMapStringToString words;
    words[_T("key")] = _T("value");
    CMapStringToString loadedWords;
    Copy(words, loadedWords);
    CHECK(loadedWords[_T("key")] == "value");
}

TEST_CASE("collections of objects load objects")
{
    CElementNote note(_T("text"));
    CObArray array;
    array.Add(&note);
    array.Add(NULL);
    array.Add(&note);
    CObArray loadedArray;
    Copy(array, loadedArray);
    REQUIRE(loadedArray.GetSize() == 3);
    CHECK(loadedArray[1] == NULL);
    CHECK(loadedArray[2] == loadedArray[0]);
    const std::unique_ptr<CObject> first(loadedArray[0]);
    CHECK(static_cast<CElementNote*>(first.get())->m_strText == "text");

    CObList list;
    list.AddTail(&note);
    CObList loadedList;
    Copy(list, loadedList);
    const std::unique_ptr<CObject> second(loadedList.RemoveHead());
    CHECK(second->IsKindOf(RUNTIME_CLASS(CElementNote)));

    CMapStringToOb named;
    named[_T("note")] = &note;
    CMapStringToOb loadedNamed;
    Copy(named, loadedNamed);
    const std::unique_ptr<CObject> third(loadedNamed[_T("note")]);
    CHECK(third->IsKindOf(RUNTIME_CLASS(CElementNote)));

    CMapWordToOb numbered;
    numbered[5] = &note;
    CMapWordToOb loadedNumbered;
    Copy(numbered, loadedNumbered);
    const std::unique_ptr<CObject> fourth(loadedNumbered[5]);
    CHECK(fourth->IsKindOf(RUNTIME_CLASS(CElementNote)));
}

TEST_CASE("a collection is an object of an archive itself")
{
    CStringArray texts;
    texts.Add(_T("inner"));
    CObList outer;
    outer.AddTail(&texts);
    const std::string bytes = Stored([&](CArchive& ar) { ar << &outer; });
    CObList* loaded = NULL;
    LoadFrom(bytes, [&](CArchive& ar) { ar >> loaded; });
    REQUIRE(loaded != NULL);
    const std::unique_ptr<CObject> inner(loaded->RemoveHead());
    CHECK(static_cast<CStringArray*>(inner.get())->GetAt(0) == "inner");
    delete loaded;
    for (CRuntimeClass* stored :
         {RUNTIME_CLASS(CObArray), RUNTIME_CLASS(CStringArray), RUNTIME_CLASS(CByteArray),
          RUNTIME_CLASS(CWordArray), RUNTIME_CLASS(CDWordArray), RUNTIME_CLASS(CObList),
          RUNTIME_CLASS(CStringList), RUNTIME_CLASS(CMapStringToString),
          RUNTIME_CLASS(CMapStringToOb), RUNTIME_CLASS(CMapWordToOb)}) {
        CAPTURE(stored->m_lpszClassName);
        const std::unique_ptr<CObject> object(stored->CreateObject());
        CHECK(object->IsSerializable());
    }
    CHECK_FALSE(CPtrArray().IsSerializable());
    CHECK_FALSE(CUIntArray().IsSerializable());
}

TEST_CASE("a typed collection takes objects of its own class only")
{
    CElementNote note(_T("text"));
    CElementOther other;
    CObList right;
    right.AddTail(&note);
    right.AddTail(static_cast<CObject*>(NULL));
    CObArray wrong;
    wrong.Add(&note);
    wrong.Add(&other);

    CTypedPtrList<CObList, CElementNote*> list;
    CHECK(CauseOfLoadingInto(list, StoredCollection(right)) == -1);
    REQUIRE(list.GetCount() == 2);
    CHECK(list.GetHead()->m_strText == "text");
    CHECK(list.GetTail() == NULL);
    CHECK(CauseOfLoadingInto(list, StoredCollection(wrong)) == CArchiveException::badClass);
    REQUIRE(list.GetCount() == 3); // The first note of the other collection came.
    delete list.GetHead();
    delete list.GetTail();

    CTypedPtrArray<CObArray, CElementNote*> array;
    CHECK(CauseOfLoadingInto(array, StoredCollection(right)) == -1);
    REQUIRE(array.GetSize() == 2);
    CHECK(array[0]->m_strText == "text");
    CHECK(CauseOfLoadingInto(array, StoredCollection(wrong)) == CArchiveException::badClass);
    REQUIRE(array.GetSize() == 3);
    CHECK(array[1] == NULL);
    const std::string text(reinterpret_cast<const char*>(_T("text")), 4 * sizeof(TCHAR));
    CHECK(StoredCollection(array).find(text) != std::string::npos);
    delete array[0];
    delete array[2];
    CHECK(living == 1);
}

TEST_CASE("an array that fails to load keeps its values")
{
    CStringArray texts;
    texts.Add(_T("one"));
    texts.Add(_T("two"));
    const std::string cutTexts = Cut(StoredCollection(texts));
    CHECK(CauseOfLoadingInto(texts, cutTexts) == CArchiveException::endOfFile);
    REQUIRE(texts.GetSize() == 2);
    CHECK(texts[1] == "two");

    CArray<double> numbers;
    numbers.Add(1.5);
    const std::string cutNumbers = Cut(StoredCollection(numbers));
    CHECK(CauseOfLoadingInto(numbers, cutNumbers) == CArchiveException::endOfFile);
    REQUIRE(numbers.GetSize() == 1);
    CHECK(numbers[0] == 1.5);

    // Of objects those that came are there, too, for their owner to delete.
    CElementNote note(_T("text"));
    CObArray objects;
    objects.Add(&note);
    objects.Add(NULL);
    const std::string cutObjects = Cut(StoredCollection(objects));
    CHECK(CauseOfLoadingInto(objects, cutObjects) == CArchiveException::endOfFile);
    REQUIRE(objects.GetSize() == 3);
    CHECK(objects[0] == &note);
    CHECK(static_cast<CElementNote*>(objects[2])->m_strText == "text");
    delete objects[2];
    CHECK(living == 1);
}

TEST_CASE("numbers of elements that cannot be true are refused before there is memory for them")
{
    const LittleMemory noGreatBlocks;
    REQUIRE(noGreatBlocks.IsInstalled());
    for (const std::string& count : hugeCounts) {
        CAPTURE(count.size());
        CByteArray bytes;
        bytes.Add(5);
        CHECK(CauseOfLoadingInto(bytes, count + "12345") == CArchiveException::endOfFile);
        CHECK(bytes.GetSize() == 1);
        CStringArray texts;
        CHECK(CauseOfLoadingInto(texts, count + "\x02"
                                                "ab") == CArchiveException::endOfFile);
        CHECK(texts.IsEmpty());
        CArray<double> numbers;
        CHECK(CauseOfLoadingInto(numbers, count + "12345678") == CArchiveException::endOfFile);
        CObArray objects;
        CHECK(CauseOfLoadingInto(objects, count + "\0\0"s) == CArchiveException::endOfFile);
        CHECK(objects.IsEmpty());
        CObList list;
        CHECK(CauseOfLoadingInto(list, count + "\0\0"s) == CArchiveException::endOfFile);
        CStringList lines;
        CHECK(CauseOfLoadingInto(lines, count + "\x02"
                                                "ab") == CArchiveException::endOfFile);
        CMap<int, int, int, int> map;
        CHECK(CauseOfLoadingInto(map, count + "12345678") == CArchiveException::endOfFile);
    }
}

TEST_CASE("elements that own something cannot be stored as their bytes")
{
    CArray<Unstorable> array;
    array.SetSize(1);
    CHECK(Throws<CNotSupportedException>([&] { StoredCollection(array); }));
    CList<Unstorable> list;
    list.AddTail(Unstorable());
    CHECK(Throws<CNotSupportedException>([&] { StoredCollection(list); }));
}

TEST_CASE("a program's own elements are dumped by its own function")
{
    CArray<Person, const Person&> persons;
    persons.Add({_T("Ann"), 30});
    CList<Person, const Person&> list;
    list.AddTail({_T("Bob"), 40});
    CMap<int, int, Person, const Person&> map;
    map[1] = {_T("Cid"), 50};
    CMemFile file;
    CDumpContext dc(&file);
    dc.SetDepth(1);
    dc << persons << list << map;
    CString text;
    const UINT bytes = static_cast<UINT>(file.GetLength());
    file.SeekToBegin();
    file.Read(text.GetBufferSetLength(static_cast<int>(bytes / sizeof(TCHAR))), bytes);
    CHECK(text.Find(_T("with 1 elements\nAnn;")) > 0);
    CHECK(text.Find(_T("with 1 elements\nBob;")) > 0);
    CHECK(text.Find(_T("with 1 elements\nCid;")) > 0);
    persons.AssertValid();
    list.AssertValid();
    map.AssertValid();
}
