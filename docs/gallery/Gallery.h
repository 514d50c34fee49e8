#pragma once
// What the programs of the gallery share: the application object, which opens a program's window. With
// "/picture FILE.png" it takes a picture of the window once all is painted, and ends.

#include <afxwin.h>
#include <afxwinappex.h>
#include <instrument_ui.h>
#include <MemoryPreferenceStore.h>

/// A window with controls on it, whose end is the program's. Derive from it and fill it.
class CGalleryWindow : public CWnd
{
public:
    /// size: of the client area.
    bool Open(wchar_t const * title, CSize size);

protected:
    /// Makes what is on the window.
    virtual void Fill() = 0;
};

/// The application object of a program that makes its main window itself.
class CGalleryApp : public CWinAppEx
{
public:
    BOOL InitInstance() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG count) override;

protected:
    /// Opens the window and makes it m_pMainWnd.
    virtual bool OpenWindow() = 0;

private:
    bool TakePicture() const;

    MemoryPreferenceStore m_store; // a program of the suite takes one that lasts
    CString m_picture;
    bool m_failed = false;
};

/// The application object for a window of that class.
template <class Window> class CGalleryProgram : public CGalleryApp
{
public:
    CGalleryProgram(wchar_t const * title, CSize size) : m_title(title), m_size(size) {}

protected:
    bool OpenWindow() override
    {
        m_pMainWnd = &m_window;
        return m_window.Open(m_title, m_size);
    }

private:
    Window m_window;
    wchar_t const * m_title;
    CSize m_size;
};
