// Sets of colours, resolutions, and the table for keyboards and for programs that read the screen.

#include <oleacc.h>

#include <array>
#include <chrono>
#include <memory>
#include <random>

#include "colours/ControlColors.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "ControlTest.h"
#include "GuardedHeap.h"
#include "list/table/XTableCtrl.h"
#include "list/XListCtrl.h"
#include "OutsideTest.h"

// Google Test prints them.
static void PrintTo(ControlColorSet set, std::ostream * out)
{
    *out << "set " << static_cast<int>(set);
}

namespace outside::controls
{
namespace
{
using namespace std::chrono_literals;
using tests::Canvas;

constexpr double least = 4.5;

/// Relative luminances by the usual definition.
double Contrast(COLORREF one, COLORREF other)
{
    auto const linear = [](int byte) {
        double const part = byte / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    auto const luminance = [&](COLORREF color) {
        return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) +
               0.0722 * linear(GetBValue(color));
    };
    double const a = luminance(one);
    double const b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The colour that most pixels have.
COLORREF GroundOf(Canvas const & canvas, CRect const & rect)
{
    std::map<COLORREF, int> counts;
    for (int y = rect.top; y < rect.bottom; ++y)
    {
        for (int x = rect.left; x < rect.right; ++x)
            ++counts[canvas.Pixel(x, y)];
    }
    COLORREF ground = CLR_INVALID;
    int most = 0;
    for (auto const & [color, count] : counts)
    {
        if (count > most)
        {
            most = count;
            ground = color;
        }
    }
    return ground;
}

/// How well what stands in the rectangle is seen.
double SeenContrast(Canvas const & canvas, CRect const & rect)
{
    COLORREF const ground = GroundOf(canvas, rect);
    double best = 0;
    for (int y = rect.top; y < rect.bottom; ++y)
    {
        for (int x = rect.left; x < rect.right; ++x)
            best = std::max(best, Contrast(canvas.Pixel(x, y), ground));
    }
    return best;
}

/// The system's colours of a test.
std::array<COLORREF, 64> s_scheme;

COLORREF SchemeColor(int number)
{
    return number >= 0 && number < 64 ? s_scheme[static_cast<std::size_t>(number)] : 0;
}

COLORREF RealColor(int number)
{
    return ::GetSysColor(number);
}

/// What texts and marks of a set are not readable.
std::string Unreadable(ControlColors const & c)
{
    struct Pair
    {
        char const * name;
        COLORREF text;
        COLORREF ground;
    };
    std::vector<Pair> const pairs = {
        {"windowText on window", c.windowText, c.window},
        {"windowText on inactiveSelection", c.windowText, c.inactiveSelection},
        {"windowText on trough", c.windowText, c.trough},
        {"link on window", c.link, c.window},
        {"link on inactiveSelection", c.link, c.inactiveSelection},
        {"selectionText on selection", c.selectionText, c.selection},
        {"disabled on window", c.disabled, c.window},
        {"disabled on inactiveSelection", c.disabled, c.inactiveSelection},
        {"disabled on trough", c.disabled, c.trough},
        {"disabled on face", c.disabled, c.face},
        {"buttonText on face", c.buttonText, c.face},
        {"buttonText on window", c.buttonText, c.window},
        {"inactiveCaptionText on inactiveCaption", c.inactiveCaptionText, c.inactiveCaption},
        {"barText on bar", c.barText, c.bar},
        {"headerText on headerFace", c.headerText, c.headerFace},
        {"headerArrow on headerFace", control_colors::MarkOn(c.headerFace, c.headerArrow, c.headerText), c.headerFace},
        {"checkMark on window", control_colors::MarkOn(c.window, c.checkMark, c.windowText), c.window},
        {"checkMark on selection", control_colors::MarkOn(c.selection, c.checkMark, c.selectionText), c.selection},
        {"crossMark on window", control_colors::MarkOn(c.window, c.crossMark, c.windowText), c.window},
        {"crossMark on inactiveSelection", control_colors::MarkOn(c.inactiveSelection, c.crossMark, c.windowText),
         c.inactiveSelection},
        {"checkFrame on window", control_colors::MarkOn(c.window, c.checkFrame, c.windowText), c.window},
        {"comboArrow on selection", control_colors::MarkOn(c.selection, c.comboArrow, c.selectionText), c.selection},
    };
    std::string found;
    for (Pair const & pair : pairs)
    {
        if (Contrast(pair.text, pair.ground) < least)
            found += std::string(pair.name) + "; ";
    }
    return found;
}

// --- The sets ---

TEST(OutsideColorsRecord, ContrastIsThatOfTheDefinition)
{
    EXPECT_DOUBLE_EQ(control_colors::ContrastOf(RGB(0, 0, 0), RGB(255, 255, 255)), 21);
    EXPECT_DOUBLE_EQ(control_colors::ContrastOf(RGB(1, 2, 3), RGB(1, 2, 3)), 1);
    std::mt19937 random(3);
    for (int i = 0; i < 2000; ++i)
    {
        COLORREF const a = random() & 0xFFFFFF;
        COLORREF const b = random() & 0xFFFFFF;
        EXPECT_NEAR(control_colors::ContrastOf(a, b), Contrast(a, b), 0.01) << std::hex << a << ' ' << b;
        EXPECT_DOUBLE_EQ(control_colors::ContrastOf(a, b), control_colors::ContrastOf(b, a));
    }
}

TEST(OutsideColorsRecord, AMarkIsItsOwnWhereItIsSeen)
{
    std::mt19937 random(4);
    for (int i = 0; i < 2000; ++i)
    {
        COLORREF const ground = random() & 0xFFFFFF;
        COLORREF const mark = random() & 0xFFFFFF;
        COLORREF const text = random() & 0xFFFFFF;
        COLORREF const shown = control_colors::MarkOn(ground, mark, text);
        double const own = control_colors::ContrastOf(mark, ground);
        EXPECT_EQ(shown, own >= least || control_colors::ContrastOf(text, ground) <= own ? mark : text);
    }
}

TEST(OutsideColorsRecord, ATextOfNobodysIsReadableOnAnyGround)
{
    std::mt19937 random(6);
    for (int i = 0; i < 2000; ++i)
    {
        COLORREF const ground = random() & 0xFFFFFF;
        COLORREF const text = random() & 0xFFFFFF;
        COLORREF const other = random() & 0xFFFFFF;
        COLORREF const shown = control_colors::TextOn(ground, text, other);
        EXPECT_GE(Contrast(shown, ground), least - 0.01) << std::hex << ground;
        for (COLORREF const first : {text, other})
        {
            if (control_colors::ContrastOf(first, ground) >= least)
            {
                EXPECT_EQ(shown, first);
                break;
            }
        }
    }
}

TEST(OutsideColorsRecord, EveryTextIsReadableInTheDarkSet)
{
    EXPECT_EQ(Unreadable(control_colors::Dark()), "");
    EXPECT_TRUE(control_colors::Dark().adapts);
    EXPECT_FALSE(control_colors::Standard(&RealColor).adapts);
    EXPECT_GT(Contrast(control_colors::Dark().window, RGB(255, 255, 255)),
              Contrast(control_colors::Dark().window, RGB(0, 0, 0)))
        << "a dark ground";
}

TEST(OutsideColorsRecord, EveryTextIsReadableInTheHighContrastSetOfAnySystem)
{
    EXPECT_EQ(Unreadable(control_colors::HighContrast(&RealColor)), "");
    std::mt19937 random(5);
    for (int i = 0; i < 3000; ++i)
    {
        // All at random; but for every third, greys in the middle, where it is hardest.
        for (COLORREF & color : s_scheme)
        {
            BYTE const grey = static_cast<BYTE>(90 + random() % 60);
            color = i % 3 == 0 ? RGB(grey, grey, grey) : random() & 0xFFFFFF;
        }
        std::string const found = Unreadable(control_colors::HighContrast(&SchemeColor));
        ASSERT_EQ(found, "") << "scheme " << i;
        EXPECT_TRUE(control_colors::HighContrast(&SchemeColor).adapts);
    }
}

TEST(OutsideColorsRecord, TheStandardSetIsTheSystems)
{
    ControlColors const c = control_colors::Of(ControlColorSet::standard);
    EXPECT_EQ(c.window, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(c.selection, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(c.selectionText, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(c.face, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(c.sliderSecond, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(c.sliderMain, 0xC8B4B4u);
}

// --- Which window has which ---

class OutsideColorsChoice : public testing::Test
{
protected:
    void TearDown() override { control_colors::UseForProcess(ControlColorSet::standard); }

    Host m_host;
};

TEST_F(OutsideColorsChoice, OfAWindowReachesWhatIsBelowItAndWhatItOwns)
{
    Host other;
    CWnd child;
    CWnd inner;
    ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), m_host, 1));
    ASSERT_TRUE(inner.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &child, 2));
    CWnd owned;
    ASSERT_TRUE(owned.CreateEx(0, ::AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 40, 40), &m_host, 0));
    ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark));
    EXPECT_EQ(control_colors::SetOf(m_host.m_hWnd), ControlColorSet::dark);
    EXPECT_EQ(control_colors::SetOf(inner.m_hWnd), ControlColorSet::dark);
    EXPECT_EQ(control_colors::SetOf(owned.m_hWnd), ControlColorSet::dark);
    EXPECT_EQ(control_colors::SetOf(other.m_hWnd), ControlColorSet::standard);
    EXPECT_EQ(control_colors::SetOf(nullptr), ControlColorSet::standard);
    EXPECT_EQ(control_colors::Of(inner.m_hWnd).window, control_colors::Dark().window);
    // A choice of its own goes ahead, and can be taken back.
    ASSERT_TRUE(control_colors::UseFor(child.m_hWnd, ControlColorSet::high_contrast));
    EXPECT_EQ(control_colors::SetOf(inner.m_hWnd), ControlColorSet::high_contrast);
    EXPECT_EQ(control_colors::SetOf(m_host.m_hWnd), ControlColorSet::dark);
    control_colors::RemoveFrom(child.m_hWnd);
    EXPECT_EQ(control_colors::SetOf(inner.m_hWnd), ControlColorSet::dark);
    // Another parent, another set.
    child.SetParent(&other);
    EXPECT_EQ(control_colors::SetOf(inner.m_hWnd), ControlColorSet::standard);
    control_colors::RemoveFrom(m_host.m_hWnd);
    EXPECT_EQ(control_colors::SetOf(owned.m_hWnd), ControlColorSet::standard);
    owned.DestroyWindow();
    child.DestroyWindow();
}

TEST_F(OutsideColorsChoice, EndsWithItsWindow)
{
    EXPECT_FALSE(control_colors::UseFor(nullptr, ControlColorSet::dark));
    for (int i = 0; i < 300; ++i)
    {
        CWnd child;
        ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 10, 10), m_host, 1));
        ASSERT_EQ(control_colors::SetOf(child.m_hWnd), ControlColorSet::standard) << i;
        ASSERT_TRUE(control_colors::UseFor(child.m_hWnd, ControlColorSet::dark));
        HWND const window = child.m_hWnd;
        child.DestroyWindow();
        ASSERT_EQ(control_colors::SetOf(window), ControlColorSet::standard) << i;
        ASSERT_FALSE(control_colors::UseFor(window, ControlColorSet::dark)) << i;
        control_colors::RemoveFrom(window);
    }
}

TEST_F(OutsideColorsChoice, OfTheProcessIsForAllThatHaveNone)
{
    EXPECT_EQ(control_colors::ChosenForProcess(), ControlColorSet::standard);
    Host own;
    ASSERT_TRUE(control_colors::UseFor(own.m_hWnd, ControlColorSet::standard));
    control_colors::UseForProcess(ControlColorSet::dark);
    EXPECT_EQ(control_colors::SetOf(nullptr), ControlColorSet::dark);
    EXPECT_EQ(control_colors::SetOf(m_host.m_hWnd), ControlColorSet::dark);
    EXPECT_EQ(control_colors::SetOf(own.m_hWnd), ControlColorSet::standard);
    control_colors::UseForProcess(ControlColorSet::follow_system);
    EXPECT_EQ(control_colors::ChosenForProcess(), ControlColorSet::follow_system);
    HIGHCONTRASTW now{};
    now.cbSize = sizeof(now);
    ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(now), &now, 0);
    EXPECT_EQ(control_colors::SetOf(m_host.m_hWnd),
              (now.dwFlags & HCF_HIGHCONTRASTON) != 0 ? ControlColorSet::high_contrast : ControlColorSet::standard);
}

TEST_F(OutsideColorsChoice, NativeFieldsAreAnsweredOutsideOfTheStandardSet)
{
    Canvas canvas(4, 4);
    auto const context = reinterpret_cast<WPARAM>(canvas.Dc().m_hDC);
    constexpr UINT questions[] = {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC, WM_CTLCOLORLISTBOX, WM_CTLCOLORSCROLLBAR};
    for (UINT const question : questions)
        EXPECT_EQ(control_colors::AnswerColorQuestion(m_host.m_hWnd, question, context), 0) << question;
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
        EXPECT_EQ(control_colors::AnswerColorQuestion(m_host.m_hWnd, WM_PAINT, context), 0);
        for (UINT const question : questions)
        {
            auto const brush =
                reinterpret_cast<HBRUSH>(control_colors::AnswerColorQuestion(m_host.m_hWnd, question, context));
            ASSERT_NE(brush, nullptr) << question;
            LOGBRUSH data{};
            EXPECT_NE(::GetObjectW(brush, sizeof(data), &data), 0);
            if (question == WM_CTLCOLORSCROLLBAR)
                continue;
            COLORREF const filled =
                brush == ::GetStockObject(DC_BRUSH) ? ::GetDCBrushColor(canvas.Dc().m_hDC) : data.lbColor;
            EXPECT_EQ(filled, canvas.Dc().GetBkColor()) << question;
            EXPECT_GE(Contrast(canvas.Dc().GetTextColor(), canvas.Dc().GetBkColor()), least) << question;
        }
    }
}

// --- Painted ---

/// A control whose host hears of its header's notifications ahead of it.
template <class Control> class Hearing : public Control
{
public:
    /// True: the control is told nothing of it, and the change is refused if it can be.
    std::function<bool(UINT code)> m_hook;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        auto const hook = m_hook;
        if (message == WM_NOTIFY && hook && hook(reinterpret_cast<NMHDR const *>(lParam)->code))
            return TRUE;
        return Control::WindowProc(message, wParam, lParam);
    }
};

/// A list with cells of all kinds, a slider and a button.
class OutsideColorsPaint : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, CRect(0, 0, 370, 180), m_host, 1));
        m_list.SetFullRowSelect();
        for (wchar_t const * const title : {L"MMMM", L"NNNN", L"HHHH"})
            m_list.AddColumn(title, LVCFMT_LEFT, 90);
        for (int row = 0; row < 6; ++row)
        {
            m_list.AddItem(L"MMHH", nullptr, row);
            m_list.SetItemText(row, 1, L"HHMM");
            m_list.SetItemText(row, 2, L"EEHH");
        }
        m_list.SetCheckbox(1, 0, XLC_CHECKED);
        m_list.SetHyperlink(1, 1, true, true);
        m_list.SetEdit(1, 2, true);
        m_list.SetEnabled(2, false);
        m_list.SetItemColors(3, 1, own_text, own_ground, XLISTCTRLDATA::no_gradient);
        m_list.SetProgress(3, 2, true, L"");
        m_list.UpdateProgress(3, 2, 40, 40);
        m_list.SetRadioButton(4, 1, XLC_RADIO_ON);
        m_list.SetCheckbox(4, 2, XLC_CROSSED);
        ASSERT_TRUE(m_slider.Create(WS_CHILD | WS_VISIBLE | TBS_HORZ, CRect(0, 185, 180, 225), m_host, 2));
        m_slider.SetRange(0, 100);
        m_slider.SetPos(50);
        ASSERT_TRUE(m_button.Create(L"MMHH", WS_CHILD | WS_VISIBLE, CRect(190, 185, 300, 225), m_host, 3));
        ASSERT_TRUE(tests::BringToFront(m_host));
        ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {350, 245})));
    }
    void TearDown() override
    {
        control_colors::UseForProcess(ControlColorSet::standard);
        m_list.DestroyWindow();
        m_slider.DestroyWindow();
        m_button.DestroyWindow();
    }
    void Settle(CWnd & window)
    {
        tests::PumpPosted();
        window.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        tests::PumpPosted();
    }
    /// What is on the screen once all posted paints have been made; nothing is repainted for it.
    std::unique_ptr<Canvas> Shot(CWnd & window)
    {
        Settle(m_host);
        CRect client;
        window.GetClientRect(client);
        auto canvas = std::make_unique<Canvas>(client.Width(), client.Height());
        canvas->CopyFromScreen(window);
        return canvas;
    }
    CRect Cell(int row, int col)
    {
        CRect rect;
        EXPECT_TRUE(m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect));
        return rect;
    }

    static constexpr COLORREF own_text = RGB(250, 230, 10);
    static constexpr COLORREF own_ground = RGB(20, 90, 40);

    Host m_host;
    Hearing<CXListCtrl> m_list;
    CLevelSliderCtrl m_slider;
    CColorButton m_button;
};

TEST_F(OutsideColorsPaint, TheStandardSetAfterOthersIsWhatItWasToThePixel)
{
    m_list.SetCurSel(0, true);
    m_list.SetFocus();
    m_list.Invalidate(); // a native list may leave the first pixels of a row when its selection changes
    std::unique_ptr<Canvas> const before = Shot(m_host);
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
        std::unique_ptr<Canvas> const other = Shot(m_host);
        if (set == ControlColorSet::dark)
        {
            EXPECT_FALSE(tests::SamePixels(*before, *other));
        }
        control_colors::RemoveFrom(m_host.m_hWnd);
        EXPECT_TRUE(tests::SamePixels(*before, *Shot(m_host)));
        control_colors::UseForProcess(set);
        EXPECT_TRUE(tests::SamePixels(*other, *Shot(m_host))) << "for the window or for the process";
        control_colors::UseForProcess(ControlColorSet::standard);
        EXPECT_TRUE(tests::SamePixels(*before, *Shot(m_host)));
    }
}

TEST_F(OutsideColorsPaint, TextsAreReadableInEveryState)
{
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
        for (bool const focused : {true, false})
        {
            (focused ? static_cast<CWnd &>(m_list) : m_host).SetFocus();
            for (int selected = -1; selected < 5; ++selected)
            {
                for (int row = 0; row < 6; ++row)
                    m_list.CListCtrl::SetItemState(row, row == selected ? LVIS_SELECTED : 0, LVIS_SELECTED);
                std::unique_ptr<Canvas> const shot = Shot(m_list);
                for (int row = 0; row < 5; ++row)
                {
                    for (int col = 0; col < 3; ++col)
                    {
                        CRect rect = Cell(row, col);
                        rect.DeflateRect(2, 2);
                        if (row == 4 && col == 1)
                            continue; // its mark is no text
                        EXPECT_GE(SeenContrast(*shot, rect), least)
                            << "set " << static_cast<int>(set) << ", focused " << focused << ", selected " << selected
                            << ", cell " << row << ", " << col;
                    }
                }
            }
        }
        CHeaderCtrl & header = *m_list.GetHeaderCtrl();
        std::unique_ptr<Canvas> const shot = Shot(header);
        for (int col = 0; col < 3; ++col)
        {
            CRect rect;
            header.GetItemRect(col, rect);
            rect.DeflateRect(3, 3);
            EXPECT_GE(SeenContrast(*shot, rect), least) << "title " << col;
        }
        for (BOOL const enabled : {TRUE, FALSE})
        {
            m_button.EnableWindow(enabled);
            std::unique_ptr<Canvas> const button = Shot(m_button);
            CRect rect(0, 0, button->Width(), button->Height());
            rect.DeflateRect(8, 8);
            EXPECT_GE(SeenContrast(*button, rect), least) << "button " << enabled;
        }
    }
}

TEST_F(OutsideColorsPaint, AHostsOwnColoursStay)
{
    m_slider.SetMainColor(RGB(220, 30, 0));
    m_slider.SetSecondColor(RGB(0, 40, 210));
    m_button.SetColors(CColorControl::White, CColorControl::Red);
    m_slider.Invalidate();
    m_button.Invalidate();
    std::unique_ptr<Canvas> const slider = Shot(m_slider);
    std::unique_ptr<Canvas> const button = Shot(m_button);
    std::unique_ptr<Canvas> const list = Shot(m_list);
    CRect const cell = Cell(3, 1);
    CRect channel;
    m_slider.GetChannelRect(channel);
    COLORREF text = 0;
    COLORREF ground = 0;
    COLORREF plainText = 0;
    COLORREF plainGround = 0;
    ASSERT_TRUE(m_list.GetItemColors(0, 0, plainText, plainGround));
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
        EXPECT_TRUE(m_list.GetItemColors(3, 1, text, ground));
        EXPECT_EQ(text, own_text);
        EXPECT_EQ(ground, own_ground);
        EXPECT_TRUE(m_list.GetItemColors(0, 0, text, ground));
        EXPECT_EQ(text, plainText);
        EXPECT_EQ(ground, plainGround);
        std::unique_ptr<Canvas> const painted = Shot(m_list);
        int others = 0;
        for (int y = cell.top + 1; y < cell.bottom - 1; ++y)
        {
            for (int x = cell.left + 1; x < cell.right - 1; ++x)
                others += painted->Pixel(x, y) != list->Pixel(x, y) ? 1 : 0;
        }
        EXPECT_EQ(others, 0) << "pixels of the cell";
        EXPECT_EQ(GroundOf(*painted, cell), own_ground);
        CRect const blank(5, Cell(5, 0).bottom + 5, 300, Cell(5, 0).bottom + 15);
        EXPECT_EQ(GroundOf(*painted, blank), control_colors::Of(m_list.m_hWnd).window);
        std::unique_ptr<Canvas> const level = Shot(m_slider);
        for (int x = channel.left + 3; x < channel.right - 3; x += 5)
        {
            EXPECT_EQ(level->Pixel(x, channel.CenterPoint().y), slider->Pixel(x, channel.CenterPoint().y))
                << "slider at " << x;
        }
        // The edges are no choice of the host's.
        std::unique_ptr<Canvas> const pushed = Shot(m_button);
        int strange = 0;
        for (int y = 3; y < button->Height() - 3; ++y)
        {
            for (int x = 3; x < button->Width() - 3; ++x)
                strange += button->Pixel(x, y) != pushed->Pixel(x, y) ? 1 : 0;
        }
        EXPECT_EQ(strange, 0) << "pixels of the button";
    }
}

TEST_F(OutsideColorsPaint, ATextOfNobodysIsReadableOnAHostsGround)
{
    COLORREF text = 0;
    COLORREF ground = 0;
    ASSERT_TRUE(m_list.GetItemColors(0, 0, text, ground));
    constexpr COLORREF grounds[] = {RGB(255, 255, 200), RGB(20, 20, 60), RGB(128, 128, 128), RGB(255, 0, 0)};
    for (int row = 0; row < 4; ++row)
    {
        m_list.SetEnabled(row, true);
        m_list.SetItemText(row, 0, L"MMHH");
        m_list.SetItemColors(row, 0, text, grounds[row], XLISTCTRLDATA::no_gradient);
    }
    m_list.SetNoSelection();
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
        std::unique_ptr<Canvas> const shot = Shot(m_list);
        for (int row = 0; row < 4; ++row)
        {
            CRect rect = Cell(row, 0);
            rect.DeflateRect(2, 2);
            EXPECT_EQ(GroundOf(*shot, rect), grounds[row]) << row;
            EXPECT_GE(SeenContrast(*shot, rect), least) << row;
        }
    }
}

TEST_F(OutsideColorsPaint, AButtonsCaptionIsReadableOnAHostsGround)
{
    class Button : public CColorButton
    {
    public:
        explicit Button(COLORREF ground) { m_bgColor = m_hotBgColor = m_disabledBgColor = ground; }
    };
    m_slider.ShowWindow(SW_HIDE);
    for (COLORREF const ground : {RGB(128, 128, 128), RGB(255, 0, 0), RGB(0, 0, 90), RGB(255, 255, 220)})
    {
        Button button(ground);
        ASSERT_TRUE(button.Create(L"MMHH", WS_CHILD | WS_VISIBLE, CRect(0, 185, 110, 225), m_host, 30));
        for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
        {
            ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
            for (BOOL const enabled : {TRUE, FALSE})
            {
                button.EnableWindow(enabled);
                std::unique_ptr<Canvas> const shot = Shot(button);
                CRect rect(0, 0, shot->Width(), shot->Height());
                rect.DeflateRect(8, 8);
                EXPECT_EQ(GroundOf(*shot, rect), ground) << "enabled " << enabled << ", set " << static_cast<int>(set);
                EXPECT_GE(SeenContrast(*shot, rect), least) << std::hex << ground << ", enabled " << enabled;
            }
        }
        button.DestroyWindow();
    }
}

TEST_F(OutsideColorsPaint, AChoiceWithinAPaintSendsNoMessage)
{
    int calls = 0;
    std::size_t sent = 0;
    m_list.SetCustomDraw(0, 2, [&](int, int, CDC *, CRect const &) {
        if (calls++ != 0)
            return;
        std::size_t const before = m_host.seen.size();
        control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
        control_colors::UseForProcess(ControlColorSet::high_contrast);
        sent = m_host.seen.size() - before;
    });
    m_list.Invalidate();
    m_list.UpdateWindow();
    EXPECT_GE(calls, 1);
    EXPECT_EQ(sent, 0u);
    std::unique_ptr<Canvas> const shot = Shot(m_list);
    EXPECT_EQ(GroundOf(*shot, CRect(5, Cell(5, 0).bottom + 3, 300, Cell(5, 0).bottom + 15)),
              control_colors::Dark().window);
    EXPECT_EQ(GroundOf(*shot, Cell(0, 1)), control_colors::Dark().window) << "painted before the choice, and anew";
    m_list.RemoveCustomDraw(0, 2);
}

// --- Resolution ---

using widths_t = std::vector<int>;

widths_t WidthsOf(CListCtrl & list)
{
    widths_t widths;
    for (int col = 0; col < list.GetHeaderCtrl()->GetItemCount(); ++col)
        widths.push_back(list.GetColumnWidth(col));
    return widths;
}

int RowHeight(CListCtrl & list)
{
    CRect rect;
    list.GetItemRect(0, rect, LVIR_BOUNDS);
    return rect.Height();
}

class OutsideColorsDpi : public OutsideColorsPaint
{
protected:
    void SetUp() override
    {
        OutsideColorsPaint::SetUp();
        // Widths of all sorts, one of none at all.
        for (int const width : {1, 7, 133, 0, 20})
            m_list.AddColumn(L"x", LVCFMT_LEFT, width);
        m_list.CListCtrl::SetColumnWidth(6, 0);
    }
};

template <class Control> void ExpectLimits(Control & control, char const * name)
{
    EXPECT_EQ(control.GetDpi(), 96u) << name;
    EXPECT_FALSE(control.SetDpi(47)) << name;
    EXPECT_FALSE(control.SetDpi(961)) << name;
    EXPECT_FALSE(control.SetDpi(0)) << name;
    EXPECT_FALSE(control.SetDpi(0xFFFFFFFF)) << name;
    EXPECT_EQ(control.GetDpi(), 96u) << name;
    EXPECT_TRUE(control.SetDpi(48)) << name;
    EXPECT_EQ(control.GetDpi(), 48u) << name;
    EXPECT_TRUE(control.SetDpi(960)) << name;
    EXPECT_FALSE(control.SetDpi(961)) << name;
    EXPECT_EQ(control.GetDpi(), 960u) << name;
    EXPECT_TRUE(control.SetDpi(96)) << name;
}

TEST_F(OutsideColorsDpi, OnlyResolutionsFrom48To960AreTaken)
{
    CXTableCtrl table;
    CFreeIconButton icon;
    CComboBoxX combo;
    CXEditBrowseCtrl browse;
    CIdNameMultiselectCtrl multiselect;
    ASSERT_TRUE(table.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), m_host, 10));
    ASSERT_TRUE(icon.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), m_host, 11));
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), m_host, 12));
    widths_t const before = WidthsOf(m_list);
    int const height = RowHeight(m_list);
    ExpectLimits(m_list, "list");
    ExpectLimits(table, "table");
    ExpectLimits(m_slider, "slider");
    ExpectLimits(m_button, "button");
    ExpectLimits(icon, "icon button");
    ExpectLimits(combo, "combo");
    ExpectLimits(browse, "browse edit without a window");
    ExpectLimits(multiselect, "multiselect without a window");
    EXPECT_EQ(WidthsOf(m_list), before);
    EXPECT_EQ(RowHeight(m_list), height);
    CXListCtrl windowless;
    ExpectLimits(windowless, "list without a window");
    CXTableCtrl windowlessTable;
    ExpectLimits(windowlessTable, "table without a window");
    table.DestroyWindow();
    icon.DestroyWindow();
    combo.DestroyWindow();
}

TEST_F(OutsideColorsDpi, ColumnsKeepTheirShareAndComeBack)
{
    widths_t const before = WidthsOf(m_list);
    std::mt19937 random(7);
    for (int way = 0; way < 20; ++way)
    {
        for (int step = 0; step < 5; ++step)
        {
            UINT const dpi = 48 + random() % (960 - 48 + 1);
            ASSERT_TRUE(m_list.SetDpi(dpi));
            widths_t const now = WidthsOf(m_list);
            ASSERT_EQ(now.size(), before.size());
            for (std::size_t col = 0; col < now.size(); ++col)
                EXPECT_NEAR(now[col], before[col] * static_cast<int>(dpi) / 96.0, 1.0) << dpi << ", column " << col;
        }
        ASSERT_TRUE(m_list.SetDpi(96));
        ASSERT_EQ(WidthsOf(m_list), before) << way;
    }
}

TEST_F(OutsideColorsDpi, AColumnThatWasSizedMeanwhileKeepsWhatItWasGiven)
{
    widths_t expected = WidthsOf(m_list);
    ASSERT_TRUE(m_list.SetDpi(192));
    m_list.CListCtrl::SetColumnWidth(1, 240);
    ASSERT_TRUE(m_list.SetDpi(144));
    EXPECT_EQ(m_list.GetColumnWidth(1), 180);
    ASSERT_TRUE(m_list.SetDpi(96));
    expected[1] = 120;
    EXPECT_EQ(WidthsOf(m_list), expected);
}

TEST_F(OutsideColorsDpi, RowsFollowAndAreAsBeforeAtTheEnd)
{
    std::unique_ptr<Canvas> const before = Shot(m_host);
    int const height = RowHeight(m_list);
    int last = height;
    CImageList * const states = m_list.CListCtrl::GetImageList(LVSIL_STATE);
    EXPECT_EQ(states, nullptr);
    for (UINT const dpi : {144u, 192u, 288u, 480u})
    {
        ASSERT_TRUE(m_list.SetDpi(dpi));
        EXPECT_EQ(m_list.CListCtrl::GetImageList(LVSIL_STATE), nullptr);
        EXPECT_GE(RowHeight(m_list), last) << dpi;
        last = RowHeight(m_list);
        EXPECT_EQ(m_list.GetCellPadding(), 5);
    }
    EXPECT_GT(last, 2 * height) << "boxes of five times the size";
    ASSERT_TRUE(m_slider.SetDpi(192));
    ASSERT_TRUE(m_button.SetDpi(192));
    ASSERT_TRUE(m_list.SetDpi(96));
    ASSERT_TRUE(m_slider.SetDpi(96));
    ASSERT_TRUE(m_button.SetDpi(96));
    EXPECT_EQ(RowHeight(m_list), height);
    EXPECT_TRUE(tests::SamePixels(*before, *Shot(m_host)));
}

TEST_F(OutsideColorsDpi, WhoFollowsHasTheWindowsResolutionAtOnce)
{
    using window_dpi_t = UINT(WINAPI *)(HWND);
    auto const ask = reinterpret_cast<window_dpi_t>(
        reinterpret_cast<void *>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    ASSERT_NE(ask, nullptr);
    UINT const real = ask(m_list.m_hWnd);
    widths_t const before = WidthsOf(m_list);
    ASSERT_TRUE(m_list.SetDpi(192));
    m_list.FollowDpi(TRUE);
    EXPECT_EQ(m_list.GetDpi(), real);
    // A host's own choice, until the next change of the window's.
    ASSERT_TRUE(m_list.SetDpi(192));
    m_list.SendMessage(WM_DPICHANGED_AFTERPARENT);
    EXPECT_EQ(m_list.GetDpi(), real);
    m_list.FollowDpi(FALSE);
    ASSERT_TRUE(m_list.SetDpi(192));
    m_list.SendMessage(WM_DPICHANGED_AFTERPARENT);
    EXPECT_EQ(m_list.GetDpi(), 192u);
    ASSERT_TRUE(m_list.SetDpi(96));
    EXPECT_EQ(WidthsOf(m_list), before);
}

TEST_F(OutsideColorsDpi, SetDpiWithinAWidthsNotification)
{
    widths_t const before = WidthsOf(m_list);
    ASSERT_TRUE(m_list.SetDpi(192));
    widths_t const wanted = WidthsOf(m_list);
    int const height = RowHeight(m_list);
    ASSERT_TRUE(m_list.SetDpi(96));
    for (UINT const code : {UINT{HDN_ITEMCHANGINGW}, UINT{HDN_ITEMCHANGEDW}})
    {
        int calls = 0;
        m_list.m_hook = [&](UINT heard) {
            if (heard == code && ++calls == 2)
                m_list.SetDpi(192);
            return false;
        };
        EXPECT_TRUE(m_list.SetDpi(144));
        m_list.m_hook = nullptr;
        EXPECT_GE(calls, 2);
        EXPECT_EQ(m_list.GetDpi(), 192u) << "the later word";
        EXPECT_EQ(WidthsOf(m_list), wanted) << code;
        EXPECT_EQ(RowHeight(m_list), height);
        ASSERT_TRUE(m_list.SetDpi(48));
        ASSERT_TRUE(m_list.SetDpi(96));
        EXPECT_EQ(WidthsOf(m_list), before) << code;
    }
}

TEST_F(OutsideColorsDpi, SetDpiWithinCallbacksAndPaints)
{
    widths_t const before = WidthsOf(m_list);
    int painted = 0;
    m_list.SetCustomDraw(0, 1, [&](int, int, CDC *, CRect const &) {
        if (painted++ == 0)
            m_list.SetDpi(144);
    });
    m_list.Invalidate();
    m_list.UpdateWindow();
    Settle(m_host);
    EXPECT_GE(painted, 1);
    EXPECT_EQ(m_list.GetDpi(), 144u);
    m_list.RemoveCustomDraw(0, 1);
    int clicks = 0;
    m_list.m_onCellClick = [&](int, int) {
        ++clicks;
        m_list.SetDpi(192);
    };
    CRect const rect = Cell(1, 0);
    tests::Click(tests::ClientPoint(m_list, {rect.left + 8, rect.CenterPoint().y}));
    EXPECT_TRUE(tests::PumpUntil([&] { return clicks == 1; }, 10s));
    tests::PumpPosted();
    EXPECT_EQ(m_list.GetDpi(), 192u);
    EXPECT_EQ(m_list.GetCheckbox(1, 0), XLC_UNCHECKED) << "the click goes on";
    m_list.m_onCellClick = nullptr;
    ASSERT_TRUE(m_list.SetDpi(96));
    EXPECT_EQ(WidthsOf(m_list), before);
}

TEST_F(OutsideColorsDpi, AnOpenEditIsTaken)
{
    CRect const rect = Cell(1, 2);
    m_list.SetFocus();
    tests::Click(tests::ClientPoint(m_list, rect.CenterPoint()));
    ASSERT_TRUE(tests::PumpUntil([&] { return ClassOf(::GetFocus()) == L"Edit"; }, 10s)) << TextOf(::GetFocus());
    ::SetWindowTextW(::GetFocus(), L"typed");
    ASSERT_TRUE(m_list.SetDpi(144));
    tests::PumpPosted();
    EXPECT_EQ(W(m_list.CListCtrl::GetItemText(1, 2)), L"typed");
    EXPECT_NE(ClassOf(::GetFocus()), L"Edit");
    ASSERT_TRUE(m_list.SetDpi(96));
}

/// Ends with its window.
template <class Control> class SelfEnding : public Hearing<Control>
{
public:
    explicit SelfEnding(bool & gone) : m_gone(gone) {}

protected:
    void PostNcDestroy() override
    {
        m_gone = true;
        delete this;
    }

private:
    bool & m_gone;
};

// In answer to the question ahead of the change, which it refuses; behind it a plain list does not bear to end.
TEST_F(OutsideColorsDpi, AListThatEndsInTheNotificationOfItsWidth)
{
    for (bool const object : {false, true})
    {
        for (int place = 1; place < 4; ++place)
        {
            tests::GuardedHeap const heap;
            Hearing<CXListCtrl> kept;
            bool gone = false;
            Hearing<CXListCtrl> * const list = object ? new SelfEnding<CXListCtrl>(gone) : &kept;
            ASSERT_TRUE(list->Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 100), m_host, 20));
            for (int col = 0; col < 3; ++col)
                list->AddColumn(L"x", LVCFMT_LEFT, 50 + col);
            list->AddItem(L"row", nullptr, 0);
            HWND const window = list->m_hWnd;
            int calls = 0;
            list->m_hook = [&](UINT heard) {
                if (heard != UINT{HDN_ITEMCHANGINGW} || ++calls != place)
                    return false;
                list->DestroyWindow();
                return true;
            };
            list->SetDpi(192);
            EXPECT_EQ(calls, place);
            EXPECT_FALSE(::IsWindow(window));
            EXPECT_EQ(gone, object);
        }
    }
}

// --- The table ---

/// Names, numbers, ticks and links; number and tick can be changed.
class FourColumns : public TableSource
{
public:
    TableRow RowCount() const override { return static_cast<TableRow>(ticks.size()); }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row >= ticks.size() || column > 3)
            return false;
        if (column == 0)
            value.SetText(L"name " + std::to_wstring(row));
        else if (column == 1)
            value.SetNumber(numbers[row]);
        else if (column == 2)
            value.SetTick(ticks[row]);
        else
            value.SetLink(L"link");
        return true;
    }
    bool Write(TableRow row, unsigned int column, TableValue const & value) override
    {
        if (row >= ticks.size())
            return false;
        if (column == 1)
            numbers[row] = value.Number();
        else
            ticks[row] = value.Whole() != 0;
        return true;
    }

    std::vector<bool> ticks = std::vector<bool>(8);
    std::vector<double> numbers = std::vector<double>(8, 1.5);
};

using cursor_t = std::pair<TableRow, unsigned int>;

class OutsideColorsTable : public testing::Test
{
protected:
    void SetUp() override
    {
        ::CoInitialize(nullptr);
        ASSERT_TRUE(m_table->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 380, 240), m_host, 7));
        TableLocale locale;
        locale.decimalSign = L'.';
        m_table->SetTableLocale(locale);
        std::vector<TableColumn> columns(4);
        columns[0].title = L"Name";
        columns[1].title = L"Number";
        columns[1].kind = TableKind::floating;
        columns[1].editable = true;
        columns[2].title = L"Tick";
        columns[2].kind = TableKind::tick;
        columns[2].editable = true;
        columns[3].title = L"Link";
        columns[3].kind = TableKind::link;
        for (TableColumn & column : columns)
            column.width = 70;
        m_table->SetColumns(columns);
        m_table->SetSource(m_rows);
        m_table->UpdateNow();
        ASSERT_TRUE(tests::BringToFront(m_host));
        m_table->SetFocus();
        ASSERT_EQ(::GetFocus(), m_table->m_hWnd);
    }
    void TearDown() override
    {
        if (m_table && m_table->GetSafeHwnd() != nullptr)
            m_table->DestroyWindow();
        ::CoUninitialize();
    }
    /// Where the key leads.
    testing::AssertionResult Leads(WORD key, std::initializer_list<WORD> modifiers, cursor_t expected)
    {
        tests::Key(key, modifiers);
        if (tests::PumpUntil([&] { return m_table->GetCellCursor() == expected; }, 5s))
            return testing::AssertionSuccess();
        cursor_t const cursor = m_table->GetCellCursor();
        return testing::AssertionFailure() << cursor.first << ", " << cursor.second;
    }
    static VARIANT Child(long number)
    {
        VARIANT which{};
        which.vt = VT_I4;
        which.lVal = number;
        return which;
    }
    static std::wstring Take(BSTR text)
    {
        std::wstring copy(text != nullptr ? text : L"");
        ::SysFreeString(text);
        return copy;
    }
    IAccessible * Ask()
    {
        IAccessible * object = nullptr;
        EXPECT_EQ(::AccessibleObjectFromWindow(m_table->m_hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                               reinterpret_cast<void **>(&object)),
                  S_OK);
        return object;
    }
    static IAccessible * RowOf(IAccessible & table, long number)
    {
        IDispatch * child = nullptr;
        IAccessible * row = nullptr;
        if (table.get_accChild(Child(number), &child) == S_OK && child != nullptr)
        {
            EXPECT_EQ(child->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(&row)), S_OK);
            child->Release();
        }
        return row;
    }

    Host m_host;
    std::shared_ptr<FourColumns> m_rows = std::make_shared<FourColumns>();
    std::unique_ptr<CXTableCtrl> m_table = std::make_unique<CXTableCtrl>();
};

TEST_F(OutsideColorsTable, WithoutACursorThereIsNone)
{
    ASSERT_TRUE(m_table->GoToRow(2));
    EXPECT_FALSE(m_table->HasCellCursor());
    EXPECT_EQ(m_table->GetCellCursor().first, no_table_row);
    EXPECT_FALSE(m_table->SetCellCursor(1, 1));
    EXPECT_EQ(m_table->FocusRow(), 2u);
    tests::Key(VK_END);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->FocusRow() == 7; }, 5s));
    tests::Key(VK_HOME);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->FocusRow() == 0; }, 5s));
    m_table->EnableCellCursor();
    EXPECT_TRUE(m_table->HasCellCursor());
    EXPECT_TRUE(m_table->SetCellCursor(1, 3));
    EXPECT_EQ(m_table->GetCellCursor(), (cursor_t{1, 3}));
    EXPECT_FALSE(m_table->SetCellCursor(8, 0));
    EXPECT_FALSE(m_table->SetCellCursor(0, 4));
    EXPECT_EQ(m_table->GetCellCursor(), (cursor_t{1, 3}));
    m_table->EnableCellCursor(false);
    EXPECT_EQ(m_table->GetCellCursor().first, no_table_row);
}

TEST_F(OutsideColorsTable, KeysMoveTheCursor)
{
    m_table->EnableCellCursor();
    ASSERT_TRUE(m_table->SetCellCursor(0, 0));
    EXPECT_EQ(m_table->SelectedRows(), std::vector<TableRow>{0});
    EXPECT_TRUE(Leads(VK_RIGHT, {}, {0, 1}));
    EXPECT_TRUE(Leads(VK_DOWN, {}, {1, 1}));
    EXPECT_TRUE(Leads(VK_END, {}, {1, 3}));
    EXPECT_TRUE(Leads(VK_LEFT, {}, {1, 2}));
    EXPECT_TRUE(Leads(VK_HOME, {}, {1, 0}));
    EXPECT_TRUE(Leads(VK_RIGHT, {VK_CONTROL}, {1, 3}));
    EXPECT_TRUE(Leads(VK_LEFT, {VK_CONTROL}, {1, 0}));
    EXPECT_TRUE(Leads(VK_END, {VK_CONTROL}, {7, 3}));
    EXPECT_TRUE(Leads(VK_UP, {}, {6, 3}));
    EXPECT_EQ(m_table->SelectedRows(), std::vector<TableRow>{6});
    EXPECT_TRUE(Leads(VK_HOME, {VK_CONTROL}, {0, 0}));
    // Hidden columns are not stepped on, and nothing leads past the ends.
    ASSERT_TRUE(m_table->HideTableColumn(1, true));
    EXPECT_FALSE(m_table->SetCellCursor(0, 1));
    EXPECT_TRUE(Leads(VK_RIGHT, {}, {0, 2}));
    ASSERT_TRUE(m_table->HideTableColumn(2, true));
    unsigned int const column = m_table->GetCellCursor().second;
    EXPECT_TRUE(column == 0 || column == 3) << column;
    EXPECT_TRUE(Leads(VK_END, {}, {0, 3}));
    tests::Key(VK_RIGHT);
    tests::Key(VK_UP);
    EXPECT_TRUE(Leads(VK_DOWN, {}, {1, 3}));
    EXPECT_TRUE(m_table->EndEdit(false));
}

TEST_F(OutsideColorsTable, KeysActAtTheCursor)
{
    std::vector<cursor_t> links;
    m_table->m_onLinkClick = [&](TableRow row, unsigned int column) { links.emplace_back(row, column); };
    m_table->EnableCellCursor();
    ASSERT_TRUE(m_table->SetCellCursor(2, 2));
    tests::Key(VK_SPACE);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_rows->ticks[2]; }, 5s));
    ASSERT_TRUE(m_table->SetCellCursor(2, 3));
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return !links.empty(); }, 5s));
    EXPECT_EQ(links, (std::vector<cursor_t>{{2, 3}}));
    ASSERT_TRUE(m_table->SetCellCursor(2, 1));
    tests::Type(L"4");
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->IsEditing() && TextOf(::GetFocus()) == L"4"; }, 5s));
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return !m_table->IsEditing(); }, 5s));
    EXPECT_EQ(m_rows->numbers[2], 4);
    // From the number to the tick, to the next row's number, and back.
    ASSERT_TRUE(m_table->SetCellCursor(2, 0));
    EXPECT_TRUE(Leads(VK_TAB, {}, {2, 1}));
    EXPECT_TRUE(Leads(VK_TAB, {}, {2, 2}));
    EXPECT_TRUE(Leads(VK_TAB, {}, {3, 1}));
    EXPECT_TRUE(Leads(VK_TAB, {VK_SHIFT}, {2, 2}));
    EXPECT_TRUE(m_table->EndEdit(false));
    widths_t const before = WidthsOf(*m_table);
    tests::Key(VK_ADD, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return WidthsOf(*m_table) != before; }, 5s));
}

TEST_F(OutsideColorsTable, RowsAndCellsAreTold)
{
    IAccessible * const table = Ask();
    ASSERT_NE(table, nullptr);
    long count = 0;
    EXPECT_EQ(table->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 8);
    ASSERT_TRUE(m_table->HideTableColumn(1, true));
    IAccessible * const row = RowOf(*table, 3);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 3);
    BSTR text = nullptr;
    EXPECT_EQ(row->get_accValue(Child(1), &text), S_OK);
    EXPECT_EQ(Take(std::exchange(text, nullptr)), L"name 2");
    EXPECT_EQ(row->get_accName(Child(2), &text), S_OK);
    EXPECT_EQ(Take(std::exchange(text, nullptr)), L"Tick");
    // The default action ticks, as a click does.
    VARIANT state{};
    EXPECT_EQ(row->get_accState(Child(2), &state), S_OK);
    EXPECT_EQ(state.lVal & STATE_SYSTEM_CHECKED, 0);
    EXPECT_EQ(row->accDoDefaultAction(Child(2)), S_OK);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_rows->ticks[2]; }, 5s));
    EXPECT_EQ(row->get_accState(Child(2), &state), S_OK);
    EXPECT_NE(state.lVal & STATE_SYSTEM_CHECKED, 0);
    // Rows that a filter keeps out are not there.
    TableFilter filter;
    filter.predicate = [](TableSource const &, TableRow which) { return which % 2 == 1; };
    m_table->SetRowFilter(filter);
    m_table->UpdateNow();
    EXPECT_EQ(table->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(row->get_accValue(Child(1), &text), S_OK);
    EXPECT_EQ(Take(std::exchange(text, nullptr)), L"name 5") << "an object stands for a place";
    row->Release();
    table->Release();
}

TEST_F(OutsideColorsTable, ProgramsSelectRows)
{
    IAccessible * const table = Ask();
    ASSERT_NE(table, nullptr);
    VARIANT selection{};
    EXPECT_EQ(table->accSelect(SELFLAG_TAKESELECTION | SELFLAG_TAKEFOCUS, Child(4)), S_OK);
    EXPECT_EQ(m_table->SelectedRows(), std::vector<TableRow>{3});
    EXPECT_EQ(m_table->FocusRow(), 3u);
    EXPECT_EQ(table->get_accSelection(&selection), S_OK);
    EXPECT_TRUE(selection.vt == VT_I4 || selection.vt == VT_DISPATCH) << selection.vt;
    ::VariantClear(&selection);
    EXPECT_EQ(table->accSelect(SELFLAG_ADDSELECTION, Child(6)), S_OK);
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{3, 5}));
    EXPECT_EQ(table->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_UNKNOWN);
    IEnumVARIANT * several = nullptr;
    ASSERT_EQ(selection.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(&several)), S_OK);
    ::VariantClear(&selection);
    VARIANT items[4] = {};
    ULONG fetched = 0;
    EXPECT_EQ(several->Next(4, items, &fetched), S_FALSE);
    EXPECT_EQ(fetched, 2u);
    for (VARIANT & item : items)
        ::VariantClear(&item);
    several->Release();
    EXPECT_EQ(table->accSelect(SELFLAG_REMOVESELECTION, Child(4)), S_OK);
    EXPECT_EQ(m_table->SelectedRows(), std::vector<TableRow>{5});
    VARIANT state{};
    EXPECT_EQ(table->get_accState(Child(6), &state), S_OK);
    EXPECT_NE(state.lVal & STATE_SYSTEM_SELECTED, 0);
    EXPECT_EQ(table->get_accState(Child(4), &state), S_OK);
    EXPECT_EQ(state.lVal & STATE_SYSTEM_SELECTED, 0);
    EXPECT_EQ(table->accSelect(SELFLAG_TAKESELECTION, Child(9)), E_INVALIDARG);
    EXPECT_EQ(m_table->SelectedRows(), std::vector<TableRow>{5});
    table->Release();
}

TEST_F(OutsideColorsTable, ObjectsThatAreKeptSayThatItIsGone)
{
    for (bool const object : {false, true})
    {
        if (!m_table || m_table->GetSafeHwnd() == nullptr)
        {
            m_table = std::make_unique<CXTableCtrl>();
            ASSERT_TRUE(m_table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 380, 240), m_host, 7));
            m_table->SetColumns(std::vector<TableColumn>(2));
            m_table->SetSource(m_rows);
            m_table->UpdateNow();
        }
        IAccessible * const table = Ask();
        ASSERT_NE(table, nullptr);
        IAccessible * const row = RowOf(*table, 2);
        ASSERT_NE(row, nullptr);
        m_table->SelectAllRows();
        VARIANT selection{};
        EXPECT_EQ(table->get_accSelection(&selection), S_OK);
        EXPECT_EQ(selection.vt, VT_UNKNOWN);
        if (object)
            m_table.reset();
        else
            m_table->DestroyWindow();
        for (IAccessible * const each : {table, row})
        {
            long count = 0;
            BSTR text = nullptr;
            VARIANT value{};
            EXPECT_EQ(each->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->get_accName(Child(CHILDID_SELF), &text), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->get_accValue(Child(1), &text), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->get_accState(Child(1), &value), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->get_accFocus(&value), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->get_accSelection(&value), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->accHitTest(1, 1, &value), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->accSelect(SELFLAG_TAKESELECTION, Child(1)), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->accDoDefaultAction(Child(1)), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(each->accNavigate(NAVDIR_NEXT, Child(1), &value), CO_E_OBJNOTCONNECTED);
            EXPECT_EQ(text, nullptr);
        }
        ::VariantClear(&selection);
        EXPECT_EQ(row->Release(), 0u);
        EXPECT_EQ(table->Release(), 0u);
    }
}

TEST_F(OutsideColorsTable, ColumnsOfATableComeBackFromOtherResolutions)
{
    widths_t const before = WidthsOf(*m_table);
    EXPECT_EQ(before, (widths_t{70, 70, 70, 70}));
    int const height = RowHeight(*m_table);
    std::mt19937 random(9);
    for (int step = 0; step < 30; ++step)
    {
        UINT const dpi = 48 + random() % (960 - 48 + 1);
        ASSERT_TRUE(m_table->SetDpi(dpi));
        for (int const width : WidthsOf(*m_table))
            EXPECT_NEAR(width, 70 * static_cast<int>(dpi) / 96.0, 1.0) << dpi;
    }
    ASSERT_TRUE(m_table->SetDpi(480));
    EXPECT_GT(RowHeight(*m_table), 2 * height);
    ASSERT_TRUE(m_table->SetDpi(192));
    m_table->SetColumnWidth(1, 100);
    ASSERT_TRUE(m_table->SetDpi(96));
    EXPECT_EQ(WidthsOf(*m_table), (widths_t{70, 50, 70, 70}));
    EXPECT_EQ(RowHeight(*m_table), height);
}

TEST_F(OutsideColorsTable, ATextOfNobodysIsReadableOnAHostsGround)
{
    static constexpr COLORREF grounds[] = {RGB(255, 255, 200), RGB(20, 20, 60), RGB(128, 128, 128), RGB(255, 0, 0)};
    class Colored : public CXTableCtrl
    {
    protected:
        void GetCellColors(TableRow row, unsigned int column, COLORREF &, COLORREF & background) override
        {
            if (column == 0 && row < 4)
                background = grounds[row];
        }
    };
    m_table->ShowWindow(SW_HIDE);
    Colored table;
    ASSERT_TRUE(table.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 150), m_host, 20));
    table.SetColumns(std::vector<TableColumn>(2));
    table.SetSource(m_rows);
    table.UpdateNow();
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        ASSERT_TRUE(control_colors::UseFor(m_host.m_hWnd, set));
        tests::PumpPosted();
        table.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        Canvas canvas(300, 150);
        canvas.CopyFromScreen(table);
        for (int row = 0; row < 4; ++row)
        {
            CRect rect;
            table.GetItemRect(row, rect, LVIR_BOUNDS);
            rect.right = rect.left + table.GetColumnWidth(0);
            rect.DeflateRect(2, 2);
            EXPECT_EQ(GroundOf(canvas, rect), grounds[row]) << row;
            EXPECT_GE(SeenContrast(canvas, rect), least) << row;
        }
    }
    table.DestroyWindow();
}

TEST_F(OutsideColorsTable, SetDpiOfATableWithinAWidthsNotification)
{
    for (UINT const code : {UINT{HDN_ITEMCHANGINGW}, UINT{HDN_ITEMCHANGEDW}})
    {
        Hearing<CXTableCtrl> table;
        ASSERT_TRUE(table.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 100), m_host, 20));
        table.SetColumns(std::vector<TableColumn>(3));
        table.SetSource(m_rows);
        table.UpdateNow();
        widths_t const before = WidthsOf(table);
        int const height = RowHeight(table);
        int calls = 0;
        table.m_hook = [&](UINT heard) {
            if (heard == code && ++calls == 2)
                table.SetDpi(480);
            return false;
        };
        EXPECT_TRUE(table.SetDpi(144));
        table.m_hook = nullptr;
        tests::PumpPosted();
        EXPECT_GE(calls, 2);
        EXPECT_EQ(table.GetDpi(), 480u);
        EXPECT_EQ(WidthsOf(table), (widths_t{450, 450, 450}));
        EXPECT_GT(RowHeight(table), 2 * height);
        EXPECT_TRUE(table.SetDpi(96));
        EXPECT_EQ(WidthsOf(table), before);
        EXPECT_EQ(RowHeight(table), height);
        table.DestroyWindow();
    }
}

TEST_F(OutsideColorsTable, ATableThatEndsInTheNotificationOfItsWidth)
{
    for (bool const object : {false, true})
    {
        for (int place = 1; place < 4; ++place)
        {
            tests::GuardedHeap const heap;
            Hearing<CXTableCtrl> kept;
            bool gone = false;
            Hearing<CXTableCtrl> * const table = object ? new SelfEnding<CXTableCtrl>(gone) : &kept;
            ASSERT_TRUE(table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 100), m_host, 20));
            table->SetColumns(std::vector<TableColumn>(3));
            table->SetSource(m_rows);
            table->UpdateNow();
            HWND const window = table->m_hWnd;
            int calls = 0;
            table->m_hook = [&](UINT heard) {
                if (heard != UINT{HDN_ITEMCHANGINGW} || ++calls != place)
                    return false;
                table->DestroyWindow();
                return true;
            };
            table->SetDpi(144);
            EXPECT_EQ(calls, place);
            EXPECT_FALSE(::IsWindow(window));
            EXPECT_EQ(gone, object);
        }
    }
}
} // namespace
} // namespace outside::controls
