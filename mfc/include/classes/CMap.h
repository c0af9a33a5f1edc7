// The map template, and what all maps of the library share.
//
// A walk visits the entries in the order they were made; entries may be removed during it, except
// the one the POSITION names next.
#pragma once

#include <classes/CException.h>
#include <classes/CList.h>
#include <classes/CObject.h>
#include <classes/CString.h>
#include <classes/Platform.h>

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

/// The hash of a key: of its characters for strings, else of its value. May be specialised.
template <class ARG_KEY>
UINT AFXAPI HashKey(ARG_KEY key)
{
    using Key = std::decay_t<ARG_KEY>;
    if constexpr (std::is_convertible_v<const Key&, LPCSTR> && !std::is_null_pointer_v<Key>)
        return static_cast<UINT>(std::hash<std::string_view>()(static_cast<LPCSTR>(key)));
    else if constexpr (std::is_convertible_v<const Key&, LPCWSTR> && !std::is_null_pointer_v<Key>)
        return static_cast<UINT>(std::hash<std::wstring_view>()(static_cast<LPCWSTR>(key)));
    else
        return static_cast<UINT>(std::hash<Key>()(key));
}

namespace afxint {

/// A hash table of chained entries that also hang in one list, in the order of their making.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class MapBase : public CObject
{
public:
    struct CPair
    {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY keyval) : key(keyval), value() {}
    };

    /// The block size is accepted for compatibility; each entry is allocated by itself.
    explicit MapBase([[maybe_unused]] INT_PTR nBlockSize = 10) { ASSERT(nBlockSize > 0); }
    ~MapBase() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    /// FALSE, and rValue unchanged, when there is no such key.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    /// The value of the key, made when it is missing.
    VALUE& operator[](ARG_KEY key);
    /// FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    POSITION GetStartPosition() const { return Position(m_pOldest); }
    /// The entry at the position, which moves on, to NULL after the last one.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;

    UINT GetHashTableSize() const { return m_nTableSize; }
    /// Only for an empty map. The table grows by itself later.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

protected:
    using BaseKey = KEY;
    using BaseArgKey = ARG_KEY;
    using BaseValue = VALUE;

    CPair* PLookup(ARG_KEY key) { return Find(key, ::HashKey<ARG_KEY>(key)); }
    const CPair* PLookup(ARG_KEY key) const { return Find(key, ::HashKey<ARG_KEY>(key)); }
    CPair* PGetFirstAssoc() { return m_pOldest; }
    const CPair* PGetFirstAssoc() const { return m_pOldest; }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return After(pAssocRet); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return After(pAssocRet); }

private:
    struct Entry : CPair
    {
        Entry(ARG_KEY keyval, UINT keyHash) : CPair(keyval), hash(keyHash) {}
        UINT hash;
        Entry* chained = nullptr; ///< The next entry of the same slot.
        Entry* older = nullptr;
        Entry* newer = nullptr;
    };

    static POSITION Position(Entry* entry) { return reinterpret_cast<POSITION>(entry); }
    static Entry* After(const CPair* pair)
    {
        return pair == nullptr ? nullptr : static_cast<const Entry*>(pair)->newer;
    }
    Entry* Find(ARG_KEY key, UINT hash) const;
    void Link(Entry* entry);
    void Resize(UINT slots);

    std::vector<Entry*> m_slots;
    UINT m_nTableSize = 17;
    Entry* m_pOldest = nullptr;
    Entry* m_pNewest = nullptr;
    INT_PTR m_nCount = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const
{
    const CPair* pair = PLookup(key);
    if (pair == nullptr)
        return FALSE;
    rValue = pair->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    const UINT hash = ::HashKey<ARG_KEY>(key);
    Entry* entry = Find(key, hash);
    if (entry == nullptr) {
        entry = new Entry(key, hash);
        Link(entry);
    }
    return entry->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    Entry* entry = Find(key, ::HashKey<ARG_KEY>(key));
    if (entry == nullptr)
        return FALSE;
    Entry** link = &m_slots[entry->hash % m_nTableSize];
    while (*link != entry)
        link = &(*link)->chained;
    *link = entry->chained;
    (entry->older == nullptr ? m_pOldest : entry->older->newer) = entry->newer;
    (entry->newer == nullptr ? m_pNewest : entry->newer->older) = entry->older;
    --m_nCount;
    delete entry;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    m_slots.clear();
    m_nCount = 0;
    m_pNewest = nullptr;
    Entry* entry = std::exchange(m_pOldest, nullptr);
    while (entry != nullptr)
        delete std::exchange(entry, entry->newer);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey,
                                                           VALUE& rValue) const
{
    if (rNextPosition == NULL)
        AfxThrowInvalidArgException();
    const Entry* entry = reinterpret_cast<const Entry*>(rNextPosition);
    rNextPosition = Position(entry->newer);
    rKey = entry->key;
    rValue = entry->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT hashSize, BOOL bAllocNow)
{
    if (hashSize == 0 || m_nCount != 0)
        AfxThrowInvalidArgException();
    m_nTableSize = hashSize;
    m_slots.clear();
    if (bAllocNow)
        Resize(hashSize);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Entry*
MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Find(ARG_KEY key, UINT hash) const
{
    if (m_slots.empty())
        return nullptr;
    Entry* entry = m_slots[hash % m_nTableSize];
    while (entry != nullptr && (entry->hash != hash || !CompareElements(&entry->key, &key)))
        entry = entry->chained;
    return entry;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Link(Entry* entry)
{
    if (m_slots.empty())
        Resize(m_nTableSize);
    else if (m_nCount >= 2 * static_cast<INT_PTR>(m_nTableSize))
        Resize(2 * m_nTableSize + 1);
    Entry*& slot = m_slots[entry->hash % m_nTableSize];
    entry->chained = slot;
    slot = entry;
    entry->older = m_pNewest;
    (m_pNewest == nullptr ? m_pOldest : m_pNewest->newer) = entry;
    m_pNewest = entry;
    ++m_nCount;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Resize(UINT slots)
{
    m_slots.assign(slots, nullptr);
    m_nTableSize = slots;
    for (Entry* entry = m_pOldest; entry != nullptr; entry = entry->newer) {
        Entry*& slot = m_slots[entry->hash % slots];
        entry->chained = slot;
        slot = entry;
    }
}

} // namespace afxint

/// A map from KEY to VALUE; the ARG types are how keys and values are handed over. HashKey<ARG_KEY>
/// and CompareElements<KEY, …> decide which keys are the same.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public afxint::MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>
{
    using Base = afxint::MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>;

public:
    using typename Base::CPair;

    explicit CMap(INT_PTR nBlockSize = 10) : Base(nBlockSize) {}

    using Base::PGetFirstAssoc;
    using Base::PGetNextAssoc;
    using Base::PLookup;
};
