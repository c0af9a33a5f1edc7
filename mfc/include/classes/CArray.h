// The array template, and what all arrays of the library share.
//
// An index outside the array throws CInvalidArgException.
#pragma once

#include <classes/CException.h>
#include <classes/CObject.h>
#include <classes/Platform.h>

#include <cstdint>
#include <new>
#include <utility>

/// Copies elements into elements that exist already; may be specialised.
template <class TYPE>
void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
        pDest[i] = pSrc[i];
}

namespace afxint {

/// Elements in one block that grows. Elements move in memory when it does; those that can be
/// neither moved nor copied move bit by bit.
template <class TYPE, class ARG_TYPE>
class ArrayBase : public CObject
{
public:
    ArrayBase() = default;
    ~ArrayBase() override { FreeAll(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    /// New elements are value-initialised. A positive nGrowBy sets the steps of later growth.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_pData[Checked(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }
    const TYPE& operator[](INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// The index of the new element.
    INT_PTR Add(ARG_TYPE newElement);
    /// The index of the first appended element.
    INT_PTR Append(const ArrayBase& src);
    void Copy(const ArrayBase& src);
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, ArrayBase* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

private:
    INT_PTR Checked(INT_PTR index) const
    {
        if (index < 0 || index >= m_nSize)
            AfxThrowInvalidArgException();
        return index;
    }
    void Reserve(INT_PTR capacity);
    void Reallocate(INT_PTR capacity);
    void OpenGap(INT_PTR index, INT_PTR count);
    void FreeAll();
    static void Relocate(TYPE* to, TYPE* from, INT_PTR count);

    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nCapacity = 0;
    INT_PTR m_nGrowBy = 0;
};

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nNewSize < 0)
        AfxThrowInvalidArgException();
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    if (nNewSize == 0) {
        FreeAll();
        return;
    }
    Reserve(nNewSize);
    while (m_nSize < nNewSize) {
        ::new (static_cast<void*>(m_pData + m_nSize)) TYPE();
        ++m_nSize;
    }
    while (m_nSize > nNewSize) {
        --m_nSize;
        m_pData[m_nSize].~TYPE();
    }
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nSize == 0)
        FreeAll();
    else if (m_nSize < m_nCapacity)
        Reallocate(m_nSize);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    if (nIndex < 0)
        AfxThrowInvalidArgException();
    if (nIndex < m_nSize) {
        m_pData[nIndex] = newElement;
        return;
    }
    TYPE value(newElement); // The argument may live in this array, which moves.
    SetSize(nIndex + 1);
    m_pData[nIndex] = std::move(value);
}

template <class TYPE, class ARG_TYPE>
INT_PTR ArrayBase<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement)
{
    const INT_PTR index = m_nSize;
    SetAtGrow(index, newElement);
    return index;
}

template <class TYPE, class ARG_TYPE>
INT_PTR ArrayBase<TYPE, ARG_TYPE>::Append(const ArrayBase& src)
{
    const INT_PTR first = m_nSize;
    const INT_PTR count = src.m_nSize; // Read first: an array may be appended to itself.
    SetSize(first + count);
    CopyElements<TYPE>(m_pData + first, src.m_pData, count);
    return first;
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Copy(const ArrayBase& src)
{
    if (this == &src)
        return;
    SetSize(src.m_nSize);
    CopyElements<TYPE>(m_pData, src.m_pData, m_nSize);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    if (nIndex < 0 || nCount <= 0)
        AfxThrowInvalidArgException();
    TYPE value(newElement);
    OpenGap(nIndex, nCount);
    for (INT_PTR i = 0; i < nCount; ++i)
        m_pData[nIndex + i] = value;
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, ArrayBase* pNewArray)
{
    if (nStartIndex < 0 || pNewArray == nullptr || pNewArray == this)
        AfxThrowInvalidArgException();
    if (pNewArray->m_nSize == 0)
        return;
    OpenGap(nStartIndex, pNewArray->m_nSize);
    CopyElements<TYPE>(m_pData + nStartIndex, pNewArray->m_pData, pNewArray->m_nSize);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0 || nIndex > m_nSize || nCount > m_nSize - nIndex)
        AfxThrowInvalidArgException();
    for (INT_PTR i = nIndex; i < nIndex + nCount; ++i)
        m_pData[i].~TYPE();
    Relocate(m_pData + nIndex, m_pData + nIndex + nCount, m_nSize - nIndex - nCount);
    m_nSize -= nCount;
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Reserve(INT_PTR capacity)
{
    if (capacity <= m_nCapacity)
        return;
    const INT_PTR step = m_nGrowBy > 0 ? m_nGrowBy : max(m_nSize / 2, 4);
    // The first block is exact: most arrays get their size once.
    Reallocate(m_nCapacity == 0 ? max(capacity, m_nGrowBy) : max(capacity, m_nCapacity + step));
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Reallocate(INT_PTR capacity)
{
    if (capacity > PTRDIFF_MAX / static_cast<INT_PTR>(sizeof(TYPE)))
        AfxThrowMemoryException();
    void* block = ::operator new(static_cast<size_t>(capacity) * sizeof(TYPE),
                                 std::align_val_t{alignof(TYPE)}, std::nothrow);
    if (block == nullptr)
        AfxThrowMemoryException();
    Relocate(static_cast<TYPE*>(block), m_pData, m_nSize);
    ::operator delete(m_pData, std::align_val_t{alignof(TYPE)});
    m_pData = static_cast<TYPE*>(block);
    m_nCapacity = capacity;
}

/// Makes room for `count` fresh elements at `index`.
template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::OpenGap(INT_PTR index, INT_PTR count)
{
    if (index >= m_nSize) {
        SetSize(index + count);
        return;
    }
    Reserve(m_nSize + count);
    Relocate(m_pData + index + count, m_pData + index, m_nSize - index);
    for (INT_PTR i = 0; i < count; ++i)
        ::new (static_cast<void*>(m_pData + index + i)) TYPE();
    m_nSize += count;
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::FreeAll()
{
    while (m_nSize > 0) {
        --m_nSize;
        m_pData[m_nSize].~TYPE();
    }
    ::operator delete(m_pData, std::align_val_t{alignof(TYPE)});
    m_pData = nullptr;
    m_nCapacity = 0;
}

/// Moves elements to raw memory, which may overlap their old place.
template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Relocate(TYPE* to, TYPE* from, INT_PTR count)
{
    if (count <= 0 || to == from)
        return;
    if constexpr (std::is_trivially_copyable_v<TYPE> || !std::is_move_constructible_v<TYPE>) {
        memmove(static_cast<void*>(to), static_cast<const void*>(from), count * sizeof(TYPE));
    } else {
        const bool backwards = to > from;
        for (INT_PTR i = 0; i < count; ++i) {
            const INT_PTR at = backwards ? count - 1 - i : i;
            ::new (static_cast<void*>(to + at)) TYPE(std::move(from[at]));
            from[at].~TYPE();
        }
    }
}

} // namespace afxint

/// An array of TYPE; ARG_TYPE is how elements are handed over (often const TYPE&).
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public afxint::ArrayBase<TYPE, ARG_TYPE>
{
};
