#pragma once

#include <afxmdiframewndex.h>
#include <afxwin.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frame/Export.h"
#include "windows/DockableViewPane.h"

class CMFCPopupMenu;

/// A mix-in for the host's main frame, which derives from a CMDIFrameWndEx and from this class: a pool of dockable view
/// panes with stable identifiers, dynamic menu commands with callbacks and accelerators, and the export and import of
/// the application's settings. The toolkit finds it by a cast from the thread's main window. For the user-interface
/// thread.
///
/// The host sets base_id before it asks for panes and menu_range before it registers commands, calls assign_panes
/// before the workspace is loaded, and routes commands of its menu range to menu:
///
///     class CMainFrame : public CMDIFrameWndEx, public CMainFrmInterface
///     {
///     public:
///         CMainFrame() : CMainFrmInterface(this)
///         {
///             base_id(id_base);
///             menu_range(ID_DYNAMIC_FIRST, ID_DYNAMIC_END);
///         }
///         afx_msg void OnDynamicCommand(UINT id) { menu(id); }
///     };
class INSTRUMENT_UI_API CMainFrmInterface
{
public:
    /// A first identifier for panes that fits most hosts.
    static unsigned int const id_base;
    /// How many panes there are.
    static unsigned int const max_panes;
    /// Names of the application's workspace in its registry key.
    static wchar_t const * const reg_workspace_settings;
    /// The name of what is stored of bars.
    static wchar_t const * const reg_entry_basepanes;
    /// The name of what is stored of panes.
    static wchar_t const * const reg_entry_panes;

    /// frame: the main frame, not owned.
    explicit CMainFrmInterface(CMDIFrameWndEx * frame);
    CMainFrmInterface(CMainFrmInterface const &) = delete;
    CMainFrmInterface & operator=(CMainFrmInterface const &) = delete;
    virtual ~CMainFrmInterface();

    /// Gives a pane out and gives its identifier: the one of `id` if that is known and has no view, or else the one of
    /// the lowest free identifier. -1 if all identifiers are taken; a pane once given out counts for good. `pane`
    /// belongs to this object.
    virtual int register_pane(CDockableViewPane *& pane, int id);

    /// The first identifier of panes; 0 until it is set.
    unsigned int base_id() const;
    void base_id(unsigned int id);
    /// Identifier to pane.
    std::map<unsigned int, CDockableViewPane *> & panes();

    /// Adds a command below `parent`, which is the host's convention, and gives its identifier; -1 if the menu range
    /// has none left. key: its accelerator's key or character, or 0; flags: F-numbers of the window system's ACCEL.
    int register_menu(unsigned int parent, wchar_t const * text, std::function<void()> callback, unsigned short key,
                      unsigned char flags);
    /// Removes a command and its accelerator; false if it is unknown. Of a command without an accelerator the table's
    /// last one goes, as hosts expect.
    bool release_menu(int id);

    /// Writes the application's whole registry key to a file, or replaces it by one; see SettingsFile.h. False if it
    /// failed, or if the application has no registry key.
    bool export_registry_settings() const;
    /// Replaces the key by the stored file. False if that failed, or if the application has no registry key.
    bool import_registry_settings();

protected:
    /// Reserves panes for all identifiers that the workspace knows, so that it can restore them. They take the pool's
    /// objects from its start; one that is given out for a gap between them later can share an object with one of
    /// these. Hosts expect that.
    void assign_panes();
    /// Deletes what the workspace has stored of panes without a view. To be called once all owners have theirs.
    void release_orphan_panes();

    /// The identifiers for dynamic commands, the end excluded. Empty until it is set.
    void menu_range(unsigned int first, unsigned int end);
    /// Calls the command's callback; does nothing for an unknown command.
    void menu(unsigned int id) const;
    /// Parent to its commands. An element's second member leads to identifier, callback and text.
    std::multimap<unsigned int,
                  std::map<unsigned int, std::pair<std::function<void()>, std::wstring>>::iterator> const &
    menu_elements() const;
    /// Adds a command whose presence marks a popup that lookup_item shall know.
    void add_menu_lookup_item(int command);
    /// Which of these commands the popup has, as its index in the order of their addition; -1 if none, or without a
    /// popup. The first in that order counts.
    int lookup_item(CMFCPopupMenu * popup) const;
    /// Forgets all dynamic commands. Their accelerators stay, as hosts expect, and then lead nowhere.
    void dismiss_menu_callbacks();

private:
    int next_free_menu_id() const;
    void add_accelerator(unsigned short key, unsigned char flags, int id);
    void remove_accelerator(int id);

    std::map<unsigned int, CDockableViewPane *> m_panes; // into the pool
    CMDIFrameWndEx * m_frame;
    CDockableViewPane m_pane_pool[100];
    unsigned int m_base_id;
    std::pair<unsigned int, unsigned int> m_menu_range;
    std::map<unsigned int, std::pair<std::function<void()>, std::wstring>> m_menus;
    std::multimap<unsigned int, std::map<unsigned int, std::pair<std::function<void()>, std::wstring>>::iterator>
        m_menu_elements;
    std::vector<int> m_lookup_items;
};
