#include "Gallery.h"

#include <gdiplus.h>

#include <algorithm>
#include <vector>

namespace
{

constexpr CLSID png_encoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

// Fewer colours than this are an empty window.
constexpr std::size_t least_colours = 8;

constexpr int quiet_turns = 3;

} // namespace

bool CGalleryWindow::Open(wchar_t const * title, CSize size)
{
    CRect place(CPoint(0, 0), size);
    ::AdjustWindowRect(place, WS_OVERLAPPEDWINDOW, FALSE);
    place.MoveToXY(40, 40);
    WCHAR const * const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), ::GetSysColorBrush(COLOR_BTNFACE));
    if (!CreateEx(0, windowClass, title, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, place, nullptr, 0))
    {
        return false;
    }
    Fill();
    SendMessageToDescendants(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)));
    ShowWindow(SW_SHOW);
    return true;
}

BOOL CGalleryApp::InitInstance()
{
    CWinAppEx::InitInstance();
    CString const option(L"/picture ");
    CString const command(m_lpCmdLine);
    if (command.Left(option.GetLength()) == option)
    {
        m_picture = command.Mid(option.GetLength());
    }
    SetRegistryKey(L"Instrument Gallery");
    CVeskBase::SetPreferenceVesk(&m_store);
    return OpenWindow();
}

int CGalleryApp::ExitInstance()
{
    CVeskBase::SetPreferenceVesk(nullptr);
    int const result = CWinAppEx::ExitInstance();
    return m_failed ? 1 : result;
}

BOOL CGalleryApp::OnIdle(LONG count)
{
    BOOL const more = CWinAppEx::OnIdle(count);
    if (m_picture.IsEmpty() || m_pMainWnd == nullptr || count < quiet_turns)
    {
        return more || !m_picture.IsEmpty();
    }
    m_failed = !TakePicture();
    m_picture.Empty();
    m_pMainWnd->PostMessage(WM_CLOSE);
    return more;
}

/// False if it could not be written, or shows nothing.
bool CGalleryApp::TakePicture() const
{
    ::HideCaret(nullptr); // it would cover a letter
    CRect place;
    m_pMainWnd->GetWindowRect(place);
    CWindowDC screen(m_pMainWnd);
    CDC memory;
    CBitmap bitmap;
    memory.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, place.Width(), place.Height());
    CBitmap * const former = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, place.Width(), place.Height(), &screen, 0, 0, SRCCOPY);
    std::vector<COLORREF> colours;
    for (int y = 0; y < place.Height(); y += 3)
    {
        for (int x = 0; x < place.Width() && colours.size() < least_colours; x += 3)
        {
            COLORREF const colour = memory.GetPixel(x, y);
            if (std::find(colours.begin(), colours.end(), colour) == colours.end())
            {
                colours.push_back(colour);
            }
        }
    }
    memory.SelectObject(former);

    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput const input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
    {
        return false;
    }
    bool isWritten = false;
    {
        Gdiplus::Bitmap picture(static_cast<HBITMAP>(bitmap), nullptr);
        isWritten = picture.Save(m_picture, &png_encoder, nullptr) == Gdiplus::Ok;
    }
    Gdiplus::GdiplusShutdown(token);
    return isWritten && colours.size() == least_colours;
}
