// The array template, and what all arrays of the library share.
//
// An index outside the array throws CInvalidArgException.
#pragma once

#include <classes/CException.h>
#include <classes/CObject.h>
#include <classes/ElementHelpers.h>
#include <classes/Platform.h>

#include <cstdint>
#include <new>
#include <type_traits>
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
/// neither moved nor copied move bit by bit. An exception out of an element leaves an array of
/// whole elements.
template <class TYPE, class ARG_TYPE>
class ArrayBase : public CObject
{
public:
    ArrayBase() = default;
    ~ArrayBase() override { FreeAll(); }

    INT_PTR GetSize() const { return size_; }
    INT_PTR GetCount() const { return size_; }
    BOOL IsEmpty() const { return size_ == 0; }
    INT_PTR GetUpperBound() const { return size_ - 1; }
    /// New elements are value-initialised. A positive nGrowBy sets the steps of later growth.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0); }

    const TYPE& GetAt(INT_PTR nIndex) const { return data_[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return data_[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { data_[Checked(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return data_[Checked(nIndex)]; }
    TYPE& ElementAt(INT_PTR nIndex) { return data_[Checked(nIndex)]; }
    const TYPE* GetData() const { return data_; }
    TYPE* GetData() { return data_; }
    const TYPE& operator[](INT_PTR nIndex) const { return data_[Checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return data_[Checked(nIndex)]; }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// The index of the new element.
    INT_PTR Add(ARG_TYPE newElement);
    /// The index of the first appended element.
    INT_PTR Append(const ArrayBase& src);
    void Copy(const ArrayBase& src);
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, ArrayBase* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    void AssertValid() const override { ASSERT((data_ == NULL) == (capacity_ == 0)); }

private:
    INT_PTR Checked(INT_PTR index) const
    {
        if (index < 0 || index >= size_)
            AfxThrowInvalidArgException();
        return index;
    }
    INT_PTR CapacityFor(INT_PTR size) const;
    void Reserve(INT_PTR capacity);
    void Reallocate(INT_PTR capacity);
    static TYPE* Allocate(INT_PTR capacity);
    static void Free(TYPE* block);
    void Rebuild(INT_PTR capacity, INT_PTR gap, INT_PTR count);
    void OpenGap(INT_PTR index, INT_PTR count);
    void FreeAll();
    static void Relocate(TYPE* to, TYPE* from, INT_PTR count);

    // Whether elements change their place without the risk of an exception half way.
    static constexpr bool movesBits =
        std::is_trivially_copyable_v<TYPE> || !std::is_move_constructible_v<TYPE>;
    static constexpr bool movesSafely =
        movesBits || std::is_nothrow_move_constructible_v<TYPE> || !std::is_move_assignable_v<TYPE>;

    TYPE* data_ = NULL;
    INT_PTR size_ = 0;
    INT_PTR capacity_ = 0;
    INT_PTR growBy_ = 0;
};

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nNewSize < 0)
        AfxThrowInvalidArgException();
    if (nGrowBy >= 0)
        growBy_ = nGrowBy;
    if (nNewSize == 0) {
        FreeAll();
        return;
    }
    Reserve(nNewSize);
    while (size_ < nNewSize) {
        ::new (static_cast<void*>(data_ + size_)) TYPE();
        ++size_;
    }
    while (size_ > nNewSize) {
        --size_;
        data_[size_].~TYPE();
    }
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::FreeExtra()
{
    if (size_ == 0)
        FreeAll();
    else if (size_ < capacity_)
        Reallocate(size_);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    if (nIndex < 0)
        AfxThrowInvalidArgException();
    if (nIndex < size_) {
        data_[nIndex] = newElement;
        return;
    }
    TYPE value(newElement); // The argument may live in this array, which moves.
    SetSize(nIndex + 1);
    data_[nIndex] = std::move(value);
}

template <class TYPE, class ARG_TYPE>
INT_PTR ArrayBase<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement)
{
    const INT_PTR index = size_;
    SetAtGrow(index, newElement);
    return index;
}

template <class TYPE, class ARG_TYPE>
INT_PTR ArrayBase<TYPE, ARG_TYPE>::Append(const ArrayBase& src)
{
    const INT_PTR first = size_;
    const INT_PTR count = src.size_; // Read first: an array may be appended to itself.
    SetSize(first + count);
    CopyElements<TYPE>(data_ + first, src.data_, count);
    return first;
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Copy(const ArrayBase& src)
{
    if (this == &src)
        return;
    SetSize(src.size_);
    CopyElements<TYPE>(data_, src.data_, size_);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    if (nIndex < 0 || nCount <= 0)
        AfxThrowInvalidArgException();
    TYPE value(newElement);
    OpenGap(nIndex, nCount);
    for (INT_PTR i = 0; i < nCount; ++i)
        data_[nIndex + i] = value;
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, ArrayBase* pNewArray)
{
    if (nStartIndex < 0 || pNewArray == NULL || pNewArray == this)
        AfxThrowInvalidArgException();
    if (pNewArray->size_ == 0)
        return;
    OpenGap(nStartIndex, pNewArray->size_);
    CopyElements<TYPE>(data_ + nStartIndex, pNewArray->data_, pNewArray->size_);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0 || nIndex > size_ || nCount > size_ - nIndex)
        AfxThrowInvalidArgException();
    if constexpr (movesSafely) {
        for (INT_PTR i = nIndex; i < nIndex + nCount; ++i)
            data_[i].~TYPE();
        Relocate(data_ + nIndex, data_ + nIndex + nCount, size_ - nIndex - nCount);
        size_ -= nCount;
    } else {
        for (INT_PTR i = nIndex; i < size_ - nCount; ++i)
            data_[i] = std::move(data_[i + nCount]);
        for (; nCount > 0; --nCount)
            data_[--size_].~TYPE();
    }
}

/// The capacity after growing to a size, if need be.
template <class TYPE, class ARG_TYPE>
INT_PTR ArrayBase<TYPE, ARG_TYPE>::CapacityFor(INT_PTR size) const
{
    if (size <= capacity_)
        return capacity_;
    const INT_PTR step = growBy_ > 0 ? growBy_ : max(size_ / 2, 4);
    // The first block is exact: most arrays get their size once.
    return capacity_ == 0 ? max(size, growBy_) : max(size, capacity_ + step);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Reserve(INT_PTR capacity)
{
    if (capacity > capacity_)
        Reallocate(CapacityFor(capacity));
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Reallocate(INT_PTR capacity)
{
    if constexpr (movesSafely) {
        TYPE* block = Allocate(capacity);
        Relocate(block, data_, size_);
        Free(data_);
        data_ = block;
        capacity_ = capacity;
    } else {
        Rebuild(capacity, size_, 0);
    }
}

template <class TYPE, class ARG_TYPE>
TYPE* ArrayBase<TYPE, ARG_TYPE>::Allocate(INT_PTR capacity)
{
    if (capacity > PTRDIFF_MAX / static_cast<INT_PTR>(sizeof(TYPE)))
        AfxThrowMemoryException();
    void* block = ::operator new (static_cast<size_t>(capacity) * sizeof(TYPE),
                                  std::align_val_t{alignof(TYPE)}, std::nothrow);
    if (block == NULL)
        AfxThrowMemoryException();
    return static_cast<TYPE*>(block);
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Free(TYPE* block)
{
    ::operator delete (static_cast<void*>(block), std::align_val_t{alignof(TYPE)});
}

/// Puts the elements into a new block, with `count` fresh ones at `gap`. The old block stays as it
/// was until all of them are there.
template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Rebuild(INT_PTR capacity, INT_PTR gap, INT_PTR count)
{
    TYPE* block = Allocate(capacity);
    INT_PTR built = 0;
    try {
        for (; built < size_ + count; ++built) {
            void* place = block + built;
            if (built >= gap && built < gap + count)
                ::new (place) TYPE();
            else
                ::new (place)
                    TYPE(std::move_if_noexcept(data_[built < gap ? built : built - count]));
        }
    } catch (...) {
        while (built > 0)
            block[--built].~TYPE();
        Free(block);
        throw;
    }
    FreeAll();
    data_ = block;
    size_ = built;
    capacity_ = capacity;
}

/// Makes room for `count` fresh elements at `index`.
template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::OpenGap(INT_PTR index, INT_PTR count)
{
    if (index >= size_) {
        SetSize(index + count);
        return;
    }
    if constexpr (movesSafely) {
        Reserve(size_ + count);
        Relocate(data_ + index + count, data_ + index, size_ - index);
        INT_PTR built = 0;
        try {
            for (; built < count; ++built)
                ::new (static_cast<void*>(data_ + index + built)) TYPE();
        } catch (...) {
            while (built > 0)
                data_[index + --built].~TYPE();
            Relocate(data_ + index, data_ + index + count, size_ - index);
            throw;
        }
        size_ += count;
    } else {
        Rebuild(CapacityFor(size_ + count), index, count);
    }
}

template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::FreeAll()
{
    while (size_ > 0) {
        --size_;
        data_[size_].~TYPE();
    }
    Free(data_);
    data_ = NULL;
    capacity_ = 0;
}

/// Moves elements to raw memory, which may overlap their old place.
template <class TYPE, class ARG_TYPE>
void ArrayBase<TYPE, ARG_TYPE>::Relocate(TYPE* to, TYPE* from, INT_PTR count)
{
    if (count <= 0 || to == from)
        return;
    if constexpr (movesBits) {
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
public:
    /// With SerializeElements. Loading replaces what the array has.
    void Serialize(CArchive& ar) override
    {
        afxint::SerializeArray(ar, *this, [&ar](TYPE* elements, INT_PTR count) {
            SerializeElements<TYPE>(ar, elements, count);
        });
    }
    void Dump(CDumpContext& dc) const override
    {
        afxint::DumpHead(dc, *this);
        if (dc.GetDepth() > 0)
            DumpElements<TYPE>(dc, this->GetData(), this->GetSize());
    }
};
