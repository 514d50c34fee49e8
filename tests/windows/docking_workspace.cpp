// The workspace: what an application keeps of its panes, and gets back.

#include <random>

#include "ChildProgram.h"
#include "docking_DockTest.h"
#include "ImportPatch.h"

using namespace docking;

namespace
{
constexpr wchar_t company[] = L"docking_workspace";

class WorkspaceApp : public CWinAppEx
{
public:
    WorkspaceApp()
    {
        SetRegistryKey(company);
        EnableLoadWindowPlacement(FALSE);
    }
};

/// A frame with three panes in an application that has a workspace.
class Program
{
public:
    Program() : m_scope(State(m_state)), m_app(std::make_unique<WorkspaceApp>())
    {
        m_frame = new MainFrame;
        m_frame->Create(nullptr, L"Workspace", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(60, 40, 1060, 740));
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        m_window = m_frame->m_hWnd;
        m_app->m_pMainWnd = m_frame;
    }
    ~Program()
    {
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
        m_panes.clear();
        m_app->m_pMainWnd = nullptr;
    }
    Program(Program const &) = delete;
    Program & operator=(Program const &) = delete;

    WorkspaceApp & App() { return *m_app; }
    MainFrame & Frame() { return *m_frame; }
    Pane & operator[](size_t index) { return *m_panes[index]; }
    Pane & AddPane(UINT id)
    {
        m_panes.push_back(std::make_unique<Pane>());
        EXPECT_TRUE(m_panes.back()->Create(L"Pane", m_frame, CRect(0, 0, 200, 150), TRUE, id,
                                           WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
        return *m_panes.back();
    }
    void AddDefault()
    {
        for (UINT id = first_pane; id < first_pane + 3; ++id)
            AddPane(id).DockToFrameWindow(CBRS_ALIGN_LEFT);
    }
    CRect Place(size_t index)
    {
        CRect rect;
        m_panes[index]->GetWindowRect(&rect);
        m_frame->ScreenToClient(&rect);
        return rect;
    }
    bool HasKey(LPCTSTR name) { return m_app->IsStateExists(name) != FALSE; }

private:
    /// Of the same program, with an application of its own.
    static AFX_MODULE_STATE * State(AFX_MODULE_STATE & state)
    {
        state.m_hCurrentInstanceHandle = AfxGetInstanceHandle();
        state.m_hCurrentResourceHandle = AfxGetResourceHandle();
        return &state;
    }

    AFX_MODULE_STATE m_state;
    AFX_MAINTAIN_STATE2 m_scope;
    std::unique_ptr<WorkspaceApp> m_app;
    MainFrame * m_frame = nullptr;
    HWND m_window = nullptr;
    std::vector<std::unique_ptr<Pane>> m_panes;
};

/// One of many arrangements that differ.
void Arrange(Program & program, unsigned number)
{
    DWORD const sides[] = {CBRS_ALIGN_LEFT, CBRS_ALIGN_TOP, CBRS_ALIGN_RIGHT, CBRS_ALIGN_BOTTOM};
    program[0].DockToFrameWindow(sides[number % 4]);
    program[1].DockToWindow(&program[0], sides[number / 4 % 4]);
    if (number / 16 % 2 == 0)
        program[2].AttachToTabWnd(&program[number / 32 % 2], DM_SHOW);
    else
        program[2].FloatPane(CRect(200, 200, 400 + static_cast<int>(number % 8), 400));
}

std::vector<CRect> Places(Program & program)
{
    std::vector<CRect> places;
    for (size_t at = 0; at < 3; ++at)
        places.push_back(program[at].IsPaneVisible() ? program.Place(at) : CRect(0, 0, 0, 0));
    return places;
}

class Workspace : public testing::Test
{
protected:
    void SetUp() override { Forget(); }
    void TearDown() override { Forget(); }
    static void Forget() { ::RegDeleteTree(HKEY_CURRENT_USER, CString(L"Software\\") + company); }
};
} // namespace

TEST_F(Workspace, AnArrangementComesBack)
{
    std::vector<CRect> places;
    {
        Program program;
        program.AddDefault();
        Arrange(program, 6);
        program[1].SetAutoHideMode(TRUE, 0);
        program[2].FloatPane(CRect(200, 220, 480, 400));
        places = Places(program);
        ASSERT_TRUE(program.App().SaveState(&program.Frame()));
        EXPECT_TRUE(program.HasKey(L"Workspace\\BasePane-500"));
        EXPECT_TRUE(program.HasKey(L"Workspace\\Pane-501"));
        EXPECT_FALSE(program.HasKey(L"Workspace\\BasePane-503"));
    }
    Program program;
    program.AddDefault();
    EXPECT_NE(Places(program), places);
    ASSERT_TRUE(program.App().LoadState(&program.Frame()));
    EXPECT_EQ(Places(program), places);
    EXPECT_TRUE(program[1].IsAutoHideMode());
    EXPECT_TRUE(program[2].IsFloating());
    EXPECT_TRUE(program[0].IsRestoredFromRegistry());
}

TEST_F(Workspace, APaneThatComesLaterFindsItsPlace)
{
    std::vector<CRect> places;
    {
        Program program;
        program.AddDefault();
        Arrange(program, 6);
        places = Places(program);
        program.App().SaveState(&program.Frame());
    }
    Program program;
    ASSERT_TRUE(program.App().LoadState(&program.Frame()));
    for (UINT id = first_pane; id < first_pane + 3; ++id)
        EXPECT_TRUE(program.AddPane(id).IsRestoredFromRegistry());
    EXPECT_EQ(Places(program), places);
}

TEST_F(Workspace, APaneThatTheWorkspaceDoesNotKnowStaysWhereItIs)
{
    {
        Program program;
        program.AddPane(first_pane).DockToFrameWindow(CBRS_ALIGN_RIGHT);
        program.App().SaveState(&program.Frame());
    }
    Program program;
    program.AddPane(first_pane).DockToFrameWindow(CBRS_ALIGN_LEFT);
    program.AddPane(first_pane + 1).DockToFrameWindow(CBRS_ALIGN_TOP);
    ASSERT_TRUE(program.App().LoadState(&program.Frame()));
    EXPECT_GT(program.Place(0).left, 0);
    EXPECT_EQ(program.Place(1).top, 0);
    EXPECT_TRUE(program[1].IsPaneVisible());
    EXPECT_FALSE(program[1].IsRestoredFromRegistry());
}

TEST_F(Workspace, APaneWhoseKeyWasDeletedIsForgotten)
{
    {
        Program program;
        program.AddDefault();
        program[0].FloatPane(CRect(200, 220, 480, 400));
        program.App().SaveState(&program.Frame());
    }
    Program program;
    program.App().WriteProfileString(L"Workspace\\BasePane-500", nullptr, nullptr);
    ASSERT_TRUE(program.App().LoadState(&program.Frame()));
    EXPECT_FALSE(program.AddPane(first_pane).IsRestoredFromRegistry());
    EXPECT_FALSE(program[0].IsFloating());
    EXPECT_TRUE(program.AddPane(first_pane + 1).IsRestoredFromRegistry());
}

TEST_F(Workspace, ADamagedOneIsPassedOver)
{
    {
        Program program;
        program.AddDefault();
        Arrange(program, 6);
        program.App().SaveState(&program.Frame());
    }
    Program program;
    program.AddDefault();
    std::vector<CRect> const places = Places(program);
    BYTE * data = nullptr;
    UINT size = 0;
    ASSERT_TRUE(program.App().GetSectionBinary(L"DockingManager", L"Layout", &data, &size));
    std::vector<BYTE> bytes(data, data + size);
    delete[] data;
    bytes[size / 2] ^= 1;
    program.App().WriteSectionBinary(L"DockingManager", L"Layout", bytes.data(), size);
    EXPECT_FALSE(program.App().LoadState(&program.Frame()));
    EXPECT_EQ(Places(program), places);
    program.App().WriteSectionBinary(L"DockingManager", L"Layout", bytes.data(), 3);
    EXPECT_FALSE(program.App().LoadState(&program.Frame()));
    program.App().WriteSectionString(L"DockingManager", L"Layout", L"foreign");
    EXPECT_FALSE(program.App().LoadState(&program.Frame()));
    EXPECT_EQ(Places(program), places);
}

TEST_F(Workspace, AnotherVersionIsPassedOver)
{
    Program program;
    program.AddDefault();
    program.App().SaveState(&program.Frame());
    ASSERT_TRUE(program.App().LoadState(&program.Frame()));
    program.App().WriteInt(L"Version", 0x00020000);
    EXPECT_FALSE(program.App().LoadState(&program.Frame()));
}

TEST_F(Workspace, ItIsForgottenByCleanState)
{
    Program program;
    program.AddDefault();
    program.App().SaveState(&program.Frame());
    EXPECT_TRUE(program.App().CleanState());
    EXPECT_FALSE(program.HasKey(L"Workspace"));
    EXPECT_FALSE(program.App().LoadState(&program.Frame()));
}

TEST_F(Workspace, ItIsKeptWhenTheMainFrameCloses)
{
    {
        Program program;
        program.AddDefault();
        program.Frame().SendMessage(WM_CLOSE);
    }
    Program program;
    EXPECT_TRUE(program.HasKey(L"Workspace\\BasePane-500"));
    EXPECT_TRUE(program.App().LoadState(&program.Frame()));
}

TEST_F(Workspace, AFloatingFrameComesBackOntoTheScreen)
{
    {
        Program program;
        program.AddDefault();
        program[0].FloatPane(CRect(9000, 9000, 9300, 9200));
        program.App().SaveState(&program.Frame());
    }
    Program program;
    program.AddDefault();
    ASSERT_TRUE(program.App().LoadState(&program.Frame()));
    CRect rect;
    program[0].GetParentMiniFrame()->GetWindowRect(&rect);
    EXPECT_NE(::MonitorFromRect(&rect, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_EQ(rect.Size(), CSize(300, 200));
}

TEST_F(Workspace, AFloatingFrameFollowsAScreenThatIsGone)
{
    Program program;
    program.AddDefault();
    program[0].FloatPane(CRect(100, 100, 400, 300));
    CPaneFrameWnd & mini = *program[0].GetParentMiniFrame();
    mini.SetWindowPos(nullptr, 9000, 9000, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    program.Frame().SendMessage(WM_DISPLAYCHANGE, 32, MAKELPARAM(1280, 1024));
    CRect rect;
    mini.GetWindowRect(&rect);
    EXPECT_NE(::MonitorFromRect(&rect, MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_EQ(rect.Size(), CSize(300, 200));
}

TEST_F(Workspace, NoMixOfTwoPlacesOfTheMainFrameIsTaken)
{
    Program program;
    WorkspaceApp & app = program.App();
    std::vector<BYTE> stored[2];
    for (int which = 0; which < 2; ++which)
    {
        ASSERT_TRUE(app.StoreWindowPlacement(CRect(10 + 90 * which, 20, 700 + 50 * which, 600), 0, SW_SHOWNORMAL));
        BYTE * data = nullptr;
        UINT size = 0;
        ASSERT_TRUE(app.GetBinary(L"WindowPlacement", &data, &size));
        stored[which].assign(data, data + size);
        delete[] data;
    }
    CRect rect;
    int flags = 0;
    int show = 0;
    EXPECT_TRUE(app.LoadWindowPlacement(rect, flags, show));
    EXPECT_EQ(rect, CRect(100, 20, 750, 600));
    for (size_t cut = 0; cut <= stored[0].size(); ++cut)
    {
        std::vector<BYTE> bytes(stored[1].begin(), stored[1].begin() + static_cast<std::ptrdiff_t>(cut));
        bytes.insert(bytes.end(), stored[0].begin() + static_cast<std::ptrdiff_t>(cut), stored[0].end());
        bool const whole = bytes == stored[0] || bytes == stored[1];
        app.WriteBinary(L"WindowPlacement", bytes.data(), static_cast<UINT>(bytes.size()));
        EXPECT_EQ(app.LoadWindowPlacement(rect, flags, show) != FALSE, whole) << "cut at " << cut;
        if (cut > 0 && cut < bytes.size())
        {
            app.WriteBinary(L"WindowPlacement", bytes.data(), static_cast<UINT>(cut));
            EXPECT_FALSE(app.LoadWindowPlacement(rect, flags, show)) << "only " << cut;
        }
    }
}

/// Programs that are killed while they save, at one of two arrangements.
class WorkspaceKills : public Workspace
{
protected:
    static constexpr unsigned former = 6;
    static constexpr unsigned wanted = 43;

    void SetUp() override
    {
        Workspace::SetUp();
        for (unsigned const number : {former, wanted})
        {
            Program program;
            program.AddDefault();
            Arrange(program, number);
            (number == former ? m_former : m_wanted) = Places(program);
        }
        ASSERT_NE(m_former, m_wanted);
    }
    static void Store(unsigned number)
    {
        Program program;
        program.AddDefault();
        Arrange(program, number);
        ASSERT_TRUE(program.App().SaveState(&program.Frame()));
    }
    /// As the next start finds it; nothing where it finds none.
    static std::vector<CRect> Stored()
    {
        Program program;
        program.AddDefault();
        return program.App().LoadState(&program.Frame()) ? Places(program) : std::vector<CRect>{};
    }

    std::vector<CRect> m_former;
    std::vector<CRect> m_wanted;
};

/// The registry's functions for a program that ends itself before one of its changes.
namespace ending
{
constexpr UINT code = 44;
int changes_before = 0;

void CountChange()
{
    if (changes_before-- == 0)
        ::TerminateProcess(::GetCurrentProcess(), code);
}

LSTATUS WINAPI CreateKey(HKEY key, LPCWSTR name, DWORD reserved, LPWSTR kind, DWORD options, REGSAM access,
                         SECURITY_ATTRIBUTES const * security, HKEY * result, DWORD * disposition)
{
    HKEY present = nullptr;
    if (::RegOpenKeyExW(key, name, 0, KEY_READ, &present) == ERROR_SUCCESS)
        ::RegCloseKey(present); // nothing changes
    else
        CountChange();
    return ::RegCreateKeyExW(key, name, reserved, kind, options, access, const_cast<SECURITY_ATTRIBUTES *>(security),
                             result, disposition);
}

LSTATUS WINAPI SetValue(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, BYTE const * data, DWORD size)
{
    CountChange();
    return ::RegSetValueExW(key, name, reserved, type, data, size);
}

LSTATUS WINAPI DeleteValue(HKEY key, LPCWSTR name)
{
    CountChange();
    return ::RegDeleteValueW(key, name);
}

LSTATUS WINAPI DeleteTree(HKEY key, LPCWSTR name)
{
    CountChange();
    return ::RegDeleteTreeW(key, name);
}
} // namespace ending

CHILD_PROGRAM(EndsBeforeAChangeOfTheRegistry)
{
    Program program;
    program.AddDefault();
    Arrange(program, 43);
    ending::changes_before = std::stoi(argument);
    tests::ImportPatch const creating(L"framework.dll", "RegCreateKeyExW", &ending::CreateKey);
    tests::ImportPatch const setting(L"framework.dll", "RegSetValueExW", &ending::SetValue);
    tests::ImportPatch const deletingValue(L"framework.dll", "RegDeleteValueW", &ending::DeleteValue);
    tests::ImportPatch const deletingTree(L"framework.dll", "RegDeleteTreeW", &ending::DeleteTree);
    if (!creating.Done() || !setting.Done() || !deletingValue.Done() || !deletingTree.Done())
        return 1;
    return program.App().SaveState(&program.Frame()) ? 0 : 2;
}

TEST_F(WorkspaceKills, BeforeAnyChangeOfTheRegistryLeaveOneOfTheArrangements)
{
    int withFormer = 0;
    for (int change = 0;; ++change)
    {
        Forget();
        Store(former);
        tests::ChildProgram child("EndsBeforeAChangeOfTheRegistry", std::to_wstring(change));
        ASSERT_TRUE(child.WaitForEnd());
        DWORD const code = child.ExitCode();
        ASSERT_TRUE(code == ending::code || code == 0) << code;
        std::vector<CRect> const stored = Stored();
        ASSERT_TRUE(stored == m_former || stored == m_wanted) << "before change " << change;
        withFormer += stored == m_former ? 1 : 0;
        if (code == 0)
        {
            EXPECT_EQ(stored, m_wanted);
            break;
        }
    }
    EXPECT_GT(withFormer, 1);
}

// Saves two arrangements in turns until it is killed.
CHILD_PROGRAM(SavesTwoArrangements)
{
    Program one;
    one.AddDefault();
    Arrange(one, 6);
    Program two;
    two.AddDefault();
    Arrange(two, 43);
    HANDLE const started = ::OpenEvent(EVENT_MODIFY_STATE, FALSE, argument.c_str());
    for (;;)
    {
        two.App().SaveState(&one.Frame());
        two.App().SaveState(&two.Frame());
        ::SetEvent(started);
    }
}

TEST_F(WorkspaceKills, AtAnyInstantLeaveOneOfTheArrangements)
{
    constexpr int kills = 100;
    std::mt19937 random(5);
    int found[2] = {0, 0};
    for (int kill = 0; kill < kills; ++kill)
    {
        Forget();
        CString name;
        name.Format(L"docking_workspace_%u_%d", ::GetCurrentProcessId(), kill);
        HANDLE const started = ::CreateEvent(nullptr, TRUE, FALSE, name);
        {
            tests::ChildProgram child("SavesTwoArrangements", name.GetString());
            ASSERT_TRUE(child.Started());
            ASSERT_EQ(::WaitForSingleObject(started, 300000), WAIT_OBJECT_0);
            // Anywhere within the saves that follow.
            for (unsigned wait = random() % 4000; wait > 0; --wait)
                ::SwitchToThread();
            child.Kill();
            child.WaitForEnd();
        }
        ::CloseHandle(started);
        std::vector<CRect> const stored = Stored();
        ASSERT_TRUE(stored == m_former || stored == m_wanted) << "kill " << kill;
        ++found[stored == m_former ? 0 : 1];
    }
    // Both come up, or the kills have not been spread over the saves.
    EXPECT_GT(found[0], 0);
    EXPECT_GT(found[1], 0);
}
