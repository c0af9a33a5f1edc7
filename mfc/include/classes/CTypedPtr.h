// Wrappers that let the arrays, lists and maps of void* and CObject* be used with one pointer type.
#pragma once

#include <classes/Collections.h>

namespace afxint {

/// Whether pointers of the type load by an operator of their own, as with DECLARE_SERIAL: it takes
/// no objects of other classes.
template <class POINTER, class = void>
constexpr bool loadsItself = false;
template <class POINTER>
constexpr bool loadsItself<
    POINTER, std::void_t<decltype(std::declval<CArchive&>() >> std::declval<POINTER&>())>> = true;

} // namespace afxint

/// BASE_CLASS is CObArray or CPtrArray, TYPE the pointer type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE& ElementAt(INT_PTR nIndex)
    {
        return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(nIndex));
    }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }

    void Serialize(CArchive& ar) override
    {
        if constexpr (std::is_base_of_v<CObArray, BASE_CLASS> && afxint::loadsItself<TYPE>) {
            afxint::SerializeArray(ar, *this, [&ar](CObject** elements, INT_PTR count) {
                afxint::SerializeByOperators(ar, reinterpret_cast<TYPE*>(elements), count);
            });
        } else {
            BASE_CLASS::Serialize(ar);
        }
    }
};

/// BASE_CLASS is CObList or CPtrList, TYPE the pointer type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition)
    {
        return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE GetNext(POSITION& rPosition) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE& GetPrev(POSITION& rPosition)
    {
        return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE GetPrev(POSITION& rPosition) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE& GetAt(POSITION position) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }

    void Serialize(CArchive& ar) override
    {
        if constexpr (std::is_base_of_v<CObList, BASE_CLASS> && afxint::loadsItself<TYPE>) {
            if (ar.IsLoading()) {
                for (INT_PTR left = afxint::ReadCount(ar); left > 0; --left) {
                    TYPE element = NULL;
                    ar >> element;
                    AddTail(element);
                }
                return;
            }
        }
        BASE_CLASS::Serialize(ar);
    }
};

/// BASE_CLASS is one of the maps of fixed types; KEY and VALUE convert to and from its own.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BaseArgKey key, VALUE& rValue) const
    {
        typename BASE_CLASS::BaseValue value{};
        if (!BASE_CLASS::Lookup(key, value))
            return FALSE;
        rValue = (VALUE)value; // NOLINT: as the program's own cast of the stored value.
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BaseArgKey key)
    {
        return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        typename BASE_CLASS::BaseKey key{};
        typename BASE_CLASS::BaseValue value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
};
