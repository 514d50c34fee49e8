// The id-name multiselect: control, list and dialog.

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "controls_ControlTest.h"
#include "controls_MultiselectTest.h"
#include "GdiHandleCount.h"
#include "GuardedHeap.h"
#include "Input.h"
#include "Pump.h"

namespace
{
using Ids = std::set<int>;
using Map = std::map<int, CString>;
using Texts = std::vector<CString>;
using Numbers = std::vector<int>;
using Events = std::vector<tests::MultiselectParent::Event>;

constexpr int select_all = 32803;
constexpr int select_none = 32804;
constexpr int cancel = 32805;
constexpr int ok = 32806;

Map const letters{{1, L"d"}, {2, L"b"}, {3, L"c"}, {4, L"a"}};

class Multiselect : public testing::Test
{
protected:
    void SetUp() override
    {
        m_multiselect = std::make_unique<tests::TestMultiselect>();
        // As a dialog template makes it; styles of one that is created before it has a window don't last here.
        HWND const plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, 10, 10, 202, 140, m_host.m_hWnd,
                                             reinterpret_cast<HMENU>(5), nullptr, nullptr);
        ASSERT_TRUE(m_multiselect->SubclassWindow(plain));
    }
    void Show(Map const & map, Ids const & selection)
    {
        m_multiselect->SetTheMap(map);
        m_multiselect->SetSelection(selection);
        m_multiselect->RedrawWindow();
        if (m_multiselect->m_controlsCreated)
            m_multiselect->RefreshContent();
    }
    tests::MultiselectParts Parts() const { return tests::MultiselectParts(m_multiselect->m_hWnd); }
    Events TakeEvents()
    {
        tests::PumpPosted();
        return std::exchange(m_host.events, {});
    }

    tests::MultiselectParent m_host;
    std::unique_ptr<tests::TestMultiselect> m_multiselect;
};

/// The dialog, with what is done in it given as actions.
class MultiselectDialog : public testing::Test
{
protected:
    INT_PTR Run(CIdNameMultiselectDlg & dialog, std::function<void(tests::MultiselectParts const &)> const & action)
    {
        INT_PTR result = 0;
        tests::DoInDialog(
            dialog, [&] { result = dialog.DoModal(); }, action);
        return result;
    }
    tests::ScopedWindow m_owner;
};
} // namespace

TEST(MultiselectWithoutAWindow, ReadsAnEmptySelectionBackFromAnEmptyMap)
{
    CIdNameMultiselectCtrl control;
    control.SetSelection(3);
    control.RetrieveSelection();
    EXPECT_TRUE(control.SelectionRetrieved());
    EXPECT_TRUE(control.TheSelection().empty());
}

TEST_F(Multiselect, HasTheDefaultsAndHandlersOfItsKind)
{
    tests::TestMultiselect fresh;
    EXPECT_TRUE(fresh.IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_STREQ(fresh.GetRuntimeClass()->m_lpszClassName, "CIdNameMultiselectCtrl");
    EXPECT_STREQ(RUNTIME_CLASS(CIdNameMultiselectListCtlr)->m_lpszClassName, "CIdNameMultiselectListCtlr");
    EXPECT_STREQ(RUNTIME_CLASS(CIdNameMultiselectDlg)->m_lpszClassName, "CIdNameMultiselectDlg");
    EXPECT_TRUE(fresh.TheMap().empty());
    EXPECT_TRUE(fresh.TheSelection().empty());
    EXPECT_FALSE(fresh.SelectionRetrieved());
    EXPECT_FALSE(fresh.m_okCancel);
    EXPECT_TRUE(fresh.m_grouped);
    EXPECT_FALSE(fresh.m_sorted);
    EXPECT_FALSE(fresh.m_showIds);
    EXPECT_TRUE(fresh.m_emptyMapMessage.IsEmpty());
    EXPECT_FALSE(fresh.m_controlsCreated);

    AFX_MSGMAP_ENTRY const * entry = tests::TestMultiselect::GetThisMessageMap()->lpEntries;
    EXPECT_EQ((entry++)->nMessage, static_cast<UINT>(WM_SIZE));
    EXPECT_EQ((entry++)->nMessage, static_cast<UINT>(WM_DESTROY));
    for (UINT const id : {32803u, 32804u, 32805u, 32806u})
    {
        EXPECT_EQ(entry->nMessage, static_cast<UINT>(WM_COMMAND));
        EXPECT_EQ((entry++)->nID, id);
    }
    EXPECT_EQ((entry++)->nMessage, 32802u);
    EXPECT_EQ(entry->nMessage, 0u);
}

TEST_F(Multiselect, IsAnOwnerDrawnButtonWithAStaticEdge)
{
    EXPECT_EQ(m_multiselect->GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_OWNERDRAW));
    EXPECT_NE(m_multiselect->GetExStyle() & WS_EX_STATICEDGE, 0u);
}

TEST_F(Multiselect, MakesItsPartsAtTheFirstPaintOrSize)
{
    HWND const plain =
        ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 160, 120, 90, m_host.m_hWnd, nullptr, nullptr, nullptr);
    tests::TestMultiselect bound;
    bound.SubclassWindow(plain);
    EXPECT_FALSE(bound.m_controlsCreated) << "neither painted nor sized";
    bound.MoveWindow(0, 160, 130, 90);
    EXPECT_TRUE(bound.m_controlsCreated);
    bound.DestroyWindow();
    bound.SubclassWindow(::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, 0, 160, 120, 90, m_host.m_hWnd,
                                           nullptr, nullptr, nullptr));
    EXPECT_FALSE(bound.m_controlsCreated);
    bound.RedrawWindow();
    EXPECT_TRUE(bound.m_controlsCreated);
    bound.DestroyWindow();
    m_multiselect->RedrawWindow();
    EXPECT_TRUE(m_multiselect->m_controlsCreated);
    EXPECT_EQ(m_multiselect->m_list.GetStyle() & 0x50004003u, 0x50004003u);
    EXPECT_EQ(m_multiselect->m_list.GetExtendedStyle() & 0x144u, 0x144u);
    EXPECT_EQ(m_multiselect->m_list.GetDlgCtrlID(), 32802);
    HWND const button = Parts().Part(select_all);
    EXPECT_EQ(::GetWindowLongW(button, GWL_STYLE) & 0x50000040, 0x50000040);
    EXPECT_NE(::SendMessageW(button, BM_GETIMAGE, IMAGE_ICON, 0), 0);
    wchar_t text[30] = {};
    ::GetWindowTextW(button, text, 30);
    EXPECT_STREQ(text, L"Alle w\u00e4hlen");
    ::GetWindowTextW(Parts().Part(select_none), text, 30);
    EXPECT_STREQ(text, L"Alle abw\u00e4hlen");
    EXPECT_FALSE(::GetWindowLongW(Parts().Part(ok), GWL_STYLE) & WS_VISIBLE);
    EXPECT_FALSE(::GetWindowLongW(Parts().Part(cancel), GWL_STYLE) & WS_VISIBLE);
    EXPECT_EQ(m_multiselect->m_toolTip.GetToolCount(), 4);
}

TEST_F(Multiselect, SizesItsPartsOnePixelWithinTheClientArea)
{
    m_multiselect->MoveWindow(0, 0, 122, 92); // 120 by 90 within the static edge
    CRect client;
    m_multiselect->GetClientRect(&client);
    ASSERT_EQ(client.Size(), CSize(120, 90)) << client.Width() << " by " << client.Height();
    EXPECT_EQ(Parts().Place(32802), CRect(1, 1, 119, 67));
    EXPECT_EQ(Parts().Place(select_all), CRect(1, 68, 59, 89));
    EXPECT_EQ(Parts().Place(select_none), CRect(59, 68, 119, 89));
    m_multiselect->EnableOkCancel();
    m_multiselect->MoveWindow(0, 0, 123, 92);
    EXPECT_EQ(Parts().Place(select_all), CRect(1, 68, 39, 89));
    EXPECT_EQ(Parts().Place(select_none), CRect(39, 68, 82, 89));
    EXPECT_EQ(Parts().Place(cancel), CRect(82, 68, 101, 89));
    EXPECT_EQ(Parts().Place(ok), CRect(101, 68, 120, 89));
    EXPECT_TRUE(::IsWindowVisible(Parts().Part(ok)));
}

TEST_F(Multiselect, AnEmptyMapShowsOneRowWhoseTickIsNoSelection)
{
    Show({}, {7});
    ASSERT_EQ(Parts().Rows(), 1);
    EXPECT_EQ(Parts().Id(0), -1);
    EXPECT_EQ(Parts().Text(0), L"(keine Eintr\u00e4ge)");
    TakeEvents();
    Parts().PressAt(Parts().RowRect(0, LVIR_LABEL).CenterPoint());
    EXPECT_TRUE(Parts().IsTicked(0));
    EXPECT_EQ(TakeEvents(), (Events{{6, -1}}));
    m_multiselect->RetrieveSelection();
    EXPECT_TRUE(m_multiselect->TheSelection().empty());
    m_multiselect->SetEmptyMapMessage(L"nothing");
    m_multiselect->RefreshContent();
    EXPECT_EQ(Parts().Texts(), (Texts{L"nothing"}));
}

TEST_F(Multiselect, AllRowsTickedAndOkGiveAllIdsAndMinusOne)
{
    m_multiselect->EnableOkCancel();
    Show(letters, {1});
    for (int row = 0; row < 4; ++row)
        Parts().Tick(row, true);
    Parts().Command(ok);
    EXPECT_EQ(m_multiselect->TheSelection(), (Ids{-1, 1, 2, 3, 4}));
    EXPECT_TRUE(m_multiselect->SelectionRetrieved());
    EXPECT_EQ(TakeEvents(), (Events{{1, 0}}));
    Parts().Tick(1, false);
    int const unticked = Parts().Id(1);
    Parts().Command(ok);
    Ids expected{1, 2, 3, 4};
    expected.erase(unticked);
    EXPECT_EQ(m_multiselect->TheSelection(), expected);
}

TEST_F(Multiselect, CancelTellsAndLeavesTheSelection)
{
    m_multiselect->EnableOkCancel();
    Show(letters, {1});
    Parts().Tick(3, true);
    Parts().Command(cancel);
    EXPECT_EQ(TakeEvents(), (Events{{2, 0}}));
    EXPECT_EQ(m_multiselect->TheSelection(), (Ids{1}));
    EXPECT_FALSE(m_multiselect->SelectionRetrieved());
}

TEST_F(Multiselect, SelectionOfAllTicksAllRowsInMapOrder)
{
    Show(letters, {3});
    EXPECT_EQ(Parts().Texts(), (Texts{L"c", L"d", L"b", L"a"})) << "grouped";
    m_multiselect->SetSelectionAll();
    EXPECT_EQ(m_multiselect->TheSelection(), (Ids{-1}));
    m_multiselect->RefreshContent();
    EXPECT_EQ(Parts().Texts(), (Texts{L"d", L"b", L"c", L"a"}));
    EXPECT_EQ(Parts().Ticked(), (Numbers{1, 2, 3, 4}));
    m_multiselect->SetSelectionNone();
    EXPECT_TRUE(m_multiselect->TheSelection().empty());
    EXPECT_EQ(Parts().Ticked().size(), 4u) << "setters don't touch the list";
    m_multiselect->RefreshSelection();
    EXPECT_TRUE(Parts().Ticked().empty());
}

TEST_F(Multiselect, GroupsAreSortedEachForItself)
{
    m_multiselect->SortAlphabetically(true);
    Show(letters, {1, 3});
    EXPECT_EQ(Parts().Texts(), (Texts{L"c", L"d", L"a", L"b"}));
    m_multiselect->ShowGroupedSelection(false);
    m_multiselect->RefreshContent();
    EXPECT_EQ(Parts().Texts(), (Texts{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(Parts().Ticked(), (Numbers{3, 1}));
    m_multiselect->ItemEintragen(9, L"bb", 0);
    EXPECT_EQ(Parts().Texts(), (Texts{L"a", L"b", L"bb", L"c", L"d"}));
}

TEST_F(Multiselect, ShownIdsKeepTheOrderOfIds)
{
    m_multiselect->ShowIds(true);
    m_multiselect->SortAlphabetically(true);
    Show(letters, {});
    EXPECT_EQ(Parts().Texts(), (Texts{L"1: d", L"2: b", L"3: c", L"4: a"}));
}

TEST_F(Multiselect, AddedItemsKeepTheNameThatIsThere)
{
    m_multiselect->AddItem(3, L"three");
    m_multiselect->AddItem(3, L"drei");
    EXPECT_EQ(m_multiselect->GetName(3), L"three");
    EXPECT_EQ(m_multiselect->GetName(4), L"");
    EXPECT_EQ(&m_multiselect->GetName(4), &m_multiselect->GetName(5)) << "one empty text for all";
    m_multiselect->ResetTheMap();
    EXPECT_TRUE(m_multiselect->TheMap().empty());
    m_multiselect->SetSelection(8);
    EXPECT_EQ(m_multiselect->TheSelection(), (Ids{8}));
}

TEST_F(Multiselect, TheButtonsForAllAndNoneActOnTheSelectionAtOnce)
{
    Show(letters, {2});
    Parts().Command(select_all);
    EXPECT_EQ(m_multiselect->TheSelection(), (Ids{-1, 1, 2, 3, 4}));
    EXPECT_EQ(Parts().Ticked().size(), 4u);
    EXPECT_FALSE(m_multiselect->SelectionRetrieved());
    Parts().Command(select_none);
    EXPECT_TRUE(m_multiselect->TheSelection().empty());
    EXPECT_TRUE(Parts().Ticked().empty());
    EXPECT_TRUE(TakeEvents().empty());
}

TEST_F(Multiselect, APressOnTheTextTicksAndOneBesideAllRowsDoesNothing)
{
    Show(letters, {});
    TakeEvents();
    Parts().PressAt(Parts().RowRect(1, LVIR_LABEL).CenterPoint());
    EXPECT_EQ(Parts().Ticked(), (Numbers{2}));
    EXPECT_EQ(TakeEvents(), (Events{{6, 2}}));
    Parts().PressAt(Parts().RowRect(1, LVIR_LABEL).CenterPoint());
    EXPECT_TRUE(Parts().Ticked().empty());
    EXPECT_EQ(TakeEvents(), (Events{{6, 2}}));
    CRect const last = Parts().RowRect(3, LVIR_BOUNDS);
    Parts().PressAt(CPoint(last.left + 5, last.bottom + 10));
    EXPECT_TRUE(TakeEvents().empty());
    EXPECT_TRUE(Parts().Ticked().empty());
}

TEST_F(Multiselect, AClickOnTheCheckBoxTicksOnce)
{
    Show(letters, {});
    tests::BringToFront(m_host.m_hWnd);
    TakeEvents();
    CRect const row = Parts().RowRect(2, LVIR_BOUNDS);
    CRect const label = Parts().RowRect(2, LVIR_LABEL);
    CPoint const box(row.left + (label.left - row.left) / 2, row.CenterPoint().y);
    tests::Click(tests::ClientPoint(Parts().Part(32802), box));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_host.events.empty(); }));
    EXPECT_EQ(Parts().Ticked(), (Numbers{3}));
    EXPECT_EQ(TakeEvents(), (Events{{6, 3}}));
}

TEST_F(Multiselect, TheListMayEndInWhateverAPressAsksIt)
{
    for (UINT const question : {LVM_HITTEST, LVM_GETITEMW, LVM_GETITEMSTATE, LVM_SETITEMSTATE})
    {
        SCOPED_TRACE(testing::Message() << "question " << question - LVM_FIRST);
        tests::GuardedHeap heap;
        auto list = std::make_unique<controls::Watched<CIdNameMultiselectListCtlr>>();
        ASSERT_TRUE(list->Create(WS_CHILD | WS_VISIBLE | LVS_LIST, CRect(0, 0, 200, 100), m_host, 9));
        list->InsertItem(LVIF_TEXT | LVIF_PARAM, 0, L"some text", 0, 0, 0, 1);
        CRect label;
        list->GetItemRect(0, &label, LVIR_LABEL);
        list->On(question, [&] { list.reset(); });
        ::SendMessageW(list->m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON,
                       MAKELPARAM(label.CenterPoint().x, label.CenterPoint().y));
        EXPECT_EQ(list, nullptr);
    }
}

TEST_F(Multiselect, AListThatIsBeingMadeHasNoRowsYet)
{
    // Told of the windows that the list makes for itself.
    class Curious : public CIdNameMultiselectCtrl
    {
    public:
        int m_told = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE && m_list.m_hWnd != nullptr)
            {
                ++m_told;
                RefreshContent();
            }
            return CIdNameMultiselectCtrl::WindowProc(message, wParam, lParam);
        }
    };
    Curious control;
    tests::WindowCloser const closer(control);
    control.SetTheMap(letters);
    control.SetSelection(3);
    ASSERT_TRUE(control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 200, 150), &m_host, 6));
    control.RedrawWindow();
    EXPECT_GT(control.m_told, 0);
    EXPECT_EQ(control.TheSelection(), (Ids{3}));
    EXPECT_EQ(tests::MultiselectParts(control.m_hWnd).Rows(), 4);
    EXPECT_EQ(tests::MultiselectParts(control.m_hWnd).Ticked(), (Numbers{3}));
}

TEST_F(Multiselect, PartsThatEndAreNotMadeAgain)
{
    class Sized : public CIdNameMultiselectCtrl
    {
    public:
        int m_ended = 0;
        int m_madeAgain = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY)
            {
                ++m_ended;
                SetWindowPos(nullptr, 0, 0, 100 + m_ended, 100, SWP_NOZORDER);
            }
            m_madeAgain += message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE && m_ended > 0;
            return CIdNameMultiselectCtrl::WindowProc(message, wParam, lParam);
        }
    };
    Sized control;
    ASSERT_TRUE(control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 200, 150), &m_host, 6));
    control.RedrawWindow();
    control.DestroyWindow();
    EXPECT_GE(control.m_ended, 5);
    EXPECT_EQ(control.m_madeAgain, 0);
}

TEST_F(Multiselect, DataOutlivesTheWindowAndTheControlCanBeShownAgain)
{
    Show(letters, {2});
    for (int i = 0; i < 3; ++i)
    {
        m_multiselect->DestroyWindow();
        EXPECT_FALSE(m_multiselect->m_controlsCreated);
        EXPECT_EQ(m_multiselect->m_toolTip.m_hWnd, nullptr);
        m_multiselect->RefreshContent();
        EXPECT_EQ(m_multiselect->TheSelection(), (Ids{2}));
        ASSERT_TRUE(m_multiselect->Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 150), m_host, 5));
        m_multiselect->RedrawWindow();
        EXPECT_EQ(Parts().Ticked(), (Numbers{2}));
    }
}

TEST_F(Multiselect, TenThousandIdsAreReadBackExactly)
{
    std::mt19937 random(3);
    Map map;
    while (map.size() < 10000)
    {
        int const id = static_cast<int>(random() % 1000000);
        map[id].Format(L"name %d", static_cast<int>(random() % 100));
    }
    Ids selection;
    for (std::pair<int const, CString> const & item : map)
    {
        if (random() % 2 == 0)
            selection.insert(item.first);
    }
    m_multiselect->SortAlphabetically(true);
    Show(map, selection);
    m_multiselect->SetSelectionNone();
    m_multiselect->RetrieveSelection();
    EXPECT_EQ(m_multiselect->TheSelection(), selection);
    Parts().Command(select_all);
    m_multiselect->RetrieveSelection();
    EXPECT_EQ(m_multiselect->TheSelection().size(), map.size() + 1);
}

TEST_F(Multiselect, LeavesNoGdiObjectsAndNoWindows)
{
    auto const open = [&] {
        tests::TestMultiselect control;
        control.EnableOkCancel();
        control.SetTheMap(letters);
        control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 150), m_host, 9);
        control.RedrawWindow();
        control.RedrawWindow();
    };
    EXPECT_EQ(tests::GdiGrowth(open, 30, 3), 0);
}

TEST_F(MultiselectDialog, OpensWhereItIsToldWithOkAndCancel)
{
    CIdNameMultiselectDlg dialog(&m_owner);
    EXPECT_TRUE(dialog.m_placement.IsRectNull());
    dialog.m_placement = CRect(150, 160, 400, 400);
    dialog.m_control.SetTheMap(letters);
    HINSTANCE const resources = AfxGetResourceHandle();
    EXPECT_EQ(Run(dialog,
                  [&](tests::MultiselectParts const & parts) {
                      CRect rect;
                      dialog.GetWindowRect(&rect);
                      EXPECT_EQ(rect, CRect(150, 160, 400, 400));
                      CRect client;
                      dialog.GetClientRect(&client);
                      CRect control;
                      dialog.m_control.GetWindowRect(&control);
                      dialog.ScreenToClient(&control);
                      EXPECT_EQ(control, client);
                      EXPECT_TRUE(::IsWindowVisible(parts.Part(ok)));
                      EXPECT_NE(AfxGetResourceHandle(), resources);
                      parts.Command(cancel);
                  }),
              IDCANCEL);
    EXPECT_EQ(AfxGetResourceHandle(), resources);
}

TEST_F(MultiselectDialog, OkReadsTheTicksAndASecondReadIsSkipped)
{
    CIdNameMultiselectDlg dialog(&m_owner);
    dialog.m_placement = CRect(150, 160, 400, 400);
    dialog.m_control.SetTheMap(letters);
    EXPECT_EQ(Run(dialog,
                  [&](tests::MultiselectParts const & parts) {
                      parts.Tick(0, true);
                      parts.Command(ok);
                      parts.Tick(1, true); // behind the first read
                  }),
              IDOK);
    EXPECT_EQ(dialog.m_control.TheSelection(), (Ids{1}));
    // And once more, with the Return key instead of the button.
    EXPECT_EQ(Run(dialog,
                  [&](tests::MultiselectParts const & parts) {
                      EXPECT_EQ(parts.Ticked(), (Numbers{1}));
                      parts.Tick(1, true);
                      dialog.PostMessage(WM_COMMAND, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.m_control.TheSelection(), (Ids{1, 2}));
}

TEST_F(MultiselectDialog, BelowALeastSizeTheControlStaysAsItIs)
{
    CIdNameMultiselectDlg dialog(&m_owner);
    dialog.m_placement = CRect(150, 160, 400, 400);
    Run(dialog, [&](tests::MultiselectParts const &) {
        auto const sizeOf = [](CWnd & window) {
            CRect rect;
            window.GetWindowRect(&rect);
            return rect.Size();
        };
        CRect frame(0, 0, 0, 0);
        ::AdjustWindowRectEx(&frame, dialog.GetStyle(), FALSE, dialog.GetExStyle());
        auto const setClient = [&](int width, int height) {
            dialog.SetWindowPos(nullptr, 0, 0, width + frame.Width(), height + frame.Height(),
                                SWP_NOMOVE | SWP_NOZORDER);
            CRect client;
            dialog.GetClientRect(&client);
            return client.Size();
        };
        CSize const before = sizeOf(dialog.m_control);
        CSize const narrow = setClient(99, 200);
        if (narrow.cx < 100)
        {
            EXPECT_EQ(sizeOf(dialog.m_control), before);
        }
        CSize const low = setClient(200, 69);
        EXPECT_EQ(low, CSize(200, 69));
        EXPECT_EQ(sizeOf(dialog.m_control), narrow.cx < 100 ? before : CSize(narrow));
        EXPECT_EQ(setClient(200, 70), CSize(200, 70));
        EXPECT_EQ(sizeOf(dialog.m_control), CSize(200, 70));
        dialog.PostMessage(WM_COMMAND, IDCANCEL);
    });
}
