// The sets of colours in all parts of the main window.

#include <initializer_list>
#include <utility>
#include <vector>

#include "Bitmap.h"
#include "colours/ControlColors.h"
#include "MainWindowTest.h"

namespace
{
/// Some colours of the system's as long as it lives.
class SystemColours
{
public:
    SystemColours(std::initializer_list<std::pair<int, COLORREF>> colours) : m_former(colours)
    {
        for (auto & [index, colour] : m_former)
        {
            unsigned long const other = std::exchange(colour, ::GetSysColor(index));
            ::SetSysColors(1, &index, &other);
        }
    }
    ~SystemColours()
    {
        for (auto const & [index, colour] : m_former)
        {
            ::SetSysColors(1, &index, &colour);
        }
    }
    SystemColours(SystemColours const &) = delete;
    SystemColours & operator=(SystemColours const &) = delete;

private:
    std::vector<std::pair<int, COLORREF>> m_former;
};

class WorkbenchColours : public tests::MainWindowTest
{
protected:
    void TearDown() override
    {
        control_colors::UseForProcess(ControlColorSet::standard);
        MainWindowTest::TearDown();
    }

    CRecordingList & List() { return m_window->List(); }
    CWnd & Part(int id) { return *m_window->GetDescendantWindow(id); }
    /// A good recording, and one that is cut off.
    void ShowTwo()
    {
        std::filesystem::path const folder = Folder(1);
        tests::WriteRecording(folder / "cut.wav", 48000, 4800);
        std::filesystem::resize_file(folder / "cut.wav", 2000);
        std::ofstream(folder / "zero.wav") << "no recording";
        m_window->ShowTargets({folder});
        ASSERT_TRUE(WaitUntilRead());
    }
    void Choose(ControlColorSet set)
    {
        workbench::Settings settings = workbench::ReadSettings();
        settings.contrast = set;
        m_window->SettingsSheet().m_onAccepted(settings);
        tests::PumpPosted();
    }
    /// How much of a window has a colour, in percent.
    static int Share(CWnd & window, COLORREF colour)
    {
        window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect place;
        window.GetClientRect(&place);
        tests::Canvas picture(place.Width(), place.Height());
        picture.CopyFromScreen(window);
        return picture.Count(colour, place) * 100 / std::max(place.Width() * place.Height(), 1);
    }
};

TEST_F(WorkbenchColours, PlotsAndPanesTakeTheSetsColours)
{
    ShowTwo();
    m_window->ShowPane(CMainWindow::part_frame_measures, true);
    m_window->ShowFolders(true);
    List().SetFocus();
    tests::PumpPosted();
    ControlColors const dark = control_colors::Of(ControlColorSet::dark);
    CWnd & waveform = *Part(IDC_AMPLIFICATION).GetParent();
    CWnd & measures = Part(IDC_MEASURE_PANEL);
    CWnd & frames = Part(IDC_FRAME_MEASURES);
    for (CWnd * const plot : {&waveform, &Part(IDC_WAVEFORM), &Part(IDC_SPECTROGRAM)})
    {
        EXPECT_EQ(Share(*plot, dark.window), 0) << plot->GetDlgCtrlID();
        EXPECT_GT(Share(*plot, ::GetSysColor(COLOR_WINDOW)), 10) << plot->GetDlgCtrlID();
    }
    Choose(ControlColorSet::dark);
    for (CWnd * const plot : {&waveform, &Part(IDC_WAVEFORM), &Part(IDC_SPECTROGRAM)})
    {
        EXPECT_GT(Share(*plot, dark.window), 10) << plot->GetDlgCtrlID();
        EXPECT_LT(Share(*plot, ::GetSysColor(COLOR_WINDOW)), 2) << plot->GetDlgCtrlID();
    }
    EXPECT_GT(Share(measures, dark.window), 20);
    EXPECT_LT(Share(measures, ::GetSysColor(COLOR_BTNFACE)), 2);
    EXPECT_GT(Share(Part(IDC_FRAME_STATUS), dark.window), 50);
    EXPECT_EQ(Share(Part(IDC_FRAME_STATUS), ::GetSysColor(COLOR_BTNFACE)), 0);
    EXPECT_GT(Share(frames, dark.window), 2);
    EXPECT_GT(Share(m_window->Folders(), dark.window), 50);
    EXPECT_LT(Share(m_window->Folders(), ::GetSysColor(COLOR_WINDOW)), 10);
    // And back.
    Choose(ControlColorSet::standard);
    EXPECT_EQ(Share(measures, dark.window), 0);
    EXPECT_EQ(Share(waveform, dark.window), 0);
    EXPECT_GT(Share(m_window->Folders(), ::GetSysColor(COLOR_WINDOW)), 50);
}

TEST_F(WorkbenchColours, TextsOfTheListFollowTheSystemsInHighContrast)
{
    ShowTwo();
    Choose(ControlColorSet::high_contrast);
    auto const colour = [this](char const * what, int line, int column) {
        COLORREF text = 0;
        COLORREF ground = 0;
        EXPECT_TRUE(List().GetItemColors(List().PlaceOf(line), column, text, ground)) << what;
        return std::pair(text, ground);
    };
    SystemColours const scheme{{COLOR_WINDOW, RGB(10, 0, 30)},
                               {COLOR_WINDOWTEXT, RGB(240, 255, 250)},
                               {COLOR_BTNFACE, RGB(0, 0, 0)},
                               {COLOR_GRAYTEXT, RGB(63, 242, 63)}};
    m_window->SendMessage(WM_SYSCOLORCHANGE);
    tests::PumpPosted();
    ControlColors const now = control_colors::Of(ControlColorSet::high_contrast);
    EXPECT_EQ(colour("doubtful", 0, CRecordingList::column_duration), std::pair(now.windowText, now.window));
    EXPECT_EQ(colour("unreadable", 2, CRecordingList::column_name), std::pair(now.disabled, now.window));
}
} // namespace
