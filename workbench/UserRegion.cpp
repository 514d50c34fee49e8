#include "UserRegion.h"

#include <afxwin.h>

namespace workbench
{

namespace
{

std::wstring Fact(LCTYPE fact)
{
    wchar_t text[32] = L"";
    ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, fact, text, static_cast<int>(std::size(text)));
    return text;
}

} // namespace

NumberSigns UserNumberSigns()
{
    NumberSigns signs;
    // Without these a number could not be told from another one.
    if (std::wstring decimal = Fact(LOCALE_SDECIMAL); !decimal.empty())
    {
        signs.decimal = decimal;
    }
    if (std::wstring negative = Fact(LOCALE_SNEGATIVESIGN); !negative.empty())
    {
        signs.negative = negative;
    }
    signs.grouping = Fact(LOCALE_STHOUSAND);
    signs.groups = GroupsOf(Fact(LOCALE_SGROUPING));
    return signs;
}

bool UseUserNumbers()
{
    NumberSigns const signs = UserNumberSigns();
    bool const changed = signs != PresentNumberSigns();
    SetNumberSigns(signs);
    return changed;
}

} // namespace workbench
