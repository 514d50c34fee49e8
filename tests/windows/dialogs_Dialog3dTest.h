#pragma once
// A dialog of the toolkit whose protected operations a test can call, and that notes what happens to it.

#include <afxwin.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "dialogs/Dialog3d.h"
#include "Input.h"
#include "MemoryPreferenceStore.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"
#include "TestApp.h"

namespace dialog_tests
{
constexpr UINT_PTR fade_timer = 99;

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

class TestDialog : public CDialog3d
{
public:
    explicit TestDialog(UINT id = IDD_FIXED, CWnd * parent = nullptr, AFX_EXTENSION_MODULE module = NO_DLL)
        : CDialog3d(module, id, parent)
    {
    }
    ~TestDialog() override
    {
        if (m_hWnd != nullptr)
            DestroyWindow();
    }

    using CDialog3d::ActivatePopup;
    using CDialog3d::ClientCoordinates;
    using CDialog3d::D3dLayoutChild;
    using CDialog3d::D3dLayoutComplete;
    using CDialog3d::D3dLayoutMoveChild;
    using CDialog3d::D3dLayoutTouch;
    using CDialog3d::DDX_CBFloat;
    using CDialog3d::DDX_CBInt;
    using CDialog3d::DisplayDialog;
    using CDialog3d::EnableCloseButton;
    using CDialog3d::GetMaxID;
    using CDialog3d::m_fadeInOnCreate;
    using CDialog3d::MakeResizingDialog;

    /// Runs at the end of OnInitDialog.
    std::function<void()> m_onInit;
    std::function<void(CDataExchange *)> m_onExchange;
    /// Sees every message that no handler of the dialog swallowed.
    std::vector<UINT> m_defaulted;
    std::vector<int> m_alphas; // after each tick
    int m_fadeEnds = 0;
    int m_inits = 0;
    int m_shown = 0;
    int m_oks = 0;
    int m_cancels = 0;
    int m_displays = 0;
    int m_destroys = 0;
    LRESULT m_initResult = -1;

    /// 255 while the window is not layered.
    int ShownAlpha() const
    {
        BYTE alpha = 0;
        DWORD flags = 0;
        COLORREF key = 0;
        if ((GetExStyle() & WS_EX_LAYERED) == 0)
            return 255;
        if (!::GetLayeredWindowAttributes(m_hWnd, &key, &alpha, &flags) || (flags & LWA_ALPHA) == 0)
            return -1;
        return alpha;
    }
    int DefaultedCount(UINT message) const
    {
        return static_cast<int>(std::count(m_defaulted.begin(), m_defaulted.end(), message));
    }
    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }
    /// The grip's window, or null.
    HWND Grip() const
    {
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        {
            if (dynamic_cast<CSizeGrip *>(CWnd::FromHandlePermanent(child)) != nullptr)
                return child;
        }
        return nullptr;
    }
    void SetSize(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    /// Lets the fade that runs end; false if it doesn't. The tick that ends the timer is the one that is swallowed.
    bool FinishFade()
    {
        bool const ended = tests::PumpUntil([&] { return m_fadeEnds > 0; });
        m_fadeEnds = 0;
        return ended;
    }

    int DisplayDialog() override
    {
        ++m_displays;
        return CDialog3d::DisplayDialog();
    }
    BOOL DestroyWindow() override
    {
        ++m_destroys;
        return CDialog3d::DestroyWindow();
    }

protected:
    void PreSubclassWindow() override
    {
        ::SetWindowSubclass(m_hWnd, NoteDefaulted, 77, reinterpret_cast<DWORD_PTR>(this));
        CDialog3d::PreSubclassWindow();
    }
    BOOL OnInitDialog() override
    {
        BOOL const result = CDialog3d::OnInitDialog();
        ++m_inits;
        if (m_onInit)
            m_onInit();
        return result;
    }
    void DoDataExchange(CDataExchange * exchange) override
    {
        CDialog3d::DoDataExchange(exchange);
        if (m_onExchange)
            m_onExchange(exchange);
    }
    void OnOK() override { ++m_oks; }
    void OnCancel() override { ++m_cancels; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_WINDOWPOSCHANGED && (reinterpret_cast<WINDOWPOS *>(lParam)->flags & SWP_SHOWWINDOW) != 0)
            ++m_shown;
        HWND const window = m_hWnd;
        int const defaulted = DefaultedCount(WM_TIMER);
        LRESULT const result = CDialog3d::WindowProc(message, wParam, lParam);
        if (message == WM_TIMER && ::IsWindow(window))
        {
            m_alphas.push_back(ShownAlpha());
            if (DefaultedCount(WM_TIMER) == defaulted)
                ++m_fadeEnds;
        }
        return result;
    }

private:
    static LRESULT CALLBACK NoteDefaulted(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                          DWORD_PTR dialog)
    {
        reinterpret_cast<TestDialog *>(dialog)->m_defaulted.push_back(message);
        if (message == WM_NCDESTROY)
            ::RemoveWindowSubclass(window, NoteDefaulted, id);
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
};

/// A preference store for the time of the test, so that dialogs show at their stored place.
class DialogTest : public testing::Test
{
protected:
    void SetUp() override { CVeskBase::SetPreferenceVesk(&m_store); }
    void TearDown() override
    {
        CVeskBase::SetPreferenceVesk(nullptr);
        CDialog3d::SetTouchFreeze(false);
    }

    void StorePlace(CString const & name, CRect const & place)
    {
        m_store.LookupSetInt(name + L"-Fensterpos", place.top, 0);
        m_store.LookupSetInt(name + L"-Fensterpos", place.left, 1);
        m_store.LookupSetInt(name + L"-Fensterpos", place.bottom, 2);
        m_store.LookupSetInt(name + L"-Fensterpos", place.right, 3);
    }
    CRect StoredPlace(CString const & name)
    {
        return CRect(
            m_store.LookupGetInt(name + L"-Fensterpos", 1, -1), m_store.LookupGetInt(name + L"-Fensterpos", 0, -1),
            m_store.LookupGetInt(name + L"-Fensterpos", 3, -1), m_store.LookupGetInt(name + L"-Fensterpos", 2, -1));
    }

    MemoryPreferenceStore m_store;
};
} // namespace dialog_tests
