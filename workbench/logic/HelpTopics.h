#pragma once
// The workbench's help: a page for each topic, in the languages that the workbench speaks.

#include <string>
#include <vector>

#include "logic/Texts.h"

namespace workbench
{

/// What there is a page about, in the order in which they are offered.
enum class HelpTopic
{
    overview,
    list,
    finding,
    waveform,
    spectrogram,
    displays,
    frame_measures,
    folders,
    frames,
    playing,
    measures,
    taking_away,
    settings,
    keys,
    count
};

constexpr int help_topic_count = static_cast<int>(HelpTopic::count);

struct HelpPage
{
    wchar_t const * title;
    wchar_t const * text; ///< paragraphs, each ended by a line feed
};

/// The page of a topic. That of the keys has no text: it is made of the menus.
HelpPage HelpPageOf(HelpTopic topic, Language language);

/// A menu as the user sees it: its title and its items, each with its key behind a tab where it has one.
struct MenuTexts
{
    std::wstring title;
    std::vector<std::wstring> items;
};

/// The page of the keys: the menus' items that have a key, below their menu's title, and then the keys of the plots. A
/// line is the key, a tab and what it does.
std::wstring KeysPage(std::vector<MenuTexts> const & menus, Language language);

} // namespace workbench
