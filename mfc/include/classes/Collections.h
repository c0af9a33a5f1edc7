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

class AFX_EXPORTED CObArray : public afxint::ArrayBase<CObject*, CObject*>
{
    DECLARE_DYNCREATE(CObArray)
};

class AFX_EXPORTED CPtrArray : public afxint::ArrayBase<void*, void*>
{
    DECLARE_DYNCREATE(CPtrArray)
};

class AFX_EXPORTED CStringArray : public afxint::ArrayBase<CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CStringArray)
};

class AFX_EXPORTED CByteArray : public afxint::ArrayBase<BYTE, BYTE>
{
    DECLARE_DYNCREATE(CByteArray)
};

class AFX_EXPORTED CWordArray : public afxint::ArrayBase<WORD, WORD>
{
    DECLARE_DYNCREATE(CWordArray)
};

class AFX_EXPORTED CDWordArray : public afxint::ArrayBase<DWORD, DWORD>
{
    DECLARE_DYNCREATE(CDWordArray)
};

class AFX_EXPORTED CUIntArray : public afxint::ArrayBase<UINT, UINT>
{
    DECLARE_DYNCREATE(CUIntArray)
};

class AFX_EXPORTED CObList : public afxint::ListBase<CObject*, CObject*>
{
    DECLARE_DYNCREATE(CObList)

public:
    explicit CObList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}
};

class AFX_EXPORTED CPtrList : public afxint::ListBase<void*, void*>
{
    DECLARE_DYNCREATE(CPtrList)

public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}
};

class AFX_EXPORTED CStringList : public afxint::ListBase<CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CStringList)

public:
    explicit CStringList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}
};

class AFX_EXPORTED CMapStringToString : public afxint::FixedMap<CString, LPCTSTR, CString, LPCTSTR>
{
    DECLARE_DYNCREATE(CMapStringToString)

public:
    explicit CMapStringToString(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    using MapBase::PGetFirstAssoc;
    using MapBase::PGetNextAssoc;
    using MapBase::PLookup;
};

class AFX_EXPORTED CMapStringToPtr : public afxint::FixedMap<CString, LPCTSTR, void*, void*>
{
    DECLARE_DYNCREATE(CMapStringToPtr)

public:
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class AFX_EXPORTED CMapStringToOb : public afxint::FixedMap<CString, LPCTSTR, CObject*, CObject*>
{
    DECLARE_DYNCREATE(CMapStringToOb)

public:
    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class AFX_EXPORTED CMapPtrToPtr : public afxint::FixedMap<void*, void*, void*, void*>
{
    DECLARE_DYNCREATE(CMapPtrToPtr)

public:
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class AFX_EXPORTED CMapPtrToWord : public afxint::FixedMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNCREATE(CMapPtrToWord)

public:
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class AFX_EXPORTED CMapWordToPtr : public afxint::FixedMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNCREATE(CMapWordToPtr)

public:
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};

class AFX_EXPORTED CMapWordToOb : public afxint::FixedMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_DYNCREATE(CMapWordToOb)

public:
    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}
};
