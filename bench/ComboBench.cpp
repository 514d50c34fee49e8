// Opening the drop-down of an advanced combo box beside that of a native one.

#include <afxwin.h>

#include <string>
#include <vector>

#include "ControlBench.h"
#include "list/combo/AdvComboBox.h"
#include "list/combo/DropWnd.h"
#include "list/VisualStyles.h"
#include "Measure.h"

// The module keeps its own object to itself.
CVisualStyles & VisualStyles()
{
    static CVisualStyles styles;
    return styles;
}

namespace
{
using bench::Nanoseconds;
using bench::PumpAll;

constexpr int item_count = 10000;
CRect const combo_place(20, 20, 220, 320);

std::vector<std::wstring> const & ItemTexts()
{
    static std::vector<std::wstring> const texts = [] {
        std::vector<std::wstring> made;
        for (int i = 0; i < item_count; ++i)
            made.push_back(L"channel " + std::to_wstring(i * 7 % 100003));
        return made;
    }();
    return texts;
}

class Parent : public CWnd
{
public:
    Parent()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"combo", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 400, 300, nullptr,
                 nullptr);
        PumpAll();
    }
    ~Parent() override { DestroyWindow(); }
};

/// The native list shows only what it was given, so it is given the items as part of its opening.
double OpenNative(CComboBox & combo)
{
    combo.ResetContent();
    PumpAll();
    double const time = Nanoseconds([&] {
        combo.SetRedraw(FALSE);
        combo.InitStorage(item_count, 40 * item_count);
        for (std::wstring const & text : ItemTexts())
            combo.AddString(text.c_str());
        combo.SetRedraw(TRUE);
        combo.ShowDropDown(TRUE);
        PumpAll();
    });
    combo.ShowDropDown(FALSE);
    PumpAll();
    return time;
}

/// Opens a native combo that has its items.
double OpenFilled(CComboBox & combo)
{
    double const time = Nanoseconds([&] {
        combo.ShowDropDown(TRUE);
        PumpAll();
    });
    combo.ShowDropDown(FALSE);
    PumpAll();
    return time;
}

double OpenOurs(XListCtrl::CAdvComboBox & combo)
{
    double const time = Nanoseconds([&] {
        combo.ShowDropDown(true);
        PumpAll();
    });
    combo.ShowDropDown(false);
    PumpAll();
    return time;
}
} // namespace

bool bench::OpeningACombo()
{
    Parent parent;
    XListCtrl::CAdvComboBox ours(0, &parent);
    ours.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(20, 60, 220, 84), &parent, 7);
    CComboBox native;
    native.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST, combo_place, &parent, 8);
    native.SetFont(ours.GetComboFont());
    for (std::wstring const & text : ItemTexts())
        ours.AddString(text.c_str());
    ours.SetMaxVisible(15);
    PumpAll();
    auto const openOurs = [&] { return OpenOurs(ours); };
    bool const given =
        Report("opening a combo of 10,000 items beside a native one that is given the same items, an item",
               Compare(openOurs, [&] { return OpenNative(native); }), item_count, 1.5);
    bool const filled = Report("opening a combo of 10,000 items beside a native one that has them, an item",
                               Compare(openOurs, [&] { return OpenFilled(native); }), item_count, 1.5);
    return given && filled;
}
