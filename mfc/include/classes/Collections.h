// Arrays, lists and maps of fixed element types. Pointers in them are never deleted by them.
//
// Those of values and of objects go to archives and come from there. Loading replaces what an array
// has, and adds to what a list or a map has. When it fails, what was there stays; objects that were
// loaded by then stand behind it.
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
    DECLARE_SERIAL(CObArray)

public:
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CPtrArray : public afxint::ArrayBase<void*, void*>
{
    DECLARE_DYNCREATE(CPtrArray)

public:
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CStringArray : public afxint::ArrayBase<CString, LPCTSTR>
{
    DECLARE_SERIAL(CStringArray)

public:
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CByteArray : public afxint::ArrayBase<BYTE, BYTE>
{
    DECLARE_SERIAL(CByteArray)

public:
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CWordArray : public afxint::ArrayBase<WORD, WORD>
{
    DECLARE_SERIAL(CWordArray)

public:
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CDWordArray : public afxint::ArrayBase<DWORD, DWORD>
{
    DECLARE_SERIAL(CDWordArray)

public:
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CUIntArray : public afxint::ArrayBase<UINT, UINT>
{
    DECLARE_DYNCREATE(CUIntArray)

public:
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CObList : public afxint::ListBase<CObject*, CObject*>
{
    DECLARE_SERIAL(CObList)

public:
    explicit CObList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CPtrList : public afxint::ListBase<void*, void*>
{
    DECLARE_DYNCREATE(CPtrList)

public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}

    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CStringList : public afxint::ListBase<CString, LPCTSTR>
{
    DECLARE_SERIAL(CStringList)

public:
    explicit CStringList(INT_PTR nBlockSize = 10) : ListBase(nBlockSize) {}

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapStringToString : public afxint::FixedMap<CString, LPCTSTR, CString, LPCTSTR>
{
    DECLARE_SERIAL(CMapStringToString)

public:
    explicit CMapStringToString(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    using MapBase::PGetFirstAssoc;
    using MapBase::PGetNextAssoc;
    using MapBase::PLookup;

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapStringToPtr : public afxint::FixedMap<CString, LPCTSTR, void*, void*>
{
    DECLARE_DYNCREATE(CMapStringToPtr)

public:
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapStringToOb : public afxint::FixedMap<CString, LPCTSTR, CObject*, CObject*>
{
    DECLARE_SERIAL(CMapStringToOb)

public:
    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapPtrToPtr : public afxint::FixedMap<void*, void*, void*, void*>
{
    DECLARE_DYNCREATE(CMapPtrToPtr)

public:
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapPtrToWord : public afxint::FixedMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNCREATE(CMapPtrToWord)

public:
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapWordToPtr : public afxint::FixedMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNCREATE(CMapWordToPtr)

public:
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    void Dump(CDumpContext& dc) const override;
};

class AFX_EXPORTED CMapWordToOb : public afxint::FixedMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_SERIAL(CMapWordToOb)

public:
    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : FixedMap(nBlockSize) {}

    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};
