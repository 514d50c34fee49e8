#include <afxdlgs.h>
#include <dlgs.h>
#include <shobjidl.h>

#include <cstring>

#include "detail/DialogAccess.h"
#include "detail/ModalOwner.h"

namespace
{
/// A COM interface pointer that is released at the end of the scope.
template <class T> class Released
{
public:
    Released() = default;
    ~Released()
    {
        if (m_pointer != nullptr)
            m_pointer->Release();
    }
    Released(Released const &) = delete;
    Released & operator=(Released const &) = delete;
    T ** operator&() { return &m_pointer; }
    T * operator->() const { return m_pointer; }
    operator T *() const { return m_pointer; }

private:
    T * m_pointer = nullptr;
};

class ComScope
{
public:
    ComScope() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope()
    {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }
    ComScope(ComScope const &) = delete;
    ComScope & operator=(ComScope const &) = delete;

private:
    HRESULT m_result;
};

/// Part of a path: what follows the last of the characters; empty if none of them is there.
CString After(CString const & text, TCHAR separator)
{
    int const position = text.ReverseFind(separator);
    return position < 0 ? CString() : text.Mid(position + 1);
}
} // namespace

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd * pParentWnd, DWORD dwSize, BOOL)
    : CCommonDialog(pParentWnd),
      m_defaultExtension(lpszDefExt),
      m_buffer(new TCHAR[MAX_PATH]()),
      m_fileTitle(),
      m_open(bOpenFileDialog)
{
    std::memset(&m_openFile, 0, sizeof(m_openFile));
    m_openFile.lStructSize = dwSize != 0 ? dwSize : sizeof(m_openFile);
    m_openFile.lpstrFile = m_buffer;
    m_openFile.nMaxFile = MAX_PATH;
    m_openFile.lpstrFileTitle = m_fileTitle;
    m_openFile.nMaxFileTitle = MAX_PATH;
    m_openFile.Flags = dwFlags | OFN_ENABLEHOOK | OFN_EXPLORER | OFN_ENABLESIZING;
    m_openFile.lpfnHook = Hook;
    m_openFile.lCustData = reinterpret_cast<LPARAM>(this);
    m_openFile.hInstance = AfxGetResourceHandle();
    if (lpszDefExt != nullptr)
        m_openFile.lpstrDefExt = m_defaultExtension;
    if (lpszFileName != nullptr)
        ::lstrcpyn(m_buffer, lpszFileName, MAX_PATH);
    if (lpszFilter != nullptr)
    {
        // "Name|*.ext||" becomes pairs of null-terminated strings with an empty one at the end.
        m_filter = lpszFilter;
        LPTSTR const text = m_filter.GetBuffer();
        for (LPTSTR character = text; *character != 0; ++character)
        {
            if (*character == _T('|'))
                *character = 0;
        }
        m_openFile.lpstrFilter = text; // the string keeps its length: ReleaseBuffer would cut it at the first part
    }
}

CFileDialog::~CFileDialog()
{
    delete[] m_buffer;
}

UINT_PTR CALLBACK CFileDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return 0;
    auto * const dialog = reinterpret_cast<CFileDialog *>(reinterpret_cast<OPENFILENAME *>(lParam)->lCustData);
    if (!dialog->SubclassWindow(window))
        return 1;
    return framework::DialogProcedure(window, message, 0, 0) != 0;
}

INT_PTR CFileDialog::DoModal()
{
    framework::ModalOwner owner(framework::DialogAccess::State(*this).parent);
    INT_PTR result = IDCANCEL;
    if (m_pickFolders)
        result = PickFolder(owner.Window());
    else
    {
        m_openFile.hwndOwner = owner.Window();
        if (m_open ? ::GetOpenFileName(&m_openFile) : ::GetSaveFileName(&m_openFile))
            result = IDOK;
    }
    owner.Enable();
    return result;
}

INT_PTR CFileDialog::PickFolder(HWND owner)
{
    ComScope const com;
    Released<IFileOpenDialog> dialog;
    if (FAILED(::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileOpenDialog,
                                  reinterpret_cast<void **>(&dialog))))
    {
        return IDCANCEL;
    }
    FILEOPENDIALOGOPTIONS options = 0;
    dialog->GetOptions(&options);
    dialog->SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM);
    Released<IShellItem> folder;
    if (*m_openFile.lpstrFile != 0 &&
        SUCCEEDED(::SHCreateItemFromParsingName(m_openFile.lpstrFile, nullptr, IID_IShellItem,
                                                reinterpret_cast<void **>(&folder))))
    {
        dialog->SetFolder(folder);
    }
    Released<IShellItem> chosen;
    LPWSTR path = nullptr;
    if (FAILED(dialog->Show(owner)) || FAILED(dialog->GetResult(&chosen)) ||
        FAILED(chosen->GetDisplayName(SIGDN_FILESYSPATH, &path)))
    {
        return IDCANCEL;
    }
    ::lstrcpyn(m_openFile.lpstrFile, CString(path), static_cast<int>(m_openFile.nMaxFile));
    ::CoTaskMemFree(path);
    return IDOK;
}

const OPENFILENAME & CFileDialog::GetOFN() const
{
    return m_openFile;
}

OPENFILENAME & CFileDialog::GetOFN()
{
    return m_openFile;
}

BOOL CFileDialog::IsPickFoldersMode() const
{
    return m_pickFolders;
}

HWND CFileDialog::DialogWindow() const
{
    return m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr;
}

CString CFileDialog::AskDialog(UINT message) const
{
    CString text;
    LRESULT const length =
        ::SendMessage(DialogWindow(), message, MAX_PATH, reinterpret_cast<LPARAM>(text.GetBuffer(MAX_PATH)));
    text.ReleaseBuffer();
    if (length < 0)
        text.Empty();
    return text;
}

CString CFileDialog::GetPathName() const
{
    return m_hWnd != nullptr ? AskDialog(CDM_GETFILEPATH) : CString(m_openFile.lpstrFile);
}

CString CFileDialog::GetFileName() const
{
    if (m_hWnd != nullptr)
        return AskDialog(CDM_GETSPEC);
    CString const path = GetPathName();
    CString const name = After(path, _T('\\'));
    return name.IsEmpty() ? path : name;
}

CString CFileDialog::GetFileExt() const
{
    return After(GetFileName(), _T('.'));
}

CString CFileDialog::GetFileTitle() const
{
    CString const name = GetFileName();
    int const dot = name.ReverseFind(_T('.'));
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const
{
    if (m_pickFolders)
        return CString(m_openFile.lpstrFile);
    if (m_hWnd != nullptr)
        return AskDialog(CDM_GETFOLDERPATH);
    CString const path = GetPathName();
    int const separator = path.ReverseFind(_T('\\'));
    return separator < 0 ? CString() : path.Left(separator);
}

BOOL CFileDialog::GetReadOnlyPref() const
{
    return (m_openFile.Flags & OFN_READONLY) != 0;
}

POSITION CFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(m_openFile.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION & pos) const
{
    bool const several = (m_openFile.Flags & OFN_ALLOWMULTISELECT) != 0;
    LPCTSTR const part = reinterpret_cast<LPCTSTR>(pos);
    LPCTSTR const folder = m_openFile.lpstrFile;
    LPCTSTR name = part;
    if (part == folder)
    {
        // One name alone is a whole path. With more, the folder comes first and the names follow it.
        LPCTSTR const second = folder + ::lstrlen(folder) + 1;
        if (!several || m_openFile.nFileOffset == 0 || second != folder + m_openFile.nFileOffset)
        {
            pos = nullptr;
            return CString(folder);
        }
        name = second;
    }
    LPCTSTR const next = name + ::lstrlen(name) + 1;
    pos = *next != 0 ? reinterpret_cast<POSITION>(const_cast<LPTSTR>(next)) : nullptr;
    CString path(folder);
    if (path.IsEmpty() || path[path.GetLength() - 1] != _T('\\'))
        path += _T('\\');
    return path + name;
}

void CFileDialog::SetTemplate(UINT nWin3ID, UINT nWin4ID)
{
    SetTemplate(MAKEINTRESOURCE(nWin3ID), MAKEINTRESOURCE(nWin4ID));
}

void CFileDialog::SetTemplate(LPCTSTR, LPCTSTR lpWin4ID)
{
    m_openFile.lpTemplateName = lpWin4ID;
    if (!IS_INTRESOURCE(lpWin4ID))
    {
        m_templateName = lpWin4ID;
        m_openFile.lpTemplateName = m_templateName;
    }
    m_openFile.hInstance = AfxFindResourceHandle(lpWin4ID, RT_DIALOG);
    m_openFile.Flags |= OFN_ENABLETEMPLATE;
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz)
{
    SetControlText(nID, static_cast<const wchar_t *>(CStringW(lpsz)));
}

void CFileDialog::SetControlText(int nID, const wchar_t * lpsz)
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(DialogWindow(), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID), reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID)
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(DialogWindow(), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCSTR lpsz)
{
    ASSERT(::IsWindow(m_hWnd));
    m_defaultExtension = lpsz;
    ::SendMessage(DialogWindow(), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(m_defaultExtension.GetString()));
}

UINT CFileDialog::OnShareViolation(LPCTSTR)
{
    return OFN_SHAREWARN;
}

BOOL CFileDialog::OnFileNameOK()
{
    return FALSE;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {}

void CFileDialog::OnInitDone()
{
    CWnd * const dialog = GetParent();
    if (dialog != nullptr)
        dialog->CenterWindow();
}

void CFileDialog::OnFileNameChange() {}

void CFileDialog::OnFolderChange() {}

void CFileDialog::OnTypeChange() {}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (CCommonDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    auto const & notification = *reinterpret_cast<OFNOTIFY const *>(lParam);
    LRESULT answer = 0;
    switch (notification.hdr.code)
    {
    case CDN_INITDONE:
        OnInitDone();
        return TRUE;
    case CDN_SELCHANGE:
        OnFileNameChange();
        return TRUE;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return TRUE;
    case CDN_TYPECHANGE:
        OnTypeChange();
        return TRUE;
    case CDN_FILEOK:
        answer = OnFileNameOK();
        break;
    case CDN_SHAREVIOLATION:
        answer = OnShareViolation(notification.pszFile);
        break;
    default:
        return FALSE;
    }
    // The dialog looks for the answer in the window, not in the result of the message.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, answer);
    *pResult = answer;
    return TRUE;
}

IMPLEMENT_DYNAMIC(CFolderPickerDialog, CFileDialog)

CFolderPickerDialog::CFolderPickerDialog(LPCTSTR lpszFolder, DWORD dwFlags, CWnd * pParentWnd, DWORD dwSize)
    : CFileDialog(TRUE, nullptr, lpszFolder, dwFlags, nullptr, pParentWnd, dwSize)
{
    m_pickFolders = TRUE;
}

CFolderPickerDialog::~CFolderPickerDialog() = default;
