// Thousands of damaged archives: each of them loads or throws an exception of the library, and
// nothing is left behind.
#include <afxtempl.h>

#include <doctest/doctest.h>

#include "tests/mfc/files/ArchiveBytes.h"

#include <random>
#include <set>

namespace {

/// Every object that lives. Damaged archives refer from anywhere to anything, so nobody else owns
/// them.
std::set<CObject*> living;

class CCounted : public CObject
{
public:
    CCounted() { living.insert(this); }
    ~CCounted() override { living.erase(this); }
};

class CDamagedLeaf : public CCounted
{
    DECLARE_SERIAL(CDamagedLeaf)

public:
    CString m_strName;
    CRect m_rectPlace;
    CTime m_time;

    void Serialize(CArchive& ar) override
    {
        if (ar.IsStoring())
            ar << m_strName << m_rectPlace << m_time;
        else
            ar >> m_strName >> m_rectPlace >> m_time;
    }
    void AssertValid() const override { CHECK(living.count(const_cast<CDamagedLeaf*>(this)) == 1); }
};
IMPLEMENT_SERIAL(CDamagedLeaf, CObject, VERSIONABLE_SCHEMA | 2)

class CDamagedTree : public CCounted
{
    DECLARE_SERIAL(CDamagedTree)

public:
    CObList m_anything;
    CTypedPtrList<CObList, CDamagedLeaf*> m_leaves;
    CTypedPtrArray<CObArray, CDamagedTree*> m_trees;
    CMapStringToOb m_named;
    CMapWordToOb m_numbered;
    CStringArray m_texts;
    CStringList m_lines;
    CMapStringToString m_words;
    CByteArray m_bytes;
    CWordArray m_words16;
    CDWordArray m_words32;
    CArray<CPoint, CPoint> m_points;
    CList<CString, LPCTSTR> m_names;
    CMap<int, int, CString, LPCTSTR> m_map;

    void Serialize(CArchive& ar) override
    {
        m_anything.Serialize(ar);
        m_leaves.Serialize(ar);
        m_trees.Serialize(ar);
        m_named.Serialize(ar);
        m_numbered.Serialize(ar);
        m_texts.Serialize(ar);
        m_lines.Serialize(ar);
        m_words.Serialize(ar);
        m_bytes.Serialize(ar);
        m_words16.Serialize(ar);
        m_words32.Serialize(ar);
        m_points.Serialize(ar);
        m_names.Serialize(ar);
        m_map.Serialize(ar);
    }

    /// Whether all that was loaded is there, and of its class.
    void Walk() const
    {
        for (POSITION at = m_leaves.GetHeadPosition(); at != NULL;) {
            const CDamagedLeaf* leaf = m_leaves.GetNext(at);
            if (leaf != NULL)
                leaf->AssertValid();
        }
        for (INT_PTR i = 0; i < m_trees.GetSize(); ++i)
            CHECK((m_trees[i] == NULL || m_trees[i]->IsKindOf(RUNTIME_CLASS(CDamagedTree))));
        CDumpContext dump(&dumped);
        dump.SetDepth(1);
        dump << m_texts << m_lines << m_words << m_bytes << m_words16 << m_words32;
        dumped.SetLength(0);
    }

    static CMemFile dumped;
};
CMemFile CDamagedTree::dumped;
IMPLEMENT_SERIAL(CDamagedTree, CObject, 1)

CDamagedLeaf* MakeLeaf(LPCTSTR name)
{
    CDamagedLeaf* leaf = new CDamagedLeaf;
    leaf->m_strName = name;
    leaf->m_rectPlace = CRect(1, 2, 3, 4);
    return leaf;
}

CDamagedTree* MakeTree(int depth)
{
    CDamagedTree* tree = new CDamagedTree;
    CDamagedLeaf* leaf = MakeLeaf(_T("shared"));
    tree->m_anything.AddTail(leaf);
    tree->m_anything.AddTail(tree);
    tree->m_leaves.AddTail(leaf);
    tree->m_leaves.AddTail(MakeLeaf(_T("own")));
    tree->m_trees.Add(NULL);
    if (depth > 0)
        tree->m_trees.Add(MakeTree(depth - 1));
    tree->m_named[_T("leaf")] = leaf;
    tree->m_numbered[7] = tree;
    tree->m_texts.Add(_T("one"));
    tree->m_texts.Add(CString('t', 300));
    tree->m_lines.AddTail(_T("line"));
    tree->m_words[_T("key")] = _T("value");
    for (int i = 0; i < 20; ++i) {
        tree->m_bytes.Add(static_cast<BYTE>(i));
        tree->m_words16.Add(static_cast<WORD>(i * 300));
        tree->m_words32.Add(static_cast<DWORD>(i * 70000));
    }
    tree->m_points.Add(CPoint(1, 2));
    tree->m_names.AddTail(_T("name"));
    tree->m_map[5] = _T("five");
    return tree;
}

void DeleteLiving()
{
    while (!living.empty())
        delete *living.begin();
}

std::string StoredTree()
{
    const std::string bytes = Stored([](CArchive& ar) { ar << MakeTree(1); });
    DeleteLiving();
    return bytes;
}

using Random = std::mt19937; // Gives the same numbers everywhere.

size_t Below(Random& random, size_t limit)
{
    return random() % limit;
}

/// Damages the bytes in one of the ways in which files are damaged.
void Damage(std::string& bytes, Random& random)
{
    const size_t at = Below(random, bytes.size());
    const size_t count = min(bytes.size() - at, 1 + Below(random, 8));
    switch (Below(random, 7)) {
    case 0:
        bytes[at] = static_cast<char>(random());
        break;
    case 1:
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << Below(random, 8)));
        break;
    case 2:
        bytes.replace(at, count, count, '\xFF');
        break;
    case 3:
        bytes.replace(at, count, count, '\0');
        break;
    case 4:
        bytes.erase(at, count);
        break;
    case 5:
        bytes.insert(at, bytes.substr(Below(random, bytes.size()), 1 + Below(random, 40)));
        break;
    default:
        bytes.resize(max<size_t>(at, 1));
    }
}

struct Outcomes
{
    int loaded = 0;
    int refused = 0;
};

void LoadDamaged(const std::string& bytes, Outcomes& outcomes)
{
    CDamagedTree* tree = NULL;
    try {
        LoadFrom(bytes, [&](CArchive& ar) { ar >> tree; });
        if (tree != NULL)
            tree->Walk();
        ++outcomes.loaded;
    } catch (CException* e) {
        e->Delete();
        ++outcomes.refused;
        CHECK(tree == NULL);
    }
    DeleteLiving();
}

} // namespace

TEST_CASE("the tree itself comes back")
{
    const std::string bytes = StoredTree();
    CDamagedTree* tree = NULL;
    LoadFrom(bytes, [&](CArchive& ar) { ar >> tree; });
    REQUIRE(tree != NULL);
    tree->Walk();
    CHECK(tree->m_anything.GetTail() == tree);
    CHECK(tree->m_trees[1]->m_texts[1] == CString('t', 300));
    CHECK(Stored([&](CArchive& ar) { ar << tree; }) == bytes);
    DeleteLiving();
}

TEST_CASE("a tree that is cut short anywhere is refused")
{
    const std::string bytes = StoredTree();
    Outcomes outcomes;
    for (size_t length = 0; length < bytes.size(); ++length)
        LoadDamaged(bytes.substr(0, length), outcomes);
    CHECK(outcomes.loaded == 0);
    CHECK(outcomes.refused == static_cast<int>(bytes.size()));
}

TEST_CASE("every damaged tree loads or throws, and leaves nothing behind")
{
    const std::string bytes = StoredTree();
    Random random(20040506);
    Outcomes outcomes;
    for (int i = 0; i < 8000; ++i) {
        std::string damaged = bytes;
        for (size_t changes = 1 + Below(random, 3); changes > 0; --changes)
            Damage(damaged, random);
        CAPTURE(i);
        LoadDamaged(damaged, outcomes);
    }
    // Both happen often: content is damaged without a notice, and structure is not.
    CHECK(outcomes.loaded > 500);
    CHECK(outcomes.refused > 500);
}

TEST_CASE("objects of a list that fails to load are in the list up to there")
{
    const std::string bytes = Stored([&](CArchive& ar) {
        CObList two;
        two.AddTail(MakeLeaf(_T("first")));
        two.AddTail(MakeLeaf(_T("second")));
        two.Serialize(ar);
    });
    DeleteLiving();
    CObList list;
    CDamagedLeaf* const kept = MakeLeaf(_T("kept"));
    list.AddTail(kept);
    CHECK(CauseOfLoading(bytes.substr(0, bytes.size() - 1), [&](CArchive& ar) {
              list.Serialize(ar);
          }) == CArchiveException::endOfFile);
    CHECK(list.GetCount() == 2);
    CHECK(list.GetHead() == kept);
    CHECK(living.size() == 2);
    DeleteLiving();
}
