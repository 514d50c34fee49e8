#pragma once
// What the tests of the combo family share: a parent that writes down what it hears, a combo whose fields can be seen,
// and real input on both.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Input.h"
#include "list/combo/AdvComboBox.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropScrollBar.h"
#include "list/combo/DropWnd.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace combo_test
{
using Heard = std::vector<std::string>;

inline constexpr UINT combo_id = 77;

inline std::string NameOf(UINT code)
{
    switch (code)
    {
    case CBN_SELCHANGE:
        return "SELCHANGE";
    case CBN_SETFOCUS:
        return "SETFOCUS";
    case CBN_KILLFOCUS:
        return "KILLFOCUS";
    case CBN_EDITCHANGE:
        return "EDITCHANGE";
    case CBN_EDITUPDATE:
        return "EDITUPDATE";
    case CBN_DROPDOWN:
        return "DROPDOWN";
    case CBN_CLOSEUP:
        return "CLOSEUP";
    case CBN_SELENDOK:
        return "SELENDOK";
    case CBN_SELENDCANCEL:
        return "SELENDCANCEL";
    default:
        return std::to_string(code);
    }
}

class ComboParent : public tests::ScopedWindow
{
public:
    explicit ComboParent(CRect const & rect = CRect(100, 100, 500, 500)) : ScopedWindow(rect) {}

    Heard TakeHeard() { return std::exchange(m_heard, {}); }

    Heard m_heard;
    /// Called with the code of each notification.
    std::function<void(UINT)> m_onNotification;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (lParam == 0)
            return CWnd::OnCommand(wParam, lParam);
        // Not from a combo of the tests.
        if (LOWORD(wParam) != combo_id)
            return FALSE;
        m_heard.push_back(NameOf(HIWORD(wParam)));
        if (auto const call = m_onNotification)
            call(HIWORD(wParam));
        return TRUE;
    }
};

/// A combo that writes its cancels and completions among what its parent hears.
class TestCombo : public XListCtrl::CAdvComboBox
{
public:
    explicit TestCombo(ComboParent * parent) : CAdvComboBox(0, parent), m_host(parent) {}

    using CAdvComboBox::m_autoAppendArmed;
    using CAdvComboBox::m_comboFlags;
    using CAdvComboBox::m_createdByCode;
    using CAdvComboBox::m_ctorWord;
    using CAdvComboBox::m_curSel;
    using CAdvComboBox::m_drop;
    using CAdvComboBox::m_dropRectValid;
    using CAdvComboBox::m_dropVisible;
    using CAdvComboBox::m_edit;
    using CAdvComboBox::m_firstPaint;
    using CAdvComboBox::m_focused;
    using CAdvComboBox::m_focusNotified;
    using CAdvComboBox::m_font;
    using CAdvComboBox::m_hot;
    using CAdvComboBox::m_hotTimer;
    using CAdvComboBox::m_items;
    using CAdvComboBox::m_maxVisible;
    using CAdvComboBox::m_minVisible;
    using CAdvComboBox::m_parent;
    using CAdvComboBox::m_rcButton;
    using CAdvComboBox::m_rcCombo;
    using CAdvComboBox::m_rcDropSaved;
    using CAdvComboBox::m_selMade;
    using CAdvComboBox::m_style;
    using CAdvComboBox::m_text;
    using CAdvComboBox::m_wheel;

    void OnComboCancel() override { Write("cancel"); }
    void OnComboComplete() override { Write("complete"); }

    std::function<void(std::string const &)> m_onCall;

private:
    void Write(char const * call)
    {
        if (m_host != nullptr)
            m_host->m_heard.push_back(call);
        if (auto const called = m_onCall)
            called(call);
    }

    ComboParent * m_host;
};

/// A combo with items, on a parent in front.
class ComboTest : public testing::Test
{
protected:
    CRect const m_place = CRect(20, 20, 170, 42);

    void SetUp() override { tests::MoveMouse(CPoint(900, 900)); }

    /// style: CBS_DROPDOWN or CBS_DROPDOWNLIST, and more. The edit field of the former is there at once.
    void MakeCombo(DWORD style = CBS_DROPDOWNLIST, std::vector<std::wstring> const & items = Numbered(10))
    {
        m_combo = std::make_unique<TestCombo>(&m_host);
        ASSERT_TRUE(m_combo->Create(WS_CHILD | WS_VISIBLE | style, m_place, &m_host, combo_id));
        for (std::wstring const & item : items)
            m_combo->AddString(item.c_str());
        m_combo->BringWindowToTop();
        ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
        m_combo->UpdateWindow();
        tests::PumpPosted();
        m_host.m_heard.clear();
    }
    static std::vector<std::wstring> Numbered(int count)
    {
        std::vector<std::wstring> items;
        for (int i = 0; i < count; ++i)
            items.push_back(L"item " + std::to_wstring(i));
        return items;
    }

    XListCtrl::CDropListBox & List() { return *m_combo->GetDropWnd()->GetListBox(); }
    XListCtrl::CDropScrollBar & ScrollBar()
    {
        return static_cast<XListCtrl::CDropScrollBar &>(*m_combo->GetDropWnd()->GetDlgItem(100));
    }
    /// In the middle of a row of the open list; screen pixels.
    CPoint RowPoint(int row)
    {
        CRect rect;
        List().GetItemRect(row, rect);
        return tests::ClientPoint(List().m_hWnd, rect.CenterPoint());
    }
    CPoint ComboPoint() { return tests::Centre(m_combo->m_hWnd); }
    CPoint ButtonPoint() { return tests::ClientPoint(m_combo->m_hWnd, m_combo->m_rcButton.CenterPoint()); }
    CRect DropRect()
    {
        CRect rect;
        m_combo->GetDropWnd()->GetWindowRect(rect);
        return rect;
    }
    bool WaitOpen()
    {
        return tests::PumpUntil([this] { return m_combo->GetDroppedState(); });
    }
    bool WaitClosed()
    {
        return tests::PumpUntil([this] { return !m_combo->GetDroppedState(); });
    }
    bool WaitHeard(std::string const & what)
    {
        return tests::PumpUntil(
            [&] { return std::find(m_host.m_heard.begin(), m_host.m_heard.end(), what) != m_host.m_heard.end(); });
    }
    bool Open()
    {
        m_combo->ShowDropDown();
        bool const open = WaitOpen();
        tests::PumpPosted();
        m_host.m_heard.clear();
        return open;
    }
    /// A key as the message loop would see it, without the keyboard.
    void PostKey(WORD key, UINT message = WM_KEYDOWN)
    {
        HWND const focus = m_combo->m_edit != nullptr ? m_combo->m_edit->m_hWnd : m_combo->m_hWnd;
        ::PostMessage(focus, message, key, 1);
        tests::PumpPosted();
    }
    std::wstring Text()
    {
        CString text;
        m_combo->GetWindowText(text);
        return text.GetString();
    }

    ComboParent m_host;
    std::unique_ptr<TestCombo> m_combo;
};
} // namespace combo_test
