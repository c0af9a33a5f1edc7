// What collections do with their elements in archives and dumps. The functions may be specialised
// for an element type.
#pragma once

#include <classes/CArchive.h>
#include <classes/CDumpContext.h>

#include <cstdint>
#include <type_traits>

namespace afxint {

/// The number of elements of a collection in an archive.
inline void WriteCount(CArchive& ar, INT_PTR count)
{
    const ULONGLONG number = static_cast<ULONGLONG>(count);
    if (number < 0xFFFF) {
        ar << static_cast<WORD>(number);
        return;
    }
    ar << static_cast<WORD>(0xFFFF);
    if (number < 0xFFFFFFFF)
        ar << static_cast<DWORD>(number);
    else
        ar << static_cast<DWORD>(0xFFFFFFFF) << number;
}

inline INT_PTR ReadCount(CArchive& ar)
{
    WORD small = 0;
    ar >> small;
    if (small != 0xFFFF)
        return small;
    DWORD middle = 0;
    ar >> middle;
    ULONGLONG number = middle;
    if (middle == 0xFFFFFFFF)
        ar >> number;
    if (number > static_cast<ULONGLONG>(INTPTR_MAX))
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
    return static_cast<INT_PTR>(number);
}

/// As ReadCount, for elements that get their memory at once: a number that is too great for the
/// whole file is not believed.
inline INT_PTR ReadArraySize(CArchive& ar, size_t elementSize)
{
    constexpr ULONGLONG believed = 1 << 20; // Bytes that are allocated without a question.
    const INT_PTR count = ReadCount(ar);
    if (static_cast<ULONGLONG>(count) <= believed / elementSize)
        return count;
    // An element takes a byte at least.
    if (static_cast<ULONGLONG>(count) > ar.GetFile()->GetLength())
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
    return count;
}

/// Elements as their bytes.
inline void SerializeBytes(CArchive& ar, void* elements, ULONGLONG count)
{
    BYTE* at = static_cast<BYTE*>(elements);
    while (count > 0) {
        const UINT part = static_cast<UINT>(min<ULONGLONG>(count, INT_MAX));
        if (ar.IsStoring())
            ar.Write(at, static_cast<INT>(part));
        else if (ar.Read(at, part) != part)
            AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
        at += part;
        count -= part;
    }
}

} // namespace afxint

/// Stores or loads elements: their bytes, which is no way to treat elements that own something.
template <class TYPE>
void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount)
{
    if constexpr (std::is_trivially_copyable_v<TYPE>)
        afxint::SerializeBytes(ar, pElements, static_cast<ULONGLONG>(nCount) * sizeof(TYPE));
    else
        AfxThrowNotSupportedException();
}

namespace afxint {

/// Elements one by one, by their operators.
template <class TYPE>
void SerializeByOperators(CArchive& ar, TYPE* elements, INT_PTR count)
{
    for (INT_PTR i = 0; i < count; ++i) {
        if (ar.IsStoring())
            ar << elements[i];
        else
            ar >> elements[i];
    }
}

} // namespace afxint

template <>
inline void AFXAPI SerializeElements<CStringA>(CArchive& ar, CStringA* pElements, INT_PTR nCount)
{
    afxint::SerializeByOperators(ar, pElements, nCount);
}

template <>
inline void AFXAPI SerializeElements<CStringW>(CArchive& ar, CStringW* pElements, INT_PTR nCount)
{
    afxint::SerializeByOperators(ar, pElements, nCount);
}

/// Writes elements out in a dump of depth above 0; nothing, unless specialised.
template <class TYPE>
void AFXAPI DumpElements(CDumpContext&, const TYPE*, INT_PTR)
{
}

namespace afxint {

/// The first lines of a collection's dump.
template <class COLLECTION>
CDumpContext& DumpHead(CDumpContext& dc, const COLLECTION& collection)
{
    collection.CObject::Dump(dc);
    return dc << "with " << static_cast<LONGLONG>(collection.GetCount()) << " elements\n";
}

/// Stores or loads an array; `elements(data, count)` does so with its elements. When loading fails,
/// the array keeps what it had. Pointers to objects that were loaded by then stand behind that, so
/// that who owns them can still delete them.
template <class ARRAY, class ELEMENTS>
void SerializeArray(CArchive& ar, ARRAY& array, const ELEMENTS& elements)
{
    using TYPE = std::remove_reference_t<decltype(*array.GetData())>;
    const INT_PTR before = array.GetSize();
    if (ar.IsStoring()) {
        WriteCount(ar, before);
        elements(array.GetData(), before);
        return;
    }
    struct Restore
    {
        ARRAY& array;
        INT_PTR size;
        ~Restore()
        {
            INT_PTR kept = size;
            if constexpr (std::is_pointer_v<TYPE>) {
                kept = array.GetSize();
                while (kept > size && array.GetData()[kept - 1] == NULL)
                    --kept;
            }
            array.SetSize(kept);
        }
    };
    const INT_PTR count = ReadArraySize(ar, sizeof(TYPE));
    Restore restore{array, before};
    array.SetSize(before + count);
    elements(array.GetData() + before, count);
    restore.size = before + count;
    array.RemoveAt(0, before);
    restore.size = count;
}

} // namespace afxint
