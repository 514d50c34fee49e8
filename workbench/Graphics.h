#pragma once
// The anti-aliased drawing library.

#include "frame/GdiplusModule.h"

namespace workbench
{

/// Keeps the drawing library started. Whatever uses it must end before.
class GraphicsScope
{
public:
    GraphicsScope() { Gdiplus::GdiplusStartup(&m_token, &m_input, nullptr); }
    GraphicsScope(GraphicsScope const &) = delete;
    GraphicsScope & operator=(GraphicsScope const &) = delete;
    ~GraphicsScope()
    {
        if (m_token != 0)
        {
            Gdiplus::GdiplusShutdown(m_token);
        }
    }

private:
    Gdiplus::GdiplusStartupInput m_input;
    ULONG_PTR m_token = 0;
};

} // namespace workbench
