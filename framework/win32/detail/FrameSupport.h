#pragma once
// What frames, views, splitters and documents share. Inside framework.dll only.

#include <afxext.h>
#include <afxwin.h>

namespace framework
{
/// Tells whether a window and its object are still there. Whatever sends a message may have ended both.
class WindowGuard
{
public:
    explicit WindowGuard(CWnd const * window) : m_window(window), m_handle(window != nullptr ? window->m_hWnd : nullptr)
    {
    }
    bool Alive() const { return m_handle != nullptr && CWnd::FromHandlePermanent(m_handle) == m_window; }

private:
    CWnd const * m_window;
    HWND m_handle;
};

/// Tells whether a document is still there.
class DocumentWatch
{
public:
    explicit DocumentWatch(CDocument * document);
    ~DocumentWatch();
    DocumentWatch(DocumentWatch const &) = delete;
    DocumentWatch & operator=(DocumentWatch const &) = delete;

    bool Alive() const { return m_document != nullptr; }

private:
    friend class ::CDocument;

    CDocument * m_document;
    DocumentWatch * m_next = nullptr;
};

/// Whether there is a document at that address. What creates frames passes one along, through the program's code.
bool IsDocument(CDocument const * document);
/// The class of frames and views that name none.
LPCTSTR FrameClassName();
/// The program's string, or the framework's own where the program has none.
CString MessageText(UINT id);
/// Sets a window's text where it differs.
void ChangeWindowText(HWND window, LPCTSTR text);
/// Whether the window is the one below which a window of the foreground lies.
bool IsTopParentActive(CWnd const & window);
/// The full path of a name; the name itself where there is none.
CString FullPath(LPCTSTR name);
/// Asks the user for the name of a file to open, or to save; one template's, or any.
bool PromptFileName(CString & name, UINT titleId, DWORD flags, bool open, CDocTemplate * one);

struct DocumentAccess
{
    static void SetTemplate(CDocument & document, CDocTemplate * docTemplate) { document.m_template = docTemplate; }
    static BOOL DoSave(CDocument & document, LPCTSTR path) { return document.DoSave(path); }
};
} // namespace framework
