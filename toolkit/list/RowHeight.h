#pragma once
// How rows of a native list become as high as what is painted in them at a resolution. Internal to the list family.

#include <afxcmn.h>

#include <algorithm>

#include "layout/Resolution.h"
#include "list/CheckMarks.h"

/// Rows are as high as the list's font and images need. Where a resolution wants more, a blank picture of that height
/// stands for the states of rows, which have none otherwise. Native is a callable (message, wParam, lParam) that
/// reaches the native list and nobody else.
class CRowHeight
{
public:
    CRowHeight() = default;
    CRowHeight(CRowHeight const &) = delete;
    CRowHeight & operator=(CRowHeight const &) = delete;

    /// What boxes and small images need at that resolution, none where the native list sees to it. imageDpi: what the
    /// images were made for.
    template <class Native> static int Needed(Native const & native, UINT dpi, UINT imageDpi)
    {
        constexpr int room_about_boxes = 3;
        int const boxes =
            dpi > resolution::usual ? resolution::Scaled(check_marks::box_size + room_about_boxes, dpi) : 0;
        auto const images = reinterpret_cast<HIMAGELIST>(native(LVM_GETIMAGELIST, LVSIL_SMALL, 0));
        int width = 0;
        int height = 0;
        if (images == nullptr || dpi <= imageDpi || !::ImageList_GetIconSize(images, &width, &height))
            return boxes;
        return std::max(boxes, resolution::Scaled(height, dpi, imageDpi));
    }
    /// 0 for no more than the native list sees to. A host's own states stay, and no row is higher then.
    template <class Native> void Keep(Native const & native, int height)
    {
        if (height == m_height && (m_height == 0 || IsIn(native)))
            return;
        Take(native);
        m_height = 0;
        if (height <= 0 || native(LVM_GETIMAGELIST, LVSIL_STATE, 0) != 0 || !m_blank.Create(1, height, ILC_COLOR, 1, 0))
            return;
        m_height = height;
        native(LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(m_blank.GetSafeHandle()));
    }
    /// Out of the native list, which would end it with itself, or before the host gives it states.
    template <class Native> void Take(Native const & native)
    {
        if (m_blank.GetSafeHandle() == nullptr)
            return;
        if (IsIn(native))
            native(LVM_SETIMAGELIST, LVSIL_STATE, 0);
        m_blank.DeleteImageList();
        m_height = 0;
    }
    /// What a host is told of the list's states.
    bool IsBlank(LRESULT images) const
    {
        return images != 0 && reinterpret_cast<HIMAGELIST>(images) == m_blank.GetSafeHandle();
    }

private:
    template <class Native> bool IsIn(Native const & native) const
    {
        return IsBlank(native(LVM_GETIMAGELIST, LVSIL_STATE, 0));
    }

    CImageList m_blank;
    int m_height = 0;
};
