#include "windows/FensterManager.h"

#include "frame/PreferenceStore.h"
#include "frame/WrappingArithmetic.h"
#include "windows/ReachablePlace.h"
#include "windows/WindowPlatform.h"

IMPLEMENT_DYNAMIC(CFensterManager, CObject)

std::set<CFensterManager *> CFensterManager::m_managerListe;
CSize CFensterManager::m_bildschirmGroesse(0, 0);
bool CFensterManager::m_nurEinMonitor = true;
bool CFensterManager::m_schluss = false;
bool CFensterManager::m_tabbedViews = false;

namespace
{
constexpr wchar_t suffix_open[] = L"-IstOffen";
constexpr wchar_t suffix_shape[] = L"-Gestalt";
constexpr wchar_t suffix_position[] = L"-Fensterpos";
constexpr wchar_t suffix_extremes[] = L"-FensterposMM";
constexpr wchar_t suffix_screens[] = L"-Bildschirme";

constexpr int shape_normal = 0;
constexpr int shape_maximised = 1;
constexpr int shape_iconic = 2;

constexpr int preferred_width = 500;
constexpr int preferred_height = 350;

constexpr int unset_minimised_position = -1;
constexpr int view_maximised_left = -4;
constexpr int view_maximised_top = -23;

// What of a window stays on the screen.
constexpr int visible_from_left = 60;
constexpr int visible_from_right = 40;
constexpr int visible_from_bottom = 60;

constexpr unsigned int placement_length = 44;
constexpr DWORD minimise_and_maximise_box = WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
constexpr unsigned int redraw_frame_without_children = RDW_INVALIDATE | RDW_NOCHILDREN | RDW_FRAME;

/// See KeepWithinReach.
bool keeps_within_reach = false;

static_assert(sizeof(WINDOWPLACEMENT) == placement_length);

CString KeyOf(CString const & name, wchar_t const * suffix)
{
    CString key(name);
    key.Replace(L' ', L'_');
    key.Replace(L':', L'-');
    return key + suffix;
}

CRect Shifted(RECT const & rect, CPoint distance)
{
    return CRect(wrapping::Sum(rect.left, distance.x), wrapping::Sum(rect.top, distance.y),
                 wrapping::Sum(rect.right, distance.x), wrapping::Sum(rect.bottom, distance.y));
}
} // namespace

CFensterManager::CFensterManager(window_t type)
    : m_type(type),
      m_gestalt(shape_normal),
      m_preferred(0, 0, preferred_width, preferred_height),
      m_wnd(nullptr)
{
    init();
}

CFensterManager::CFensterManager(CString const & name, window_t type)
    : m_name(name),
      m_type(type),
      m_gestalt(shape_normal),
      m_preferred(0, 0, preferred_width, preferred_height),
      m_wnd(nullptr)
{
    init();
}

void CFensterManager::init()
{
    m_placement = {};
    if (m_managerListe.empty() || m_type == window_main)
    {
        CRect const area = WindowPlatform::Instance().WorkArea();
        m_bildschirmGroesse = area.Size();
    }
    m_placement.length = placement_length;
    m_placement.showCmd = SW_SHOWNORMAL;
    m_managerListe.insert(this);
}

CFensterManager::~CFensterManager()
{
    auto const found = FindeMich(this);
    if (found != m_managerListe.end())
        m_managerListe.erase(found);
}

void CFensterManager::WhoAmI(CString const & name)
{
    m_name = name;
}

CString const & CFensterManager::WhoAmI() const
{
    return m_name;
}

int CFensterManager::WhatsMyType() const
{
    return m_type;
}

void CFensterManager::SetMyType(window_t type)
{
    m_type = type;
}

void CFensterManager::PreferedPosition(CRect position)
{
    m_preferred = position;
}

void CFensterManager::PreferedPosition(int left, int top, int right, int bottom)
{
    m_preferred = CRect(left, top, right, bottom);
}

void CFensterManager::PreferedPosition(CWnd * window)
{
    WINDOWPLACEMENT placement{};
    placement.length = placement_length;
    WindowPlatform::Instance().GetPlacement(*window, placement);
    m_preferred = placement.rcNormalPosition;
}

CRect CFensterManager::WhatsMyPosition()
{
    return m_placement.rcNormalPosition;
}

unsigned int CFensterManager::WhatsMyStyle()
{
    return m_placement.showCmd;
}

void CFensterManager::SetShowMode(unsigned int showCommand)
{
    m_placement.showCmd = showCommand;
}

bool CFensterManager::NowExit()
{
    return m_schluss;
}

void CFensterManager::SetNowExit(bool exit)
{
    if (m_type == window_main)
        m_schluss = exit;
}

bool CFensterManager::NurEinMonitor()
{
    return m_nurEinMonitor;
}

void CFensterManager::SetNurEinMonitor(bool onlyOne)
{
    m_nurEinMonitor = onlyOne;
}

bool CFensterManager::KeepsWithinReach()
{
    return keeps_within_reach;
}

void CFensterManager::KeepWithinReach(bool keep)
{
    keeps_within_reach = keep;
}

bool CFensterManager::TabbedViews()
{
    return m_tabbedViews;
}

void CFensterManager::SetTabbedViews(bool tabbed)
{
    m_tabbedViews = tabbed;
}

void CFensterManager::CalcMyPosition(CWnd * window)
{
    WindowPlatform & platform = WindowPlatform::Instance();
    m_wnd = window;
    if (window == nullptr || !platform.IsWindow(*window))
        return;
    CWnd const * const target = m_type == window_view ? platform.Owner(*window) : window;
    if (target == nullptr)
        return;

    platform.GetPlacement(*target, m_placement);
    m_gestalt = shape_normal;
    if (platform.IsIconic(*target))
        m_gestalt = shape_iconic;
    if (platform.IsZoomed(*target))
        m_gestalt = shape_maximised;
    if (m_type == window_dialog || m_type == window_sizable_dialog)
        m_gestalt = shape_normal;
}

void CFensterManager::SaveMyPosition(bool closing) const
{
    if (m_wnd == nullptr)
        return;
    bool const alive = WindowPlatform::Instance().IsWindow(*m_wnd);
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    if (store == nullptr)
        return;

    bool const openAtNextStart = alive && (!closing || NowExit());
    store->LookupSetBool(KeyOf(m_name, suffix_open), openAtNextStart, 0);
    if (!alive)
        return;

    store->LookupSetInt(KeyOf(m_name, suffix_shape), m_gestalt, 0);
    if (m_tabbedViews && (m_type == window_view || m_type == window_mdi_child))
        return;

    RECT const & normal = m_placement.rcNormalPosition;
    CString const positionKey = KeyOf(m_name, suffix_position);
    store->LookupSetInt(positionKey, normal.top, 0);
    store->LookupSetInt(positionKey, normal.left, 1);
    store->LookupSetInt(positionKey, normal.bottom, 2);
    store->LookupSetInt(positionKey, normal.right, 3);

    CString const extremesKey = KeyOf(m_name, suffix_extremes);
    store->LookupSetInt(extremesKey, m_placement.ptMinPosition.x, 0);
    store->LookupSetInt(extremesKey, m_placement.ptMinPosition.y, 1);
    store->LookupSetInt(extremesKey, m_placement.ptMaxPosition.x, 2);
    store->LookupSetInt(extremesKey, m_placement.ptMaxPosition.y, 3);
    if (keeps_within_reach)
        StoreScreens(*store);
}

void CFensterManager::StoreScreens(CResourceVesk & store) const
{
    WindowPlatform & platform = WindowPlatform::Instance();
    CWnd const * const target = m_type == window_view ? platform.Owner(*m_wnd) : m_wnd;
    std::optional<CPoint> const origin = target != nullptr ? platform.PlacementOrigin(*target) : std::nullopt;
    if (!origin)
        return;
    std::vector<ScreenArea> const screens = platform.Screens();
    ScreenArea const * const screen = ScreenOf(Shifted(m_placement.rcNormalPosition, *origin), screens);
    CString const key = KeyOf(m_name, suffix_screens);
    store.LookupSetInt(key, FingerprintOf(screens), 0);
    store.LookupSetInt(key, screen != nullptr ? screen->dpi : 0, 1);
}

void CFensterManager::SaveAllPositions() const
{
    // Of a copy, as everywhere where the host's code may run and end managers.
    std::set<CFensterManager *> const managers = m_managerListe;
    for (CFensterManager * const manager : managers)
    {
        if (!m_managerListe.contains(manager))
            continue;
        manager->CalcMyPosition(manager->m_wnd);
        manager->SaveMyPosition(false);
    }
}

void CFensterManager::ReadMyPosition(CWnd * window)
{
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    if (store == nullptr)
        return;
    WindowPlatform & platform = WindowPlatform::Instance();
    m_wnd = window;

    m_gestalt = store->LookupGetInt(KeyOf(m_name, suffix_shape), 0, shape_normal);

    CRect read;
    CString const positionKey = KeyOf(m_name, suffix_position);
    read.top = store->LookupGetInt(positionKey, 0, m_preferred.top);
    read.left = store->LookupGetInt(positionKey, 1, m_preferred.left);
    read.bottom = store->LookupGetInt(positionKey, 2, m_preferred.bottom);
    read.right = store->LookupGetInt(positionKey, 3, m_preferred.right);

    bool const view = m_type == window_view;
    CString const extremesKey = KeyOf(m_name, suffix_extremes);
    m_placement.ptMinPosition.x = store->LookupGetInt(extremesKey, 0, unset_minimised_position);
    m_placement.ptMinPosition.y = store->LookupGetInt(extremesKey, 1, unset_minimised_position);
    m_placement.ptMaxPosition.x = store->LookupGetInt(extremesKey, 2, view ? view_maximised_left : 0);
    m_placement.ptMaxPosition.y = store->LookupGetInt(extremesKey, 3, view ? view_maximised_top : 0);

    RECT & normal = m_placement.rcNormalPosition;
    normal.top = read.top;
    normal.left = read.left;
    if (m_type == window_dialog)
    {
        // A dialog of fixed size keeps the size that it was designed with.
        normal.right = wrapping::Sum(read.left, wrapping::Difference(m_preferred.right, m_preferred.left));
        normal.bottom = wrapping::Sum(read.top, wrapping::Difference(m_preferred.bottom, m_preferred.top));
        m_gestalt = shape_normal;
    }
    else
    {
        normal.right = read.right;
        normal.bottom = read.bottom;
        if ((view || m_type == window_mdi_child) && window != nullptr)
        {
            // For the range test alone; the record keeps the coordinates of the window's parent.
            CWnd const * const owner = platform.Owner(*window);
            platform.ClientToScreen(*(owner != nullptr ? owner : window), read.TopLeft());
        }
    }

    if (m_nurEinMonitor)
        MoveOntoScreen(read);
    if (keeps_within_reach && m_wnd != nullptr && platform.IsWindow(*m_wnd))
        BringWithinReach(*store);
    m_placement.flags = m_gestalt == shape_iconic ? WPF_SETMINPOSITION : 0;

    if (m_wnd != nullptr && platform.IsWindow(*m_wnd))
        SetMyPosition(window);
}

void CFensterManager::BringWithinReach(CResourceVesk & store)
{
    WindowPlatform & platform = WindowPlatform::Instance();
    CWnd const * const target = m_type == window_view ? platform.Owner(*m_wnd) : m_wnd;
    std::optional<CPoint> const origin = target != nullptr ? platform.PlacementOrigin(*target) : std::nullopt;
    if (!origin)
        return;
    CString const key = KeyOf(m_name, suffix_screens);
    StoredPlace const stored{Shifted(m_placement.rcNormalPosition, *origin), store.LookupGetInt(key, 0, 0),
                             store.LookupGetInt(key, 1, 0)};
    CRect const place = ReachablePlace(stored, platform.Screens(), {platform.CaptionHeight(), m_type != window_dialog});
    if (place != stored.rect)
        m_placement.rcNormalPosition = Shifted(place, CPoint(-origin->x, -origin->y));
}

// Every comparison looks at the rectangle as it was read, never at one that an earlier comparison has shifted.
void CFensterManager::MoveOntoScreen(CRect const & read)
{
    RECT & normal = m_placement.rcNormalPosition;
    auto const shiftRight = [&normal](int distance) {
        normal.left = wrapping::Sum(normal.left, distance);
        normal.right = wrapping::Sum(normal.right, distance);
    };
    auto const shiftUp = [&normal](int distance) {
        normal.top = wrapping::Difference(normal.top, distance);
        normal.bottom = wrapping::Difference(normal.bottom, distance);
    };

    if (read.right < visible_from_left)
        shiftRight(wrapping::Difference(visible_from_left, read.right));
    int const beyondRight = wrapping::Sum(wrapping::Difference(read.left, m_bildschirmGroesse.cx), visible_from_right);
    if (beyondRight > 0)
        shiftRight(wrapping::Difference(0, beyondRight));
    if (read.top < 0)
        shiftUp(read.top);
    int const beyondBottom = wrapping::Sum(wrapping::Difference(read.top, m_bildschirmGroesse.cy), visible_from_bottom);
    if (beyondBottom > 0)
        shiftUp(beyondBottom);
}

void CFensterManager::SetMyPosition(CWnd * window)
{
    WindowPlatform & platform = WindowPlatform::Instance();
    if (CWnd * const target = m_type == window_view ? platform.Owner(*window) : window)
        platform.SetPlacement(*target, m_placement);
}

bool CFensterManager::EraseMyPosition()
{
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    if (store == nullptr)
        return false;
    bool erased = true;
    for (wchar_t const * const suffix : {suffix_open, suffix_shape, suffix_position, suffix_extremes})
        erased = store->Delete(KeyOf(m_name, suffix)) != 0 && erased;
    if (keeps_within_reach)
        store->Delete(KeyOf(m_name, suffix_screens));
    return erased;
}

bool CFensterManager::OpenInitially() const
{
    return m_wnd != nullptr && OpenInitially(m_name);
}

bool CFensterManager::OpenInitially(CString const & name)
{
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    return store != nullptr && store->LookupGetBool(KeyOf(name, suffix_open), 0, false);
}

int CFensterManager::AlreadyOpen(CString const & name) const
{
    return FindeDich(name) != m_managerListe.end() ? 1 : 0;
}

void CFensterManager::ActivateThatWindow(CString const & name)
{
    auto const found = FindeDich(name);
    if (found != m_managerListe.end() && (*found)->m_type == window_mdi_child)
        WindowPlatform::Instance().ActivateMdiChild(*(*found)->m_wnd);
}

void CFensterManager::KillThatWindow(CString const & name)
{
    auto const found = FindeDich(name);
    if (found == m_managerListe.end())
        return;
    // The manager may end with its window.
    CFensterManager const & manager = **found;
    m_managerListe.erase(found);
    if (manager.m_type == window_mdi_child)
        WindowPlatform::Instance().DestroyMdiChild(*manager.m_wnd);
    else
        WindowPlatform::Instance().Destroy(*manager.m_wnd);
}

void CFensterManager::MinimizeThatWindow(CString const & name)
{
    auto const found = FindeDich(name);
    if (found != m_managerListe.end())
        WindowPlatform::Instance().Show(*(*found)->m_wnd, SW_SHOWMINIMIZED);
}

void CFensterManager::RestoreThatWindow(CString const & name)
{
    auto const found = FindeDich(name);
    if (found != m_managerListe.end())
        WindowPlatform::Instance().Show(*(*found)->m_wnd, SW_SHOWNORMAL);
}

int CFensterManager::IsIconic(CString const & name)
{
    auto const found = FindeDich(name);
    return found != m_managerListe.end() && WindowPlatform::Instance().IsIconic(*(*found)->m_wnd) ? 1 : 0;
}

int CFensterManager::IsMaximized(CString const & name)
{
    auto const found = FindeDich(name);
    return found != m_managerListe.end() && WindowPlatform::Instance().IsZoomed(*(*found)->m_wnd) ? 1 : 0;
}

void CFensterManager::CloseAllViews()
{
    std::set<CFensterManager *> frames;
    for (CFensterManager * const manager : m_managerListe)
    {
        if (manager->m_type == window_mdi_child)
            frames.insert(manager);
    }
    for (CFensterManager * const frame : frames)
    {
        // A frame that took another one down with it has ended that one's manager as well.
        if (FindeMich(frame) != m_managerListe.end())
            WindowPlatform::Instance().DestroyMdiChild(*frame->m_wnd);
    }
}

// Menus and styles of a window don't change without messages to it, and whoever gets them may end managers and windows.
void CFensterManager::ActivateTouchFreeze(bool freeze)
{
    std::set<CFensterManager *> const managers = m_managerListe;
    for (CFensterManager * const manager : managers)
    {
        if (HasWindow(manager))
            Freeze(*manager, freeze);
    }
}

bool CFensterManager::HasWindow(CFensterManager * manager)
{
    return m_managerListe.contains(manager) && manager->m_wnd != nullptr &&
           WindowPlatform::Instance().IsWindow(*manager->m_wnd);
}

void CFensterManager::Freeze(CFensterManager & manager, bool freeze)
{
    WindowPlatform & platform = WindowPlatform::Instance();
    HMENU const menu = platform.SystemMenu(*manager.m_wnd);
    if (menu == nullptr)
        return;
    unsigned int const state = freeze ? MF_GRAYED | MF_DISABLED : MF_ENABLED;
    for (unsigned int const command : {SC_SIZE, SC_MOVE, SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE, SC_RESTORE})
    {
        platform.EnableMenuItem(menu, command, state);
        if (!HasWindow(&manager))
            return;
    }
    if (manager.m_type != window_mdi_child)
        return;
    DWORD const style = platform.Style(*manager.m_wnd);
    platform.SetStyle(*manager.m_wnd, freeze ? style & ~minimise_and_maximise_box : style | minimise_and_maximise_box);
    if (HasWindow(&manager))
        platform.Redraw(*manager.m_wnd, redraw_frame_without_children);
}

std::set<CFensterManager *>::const_iterator CFensterManager::FindeMich(CFensterManager * manager) const
{
    return m_managerListe.find(manager);
}

std::set<CFensterManager *>::const_iterator CFensterManager::FindeDich(CString const & name) const
{
    auto found = m_managerListe.begin();
    while (found != m_managerListe.end() && (*found)->WhoAmI().Compare(name) != 0)
        ++found;
    return found;
}
