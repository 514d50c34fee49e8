// Document templates: how documents, frames and views are made together.

#include <shlwapi.h>

#include <vector>

#include "detail/FrameSupport.h"

using framework::DocumentAccess;
using framework::DocumentWatch;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)
IMPLEMENT_DYNAMIC(CSingleDocTemplate, CDocTemplate)
IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

namespace
{
/// The documents of a template, of which each may have gone once the others have been called.
std::vector<CDocument *> DocumentsOf(CDocTemplate const & docTemplate)
{
    std::vector<CDocument *> documents;
    for (POSITION at = docTemplate.GetFirstDocPosition(); at != nullptr;)
        documents.push_back(docTemplate.GetNextDoc(at));
    return documents;
}

bool SamePath(LPCTSTR first, LPCTSTR second)
{
    return ::CompareStringOrdinal(first, -1, second, -1, TRUE) == CSTR_EQUAL;
}
} // namespace

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass * pDocClass, CRuntimeClass * pFrameClass,
                           CRuntimeClass * pViewClass)
    : m_resource(nIDResource),
      m_documentClass(pDocClass),
      m_frameClass(pFrameClass),
      m_viewClass(pViewClass),
      m_sharedMenu(nullptr),
      m_sharedAccelerators(nullptr)
{
    CDocTemplate::LoadTemplate();
}

CDocTemplate::~CDocTemplate() = default;

void CDocTemplate::LoadTemplate()
{
    if (m_strings.IsEmpty())
        m_strings.LoadString(m_resource);
}

BOOL CDocTemplate::GetDocString(CString & rString, enum DocStringIndex index) const
{
    return AfxExtractSubString(rString, m_strings, static_cast<int>(index));
}

void CDocTemplate::AddDocument(CDocument * pDoc)
{
    ASSERT(pDoc->GetDocTemplate() == nullptr);
    DocumentAccess::SetTemplate(*pDoc, this);
}

void CDocTemplate::RemoveDocument(CDocument * pDoc)
{
    ASSERT(pDoc->GetDocTemplate() == this);
    DocumentAccess::SetTemplate(*pDoc, nullptr);
}

bool CDocTemplate::Has(CDocument const * pDoc) const
{
    for (POSITION at = GetFirstDocPosition(); at != nullptr;)
    {
        if (GetNextDoc(at) == pDoc)
            return true;
    }
    return false;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument *& rpDocMatch)
{
    rpDocMatch = nullptr;
    for (POSITION at = GetFirstDocPosition(); at != nullptr;)
    {
        CDocument * const document = GetNextDoc(at);
        if (SamePath(document->GetPathName(), lpszPathName))
        {
            rpDocMatch = document;
            return yesAlreadyOpen;
        }
    }
    CString extensions;
    if (GetDocString(extensions, filterExt) && !extensions.IsEmpty())
    {
        LPCTSTR const own = ::PathFindExtension(lpszPathName);
        int start = 0;
        for (CString extension = extensions.Tokenize(L";", start); start >= 0;
             extension = extensions.Tokenize(L";", start))
        {
            if (SamePath(own, extension))
                return yesAttemptNative;
        }
    }
    return yesAttemptForeign; // it can be tried
}

CDocument * CDocTemplate::CreateNewDocument()
{
    if (m_documentClass == nullptr)
        return nullptr;
    auto * const document = DYNAMIC_DOWNCAST(CDocument, m_documentClass->CreateObject());
    if (document != nullptr)
        AddDocument(document);
    return document;
}

CFrameWnd * CDocTemplate::CreateNewFrame(CDocument * pDoc, CFrameWnd * pOther)
{
    ASSERT(m_resource != 0);
    CCreateContext context;
    context.m_pCurrentFrame = pOther;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewViewClass = m_viewClass;
    context.m_pNewDocTemplate = this;
    if (m_frameClass == nullptr)
        return nullptr;
    auto * const frame = DYNAMIC_DOWNCAST(CFrameWnd, m_frameClass->CreateObject());
    if (frame == nullptr)
        return nullptr;
    // A frame whose window fails has deleted itself.
    if (!frame->LoadFrame(m_resource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context))
        return nullptr;
    return frame;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd * pFrame, CDocument * pDoc, BOOL bMakeVisible)
{
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

BOOL CDocTemplate::SaveAllModified()
{
    for (CDocument * const document : DocumentsOf(*this))
    {
        if (Has(document) && !document->SaveModified())
            return FALSE;
    }
    return TRUE;
}

void CDocTemplate::CloseAllDocuments(BOOL)
{
    for (CDocument * const document : DocumentsOf(*this))
    {
        if (Has(document))
            document->OnCloseDocument();
    }
}

CSingleDocTemplate::CSingleDocTemplate(UINT nIDResource, CRuntimeClass * pDocClass, CRuntimeClass * pFrameClass,
                                       CRuntimeClass * pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass),
      m_document(nullptr)
{
}

CSingleDocTemplate::~CSingleDocTemplate()
{
    if (m_document != nullptr)
        DocumentAccess::SetTemplate(*m_document, nullptr);
}

POSITION CSingleDocTemplate::GetFirstDocPosition() const
{
    return reinterpret_cast<POSITION>(m_document);
}

CDocument * CSingleDocTemplate::GetNextDoc(POSITION & rPos) const
{
    rPos = nullptr;
    return m_document;
}

void CSingleDocTemplate::AddDocument(CDocument * pDoc)
{
    ASSERT(m_document == nullptr);
    CDocTemplate::AddDocument(pDoc);
    m_document = pDoc;
}

void CSingleDocTemplate::RemoveDocument(CDocument * pDoc)
{
    CDocTemplate::RemoveDocument(pDoc);
    if (m_document == pDoc)
        m_document = nullptr;
}

void CSingleDocTemplate::SetDefaultTitle(CDocument * pDocument)
{
    CString title;
    if (!GetDocString(title, docName) || title.IsEmpty())
        title = framework::MessageText(AFX_IDS_UNTITLED);
    pDocument->SetTitle(title);
}

CDocument * CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName)
{
    return OpenDocumentFile(lpszPathName, TRUE);
}

CDocument * CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU)
{
    CFrameWnd * frame = nullptr;
    CDocument * document = m_document;
    bool const created = document == nullptr;
    if (created)
        document = CreateNewDocument();
    else
    {
        DocumentWatch const watch(document);
        if (!document->SaveModified() || !watch.Alive())
            return nullptr; // the old one stays
        frame = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    }
    if (document == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_CREATE_DOC));
        return nullptr;
    }
    DocumentWatch const watch(document);
    if (frame == nullptr)
    {
        bool const autoDelete = std::exchange(document->m_autoDelete, false);
        frame = CreateNewFrame(document, nullptr);
        if (watch.Alive())
            document->m_autoDelete = autoDelete;
        if (frame == nullptr || !watch.Alive())
        {
            AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_CREATE_DOC));
            if (watch.Alive() && created)
                delete document;
            return nullptr;
        }
    }
    WindowGuard const guard(frame);
    auto const abandon = [&guard, frame, created] {
        if (created && guard.Alive())
            frame->DestroyWindow(); // and the document with it
        return nullptr;
    };
    if (lpszPathName == nullptr)
    {
        SetDefaultTitle(document);
        if (!document->OnNewDocument())
            return abandon();
    }
    else
    {
        CWaitCursor wait;
        BOOL const modified = document->IsModified();
        document->SetModifiedFlag(FALSE);
        if (!document->OnOpenDocument(lpszPathName))
        {
            if (created || !watch.Alive())
                return abandon();
            if (!document->IsModified())
                document->SetModifiedFlag(modified); // untouched
            else
            {
                SetDefaultTitle(document);
                document->OnNewDocument();
            }
            return nullptr;
        }
        if (watch.Alive())
            document->SetPathName(lpszPathName, bAddToMRU);
    }
    if (!watch.Alive() || !guard.Alive())
        return nullptr;
    CWinThread * const thread = AfxGetThread();
    if (created && thread != nullptr && thread->m_pMainWnd == nullptr)
        thread->m_pMainWnd = frame;
    InitialUpdateFrame(frame, document, TRUE);
    return watch.Alive() ? document : nullptr;
}

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass * pDocClass, CRuntimeClass * pFrameClass,
                                     CRuntimeClass * pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass),
      m_untitled(0)
{
    CMultiDocTemplate::LoadTemplate();
}

CMultiDocTemplate::~CMultiDocTemplate()
{
    if (m_sharedMenu != nullptr)
        ::DestroyMenu(m_sharedMenu);
    while (!m_documents.IsEmpty())
        DocumentAccess::SetTemplate(*static_cast<CDocument *>(m_documents.RemoveHead()), nullptr);
}

void CMultiDocTemplate::LoadTemplate()
{
    CDocTemplate::LoadTemplate();
    if (m_resource == 0)
        return;
    LPCTSTR const name = MAKEINTRESOURCE(m_resource);
    if (m_sharedMenu == nullptr)
        m_sharedMenu = ::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name);
    if (m_sharedAccelerators == nullptr)
        m_sharedAccelerators = ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
}

POSITION CMultiDocTemplate::GetFirstDocPosition() const
{
    return m_documents.GetHeadPosition();
}

CDocument * CMultiDocTemplate::GetNextDoc(POSITION & rPos) const
{
    return static_cast<CDocument *>(m_documents.GetNext(rPos));
}

void CMultiDocTemplate::AddDocument(CDocument * pDoc)
{
    CDocTemplate::AddDocument(pDoc);
    m_documents.AddTail(pDoc);
}

void CMultiDocTemplate::RemoveDocument(CDocument * pDoc)
{
    CDocTemplate::RemoveDocument(pDoc);
    if (POSITION const at = m_documents.Find(pDoc))
        m_documents.RemoveAt(at);
}

void CMultiDocTemplate::SetDefaultTitle(CDocument * pDocument)
{
    CString title;
    if (GetDocString(title, docName) && !title.IsEmpty())
        title.AppendFormat(L"%d", m_untitled);
    else
        title = framework::MessageText(AFX_IDS_UNTITLED);
    pDocument->SetTitle(title);
}

CDocument * CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName)
{
    return OpenDocumentFile(lpszPathName, TRUE);
}

CDocument * CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU)
{
    CDocument * const document = CreateNewDocument();
    if (document == nullptr)
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_CREATE_DOC));
        return nullptr;
    }
    DocumentWatch const watch(document);
    bool const autoDelete = std::exchange(document->m_autoDelete, false);
    CFrameWnd * const frame = CreateNewFrame(document, nullptr);
    if (watch.Alive())
        document->m_autoDelete = autoDelete;
    if (frame == nullptr || !watch.Alive())
    {
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_CREATE_DOC));
        if (watch.Alive())
            delete document;
        return nullptr;
    }
    WindowGuard const guard(frame);
    bool opened = false;
    if (lpszPathName == nullptr)
    {
        ++m_untitled;
        SetDefaultTitle(document);
        opened = watch.Alive() && document->OnNewDocument();
        if (!opened)
            --m_untitled;
    }
    else
    {
        CWaitCursor wait;
        opened = document->OnOpenDocument(lpszPathName);
        if (opened && watch.Alive())
            document->SetPathName(lpszPathName, bAddToMRU);
    }
    if (!opened || !watch.Alive() || !guard.Alive())
    {
        if (guard.Alive())
            frame->DestroyWindow(); // and the document with it
        return nullptr;
    }
    InitialUpdateFrame(frame, document, TRUE);
    return watch.Alive() ? document : nullptr;
}
