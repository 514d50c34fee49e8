#pragma once
// Documents and their templates. Included by afxwin.h, after frames and views.

#include "view.h"

class CArchive;
class CFile;
class CFileException;

namespace framework
{
class DocumentWatch;
struct DocumentAccess;
struct TemplateAccess;
} // namespace framework

/// What views show and what is kept in a file. A document of a template deletes itself with its last view.
class FRAMEWORK_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();
    ~CDocument() override;

    const CString & GetTitle() const;
    virtual void SetTitle(LPCTSTR lpszTitle);
    const CString & GetPathName() const;
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    virtual void ClearPathName();
    CDocTemplate * GetDocTemplate() const;
    virtual BOOL IsModified();
    virtual void SetModifiedFlag(BOOL bModified = TRUE);

    void AddView(CView * pView);
    void RemoveView(CView * pView);
    virtual POSITION GetFirstViewPosition() const;
    virtual CView * GetNextView(POSITION & rPosition) const;
    void UpdateAllViews(CView * pSender, LPARAM lHint = 0, CObject * pHint = nullptr);

    virtual void DeleteContents();
    virtual BOOL OnNewDocument();
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    virtual void OnCloseDocument();
    virtual void OnChangedViewList();
    virtual void ReportSaveLoadException(LPCTSTR lpszPathName, CException * e, BOOL bSaving, UINT nIDPDefault);
    virtual CFile * GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError);
    virtual void ReleaseFile(CFile * pFile, BOOL bAbort);

    virtual BOOL CanCloseFrame(CFrameWnd * pFrame);
    virtual void PreCloseFrame(CFrameWnd * pFrame);
    virtual BOOL SaveModified();

    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;

protected:
    CPtrList m_viewList;

private:
    friend class CDocTemplate;
    friend class CFrameWnd;
    friend class CMDIChildWnd;
    friend class CMDIFrameWnd;
    friend class CMultiDocTemplate;
    friend class CSingleDocTemplate;
    friend class framework::DocumentWatch;
    friend struct framework::DocumentAccess;

    virtual BOOL DoSave(LPCTSTR lpszPathName, BOOL bReplace = TRUE);
    virtual BOOL DoFileSave();
    void UpdateFrameCounts();
    void HandleClose();
    void HandleSave();
    void HandleSaveAs();

    CString m_title;
    CString m_path;
    CDocTemplate * m_template;
    BOOL m_modified;
    bool m_autoDelete; // with its last view
    framework::DocumentWatch * m_watches;

    DECLARE_MESSAGE_MAP()
};

/// Brings classes of documents, frames and views together, and makes and opens documents of them.
class FRAMEWORK_API CDocTemplate : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocTemplate)

public:
    ~CDocTemplate() override;

    enum Confidence
    {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen
    };
    /// The parts of the template's string resource, one a line.
    enum DocStringIndex
    {
        windowTitle,
        docName,
        fileNewName,
        filterName,
        filterExt,
        regFileTypeId,
        regFileTypeName
    };

    virtual void LoadTemplate();
    virtual BOOL GetDocString(CString & rString, enum DocStringIndex index) const;

    virtual POSITION GetFirstDocPosition() const = 0;
    virtual CDocument * GetNextDoc(POSITION & rPos) const = 0;
    virtual void AddDocument(CDocument * pDoc);
    virtual void RemoveDocument(CDocument * pDoc);

    virtual Confidence MatchDocType(LPCTSTR lpszPathName, CDocument *& rpDocMatch);
    virtual CDocument * CreateNewDocument();
    virtual CFrameWnd * CreateNewFrame(CDocument * pDoc, CFrameWnd * pOther);
    virtual void InitialUpdateFrame(CFrameWnd * pFrame, CDocument * pDoc, BOOL bMakeVisible = TRUE);
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    virtual CDocument * OpenDocumentFile(LPCTSTR lpszPathName) = 0;
    virtual CDocument * OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) = 0;
    virtual void SetDefaultTitle(CDocument * pDocument) = 0;

protected:
    CDocTemplate(UINT nIDResource, CRuntimeClass * pDocClass, CRuntimeClass * pFrameClass, CRuntimeClass * pViewClass);

private:
    friend class CMDIChildWnd;
    friend class CMultiDocTemplate;
    friend class CSingleDocTemplate;
    friend struct framework::TemplateAccess;

    /// Whether the document is still one of the template's.
    bool Has(CDocument const * pDoc) const;

    UINT m_resource;
    CRuntimeClass * m_documentClass;
    CRuntimeClass * m_frameClass;
    CRuntimeClass * m_viewClass;
    CString m_strings;
    HMENU m_sharedMenu; // of the child frames of a multiple template
    HACCEL m_sharedAccelerators;
};

/// One document at a time, in the main frame.
class FRAMEWORK_API CSingleDocTemplate : public CDocTemplate
{
    DECLARE_DYNAMIC(CSingleDocTemplate)

public:
    CSingleDocTemplate(UINT nIDResource, CRuntimeClass * pDocClass, CRuntimeClass * pFrameClass,
                       CRuntimeClass * pViewClass);
    ~CSingleDocTemplate() override;

    POSITION GetFirstDocPosition() const override;
    CDocument * GetNextDoc(POSITION & rPos) const override;
    void AddDocument(CDocument * pDoc) override;
    void RemoveDocument(CDocument * pDoc) override;
    CDocument * OpenDocumentFile(LPCTSTR lpszPathName) override;
    CDocument * OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) override;
    void SetDefaultTitle(CDocument * pDocument) override;

private:
    CDocument * m_document;
};

/// Any number of documents, each in child frames of its own.
class FRAMEWORK_API CMultiDocTemplate : public CDocTemplate
{
    DECLARE_DYNAMIC(CMultiDocTemplate)

public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass * pDocClass, CRuntimeClass * pFrameClass,
                      CRuntimeClass * pViewClass);
    ~CMultiDocTemplate() override;

    void LoadTemplate() override;
    POSITION GetFirstDocPosition() const override;
    CDocument * GetNextDoc(POSITION & rPos) const override;
    void AddDocument(CDocument * pDoc) override;
    void RemoveDocument(CDocument * pDoc) override;
    CDocument * OpenDocumentFile(LPCTSTR lpszPathName) override;
    CDocument * OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU) override;
    void SetDefaultTitle(CDocument * pDocument) override;

private:
    CPtrList m_documents;
    UINT m_untitled; // how many documents have had no name so far
};
