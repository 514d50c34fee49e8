// The main window's help.

#include "MainWindow.h"

#include <utility>

#include "AboutDialog.h"
#include "controls/IdNameMultiselectDlg.h"
#include "ExportDialog.h"
#include "LanguageDialog.h"
#include "OpenFolderDialog.h"
#include "RenameDialog.h"
#include "resource.h"

using workbench::HelpTopic;

namespace
{

workbench::MenuTexts TextsOf(CMenu & bar, UINT place)
{
    CString text;
    bar.GetMenuString(place, text, MF_BYPOSITION);
    workbench::MenuTexts texts{text.GetString(), {}};
    auto * const menu = bar.GetSubMenu(static_cast<int>(place));
    for (UINT item = 0; menu != nullptr && item < menu->GetMenuItemCount(); ++item)
    {
        menu->GetMenuString(item, text, MF_BYPOSITION);
        texts.items.emplace_back(text.GetString());
    }
    return texts;
}

} // namespace

void CMainWindow::PrepareHelp()
{
    m_help.m_menus = [this] {
        std::vector<workbench::MenuTexts> menus;
        CMenu * const bar = GetMenu();
        for (UINT place = 0; bar != nullptr && place < bar->GetMenuItemCount(); ++place)
        {
            menus.push_back(TextsOf(*bar, place));
        }
        return menus;
    };
    // What the window is about is found at once, since it may end until the help opens.
    m_helpKey.emplace(m_hWnd, [this](HWND focus, bool control) {
        PostMessage(message_help, static_cast<WPARAM>(control ? HelpTopic::keys : TopicOf(focus)));
    });
}

/// What a window is about.
HelpTopic CMainWindow::TopicOf(HWND window) const
{
    auto const isIn = [window](HWND part) { return part != nullptr && (part == window || ::IsChild(part, window)); };
    std::pair<HWND, HelpTopic> const parts[] = {{m_list.m_hWnd, HelpTopic::list},
                                                {m_listPanel.m_hWnd, HelpTopic::finding},
                                                {m_waveformPanel.m_hWnd, HelpTopic::waveform},
                                                {m_spectrogram.m_hWnd, HelpTopic::spectrogram},
                                                {m_panel.m_hWnd, HelpTopic::displays},
                                                {m_frameMeasures.m_hWnd, HelpTopic::frame_measures},
                                                {m_tree.m_hWnd, HelpTopic::folders},
                                                {m_hWndMDIClient, HelpTopic::frames},
                                                {m_details.m_hWnd, HelpTopic::measures},
                                                {m_preview.m_hWnd, HelpTopic::taking_away},
                                                {m_settingsSheet.m_hWnd, HelpTopic::settings}};
    for (auto const & [part, topic] : parts)
    {
        if (isIn(part))
        {
            return topic;
        }
    }
    // The drop-down of a cell is nobody's window.
    if (m_list.IsEditing())
    {
        return HelpTopic::list;
    }
    auto * const dialog = CWnd::FromHandlePermanent(::GetAncestor(window, GA_ROOT));
    if (dynamic_cast<CExportDialog *>(dialog) != nullptr)
    {
        return HelpTopic::taking_away;
    }
    if (dynamic_cast<COpenFolderDialog *>(dialog) != nullptr)
    {
        return HelpTopic::folders;
    }
    if (dynamic_cast<CLanguageDialog *>(dialog) != nullptr)
    {
        return HelpTopic::settings;
    }
    auto const isOfList =
        dynamic_cast<CIdNameMultiselectDlg *>(dialog) != nullptr || dynamic_cast<CRenameDialog *>(dialog) != nullptr;
    return isOfList ? HelpTopic::list : HelpTopic::overview;
}

bool CMainWindow::ShowHelp(HelpTopic topic)
{
    // A dialog of the module's that is open may have made that's resources the current ones.
    HINSTANCE const former = AfxGetResourceHandle();
    AfxSetResourceHandle(AfxGetInstanceHandle());
    bool const shown = m_help.Show(topic);
    AfxSetResourceHandle(former);
    return shown;
}

void CMainWindow::OnShowHelp()
{
    ShowHelp(TopicOf(::GetFocus()));
}

void CMainWindow::OnShowKeys()
{
    ShowHelp(HelpTopic::keys);
}

/// F1 in another window than this one; with Ctrl it tells about the keys.
LRESULT CMainWindow::OnHelpKey(WPARAM topic, LPARAM)
{
    ShowHelp(static_cast<HelpTopic>(topic));
    return 0;
}

void CMainWindow::OnAbout()
{
    CAboutDialog(m_settings, *this).DoModal();
}
