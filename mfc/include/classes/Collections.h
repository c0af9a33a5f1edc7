// Arrays, lists and maps of fixed element types. Pointers in them are never deleted by them.
#pragma once

#include <classes/CArray.h>
#include <classes/CList.h>
#include <classes/CMap.h>
#include <classes/CObject.h>
#include <classes/CString.h>

namespace afxint {

/// What the maps of fixed types have beyond the template.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class FixedMap : public MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>
{
    using Base = MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>;

public:
    using Base::Base;

    UINT HashKey(ARG_KEY key) const { return ::HashKey<ARG_KEY>(key); }
    /// The key as the map holds it. FALSE when there is no such key.
    BOOL LookupKey(ARG_KEY key, ARG_KEY& rKey) const
    {
        const auto* pair = Base::PLookup(key);
        if (pair == NULL)
            return FALSE;
        rKey = pair->key;
        return TRUE;
    }
};

} // namespace afxint

class CObArray : public afxint::ArrayBase<CObject*, CObject*>
{
    DECLARE_DYNCREATE(CObArray)
};

class CPtrArray : public afxint::ArrayBase<void*, void*>
{
    DECLARE_DYNCREATE(CPtrArray)
};

class CStringArray : public afxint::ArrayBase<CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CStringArray)
};

class CByteArray : public afxint::ArrayBase<BYTE, BYTE>
{
    DECLARE_DYNCREATE(CByteArray)
};

class CWordArray : public afxint::ArrayBase<WORD, WORD>
{
    DECLARE_DYNCREATE(CWordArray)
};

class CDWordArray : public afxint::ArrayBase<DWORD, DWORD>
{
    DECLARE_DYNCREATE(CDWordArray)
};

class CUIntArray : public afxint::ArrayBase<UINT, UINT>
{
    DECLARE_DYNCREATE(CUIntArray)
};

class CObList : public afxint::ListBase<CObject*, CObject*>
{
    DECLARE_DYNCREATE(CObList)

public:
    explicit CObList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}
};

class CPtrList : public afxint::ListBase<void*, void*>
{
    DECLARE_DYNCREATE(CPtrList)

public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}
};

class CStringList : public afxint::ListBase<CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CStringList)

public:
    explicit CStringList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}
};

class CMapStringToString : public afxint::FixedMap<CString, LPCTSTR, CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CMapStringToString)

public:
    explicit CMapStringToString(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    using MapBase::PGetFirstAssoc;
    using MapBase::PGetNextAssoc;
    using MapBase::PLookup;
};

class CMapStringToPtr : public afxint::FixedMap<CString, LPCTSTR, void*, void*>
{
    DECLARE_DYNCREATE(CMapStringToPtr)

public:
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class CMapStringToOb : public afxint::FixedMap<CString, LPCTSTR, CObject*, CObject*>
{
    DECLARE_DYNCREATE(CMapStringToOb)

public:
    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class CMapPtrToPtr : public afxint::FixedMap<void*, void*, void*, void*>
{
    DECLARE_DYNCREATE(CMapPtrToPtr)

public:
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class CMapPtrToWord : public afxint::FixedMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNCREATE(CMapPtrToWord)

public:
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class CMapWordToPtr : public afxint::FixedMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNCREATE(CMapWordToPtr)

public:
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class CMapWordToOb : public afxint::FixedMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_DYNCREATE(CMapWordToOb)

public:
    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};
