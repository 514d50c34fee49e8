// A window with a read-out, whose button keeps to its corner and which remembers its place: all that a host needs to
// start.
#include <afxwin.h>
#include <instrument_ui.h>
#include <RegistryPreferenceStore.h>

#include <memory>

class CExampleWindow : public CWnd
{
public:
    CExampleWindow() : m_place(L"Example window", CFensterManager::window_main) {}

    bool Open()
    {
        if (!CreateEx(0, AfxRegisterWndClass(0, nullptr, GetSysColorBrush(COLOR_BTNFACE)), L"Example",
                      WS_OVERLAPPEDWINDOW, 100, 100, 400, 300, nullptr, nullptr))
            return false;
        m_close.Create(L"Close", WS_CHILD | WS_VISIBLE, CRect(280, 220, 370, 245), this, IDCANCEL);
        m_reading.Create(L"", WS_CHILD | WS_VISIBLE, CRect(20, 20, 370, 90), this);
        m_reading.SetColor(RGB(60, 40, 0), Farbtabellen::ScopeFarbe(20)); // amber, on a dim shade of it
        m_reading.Format(L"%.1f dB", -12.5);
        m_layout = std::make_unique<CDialogResizer>(*this, L"");
        m_layout->PositionChild(&m_reading, CEdges::LEFT_RIGHT(), nullptr);
        m_layout->PositionChild(&m_close, CEdges::BOTTOM_RIGHT(), nullptr);
        m_place.PreferedPosition(this);
        m_place.ReadMyPosition(this);
        return ShowWindow(SW_SHOW), true;
    }

private:
    afx_msg void OnSize(UINT, int, int)
    {
        if (m_layout)
            m_layout->OnSize();
    }
    afx_msg void OnCancel() { SendMessage(WM_CLOSE); }
    afx_msg void OnDestroy()
    {
        m_place.CalcMyPosition(this);
        m_place.SaveMyPosition(true);
        PostQuitMessage(0);
    }

    CButton m_close;
    CDigiStatic m_reading;
    std::unique_ptr<CDialogResizer> m_layout;
    CFensterManager m_place;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CExampleWindow, CWnd)
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_COMMAND(IDCANCEL, &CExampleWindow::OnCancel)
END_MESSAGE_MAP()

class CExampleApp : public CWinApp
{
    BOOL InitInstance() override
    {
        CVeskBase::SetPreferenceVesk(&m_store);
        m_pMainWnd = &m_window;
        return m_window.Open();
    }
    RegistryPreferenceStore m_store{L"Instrument Suite", L"Example"};
    CExampleWindow m_window;
};

CExampleApp theApp;
