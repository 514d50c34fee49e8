#pragma once
// The workbench's texts in the languages that it speaks. The sources hold the English ones.

namespace workbench
{

/// A language of the workbench.
enum class Language
{
    English,
    German
};

/// The language for Windows' number of one: German for German of any country, else English.
Language LanguageOf(unsigned short languageId);

/// The language of the texts that are asked for from now on; English at first. May be called from any thread.
void SetLanguage(Language language);

/// The text in the present language, or as given where there is no other. May be called from any thread; the result
/// lives as long as the argument or the program.
wchar_t const * Text(wchar_t const * english);

/// Marks a text that a table holds and that Text gets later.
constexpr wchar_t const * Translatable(wchar_t const * english)
{
    return english;
}

} // namespace workbench
