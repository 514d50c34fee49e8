#pragma once
// A multiselect whose protected members a test may use, its parent, and the dialog.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "controls/IdNameMultiselectDlg.h"
#include "frame/RegisteredMessages.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace tests
{
/// Reads and presses what a multiselect is made of.
class MultiselectParts
{
public:
    explicit MultiselectParts(HWND control) : m_control(control) {}

    static constexpr int list_id = 32802;
    HWND Part(int id) const { return ::GetDlgItem(m_control, id); }
    CListCtrl & List() const { return *static_cast<CListCtrl *>(CWnd::FromHandle(Part(list_id))); }
    CRect Place(int id) const
    {
        CRect rect;
        ::GetWindowRect(Part(id), &rect);
        ::MapWindowPoints(nullptr, m_control, reinterpret_cast<POINT *>(&rect), 2);
        return rect;
    }
    int Rows() const { return static_cast<int>(::SendMessageW(Part(list_id), LVM_GETITEMCOUNT, 0, 0)); }
    CString Text(int row) const
    {
        wchar_t text[600] = {};
        LVITEMW item{};
        item.pszText = text;
        item.cchTextMax = 600;
        ::SendMessageW(Part(list_id), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    std::vector<CString> Texts() const
    {
        std::vector<CString> texts;
        for (int row = 0; row < Rows(); ++row)
            texts.push_back(Text(row));
        return texts;
    }
    int Id(int row) const
    {
        LVITEMW item{};
        item.mask = LVIF_PARAM;
        item.iItem = row;
        ::SendMessageW(Part(list_id), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return static_cast<int>(item.lParam);
    }
    bool IsTicked(int row) const { return State(row) >> 12 == 2; }
    void Tick(int row, bool ticked) const
    {
        LVITEMW item{};
        item.state = INDEXTOSTATEIMAGEMASK(ticked ? 2 : 1);
        item.stateMask = LVIS_STATEIMAGEMASK;
        ::SendMessageW(Part(list_id), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    std::vector<int> Ticked() const
    {
        std::vector<int> ids;
        for (int row = 0; row < Rows(); ++row)
        {
            if (IsTicked(row))
                ids.push_back(Id(row));
        }
        return ids;
    }
    /// Within the list. part: LVIR_LABEL or LVIR_BOUNDS.
    CRect RowRect(int row, int part) const
    {
        CRect rect(part, 0, 0, 0);
        ::SendMessageW(Part(list_id), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    void PressAt(CPoint point) const
    {
        HWND const list = Part(list_id);
        LPARAM const place = MAKELPARAM(point.x, point.y);
        // The native list waits for the end within the press.
        ::PostMessageW(list, WM_LBUTTONUP, 0, place);
        ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
    }
    void Command(int id) const
    {
        ::SendMessageW(m_control, WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(Part(id)));
    }

private:
    UINT State(int row) const
    {
        return static_cast<UINT>(
            ::SendMessageW(Part(list_id), LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
    }

    HWND m_control;
};

/// Opens the dialog by `open` and has the action done once it is up.
inline void DoInDialog(CIdNameMultiselectDlg & dialog, std::function<void()> const & open,
                       std::function<void(MultiselectParts const &)> const & action)
{
    constexpr int last_part_id = 32806;
    auto const parts = [&dialog] { return MultiselectParts(dialog.m_control.m_hWnd); };
    LaterActions later;
    later.Add([&] { action(parts()); },
              [&] {
                  return dialog.m_hWnd != nullptr && dialog.IsWindowVisible() && dialog.m_control.m_hWnd != nullptr &&
                         parts().Part(last_part_id) != nullptr;
              });
    open();
    EXPECT_FALSE(later.Failed());
}

class TestMultiselect : public CIdNameMultiselectCtrl
{
public:
    using CIdNameMultiselectCtrl::GetMessageMap;
    using CIdNameMultiselectCtrl::GetThisMessageMap;
    using CIdNameMultiselectCtrl::ItemEintragen;
    using CIdNameMultiselectCtrl::m_controlsCreated;
    using CIdNameMultiselectCtrl::m_emptyMapMessage;
    using CIdNameMultiselectCtrl::m_grouped;
    using CIdNameMultiselectCtrl::m_list;
    using CIdNameMultiselectCtrl::m_okCancel;
    using CIdNameMultiselectCtrl::m_showIds;
    using CIdNameMultiselectCtrl::m_sorted;
    using CIdNameMultiselectCtrl::m_toolTip;
    using CIdNameMultiselectCtrl::OnOkButton;
};

class MultiselectParent : public ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;

    struct Event
    {
        WPARAM what;
        LPARAM id;
        bool operator==(Event const &) const = default;
    };
    std::vector<Event> events;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_IDNAME_MULTISELECT_EVENT)
            events.push_back({wParam, lParam});
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};
} // namespace tests
