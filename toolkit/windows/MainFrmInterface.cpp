#include "windows/MainFrmInterface.h"

#include <afxpopupmenu.h>

#include "windows/MenuRegistry.h"
#include "windows/PaneRegistry.h"
#include "windows/RegistrySettingsTree.h"
#include "windows/SettingsFile.h"

unsigned int const CMainFrmInterface::id_base = 10742;
unsigned int const CMainFrmInterface::max_panes = pane_registry::max_panes;
wchar_t const * const CMainFrmInterface::reg_workspace_settings = L"Workspace";
wchar_t const * const CMainFrmInterface::reg_entry_basepanes = L"BasePane-";
wchar_t const * const CMainFrmInterface::reg_entry_panes = L"Pane-";

namespace
{
constexpr int not_found = -1;

/// The registry below the application's key. Without such a key nothing can be opened.
registry_settings::RegistrySettingsTree ApplicationTree()
{
    return registry_settings::RegistrySettingsTree([]() -> HKEY {
        CWinApp * const app = AfxGetApp();
        return app != nullptr && app->m_pszRegistryKey != nullptr ? app->GetAppRegistryKey() : nullptr;
    });
}

/// The workspace's key of a pane.
std::u16string WorkspaceKey(wchar_t const * entry, unsigned int id)
{
    std::wstring const name =
        CMainFrmInterface::reg_workspace_settings + std::wstring(L"\\") + entry + std::to_wstring(id);
    return std::u16string(name.begin(), name.end());
}

int EntryCount(HACCEL table)
{
    return ::CopyAcceleratorTableW(table, nullptr, 0);
}

ACCEL * AllocateEntries(int count)
{
    return static_cast<ACCEL *>(::LocalAlloc(LPTR, static_cast<SIZE_T>(count) * sizeof(ACCEL)));
}

void Replace(HACCEL & table, ACCEL * entries, int count)
{
    ::DestroyAcceleratorTable(table);
    table = count > 0 ? ::CreateAcceleratorTableW(entries, count) : nullptr;
}
} // namespace

static_assert(sizeof(ACCEL) == 6);

CMainFrmInterface::CMainFrmInterface(CMDIFrameWndEx * frame) : m_frame(frame), m_base_id(0), m_menu_range(0, 0) {}

CMainFrmInterface::~CMainFrmInterface() = default;

unsigned int CMainFrmInterface::base_id() const
{
    return m_base_id;
}

void CMainFrmInterface::base_id(unsigned int id)
{
    m_base_id = id;
}

std::map<unsigned int, CDockableViewPane *> & CMainFrmInterface::panes()
{
    return m_panes;
}

int CMainFrmInterface::register_pane(CDockableViewPane *& pane, int id)
{
    return pane_registry::Register(m_panes, m_pane_pool, m_base_id, pane, id);
}

void CMainFrmInterface::assign_panes()
{
    registry_settings::RegistrySettingsTree tree = ApplicationTree();
    pane_registry::Assign(m_panes, m_pane_pool, m_base_id, [&](unsigned int id) {
        return registry_settings::registry_key_exists(tree, WorkspaceKey(reg_entry_basepanes, id));
    });
}

void CMainFrmInterface::release_orphan_panes()
{
    registry_settings::RegistrySettingsTree tree = ApplicationTree();
    for (auto const & [id, pane] : m_panes)
    {
        if (pane->View() != nullptr)
            continue;
        registry_settings::delete_registry_tree(tree, WorkspaceKey(reg_entry_basepanes, id));
        registry_settings::delete_registry_tree(tree, WorkspaceKey(reg_entry_panes, id));
    }
}

int CMainFrmInterface::next_free_menu_id() const
{
    return menu_registry::NextFreeId(m_menus, m_menu_range);
}

int CMainFrmInterface::register_menu(unsigned int parent, wchar_t const * text, std::function<void()> callback,
                                     unsigned short key, unsigned char flags)
{
    int const id = menu_registry::Add(m_menus, m_menu_elements, next_free_menu_id(), parent,
                                      text != nullptr ? text : L"", std::move(callback));
    if (id >= 0 && key != 0)
        add_accelerator(key, flags, id);
    return id;
}

bool CMainFrmInterface::release_menu(int id)
{
    auto const found = m_menus.find(static_cast<unsigned int>(id));
    if (found == m_menus.end())
        return false;
    menu_registry::RemoveElement(m_menu_elements, found);
    remove_accelerator(id);
    // The callback ends last: what it holds may come back here.
    auto const released = m_menus.extract(found);
    return true;
}

void CMainFrmInterface::add_accelerator(unsigned short key, unsigned char flags, int id)
{
    if (m_frame == nullptr)
        return;
    HACCEL & table = m_frame->m_hAccelTable;
    int const count = EntryCount(table);
    // The block stays, as hosts expect.
    ACCEL * const entries = AllocateEntries(count + 1);
    if (entries == nullptr)
        return;
    ::CopyAcceleratorTableW(table, entries, count);
    menu_registry::AppendAccelerator(entries, count, flags, key, id);
    Replace(table, entries, count + 1);
}

void CMainFrmInterface::remove_accelerator(int id)
{
    if (m_frame == nullptr)
        return;
    HACCEL & table = m_frame->m_hAccelTable;
    int const count = EntryCount(table);
    ACCEL * const entries = AllocateEntries(count);
    if (entries == nullptr)
        return;
    ::CopyAcceleratorTableW(table, entries, count);
    Replace(table, entries, menu_registry::RemoveAccelerator(entries, count, id));
    ::LocalFree(entries);
}

void CMainFrmInterface::menu_range(unsigned int first, unsigned int end)
{
    m_menu_range = {first, end};
}

void CMainFrmInterface::menu(unsigned int id) const
{
    auto const found = m_menus.find(id);
    if (found == m_menus.end())
        return;
    // A copy: the callback may release its own command.
    std::function<void()> const callback = found->second.first;
    if (callback)
        callback();
}

std::multimap<unsigned int, std::map<unsigned int, std::pair<std::function<void()>, std::wstring>>::iterator> const &
CMainFrmInterface::menu_elements() const
{
    return m_menu_elements;
}

void CMainFrmInterface::add_menu_lookup_item(int command)
{
    m_lookup_items.push_back(command);
}

int CMainFrmInterface::lookup_item(CMFCPopupMenu * popup) const
{
    CMFCPopupMenuBar * const bar = popup != nullptr ? popup->GetMenuBar() : nullptr;
    if (bar == nullptr)
        return not_found;
    for (std::size_t index = 0; index < m_lookup_items.size(); ++index)
    {
        if (bar->CommandToIndex(static_cast<UINT>(m_lookup_items[index]), 0) >= 0)
            return static_cast<int>(index);
    }
    return not_found;
}

void CMainFrmInterface::dismiss_menu_callbacks()
{
    m_menu_elements.clear();
    // The callbacks end last: what they hold may come back here.
    auto const dismissed = std::exchange(m_menus, {});
}

bool CMainFrmInterface::export_registry_settings() const
{
    registry_settings::RegistrySettingsTree tree = ApplicationTree();
    return registry_settings::export_registry_settings(tree, registry_settings::settings_files());
}

bool CMainFrmInterface::import_registry_settings()
{
    registry_settings::RegistrySettingsTree tree = ApplicationTree();
    return registry_settings::import_registry_settings(tree, registry_settings::settings_files());
}
