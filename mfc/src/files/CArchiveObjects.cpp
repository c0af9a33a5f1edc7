// Objects and their classes in archives.
#include <classes/CArchive.h>
#include <classes/Trace.h>

#include "files/ArchiveObjects.h"

#include <utility>

namespace {

// Before each object stands a tag: the number of an object that came before, the number of the
// object's class with a mark, or the mark of a new class, which then follows.
constexpr WORD nullTag = 0;
constexpr WORD newClassTag = 0xFFFF;
constexpr WORD classMark = 0x8000;
constexpr WORD longTag = 0x7FFF; // A tag of 32 bits follows.
constexpr DWORD longClassMark = 0x80000000;
constexpr DWORD mostObjects = 0x3FFFFFFE;

constexpr UINT notSerializable = 0xFFFF;
constexpr WORD longestClassName = 255;

constexpr UINT_PTR stackReserve = 128 * 1024; // Bytes that an object's own Serialize may need.

UINT SchemaOf(const CRuntimeClass& known)
{
    return known.m_wSchema & ~VERSIONABLE_SCHEMA;
}

/// How far down the stack of this thread may go before objects are refused.
const BYTE* LowestUsableStack()
{
    MEMORY_BASIC_INFORMATION stack = {};
    ::VirtualQuery(&stack, &stack, sizeof(stack));
    const BYTE* const lowest = static_cast<const BYTE*>(stack.AllocationBase);
    const BYTE* const highest = static_cast<const BYTE*>(stack.BaseAddress) + stack.RegionSize;
    return lowest + min(stackReserve, static_cast<UINT_PTR>(highest - lowest) / 4);
}

} // namespace

/// An object during its Serialize. Unless that comes to its end, the object is deleted, and
/// forgotten by its archive.
class CArchive::UnfinishedObject
{
public:
    UnfinishedObject(CArchive& archive, CObject* object, UINT schema)
        : archive_(archive), object_(object), number_(archive.KnownObjects().loaded.size()),
          outerSchema_(std::exchange(archive.schema_, schema))
    {
        ++archive.nesting_;
    }
    ~UnfinishedObject()
    {
        --archive_.nesting_;
        archive_.schema_ = outerSchema_;
        if (object_ == NULL)
            return;
        auto& loaded = archive_.KnownObjects().loaded;
        if (number_ < loaded.size())
            loaded[number_].object = NULL;
        delete object_;
    }
    UnfinishedObject(const UnfinishedObject&) = delete;
    UnfinishedObject& operator=(const UnfinishedObject&) = delete;
    CObject* Finish() { return std::exchange(object_, nullptr); }

private:
    CArchive& archive_;
    CObject* object_;
    size_t number_;
    UINT outerSchema_;
};

void CArchive::WriteObject(const CObject* pOb)
{
    Require(store);
    if (pOb == NULL) {
        *this << nullTag;
        return;
    }
    Objects& known = KnownObjects();
    const auto found = known.stored.find(pOb);
    if (found != known.stored.end()) {
        PutTag(found->second);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    MapObject(pOb);
    const_cast<CObject*>(pOb)->Serialize(*this); // A storing archive changes nothing.
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass)
{
    Require(load);
    RequireStack();
    UINT schema = 0;
    DWORD tag = 0;
    CRuntimeClass* const stored = ReadClass(pClass, &schema, &tag);
    if (stored == NULL)
        return ObjectOf(tag, pClass);
    CObject* const object = stored->CreateObject();
    if (object == NULL)
        Fail(CArchiveException::badClass);
    UnfinishedObject unfinished(*this, object, schema);
    MapObject(object);
    object->Serialize(*this);
    return unfinished.Finish();
}

void CArchive::MapObject(const CObject* pOb)
{
    if (pOb == NULL || file_ == NULL)
        return;
    Objects& known = KnownObjects();
    if (IsStoring()) {
        if (known.storedCount >= mostObjects)
            Fail(CArchiveException::badIndex);
        known.stored[pOb] = known.storedCount++;
    } else {
        if (known.loaded.size() >= mostObjects)
            Fail(CArchiveException::badIndex);
        known.loaded.push_back({const_cast<CObject*>(pOb), NULL, 0});
    }
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef)
{
    Require(store);
    if (pClassRef == NULL)
        AfxThrowInvalidArgException();
    const size_t length = strlen(pClassRef->m_lpszClassName);
    if (pClassRef->m_wSchema == notSerializable || length > longestClassName)
        AfxThrowNotSupportedException();
    Objects& known = KnownObjects();
    const auto found = known.stored.find(pClassRef);
    if (found != known.stored.end()) {
        PutTag(longClassMark | found->second);
        return;
    }
    if (known.storedCount >= mostObjects)
        Fail(CArchiveException::badIndex);
    *this << newClassTag << static_cast<WORD>(SchemaOf(*pClassRef)) << static_cast<WORD>(length);
    Write(pClassRef->m_lpszClassName, static_cast<INT>(length));
    known.stored[pClassRef] = known.storedCount++;
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema,
                                   DWORD* pObTag)
{
    Require(load);
    if (pClassRefRequested != NULL && pClassRefRequested->m_wSchema == notSerializable)
        AfxThrowNotSupportedException();
    WORD shortTag = 0;
    *this >> shortTag;
    DWORD tag = shortTag & classMark ? longClassMark | (shortTag & ~classMark) : shortTag;
    if (shortTag == longTag)
        *this >> tag;
    if (!(tag & longClassMark)) {
        if (pObTag == NULL)
            Fail(CArchiveException::badIndex);
        *pObTag = tag;
        return NULL;
    }
    UINT schema = 0;
    CRuntimeClass* stored = NULL;
    if (shortTag == newClassTag) {
        stored = GetNewClass(schema);
    } else {
        const Objects& known = KnownObjects();
        const DWORD number = tag & ~longClassMark;
        if (number >= known.loaded.size() || known.loaded[number].known == NULL)
            Fail(CArchiveException::badIndex);
        stored = known.loaded[number].known;
        schema = known.loaded[number].schema;
    }
    if (pClassRefRequested != NULL && !stored->IsDerivedFrom(pClassRefRequested))
        Fail(CArchiveException::badClass);
    if (pSchema != NULL)
        *pSchema = schema;
    else
        schema_ = schema;
    if (pObTag != NULL)
        *pObTag = tag;
    return stored;
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef)
{
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

void CArchive::SetLoadParams(UINT)
{
}

void CArchive::SetStoreParams(UINT, UINT)
{
}

CArchive::Objects& CArchive::KnownObjects()
{
    if (objects_ == NULL)
        objects_ = new Objects;
    return *objects_;
}

/// Writes the number of an object, or that of a class with the long mark, as short as it can be.
void CArchive::PutTag(DWORD tag)
{
    const DWORD number = tag & ~longClassMark;
    if (number >= longTag)
        *this << longTag << tag;
    else
        *this << static_cast<WORD>(tag & longClassMark ? classMark | number : number);
}

/// The class that is stored here, and its version. It gets the next number.
CRuntimeClass* CArchive::GetNewClass(UINT& schema)
{
    WORD storedSchema = 0;
    WORD length = 0;
    *this >> storedSchema >> length;
    char name[longestClassName + 1];
    if (length > longestClassName)
        Fail(CArchiveException::badClass);
    ReadWhole(name, length);
    name[length] = '\0';
    CRuntimeClass* const stored = LookUpClass(name, storedSchema);
    Objects& known = KnownObjects();
    if (known.loaded.size() >= mostObjects)
        Fail(CArchiveException::badIndex);
    known.loaded.push_back({NULL, stored, storedSchema});
    schema = storedSchema;
    return stored;
}

/// The program's class of that name, which can load objects of that version.
CRuntimeClass* CArchive::LookUpClass(const char* name, UINT schema) const
{
    CRuntimeClass* const known = CRuntimeClass::FromName(name);
    if (known == NULL || known->m_wSchema == notSerializable) {
        TRACE("The archive has an object of class %hs, which cannot be loaded.\n", name);
        Fail(CArchiveException::badClass);
    }
    if (schema != SchemaOf(*known) && !(known->m_wSchema & VERSIONABLE_SCHEMA)) {
        TRACE("The archive has version %u of class %hs.\n", schema, name);
        Fail(CArchiveException::badSchema);
    }
    return known;
}

/// The object that came before under that number.
CObject* CArchive::ObjectOf(DWORD tag, const CRuntimeClass* wanted)
{
    if (tag == nullTag)
        return NULL;
    const Objects& known = KnownObjects();
    if (tag >= known.loaded.size() || known.loaded[tag].object == NULL)
        Fail(CArchiveException::badIndex);
    CObject* const object = known.loaded[tag].object;
    if (wanted != NULL && !object->IsKindOf(wanted))
        Fail(CArchiveException::badClass);
    return object;
}

/// Objects within objects, as a damaged file may have them without end, are refused while there is
/// still stack left to do so.
void CArchive::RequireStack()
{
    if (nesting_ == 0)
        lowestStack_ = LowestUsableStack();
    const BYTE here = 0;
    if (&here < lowestStack_)
        AfxThrowMemoryException();
}

CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb)
{
    ar.WriteObject(pOb);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb)
{
    pOb = ar.ReadObject(NULL);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, const CObject*& pOb)
{
    pOb = ar.ReadObject(NULL);
    return ar;
}
