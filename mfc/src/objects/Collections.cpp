#include <classes/Collections.h>

IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_DYNCREATE(CPtrArray, CObject)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_DYNCREATE(CUIntArray, CObject)

IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_DYNCREATE(CPtrList, CObject)
IMPLEMENT_SERIAL(CStringList, CObject, 0)

IMPLEMENT_SERIAL(CMapStringToString, CObject, 0)
IMPLEMENT_DYNCREATE(CMapStringToPtr, CObject)
IMPLEMENT_SERIAL(CMapStringToOb, CObject, 0)
IMPLEMENT_DYNCREATE(CMapPtrToPtr, CObject)
IMPLEMENT_DYNCREATE(CMapPtrToWord, CObject)
IMPLEMENT_DYNCREATE(CMapWordToPtr, CObject)
IMPLEMENT_SERIAL(CMapWordToOb, CObject, 0)

namespace {

template <class ARRAY>
void SerializeWhole(CArchive& ar, ARRAY& array)
{
    using TYPE = std::remove_reference_t<decltype(*array.GetData())>;
    afxint::SerializeArray(ar, array, [&ar](TYPE* elements, INT_PTR count) {
        if constexpr (std::is_arithmetic_v<TYPE>)
            SerializeElements<TYPE>(ar, elements, count);
        else
            afxint::SerializeByOperators(ar, elements, count);
    });
}

template <class TYPE, class LIST>
void SerializeList(CArchive& ar, LIST& list)
{
    if (ar.IsStoring()) {
        afxint::WriteCount(ar, list.GetCount());
        for (POSITION at = list.GetHeadPosition(); at != NULL;)
            ar << list.GetNext(at);
        return;
    }
    for (INT_PTR left = afxint::ReadCount(ar); left > 0; --left) {
        TYPE element{};
        ar >> element;
        list.AddTail(element);
    }
}

template <class KEY, class VALUE, class MAP>
void SerializeMap(CArchive& ar, MAP& map)
{
    KEY key{};
    VALUE value{};
    if (ar.IsStoring()) {
        afxint::WriteCount(ar, map.GetCount());
        for (POSITION at = map.GetStartPosition(); at != NULL;) {
            map.GetNextAssoc(at, key, value);
            ar << key << value;
        }
        return;
    }
    for (INT_PTR left = afxint::ReadCount(ar); left > 0; --left) {
        ar >> key >> value;
        map.SetAt(key, value);
    }
}

template <class ARRAY>
void DumpArray(CDumpContext& dc, const ARRAY& array)
{
    afxint::DumpHead(dc, array);
    for (INT_PTR i = 0; dc.GetDepth() > 0 && i < array.GetSize(); ++i)
        dc << "\t[" << static_cast<LONGLONG>(i) << "] = " << array[i] << "\n";
}

template <class LIST>
void DumpList(CDumpContext& dc, const LIST& list)
{
    afxint::DumpHead(dc, list);
    POSITION at = dc.GetDepth() > 0 ? list.GetHeadPosition() : NULL;
    while (at != NULL)
        dc << "\t" << list.GetNext(at) << "\n";
}

template <class KEY, class VALUE, class MAP>
void DumpMap(CDumpContext& dc, const MAP& map)
{
    afxint::DumpHead(dc, map);
    POSITION at = dc.GetDepth() > 0 ? map.GetStartPosition() : NULL;
    while (at != NULL) {
        KEY key{};
        VALUE value{};
        map.GetNextAssoc(at, key, value);
        dc << "\t[" << key << "] = " << value << "\n";
    }
}

} // namespace

void CObArray::Serialize(CArchive& ar)
{
    SerializeWhole(ar, *this);
}

void CObArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CPtrArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CStringArray::Serialize(CArchive& ar)
{
    SerializeWhole(ar, *this);
}

void CStringArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CByteArray::Serialize(CArchive& ar)
{
    SerializeWhole(ar, *this);
}

void CByteArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CWordArray::Serialize(CArchive& ar)
{
    SerializeWhole(ar, *this);
}

void CWordArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CDWordArray::Serialize(CArchive& ar)
{
    SerializeWhole(ar, *this);
}

void CDWordArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CUIntArray::Dump(CDumpContext& dc) const
{
    DumpArray(dc, *this);
}

void CObList::Serialize(CArchive& ar)
{
    SerializeList<CObject*>(ar, *this);
}

void CObList::Dump(CDumpContext& dc) const
{
    DumpList(dc, *this);
}

void CPtrList::Dump(CDumpContext& dc) const
{
    DumpList(dc, *this);
}

void CStringList::Serialize(CArchive& ar)
{
    SerializeList<CString>(ar, *this);
}

void CStringList::Dump(CDumpContext& dc) const
{
    DumpList(dc, *this);
}

void CMapStringToString::Serialize(CArchive& ar)
{
    SerializeMap<CString, CString>(ar, *this);
}

void CMapStringToString::Dump(CDumpContext& dc) const
{
    DumpMap<CString, CString>(dc, *this);
}

void CMapStringToPtr::Dump(CDumpContext& dc) const
{
    DumpMap<CString, void*>(dc, *this);
}

void CMapStringToOb::Serialize(CArchive& ar)
{
    SerializeMap<CString, CObject*>(ar, *this);
}

void CMapStringToOb::Dump(CDumpContext& dc) const
{
    DumpMap<CString, CObject*>(dc, *this);
}

void CMapPtrToPtr::Dump(CDumpContext& dc) const
{
    DumpMap<void*, void*>(dc, *this);
}

void CMapPtrToWord::Dump(CDumpContext& dc) const
{
    DumpMap<void*, WORD>(dc, *this);
}

void CMapWordToPtr::Dump(CDumpContext& dc) const
{
    DumpMap<WORD, void*>(dc, *this);
}

void CMapWordToOb::Serialize(CArchive& ar)
{
    SerializeMap<WORD, CObject*>(ar, *this);
}

void CMapWordToOb::Dump(CDumpContext& dc) const
{
    DumpMap<WORD, CObject*>(dc, *this);
}
