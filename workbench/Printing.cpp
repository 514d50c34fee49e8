#include "Printing.h"

#include <afxdlgs.h>
#include <winspool.h>

#include <algorithm>

#include "logic/Texts.h"

namespace workbench
{

namespace
{

constexpr int tenths_of_millimetres_per_inch = 254;

bool AnyPrinter()
{
    DWORD bytes = 0;
    DWORD count = 0;
    ::EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &bytes, &count);
    return bytes > 0 || count > 0;
}

/// The printer of the dialog with its paper in landscape.
bool CreatePrinter(CPrintDialog & dialog, CDC & printer)
{
    if (DEVMODE * const mode = dialog.GetDevMode())
    {
        mode->dmOrientation = DMORIENT_LANDSCAPE;
        mode->dmFields |= DM_ORIENTATION;
        ::GlobalUnlock(dialog.m_pd.hDevMode);
    }
    HDC const created = dialog.CreatePrinterDC();
    return created != nullptr && printer.Attach(created);
}

/// What stands inside the margins, as large as the printer's paper allows.
CRect PlaceOnPaper(CDC & printer)
{
    CSize const room(printer.GetDeviceCaps(HORZRES), printer.GetDeviceCaps(VERTRES));
    CSize const size = PageSize();
    // Widths and heights may have other resolutions.
    int const across = std::max(printer.GetDeviceCaps(LOGPIXELSX), 1);
    int const down = std::max(printer.GetDeviceCaps(LOGPIXELSY), 1);
    auto const width =
        std::min<int>(room.cx, ::MulDiv(::MulDiv(room.cy, size.cx, std::max<int>(size.cy, 1)), across, down));
    auto const height = ::MulDiv(::MulDiv(width, size.cy, std::max<int>(size.cx, 1)), down, across);
    return {CPoint((room.cx - width) / 2, (room.cy - height) / 2), CSize(width, height)};
}

} // namespace

CSize PageSize()
{
    CDC screen;
    int const resolution =
        screen.CreateCompatibleDC(nullptr) ? screen.GetDeviceCaps(LOGPIXELSY) : USER_DEFAULT_SCREEN_DPI;
    auto const pixels = [resolution](int millimetres) {
        return ::MulDiv(millimetres * 10, resolution, tenths_of_millimetres_per_inch);
    };
    return {pixels(paper_width - 2 * page_margin), pixels(paper_height - 2 * page_margin)};
}

bool DrawScaled(CDC & device, CRect const & place, CSize size, Drawing const & draw)
{
    CWindowDC screen(nullptr);
    auto const hundredths = [&screen](int pixels, int millimetres, int resolution) {
        return ::MulDiv(pixels, screen.GetDeviceCaps(millimetres) * 100, screen.GetDeviceCaps(resolution));
    };
    CRect const bounds(0, 0, hundredths(size.cx, HORZSIZE, HORZRES), hundredths(size.cy, VERTSIZE, VERTRES));
    CMetaFileDC picture;
    if (!picture.CreateEnhanced(&screen, nullptr, &bounds, nullptr))
    {
        return false;
    }
    picture.SetAttribDC(screen.m_hDC); // which measures texts
    draw(picture, CRect(CPoint(0, 0), size));
    picture.ReleaseAttribDC();
    auto * const metafile = picture.CloseEnhanced();
    if (metafile == nullptr)
    {
        return false;
    }
    WINBOOL const played = ::PlayEnhMetaFile(device.m_hDC, metafile, place);
    ::DeleteEnhMetaFile(metafile);
    return played != FALSE;
}

bool PrintPage(CWnd & owner, CString const & title, Drawing const & draw)
{
    if (!AnyPrinter())
    {
        AfxMessageBox(Text(L"There is no printer."), MB_ICONEXCLAMATION);
        return false;
    }
    CPrintDialog dialog(FALSE, PD_ALLPAGES | PD_NOPAGENUMS | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE, &owner);
    CDC printer;
    if (dialog.DoModal() != IDOK)
    {
        return false;
    }
    bool const created = CreatePrinter(dialog, printer);
    ::GlobalFree(dialog.m_pd.hDevMode);
    ::GlobalFree(dialog.m_pd.hDevNames);
    bool const started = created && printer.StartDoc(title) > 0;
    bool const printed = started && printer.StartPage() > 0 &&
                         DrawScaled(printer, PlaceOnPaper(printer), PageSize(), draw) && printer.EndPage() > 0;
    if (started)
    {
        printed ? printer.EndDoc() : printer.AbortDoc();
    }
    if (!printed)
    {
        AfxMessageBox(Text(L"The page could not be printed."), MB_ICONEXCLAMATION);
    }
    return printed;
}

} // namespace workbench
