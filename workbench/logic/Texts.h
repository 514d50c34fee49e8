#pragma once
// The workbench's texts in the languages that it speaks. The sources hold the English ones.

#include <cstddef>
#include <iterator>

namespace workbench
{

/// A language of the workbench. Its number is its place in language_facts and its column in the catalogue.
enum class Language
{
    english,
    german,
    spanish
};

/// What there is to know of a language.
struct LanguageFacts
{
    wchar_t const * name; ///< in the language itself, as the chooser has it
    unsigned short id;    ///< Windows' number of it
};

/// All languages, by their number.
inline constexpr LanguageFacts language_facts[] = {{L"English", 1033}, {L"Deutsch", 1031}, {L"Español", 3082}};

inline constexpr std::size_t language_count = std::size(language_facts);

/// Whether there are texts for Windows' number of a language, of any country.
bool SpeaksLanguage(unsigned short languageId);

/// The language for Windows' number of one: the same one of any country, or English.
Language LanguageOf(unsigned short languageId);

/// The language of the texts that are asked for from now on; English at first. May be called from any thread.
void SetLanguage(Language language);

/// That language.
Language PresentLanguage();

/// The text in the present language, or as given where there is none. May be called from any thread; the result
/// lives as long as the argument or the program.
wchar_t const * Text(wchar_t const * english);

/// Marks a text that a table holds and that Text gets later.
constexpr wchar_t const * Translatable(wchar_t const * english)
{
    return english;
}

} // namespace workbench
