// Who is painted in which set, and who hears of it.

#include "colours_ColorsTest.h"
#include "ImportPatch.h"
#include "ListTestHost.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
using colours_tests::ProcessChoice;

constexpr ControlColorSet standard = ControlColorSet::standard;
constexpr ControlColorSet dark = ControlColorSet::dark;
constexpr ControlColorSet high_contrast = ControlColorSet::high_contrast;
constexpr ControlColorSet follow_system = ControlColorSet::follow_system;

/// Counts what it is sent.
class CountingWindow : public tests::ScopedWindow
{
public:
    int m_messages = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++m_messages;
        return tests::ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

bool high_contrast_is_on = false;

BOOL WINAPI AnswerForSystem(UINT action, UINT size, void * value, UINT flags)
{
    if (action != SPI_GETHIGHCONTRAST)
        return ::SystemParametersInfoW(action, size, value, flags);
    static_cast<HIGHCONTRASTW *>(value)->dwFlags = high_contrast_is_on ? HCF_HIGHCONTRASTON : 0;
    return TRUE;
}

class ColorsChoice : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &m_host, 1));
        ASSERT_TRUE(m_grandchild.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &m_child, 1));
        ASSERT_TRUE(
            m_owned.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(10, 10, 60, 60), &m_host, 0));
        tests::PumpPosted();
    }
    void TearDown() override
    {
        m_owned.DestroyWindow();
        m_grandchild.DestroyWindow();
        m_child.DestroyWindow();
    }
    static ControlColorSet SetOf(CWnd const & window) { return control_colors::SetOf(window.m_hWnd); }

    ProcessChoice m_restored;
    CountingWindow m_host;
    CWnd m_child;
    CWnd m_grandchild;
    CWnd m_owned;
};

TEST_F(ColorsChoice, NobodysChoiceIsTheStandardSet)
{
    EXPECT_EQ(SetOf(m_grandchild), standard);
    EXPECT_EQ(control_colors::SetOf(nullptr), standard);
    EXPECT_EQ(control_colors::ChosenForProcess(), standard);
}

TEST_F(ColorsChoice, NearestAncestorOrOwnerDecides)
{
    EXPECT_TRUE(control_colors::UseFor(m_host.m_hWnd, dark));
    EXPECT_EQ(SetOf(m_host), dark);
    EXPECT_EQ(SetOf(m_grandchild), dark);
    EXPECT_EQ(SetOf(m_owned), dark);
    EXPECT_TRUE(control_colors::UseFor(m_child.m_hWnd, high_contrast));
    EXPECT_EQ(SetOf(m_grandchild), high_contrast);
    EXPECT_EQ(SetOf(m_owned), dark);
    EXPECT_TRUE(control_colors::UseFor(m_child.m_hWnd, standard));
    EXPECT_EQ(SetOf(m_grandchild), standard);
    control_colors::RemoveFrom(m_child.m_hWnd);
    EXPECT_EQ(SetOf(m_grandchild), dark);
    control_colors::RemoveFrom(m_host.m_hWnd);
    EXPECT_EQ(SetOf(m_grandchild), standard);
}

TEST_F(ColorsChoice, ProcessDecidesForWindowsWithoutAChoice)
{
    control_colors::UseFor(m_child.m_hWnd, standard);
    control_colors::UseForProcess(dark);
    EXPECT_EQ(control_colors::ChosenForProcess(), dark);
    EXPECT_EQ(SetOf(m_host), dark);
    EXPECT_EQ(SetOf(m_grandchild), standard);
    EXPECT_EQ(control_colors::Of(m_host.m_hWnd).window, control_colors::Dark().window);
}

TEST_F(ColorsChoice, NoWindowTakesNoChoice)
{
    EXPECT_FALSE(control_colors::UseFor(nullptr, dark));
    HWND const gone = m_grandchild.m_hWnd;
    m_grandchild.DestroyWindow();
    EXPECT_FALSE(control_colors::UseFor(gone, dark));
    control_colors::RemoveFrom(gone);
}

TEST_F(ColorsChoice, ChangeRepaintsAllBelowAndSendsNothing)
{
    m_host.m_messages = 0;
    for (CWnd * const window : {static_cast<CWnd *>(&m_host), &m_child, &m_grandchild, &m_owned})
    {
        window->ValidateRect(nullptr);
        ASSERT_FALSE(window->GetUpdateRect(nullptr));
    }
    control_colors::UseFor(m_host.m_hWnd, dark);
    EXPECT_EQ(m_host.m_messages, 0);
    for (CWnd * const window : {static_cast<CWnd *>(&m_host), &m_child, &m_grandchild, &m_owned})
        EXPECT_TRUE(window->GetUpdateRect(nullptr));
}

TEST_F(ColorsChoice, SameChoiceRepaintsNothing)
{
    control_colors::UseFor(m_host.m_hWnd, dark);
    tests::PumpPosted();
    m_host.ValidateRect(nullptr);
    control_colors::UseFor(m_host.m_hWnd, dark);
    control_colors::UseForProcess(standard);
    EXPECT_FALSE(m_host.GetUpdateRect(nullptr));
}

TEST_F(ColorsChoice, FollowsTheSystemsFlagWhenAskedTo)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "SystemParametersInfoW", &AnswerForSystem);
    ASSERT_TRUE(patch.Done());
    high_contrast_is_on = true;
    EXPECT_EQ(SetOf(m_host), standard) << "nobody has asked for it";
    control_colors::UseFor(m_host.m_hWnd, follow_system);
    EXPECT_EQ(SetOf(m_child), high_contrast);
    high_contrast_is_on = false;
    EXPECT_EQ(SetOf(m_child), standard);
}

TEST_F(ColorsChoice, StandardColoursAreTheSystems)
{
    ControlColors const colors = control_colors::Of(standard);
    EXPECT_EQ(colors.window, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(colors.windowText, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(colors.selection, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(colors.selectionText, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(colors.face, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(colors.buttonText, ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(colors.disabled, ::GetSysColor(COLOR_GRAYTEXT));
    EXPECT_EQ(colors.edgeHighlight, ::GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(colors.edgeShadow, ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(colors.edgeDark, ::GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(colors.edgeLight, ::GetSysColor(COLOR_3DLIGHT));
    EXPECT_EQ(colors.activeCaption, ::GetSysColor(COLOR_ACTIVECAPTION));
    EXPECT_EQ(colors.inactiveCaption, ::GetSysColor(COLOR_INACTIVECAPTION));
    EXPECT_EQ(colors.inactiveCaptionText, ::GetSysColor(COLOR_INACTIVECAPTIONTEXT));
}
} // namespace
