// Hosts that end a control from inside its notifications, and controls without a parent.

#include "ControlTest.h"
#include "GuardedHeap.h"

namespace outside::controls
{
namespace
{
using Map = std::map<int, CString>;
using Ids = std::set<int>;

class Field : public CXEditBrowseCtrl
{
public:
    using CXEditBrowseCtrl::m_dialog;
    using CXEditBrowseCtrl::NotifyParent;
};

class Multi : public CIdNameMultiselectCtrl
{
public:
    using CIdNameMultiselectCtrl::m_controlsCreated;
    using CIdNameMultiselectCtrl::m_list;
    using CIdNameMultiselectCtrl::OnOkButton;
    using CIdNameMultiselectCtrl::OnSelectAll;
    using CIdNameMultiselectCtrl::SendMessageToParent;

    std::function<void(UINT)> onNotify;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        if (onNotify)
        {
            auto const copy = onNotify;
            copy(reinterpret_cast<NMHDR *>(lParam)->code);
            *result = 0;
            return TRUE;
        }
        return CIdNameMultiselectCtrl::OnNotify(wParam, lParam, result);
    }
};

class RowList : public CIdNameMultiselectListCtlr
{
};

class OutsideHosts : public testing::Test
{
protected:
    void TearDown() override { m_host.hook = nullptr; }
    Host m_host;
};

TEST_F(OutsideHosts, WithoutAParentTheOwnerIsTold)
{
    Host owner;
    Field field;
    ASSERT_TRUE(field.CreateEx(0, L"EDIT", L"", WS_POPUP, CRect(10, 10, 100, 40), nullptr, 0));
    ASSERT_EQ(field.GetParent(), nullptr);
    field.SetOwner(&owner);
    field.NotifyParent(4, 5);
    tests::PumpPosted();
    ASSERT_EQ(owner.Count(WM_XEDITBROWSE_COMPLETED), 1);
    EXPECT_EQ(owner.Of(WM_XEDITBROWSE_COMPLETED)[0].wParam, 4u);
    field.DestroyWindow();

    Multi multi;
    ASSERT_TRUE(multi.CreateEx(0, L"BUTTON", L"", WS_POPUP, CRect(10, 10, 200, 140), nullptr, 0));
    multi.SetOwner(&owner);
    multi.SendMessageToParent(1, 2);
    tests::PumpPosted();
    ASSERT_EQ(owner.Count(WM_IDNAME_MULTISELECT_EVENT), 1);
    EXPECT_EQ(owner.Of(WM_IDNAME_MULTISELECT_EVENT)[0].lParam, 2);
    owner.DestroyWindow();
    multi.SendMessageToParent(1, 2);
    multi.SetOwner(nullptr);
    multi.SendMessageToParent(1, 2);
    multi.DestroyWindow();
}

TEST_F(OutsideHosts, ListWithoutAParentTellsItsOwner)
{
    Host owner;
    HWND const native =
        ::CreateWindowW(WC_LISTVIEWW, L"", WS_POPUP | LVS_LIST, 10, 10, 190, 140, nullptr, nullptr, nullptr, nullptr);
    RowList list;
    ASSERT_TRUE(list.SubclassWindow(native));
    list.SetOwner(&owner);
    list.InsertItem(0, L"one");
    list.SetItemData(0, 42);
    CRect label;
    list.GetItemRect(0, label, LVIR_LABEL);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(label.left + 2, label.CenterPoint().y));
    tests::PumpPosted();
    ASSERT_EQ(owner.Count(32802), 1);
    EXPECT_EQ(owner.Of(32802)[0].lParam, 42);
    list.DestroyWindow();
}

TEST_F(OutsideHosts, ComboEndsInItsDropDownNotification)
{
    for (bool const byDelete : {false, true})
    {
        tests::GuardedHeap heap;
        auto * c = new CComboBoxX;
        ASSERT_TRUE(c->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(20, 20, 160, 200), m_host, 33));
        c->AddItem(L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", 1);
        m_host.hook = [&](UINT message, WPARAM wParam, LPARAM, LRESULT &) {
            if (message == WM_COMMAND && HIWORD(wParam) == CBN_DROPDOWN && c != nullptr && c->GetSafeHwnd() != nullptr)
            {
                c->DestroyWindow();
                if (byDelete)
                {
                    delete c;
                    c = nullptr;
                }
            }
            return false;
        };
        c->ShowDropDown();
        tests::PumpPosted();
        m_host.hook = nullptr;
        delete c;
    }
}

TEST_F(OutsideHosts, ComboEndsWhileATextWithoutMatchIsPutBack)
{
    for (bool const byDelete : {false, true})
    {
        auto * c = new CComboBoxX;
        ASSERT_TRUE(c->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(20, 20, 160, 200), m_host, 33));
        c->AddItem(L"Anna", 1);
        c->AutoComplete(true);
        ASSERT_TRUE(tests::BringToFront(m_host));
        c->SetFocus();
        bool done = false;
        m_host.hook = [&](UINT message, WPARAM wParam, LPARAM, LRESULT &) {
            if (message == WM_COMMAND && HIWORD(wParam) == CBN_EDITCHANGE && !done)
            {
                done = true;
                c->DestroyWindow();
                if (byDelete)
                {
                    delete c;
                    c = nullptr;
                }
            }
            return false;
        };
        tests::Key('X');
        EXPECT_TRUE(tests::PumpUntil([&] { return done; }, std::chrono::seconds(20)));
        m_host.hook = nullptr;
        delete c;
    }
}

TEST_F(OutsideHosts, FieldEndsWhenItsTextChanges)
{
    for (int how = 0; how < 3; ++how)
    {
        tests::GuardedHeap heap;
        auto * f = new Field;
        ASSERT_TRUE(f->Create(WS_CHILD | WS_VISIBLE, CRect(20, 20, 220, 44), m_host, 9));
        f->SetTheMap(Map{{1, L"one"}, {2, L"two"}});
        f->PrepareIdNameBrowser();
        f->SetSelection(Ids{1, 2});
        bool done = false;
        m_host.hook = [&](UINT message, WPARAM wParam, LPARAM, LRESULT &) {
            if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE && !done)
            {
                done = true;
                if (how != 1)
                    f->DestroyWindow();
                if (how != 0)
                {
                    delete f;
                    f = nullptr;
                }
            }
            return false;
        };
        f->UpdateSelectionText();
        EXPECT_TRUE(done);
        m_host.hook = nullptr;
        delete f;
    }
}

TEST_F(OutsideHosts, FieldEndsWhenTheDropDownsChoiceIsWritten)
{
    for (bool const byDelete : {false, true})
    {
        auto * f = new Field;
        ASSERT_TRUE(f->Create(WS_CHILD | WS_VISIBLE, CRect(20, 20, 220, 44), m_host, 9));
        f->SetTheMap(Map{{1, L"one"}, {2, L"two"}});
        f->PrepareIdNameBrowser();
        m_host.hook = [&](UINT message, WPARAM wParam, LPARAM, LRESULT &) {
            if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE && f != nullptr && f->GetSafeHwnd() != nullptr)
            {
                f->DestroyWindow();
                if (byDelete)
                {
                    delete f;
                    f = nullptr;
                }
            }
            return false;
        };
        tests::LaterActions actions;
        actions.Add(
            [&] {
                static_cast<Multi &>(f->m_dialog.m_control).m_list.SetCheck(0, TRUE);
                f->m_dialog.PostMessage(WM_COMMAND, IDOK);
            },
            [&] {
                return f != nullptr && f->m_dialog.GetSafeHwnd() != nullptr && f->m_dialog.IsWindowVisible() &&
                       static_cast<Multi &>(f->m_dialog.m_control).m_controlsCreated;
            });
        f->OnBrowse();
        m_host.hook = nullptr;
        tests::PumpPosted();
        delete f;
    }
}

TEST_F(OutsideHosts, MultiselectEndsWhileItIsFilled)
{
    for (UINT const when :
         {static_cast<UINT>(LVN_INSERTITEM), static_cast<UINT>(LVN_ITEMCHANGED), static_cast<UINT>(LVN_DELETEALLITEMS)})
    {
        for (bool const byDelete : {false, true})
        {
            tests::GuardedHeap heap;
            auto * m = new Multi;
            m->SetTheMap(Map{{1, L"one"}, {2, L"two"}, {3, L"three"}});
            ASSERT_TRUE(m->Create(L"", WS_CHILD | WS_VISIBLE, CRect(20, 60, 220, 244), m_host, 11));
            m->SetSelection(Ids{2});
            bool done = false;
            m->onNotify = [&](UINT code) {
                if (code == when && !done)
                {
                    done = true;
                    m->DestroyWindow();
                    if (byDelete)
                    {
                        delete m;
                        m = nullptr;
                    }
                }
            };
            m->RefreshContent();
            if (m != nullptr)
            {
                m->onNotify = nullptr;
                m->OnSelectAll();
                EXPECT_EQ(m->TheMap().size(), 3u);
            }
            delete m;
        }
    }
}

class ButtonDialog : public CDialogEx
{
public:
    explicit ButtonDialog(CWnd * parent)
    {
        m_template.Add(L"Button", L"OK", IDOK, CRect(10, 10, 50, 24), WS_TABSTOP | BS_DEFPUSHBUTTON);
        m_template.Add(L"Button", L"Other", 50, CRect(10, 30, 50, 44), WS_TABSTOP);
        m_template.Add(L"Button", L"Own", 51, CRect(10, 50, 50, 64), WS_TABSTOP);
        CreateIndirect(m_template.Get(), parent);
        m_ok.SubclassDlgItem(IDOK, this);
        m_own.SubclassDlgItem(51, this);
    }
    CColorButton m_ok, m_own;
    int m_oks = 0;

protected:
    void OnOK() override { ++m_oks; }

private:
    tests::DialogTemplate m_template{L"Buttons"};
};

TEST_F(OutsideHosts, ColourButtonsStayOwnerDrawnInADialog)
{
    ButtonDialog dialog(m_host);
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(tests::BringToFront(dialog));
    for (int i = 0; i < 4; ++i)
    {
        HWND const focus = ::GetFocus();
        tests::Key(VK_TAB);
        ASSERT_TRUE(tests::PumpUntil([&] { return ::GetFocus() != focus; }, std::chrono::seconds(20)));
        EXPECT_EQ(dialog.m_ok.GetStyle() & 0xF, 11u);
        EXPECT_EQ(dialog.m_own.GetStyle() & 0xF, 11u);
    }
    ::SetFocus(dialog.GetDlgItem(50)->m_hWnd);
    dialog.m_own.SetFocus();
    tests::Key(VK_SPACE);
    tests::PumpPosted();
    ::SetFocus(dialog.m_ok.m_hWnd);
    tests::Key(VK_SPACE);
    EXPECT_TRUE(tests::PumpUntil([&] { return dialog.m_oks == 1; }, std::chrono::seconds(20)));
    dialog.DestroyWindow();
}

TEST_F(OutsideHosts, ColourButtonEndsInItsClick)
{
    auto * b = new CColorButton;
    ASSERT_TRUE(b->Create(L"x", WS_CHILD | WS_VISIBLE, CRect(20, 20, 120, 60), m_host, 7));
    m_host.hook = [&](UINT message, WPARAM wParam, LPARAM, LRESULT &) {
        if (message == WM_COMMAND && LOWORD(wParam) == 7 && b != nullptr)
        {
            delete b;
            b = nullptr;
        }
        return false;
    };
    ASSERT_TRUE(tests::BringToFront(m_host));
    tests::Click(tests::Centre(*b));
    EXPECT_TRUE(tests::PumpUntil([&] { return b == nullptr; }, std::chrono::seconds(20)));
    tests::PumpFor(std::chrono::milliseconds(50));
    m_host.hook = nullptr;
    delete b;
}

class Slider : public CLevelSliderCtrl
{
};

TEST_F(OutsideHosts, SliderEndsWhileItIsDragged)
{
    auto * s = new Slider;
    ASSERT_TRUE(s->Create(WS_CHILD | WS_VISIBLE | TBS_HORZ, CRect(10, 10, 210, 50), m_host, 5));
    s->SetRange(0, 100);
    m_host.hook = [&](UINT message, WPARAM, LPARAM, LRESULT &) {
        if (message == WM_HSCROLL && s != nullptr && s->GetPos() > 20)
        {
            delete s;
            s = nullptr;
        }
        return false;
    };
    ASSERT_TRUE(tests::BringToFront(m_host));
    CRect thumb;
    s->GetThumbRect(thumb);
    CPoint const from = tests::ClientPoint(*s, thumb.CenterPoint());
    tests::Drag(from, from + CPoint(150, 0));
    EXPECT_TRUE(tests::PumpUntil([&] { return s == nullptr; }, std::chrono::seconds(20)));
    m_host.hook = nullptr;
    delete s;
}
} // namespace
} // namespace outside::controls
