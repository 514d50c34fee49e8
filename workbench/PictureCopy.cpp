#include "PictureCopy.h"

#include "clipboard/Clipboard.h"

namespace workbench
{

namespace
{

constexpr wchar_t description[] = L"Instrument Workbench\0Picture\0";
constexpr int hundredths_per_millimetre = 100;

} // namespace

bool CopyPicture(CWnd & window, CSize size, std::function<void(CDC &, CRect const &)> const & draw)
{
    CClientDC screen(&window);
    auto const hundredths = [&screen](int pixels, int millimetres, int resolution) {
        return ::MulDiv(pixels, screen.GetDeviceCaps(millimetres) * hundredths_per_millimetre,
                        screen.GetDeviceCaps(resolution));
    };
    CRect const bounds(0, 0, hundredths(size.cx, HORZSIZE, HORZRES), hundredths(size.cy, VERTSIZE, VERTRES));
    CMetaFileDC picture;
    if (!picture.CreateEnhanced(&screen, nullptr, &bounds, description))
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
    auto const copied = Clipboard::WmfToClipboard(metafile);
    // If the clipboard could not even be opened, the picture has stayed here.
    if (!copied && ::GetObjectType(metafile) == OBJ_ENHMETAFILE)
    {
        ::DeleteEnhMetaFile(metafile);
    }
    return copied;
}

} // namespace workbench
