// The menu of a pane's caption.

#include "afxcontrolbars.h"

#include <algorithm>
#include <iterator>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

namespace framework
{
namespace
{
enum PaneCommand : UINT
{
    command_float = 1,
    command_dock,
    command_fold,
    command_hide
};

struct PaneTexts
{
    WORD language;
    LPCTSTR texts[command_hide];
};

/// In the language that the thread's resources follow; the first one where there is no other.
LPCTSTR TextOf(PaneCommand command)
{
    static constexpr PaneTexts all[] = {
        {LANG_ENGLISH, {L"&Float", L"&Dock", L"&Auto hide", L"&Hide"}},
        {LANG_GERMAN, {L"&Lösen", L"&Andocken", L"Automatisch &einklappen", L"Aus&blenden"}},
        {LANG_SPANISH, {L"&Separar", L"&Acoplar", L"&Plegar automáticamente", L"&Ocultar"}}};
    WORD const language = PRIMARYLANGID(LANGIDFROMLCID(::GetThreadLocale()));
    auto const found = std::find_if(std::begin(all), std::end(all),
                                    [language](PaneTexts const & texts) { return texts.language == language; });
    return (found != std::end(all) ? *found : all[0]).texts[command - 1];
}
} // namespace

bool ShowPaneMenu(CDockablePane & pane, CPoint screen)
{
    DockHost * const host = PaneAccess::Host(pane);
    UINT const id = host != nullptr ? host->FrontOf(pane) : 0;
    CDockablePane * const front = host != nullptr ? host->Pane(id) : nullptr;
    DockPane const * const known = front != nullptr ? host->Layout().Find(id) : nullptr;
    if (known == nullptr || known->place == DockPlace::none)
        return false;
    bool const folded = known->place == DockPlace::folded;
    CMenu menu;
    if (!menu.CreatePopupMenu())
        return false;
    auto const append = [&menu](PaneCommand command, bool enabled, bool checked = false) {
        menu.AppendMenu(MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED) | (checked ? MF_CHECKED : MF_UNCHECKED), command,
                        TextOf(command));
    };
    append(command_float, known->place == DockPlace::docked && front->CanFloat());
    append(command_dock, known->place == DockPlace::floating && host->sides != 0);
    append(command_fold, folded || front->CanAutoHide(), folded);
    append(command_hide, front->CanBeClosed() != FALSE);
    DockHost::Life const life(*host);
    // The frame would have its commands brought up to date, which these are not.
    auto const chosen =
        static_cast<UINT>(menu.TrackPopupMenu(TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, &pane));
    if (!life || host->Pane(id) != front)
        return true;
    switch (chosen)
    {
    case command_float:
    case command_dock:
        host->Toggle(DockContent(host->DraggedWith(*front)));
        break;
    case command_fold:
        front->ToggleAutoHide();
        break;
    case command_hide:
        host->Close(id);
        break;
    default:
        break;
    }
    return true;
}
} // namespace framework
