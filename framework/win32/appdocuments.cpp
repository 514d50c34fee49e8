// CWinApp: document templates, opening files, the files used last, help.

#include "detail/AppDocuments.h"

#include "afxadv.h"
#include "afxdlgs.h"
#include <shlwapi.h>

#include <vector>

#include "detail/FrameSupport.h"

namespace
{
constexpr wchar_t recent_section[] = L"Recent File List";
constexpr wchar_t recent_entry[] = L"File%d";
constexpr wchar_t settings_section[] = L"Settings";
constexpr wchar_t preview_entry[] = L"PreviewPages";

/// What the framework says itself, where the program has no string of its own for it.
LPCTSTR BuiltInText(UINT id)
{
    switch (id)
    {
    case AFX_IDS_OPENFILE:
        return L"Open";
    case AFX_IDS_SAVEFILE:
        return L"Save As";
    case AFX_IDS_SAVEFILECOPY:
        return L"Save Copy As";
    case AFX_IDS_ALLFILTER:
        return L"All Files (*.*)";
    case AFX_IDS_UNTITLED:
        return L"Untitled";
    case AFX_IDP_INVALID_FILENAME:
        return L"Invalid filename.";
    case AFX_IDP_FAILED_TO_OPEN_DOC:
        return L"Failed to open document.";
    case AFX_IDP_FAILED_TO_SAVE_DOC:
        return L"Failed to save document.";
    case AFX_IDP_ASK_TO_SAVE:
        return L"Save changes to %1?";
    case AFX_IDP_FAILED_TO_CREATE_DOC:
        return L"Failed to create empty document.";
    case AFX_IDP_FAILED_TO_START_PRINT:
        return L"Could not start print job.";
    case AFX_IDP_COMMAND_FAILURE:
        return L"Command failed.";
    case AFX_IDS_PRINTPAGENUM:
        return L"Page %u";
    case AFX_IDS_PREVIEWPAGEDESC:
        return L"Page %u\nPages %u-%u\n";
    case AFX_IDS_ONEPAGE:
        return L"&One Page";
    case AFX_IDS_TWOPAGE:
        return L"&Two Page";
    case AFX_IDS_PRINTDEFAULTEXT:
        return L"prn";
    case AFX_IDS_PRINTDEFAULT:
        return L"Output.prn";
    case AFX_IDS_PRINTFILTER:
        return L"Printer Files (*.prn)|*.prn|All Files (*.*)|*.*||";
    case AFX_IDS_PRINTCAPTION:
        return L"Print to File";
    default:
        return L"";
    }
}

/// Adds one template's kind of file to a filter; the first extension found becomes the default one.
void AppendFilter(CString & filter, CString & defaultExtension, CDocTemplate const & docTemplate)
{
    CString extensions;
    CString name;
    if (!docTemplate.GetDocString(extensions, CDocTemplate::filterExt) || extensions.IsEmpty() ||
        !docTemplate.GetDocString(name, CDocTemplate::filterName) || name.IsEmpty())
        return;
    CString patterns;
    int start = 0;
    for (CString extension = extensions.Tokenize(L";", start); start >= 0; extension = extensions.Tokenize(L";", start))
    {
        if (defaultExtension.IsEmpty())
            defaultExtension = extension.Mid(1);
        if (!patterns.IsEmpty())
            patterns += L';';
        patterns += L'*' + extension;
    }
    filter += name + L'|' + patterns + L'|';
}
} // namespace

namespace framework
{
CString MessageText(UINT id)
{
    CString text;
    if (!text.LoadString(id))
        text = BuiltInText(id);
    return text;
}

bool PromptFileName(CString & name, UINT titleId, DWORD flags, bool open, CDocTemplate * one)
{
    CString filter;
    CString extension;
    if (one != nullptr)
        AppendFilter(filter, extension, *one);
    else if (CWinApp const * const app = AfxGetApp())
    {
        for (POSITION at = app->GetFirstDocTemplatePosition(); at != nullptr;)
            AppendFilter(filter, extension, *app->GetNextDocTemplate(at));
    }
    filter += MessageText(AFX_IDS_ALLFILTER) + L"|*.*||";
    CString const title = MessageText(titleId);
    CFileDialog dialog(open, extension.IsEmpty() ? nullptr : extension.GetString(), name,
                       flags | (open ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT), filter);
    dialog.GetOFN().lpstrTitle = title;
    if (dialog.DoModal() != IDOK)
        return false;
    name = dialog.GetPathName();
    return true;
}

namespace
{
constexpr WORD kind_list_id = 100;
constexpr WORD button_atom = 0x0080;
constexpr WORD list_box_atom = 0x0083;

/// A dialog template with a list of kinds and two buttons, as it stands in a resource.
class KindTemplate
{
public:
    KindTemplate()
    {
        Long(DS_MODALFRAME | DS_SETFONT | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU);
        Long(0);
        for (WORD const word : {3, 0, 0, 180, 90, 0, 0}) // items, place, size, no menu, the usual class
            m_words.push_back(word);
        Text(L"New");
        m_words.push_back(8);
        Text(L"MS Shell Dlg");
        Item(WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, 7, 7, 110, 76, kind_list_id,
             list_box_atom, L"");
        Item(WS_TABSTOP | BS_DEFPUSHBUTTON, 123, 7, 50, 14, IDOK, button_atom, L"OK");
        Item(WS_TABSTOP | BS_PUSHBUTTON, 123, 24, 50, 14, IDCANCEL, button_atom, L"Cancel");
    }
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    void Long(DWORD value)
    {
        m_words.push_back(LOWORD(value));
        m_words.push_back(HIWORD(value));
    }
    void Text(wchar_t const * text)
    {
        do
            m_words.push_back(static_cast<WORD>(*text));
        while (*text++ != 0);
    }
    void Item(DWORD style, WORD x, WORD y, WORD width, WORD height, WORD id, WORD atom, wchar_t const * text)
    {
        if (m_words.size() % 2 != 0)
            m_words.push_back(0);
        Long(style | WS_CHILD | WS_VISIBLE);
        Long(0);
        for (WORD const word : {x, y, width, height, id, static_cast<WORD>(0xFFFF), atom})
            m_words.push_back(word);
        Text(text);
        m_words.push_back(0);
    }

    std::vector<WORD> m_words;
};

class KindDialog : public CDialog
{
public:
    explicit KindDialog(std::vector<CString> const & names) : m_names(names) { InitModalIndirect(m_template.Get()); }

    int m_chosen = -1;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        for (CString const & name : m_names)
            SendDlgItemMessage(kind_list_id, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.GetString()));
        SendDlgItemMessage(kind_list_id, LB_SETCURSEL, 0);
        return TRUE;
    }
    void OnOK() override
    {
        m_chosen = static_cast<int>(SendDlgItemMessage(kind_list_id, LB_GETCURSEL));
        if (m_chosen >= 0)
            CDialog::OnOK();
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (LOWORD(wParam) != kind_list_id || HIWORD(wParam) != LBN_DBLCLK)
            return CDialog::OnCommand(wParam, lParam);
        OnOK();
        return TRUE;
    }

private:
    KindTemplate m_template;
    std::vector<CString> const & m_names;
};
} // namespace

int ChooseKind(std::vector<CString> const & names)
{
    KindDialog dialog(names);
    return dialog.DoModal() == IDOK ? dialog.m_chosen : -1;
}

AppDocuments::~AppDocuments()
{
    while (!m_templates.IsEmpty())
        delete static_cast<CDocTemplate *>(m_templates.RemoveHead());
    if (m_deviceNames != nullptr)
        ::GlobalFree(m_deviceNames);
    if (m_deviceMode != nullptr)
        ::GlobalFree(m_deviceMode);
}
} // namespace framework

framework::AppDocuments & CWinApp::Documents()
{
    if (m_documents == nullptr)
        m_documents = new framework::AppDocuments;
    return *m_documents;
}

void CWinApp::AddDocTemplate(CDocTemplate * pTemplate)
{
    CPtrList & templates = Documents().m_templates;
    if (templates.Find(pTemplate) != nullptr)
        return;
    pTemplate->LoadTemplate();
    templates.AddTail(pTemplate);
}

POSITION CWinApp::GetFirstDocTemplatePosition() const
{
    return m_documents != nullptr ? m_documents->m_templates.GetHeadPosition() : nullptr;
}

CDocTemplate * CWinApp::GetNextDocTemplate(POSITION & pos) const
{
    return static_cast<CDocTemplate *>(m_documents->m_templates.GetNext(pos));
}

void CWinApp::OnFileNew()
{
    POSITION at = GetFirstDocTemplatePosition();
    if (at == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_CREATE_DOC));
        return;
    }
    std::vector<CDocTemplate *> templates;
    std::vector<CString> names;
    while (at != nullptr)
    {
        CDocTemplate * const docTemplate = GetNextDocTemplate(at);
        CString name;
        // Templates without such a name aren't for the user to choose.
        if (docTemplate->GetDocString(name, CDocTemplate::fileNewName) && !name.IsEmpty())
        {
            templates.push_back(docTemplate);
            names.push_back(name);
        }
    }
    at = GetFirstDocTemplatePosition();
    CDocTemplate * chosen = templates.empty() ? GetNextDocTemplate(at) : templates.front();
    if (templates.size() > 1)
    {
        int const index = framework::ChooseKind(names);
        if (index < 0)
            return;
        chosen = templates[static_cast<size_t>(index)];
    }
    chosen->OpenDocumentFile(nullptr);
}

void CWinApp::OnFileOpen()
{
    CString name;
    if (framework::PromptFileName(name, AFX_IDS_OPENFILE, OFN_HIDEREADONLY, true, nullptr))
        OpenDocumentFile(name);
}

CDocument * CWinApp::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU)
{
    // A name may come in quotation marks, or be a link.
    CString name(lpszFileName);
    name.Trim(L'"');
    CString const path = framework::FullPath(name);
    CDocTemplate::Confidence best = CDocTemplate::noAttempt;
    CDocTemplate * chosen = nullptr;
    CDocument * present = nullptr;
    for (POSITION at = GetFirstDocTemplatePosition(); at != nullptr;)
    {
        CDocTemplate * const docTemplate = GetNextDocTemplate(at);
        CDocument * match = nullptr;
        CDocTemplate::Confidence const confidence = docTemplate->MatchDocType(path, match);
        if (confidence > best)
        {
            best = confidence;
            chosen = docTemplate;
            present = match;
        }
        if (confidence == CDocTemplate::yesAlreadyOpen)
            break;
    }
    if (present != nullptr)
    {
        POSITION at = present->GetFirstViewPosition();
        if (at == nullptr)
            return present;
        CView * const view = present->GetNextView(at);
        CFrameWnd * const frame = view->GetParentFrame();
        if (frame == nullptr)
            return present;
        framework::DocumentWatch const watch(present);
        framework::WindowGuard const guard(frame);
        if (frame == AfxGetMainWnd() || frame->GetActiveFrame() == frame)
            frame->ActivateFrame();
        // The main frame around an inner one is activated as well.
        auto * const main = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
        if (guard.Alive() && main != nullptr && main != frame)
            main->ActivateFrame();
        return watch.Alive() ? present : nullptr;
    }
    if (chosen == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_OPEN_DOC));
        return nullptr;
    }
    return chosen->OpenDocumentFile(path, bAddToMRU);
}

BOOL CWinApp::SaveAllModified()
{
    for (POSITION at = GetFirstDocTemplatePosition(); at != nullptr;)
    {
        if (!GetNextDocTemplate(at)->SaveAllModified())
            return FALSE;
    }
    return TRUE;
}

void CWinApp::CloseAllDocuments(BOOL bEndSession)
{
    for (POSITION at = GetFirstDocTemplatePosition(); at != nullptr;)
        GetNextDocTemplate(at)->CloseAllDocuments(bEndSession);
}

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU)
{
    framework::AppDocuments & documents = Documents();
    if (nMaxMRU != 0)
    {
        documents.m_recent =
            std::make_unique<CRecentFileList>(0, recent_section, recent_entry, static_cast<int>(nMaxMRU));
        documents.m_recent->ReadList();
    }
    documents.m_previewPages = GetProfileInt(settings_section, preview_entry, 0);
    documents.m_settingsLoaded = true;
}

void CWinApp::SaveStandardSettings()
{
    if (m_documents == nullptr || !m_documents->m_settingsLoaded)
        return;
    if (m_documents->m_recent != nullptr)
        m_documents->m_recent->WriteList();
    if (m_documents->m_previewPages != 0)
        WriteProfileInt(settings_section, preview_entry, static_cast<int>(m_documents->m_previewPages));
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName)
{
    if (m_documents != nullptr && m_documents->m_recent != nullptr)
        m_documents->m_recent->Add(lpszPathName);
}

void CWinApp::UpdateRecentFiles(CCmdUI * pCmdUI)
{
    if (m_documents != nullptr && m_documents->m_recent != nullptr)
        m_documents->m_recent->UpdateMenu(pCmdUI);
    else
        pCmdUI->Enable(FALSE);
}

BOOL CWinApp::OpenRecentFile(UINT nID)
{
    CRecentFileList * const recent = m_documents != nullptr ? m_documents->m_recent.get() : nullptr;
    int const index = static_cast<int>(nID - ID_FILE_MRU_FILE1);
    if (recent == nullptr || index < 0 || index >= recent->GetSize())
        return FALSE;
    CString const name = (*recent)[index];
    if (name.IsEmpty())
        return FALSE;
    if (OpenDocumentFile(name) == nullptr)
    {
        // What can't be opened any more leaves the list, unless it has moved meanwhile.
        if (index < recent->GetSize() && (*recent)[index] == name)
            recent->Remove(index);
    }
    return TRUE;
}

void CWinApp::HandleExit()
{
    if (CWnd * const main = m_pMainWnd)
        main->SendMessage(WM_CLOSE);
}

BOOL CWinApp::ProcessShellCommand(CCommandLineInfo & rCmdInfo)
{
    switch (rCmdInfo.m_nShellCommand)
    {
    case CCommandLineInfo::FileNew:
        // Asked for as a command, so that the program's own handler counts.
        if (!OnCmdMsg(ID_FILE_NEW, CN_COMMAND, nullptr, nullptr))
            OnFileNew();
        return m_pMainWnd != nullptr;
    case CCommandLineInfo::FileOpen:
        return OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr;
    case CCommandLineInfo::FilePrint:
    case CCommandLineInfo::FilePrintTo:
        m_nCmdShow = SW_HIDE;
        Documents().m_printCommand = &rCmdInfo;
        if (OpenDocumentFile(rCmdInfo.m_strFileName, FALSE) != nullptr && m_pMainWnd != nullptr)
        {
            m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
            if (m_pMainWnd != nullptr)
                m_pMainWnd->SendMessage(WM_CLOSE);
        }
        Documents().m_printCommand = nullptr;
        return FALSE; // the program is done
    case CCommandLineInfo::AppRegister:
        Register();
        return FALSE;
    case CCommandLineInfo::AppUnregister:
        Unregister();
        return FALSE;
    case CCommandLineInfo::FileDDE:
        m_nCmdShow = SW_HIDE; // shown once the conversation asks for a file
        return TRUE;
    default:
        return TRUE;
    }
}

void CWinApp::EnableShellOpen() {}

namespace
{
constexpr wchar_t classes_key[] = L"Software\\Classes\\";

void SetClassValue(CString const & key, CString const & value)
{
    ::RegSetKeyValue(HKEY_CURRENT_USER, classes_key + key, nullptr, REG_SZ, value.GetString(),
                     static_cast<DWORD>((value.GetLength() + 1) * static_cast<int>(sizeof(wchar_t))));
}

CString ClassValue(CString const & key)
{
    wchar_t value[MAX_PATH] = {};
    DWORD size = sizeof value;
    bool const there = ::RegGetValue(HKEY_CURRENT_USER, classes_key + key, nullptr, RRF_RT_REG_SZ, nullptr, value,
                                     &size) == ERROR_SUCCESS;
    return there ? CString(value) : CString();
}

/// What the registry needs of a template: the type's name and its file extensions. False if it has none.
bool TypeOf(CDocTemplate const & docTemplate, CString & type, CString & extensions)
{
    return docTemplate.GetDocString(type, CDocTemplate::regFileTypeId) && !type.IsEmpty() &&
           docTemplate.GetDocString(extensions, CDocTemplate::filterExt) && !extensions.IsEmpty();
}
} // namespace

void CWinApp::RegisterShellFileTypes(BOOL bCompat)
{
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileName(m_hInstance, program, MAX_PATH);
    CString const quoted = CString(L"\"") + program + L"\"";
    int index = 0;
    for (POSITION at = GetFirstDocTemplatePosition(); at != nullptr; ++index)
    {
        CDocTemplate const & docTemplate = *GetNextDocTemplate(at);
        CString type;
        CString extensions;
        if (!TypeOf(docTemplate, type, extensions))
            continue;
        CString name;
        if (!docTemplate.GetDocString(name, CDocTemplate::regFileTypeName) || name.IsEmpty())
            name = type;
        CString icon;
        icon.Format(L"%s,%d", program, index);
        SetClassValue(type, name);
        SetClassValue(type + L"\\DefaultIcon", icon);
        SetClassValue(type + L"\\shell\\open\\command", quoted + L" \"%1\"");
        if (bCompat)
        {
            SetClassValue(type + L"\\shell\\print\\command", quoted + L" /p \"%1\"");
            SetClassValue(type + L"\\shell\\printto\\command", quoted + L" /pt \"%1\" \"%2\" \"%3\" \"%4\"");
        }
        int start = 0;
        for (CString extension = extensions.Tokenize(L";", start); start >= 0;
             extension = extensions.Tokenize(L";", start))
        {
            // An extension that belongs to another program stays there.
            CString const present = ClassValue(extension);
            if (present.IsEmpty() || present == type)
                SetClassValue(extension, type);
        }
    }
}

void CWinApp::UnregisterShellFileTypes()
{
    for (POSITION at = GetFirstDocTemplatePosition(); at != nullptr;)
    {
        CString type;
        CString extensions;
        if (!TypeOf(*GetNextDocTemplate(at), type, extensions))
            continue;
        ::RegDeleteTree(HKEY_CURRENT_USER, classes_key + type);
        int start = 0;
        for (CString extension = extensions.Tokenize(L";", start); start >= 0;
             extension = extensions.Tokenize(L";", start))
        {
            if (ClassValue(extension) == type)
                ::RegDeleteTree(HKEY_CURRENT_USER, classes_key + extension);
        }
    }
}

BOOL CWinApp::Register()
{
    return TRUE;
}

BOOL CWinApp::Unregister()
{
    return TRUE;
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    CWaitCursor wait;
    CWnd * const main = AfxGetMainWnd();
    if (main == nullptr)
        return;
    main->SendMessage(WM_CANCELMODE);
    ::WinHelp(main->m_hWnd, m_pszHelpFilePath, nCmd, dwData);
}

void CWinApp::OnHelp()
{
    WinHelp(0, HELP_FINDER);
}

void CWinApp::OnHelpIndex()
{
    WinHelp(0, HELP_INDEX);
}

void CWinApp::OnHelpFinder()
{
    WinHelp(0, HELP_FINDER);
}

void CWinApp::OnHelpUsing()
{
    WinHelp(0, HELP_HELPONHELP);
}

void CWinApp::OnContextHelp()
{
    m_bHelpMode = FALSE;
    OnHelp();
}
