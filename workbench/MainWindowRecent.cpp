// What the main window's user has opened, and files that are dragged out of it.

#include "MainWindow.h"

#include <algorithm>
#include <system_error>

#include "FileDrag.h"
#include "logic/StoredLists.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

// Of many files that are opened together, so many are remembered.
constexpr std::size_t most_files_at_once = 4;

} // namespace

/// Puts what was opened last above the last item of the menu that ends the program; nothing in other menus.
void CMainWindow::ShowRecent(CMenu & menu) const
{
    if (menu.GetMenuState(ID_CLOSE_WORKBENCH, MF_BYCOMMAND) == static_cast<UINT>(-1))
    {
        return;
    }
    for (UINT place = menu.GetMenuItemCount(); place > 0; --place)
    {
        auto const id = menu.GetMenuItemID(static_cast<int>(place - 1));
        if (id >= ID_RECENT_FIRST && id <= ID_RECENT_SEPARATOR)
        {
            menu.DeleteMenu(place - 1, MF_BYPOSITION);
        }
    }
    UINT place = menu.GetMenuItemCount();
    while (place > 0 && menu.GetMenuItemID(static_cast<int>(place - 1)) != ID_CLOSE_WORKBENCH)
    {
        --place;
    }
    if (place-- == 0 || m_settings.recentTargets.empty())
    {
        return;
    }
    for (int id = ID_RECENT_FIRST; id <= ID_RECENT_LAST; ++id)
    {
        auto const index = static_cast<std::size_t>(id - ID_RECENT_FIRST);
        if (index < m_settings.recentTargets.size())
        {
            auto const text = workbench::RecentItemText(static_cast<int>(index + 1), m_settings.recentTargets[index]);
            menu.InsertMenu(place++, MF_BYPOSITION | MF_STRING, id, text.c_str());
        }
    }
    menu.InsertMenu(place, MF_BYPOSITION | MF_SEPARATOR, ID_RECENT_SEPARATOR);
}

/// Opens it, or says that it is gone and forgets it.
void CMainWindow::OnOpenRecent(UINT id)
{
    auto const index = static_cast<std::size_t>(id - ID_RECENT_FIRST);
    if (index >= m_settings.recentTargets.size())
    {
        return;
    }
    std::filesystem::path const target = m_settings.recentTargets[index];
    std::error_code error;
    if (std::filesystem::exists(target, error))
    {
        ShowTargets({target});
        m_rememberOpened = true;
        return;
    }
    m_settings.recentTargets.erase(m_settings.recentTargets.begin() + static_cast<std::ptrdiff_t>(index));
    workbench::StoreRecentTargets(m_settings.recentTargets);
    AfxMessageBox(Text(L"This is not there any more:") + (L"\n\n" + CString(target.c_str())), MB_ICONEXCLAMATION);
}

/// Remembers what the user has opened, now that it is known which of it are folders.
void CMainWindow::RememberOpened(std::vector<std::filesystem::path> const & folders,
                                 std::vector<std::filesystem::path> const & missing)
{
    std::vector<std::filesystem::path> opened = folders;
    for (std::filesystem::path const & target : m_targets)
    {
        auto const isKnown = [&target](auto const & paths) { return std::ranges::find(paths, target) != paths.end(); };
        if (opened.size() < folders.size() + most_files_at_once && !isKnown(folders) && !isKnown(missing))
        {
            opened.push_back(target);
        }
    }
    // The first one comes first.
    std::for_each(opened.rbegin(), opened.rend(),
                  [this](auto const & path) { workbench::PutFirst(m_settings.recentTargets, path); });
    for (std::filesystem::path const & folder : folders)
    {
        workbench::PutFirst(m_settings.recentFolders, folder);
    }
    if (!opened.empty())
    {
        KeepSettings();
    }
}

/// Hands the files of lines to other programs.
void CMainWindow::DragOut(std::vector<int> const & lines)
{
    std::vector<std::filesystem::path> files;
    for (int const line : lines)
    {
        if (Recording const * const recording = RecordingAt(line))
        {
            files.push_back(recording->file);
        }
    }
    if (files.empty())
    {
        return;
    }
    LifeWatch const life(m_life);
    m_isDraggingOut = true;
    workbench::DragFiles(files);
    if (!life.Over())
    {
        m_isDraggingOut = false;
    }
}
