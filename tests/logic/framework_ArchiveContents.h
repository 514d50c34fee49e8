#pragma once
// Something of everything that an archive can hold, for tests that load what was damaged.

#include <afxtempl.h>

#include <set>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define LEAKS_ARE_WATCHED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define LEAKS_ARE_WATCHED 1
#endif
#endif
#if defined(LEAKS_ARE_WATCHED)
#include <sanitizer/lsan_interface.h>
#endif

namespace archive_contents
{
/// Knows all objects of its kind: those of an archive that ended early belong to nobody else.
class CLeaf : public CObject
{
    DECLARE_SERIAL(CLeaf)

public:
    CLeaf() { living.insert(this); }
    explicit CLeaf(int number) : CLeaf() { m_number = number; }
    ~CLeaf() override { living.erase(this); }
    void Serialize(CArchive & ar) override;

    static void DeleteAll();

    int m_number = 0;
    CString m_text;

    inline static std::set<CLeaf *> living;
};

/// With other objects, which it does not own.
class CBranch : public CLeaf
{
    DECLARE_SERIAL(CBranch)

public:
    void Serialize(CArchive & ar) override;

    UINT m_schema = 0;
    CLeaf * m_left = nullptr;
    CObject * m_right = nullptr;
    CTypedPtrArray<CObArray, CLeaf *> m_leaves;
};

struct Contents
{
    void Fill();
    void Serialize(CArchive & ar);

    BYTE m_byte = 0;
    WORD m_word = 0;
    double m_double = 0;
    bool m_bool = false;
    CString m_wide;
    CStringA m_narrow;
    CTime m_time;
    CRect m_rect;
    CByteArray m_bytes;
    CWordArray m_words;
    CDWordArray m_dwords;
    CObArray m_objects;
    CStringArray m_strings;
    CObList m_objectList;
    CStringList m_stringList;
    CMapWordToOb m_wordToOb;
    CMapStringToOb m_stringToOb;
    CMapStringToString m_stringToString;
    CArray<double, double> m_doubles;
    CArray<CString, CString const &> m_texts;
    CList<int, int> m_numbers;
    CMap<int, int, CString, LPCTSTR> m_names;
    CTypedPtrArray<CObArray, CBranch *> m_branches;
    CTypedPtrList<CObList, CLeaf *> m_leafList;
    CTypedPtrMap<CMapStringToOb, CString, CLeaf *> m_leafMap;
};

/// The bytes of filled contents.
std::vector<BYTE> StoredContents();
/// The cause of the exception that ended the loading: 100 and more for one of a file, -1 for none.
int LoadContents(BYTE const * data, size_t size);
} // namespace archive_contents
