#pragma once
// Property sheets and pages of the framework that note what happens to them.

#include <afxcmn.h>
#include <afxpropertypage.h>
#include <afxpropertysheet.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "DialogTemplate.h"
#include "GdiHandleCount.h"
#include "Input.h"
#include "MemoryPreferenceStore.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "sheet_resource.h"
#include "TestApp.h"
#include "ThreadWindows.h"

namespace sheet_tests
{
using Notes = std::vector<std::string>;

inline CRect OuterOf(CWnd const & window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}

inline CString TextOf(CWnd const & window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

/// The window's rectangle in its parent's client coordinates.
inline CRect PlaceOf(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT *>(&rect), 2);
    return rect;
}

/// A page that notes what is called, with its name, and does what the test says.
template <class Base> class Noting : public Base
{
public:
    template <class... Arguments> Noting(Notes & notes, std::string name, Arguments &&... arguments)
        : Base(std::forward<Arguments>(arguments)...),
          m_name(std::move(name)),
          m_notes(notes)
    {
    }

    std::function<void(std::string const &)> m_act; // called with what was noted
    BOOL m_setActive = TRUE;
    BOOL m_killActive = TRUE;
    BOOL m_apply = TRUE;
    BOOL m_queryCancel = TRUE;
    LRESULT m_next = 0;
    LRESULT m_back = 0;
    BOOL m_finish = TRUE;
    CString m_text;
    bool m_exchanges = false;
    std::string m_name;

    BOOL OnInitDialog() override
    {
        BOOL const result = Base::OnInitDialog();
        Note("init");
        return result;
    }
    BOOL OnSetActive() override
    {
        BOOL const result = Base::OnSetActive();
        Note("set");
        return result && m_setActive;
    }
    BOOL OnKillActive() override
    {
        BOOL const result = Base::OnKillActive();
        Note("kill");
        return result && m_killActive;
    }
    BOOL OnApply() override
    {
        Note("apply");
        return m_apply && Base::OnApply();
    }
    void OnOK() override
    {
        Note("ok");
        Base::OnOK();
    }
    void OnReset() override
    {
        Note("reset");
        Base::OnReset();
    }
    void OnCancel() override
    {
        Note("cancel");
        Base::OnCancel();
    }
    BOOL OnQueryCancel() override
    {
        Note("query");
        return m_queryCancel && Base::OnQueryCancel();
    }
    LRESULT OnWizardNext() override
    {
        Note("next");
        return m_next;
    }
    LRESULT OnWizardBack() override
    {
        Note("back");
        return m_back;
    }
    BOOL OnWizardFinish() override
    {
        Note("finish");
        return m_finish;
    }
    void DoDataExchange(CDataExchange * exchange) override
    {
        Base::DoDataExchange(exchange);
        if (m_exchanges)
            DDX_Text(exchange, IDC_PAGE_TEXT, m_text);
    }

protected:
    void Note(char const * what)
    {
        m_notes.push_back(m_name + " " + what);
        auto const act = m_act;
        if (act)
            act(what);
    }

private:
    Notes & m_notes;
};

using Page = Noting<CPropertyPage>;

/// Lets the test see the sheet.
template <class Base> class Watched : public Base
{
public:
    using Base::Base;

    std::function<void()> m_onInit;
    std::function<void()> m_onDestroyed;

    HWND Item(int id) const { return ::GetDlgItem(this->m_hWnd, id); }
    bool Shows(int id) const { return ::IsWindowVisible(Item(id)) != FALSE; }
    void Push(int id) { ::SendMessage(Item(id), BM_CLICK, 0, 0); }

    BOOL OnInitDialog() override
    {
        BOOL const result = Base::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return result;
    }

protected:
    void PostNcDestroy() override
    {
        Base::PostNcDestroy();
        if (m_onDestroyed)
            m_onDestroyed();
    }
};

using Sheet = Watched<CPropertySheet>;
} // namespace sheet_tests
