#pragma once
// Texts of the module that are not in its string table, whose ids and gaps hosts rely on: words for programs that read
// the screen, and what the table says of texts that it can't take. Knows no window. Internal to the module.

enum class OwnText
{
    // What default actions do.
    press,
    open,
    close,
    edit,
    jump,
    check,
    uncheck,
    select,

    // How a column is sorted.
    ascending,
    descending,

    // Why a typed text was not taken.
    not_a_number,
    not_a_time,
    not_a_value,
    not_taken
};
inline constexpr int own_texts = static_cast<int>(OwnText::not_taken) + 1;

/// The text in a language of the system's numbers: German, Spanish, or else English.
wchar_t const * OwnTextIn(OwnText text, unsigned short language);
/// The text in the language in force.
wchar_t const * ReadOwnText(OwnText text);

/// The thread's language. The module links the system's, a logic test a substitute.
unsigned short LanguageInForce();
