#include "FakeMenuPlatform.h"

namespace
{
// The manager passes menu objects on and never looks into them, so a record of ours serves as one.
FakeMenu & MenuOf(CMenu const & object)
{
    return const_cast<FakeMenu &>(reinterpret_cast<FakeMenu const &>(object));
}

FakeMenu::Item const & ItemOf(CMenu const & object, int position)
{
    return MenuOf(object).items.at(static_cast<size_t>(position));
}
} // namespace

MenuPlatform & MenuPlatform::Instance()
{
    return FakeMenuPlatform::Current();
}

FakeMenuPlatform & FakeMenuPlatform::Current()
{
    static FakeMenuPlatform platform;
    return platform;
}

bool FakeMenuPlatform::Append(CMenu & menu, unsigned int flags, unsigned int id, wchar_t const * text)
{
    FakeMenu & record = MenuOf(menu);
    if (record.valid)
    {
        record.items.push_back({flags, id, text != nullptr ? text : L"", nullptr});
    }
    return record.valid;
}

int FakeMenuPlatform::ItemCount(CMenu const & menu)
{
    FakeMenu const & record = MenuOf(menu);
    return record.valid ? static_cast<int>(record.items.size()) : -1;
}

CString FakeMenuPlatform::ItemText(CMenu const & menu, int position)
{
    return ItemOf(menu, position).text.c_str();
}

unsigned int FakeMenuPlatform::ItemId(CMenu const & menu, int position)
{
    return ItemOf(menu, position).id;
}

CMenu * FakeMenuPlatform::SubMenu(CMenu const & menu, int position)
{
    FakeMenu * const subMenu = ItemOf(menu, position).subMenu;
    return subMenu != nullptr ? &subMenu->Object() : nullptr;
}

CMenu * FakeMenuPlatform::MainWindowMenu()
{
    return mainWindowMenu != nullptr ? &mainWindowMenu->Object() : nullptr;
}

void FakeMenuPlatform::DrawMainWindowMenuBar()
{
    ++menuBarsDrawn;
}
