// A plain array that grows.
#pragma once

#include <classes/Platform.h>

#include <vector>

/// Elements one behind the other. Indexes have to be valid, where the result does not say
/// otherwise.
template <class T>
class CSimpleArray
{
public:
    int GetSize() const { return static_cast<int>(elements_.size()); }
    BOOL Add(const T& t)
    {
        elements_.push_back(t);
        return TRUE;
    }
    BOOL Remove(const T& t) { return RemoveAt(Find(t)); }
    BOOL RemoveAt(int nIndex)
    {
        if (nIndex < 0 || nIndex >= GetSize())
            return FALSE;
        elements_.erase(elements_.begin() + nIndex);
        return TRUE;
    }
    void RemoveAll() { elements_.clear(); }
    /// -1 when there is none like it.
    int Find(const T& t) const
    {
        for (int i = 0; i < GetSize(); ++i) {
            if (elements_[i] == t)
                return i;
        }
        return -1;
    }
    BOOL SetAtIndex(int nIndex, const T& t)
    {
        if (nIndex < 0 || nIndex >= GetSize())
            return FALSE;
        elements_[nIndex] = t;
        return TRUE;
    }
    T* GetData() { return elements_.data(); }
    const T* GetData() const { return elements_.data(); }
    T& operator[](int nIndex) { return elements_[nIndex]; }
    const T& operator[](int nIndex) const { return elements_[nIndex]; }

private:
    std::vector<T> elements_;
};
