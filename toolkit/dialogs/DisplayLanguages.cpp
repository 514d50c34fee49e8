#include "dialogs/DisplayLanguages.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr int not_found = -1;

// The same in every language, so not in the resources. One language a line.
// clang-format off
constexpr DisplayLanguage languages[] = {
    {L"(Windows)", 1024},
    {L"Deutsch", 1031},
    {L"English", 1033},
    {L"中文 (Chinese)", 2052},
    {L"Český (Czech)", 1029},
    {L"Español", 3082},
    {L"Français", 1036},
    {L"Magyarul (Hungarian)", 1038},
    {L"Italiano", 1040},
    {L"日本語 (Japanese)", 1041},
    {L"한글 (Korean)", 1042},
    {L"Português", 2070},
    {L"Polski", 1045},
    {L"Русский (Russian)", 1049},
};
// clang-format on
} // namespace

std::span<DisplayLanguage const> DisplayLanguages()
{
    return languages;
}

int PositionOfLanguage(std::span<std::uintptr_t const> itemData, unsigned short languageId)
{
    auto const last = std::find(itemData.rbegin(), itemData.rend(), languageId);
    return last == itemData.rend() ? not_found : static_cast<int>(std::distance(last, itemData.rend())) - 1;
}

LanguageChoice ChooseLanguage(unsigned short present, std::uintptr_t itemData)
{
    auto const id = static_cast<unsigned short>(itemData);
    return {id, id != present};
}
