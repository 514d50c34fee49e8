// CRecentFileList: the files used last.

#include "afxadv.h"
#include <shlobj.h>
#include <shlwapi.h>

#include "detail/FrameSupport.h"

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize, int nMaxDispLen)
    : m_start(nStart),
      m_section(lpszSection),
      m_entryFormat(lpszEntryFormat),
      m_maxDisplay(nMaxDispLen)
{
    m_names.SetSize(nSize > 0 ? nSize : 0);
}

CRecentFileList::~CRecentFileList() = default;

int CRecentFileList::GetSize() const
{
    return static_cast<int>(m_names.GetSize());
}

CString & CRecentFileList::operator[](int nindex)
{
    if (nindex < 0 || nindex >= GetSize())
        AfxThrowInvalidArgException();
    return m_names[nindex];
}

void CRecentFileList::Add(LPCTSTR lpszPathName)
{
    if (lpszPathName == nullptr || *lpszPathName == 0 || GetSize() == 0)
        return;
    CString const path = framework::FullPath(lpszPathName);
    int place = 0;
    while (place < GetSize() - 1 && ::CompareStringOrdinal(m_names[place], -1, path, -1, TRUE) != CSTR_EQUAL)
        ++place;
    for (; place > 0; --place)
        m_names[place] = m_names[place - 1];
    m_names[0] = path;
}

void CRecentFileList::Add(LPCTSTR lpszPathName, LPCTSTR lpszAppID)
{
    Add(lpszPathName);
    if (lpszAppID == nullptr || *lpszAppID == 0)
        return;
    CString const path = framework::FullPath(lpszPathName);
    ::SHAddToRecentDocs(SHARD_PATHW, path.GetString());
}

void CRecentFileList::Remove(int nIndex)
{
    if (nIndex < 0 || nIndex >= GetSize())
        return;
    m_names.RemoveAt(nIndex);
    m_names.SetSize(m_names.GetSize() + 1);
}

BOOL CRecentFileList::GetDisplayName(CString & strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const
{
    if (nIndex < 0 || nIndex >= GetSize() || m_names[nIndex].IsEmpty())
        return FALSE;
    CString const & path = m_names[nIndex];
    CString const name(::PathFindFileName(path));
    int const folder = path.GetLength() - name.GetLength();
    if (lpszCurDir != nullptr && folder == nCurDir &&
        ::CompareStringOrdinal(path, folder, lpszCurDir, nCurDir, TRUE) == CSTR_EQUAL)
    {
        strName = name;
        return TRUE;
    }
    if (m_maxDisplay == -1 || path.GetLength() <= m_maxDisplay)
    {
        strName = path;
        return TRUE;
    }
    // The drive or share, dots, then as much of the end as fits, from a backslash on.
    int const root = static_cast<int>(::PathSkipRoot(path) != nullptr ? ::PathSkipRoot(path) - path.GetString() : 0);
    CString const start = path.Left(root) + L"...";
    for (int at = path.Find(L'\\', root > 0 ? root - 1 : 0); at >= 0; at = path.Find(L'\\', at + 1))
    {
        if (start.GetLength() + path.GetLength() - at <= m_maxDisplay)
        {
            strName = start + path.Mid(at);
            return TRUE;
        }
    }
    strName = bAtLeastName || name.GetLength() <= m_maxDisplay ? name : CString();
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI * pCmdUI)
{
    CMenu * const menu = pCmdUI->m_pMenu;
    if (m_originalText.IsEmpty() && menu != nullptr)
        menu->GetMenuString(pCmdUI->m_nID, m_originalText, MF_BYCOMMAND);
    if (GetSize() == 0 || m_names[0].IsEmpty())
    {
        if (!m_originalText.IsEmpty())
            pCmdUI->SetText(m_originalText);
        pCmdUI->Enable(FALSE);
        return;
    }
    if (menu == nullptr)
        return;
    // All the list's items stand for one: they are taken out and put in anew.
    for (int at = 0; at < GetSize(); ++at)
        menu->DeleteMenu(pCmdUI->m_nID + static_cast<UINT>(at), MF_BYCOMMAND);
    wchar_t folder[MAX_PATH] = {};
    DWORD const length = ::GetCurrentDirectory(MAX_PATH - 1, folder);
    int folderLength = length < MAX_PATH - 1 ? static_cast<int>(length) : 0;
    if (folderLength > 0 && folder[folderLength - 1] != L'\\')
    {
        folder[folderLength++] = L'\\';
        folder[folderLength] = 0;
    }
    for (int at = 0; at < GetSize(); ++at)
    {
        CString name;
        if (!GetDisplayName(name, at, folder, folderLength))
            break;
        name.Replace(L"&", L"&&");
        UINT const number = m_start + static_cast<UINT>(at) + 1;
        CString text;
        if (number < 10)
            text.Format(L"&%u %s", number, name.GetString());
        else if (number == 10)
            text.Format(L"1&0 %s", name.GetString());
        else
            text.Format(L"%u %s", number, name.GetString());
        menu->InsertMenu(pCmdUI->m_nIndex++, MF_STRING | MF_BYPOSITION, pCmdUI->m_nID++, text);
    }
    // The update goes on behind the items that have been put in.
    --pCmdUI->m_nIndex;
    --pCmdUI->m_nID;
    framework::CmdUiAccess::SetIndexMax(*pCmdUI, menu->GetMenuItemCount());
    framework::CmdUiAccess::SetEnableChanged(*pCmdUI, TRUE);
}

void CRecentFileList::ReadList()
{
    CWinApp * const app = AfxGetApp();
    for (int at = 0; app != nullptr && at < GetSize(); ++at)
    {
        CString entry;
        entry.Format(m_entryFormat, at + 1);
        m_names[at] = app->GetProfileString(m_section, entry, L"");
    }
}

void CRecentFileList::WriteList()
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr)
        return;
    app->WriteProfileString(m_section, nullptr, nullptr);
    for (int at = 0; at < GetSize(); ++at)
    {
        CString entry;
        entry.Format(m_entryFormat, at + 1);
        if (!m_names[at].IsEmpty())
            app->WriteProfileString(m_section, entry, m_names[at]);
    }
}
