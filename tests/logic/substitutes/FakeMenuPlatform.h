#pragma once
// The menu manager's menus in the logic tests: records.

#include <string>
#include <vector>

#include "windows/MenuPlatform.h"

struct FakeMenu
{
    struct Item
    {
        unsigned int flags = 0;
        unsigned int id = 0;
        std::wstring text;
        FakeMenu * subMenu = nullptr;
    };

    /// False: a menu object without a menu.
    bool valid = true;
    std::vector<Item> items;

    /// The menu object that stands for it.
    CMenu & Object() { return *reinterpret_cast<CMenu *>(this); }
};

class FakeMenuPlatform final : public MenuPlatform
{
public:
    /// The one of this program.
    static FakeMenuPlatform & Current();

    bool Append(CMenu & menu, unsigned int flags, unsigned int id, wchar_t const * text) override;
    int ItemCount(CMenu const & menu) override;
    CString ItemText(CMenu const & menu, int position) override;
    unsigned int ItemId(CMenu const & menu, int position) override;
    CMenu * SubMenu(CMenu const & menu, int position) override;
    CMenu * MainWindowMenu() override;
    void DrawMainWindowMenuBar() override;

    FakeMenu * mainWindowMenu = nullptr;
    int menuBarsDrawn = 0;
};
