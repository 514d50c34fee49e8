#pragma once
// What lasts as long as a scope: states of device contexts and image lists. Internal to the module.

#include <afxcmn.h>

/// Gives a device context all of its state back.
class ContextStateScope
{
public:
    explicit ContextStateScope(CDC & dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    ~ContextStateScope() { m_dc.RestoreDC(m_saved); }
    ContextStateScope(ContextStateScope const &) = delete;
    ContextStateScope & operator=(ContextStateScope const &) = delete;

private:
    CDC & m_dc;
    int m_saved;
};

/// Selects an object, and the former one again at the end.
class SelectScope
{
public:
    /// Nothing is selected for a null object.
    SelectScope(CDC & dc, HGDIOBJ object)
        : m_dc(dc),
          m_former(object != nullptr ? ::SelectObject(dc.m_hDC, object) : nullptr)
    {
    }
    ~SelectScope()
    {
        if (m_former != nullptr)
            ::SelectObject(m_dc.m_hDC, m_former);
    }
    SelectScope(SelectScope const &) = delete;
    SelectScope & operator=(SelectScope const &) = delete;

    /// Another object of the same type in its place.
    void Change(HGDIOBJ object) { ::SelectObject(m_dc.m_hDC, object); }

private:
    CDC & m_dc;
    HGDIOBJ m_former;
};

/// Selects a pen of its own.
class PenScope
{
public:
    PenScope(CDC & dc, COLORREF color, int width = 1)
        : m_pen(PS_SOLID, width, color),
          m_selection(dc, m_pen.GetSafeHandle())
    {
    }
    PenScope(PenScope const &) = delete;
    PenScope & operator=(PenScope const &) = delete;

private:
    CPen m_pen;
    SelectScope m_selection;
};

/// Selects a bold or underlined form of the present font; nothing for neither.
class FontFormScope
{
public:
    FontFormScope(CDC & dc, bool bold, bool underline) : m_dc(dc)
    {
        CFont * const present = bold || underline ? dc.GetCurrentFont() : nullptr;
        LOGFONTW font = {};
        if (present == nullptr || present->GetLogFont(&font) == 0)
            return;
        if (bold)
            font.lfWeight = FW_BOLD;
        if (underline)
            font.lfUnderline = TRUE;
        if (m_font.CreateFontIndirect(&font))
            m_former = dc.SelectObject(&m_font);
    }
    ~FontFormScope()
    {
        if (m_former != nullptr)
            m_dc.SelectObject(m_former);
    }
    FontFormScope(FontFormScope const &) = delete;
    FontFormScope & operator=(FontFormScope const &) = delete;

private:
    CDC & m_dc;
    CFont m_font;
    CFont * m_former = nullptr;
};

/// Clips to a rectangle, within the present clip.
class ClipScope
{
public:
    ClipScope(CDC & dc, CRect const & rect) : m_dc(dc.GetSafeHdc()), m_former(::CreateRectRgn(0, 0, 0, 0))
    {
        m_clipped = ::GetClipRgn(m_dc, m_former) == 1;
        dc.IntersectClipRect(rect.IsRectEmpty() ? CRect(0, 0, 0, 0) : rect);
    }
    ~ClipScope()
    {
        ::SelectClipRgn(m_dc, m_clipped ? m_former : nullptr);
        ::DeleteObject(m_former);
    }
    ClipScope(ClipScope const &) = delete;
    ClipScope & operator=(ClipScope const &) = delete;

private:
    HDC m_dc;
    HRGN m_former;
    bool m_clipped = false;
};

/// Gives an image list another background colour.
class ImageBackgroundScope
{
public:
    ImageBackgroundScope(CImageList & images, COLORREF color) : m_images(images), m_former(images.SetBkColor(color)) {}
    ~ImageBackgroundScope() { m_images.SetBkColor(m_former); }
    ImageBackgroundScope(ImageBackgroundScope const &) = delete;
    ImageBackgroundScope & operator=(ImageBackgroundScope const &) = delete;

private:
    CImageList & m_images;
    COLORREF m_former;
};

/// Measures texts on a window's context, by its handle. To be held over no message: the context ends with the window.
class TextMeasure
{
public:
    /// font: null for the context's own.
    TextMeasure(HWND window, HGDIOBJ font)
        : m_window(window),
          m_dc(::GetDC(window)),
          m_former(m_dc != nullptr && font != nullptr ? ::SelectObject(m_dc, font) : nullptr)
    {
    }
    ~TextMeasure()
    {
        if (m_former != nullptr)
            ::SelectObject(m_dc, m_former);
        if (m_dc != nullptr)
            ::ReleaseDC(m_window, m_dc);
    }
    TextMeasure(TextMeasure const &) = delete;
    TextMeasure & operator=(TextMeasure const &) = delete;

    /// 0 without a window.
    int Width(CString const & text) const
    {
        SIZE size{};
        ::GetTextExtentPoint32W(m_dc, text, text.GetLength(), &size);
        return size.cx;
    }

private:
    HWND m_window;
    HDC m_dc;
    HGDIOBJ m_former;
};

/// The context of a window's client area; null if there is none.
class ClientContext
{
public:
    explicit ClientContext(CWnd & window) : m_window(window), m_dc(window.GetDC()) {}
    ~ClientContext()
    {
        if (m_dc != nullptr)
            m_window.ReleaseDC(m_dc);
    }
    ClientContext(ClientContext const &) = delete;
    ClientContext & operator=(ClientContext const &) = delete;

    CDC * Get() const { return m_dc; }

private:
    CWnd & m_window;
    CDC * m_dc;
};
