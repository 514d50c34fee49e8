// CMFCToolBarImages: pictures as pixels, rendered in the system's present colours when they are drawn.

#include "afxtoolbarimages.h"

#include <algorithm>
#include <cstring>

#include "detail/BarLooks.h"

IMPLEMENT_DYNCREATE(CMFCToolBarImages, CObject)

namespace
{
constexpr SIZE usual_size{16, 15};
constexpr COLORREF usual_transparent = RGB(192, 192, 192);
constexpr DWORD opaque = 0xFF000000;

/// Pixels of a bitmap of the system, top row first; freed with the object.
class Pixels
{
public:
    explicit Pixels(CSize size)
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.cx;
        info.bmiHeader.biHeight = -size.cy;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void * bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_bits = static_cast<DWORD *>(bits);
        m_dc = m_bitmap != nullptr ? ::CreateCompatibleDC(nullptr) : nullptr;
        if (m_dc != nullptr)
            m_previous = ::SelectObject(m_dc, m_bitmap);
    }
    ~Pixels()
    {
        if (m_dc != nullptr)
        {
            ::SelectObject(m_dc, m_previous);
            ::DeleteDC(m_dc);
        }
        if (m_bitmap != nullptr)
            ::DeleteObject(m_bitmap);
    }
    Pixels(Pixels const &) = delete;
    Pixels & operator=(Pixels const &) = delete;

    explicit operator bool() const { return m_dc != nullptr; }
    HDC Dc() const { return m_dc; }
    HBITMAP Bitmap() const { return m_bitmap; }
    DWORD * Bits() const { return m_bits; }

private:
    HBITMAP m_bitmap = nullptr;
    HDC m_dc = nullptr;
    HGDIOBJ m_previous = nullptr;
    DWORD * m_bits = nullptr;
};

DWORD FromColour(COLORREF colour)
{
    return opaque | static_cast<DWORD>(GetRValue(colour)) << 16 | static_cast<DWORD>(GetGValue(colour)) << 8 |
           GetBValue(colour);
}

/// What a grey of a button's picture stands for.
DWORD Mapped(DWORD pixel)
{
    switch (pixel)
    {
    case 0xFF000000:
        return FromColour(::GetSysColor(COLOR_BTNTEXT));
    case 0xFF808080:
        return FromColour(::GetSysColor(COLOR_BTNSHADOW));
    case 0xFFC0C0C0:
        return FromColour(::GetSysColor(COLOR_BTNFACE));
    case 0xFFDFDFDF:
        return FromColour(::GetSysColor(COLOR_3DLIGHT));
    default:
        return pixel;
    }
}

int Channel(DWORD pixel, int shift)
{
    return static_cast<int>(pixel >> shift & 0xFF);
}

/// What is dark gets the colour of disabled texts, what is light comes near the ground.
DWORD Greyed(DWORD pixel)
{
    constexpr int most_percent = 60;
    int const grey = (Channel(pixel, 16) * 30 + Channel(pixel, 8) * 59 + Channel(pixel, 0) * 11) / 100;
    COLORREF const colour =
        framework::Between(::GetSysColor(COLOR_GRAYTEXT), ::GetSysColor(COLOR_BTNFACE), grey * most_percent / 255);
    return (pixel & opaque) | (FromColour(colour) & ~opaque);
}

/// Multiplies the colours with what shows of them.
DWORD Multiplied(DWORD pixel, int alpha)
{
    int const shows = Channel(pixel, 24) * alpha / 255;
    auto const part = [&](int shift) { return static_cast<DWORD>(Channel(pixel, shift) * shows / 255) << shift; };
    return static_cast<DWORD>(shows) << 24 | part(16) | part(8) | part(0);
}

/// A pixel between the four around a place, which is given in 1/256 of a pixel. All are multiplied.
DWORD Between(std::vector<DWORD> const & pixels, CSize size, int x, int y)
{
    x = std::clamp<int>(x, 0, (size.cx - 1) * 256);
    y = std::clamp<int>(y, 0, (size.cy - 1) * 256);
    int const left = x / 256;
    int const top = y / 256;
    int const right = std::min<int>(left + 1, size.cx - 1);
    int const bottom = std::min<int>(top + 1, size.cy - 1);
    int const fx = x % 256;
    int const fy = y % 256;
    auto const at = [&](int column, int row) { return pixels[static_cast<size_t>(row * size.cx + column)]; };
    DWORD result = 0;
    for (int shift = 0; shift < 32; shift += 8)
    {
        int const upper = Channel(at(left, top), shift) * (256 - fx) + Channel(at(right, top), shift) * fx;
        int const lower = Channel(at(left, bottom), shift) * (256 - fx) + Channel(at(right, bottom), shift) * fx;
        result |= static_cast<DWORD>((upper * (256 - fy) + lower * fy) / 65536) << shift;
    }
    return result;
}
} // namespace

CMFCToolBarImages::CMFCToolBarImages() : m_size(usual_size), m_transparent(usual_transparent), m_mapColours(TRUE) {}

CMFCToolBarImages::~CMFCToolBarImages() = default;

BOOL CMFCToolBarImages::Load(UINT uiResID, HINSTANCE hinstRes, BOOL bAdd)
{
    int const before = bAdd ? GetCount() : 0;
    if (!LoadStr(MAKEINTRESOURCE(uiResID), hinstRes, bAdd))
        return FALSE;
    m_resources.push_back({uiResID, before});
    return TRUE;
}

BOOL CMFCToolBarImages::LoadStr(LPCTSTR lpszResourceName, HINSTANCE hinstRes, BOOL bAdd)
{
    HINSTANCE const module = hinstRes != nullptr ? hinstRes : AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    auto const bitmap =
        static_cast<HBITMAP>(::LoadImage(module, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (bitmap == nullptr)
        return FALSE;
    if (!bAdd)
        Clear();
    bool const added = AddImage(bitmap, TRUE) >= 0;
    ::DeleteObject(bitmap);
    return added;
}

int CMFCToolBarImages::AddImage(HBITMAP hbmp, BOOL)
{
    constexpr int no_alpha = 24; // up to this depth, a bitmap has no transparency of its own
    constexpr int few_colours = 8;
    DIBSECTION section{};
    int const known = ::GetObject(hbmp, sizeof section, &section);
    if (known == 0 || section.dsBm.bmWidth < m_size.cx || section.dsBm.bmHeight < m_size.cy || m_size.cx <= 0 ||
        m_size.cy <= 0)
        return -1;
    CSize const size(section.dsBm.bmWidth, section.dsBm.bmHeight);
    int const depth = section.dsBm.bmBitsPixel;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<DWORD> pixels(static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy));
    HDC const screen = ::GetDC(nullptr);
    int const rows = ::GetDIBits(screen, hbmp, 0, static_cast<UINT>(size.cy), pixels.data(), &info, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    if (rows == 0)
        return -1;
    bool const hasAlpha =
        depth > no_alpha && std::any_of(pixels.begin(), pixels.end(), [](DWORD pixel) { return pixel > 0xFFFFFF; });
    if (!hasAlpha)
    {
        DWORD const left = FromColour(m_transparent);
        for (DWORD & pixel : pixels)
            pixel = (pixel | opaque) == left ? 0 : pixel | opaque;
    }
    int const first = GetCount();
    for (int x = 0; x + m_size.cx <= size.cx; x += m_size.cx)
    {
        Image image;
        image.mapped = m_mapColours && depth <= few_colours;
        for (int y = 0; y < m_size.cy; ++y)
        {
            auto const row = pixels.begin() + static_cast<std::ptrdiff_t>(y) * size.cx + x;
            image.pixels.insert(image.pixels.end(), row, row + m_size.cx);
        }
        m_images.push_back(std::move(image));
    }
    return first;
}

int CMFCToolBarImages::AddImage(const CMFCToolBarImages & imageList, int nIndex)
{
    if (nIndex < 0 || nIndex >= imageList.GetCount() || imageList.m_size != m_size)
        return -1;
    m_images.push_back(Image(imageList.m_images[static_cast<size_t>(nIndex)]));
    return GetCount() - 1;
}

int CMFCToolBarImages::AddIcon(HICON hIcon, BOOL)
{
    // Drawn on black and on white: the difference is what shows through.
    Pixels const dark(m_size);
    Pixels const light(m_size);
    if (hIcon == nullptr || !dark || !light)
        return -1;
    size_t const count = static_cast<size_t>(m_size.cx) * static_cast<size_t>(m_size.cy);
    std::fill_n(dark.Bits(), count, 0u);
    std::fill_n(light.Bits(), count, 0xFFFFFFu);
    if (!::DrawIconEx(dark.Dc(), 0, 0, hIcon, m_size.cx, m_size.cy, 0, nullptr, DI_NORMAL) ||
        !::DrawIconEx(light.Dc(), 0, 0, hIcon, m_size.cx, m_size.cy, 0, nullptr, DI_NORMAL))
        return -1;
    ::GdiFlush();
    Image image;
    for (size_t at = 0; at < count; ++at)
    {
        int const through = Channel(light.Bits()[at], 8) - Channel(dark.Bits()[at], 8);
        int const alpha = std::clamp(255 - through, 0, 255);
        DWORD pixel = static_cast<DWORD>(alpha) << 24;
        for (int shift = 0; shift < 24 && alpha != 0; shift += 8)
            pixel |= static_cast<DWORD>(std::min(Channel(dark.Bits()[at], shift) * 255 / alpha, 255)) << shift;
        image.pixels.push_back(pixel);
    }
    m_images.push_back(std::move(image));
    return GetCount() - 1;
}

BOOL CMFCToolBarImages::DeleteImage(int iImage)
{
    if (iImage < 0 || iImage >= GetCount())
        return FALSE;
    m_images.erase(m_images.begin() + iImage);
    return TRUE;
}

void CMFCToolBarImages::Clear()
{
    m_images.clear();
    m_resources.clear();
}

std::vector<DWORD> CMFCToolBarImages::Rendered(Image const & image, CSize size, bool disabled, BYTE alpha) const
{
    std::vector<DWORD> source = image.pixels;
    for (DWORD & pixel : source)
    {
        if (image.mapped)
            pixel = Mapped(pixel);
        if (disabled)
            pixel = Greyed(pixel);
        pixel = Multiplied(pixel, alpha);
    }
    if (size == m_size)
        return source;
    std::vector<DWORD> result;
    for (int y = 0; y < size.cy; ++y)
    {
        for (int x = 0; x < size.cx; ++x)
        {
            result.push_back(Between(source, m_size, (2 * x + 1) * m_size.cx * 128 / size.cx - 128,
                                     (2 * y + 1) * m_size.cy * 128 / size.cy - 128));
        }
    }
    return result;
}

BOOL CMFCToolBarImages::Draw(CDC * pDC, int x, int y, int iImageIndex, BOOL, BOOL bDisabled, BOOL, BOOL, BOOL bInactive,
                             BYTE alphaSrc)
{
    if (iImageIndex < 0 || iImageIndex >= GetCount())
        return FALSE;
    CSize const size = GetImageSize(TRUE);
    Pixels const target(size);
    if (!target)
        return FALSE;
    std::vector<DWORD> const pixels =
        Rendered(m_images[static_cast<size_t>(iImageIndex)], size, bDisabled || bInactive, alphaSrc);
    std::copy(pixels.begin(), pixels.end(), target.Bits());
    BLENDFUNCTION const blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    return ::AlphaBlend(pDC->m_hDC, x, y, size.cx, size.cy, target.Dc(), 0, 0, size.cx, size.cy, blend);
}

HICON CMFCToolBarImages::ExtractIcon(int nIndex)
{
    if (nIndex < 0 || nIndex >= GetCount())
        return nullptr;
    Pixels const colour(m_size);
    HBITMAP const mask = ::CreateBitmap(m_size.cx, m_size.cy, 1, 1, nullptr);
    HICON icon = nullptr;
    if (colour && mask != nullptr)
    {
        Image const & image = m_images[static_cast<size_t>(nIndex)];
        std::copy(image.pixels.begin(), image.pixels.end(), colour.Bits());
        ICONINFO info{};
        info.fIcon = TRUE;
        info.hbmColor = colour.Bitmap();
        info.hbmMask = mask;
        icon = ::CreateIconIndirect(&info);
    }
    if (mask != nullptr)
        ::DeleteObject(mask);
    return icon;
}

BOOL CMFCToolBarImages::IsValid() const
{
    return !m_images.empty();
}

int CMFCToolBarImages::GetCount() const
{
    return static_cast<int>(m_images.size());
}

SIZE CMFCToolBarImages::GetImageSize(BOOL bDest) const
{
    return bDest ? framework::Scaled(m_size) : m_size;
}

void CMFCToolBarImages::SetImageSize(SIZE sizeImage, BOOL)
{
    if (m_size == CSize(sizeImage))
        return;
    m_size = sizeImage;
    Clear(); // pictures of another size can't stand in the row
}

COLORREF CMFCToolBarImages::GetTransparentColor() const
{
    return m_transparent;
}

COLORREF CMFCToolBarImages::SetTransparentColor(COLORREF clrTransparent)
{
    return std::exchange(m_transparent, clrTransparent);
}

BOOL CMFCToolBarImages::GetMapTo3DColors() const
{
    return m_mapColours;
}

void CMFCToolBarImages::SetMapTo3DColors(BOOL bMapTo3DColors)
{
    m_mapColours = bMapTo3DColors;
}

int CMFCToolBarImages::GetResourceOffset(UINT uiResId) const
{
    for (Resource const & resource : m_resources)
    {
        if (resource.id == uiResId)
            return resource.first;
    }
    return -1;
}
