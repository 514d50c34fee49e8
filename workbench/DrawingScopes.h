#pragma once
// What lasts as long as a block: what is selected into a device context, and how it draws.

#include "frame/GraphicsScopes.h"

namespace workbench
{

/// Selects a font into a device context, and the former one back at the end of the block. Into the context that it
/// measures with as well: a picture for the clipboard or the printer has another one for that.
class FontScope
{
public:
    FontScope(CDC & dc, CFont & font) : m_dc(dc), m_previous(dc.SelectObject(&font)) {}
    FontScope(FontScope const &) = delete;
    FontScope & operator=(FontScope const &) = delete;
    ~FontScope() { m_dc.SelectObject(m_previous); }

private:
    CDC & m_dc;
    CFont * m_previous;
};

/// How a picture is stretched, with its way back.
class StretchModeScope
{
public:
    StretchModeScope(CDC & dc, int mode) : m_dc(dc), m_former(dc.SetStretchBltMode(mode)) {}
    StretchModeScope(StretchModeScope const &) = delete;
    StretchModeScope & operator=(StretchModeScope const &) = delete;
    ~StretchModeScope() { m_dc.SetStretchBltMode(m_former); }

private:
    CDC & m_dc;
    int m_former;
};

} // namespace workbench
