#include "framework_ArchiveContents.h"

namespace archive_contents
{
IMPLEMENT_SERIAL(CLeaf, CObject, 1)
IMPLEMENT_SERIAL(CBranch, CLeaf, 3 | VERSIONABLE_SCHEMA)

void CLeaf::Serialize(CArchive & ar)
{
    CObject::Serialize(ar);
    if (ar.IsStoring())
        ar << m_number << m_text;
    else
        ar >> m_number >> m_text;
}

void CLeaf::DeleteAll()
{
    while (!living.empty())
        delete *living.begin();
}

void CBranch::Serialize(CArchive & ar)
{
    if (ar.IsLoading())
        m_schema = ar.GetObjectSchema();
    CLeaf::Serialize(ar);
    if (ar.IsStoring())
        ar << m_left << m_right;
    else
        ar >> m_left >> m_right;
    m_leaves.Serialize(ar);
}

void Contents::Fill()
{
    m_byte = 1;
    m_word = 0x1234;
    m_double = 2.5;
    m_bool = true;
    m_wide = L"wide text \x00E4";
    m_narrow = "narrow text";
    m_time = CTime(1000000000);
    m_rect = CRect(1, 2, 3, 4);
    auto * const first = new CLeaf(1);
    first->m_text = L"first";
    auto * const branch = new CBranch;
    branch->m_left = first;
    branch->m_right = branch;
    branch->m_leaves.Add(first);
    branch->m_leaves.Add(new CLeaf(2));
    auto * const inner = new CBranch;
    inner->m_left = branch;
    branch->m_leaves.Add(inner);
    m_objects.Add(first);
    m_objects.Add(nullptr);
    m_objects.Add(branch);
    m_objectList.AddTail(branch);
    m_wordToOb.SetAt(7, first);
    m_stringToOb.SetAt(L"leaf", first);
    m_branches.Add(branch);
    m_branches.Add(inner);
    m_leafList.AddTail(first);
    m_leafList.AddTail(inner);
    m_leafMap.SetAt(L"branch", branch);
    for (int i = 0; i < 6; ++i)
    {
        CString text;
        text.Format(_T("%d"), i);
        m_bytes.Add(static_cast<BYTE>(i));
        m_words.Add(static_cast<WORD>(i));
        m_dwords.Add(static_cast<DWORD>(i));
        m_strings.Add(text);
        m_stringList.AddTail(text);
        m_stringToString.SetAt(text, text);
        m_doubles.Add(i);
        m_texts.Add(text);
        m_numbers.AddTail(i);
        m_names.SetAt(i, text);
    }
}

void Contents::Serialize(CArchive & ar)
{
    if (ar.IsStoring())
        ar << m_byte << m_word << m_double << m_bool << m_wide << m_narrow << m_time << m_rect;
    else
        ar >> m_byte >> m_word >> m_double >> m_bool >> m_wide >> m_narrow >> m_time >> m_rect;
    CObject * const collections[] = {&m_objects,    &m_bytes,      &m_words,    &m_dwords,     &m_strings,
                                     &m_objectList, &m_stringList, &m_wordToOb, &m_stringToOb, &m_stringToString,
                                     &m_doubles,    &m_texts,      &m_numbers,  &m_names,      &m_branches,
                                     &m_leafList,   &m_leafMap};
    for (CObject * const collection : collections)
        collection->Serialize(ar);
}

std::vector<BYTE> StoredContents()
{
    Contents contents;
    contents.Fill();
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    contents.Serialize(ar);
    ar.Close();
    std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    CLeaf::DeleteAll();
    return bytes;
}

int LoadContents(BYTE const * data, size_t size)
{
#if defined(LEAKS_ARE_WATCHED)
    // Collections that the archive names by class are not known to us, as our own classes are.
    __lsan::ScopedDisabler const unwatched;
#endif
    int cause = -1;
    {
        CMemFile file(const_cast<BYTE *>(data), static_cast<UINT>(size));
        Contents contents;
        try
        {
            CArchive ar(&file, CArchive::load, 256);
            contents.Serialize(ar);
            ar.Close();
            // What was loaded is of the kind that the collections promise.
            for (INT_PTR i = 0; i < contents.m_branches.GetSize(); ++i)
            {
                CBranch const * const branch = contents.m_branches[i];
                if (branch != nullptr && branch->m_leaves.GetSize() < 0)
                    return -2;
            }
        }
        catch (CArchiveException * exception)
        {
            cause = exception->m_cause;
            exception->Delete();
        }
        catch (CFileException * exception)
        {
            cause = 100 + exception->m_cause;
            exception->Delete();
        }
    }
    CLeaf::DeleteAll();
    return cause;
}
} // namespace archive_contents
