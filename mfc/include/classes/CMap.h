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

    INT_PTR GetCount() const { return count_; }
    INT_PTR GetSize() const { return count_; }
    BOOL IsEmpty() const { return count_ == 0; }

    /// FALSE, and rValue unchanged, when there is no such key.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    /// The value of the key, made when it is missing.
    VALUE& operator[](ARG_KEY key);
    /// FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    POSITION GetStartPosition() const { return Position(oldest_); }
    /// The entry at the position, which moves on, to NULL after the last one.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;

    UINT GetHashTableSize() const { return tableSize_; }
    /// Only for an empty map. The table grows by itself later.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

    void AssertValid() const override { ASSERT((oldest_ == NULL) == (count_ == 0)); }

protected:
    using BaseKey = KEY;
    using BaseArgKey = ARG_KEY;
    using BaseValue = VALUE;

    CPair* PLookup(ARG_KEY key) { return Find(key, ::HashKey<ARG_KEY>(key)); }
    const CPair* PLookup(ARG_KEY key) const { return Find(key, ::HashKey<ARG_KEY>(key)); }
    CPair* PGetFirstAssoc() { return oldest_; }
    const CPair* PGetFirstAssoc() const { return oldest_; }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return After(pAssocRet); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return After(pAssocRet); }

private:
    struct Entry : CPair
    {
        Entry(ARG_KEY keyval, UINT keyHash) : CPair(keyval), hash(keyHash) {}
        UINT hash;
        Entry* chained = NULL; ///< The next entry of the same slot.
        Entry* older = NULL;
        Entry* newer = NULL;
    };

    static POSITION Position(Entry* entry) { return reinterpret_cast<POSITION>(entry); }
    static Entry* After(const CPair* pair)
    {
        return pair == NULL ? NULL : static_cast<const Entry*>(pair)->newer;
    }
    Entry* Find(ARG_KEY key, UINT hash) const;
    void Link(Entry* entry);
    void Resize(UINT slots);

    std::vector<Entry*> slots_;
    UINT tableSize_ = 17;
    Entry* oldest_ = NULL;
    Entry* newest_ = NULL;
    INT_PTR count_ = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const
{
    const CPair* pair = PLookup(key);
    if (pair == NULL)
        return FALSE;
    rValue = pair->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    const UINT hash = ::HashKey<ARG_KEY>(key);
    Entry* entry = Find(key, hash);
    if (entry == NULL) {
        entry = new Entry(key, hash);
        Link(entry);
    }
    return entry->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    Entry* entry = Find(key, ::HashKey<ARG_KEY>(key));
    if (entry == NULL)
        return FALSE;
    Entry** link = &slots_[entry->hash % tableSize_];
    while (*link != entry)
        link = &(*link)->chained;
    *link = entry->chained;
    (entry->older == NULL ? oldest_ : entry->older->newer) = entry->newer;
    (entry->newer == NULL ? newest_ : entry->newer->older) = entry->older;
    --count_;
    delete entry;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    slots_.clear();
    count_ = 0;
    newest_ = NULL;
    Entry* entry = std::exchange(oldest_, nullptr);
    while (entry != NULL)
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
    if (hashSize == 0 || count_ != 0)
        AfxThrowInvalidArgException();
    tableSize_ = hashSize;
    slots_.clear();
    if (bAllocNow)
        Resize(hashSize);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Entry*
MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Find(ARG_KEY key, UINT hash) const
{
    if (slots_.empty())
        return NULL;
    Entry* entry = slots_[hash % tableSize_];
    while (entry != NULL && (entry->hash != hash || !CompareElements(&entry->key, &key)))
        entry = entry->chained;
    return entry;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Link(Entry* entry)
{
    if (slots_.empty())
        Resize(tableSize_);
    else if (count_ >= 2 * static_cast<INT_PTR>(tableSize_))
        Resize(2 * tableSize_ + 1);
    Entry*& slot = slots_[entry->hash % tableSize_];
    entry->chained = slot;
    slot = entry;
    entry->older = newest_;
    (newest_ == NULL ? oldest_ : newest_->newer) = entry;
    newest_ = entry;
    ++count_;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::Resize(UINT slots)
{
    slots_.assign(slots, nullptr);
    tableSize_ = slots;
    for (Entry* entry = oldest_; entry != NULL; entry = entry->newer) {
        Entry*& slot = slots_[entry->hash % slots];
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

    /// With SerializeElements, called for each key and each value. Loading adds to what the map
    /// has.
    void Serialize(CArchive& ar) override;
    void Dump(CDumpContext& dc) const override;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Serialize(CArchive& ar)
{
    if (ar.IsStoring()) {
        afxint::WriteCount(ar, this->GetCount());
        for (CPair* pair = PGetFirstAssoc(); pair != NULL; pair = PGetNextAssoc(pair)) {
            SerializeElements<KEY>(ar, const_cast<KEY*>(&pair->key), 1); // It is only read.
            SerializeElements<VALUE>(ar, &pair->value, 1);
        }
    } else if constexpr (std::is_default_constructible_v<KEY>) {
        for (INT_PTR left = afxint::ReadCount(ar); left > 0; --left) {
            KEY key[1] = {};
            VALUE value[1] = {};
            SerializeElements<KEY>(ar, key, 1);
            SerializeElements<VALUE>(ar, value, 1);
            this->SetAt(key[0], value[0]);
        }
    } else {
        AfxThrowNotSupportedException();
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Dump(CDumpContext& dc) const
{
    afxint::DumpHead(dc, *this);
    if (dc.GetDepth() <= 0)
        return;
    for (const CPair* pair = PGetFirstAssoc(); pair != NULL; pair = PGetNextAssoc(pair)) {
        DumpElements<KEY>(dc, &pair->key, 1);
        DumpElements<VALUE>(dc, &pair->value, 1);
    }
}
