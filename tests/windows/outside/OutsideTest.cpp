#include "OutsideTest.h"

#include <algorithm>

#include "Pump.h"
#include "TestApp.h"

namespace outside
{
namespace
{
constexpr int no_value = -1000000;
constexpr UINT first_dynamic = 100;
constexpr UINT last_dynamic = 199;
} // namespace

std::wstring TextOf(HWND window)
{
    wchar_t text[512] = {};
    ::GetWindowTextW(window, text, 512);
    return text;
}

CRect ScreenRect(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

CRect RectIn(HWND window, HWND of)
{
    CRect rect = ScreenRect(window);
    CPoint origin;
    ::ClientToScreen(of, &origin);
    rect.OffsetRect(-origin.x, -origin.y);
    return rect;
}

CRect RectInParent(HWND window)
{
    return RectIn(window, ::GetParent(window));
}

CVeskEntry * RecordingStore::CreateEntry(wchar_t const *, int)
{
    return nullptr;
}

lookup::result RecordingStore::LookupSetBool(wchar_t const * key, bool value, std::size_t index)
{
    m_log.push_back(L"set " + std::wstring(key) + L" " + std::to_wstring(index) + (value ? L" true" : L" false"));
    m_values[{key, index}] = value ? 1 : 0;
    return lookup::success;
}

lookup::result RecordingStore::LookupSetInt(wchar_t const * key, int value, std::size_t index)
{
    m_log.push_back(L"set " + std::wstring(key) + L" " + std::to_wstring(index) + L" " + std::to_wstring(value));
    m_values[{key, index}] = value;
    return lookup::success;
}

bool RecordingStore::LookupGetBool(wchar_t const * key, std::size_t index, bool fallback)
{
    m_log.push_back(L"get " + std::wstring(key) + L" " + std::to_wstring(index));
    auto const found = m_values.find({key, index});
    return found == m_values.end() ? fallback : found->second != 0;
}

int RecordingStore::LookupGetInt(wchar_t const * key, std::size_t index, int fallback)
{
    m_log.push_back(L"get " + std::wstring(key) + L" " + std::to_wstring(index));
    auto const found = m_values.find({key, index});
    return found == m_values.end() ? fallback : found->second;
}

int RecordingStore::Delete(wchar_t const * key)
{
    m_log.push_back(L"delete " + std::wstring(key));
    return std::erase_if(m_values, [key](auto const & value) { return value.first.first == key; }) != 0 ? 1 : 0;
}

bool RecordingStore::Has(std::wstring const & key) const
{
    return std::any_of(m_values.begin(), m_values.end(), [&](auto const & value) { return value.first.first == key; });
}

int RecordingStore::Get(std::wstring const & key, std::size_t index) const
{
    auto const found = m_values.find({key, index});
    return found == m_values.end() ? no_value : found->second;
}

void RecordingStore::PutWindow(std::wstring const & name, bool open, CRect const & rect)
{
    Put(name + L"-IstOffen", open ? 1 : 0);
    Put(name + L"-Gestalt", 0);
    Put(name + L"-Fensterpos", rect.top, 0);
    Put(name + L"-Fensterpos", rect.left, 1);
    Put(name + L"-Fensterpos", rect.bottom, 2);
    Put(name + L"-Fensterpos", rect.right, 3);
    Put(name + L"-FensterposMM", -1, 0);
    Put(name + L"-FensterposMM", -1, 1);
    Put(name + L"-FensterposMM", 0, 2);
    Put(name + L"-FensterposMM", 0, 3);
}

CRect RecordingStore::Position(std::wstring const & name) const
{
    std::wstring const key = name + L"-Fensterpos";
    return CRect(Get(key, 1), Get(key, 0), Get(key, 3), Get(key, 2));
}

texts_t RecordingStore::Entries(std::wstring const & beginning) const
{
    texts_t entries;
    std::copy_if(m_log.begin(), m_log.end(), std::back_inserter(entries),
                 [&](std::wstring const & entry) { return entry.starts_with(beginning); });
    return entries;
}

int RecordingStore::Place(std::wstring const & beginning) const
{
    auto const found = std::find_if(m_log.begin(), m_log.end(),
                                    [&](std::wstring const & entry) { return entry.starts_with(beginning); });
    return found == m_log.end() ? -1 : static_cast<int>(found - m_log.begin());
}

CFensterManager * Managers::Find(std::wstring const & name)
{
    for (CFensterManager * const manager : m_managerListe)
    {
        if (Wide(manager->WhoAmI()) == name)
            return manager;
    }
    return nullptr;
}

BEGIN_MESSAGE_MAP(MainFrame, CMDIFrameWndEx)
    ON_COMMAND_RANGE(first_dynamic, last_dynamic, &MainFrame::OnDynamic)
END_MESSAGE_MAP()

MainFrame::MainFrame() : CMainFrmInterface(this) {}

MainFrame::~MainFrame()
{
    if (m_gone != nullptr)
        *m_gone = true;
}

int MainFrame::register_pane(CDockableViewPane *& pane, int id)
{
    m_askedPanes.push_back(id);
    return m_refuse ? -7 : CMainFrmInterface::register_pane(pane, id);
}

void MainFrame::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    m_titles.emplace_back(bAddToTitle, static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE)));
    CMDIFrameWndEx::OnUpdateFrameTitle(bAddToTitle);
}

BOOL MainFrame::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext *)
{
    return CreateClient(lpcs, nullptr);
}

LRESULT MainFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_STYLECHANGED && static_cast<int>(wParam) == GWL_STYLE)
    {
        m_styles.push_back(reinterpret_cast<STYLESTRUCT const *>(lParam)->styleNew);
        if (m_onStyle)
        {
            auto const action = std::exchange(m_onStyle, {});
            action();
            return 0;
        }
    }
    return CMDIFrameWndEx::WindowProc(message, wParam, lParam);
}

void MainFrame::OnDynamic(UINT id)
{
    menu(id);
}

IMPLEMENT_DYNCREATE(PlainView, CView)

BEGIN_MESSAGE_MAP(PlainView, CView)
    ON_WM_CREATE()
END_MESSAGE_MAP()

std::vector<std::string> PlainView::s_made;
int PlainView::s_live = 0;
bool PlainView::s_refuse = false;
std::function<void(PlainView &)> PlainView::s_onCreate;
std::function<void(PlainView &)> PlainView::s_onUpdate;

PlainView::PlainView()
{
    ++s_live;
}

PlainView::~PlainView()
{
    --s_live;
}

void PlainView::Reset()
{
    s_made.clear();
    s_refuse = false;
    s_onCreate = {};
    s_onUpdate = {};
}

void PlainView::OnInitialUpdate()
{
    ++m_initialUpdates;
    CView::OnInitialUpdate();
    if (s_onUpdate)
        s_onUpdate(*this);
}

int PlainView::OnCreate(LPCREATESTRUCT create)
{
    if (CView::OnCreate(create) == -1)
        return -1;
    s_made.push_back(GetRuntimeClass()->m_lpszClassName);
    if (s_onCreate)
        s_onCreate(*this);
    return s_refuse ? -1 : 0;
}

IMPLEMENT_DYNCREATE(NestedView, PlainView)

BEGIN_MESSAGE_MAP(NestedView, PlainView)
    ON_WM_CREATE()
END_MESSAGE_MAP()

int NestedView::OnCreate(LPCREATESTRUCT create)
{
    if (PlainView::OnCreate(create) == -1)
        return -1;
    return m_child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), this, 1) ? 0 : -1;
}

LRESULT NestedView::Child::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == 0x364)
        ++m_updates;
    return CWnd::WindowProc(message, wParam, lParam);
}

IMPLEMENT_DYNCREATE(PlainPane, CWnd)
IMPLEMENT_DYNCREATE(Grid0, PlainView)
IMPLEMENT_DYNCREATE(Grid1, PlainView)
IMPLEMENT_DYNCREATE(Grid2, PlainView)
IMPLEMENT_DYNCREATE(Grid3, PlainView)
IMPLEMENT_DYNCREATE(Grid4, PlainView)
IMPLEMENT_DYNCREATE(Grid5, PlainView)
IMPLEMENT_DYNAMIC(UncreatableView, PlainView)

CStandaloneFrameWnd * User::Open(wchar_t const * title, CRuntimeClass * viewClass)
{
    return CreateFrame(title, viewClass);
}

void User::Note(std::wstring const & event)
{
    m_events.push_back(event);
    if (m_log != nullptr)
        m_log->push_back(event);
}

void User::BeiFrameAbleben()
{
    Note(L"end");
    if (m_onEnd)
        m_onEnd();
    if (m_callsBase)
        CStandaloneFrameUser::BeiFrameAbleben();
}

void User::MenueKommando(int first, int second)
{
    Note(L"menu " + std::to_wstring(first) + L" " + std::to_wstring(second));
}

void User::FrameEreignis(int, unsigned long, void const *, wchar_t const *)
{
    Note(L"event");
}

void User::MausLDoppelKlick(unsigned int flags, CPoint point, int index)
{
    Note(L"left " + std::to_wstring(flags) + L" " + std::to_wstring(point.x) + L" " + std::to_wstring(point.y) + L" " +
         std::to_wstring(index));
    if (m_onClick)
        m_onClick();
}

void User::MausRDoppelKlick(unsigned int flags, CPoint point, int index)
{
    Note(L"right " + std::to_wstring(flags) + L" " + std::to_wstring(point.x) + L" " + std::to_wstring(point.y) + L" " +
         std::to_wstring(index));
}

void FrameTest::SetUp()
{
    m_formerStore = CVeskBase::PreferenceVesk();
    CVeskBase::SetPreferenceVesk(&m_store);
    PlainView::Reset();
    m_main = new MainFrame;
    m_main->m_gone = &m_mainGone;
    ASSERT_TRUE(m_main->Create(nullptr, L"Main", WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, CRect(40, 30, 1040, 830)));
    m_main->EnableDocking(CBRS_ALIGN_ANY);
    m_main->ShowWindow(SW_SHOWNORMAL);
    m_main->UpdateWindow();
    tests::App().m_pMainWnd = m_main;
    tests::PumpPosted();
}

void FrameTest::EndMain()
{
    if (m_main == nullptr || m_mainGone)
        return;
    tests::App().m_pMainWnd = nullptr;
    if (m_main->GetSafeHwnd() != nullptr)
        m_main->DestroyWindow();
    else
        delete m_main;
    tests::PumpPosted();
}

void FrameTest::TearDown()
{
    EndMain();
    EXPECT_TRUE(m_mainGone);
    {
        CFensterManager main(CFensterManager::window_main);
        main.SetNowExit(false);
    }
    CFensterManager::SetNurEinMonitor(true);
    CFensterManager::SetTabbedViews(false);
    CStandaloneFrameWnd::SetTouchFreeze(false);
    CVeskBase::SetPreferenceVesk(m_formerStore);
    PlainView::Reset();
    EXPECT_EQ(PlainView::s_live, 0);
    PlainView::s_live = 0;
}
} // namespace outside
