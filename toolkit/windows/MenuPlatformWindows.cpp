#include "windows/MenuPlatform.h"

#include <afxwin.h>

namespace
{
class WindowsMenuPlatform final : public MenuPlatform
{
public:
    bool Append(CMenu & menu, unsigned int flags, unsigned int id, wchar_t const * text) override
    {
        return menu.AppendMenu(flags, id, text) != FALSE;
    }

    int ItemCount(CMenu const & menu) override { return static_cast<int>(menu.GetMenuItemCount()); }
    CString ItemText(CMenu const & menu, int position) override
    {
        CString text;
        menu.GetMenuString(static_cast<UINT>(position), text, MF_BYPOSITION);
        return text;
    }
    unsigned int ItemId(CMenu const & menu, int position) override { return menu.GetMenuItemID(position); }
    CMenu * SubMenu(CMenu const & menu, int position) override { return menu.GetSubMenu(position); }

    CMenu * MainWindowMenu() override { return MainWindow()->GetMenu(); }
    void DrawMainWindowMenuBar() override { MainWindow()->DrawMenuBar(); }

private:
    static CWnd * MainWindow() { return AfxGetThread()->GetMainWnd(); }
};
} // namespace

MenuPlatform & MenuPlatform::Instance()
{
    static WindowsMenuPlatform platform;
    return platform;
}
