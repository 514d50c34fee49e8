#pragma once
// What the map classes have in common.

#include "afx.h"

namespace framework
{
/// A hash table with chains. Keys is what hashes and compares: static UINT Hash(ARG_KEY) and
/// static bool Same(KEY const &, ARG_KEY).
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE, class Keys> class MapStorage : public CObject
{
public:
    struct CPair
    {
        KEY const key;
        VALUE value;
    };

    ~MapStorage() override
    {
        RemoveAll();
        delete[] m_buckets;
    }

    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    BOOL Lookup(ARG_KEY key, VALUE & rValue) const
    {
        Node const * const node = Find(key);
        if (node == nullptr)
            return FALSE;
        rValue = node->pair.value;
        return TRUE;
    }
    CPair const * PLookup(ARG_KEY key) const { return PairOf(Find(key)); }
    CPair * PLookup(ARG_KEY key) { return PairOf(Find(key)); }
    VALUE & operator[](ARG_KEY key) { return Make(key)->pair.value; }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { Make(key)->pair.value = newValue; }
    BOOL RemoveKey(ARG_KEY key)
    {
        if (m_buckets == nullptr)
            return FALSE;
        for (Node ** link = &m_buckets[Keys::Hash(key) % m_hashSize]; *link != nullptr; link = &(*link)->next)
        {
            if (!Keys::Same((*link)->pair.key, key))
                continue;
            Node * const doomed = *link;
            *link = doomed->next;
            --m_count;
            delete doomed;
            return TRUE;
        }
        return FALSE;
    }
    void RemoveAll()
    {
        for (UINT i = 0; m_buckets != nullptr && i < m_hashSize; ++i)
        {
            while (Node * const doomed = m_buckets[i])
            {
                m_buckets[i] = doomed->next;
                delete doomed;
            }
        }
        delete[] m_buckets;
        m_buckets = nullptr;
        m_count = 0;
    }

    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(First()); }
    /// Moves on before it returns, so the pair that it gives may be removed.
    void GetNextAssoc(POSITION & rNextPosition, KEY & rKey, VALUE & rValue) const
    {
        Node * const node = reinterpret_cast<Node *>(rNextPosition);
        if (node == nullptr)
            AfxThrowInvalidArgException();
        rNextPosition = reinterpret_cast<POSITION>(Following(node));
        rKey = node->pair.key;
        rValue = node->pair.value;
    }
    CPair const * PGetFirstAssoc() const { return PairOf(First()); }
    CPair * PGetFirstAssoc() { return PairOf(First()); }
    CPair const * PGetNextAssoc(CPair const * pAssocRet) const { return PairOf(Following(NodeOf(pAssocRet))); }
    CPair * PGetNextAssoc(CPair const * pAssocRet) { return PairOf(Following(NodeOf(pAssocRet))); }

    UINT GetHashTableSize() const { return m_hashSize; }
    /// The map must be empty.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE)
    {
        ASSERT(m_count == 0);
        if (hashSize == 0 || m_count != 0)
            AfxThrowInvalidArgException();
        delete[] m_buckets;
        m_buckets = nullptr;
        m_hashSize = hashSize;
        if (bAllocNow)
            AllocateBuckets();
    }

    /// Called before elements are loaded, so that an empty map of the usual size is made for them all.
    void PrepareToLoad(DWORD_PTR count)
    {
        constexpr DWORD_PTR most = 1U << 24;
        if (m_count == 0 && m_hashSize == default_hash_size && count > default_hash_size)
            InitHashTable(static_cast<UINT>(count < most ? count : most) | 1U, FALSE);
    }

    void AssertValid() const override
    {
        CObject::AssertValid();
        ASSERT(m_hashSize > 0 && (m_count == 0 || m_buckets != nullptr));
    }
    void Dump(CDumpContext & dc) const override
    {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_count) << " elements\n";
    }

protected:
    MapStorage() = default;

private:
    static constexpr UINT default_hash_size = 17;

    struct Node
    {
        // First, so that a pair's address is its node's.
        CPair pair;
        Node * next;
        UINT bucket;
    };

    static CPair * PairOf(Node * node) { return reinterpret_cast<CPair *>(node); }
    static Node * NodeOf(CPair const * pair)
    {
        if (pair == nullptr)
            AfxThrowInvalidArgException();
        return reinterpret_cast<Node *>(const_cast<CPair *>(pair));
    }
    void AllocateBuckets()
    {
        m_buckets = new (std::nothrow) Node * [m_hashSize] {};
        if (m_buckets == nullptr)
            AfxThrowMemoryException();
    }
    Node * Find(ARG_KEY key) const
    {
        if (m_buckets == nullptr)
            return nullptr;
        Node * node = m_buckets[Keys::Hash(key) % m_hashSize];
        while (node != nullptr && !Keys::Same(node->pair.key, key))
            node = node->next;
        return node;
    }
    Node * Make(ARG_KEY key)
    {
        if (Node * const found = Find(key))
            return found;
        if (m_buckets == nullptr)
            AllocateBuckets();
        UINT const bucket = Keys::Hash(key) % m_hashSize;
        Node * const node = new (std::nothrow) Node{{KEY(key), VALUE()}, m_buckets[bucket], bucket};
        if (node == nullptr)
            AfxThrowMemoryException();
        m_buckets[bucket] = node;
        ++m_count;
        return node;
    }
    Node * FirstFrom(UINT bucket) const
    {
        for (; m_buckets != nullptr && bucket < m_hashSize; ++bucket)
        {
            if (m_buckets[bucket] != nullptr)
                return m_buckets[bucket];
        }
        return nullptr;
    }
    Node * First() const { return FirstFrom(0); }
    Node * Following(Node * node) const { return node->next != nullptr ? node->next : FirstFrom(node->bucket + 1); }

    Node ** m_buckets = nullptr;
    UINT m_hashSize = default_hash_size;
    INT_PTR m_count = 0;
};

template <class Char> UINT HashText(Char const * text)
{
    UINT hash = 5381;
    for (; *text != 0; ++text)
        hash = hash * 33 + static_cast<UINT>(*text);
    return hash;
}

/// Spreads a number's bits, the low ones of which are often alike.
inline UINT HashNumber(unsigned long long number)
{
    return static_cast<UINT>((number * 0x9E3779B97F4A7C15ULL) >> 32);
}

template <class KEY> struct PlainKeys
{
    static UINT Hash(KEY key)
    {
        if constexpr (std::is_pointer_v<KEY>)
            return HashNumber(reinterpret_cast<std::uintptr_t>(key));
        else
            return HashNumber(static_cast<unsigned long long>(key));
    }
    static bool Same(KEY a, KEY b) { return a == b; }
};

struct StringKeys
{
    static UINT Hash(LPCTSTR key) { return HashText(key); }
    static bool Same(CString const & a, LPCTSTR b) { return a == b; }
};

template <class KEY, class VALUE> using PlainMap = MapStorage<KEY, KEY, VALUE, VALUE, PlainKeys<KEY>>;

template <class VALUE, class ARG_VALUE> class StringMap
    : public MapStorage<CString, LPCTSTR, VALUE, ARG_VALUE, StringKeys>
{
public:
    UINT HashKey(LPCTSTR key) const { return StringKeys::Hash(key); }
    /// The map's own copy of the key.
    BOOL LookupKey(LPCTSTR key, LPCTSTR & rKey) const
    {
        auto const * const pair = this->PLookup(key);
        if (pair == nullptr)
            return FALSE;
        rKey = pair->key;
        return TRUE;
    }

protected:
    StringMap() = default;
};
} // namespace framework
