#pragma once
// The display languages that the user may choose from, and the decisions of the language chooser. Internal to the
// module.

#include <afx.h>

#include <cstdint>
#include <span>

/// One language of the chooser's list.
struct DisplayLanguage
{
    /// In its own language and script, so that its speakers find it whatever language is in force.
    wchar_t const * name;
    /// A language identifier of the system; 1024 stands for the user's default.
    unsigned int id;
};

/// The languages in the order of the list.
std::span<DisplayLanguage const> DisplayLanguages();

/// The position of the last item with that language, or -1. itemData: the data of the list's items in order.
int PositionOfLanguage(std::span<std::uintptr_t const> itemData, unsigned short languageId);

/// What becomes of the language when the user closes the chooser with OK.
struct LanguageChoice
{
    unsigned short id;
    bool changed;
};

/// present: the language so far. itemData: that of the selected item, of which the low 16 bits count.
LanguageChoice ChooseLanguage(unsigned short present, std::uintptr_t itemData);
