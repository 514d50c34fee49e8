#pragma once
// The report list's resolution. Internal to the sources of CXListCtrl.

#include "layout/Resolution.h"
#include "list/RowHeight.h"
#include "list/XListCtrl.h"

class CXListCtrl::Resolution
{
public:
    explicit Resolution(CXListCtrl & list) : m_list(list) {}
    Resolution(Resolution const &) = delete;
    Resolution & operator=(Resolution const &) = delete;

    UINT Dpi() const { return m_dpi; }
    UINT ImageDpi() const { return m_imageDpi; }
    int Scaled(int pixels) const { return resolution::Scaled(pixels, m_dpi); }
    bool Set(UINT dpi);
    void Follow(bool follow);
    /// The list has got its window.
    void Begin();
    /// Before the window ends.
    void End();
    /// Whether a message is for it: those that change or ask for what it keeps in the native list, or tell of another
    /// resolution. Costs next to nothing for others.
    bool Heeds(UINT message) const;
    /// Handles such a message, with what the native list makes of it.
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    LRESULT Native(UINT message, WPARAM wParam, LPARAM lParam);
    void ScaleColumns();
    bool ScaleColumn(std::size_t col);
    void KeepRows();

    CXListCtrl & m_list;
    UINT m_dpi = resolution::usual;
    /// Of the small images.
    UINT m_imageDpi = resolution::usual;
    bool m_follows = false;
    /// Changes so far: one within another has the last word.
    unsigned int m_changes = 0;
    resolution::ScaledLengths m_widths;
    CRowHeight m_rows;
};
