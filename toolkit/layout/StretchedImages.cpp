#include "layout/StretchedImages.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "frame/GraphicsScopes.h"
#include "layout/Resolution.h"
#include "layout/StretchedPixels.h"
#include "layout/WindowDpi.h"

using stretched_pixels::Picture;

namespace
{
/// A bitmap of 32 bits a pixel in a context of its own.
class Surface
{
public:
    Surface(CDC & dc, int width, int height)
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void * bits = nullptr;
        m_bitmap = ::CreateDIBSection(dc.m_hDC, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<std::uint32_t *>(bits);
        if (m_bitmap != nullptr && m_context.CreateCompatibleDC(&dc))
            m_former = ::SelectObject(m_context.m_hDC, m_bitmap);
    }
    ~Surface()
    {
        if (m_former != nullptr)
            ::SelectObject(m_context.m_hDC, m_former);
        m_context.DeleteDC();
        if (m_bitmap != nullptr)
            ::DeleteObject(m_bitmap);
    }
    Surface(Surface const &) = delete;
    Surface & operator=(Surface const &) = delete;

    bool IsThere() const { return m_former != nullptr && m_pixels != nullptr; }
    CDC & Context() { return m_context; }
    std::uint32_t * Pixels() { return m_pixels; }

private:
    CDC m_context;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_former = nullptr;
    std::uint32_t * m_pixels = nullptr;
};

/// What draw paints of that size on a ground of that colour.
template <class Draw> Picture OnGround(CDC & dc, CSize size, COLORREF ground, Draw const & draw)
{
    Picture picture{size.cx, size.cy, {}};
    Surface surface(dc, size.cx, size.cy);
    auto const count = static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy);
    picture.pixels.resize(count);
    if (!surface.IsThere())
        return picture;
    surface.Context().FillSolidRect(CRect(CPoint(0, 0), size), ground);
    draw(surface.Context());
    ::GdiFlush();
    std::copy_n(surface.Pixels(), count, picture.pixels.begin());
    return picture;
}

template <class Draw> void DrawStretched(CDC & dc, CSize natural, CPoint at, CSize size, CSize room, Draw const & draw)
{
    CSize const shown(std::min(size.cx, room.cx), std::min(size.cy, room.cy));
    if (natural.cx <= 0 || natural.cy <= 0 || shown.cx <= 0 || shown.cy <= 0)
        return;
    Picture const stretched =
        stretched_pixels::Stretch(stretched_pixels::FromGrounds(OnGround(dc, natural, RGB(0, 0, 0), draw),
                                                                OnGround(dc, natural, RGB(255, 255, 255), draw)),
                                  size.cx, size.cy);
    Surface surface(dc, size.cx, size.cy);
    if (!surface.IsThere())
        return;
    ::GdiFlush();
    std::copy(stretched.pixels.begin(), stretched.pixels.end(), surface.Pixels());
    BLENDFUNCTION const blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc.m_hDC, at.x, at.y, shown.cx, shown.cy, surface.Context().m_hDC, 0, 0, shown.cx, shown.cy, blend);
}

CSize NaturalSize(CImageList const & images, int index)
{
    IMAGEINFO info = {};
    return images.GetImageInfo(index, &info) ? CRect(info.rcImage).Size() : CSize(0, 0);
}

CSize IconSize(HICON icon)
{
    ICONINFO info = {};
    if (icon == nullptr || !::GetIconInfo(icon, &info))
        return CSize(0, 0);
    BITMAP mask = {};
    ::GetObjectW(info.hbmMask, sizeof mask, &mask);
    CSize const size(mask.bmWidth, info.hbmColor != nullptr ? mask.bmHeight : mask.bmHeight / 2);
    ::DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr)
        ::DeleteObject(info.hbmColor);
    return size;
}
} // namespace

CSize ScaledImageSize(CImageList const & images, int index, UINT dpi, UINT imageDpi)
{
    CSize const size = NaturalSize(images, index);
    return CSize(resolution::Scaled(size.cx, dpi, imageDpi), resolution::Scaled(size.cy, dpi, imageDpi));
}

void DrawStretchedImage(CDC & dc, CImageList & images, int index, CPoint at, CSize size, CSize room)
{
    ImageBackgroundScope const background(images, CLR_NONE);
    DrawStretched(dc, NaturalSize(images, index), at, size, room,
                  [&images, index](CDC & surface) { images.Draw(&surface, index, CPoint(0, 0), ILD_TRANSPARENT); });
}

CSize UsualIconSize(UINT dpi)
{
    return CSize(window_dpi::Metric(SM_CXICON, dpi), window_dpi::Metric(SM_CYICON, dpi));
}

void DrawStretchedIcon(CDC & dc, HICON icon, CPoint at, CSize size)
{
    CSize const natural = IconSize(icon);
    DrawStretched(dc, natural, at, size, size, [icon, natural](CDC & surface) {
        ::DrawIconEx(surface.m_hDC, 0, 0, icon, natural.cx, natural.cy, 0, nullptr, DI_NORMAL);
    });
}
