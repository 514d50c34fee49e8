// Painting a page of a report list beside a native one of the same size that shows the same texts.

#include <afxcmn.h>
#include "list/XListCtrl.h"
#include "ControlBench.h"
#include "Measure.h"

#include <string>
#include <vector>

namespace
{
using bench::Nanoseconds;
using bench::PumpAll;

constexpr int row_count = 40;
constexpr int column_count = 8;
constexpr int column_width = 74;
constexpr int cell_count = row_count * column_count;
constexpr int list_width = column_count * column_width + 10;
constexpr int list_height = 900;
constexpr int rounds = 40;
constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;

std::wstring TextOf(int row, int column)
{
    return L"val " + std::to_wstring(row * column_count + column);
}

/// A window with a list of the toolkit on the left and a native one on the right, both filled with the same texts.
class Page : public CWnd
{
public:
    CXListCtrl m_ours;
    CListCtrl m_native;

    Page()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"list", WS_POPUP | WS_VISIBLE, 0, 0, 2 * list_width, list_height, nullptr,
                 nullptr);
        m_ours.Create(list_style, CRect(0, 0, list_width, list_height), this, 7);
        m_native.Create(list_style, CRect(list_width, 0, 2 * list_width, list_height), this, 8);
        for (int column = 0; column < column_count; ++column)
        {
            m_ours.AddColumn(L"column", LVCFMT_LEFT, column_width);
            m_native.InsertColumn(column, L"column", LVCFMT_LEFT, column_width, column);
        }
        for (int row = 0; row < row_count; ++row)
        {
            m_ours.AddItem(TextOf(row, 0).c_str(), nullptr, row);
            m_native.InsertItem(row, TextOf(row, 0).c_str());
            for (int column = 1; column < column_count; ++column)
            {
                m_ours.SetItemText(row, column, TextOf(row, column).c_str());
                m_native.SetItemText(row, column, TextOf(row, column).c_str());
            }
        }
        PumpAll();
    }
    ~Page() override { DestroyWindow(); }

    /// Whether both lists show all rows and have rows of the same height.
    bool IsComparable() const
    {
        CRect ours;
        CRect native;
        CRect client;
        m_ours.GetItemRect(row_count - 1, &ours, LVIR_BOUNDS);
        m_native.GetItemRect(row_count - 1, &native, LVIR_BOUNDS);
        m_ours.GetClientRect(&client);
        return ours.bottom <= client.bottom && ours.Size() == native.Size() && ours.top == native.top;
    }

    /// The whole list, without its header, in the window.
    static double Paint(CWnd & list)
    {
        PumpAll();
        return Nanoseconds([&] {
            list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_NOCHILDREN);
            ::GdiFlush();
        });
    }
};

bool PaintAndReport(Page & page, char const * name, double goal)
{
    if (!page.IsComparable())
    {
        std::printf("%s: the two lists do not show the same page\n", name);
        return false;
    }
    std::vector<double> ours;
    std::vector<double> reference;
    for (int round = 0; round < rounds; ++round)
    {
        ours.push_back(Page::Paint(page.m_ours));
        reference.push_back(Page::Paint(page.m_native));
    }
    return bench::Report(name, bench::Median(ours) / cell_count, bench::Median(reference) / cell_count, goal);
}

/// A page of cells that change(list, row, column) has made of text cells. Images, where there are some, are given to
/// both lists, so that their rows have the same height.
template <class Change> bool PageOf(char const * name, Change && change, CImageList * images = nullptr)
{
    Page page;
    if (images != nullptr)
    {
        page.m_ours.SetImageList(images, LVSIL_SMALL);
        page.m_native.SetImageList(images, LVSIL_SMALL);
    }
    page.m_ours.SetBatchInsertMode(true);
    for (int row = 0; row < row_count; ++row)
        for (int column = 0; column < column_count; ++column)
            change(page.m_ours, row, column);
    page.m_ours.SetBatchInsertMode(false);
    PumpAll();
    return PaintAndReport(page, name, 2.0);
}
} // namespace

bool bench::PaintingAPageOfText()
{
    Page page;
    return PaintAndReport(page, "painting 40 rows of 8 text cells beside the native list, a cell", 1.0);
}

bool bench::PaintingPagesOfOtherKinds()
{
    bool met =
        PageOf("painting check cells beside native text cells, a cell",
               [](CXListCtrl & list, int row, int column) { list.SetCheckbox(row, column, (row + column) % 3); });
    met = PageOf("painting radio cells beside native text cells, a cell",
                 [](CXListCtrl & list, int row, int column) {
                     list.SetRadioButton(row, column, row == column ? XLC_RADIO_ON : XLC_RADIO_OFF);
                 }) &&
          met;
    met = PageOf("painting combo cells beside native text cells, a cell",
                 [](CXListCtrl & list, int row, int column) {
                     list.SetComboBox(row, column, {{1, L"first"}, {2, L"second"}}, 1 + row % 2, 1);
                 }) &&
          met;
    met = PageOf("painting progress cells beside native text cells, a cell",
                 [](CXListCtrl & list, int row, int column) {
                     list.SetProgress(row, column, true, nullptr);
                     list.UpdateProgress(row, column, (row * 13 + column * 7) % 101, 0);
                 }) &&
          met;
    met = PageOf("painting cells with a wash beside native text cells, a cell",
                 [](CXListCtrl & list, int row, int column) {
                     list.SetItemColors(row, column, RGB(0, 0, 0), RGB(255, 255, 255), RGB(255, 200, 120));
                 }) &&
          met;

    CImageList images;
    images.Create(16, 16, ILC_COLOR24, 1, 1);
    CBitmap picture;
    std::vector<COLORREF> const pixels(16 * 16, RGB(20, 120, 200));
    picture.CreateBitmap(16, 16, 1, 32, pixels.data());
    images.Add(&picture, RGB(0, 0, 0));
    return PageOf(
               "painting cells with an image beside native text cells, a cell",
               [](CXListCtrl & list, int row, int column) { list.SetItemImage(row, column, 0); }, &images) &&
           met;
}
