// Objects and classes in archives.
#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"
#include "tests/mfc/files/ArchiveBytes.h"

#include <memory>
#include <utility>
#include <vector>

namespace {

using namespace std::string_literals;

int living = 0;

/// A figure with neighbours, which it does not own.
class CArchiveNode : public CObject
{
    DECLARE_SERIAL(CArchiveNode)

public:
    CArchiveNode() { ++living; }
    ~CArchiveNode() override { --living; }

    int m_nNumber = 0;
    CArchiveNode* m_pLeft = NULL;
    CObject* m_pRight = NULL;

    void Serialize(CArchive& ar) override
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
            ar << m_nNumber << m_pLeft << m_pRight;
        else
            ar >> m_nNumber >> m_pLeft >> m_pRight;
    }
};
IMPLEMENT_SERIAL(CArchiveNode, CObject, 1)

class CArchiveDisc : public CArchiveNode
{
    DECLARE_SERIAL(CArchiveDisc)

public:
    double m_dRadius = 0;

    void Serialize(CArchive& ar) override
    {
        CArchiveNode::Serialize(ar);
        if (ar.IsStoring())
            ar << m_dRadius;
        else
            ar >> m_dRadius;
    }
};
IMPLEMENT_SERIAL(CArchiveDisc, CArchiveNode, 2)

/// Loads what former versions stored.
class CArchiveVersion : public CObject
{
    DECLARE_SERIAL(CArchiveVersion)

public:
    UINT m_nSchema = 0;
    UINT m_nSecondAnswer = 0;
    CArchiveVersion* m_pNext = NULL;
    UINT m_nSchemaBehindNext = 0;

    void Serialize(CArchive& ar) override
    {
        if (ar.IsStoring()) {
            ar << m_pNext;
            return;
        }
        m_nSchema = ar.GetObjectSchema();
        m_nSecondAnswer = ar.GetObjectSchema();
        ar.SetObjectSchema(m_nSchema);
        ar >> m_pNext;
        m_nSchemaBehindNext = ar.GetObjectSchema();
    }
};
IMPLEMENT_SERIAL(CArchiveVersion, CObject, VERSIONABLE_SCHEMA | 3)

/// No archive takes it.
class CArchivePlain : public CObject
{
    DECLARE_DYNCREATE(CArchivePlain)
};
IMPLEMENT_DYNCREATE(CArchivePlain, CObject)

/// Owns what it loads, and stores fewer than it says.
class CArchivePromise : public CObject
{
    DECLARE_SERIAL(CArchivePromise)

public:
    ~CArchivePromise() override { delete m_pFirst; }
    CArchiveNode* m_pFirst = NULL;

    void Serialize(CArchive& ar) override
    {
        int never = 0;
        if (ar.IsStoring())
            ar << m_pFirst;
        else
            ar >> m_pFirst >> never;
    }
};
IMPLEMENT_SERIAL(CArchivePromise, CObject, 0)

/// The archive of one object.
std::string Archived(const CObject* object)
{
    return Stored([&](CArchive& ar) { ar << object; });
}

std::unique_ptr<CObject> Loaded(const std::string& bytes)
{
    CObject* object = NULL;
    LoadFrom(bytes, [&](CArchive& ar) { ar >> object; });
    return std::unique_ptr<CObject>(object);
}

int CauseOfLoadingObject(const std::string& bytes)
{
    return CauseOfLoading(bytes, [](CArchive& ar) { delete ar.ReadObject(NULL); });
}

/// What stands before the first object of a class.
std::string ClassHead(const std::string& name, char schema)
{
    return "\xFF\xFF"s + schema + '\0' + static_cast<char>(name.size()) + '\0' + name;
}

const std::string emptyFigure = "\0\0\0\0\0\0\0\0"s; // A number and two NULL pointers.

} // namespace

TEST_CASE("an object comes back as one of its own class")
{
    CArchiveDisc disc;
    disc.m_nNumber = 5;
    disc.m_dRadius = 2.5;
    const std::string bytes = Archived(&disc);
    CHECK(bytes.find(ClassHead("CArchiveDisc", 2)) == 0);
    const std::unique_ptr<CObject> loaded = Loaded(bytes);
    REQUIRE(loaded != nullptr);
    REQUIRE(loaded->IsKindOf(RUNTIME_CLASS(CArchiveDisc)));
    CHECK(static_cast<CArchiveDisc*>(loaded.get())->m_nNumber == 5);
    CHECK(static_cast<CArchiveDisc*>(loaded.get())->m_dRadius == 2.5);
}

TEST_CASE("NULL comes back as NULL")
{
    CHECK(Archived(NULL) == "\0\0"s);
    CObject* object = AfxGetApp();
    CArchiveNode* figure = reinterpret_cast<CArchiveNode*>(object);
    const CObject* constant = object;
    LoadFrom("\0\0\0\0\0\0"s, [&](CArchive& ar) { ar >> object >> figure >> constant; });
    CHECK(object == NULL);
    CHECK(figure == NULL);
    CHECK(constant == NULL);
}

TEST_CASE("each object and each class is stored once")
{
    CArchiveDisc disc;
    CArchiveDisc other;
    const std::string bytes =
        Stored([&](CArchive& ar) { ar << &disc << &other << &disc << &other; });
    const std::string body = emptyFigure + std::string(8, '\0');
    // The class is number 1, the discs are 2 and 3.
    CHECK(bytes == ClassHead("CArchiveDisc", 2) + body + "\x01\x80"s + body + "\x02\0\x03\0"s);
    CArchiveNode* loaded[4] = {};
    LoadFrom(bytes, [&](CArchive& ar) { ar >> loaded[0] >> loaded[1] >> loaded[2] >> loaded[3]; });
    CHECK(loaded[0] != loaded[1]);
    CHECK(loaded[2] == loaded[0]);
    CHECK(loaded[3] == loaded[1]);
    delete loaded[0];
    delete loaded[1];
    CHECK(living == 2);
}

TEST_CASE("objects may refer to each other in circles, and to themselves")
{
    CArchiveNode figure;
    CArchiveDisc disc;
    figure.m_pLeft = &disc;
    figure.m_pRight = &figure;
    disc.m_pLeft = &figure;
    disc.m_pRight = &disc;
    const std::unique_ptr<CObject> loaded = Loaded(Archived(&figure));
    CArchiveNode* first = static_cast<CArchiveNode*>(loaded.get());
    REQUIRE(first->m_pLeft != NULL);
    const std::unique_ptr<CArchiveNode> second(first->m_pLeft);
    CHECK(first->m_pRight == first);
    CHECK(second->IsKindOf(RUNTIME_CLASS(CArchiveDisc)));
    CHECK(second->m_pLeft == first);
    CHECK(second->m_pRight == second.get());
}

TEST_CASE("an object that is only mapped can be referred to")
{
    CArchiveNode owner;
    CArchiveNode part;
    part.m_pRight = &owner;
    const std::string bytes = Stored([&](CArchive& ar) {
        ar.MapObject(&owner);
        ar << &part;
    });
    CArchiveNode newOwner;
    CArchiveNode* loaded = NULL;
    LoadFrom(bytes, [&](CArchive& ar) {
        ar.MapObject(&newOwner);
        ar >> loaded;
    });
    REQUIRE(loaded != NULL);
    CHECK(loaded->m_pRight == &newOwner);
    delete loaded;
}

TEST_CASE("an archive of more objects than short references reach comes back")
{
    constexpr int count = 0x8100;
    std::vector<CArchiveNode> figures(count);
    for (int i = 0; i < count; ++i)
        figures[i].m_nNumber = i;
    CArchiveDisc disc;
    const std::string bytes = Stored([&](CArchive& ar) {
        for (const CArchiveNode& figure : figures)
            ar << &figure;
        ar << &figures[5] << &figures[0x7FFC] << &figures[0x7FFD] << &figures[count - 1] << &disc
           << &disc;
        ar.WriteClass(RUNTIME_CLASS(CArchiveDisc));
    });
    std::vector<std::unique_ptr<CArchiveNode>> loaded;
    LoadFrom(bytes, [&](CArchive& ar) {
        for (int i = 0; i < count; ++i) {
            CArchiveNode* figure = NULL;
            ar >> figure;
            loaded.emplace_back(figure);
        }
        CObject* again[6] = {};
        for (CObject*& object : again)
            ar >> object;
        CHECK(again[0] == loaded[5].get());
        CHECK(again[1] == loaded[0x7FFC].get());
        CHECK(again[2] == loaded[0x7FFD].get());
        CHECK(again[3] == loaded[count - 1].get());
        CHECK(again[4] == again[5]);
        CHECK(again[4]->IsKindOf(RUNTIME_CLASS(CArchiveDisc)));
        delete again[4];
        CHECK(ar.ReadClass() == RUNTIME_CLASS(CArchiveDisc));
    });
    CHECK(loaded[count - 1]->m_nNumber == count - 1);
}

TEST_CASE("a class can be stored without an object")
{
    const std::string bytes = Stored([](CArchive& ar) {
        ar.SerializeClass(RUNTIME_CLASS(CArchiveDisc));
        ar.WriteClass(RUNTIME_CLASS(CArchiveDisc));
        ar.WriteClass(RUNTIME_CLASS(CArchiveVersion));
        ar.WriteObject(NULL);
    });
    LoadFrom(bytes, [](CArchive& ar) {
        ar.SerializeClass(RUNTIME_CLASS(CArchiveNode)); // Of which CArchiveDisc is one.
        CHECK(ar.GetObjectSchema() == 2);
        UINT schema = 0;
        DWORD tag = 0;
        CHECK(ar.ReadClass(RUNTIME_CLASS(CArchiveDisc), &schema, &tag) ==
              RUNTIME_CLASS(CArchiveDisc));
        CHECK(schema == 2);
        CHECK(ar.ReadClass(NULL, &schema, &tag) == RUNTIME_CLASS(CArchiveVersion));
        CHECK(schema == 3);
        CHECK(ar.ReadClass(NULL, &schema, &tag) == NULL);
        CHECK(tag == 0);
    });
    CHECK(CauseOfLoading(bytes, [](CArchive& ar) {
              ar.SerializeClass(RUNTIME_CLASS(CArchiveVersion));
          }) == CArchiveException::badClass);
    CHECK(CauseOfLoading("\0\0"s, [](CArchive& ar) { ar.ReadClass(); }) ==
          CArchiveException::badIndex);
}

TEST_CASE("an object of another version is refused, unless its class takes all versions")
{
    CArchiveNode figure;
    std::string bytes = Archived(&figure);
    bytes[2] = 7; // The version.
    CHECK(CauseOfLoadingObject(bytes) == CArchiveException::badSchema);
    CHECK(living == 1);

    CArchiveVersion versioned;
    CArchiveVersion next;
    versioned.m_pNext = &next;
    bytes = Archived(&versioned);
    for (const char schema : {1, 3, 9}) {
        bytes[2] = schema;
        const std::unique_ptr<CObject> loaded = Loaded(bytes);
        const CArchiveVersion* first = static_cast<CArchiveVersion*>(loaded.get());
        const std::unique_ptr<CArchiveVersion> second(first->m_pNext);
        CHECK(first->m_nSchema == static_cast<UINT>(schema));
        CHECK(first->m_nSecondAnswer == static_cast<UINT>(-1));
        CHECK(second->m_nSchema == static_cast<UINT>(schema)); // Of a class that came before.
        CHECK(first->m_nSchemaBehindNext == static_cast<UINT>(schema));
    }
}

TEST_CASE("an object of an unknown or another class is refused")
{
    CHECK(CauseOfLoadingObject(ClassHead("CUnheardOf", 1) + emptyFigure) ==
          CArchiveException::badClass);
    CHECK(CauseOfLoadingObject(ClassHead("CArchivePlain", -1)) == CArchiveException::badClass);
    CHECK(CauseOfLoadingObject(ClassHead("CWinApp", -1)) == CArchiveException::badClass);
    CHECK(CauseOfLoadingObject(ClassHead("", 0)) == CArchiveException::badClass);
    CHECK(CauseOfLoadingObject("\xFF\xFF\0\0\xFF\xFF"s + std::string(0xFFFF, 'C')) ==
          CArchiveException::badClass);

    CArchiveNode figure;
    CArchiveDisc disc;
    CArchiveDisc* loaded = &disc;
    CHECK(CauseOfLoading(Archived(&figure), [&](CArchive& ar) { ar >> loaded; }) ==
          CArchiveException::badClass);
    CHECK(loaded == &disc);
    // The first is what is wanted, but the reference is to an object of another class.
    CArchiveVersion versioned;
    CArchiveNode* first = NULL;
    CArchiveVersion* second = NULL;
    CHECK(CauseOfLoading(Archived(&figure) + "\x02\0"s, [&](CArchive& ar) {
              ar >> first >> second;
          }) == CArchiveException::badClass);
    CHECK(second == NULL);
    delete first;
    CHECK(living == 2);
}

TEST_CASE("references to nothing are refused")
{
    CHECK(CauseOfLoadingObject("\x01\0"s) == CArchiveException::badIndex);   // No object.
    CHECK(CauseOfLoadingObject("\x01\x80"s) == CArchiveException::badIndex); // No class.
    CHECK(CauseOfLoadingObject("\0\x80"s) == CArchiveException::badIndex);   // NULL as a class.
    CHECK(CauseOfLoadingObject("\xFF\x7F\xFF\xFF\xFF\x7F"s) == CArchiveException::badIndex);
    CHECK(CauseOfLoadingObject("\xFF\x7F\xFF\xFF\xFF\xFF"s) == CArchiveException::badIndex);
    CHECK(CauseOfLoadingObject("\xFF\x7F\x01"s) == CArchiveException::endOfFile);

    CArchiveNode figure;
    CArchiveNode* first = NULL;
    const auto loadTwo = [&](CArchive& ar) {
        CObject* second;
        ar >> first >> second;
    };
    // Number 1 is a class and number 2 is an object; neither is the other.
    CHECK(CauseOfLoading(Archived(&figure) + "\x01\0"s, loadTwo) == CArchiveException::badIndex);
    delete first;
    CHECK(CauseOfLoading(Archived(&figure) + "\x02\x80"s, loadTwo) == CArchiveException::badIndex);
    delete first;
    CHECK(living == 1);
}

TEST_CASE("a class that is not serialisable goes to no archive")
{
    CArchivePlain plain;
    CHECK(Throws<CNotSupportedException>([&] { Archived(&plain); }));
    CHECK(Throws<CNotSupportedException>([] {
        LoadFrom("\0\0"s, [](CArchive& ar) { ar.ReadObject(RUNTIME_CLASS(CArchivePlain)); });
    }));
}

TEST_CASE("an archive that is cut short leaves no objects behind")
{
    CArchiveNode figure;
    CArchivePromise promise;
    promise.m_pFirst = &figure;
    const std::string bytes = Archived(&promise);
    for (size_t length = 0; length <= bytes.size(); ++length) {
        CAPTURE(length);
        CHECK(CauseOfLoadingObject(bytes.substr(0, length)) == CArchiveException::endOfFile);
        CHECK(living == 1);
    }
    promise.m_pFirst = NULL;
}

TEST_CASE("an object that was lost amid its loading cannot be referred to")
{
    // The reference at its right is to no class.
    const std::string bytes =
        ClassHead("CArchiveNode", 1) + "\0\0\0\0\0\0"s + "\x09\x80"s + "\x02\0"s;
    LoadFrom(bytes, [](CArchive& ar) {
        CObject* object = NULL;
        CHECK(ArchiveCauseOf([&] { ar >> object; }) == CArchiveException::badIndex);
        CHECK(ArchiveCauseOf([&] { ar >> object; }) == CArchiveException::badIndex);
        CHECK(object == NULL);
    });
    CHECK(living == 0);
}

TEST_CASE("objects within objects without end are refused while there is stack left")
{
    // Each figure has another one at its left.
    std::string bytes = ClassHead("CArchiveNode", 1);
    for (int i = 0; i < 200000; ++i)
        bytes += "\0\0\0\0\x01\x80"s;
    CHECK(Throws<CMemoryException>(
        [&] { LoadFrom(bytes, [](CArchive& ar) { delete ar.ReadObject(NULL); }); }));
    CHECK(living == 0);

    // A thousand are no trouble.
    bytes = ClassHead("CArchiveNode", 1);
    for (int i = 0; i < 1000; ++i)
        bytes += "\0\0\0\0\x01\x80"s;
    bytes += emptyFigure;
    for (int i = 0; i < 1000; ++i)
        bytes += "\0\0"s;
    CArchiveNode* figure = static_cast<CArchiveNode*>(Loaded(bytes).release());
    int count = 0;
    while (figure != NULL) {
        delete std::exchange(figure, figure->m_pLeft);
        ++count;
    }
    CHECK(count == 1001);
}

TEST_CASE("what is known about objects may be prepared for many")
{
    CArchiveNode figure;
    const std::string bytes = Stored([&](CArchive& ar) {
        ar.SetStoreParams(4001, 200);
        ar << &figure;
    });
    LoadFrom(bytes, [](CArchive& ar) {
        ar.SetLoadParams(4000);
        CObject* loaded = NULL;
        ar >> loaded;
        CHECK(loaded != NULL);
        delete loaded;
    });
}

TEST_CASE("objects of an extension DLL load as long as it is there")
{
    const HMODULE extension = AfxLoadLibrary(_T("mfc-test-extension.dll"));
    REQUIRE(extension != NULL);
    std::string bytes;
    {
        const std::unique_ptr<CObject> item(CRuntimeClass::CreateObject("CExtensionItem"));
        REQUIRE(item != nullptr);
        bytes = Archived(item.get());
        CHECK(bytes.find("CExtensionItem") != std::string::npos);
        const std::unique_ptr<CObject> loaded = Loaded(bytes);
        CHECK(loaded->GetRuntimeClass() == item->GetRuntimeClass());
        CHECK(Archived(loaded.get()) == bytes);
        CHECK(CauseOfLoadingObject(bytes.substr(0, bytes.size() - 1)) ==
              CArchiveException::endOfFile);
    }
    AfxFreeLibrary(extension);
    CHECK(CauseOfLoadingObject(bytes) == CArchiveException::badClass);
}
