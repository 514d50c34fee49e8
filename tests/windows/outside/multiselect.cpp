// The id-name multiselect: list, composite control, dialog.

#include <algorithm>
#include <type_traits>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{

class RowList : public CIdNameMultiselectListCtlr
{
public:
    using CIdNameMultiselectListCtlr::GetThisMessageMap;
};

class Multi : public CIdNameMultiselectCtrl
{
public:
    using CIdNameMultiselectCtrl::GetThisMessageMap;
    using CIdNameMultiselectCtrl::ItemEintragen;
    using CIdNameMultiselectCtrl::m_cancel;
    using CIdNameMultiselectCtrl::m_controlsCreated;
    using CIdNameMultiselectCtrl::m_emptyMapMessage;
    using CIdNameMultiselectCtrl::m_grouped;
    using CIdNameMultiselectCtrl::m_list;
    using CIdNameMultiselectCtrl::m_ok;
    using CIdNameMultiselectCtrl::m_okCancel;
    using CIdNameMultiselectCtrl::m_selectAll;
    using CIdNameMultiselectCtrl::m_selectionRetrieved;
    using CIdNameMultiselectCtrl::m_selectNone;
    using CIdNameMultiselectCtrl::m_showIds;
    using CIdNameMultiselectCtrl::m_sorted;
    using CIdNameMultiselectCtrl::m_theMap;
    using CIdNameMultiselectCtrl::m_theSelection;
    using CIdNameMultiselectCtrl::m_toolTip;
    using CIdNameMultiselectCtrl::OnCancelButton;
    using CIdNameMultiselectCtrl::OnListCtrlMessageMessage;
    using CIdNameMultiselectCtrl::OnOkButton;
    using CIdNameMultiselectCtrl::OnSelectAll;
    using CIdNameMultiselectCtrl::OnSelectNone;
    using CIdNameMultiselectCtrl::SendMessageToParent;
};

using Map = std::map<int, CString>;
using Ids = std::set<int>;

CString ToolkitString(UINT id)
{
    HINSTANCE const former = ::AfxGetResourceHandle();
    ::AfxSetResourceHandle(Toolkit());
    CString text;
    text.LoadString(id);
    ::AfxSetResourceHandle(former);
    return text;
}

class OutsideMultiselect : public testing::Test
{
protected:
    void Make(CRect const & rect = CRect(10, 10, 212, 212), DWORD style = WS_VISIBLE)
    {
        ASSERT_TRUE(m_multiselect.Create(L"Button1", WS_CHILD | style, rect, m_host, 1016));
    }
    void TearDown() override
    {
        m_host.hook = nullptr;
        if (m_multiselect.GetSafeHwnd() != nullptr)
            m_multiselect.DestroyWindow();
    }
    std::wstring Rows()
    {
        std::wstring all;
        for (int i = 0; i < m_multiselect.m_list.GetItemCount(); ++i)
            all += W(m_multiselect.m_list.GetItemText(i, 0)) + (m_multiselect.m_list.GetCheck(i) == 1 ? L"+ " : L" ");
        return all;
    }
    CRect PlaceOf(CWnd & window)
    {
        CRect rect;
        window.GetWindowRect(rect);
        m_multiselect.ScreenToClient(rect);
        return rect;
    }
    void Fill() { m_multiselect.SetTheMap(Map{{1, L"d"}, {2, L"b"}, {3, L"c"}, {4, L"a"}}); }
    std::vector<std::pair<WPARAM, LPARAM>> Events()
    {
        tests::PumpPosted();
        std::vector<std::pair<WPARAM, LPARAM>> events;
        for (Host::Seen const & each : m_host.Of(WM_IDNAME_MULTISELECT_EVENT))
            events.push_back({each.wParam, each.lParam});
        m_host.seen.clear();
        return events;
    }
    using EventList = std::vector<std::pair<WPARAM, LPARAM>>;
    Host m_host;
    Multi m_multiselect;
};

TEST_F(OutsideMultiselect, ClassesMapsAndDefaults)
{
    EXPECT_STREQ(RUNTIME_CLASS(CIdNameMultiselectCtrl)->m_lpszClassName, "CIdNameMultiselectCtrl");
    EXPECT_EQ(CIdNameMultiselectCtrl::classCIdNameMultiselectCtrl.m_pfnGetBaseClass(), RUNTIME_CLASS(CButton));
    EXPECT_STREQ(RUNTIME_CLASS(CIdNameMultiselectListCtlr)->m_lpszClassName, "CIdNameMultiselectListCtlr");
    EXPECT_EQ(CIdNameMultiselectListCtlr::classCIdNameMultiselectListCtlr.m_pfnGetBaseClass(),
              RUNTIME_CLASS(CListCtrl));
    EXPECT_STREQ(RUNTIME_CLASS(CIdNameMultiselectDlg)->m_lpszClassName, "CIdNameMultiselectDlg");
    EXPECT_EQ(CIdNameMultiselectDlg::classCIdNameMultiselectDlg.m_pfnGetBaseClass(), RUNTIME_CLASS(CDialogEx));
    EXPECT_EQ(WM_IDNAME_MULTISELECT_EVENT, ::RegisterWindowMessageW(L"WM_IDNAME_MULTISELECT_EVENT"));
    EXPECT_TRUE(m_multiselect.m_theMap.empty());
    EXPECT_TRUE(m_multiselect.m_theSelection.empty());
    EXPECT_FALSE(m_multiselect.m_selectionRetrieved);
    EXPECT_FALSE(m_multiselect.m_okCancel);
    EXPECT_TRUE(m_multiselect.m_grouped);
    EXPECT_FALSE(m_multiselect.m_sorted);
    EXPECT_FALSE(m_multiselect.m_showIds);
    EXPECT_TRUE(m_multiselect.m_emptyMapMessage.IsEmpty());
    EXPECT_FALSE(m_multiselect.m_controlsCreated);
    void const * const order[] = {&m_multiselect.m_theMap,
                                  &m_multiselect.m_theSelection,
                                  &m_multiselect.m_selectionRetrieved,
                                  &m_multiselect.m_okCancel,
                                  &m_multiselect.m_grouped,
                                  &m_multiselect.m_sorted,
                                  &m_multiselect.m_showIds,
                                  &m_multiselect.m_emptyMapMessage,
                                  &m_multiselect.m_controlsCreated,
                                  &m_multiselect.m_list,
                                  &m_multiselect.m_selectAll,
                                  &m_multiselect.m_selectNone,
                                  &m_multiselect.m_cancel,
                                  &m_multiselect.m_ok,
                                  &m_multiselect.m_toolTip};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]) << i;
    std::vector<MapEntry> const entries = EntriesOf(Multi::GetThisMessageMap());
    EXPECT_TRUE(Handles(entries, WM_SIZE));
    EXPECT_TRUE(Handles(entries, WM_DESTROY));
    EXPECT_TRUE(Handles(entries, 32802));
    for (UINT const id : {32803u, 32804u, 32805u, 32806u})
    {
        EXPECT_TRUE(std::any_of(entries.begin(), entries.end(), [&](auto const & e) {
            return e.message == WM_COMMAND && e.first == id;
        })) << id;
    }
    EXPECT_EQ(entries.size(), 7u);
    std::vector<MapEntry> const rows = EntriesOf(RowList::GetThisMessageMap());
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].message, static_cast<UINT>(WM_LBUTTONDOWN));
}

TEST_F(OutsideMultiselect, DataWithoutAWindow)
{
    m_multiselect.AddItem(3, L"three");
    m_multiselect.AddItem(3, L"other");
    m_multiselect.AddItem(1, L"one");
    EXPECT_EQ(m_multiselect.TheMap().size(), 2u);
    EXPECT_EQ(W(m_multiselect.GetName(3)), L"three");
    EXPECT_EQ(W(m_multiselect.GetName(99)), L"");
    EXPECT_EQ(&m_multiselect.GetName(99), &m_multiselect.GetName(98));
    Multi other;
    EXPECT_EQ(&other.GetName(5), &m_multiselect.GetName(98));
    m_multiselect.SetTheMap(Map{{7, L"x"}});
    EXPECT_EQ(m_multiselect.TheMap().size(), 1u);
    m_multiselect.ResetTheMap();
    EXPECT_TRUE(m_multiselect.TheMap().empty());
    m_multiselect.SetSelection(Ids{1, 2});
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{1, 2}));
    m_multiselect.SetSelection(5);
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{5}));
    m_multiselect.SetSelectionAll();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{-1}));
    m_multiselect.SetSelectionNone();
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
    m_multiselect.ShowIds(true);
    m_multiselect.ShowGroupedSelection(false);
    m_multiselect.SortAlphabetically(true);
    m_multiselect.EnableOkCancel();
    m_multiselect.SetEmptyMapMessage(L"nothing");
    EXPECT_TRUE(m_multiselect.m_showIds);
    EXPECT_FALSE(m_multiselect.m_grouped);
    EXPECT_TRUE(m_multiselect.m_sorted);
    EXPECT_TRUE(m_multiselect.m_okCancel);
    EXPECT_EQ(W(m_multiselect.m_emptyMapMessage), L"nothing");
    EXPECT_FALSE(m_multiselect.SelectionRetrieved());
    m_multiselect.RefreshContent();
    m_multiselect.RefreshSelection();
}

TEST_F(OutsideMultiselect, RefreshContentWithoutAWindowDoesNothingAtAll)
{
    m_multiselect.m_selectionRetrieved = true;
    m_multiselect.RefreshContent();
    EXPECT_TRUE(m_multiselect.SelectionRetrieved());
}

TEST_F(OutsideMultiselect, RetrieveSelectionOfAnEmptyMapWithoutAWindow)
{
    m_multiselect.SetSelection(3);
    m_multiselect.RetrieveSelection();
    EXPECT_TRUE(m_multiselect.SelectionRetrieved());
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
}

TEST_F(OutsideMultiselect, RetrieveSelectionWithoutAWindowDropsWhatWasSelected)
{
    Fill();
    m_multiselect.SetSelection(3);
    m_multiselect.RetrieveSelection();
    EXPECT_TRUE(m_multiselect.SelectionRetrieved());
    EXPECT_EQ(m_multiselect.TheSelection().count(3), 0u);
}

TEST_F(OutsideMultiselect, RefreshSelectionWithoutAWindowClearsTheFlag)
{
    m_multiselect.m_selectionRetrieved = true;
    m_multiselect.RefreshSelection();
    EXPECT_FALSE(m_multiselect.SelectionRetrieved());
    Fill();
    m_multiselect.OnSelectAll();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{-1, 1, 2, 3, 4}));
    m_multiselect.OnSelectNone();
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
}

TEST_F(OutsideMultiselect, WindowAndChildren)
{
    HINSTANCE const resources = ::AfxGetResourceHandle();
    Make();
    EXPECT_EQ(::AfxGetResourceHandle(), resources);
    EXPECT_EQ(m_multiselect.GetStyle() & 0xF, 11u);
    ASSERT_TRUE(m_multiselect.m_controlsCreated);
    CListCtrl & list = m_multiselect.m_list;
    EXPECT_EQ(list.GetDlgCtrlID(), 32802);
    EXPECT_EQ(list.GetStyle() & (WS_CHILD | WS_VISIBLE | LVS_TYPEMASK | LVS_NOCOLUMNHEADER), 0x50004003u);
    EXPECT_EQ(list.GetExtendedStyle() & 0x144u, 0x144u);
    EXPECT_EQ(list.GetParent(), &m_multiselect);
    LVCOLUMNW column = {};
    wchar_t name[100] = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = name;
    column.cchTextMax = 100;
    ASSERT_TRUE(list.GetColumn(0, &column));
    EXPECT_EQ(std::wstring(name), L"Name");
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_LEFT);
    LVCOLUMNW second = {};
    second.mask = LVCF_FMT;
    EXPECT_FALSE(list.GetColumn(1, &second));
    struct Row
    {
        CButton & button;
        int id;
        wchar_t const * text;
        int icon;
        bool visible;
    };
    for (Row const & row : {Row{m_multiselect.m_selectAll, 32803, L"Alle wählen", 126, true},
                            Row{m_multiselect.m_selectNone, 32804, L"Alle abwählen", 127, true},
                            Row{m_multiselect.m_cancel, 32805, L"Abbruch", 129, false},
                            Row{m_multiselect.m_ok, 32806, L"OK", 128, false}})
    {
        EXPECT_EQ(row.button.GetDlgCtrlID(), row.id);
        EXPECT_EQ(TextOf(row.button), row.text);
        EXPECT_EQ((row.button.GetStyle() & WS_VISIBLE) != 0, row.visible) << row.id;
        EXPECT_EQ(row.button.GetStyle() & (WS_CHILD | BS_ICON | 0xF), static_cast<DWORD>(WS_CHILD | BS_ICON)) << row.id;
        EXPECT_NE(row.button.GetIcon(), nullptr) << row.id;
        EXPECT_EQ(row.button.GetParent(), &m_multiselect);
    }
}

TEST_F(OutsideMultiselect, ButtonIconsAreThoseOfTheModule)
{
    Make();
    auto const pixels = [](HICON icon) {
        tests::Canvas canvas(32, 32, RGB(1, 200, 100));
        ::DrawIconEx(canvas.Dc().m_hDC, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL);
        std::vector<COLORREF> all;
        for (int y = 0; y < 32; ++y)
        {
            for (int x = 0; x < 32; ++x)
                all.push_back(canvas.Pixel(x, y));
        }
        return all;
    };
    struct Row
    {
        CButton & button;
        int icon;
    };
    for (Row const & row : {Row{m_multiselect.m_selectAll, 126}, Row{m_multiselect.m_selectNone, 127},
                            Row{m_multiselect.m_cancel, 129}, Row{m_multiselect.m_ok, 128}})
    {
        std::vector<COLORREF> const mine = pixels(row.button.GetIcon());
        auto const big = static_cast<HICON>(::LoadImageW(Toolkit(), MAKEINTRESOURCEW(row.icon), IMAGE_ICON, 32, 32, 0));
        auto const small =
            static_cast<HICON>(::LoadImageW(Toolkit(), MAKEINTRESOURCEW(row.icon), IMAGE_ICON, 16, 16, 0));
        EXPECT_TRUE(mine == pixels(big) || mine == pixels(small)) << row.icon;
        ::DestroyIcon(big);
        ::DestroyIcon(small);
    }
}

/// A screen on which small icons are half as large again.
int WINAPI MetricsOfLargeIcons(int which)
{
    constexpr int large = 24;
    return which == SM_CXSMICON || which == SM_CYSMICON ? large : ::GetSystemMetrics(which);
}

TEST_F(OutsideMultiselect, ButtonIconsAreNoHigherThanTheirButtonsWhereIconsAreLarge)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "GetSystemMetrics", &MetricsOfLargeIcons);
    ASSERT_TRUE(patch.Done());
    m_multiselect.EnableOkCancel();
    Make();
    for (CButton * const button :
         {&m_multiselect.m_selectAll, &m_multiselect.m_selectNone, &m_multiselect.m_cancel, &m_multiselect.m_ok})
    {
        CRect client;
        button->GetClientRect(client);
        ICONINFO info = {};
        ASSERT_TRUE(::GetIconInfo(button->GetIcon(), &info));
        BITMAP picture = {};
        ::GetObjectW(info.hbmMask, sizeof(picture), &picture);
        ::DeleteObject(info.hbmMask);
        ::DeleteObject(info.hbmColor);
        int const frames = 2 * ::GetSystemMetrics(SM_CYEDGE);
        EXPECT_LE(picture.bmHeight, client.Height() - frames);
        EXPECT_LE(picture.bmWidth, client.Width() - frames);
    }
}

TEST_F(OutsideMultiselect, ToolTips)
{
    Make();
    CToolTipCtrl & tip = m_multiselect.m_toolTip;
    ASSERT_NE(tip.GetSafeHwnd(), nullptr);
    EXPECT_EQ(tip.GetToolCount(), 4);
    struct Row
    {
        CWnd & button;
        UINT id;
    };
    for (Row const & row : {Row{m_multiselect.m_selectAll, 9}, Row{m_multiselect.m_selectNone, 10},
                            Row{m_multiselect.m_cancel, 12}, Row{m_multiselect.m_ok, 11}})
    {
        CString text;
        tip.GetText(text, &row.button);
        EXPECT_EQ(W(text), W(ToolkitString(row.id)));
        EXPECT_FALSE(text.IsEmpty());
    }
}

void ExpectGeometry(CRect const & client, bool okCancel, CRect const & list, CRect const & all, CRect const & none,
                    CRect const & cancel, CRect const & ok)
{
    CRect rect = client;
    rect.DeflateRect(1, 1);
    CRect expectedList = rect;
    expectedList.bottom -= 22;
    EXPECT_EQ(list, expectedList);
    CRect strip = rect;
    strip.top = expectedList.bottom + 1;
    int const w = strip.Width() / (okCancel ? 6 : 4);
    EXPECT_EQ(all, CRect(strip.left, strip.top, strip.left + 2 * w, strip.bottom));
    EXPECT_EQ(none, CRect(strip.left + 2 * w, strip.top, okCancel ? strip.right - 2 * w : strip.right, strip.bottom));
    EXPECT_EQ(cancel, CRect(strip.right - 2 * w, strip.top, strip.right - w, strip.bottom));
    EXPECT_EQ(ok, CRect(strip.right - w, strip.top, strip.right, strip.bottom));
}

TEST_F(OutsideMultiselect, Geometry)
{
    Make();
    for (int const width : {202, 203, 207, 300, 151})
    {
        m_multiselect.SetWindowPos(nullptr, 0, 0, width, 180, SWP_NOMOVE | SWP_NOZORDER);
        CRect client;
        m_multiselect.GetClientRect(client);
        ExpectGeometry(client, false, PlaceOf(m_multiselect.m_list), PlaceOf(m_multiselect.m_selectAll),
                       PlaceOf(m_multiselect.m_selectNone), PlaceOf(m_multiselect.m_cancel),
                       PlaceOf(m_multiselect.m_ok));
    }
    m_multiselect.EnableOkCancel();
    EXPECT_EQ(m_multiselect.m_ok.GetStyle() & WS_VISIBLE, 0u);
    for (int const width : {202, 203, 207, 300, 151})
    {
        m_multiselect.SetWindowPos(nullptr, 0, 0, width, 181, SWP_NOMOVE | SWP_NOZORDER);
        CRect client;
        m_multiselect.GetClientRect(client);
        ExpectGeometry(client, true, PlaceOf(m_multiselect.m_list), PlaceOf(m_multiselect.m_selectAll),
                       PlaceOf(m_multiselect.m_selectNone), PlaceOf(m_multiselect.m_cancel),
                       PlaceOf(m_multiselect.m_ok));
        EXPECT_NE(m_multiselect.m_ok.GetStyle() & WS_VISIBLE, 0u);
        EXPECT_NE(m_multiselect.m_cancel.GetStyle() & WS_VISIBLE, 0u);
    }
}

TEST_F(OutsideMultiselect, GeometryAtCreationWithOkAndCancel)
{
    m_multiselect.EnableOkCancel();
    Make(CRect(10, 10, 211, 199));
    CRect client;
    m_multiselect.GetClientRect(client);
    ExpectGeometry(client, true, PlaceOf(m_multiselect.m_list), PlaceOf(m_multiselect.m_selectAll),
                   PlaceOf(m_multiselect.m_selectNone), PlaceOf(m_multiselect.m_cancel), PlaceOf(m_multiselect.m_ok));
    EXPECT_NE(m_multiselect.m_ok.GetStyle() & WS_VISIBLE, 0u);
    EXPECT_EQ(m_multiselect.m_ok.GetStyle() & (WS_CHILD | BS_ICON), static_cast<DWORD>(WS_CHILD | BS_ICON));
}

class EdgedButton : public CButton
{
protected:
    void PreSubclassWindow() override
    {
        CButton::PreSubclassWindow();
        ModifyStyle(0, BS_OWNERDRAW);
        ModifyStyleEx(0, WS_EX_STATICEDGE);
    }
};

TEST_F(OutsideMultiselect, StaticEdgeOfACreatedOne)
{
    // Some platforms drop what is set while the window is being created.
    EdgedButton plain;
    plain.Create(L"x", WS_CHILD, CRect(0, 0, 50, 50), m_host, 3);
    Make();
    EXPECT_EQ(m_multiselect.GetExStyle() & WS_EX_STATICEDGE, plain.GetExStyle() & WS_EX_STATICEDGE);
    plain.DestroyWindow();
}

TEST_F(OutsideMultiselect, StaticEdgeOfASubclassedOne)
{
    ::CreateWindowW(L"BUTTON", L"Button1", WS_CHILD, 10, 10, 200, 200, m_host.m_hWnd, reinterpret_cast<HMENU>(1016),
                    nullptr, nullptr);
    ASSERT_TRUE(m_multiselect.SubclassDlgItem(1016, m_host));
    EXPECT_NE(m_multiselect.GetExStyle() & WS_EX_STATICEDGE, 0u);
}

TEST_F(OutsideMultiselect, SubclassedButtonCreatesAtItsFirstPaint)
{
    ::CreateWindowW(L"BUTTON", L"Button1", WS_CHILD | WS_VISIBLE, 10, 10, 200, 200, m_host.m_hWnd,
                    reinterpret_cast<HMENU>(1016), nullptr, nullptr);
    Fill();
    ASSERT_TRUE(m_multiselect.SubclassDlgItem(1016, m_host));
    EXPECT_EQ(m_multiselect.GetStyle() & 0xF, 11u);
    EXPECT_FALSE(m_multiselect.m_controlsCreated);
    m_multiselect.RefreshContent();
    m_multiselect.Invalidate();
    m_multiselect.UpdateWindow();
    EXPECT_TRUE(m_multiselect.m_controlsCreated);
    EXPECT_EQ(Rows(), L"d b c a ");
    // In the item's rectangle as it is; a size shrinks it by a pixel.
    CRect item;
    m_multiselect.GetClientRect(item);
    EXPECT_EQ(PlaceOf(m_multiselect.m_list), CRect(item.left, item.top, item.right, item.bottom - 22));
    EXPECT_EQ(PlaceOf(m_multiselect.m_selectAll),
              CRect(item.left, item.bottom - 21, item.left + 2 * (item.Width() / 4), item.bottom));
    m_multiselect.SetWindowPos(nullptr, 0, 0, 220, 200, SWP_NOMOVE | SWP_NOZORDER);
    m_multiselect.GetClientRect(item);
    EXPECT_EQ(PlaceOf(m_multiselect.m_list), CRect(1, 1, item.right - 1, item.bottom - 23));
}

TEST_F(OutsideMultiselect, SubclassedButtonCreatesAtItsFirstSize)
{
    ::CreateWindowW(L"BUTTON", L"Button1", WS_CHILD, 10, 10, 200, 200, m_host.m_hWnd, reinterpret_cast<HMENU>(1016),
                    nullptr, nullptr);
    ASSERT_TRUE(m_multiselect.SubclassDlgItem(1016, m_host));
    EXPECT_FALSE(m_multiselect.m_controlsCreated);
    m_multiselect.SetWindowPos(nullptr, 0, 0, 210, 190, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(m_multiselect.m_controlsCreated);
}

TEST_F(OutsideMultiselect, DestroyedDataSurvivesAndItCanBeMadeAgain)
{
    Fill();
    m_multiselect.SetSelection(2);
    Make();
    HWND const list = m_multiselect.m_list.m_hWnd;
    m_multiselect.DestroyWindow();
    EXPECT_FALSE(m_multiselect.m_controlsCreated);
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ(m_multiselect.m_list.GetSafeHwnd(), nullptr);
    EXPECT_EQ(m_multiselect.m_ok.GetSafeHwnd(), nullptr);
    EXPECT_EQ(m_multiselect.TheMap().size(), 4u);
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{2}));
    Make();
    EXPECT_TRUE(m_multiselect.m_controlsCreated);
    EXPECT_EQ(Rows(), L"b+ d c a ");
    EXPECT_EQ(m_multiselect.m_toolTip.GetToolCount(), 4);
}

TEST_F(OutsideMultiselect, OwnEmptyMessageSurvivesTheCreation)
{
    m_multiselect.SetEmptyMapMessage(L"nothing here");
    Make();
    EXPECT_EQ(W(m_multiselect.m_list.GetItemText(0, 0)), L"nothing here");
}

TEST_F(OutsideMultiselect, OrderOfRows)
{
    Fill();
    Make();
    EXPECT_EQ(Rows(), L"d b c a ");
    m_multiselect.SetSelection(Ids{3, 4});
    EXPECT_EQ(Rows(), L"d b c a ");
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"c+ a+ d b ");
    m_multiselect.SortAlphabetically(true);
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"a+ c+ b d ");
    m_multiselect.ShowGroupedSelection(false);
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"a+ b c+ d ");
    m_multiselect.SortAlphabetically(false);
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"d b c+ a+ ");
    m_multiselect.ShowIds(true);
    m_multiselect.SortAlphabetically(true);
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"1: d 2: b 3: c+ 4: a+ ");
    m_multiselect.ShowGroupedSelection(true);
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"3: c+ 4: a+ 1: d 2: b ");
    m_multiselect.SetSelectionAll();
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"1: d+ 2: b+ 3: c+ 4: a+ ");
    m_multiselect.ShowIds(false);
    m_multiselect.SortAlphabetically(false);
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"d+ b+ c+ a+ ");
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(static_cast<int>(m_multiselect.m_list.GetItemData(row)), row + 1);
    // The sentinel beside ids: those are grouped, all are ticked.
    m_multiselect.SetSelection(Ids{-1, 4});
    m_multiselect.RefreshContent();
    EXPECT_EQ(Rows(), L"a+ d+ b+ c+ ");
}

TEST_F(OutsideMultiselect, SortsByCodePointAndKeepsEqualNamesInTurn)
{
    m_multiselect.SortAlphabetically(true);
    m_multiselect.SetTheMap(Map{{1, L"b"}, {2, L"B"}, {3, L"ä"}, {4, L"a"}, {5, L"b"}, {6, L"Z"}, {7, L""}});
    Make();
    EXPECT_EQ(Rows(), L" B Z a b b ä ");
    EXPECT_EQ(static_cast<int>(m_multiselect.m_list.GetItemData(4)), 1);
    EXPECT_EQ(static_cast<int>(m_multiselect.m_list.GetItemData(5)), 5);
}

TEST_F(OutsideMultiselect, NegativeAndLongIdsAndNames)
{
    m_multiselect.SetTheMap(Map{{-20, L"minus"}, {INT_MAX, L"most"}, {INT_MIN, L"least"}, {0, CString(L'n', 1000)}});
    m_multiselect.SetSelection(Ids{-20, INT_MIN});
    Make();
    EXPECT_EQ(static_cast<int>(m_multiselect.m_list.GetItemData(0)), INT_MIN);
    EXPECT_EQ(m_multiselect.m_list.GetCheck(0), 1);
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{INT_MIN, -20}));
    m_multiselect.ShowIds(true);
    m_multiselect.RefreshContent();
    EXPECT_EQ(W(m_multiselect.m_list.GetItemText(0, 0)), L"-2147483648: least");
    EXPECT_EQ(W(m_multiselect.m_list.GetItemText(1, 0)), L"-20: minus");
    EXPECT_EQ(W(m_multiselect.m_list.GetItemText(2, 0)).substr(0, 499), L"0: " + std::wstring(496, L'n'));
    EXPECT_LE(m_multiselect.m_list.GetItemText(2, 0).GetLength(), 499);
    EXPECT_EQ(W(m_multiselect.m_list.GetItemText(3, 0)), L"2147483647: most");
}

TEST_F(OutsideMultiselect, NamesWithFormatCharacters)
{
    m_multiselect.SetTheMap(Map{{1, L"100 %s %d %n"}});
    m_multiselect.ShowIds(true);
    Make();
    EXPECT_EQ(W(m_multiselect.m_list.GetItemText(0, 0)), L"1: 100 %s %d %n");
}

TEST_F(OutsideMultiselect, ItemEintragenScansFromItsGroup)
{
    Fill();
    Make();
    m_multiselect.m_list.DeleteAllItems();
    m_multiselect.SortAlphabetically(true);
    m_multiselect.ItemEintragen(1, L"m", 0);
    m_multiselect.ItemEintragen(2, L"c", 0);
    EXPECT_EQ(Rows(), L"c m ");
    m_multiselect.ItemEintragen(3, L"a", 2);
    EXPECT_EQ(Rows(), L"c m a ");
    m_multiselect.ItemEintragen(4, L"b", 1);
    EXPECT_EQ(Rows(), L"c b m a ");
    m_multiselect.ShowIds(true);
    m_multiselect.ItemEintragen(5, L"a", 0);
    EXPECT_EQ(Rows(), L"c b m a 5: a ");
    EXPECT_EQ(static_cast<int>(m_multiselect.m_list.GetItemData(4)), 5);
}

TEST_F(OutsideMultiselect, ReadingTheTicksBack)
{
    Fill();
    Make();
    m_multiselect.m_list.SetCheck(0, TRUE);
    m_multiselect.m_list.SetCheck(2, TRUE);
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{1, 3}));
    EXPECT_TRUE(m_multiselect.SelectionRetrieved());
    for (int i = 0; i < 4; ++i)
        m_multiselect.m_list.SetCheck(i, TRUE);
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{-1, 1, 2, 3, 4}));
    m_multiselect.m_list.SetCheck(3, FALSE);
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{1, 2, 3}));
    m_multiselect.SetSelection(Ids{2, 99});
    m_multiselect.RefreshSelection();
    EXPECT_FALSE(m_multiselect.SelectionRetrieved());
    EXPECT_EQ(Rows(), L"d b+ c a ");
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{2}));
    m_multiselect.RefreshContent();
    EXPECT_FALSE(m_multiselect.SelectionRetrieved());
    m_multiselect.SetSelection(Ids{-1, 77});
    m_multiselect.RefreshSelection();
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{-1, 1, 2, 3, 4}));
}

TEST_F(OutsideMultiselect, SettersTouchNoWindow)
{
    Fill();
    Make();
    m_multiselect.SetTheMap(Map{{9, L"nine"}});
    m_multiselect.AddItem(10, L"ten");
    m_multiselect.SetSelectionAll();
    m_multiselect.ShowIds(true);
    EXPECT_EQ(Rows(), L"d b c a ");
    m_multiselect.ResetTheMap();
    EXPECT_EQ(Rows(), L"d b c a ");
    // With an empty map nothing is read.
    m_multiselect.m_list.SetCheck(1, TRUE);
    m_multiselect.RetrieveSelection();
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
}

TEST_F(OutsideMultiselect, AllAndNone)
{
    Fill();
    Make();
    m_multiselect.OnSelectAll();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{-1, 1, 2, 3, 4}));
    EXPECT_EQ(Rows(), L"d+ b+ c+ a+ ");
    m_multiselect.OnSelectNone();
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
    EXPECT_EQ(Rows(), L"d b c a ");
    m_multiselect.SendMessage(WM_COMMAND, MAKEWPARAM(32803, BN_CLICKED),
                              reinterpret_cast<LPARAM>(m_multiselect.m_selectAll.m_hWnd));
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{-1, 1, 2, 3, 4}));
    m_multiselect.SendMessage(WM_COMMAND, MAKEWPARAM(32804, BN_CLICKED),
                              reinterpret_cast<LPARAM>(m_multiselect.m_selectNone.m_hWnd));
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
    EXPECT_TRUE(Events().empty());
}

TEST_F(OutsideMultiselect, Events)
{
    Fill();
    Make();
    m_multiselect.m_list.SetCheck(1, TRUE);
    m_host.seen.clear();
    m_multiselect.OnOkButton();
    EXPECT_EQ(m_host.Count(WM_IDNAME_MULTISELECT_EVENT), 0);
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{2}));
    EXPECT_EQ(Events(), (EventList{{1, 0}}));
    m_multiselect.m_list.SetCheck(2, TRUE);
    m_multiselect.OnCancelButton();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{2}));
    EXPECT_EQ(Events(), (EventList{{2, 0}}));
    EXPECT_EQ(m_multiselect.SendMessage(32802, 6, 44), 1);
    EXPECT_EQ(Events(), (EventList{{6, 44}}));
    EXPECT_EQ(m_multiselect.OnListCtrlMessageMessage(17, -5), 1);
    EXPECT_EQ(Events(), (EventList{{17, -5}}));
    m_multiselect.SendMessageToParent(3, 4);
    EXPECT_EQ(Events(), (EventList{{3, 4}}));
}

TEST_F(OutsideMultiselect, RealClicksOnButtons)
{
    Fill();
    m_multiselect.EnableOkCancel();
    Make();
    ASSERT_TRUE(tests::BringToFront(m_host));
    m_host.seen.clear();
    tests::Click(tests::Centre(m_multiselect.m_selectAll));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_multiselect.TheSelection().size() == 5; }, std::chrono::seconds(20)));
    tests::Click(tests::Centre(m_multiselect.m_selectNone));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_multiselect.TheSelection().empty(); }, std::chrono::seconds(20)));
    tests::Click(tests::Centre(m_multiselect.m_ok));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_host.Count(WM_IDNAME_MULTISELECT_EVENT) == 1; }, std::chrono::seconds(20)));
    EXPECT_EQ(Events(), (EventList{{1, 0}}));
    tests::Click(tests::Centre(m_multiselect.m_cancel));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_host.Count(WM_IDNAME_MULTISELECT_EVENT) == 1; }, std::chrono::seconds(20)));
    EXPECT_EQ(Events(), (EventList{{2, 0}}));
}

TEST_F(OutsideMultiselect, RealClicksOnRows)
{
    Fill();
    Make();
    ASSERT_TRUE(tests::BringToFront(m_host));
    m_host.seen.clear();
    CRect label, whole;
    m_multiselect.m_list.GetItemRect(1, label, LVIR_LABEL);
    m_multiselect.m_list.GetItemRect(1, whole, LVIR_BOUNDS);
    tests::Click(tests::ClientPoint(m_multiselect.m_list, CPoint(label.left + 3, label.CenterPoint().y)));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_host.Count(WM_IDNAME_MULTISELECT_EVENT) == 1; }, std::chrono::seconds(20)));
    EXPECT_EQ(Events(), (EventList{{6, 2}}));
    EXPECT_EQ(m_multiselect.m_list.GetCheck(1), 1);
    // The press on a label goes no further: the row is not selected.
    EXPECT_EQ(m_multiselect.m_list.GetItemState(1, LVIS_SELECTED), 0u);
    CPoint box(-1, -1);
    for (int x = whole.left; x < label.left; ++x)
    {
        UINT flags = 0;
        CPoint const at(x, whole.CenterPoint().y);
        if (m_multiselect.m_list.HitTest(at, &flags) == 1 && (flags & LVHT_ONITEMSTATEICON) != 0 &&
            (flags & LVHT_ONITEMLABEL) == 0)
            box = at + CPoint(3, 0);
        if (box.x >= 0)
            break;
    }
    ASSERT_GE(box.x, 0);
    tests::Click(tests::ClientPoint(m_multiselect.m_list, box));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_host.Count(WM_IDNAME_MULTISELECT_EVENT) == 1; }, std::chrono::seconds(20)));
    EXPECT_EQ(Events(), (EventList{{6, 2}}));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_multiselect.m_list.GetCheck(1) == 0; }, std::chrono::seconds(20)));
    // Beside the rows nothing is told.
    CRect client;
    m_multiselect.m_list.GetClientRect(client);
    tests::Click(tests::ClientPoint(m_multiselect.m_list, CPoint(client.right - 4, client.bottom - 4)));
    tests::PumpFor(std::chrono::milliseconds(100));
    EXPECT_TRUE(Events().empty());
    EXPECT_EQ(m_multiselect.TheSelection(), Ids{});
}

TEST_F(OutsideMultiselect, RealClickOnTheRowOfAnEmptyMap)
{
    Make();
    ASSERT_TRUE(tests::BringToFront(m_host));
    m_host.seen.clear();
    CRect label;
    m_multiselect.m_list.GetItemRect(0, label, LVIR_LABEL);
    tests::Click(tests::ClientPoint(m_multiselect.m_list, CPoint(label.left + 3, label.CenterPoint().y)));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_host.Count(WM_IDNAME_MULTISELECT_EVENT) == 1; }, std::chrono::seconds(20)));
    EXPECT_EQ(Events(), (EventList{{6, -1}}));
    EXPECT_EQ(m_multiselect.m_list.GetCheck(0), 1);
    m_multiselect.RetrieveSelection();
    EXPECT_TRUE(m_multiselect.TheSelection().empty());
}

TEST_F(OutsideMultiselect, FiveThousandItems)
{
    Map map;
    Ids chosen;
    for (int i = 0; i < 5000; ++i)
    {
        CString name;
        name.Format(L"name %04d", (i * 2741) % 5000);
        map[i] = name;
        if (i % 3 == 0)
            chosen.insert(i);
    }
    m_multiselect.SetTheMap(map);
    m_multiselect.SetSelection(chosen);
    m_multiselect.SortAlphabetically(true);
    Make(CRect(10, 10, 212, 212), 0);
    ASSERT_EQ(m_multiselect.m_list.GetItemCount(), 5000);
    int const group = static_cast<int>(chosen.size());
    for (int row = 0; row < 5000; ++row)
    {
        ASSERT_EQ(m_multiselect.m_list.GetCheck(row), row < group ? 1 : 0) << row;
        if (row > 0 && row != group)
        {
            ASSERT_LT(W(m_multiselect.m_list.GetItemText(row - 1, 0)), W(m_multiselect.m_list.GetItemText(row, 0)))
                << row;
        }
    }
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), chosen);
    m_multiselect.OnSelectAll();
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection().size(), 5001u);
}

TEST_F(OutsideMultiselect, OnlyATickOfExactlyOneCounts)
{
    Fill();
    Make();
    m_multiselect.m_list.SetCheck(0, TRUE);
    m_multiselect.m_list.SetItemState(1, INDEXTOSTATEIMAGEMASK(3), LVIS_STATEIMAGEMASK);
    ASSERT_EQ(ListView_GetCheckState(m_multiselect.m_list.m_hWnd, 1), 2u);
    EXPECT_EQ(m_multiselect.m_list.GetCheck(1), 2);
    m_multiselect.m_list.SetCheck(2, TRUE);
    m_multiselect.m_list.SetCheck(3, TRUE);
    m_multiselect.RetrieveSelection();
    EXPECT_EQ(m_multiselect.TheSelection(), (Ids{1, 3, 4}));
}

TEST_F(OutsideMultiselect, TinyOnes)
{
    Fill();
    for (CSize const size : {CSize(0, 0), CSize(1, 1), CSize(2, 30), CSize(30, 2), CSize(10, 22)})
    {
        Make(CRect(CPoint(10, 10), size));
        m_multiselect.SetWindowPos(nullptr, 0, 0, size.cx + 1, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        m_multiselect.DestroyWindow();
    }
}

TEST_F(OutsideMultiselect, RealPointerBringsTheTipOfAButton)
{
    Make();
    ASSERT_TRUE(tests::BringToFront(m_host));
    m_multiselect.m_toolTip.SetDelayTime(TTDT_INITIAL, 1);
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_multiselect.m_selectAll) + CPoint(-4, 0)));
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_multiselect.m_selectAll)));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_multiselect.m_toolTip.IsWindowVisible() != FALSE; }, std::chrono::seconds(20)));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    EXPECT_TRUE(
        tests::PumpUntil([&] { return m_multiselect.m_toolTip.IsWindowVisible() == FALSE; }, std::chrono::seconds(20)));
}

TEST_F(OutsideMultiselect, ListByItself)
{
    ::CreateWindowW(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_LIST, 10, 10, 190, 140, m_host.m_hWnd,
                    reinterpret_cast<HMENU>(77), nullptr, nullptr);
    RowList list;
    ASSERT_TRUE(list.SubclassDlgItem(77, m_host));
    EXPECT_EQ(list.GetExtendedStyle() & 0x144u, 0x144u);
    list.InsertItem(0, L"one");
    list.SetItemData(0, 4711);
    list.InsertItem(1, L"two");
    list.SetItemData(1, static_cast<DWORD_PTR>(-9));
    CRect label;
    list.GetItemRect(1, label, LVIR_LABEL);
    m_host.seen.clear();
    int notifications = 0;
    m_host.hook = [&](UINT message, WPARAM, LPARAM lParam, LRESULT &) {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == static_cast<UINT>(NM_CLICK))
            ++notifications;
        return false;
    };
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(label.left + 2, label.CenterPoint().y));
    EXPECT_EQ(m_host.Count(32802), 0);
    tests::PumpPosted();
    auto posted = m_host.Of(32802);
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].wParam, 6u);
    EXPECT_EQ(static_cast<int>(posted[0].lParam), -9);
    EXPECT_EQ(posted[0].lParam, -9);
    EXPECT_EQ(list.GetCheck(1), 1);
    EXPECT_EQ(notifications, 0);
    list.SetItemState(1, INDEXTOSTATEIMAGEMASK(3), LVIS_STATEIMAGEMASK);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(label.left + 2, label.CenterPoint().y));
    EXPECT_EQ(list.GetCheck(1), 0);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(label.left + 2, label.CenterPoint().y));
    EXPECT_EQ(list.GetCheck(1), 1);
    list.DestroyWindow();
    tests::PumpPosted();
}

TEST_F(OutsideMultiselect, NoGdiObjectsStay)
{
    EXPECT_EQ(tests::GdiGrowth(
                  [&] {
                      Multi other;
                      other.SetTheMap(Map{{1, L"x"}});
                      other.Create(L"b", WS_CHILD, CRect(0, 0, 100, 100), m_host, 3);
                      other.DestroyWindow();
                  },
                  4, 2),
              0);
}

TEST_F(OutsideMultiselect, DestroyedWhileEventsArePending)
{
    Fill();
    auto * const other = new Multi;
    other->SetTheMap(Map{{1, L"x"}});
    ASSERT_TRUE(other->Create(L"b", WS_CHILD, CRect(0, 0, 100, 100), m_host, 3));
    other->OnOkButton();
    other->m_list.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 5));
    delete other;
    EXPECT_EQ(Events(), (EventList{{1, 0}}));
    Multi none;
    none.OnOkButton();
    none.OnCancelButton();
    none.OnSelectAll();
    none.RetrieveSelection();
    none.SendMessageToParent(1, 2);
    EXPECT_TRUE(Events().empty());
}

// --- The dialog ---

class Dialog : public CIdNameMultiselectDlg
{
public:
    using CIdNameMultiselectDlg::CIdNameMultiselectDlg;
    using CIdNameMultiselectDlg::GetThisMessageMap;
    using CIdNameMultiselectDlg::OnIdNameMultiselectEvent;
    int oks = 0;
    int cancels = 0;
    bool reallyEnd = true;

protected:
    void OnOK() override
    {
        ++oks;
        if (reallyEnd)
            CIdNameMultiselectDlg::OnOK();
    }
    void OnCancel() override
    {
        ++cancels;
        if (reallyEnd)
            CIdNameMultiselectDlg::OnCancel();
    }
};

Multi & Inner(CIdNameMultiselectDlg & dialog)
{
    return static_cast<Multi &>(dialog.m_control);
}

class OutsideMultiselectDialog : public testing::Test
{
protected:
    Host m_host;
    Dialog m_dialog;
    tests::LaterActions m_actions;
    std::function<bool()> Open()
    {
        return [this] {
            return m_dialog.m_control.GetSafeHwnd() != nullptr && Inner(m_dialog).m_controlsCreated &&
                   m_dialog.IsWindowVisible();
        };
    }
};

TEST_F(OutsideMultiselectDialog, FieldsAndMap)
{
    CIdNameMultiselectDlg plain;
    EXPECT_TRUE(plain.m_placement.IsRectEmpty());
    EXPECT_TRUE(Inner(plain).m_okCancel);
    std::vector<MapEntry> const entries = EntriesOf(Dialog::GetThisMessageMap());
    EXPECT_EQ(entries.size(), 2u);
    EXPECT_TRUE(Handles(entries, WM_SIZE));
    EXPECT_TRUE(std::any_of(entries.begin(), entries.end(),
                            [](auto const & e) { return e.registered == WM_IDNAME_MULTISELECT_EVENT; }));
}

TEST_F(OutsideMultiselectDialog, WindowAsOfItsTemplate)
{
    m_dialog.m_control.SetTheMap(Map{{1, L"one"}, {2, L"two"}});
    m_dialog.m_placement = CRect(200, 150, 500, 450);
    HINSTANCE const before = ::AfxGetResourceHandle();
    m_actions.Add(
        [&] {
            EXPECT_EQ(::AfxGetResourceHandle(), Toolkit());
            EXPECT_EQ(m_dialog.GetStyle() & (WS_POPUP | WS_THICKFRAME | WS_SYSMENU | WS_CHILD | WS_CAPTION),
                      (WS_POPUP | WS_THICKFRAME | WS_SYSMENU));
            EXPECT_NE(m_dialog.GetExStyle() & WS_EX_TOOLWINDOW, 0u);
            CRect window, client, control;
            m_dialog.GetWindowRect(window);
            EXPECT_EQ(window, CRect(200, 150, 500, 450));
            m_dialog.GetClientRect(client);
            m_dialog.ClientToScreen(client);
            m_dialog.m_control.GetWindowRect(control);
            EXPECT_EQ(control, client);
            EXPECT_EQ(m_dialog.m_control.GetDlgCtrlID(), 1016);
            EXPECT_TRUE(Inner(m_dialog).m_ok.IsWindowVisible());
            EXPECT_TRUE(Inner(m_dialog).m_cancel.IsWindowVisible());
            // A client area below 100 by 70 leaves the control as it is.
            m_dialog.SetWindowPos(nullptr, 0, 0, 240, 200, SWP_NOMOVE | SWP_NOZORDER);
            CRect kept, now;
            m_dialog.m_control.GetWindowRect(kept);
            m_dialog.GetClientRect(client);
            EXPECT_EQ(kept.Size(), client.Size());
            CSize const border = CSize(240, 200) - client.Size();
            struct Row
            {
                CSize size;
                bool moves;
            };
            for (Row const row : {Row{CSize(99, 200), false}, Row{CSize(200, 69), false}, Row{CSize(100, 70), true},
                                  Row{CSize(99, 69), false}, Row{CSize(301, 71), true}})
            {
                m_dialog.m_control.GetWindowRect(kept);
                m_dialog.SetWindowPos(nullptr, 0, 0, row.size.cx + border.cx, row.size.cy + border.cy,
                                      SWP_NOMOVE | SWP_NOZORDER);
                m_dialog.GetClientRect(client);
                if (client.Size() != row.size)
                    continue;
                m_dialog.m_control.GetWindowRect(now);
                EXPECT_EQ(now.Size(), row.moves ? row.size : kept.Size()) << row.size.cx << ' ' << row.size.cy;
            }
            m_dialog.PostMessage(WM_COMMAND, IDCANCEL);
        },
        Open());
    EXPECT_EQ(m_dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(::AfxGetResourceHandle(), before);
    EXPECT_FALSE(Inner(m_dialog).m_controlsCreated);
}

TEST_F(OutsideMultiselectDialog, OkByRealClickReadsTheTicks)
{
    m_dialog.m_control.SetTheMap(Map{{1, L"one"}, {2, L"two"}});
    m_dialog.m_placement = CRect(200, 150, 500, 450);
    m_actions.Add(
        [&] {
            Inner(m_dialog).m_list.SetCheck(1, TRUE);
            tests::Click(tests::Centre(Inner(m_dialog).m_ok));
        },
        Open());
    EXPECT_EQ(m_dialog.DoModal(), IDOK);
    EXPECT_EQ(m_dialog.m_control.TheSelection(), (Ids{2}));
    // It can be opened again, and all ticked gives the sentinel too.
    m_actions.Add(
        [&] {
            EXPECT_EQ(Inner(m_dialog).m_list.GetCheck(0), 1);
            tests::Click(tests::Centre(Inner(m_dialog).m_selectAll));
        },
        Open());
    m_actions.Add([&] { tests::Click(tests::Centre(Inner(m_dialog).m_ok)); },
                  [&] { return m_dialog.m_control.TheSelection().size() == 3; });
    EXPECT_EQ(m_dialog.DoModal(), IDOK);
    EXPECT_EQ(m_dialog.m_control.TheSelection(), (Ids{-1, 1, 2}));
}

TEST_F(OutsideMultiselectDialog, ReturnAndEscape)
{
    m_dialog.m_control.SetTheMap(Map{{1, L"one"}, {2, L"two"}});
    m_dialog.m_placement = CRect(200, 150, 500, 450);
    m_actions.Add(
        [&] {
            Inner(m_dialog).m_list.SetCheck(0, TRUE);
            tests::Key(VK_RETURN);
        },
        Open());
    EXPECT_EQ(m_dialog.DoModal(), IDOK);
    EXPECT_EQ(m_dialog.m_control.TheSelection(), (Ids{1}));
    EXPECT_TRUE(m_dialog.m_control.SelectionRetrieved());
    m_actions.Add(
        [&] {
            Inner(m_dialog).m_list.SetCheck(1, TRUE);
            tests::Key(VK_ESCAPE);
        },
        Open());
    EXPECT_EQ(m_dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_dialog.m_control.TheSelection(), (Ids{1}));
}

TEST_F(OutsideMultiselectDialog, TheSelectionIsReadOnce)
{
    m_dialog.m_control.SetTheMap(Map{{1, L"one"}, {2, L"two"}});
    m_actions.Add(
        [&] {
            Inner(m_dialog).m_list.SetCheck(0, TRUE);
            Inner(m_dialog).SendMessage(WM_COMMAND, MAKEWPARAM(32806, BN_CLICKED), 0);
            // Read; what is ticked before the dialog hears of it counts no more.
            Inner(m_dialog).m_list.SetCheck(0, FALSE);
            Inner(m_dialog).m_list.SetCheck(1, TRUE);
        },
        Open());
    EXPECT_EQ(m_dialog.DoModal(), IDOK);
    EXPECT_EQ(m_dialog.m_control.TheSelection(), (Ids{1}));
}

TEST_F(OutsideMultiselectDialog, EventsOfTheControl)
{
    m_dialog.reallyEnd = false;
    m_actions.Add(
        [&] {
            EXPECT_EQ(m_dialog.OnIdNameMultiselectEvent(1, 0), 0);
            EXPECT_EQ(m_dialog.oks, 1);
            EXPECT_EQ(m_dialog.OnIdNameMultiselectEvent(2, 0), 0);
            EXPECT_EQ(m_dialog.cancels, 1);
            EXPECT_EQ(m_dialog.OnIdNameMultiselectEvent(6, 3), 0);
            EXPECT_EQ(m_dialog.OnIdNameMultiselectEvent(0, 0), 0);
            EXPECT_EQ(m_dialog.SendMessage(WM_IDNAME_MULTISELECT_EVENT, 1, 0), 0);
            EXPECT_EQ(m_dialog.oks, 2);
            EXPECT_EQ(m_dialog.cancels, 1);
            m_dialog.EndDialog(77);
        },
        Open());
    EXPECT_EQ(m_dialog.DoModal(), 77);
}

TEST_F(OutsideMultiselectDialog, WithoutPlacementTheTemplatesSize)
{
    m_actions.Add(
        [&] {
            CRect client;
            m_dialog.GetClientRect(client);
            CRect units(0, 0, 81, 55);
            m_dialog.MapDialogRect(units);
            EXPECT_NEAR(client.Width(), units.Width(), 2);
            EXPECT_NEAR(client.Height(), units.Height(), 2);
            m_dialog.EndDialog(IDCANCEL);
        },
        Open());
    m_dialog.DoModal();
}
} // namespace
} // namespace outside::controls
