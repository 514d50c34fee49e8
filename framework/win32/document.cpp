// CDocument: title, path, views, saving and closing.

#include <shlwapi.h>

#include <unordered_set>
#include <vector>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::DocumentWatch;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
    ON_COMMAND(ID_FILE_CLOSE, &CDocument::HandleClose)
    ON_COMMAND(ID_FILE_SAVE, &CDocument::HandleSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &CDocument::HandleSaveAs)
END_MESSAGE_MAP()

namespace
{
/// All documents of the process, of all threads.
class DocumentSet
{
public:
    void Insert(CDocument const * document)
    {
        Lock const lock(m_lock);
        m_documents.insert(document);
    }
    void Erase(CDocument const * document)
    {
        Lock const lock(m_lock);
        m_documents.erase(document);
    }
    bool Contains(CDocument const * document)
    {
        Lock const lock(m_lock);
        return m_documents.contains(document);
    }

private:
    class Lock
    {
    public:
        explicit Lock(SRWLOCK & lock) : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
        ~Lock() { ::ReleaseSRWLockExclusive(&m_lock); }
        Lock(Lock const &) = delete;
        Lock & operator=(Lock const &) = delete;

    private:
        SRWLOCK & m_lock;
    };
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::unordered_set<CDocument const *> m_documents;
};

DocumentSet & Documents()
{
    static DocumentSet & documents = *new DocumentSet; // there may be documents of static life
    return documents;
}
} // namespace

bool framework::IsDocument(CDocument const * document)
{
    return Documents().Contains(document);
}

DocumentWatch::DocumentWatch(CDocument * document) : m_document(document)
{
    if (document != nullptr)
        m_next = std::exchange(document->m_watches, this);
}

DocumentWatch::~DocumentWatch()
{
    if (m_document == nullptr)
        return;
    for (DocumentWatch ** at = &m_document->m_watches; *at != nullptr; at = &(*at)->m_next)
    {
        if (*at == this)
        {
            *at = m_next;
            break;
        }
    }
}

CString framework::FullPath(LPCTSTR name)
{
    CString path;
    DWORD const length = ::GetFullPathName(name, 0, nullptr, nullptr);
    if (length == 0)
        return name;
    DWORD const written = ::GetFullPathName(name, length, path.GetBuffer(static_cast<int>(length)), nullptr);
    path.ReleaseBuffer(static_cast<int>(written < length ? written : 0));
    return path.IsEmpty() ? CString(name) : path;
}

CDocument::CDocument() : m_template(nullptr), m_modified(FALSE), m_autoDelete(true), m_watches(nullptr)
{
    Documents().Insert(this);
}

CDocument::~CDocument()
{
    Documents().Erase(this);
    for (DocumentWatch * watch = m_watches; watch != nullptr;)
    {
        watch->m_document = nullptr;
        watch = std::exchange(watch->m_next, nullptr);
    }
    m_watches = nullptr;
    while (!m_viewList.IsEmpty())
        static_cast<CView *>(m_viewList.RemoveHead())->m_pDocument = nullptr;
    if (m_template != nullptr)
        m_template->RemoveDocument(this);
}

const CString & CDocument::GetTitle() const
{
    return m_title;
}

void CDocument::SetTitle(LPCTSTR lpszTitle)
{
    m_title = lpszTitle;
    UpdateFrameCounts(); // which sets the frames' titles
}

const CString & CDocument::GetPathName() const
{
    return m_path;
}

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU)
{
    m_path = framework::FullPath(lpszPathName);
    CString const path = m_path;
    DocumentWatch const watch(this);
    SetTitle(::PathFindFileName(path));
    if (!watch.Alive() || !bAddToMRU)
        return;
    if (CWinApp * const app = AfxGetApp())
        app->AddToRecentFileList(path);
}

void CDocument::ClearPathName()
{
    m_path.Empty();
}

CDocTemplate * CDocument::GetDocTemplate() const
{
    return m_template;
}

BOOL CDocument::IsModified()
{
    return m_modified;
}

void CDocument::SetModifiedFlag(BOOL bModified)
{
    m_modified = bModified;
}

void CDocument::AddView(CView * pView)
{
    ASSERT(pView->m_pDocument == nullptr);
    if (pView->m_pDocument == this || m_viewList.Find(pView) != nullptr)
        return;
    m_viewList.AddTail(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView * pView)
{
    POSITION const at = m_viewList.Find(pView);
    if (at == nullptr)
        return;
    m_viewList.RemoveAt(at);
    pView->m_pDocument = nullptr;
    OnChangedViewList(); // may delete this
}

void CDocument::OnChangedViewList()
{
    if (m_viewList.IsEmpty() && m_autoDelete)
    {
        OnCloseDocument();
        return;
    }
    UpdateFrameCounts();
}

POSITION CDocument::GetFirstViewPosition() const
{
    return m_viewList.GetHeadPosition();
}

CView * CDocument::GetNextView(POSITION & rPosition) const
{
    return rPosition != nullptr ? static_cast<CView *>(m_viewList.GetNext(rPosition)) : nullptr;
}

void CDocument::UpdateAllViews(CView * pSender, LPARAM lHint, CObject * pHint)
{
    std::vector<std::pair<CView *, WindowGuard>> views;
    for (POSITION at = GetFirstViewPosition(); at != nullptr;)
    {
        CView * const view = GetNextView(at);
        views.emplace_back(view, WindowGuard(view));
    }
    DocumentWatch const watch(this);
    for (auto const & [view, guard] : views)
    {
        // One may have ended through another; a view without a window is looked for.
        if (view != pSender && ((guard.Alive() && view->m_pDocument == this) || m_viewList.Find(view) != nullptr))
            view->OnUpdate(pSender, lHint, pHint);
        if (!watch.Alive())
            return;
    }
}

void CDocument::UpdateFrameCounts()
{
    // Frames are numbered in the order of the views that they show first.
    std::vector<WindowGuard> guards;
    std::vector<CFrameWnd *> frames;
    std::unordered_set<CFrameWnd *> seen;
    for (POSITION at = m_viewList.GetHeadPosition(); at != nullptr;)
    {
        auto const * const view = static_cast<CView const *>(m_viewList.GetNext(at));
        if (view->m_hWnd == nullptr || !view->IsWindowVisible())
            continue; // of frames that show, alone
        CFrameWnd * const frame = view->GetParentFrame();
        if (frame == nullptr || !seen.insert(frame).second)
            continue;
        frames.push_back(frame);
        guards.emplace_back(frame);
    }
    for (size_t at = 0; at < frames.size(); ++at)
        frames[at]->m_number = frames.size() > 1 ? static_cast<int>(at) + 1 : 0;
    for (size_t at = 0; at < frames.size(); ++at)
    {
        if (guards[at].Alive())
            frames[at]->OnUpdateFrameTitle(TRUE);
    }
}

void CDocument::DeleteContents() {}

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    m_path.Empty();
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::OnCloseDocument()
{
    DocumentWatch const watch(this);
    bool const autoDelete = m_autoDelete;
    m_autoDelete = false; // not before all is done here
    while (watch.Alive() && !m_viewList.IsEmpty())
    {
        auto * const view = static_cast<CView *>(m_viewList.GetHead());
        WindowGuard const viewGuard(view);
        CFrameWnd * const frame = view->m_hWnd != nullptr ? view->GetParentFrame() : nullptr;
        if (frame == nullptr)
        {
            RemoveView(view);
            continue;
        }
        WindowGuard const guard(frame);
        PreCloseFrame(frame);
        if (guard.Alive())
            frame->DestroyWindow();
        // A view that has outlived its frame isn't asked again.
        if (watch.Alive() && viewGuard.Alive() && view->m_pDocument == this && view->GetParentFrame() == frame)
            RemoveView(view);
    }
    if (!watch.Alive())
        return;
    m_autoDelete = autoDelete;
    DeleteContents();
    if (watch.Alive() && m_autoDelete)
        delete this;
}

void CDocument::PreCloseFrame(CFrameWnd *) {}

BOOL CDocument::CanCloseFrame(CFrameWnd *)
{
    for (POSITION at = GetFirstViewPosition(); at != nullptr;)
    {
        CView const * const view = GetNextView(at);
        CFrameWnd const * const frame = view->GetParentFrame();
        if (frame != nullptr && frame->m_number > 0)
            return TRUE; // another one stays open
    }
    return SaveModified();
}

BOOL CDocument::SaveModified()
{
    if (!IsModified())
        return TRUE;
    CString name = m_path.IsEmpty() ? m_title : CString(::PathFindFileName(m_path));
    if (name.IsEmpty())
        name = framework::MessageText(AFX_IDS_UNTITLED);
    CString prompt;
    LPCTSTR const inserted = name;
    AfxFormatStrings(prompt, framework::MessageText(AFX_IDP_ASK_TO_SAVE).GetString(), &inserted, 1);
    DocumentWatch const watch(this);
    switch (AfxMessageBox(prompt, MB_YESNOCANCEL, AFX_IDP_ASK_TO_SAVE))
    {
    case IDYES:
        return watch.Alive() && DoFileSave();
    case IDNO:
        return watch.Alive();
    default:
        return FALSE;
    }
}

BOOL CDocument::DoFileSave()
{
    DWORD const attributes = m_path.IsEmpty() ? INVALID_FILE_ATTRIBUTES : ::GetFileAttributes(m_path);
    bool const ask =
        attributes == INVALID_FILE_ATTRIBUTES ? m_path.IsEmpty() : (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    CString const path = m_path;
    return DoSave(ask ? nullptr : path.GetString());
}

BOOL CDocument::DoSave(LPCTSTR lpszPathName, BOOL bReplace)
{
    CString name(lpszPathName);
    DocumentWatch const watch(this);
    if (name.IsEmpty())
    {
        name = m_path;
        if (bReplace && name.IsEmpty())
        {
            name = m_title;
            int const bad = name.FindOneOf(L" #%;/\\:*?\"<>|");
            if (bad >= 0)
                name = name.Left(bad);
            CString extension;
            if (m_template != nullptr && m_template->GetDocString(extension, CDocTemplate::filterExt) &&
                !extension.IsEmpty())
            {
                int start = 0;
                name += extension.Tokenize(L";", start);
            }
        }
        UINT const title = bReplace ? AFX_IDS_SAVEFILE : AFX_IDS_SAVEFILECOPY;
        if (!framework::PromptFileName(name, title, OFN_HIDEREADONLY | OFN_PATHMUSTEXIST, false, m_template) ||
            !watch.Alive())
            return FALSE;
    }
    CWaitCursor wait;
    if (!OnSaveDocument(name))
    {
        if (lpszPathName == nullptr)
            ::DeleteFile(name); // what has been begun
        return FALSE;
    }
    if (bReplace && watch.Alive())
        SetPathName(name);
    return TRUE;
}

void CDocument::HandleClose()
{
    DocumentWatch const watch(this);
    if (SaveModified() && watch.Alive())
        OnCloseDocument();
}

void CDocument::HandleSave()
{
    DoFileSave();
}

void CDocument::HandleSaveAs()
{
    DoSave(nullptr);
}

BOOL CDocument::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    DocumentWatch const watch(this);
    if (CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return watch.Alive() && m_template != nullptr && m_template->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
