#include "ProgramTest.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "Pump.h"

namespace
{
constexpr UINT interval = 10; // milliseconds

void (*g_prepare)() = nullptr;
void (*g_script)() = nullptr;
bool g_started = false;
bool g_failed = false;
bool g_finished = false;
int g_waiting = 0; // for dialogs

bool IsWanted(LPCTSTR flag)
{
    return ::_tcsstr(::GetCommandLine(), flag) != nullptr;
}

void Fail(char const * what, char const * file, int line)
{
    std::fprintf(stderr, "%s:%d: not so: %s\n", file, line, what);
    std::fflush(stderr);
    g_failed = true;
}

struct Waiting
{
    CString title;
    std::function<void(HWND)> action;
};

struct Search
{
    CString const & title;
    HWND found;
};

BOOL CALLBACK IsWanted(HWND window, LPARAM parameter)
{
    auto & search = *reinterpret_cast<Search *>(parameter);
    wchar_t name[16] = {};
    ::GetClassName(window, name, 16);
    if (::wcscmp(name, L"#32770") != 0 || !::IsWindowVisible(window) || window == AfxGetMainWnd()->m_hWnd)
        return TRUE;
    if (!search.title.IsEmpty() && ProgramTest::TextOf(window) != search.title)
        return TRUE;
    search.found = window;
    return FALSE;
}

void CALLBACK LookForDialog(HWND, UINT, UINT_PTR id, DWORD);

std::pair<UINT_PTR, Waiting> g_dialog;

void CALLBACK LookForDialog(HWND, UINT, UINT_PTR id, DWORD)
{
    Search search{g_dialog.second.title, nullptr};
    ::EnumThreadWindows(::GetCurrentThreadId(), IsWanted, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr)
        return;
    ::KillTimer(nullptr, id);
    --g_waiting;
    auto const action = std::move(g_dialog.second.action);
    action(search.found);
}
} // namespace

ProgramTest::ProgramTest(void (*prepare)(), void (*script)())
{
    g_prepare = prepare;
    g_script = script;
    if (IsWanted(_T("/selftest")) || IsWanted(_T("/show")))
        ::SetTimer(nullptr, 0, interval, Start);
}

ProgramTest::~ProgramTest()
{
    if (!IsWanted(_T("/selftest")))
        return;
    if (g_finished && !g_failed)
        std::_Exit(0); // a dialog's program ends with the number of its last command
    if (!g_finished)
        std::fprintf(stderr, "the script has not come to its end\n");
    std::fflush(stderr);
    std::_Exit(1);
}

void CALLBACK ProgramTest::Start(HWND, UINT, UINT_PTR id, DWORD)
{
    CWnd * const main = AfxGetMainWnd();
    if (g_started || main == nullptr || !::IsWindow(main->m_hWnd) || !main->IsWindowVisible())
        return;
    g_started = true;
    ::KillTimer(nullptr, id);
    HWND const window = main->m_hWnd;
    try
    {
        tests::PumpPosted();
        g_prepare();
        if (!IsWanted(_T("/selftest")))
            return;
        g_script();
        g_finished = true;
    }
    catch (CException * exception)
    {
        exception->Delete();
        Fail("no exception", __FILE__, __LINE__);
    }
    catch (std::exception const & exception)
    {
        Fail(exception.what(), __FILE__, __LINE__);
    }
    if (g_waiting != 0)
        Fail("the dialog has shown", __FILE__, __LINE__);
    if (::IsWindow(window))
        ::PostMessage(window, WM_CLOSE, 0, 0);
}

void ProgramTest::Check(bool good, char const * what, char const * file, int line)
{
    if (!good)
        Fail(what, file, line);
}

bool ProgramTest::Wait(std::function<bool()> const & condition, char const * what, char const * file, int line)
{
    bool const good = tests::PumpUntil(condition);
    Check(good, what, file, line);
    return good;
}

void ProgramTest::Idle()
{
    tests::PumpPosted();
    AfxGetApp()->OnIdle(0);
}

CFrameWnd & ProgramTest::Frame()
{
    return *static_cast<CFrameWnd *>(AfxGetMainWnd());
}

CWnd * ProgramTest::Find(CRuntimeClass * wanted, CWnd * parent)
{
    for (HWND child = ::GetTopWindow(parent->m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CWnd * const object = CWnd::FromHandlePermanent(child);
        if (object != nullptr && object->IsKindOf(wanted))
            return object;
        if (CWnd * const found = Find(wanted, CWnd::FromHandle(child)))
            return found;
    }
    return nullptr;
}

CString ProgramTest::TextOf(HWND window)
{
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    return text;
}

void ProgramTest::WhenShown(LPCTSTR title, std::function<void(HWND)> action)
{
    ++g_waiting;
    g_dialog.second = {title != nullptr ? title : _T(""), std::move(action)};
    g_dialog.first = ::SetTimer(nullptr, 0, interval, LookForDialog);
}
