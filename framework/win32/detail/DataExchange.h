#pragma once
// What the exchange and validation routines share.

#include <afxwin.h>

#include <initializer_list>

namespace framework
{
/// The control that an exchange met last; a failure returns to it.
struct DataExchangeAccess
{
    static HWND LastControl(CDataExchange const & exchange) { return exchange.m_lastControl; }
    static bool LastIsEdit(CDataExchange const & exchange) { return exchange.m_lastIsEdit; }
};

/// Numbers of the prompts, as resources of the program may replace them.
enum class Prompt : UINT
{
    parse_integer = 0xF110,
    parse_real = 0xF111,
    integer_range = 0xF112,
    real_range = 0xF113,
    string_size = 0xF114,
    radio_button = 0xF115,
    parse_byte = 0xF116,
    parse_unsigned = 0xF117
};

/// The prompt with %1, %2 replaced: the program's string resource of this number if there is one, else English.
CString PromptText(Prompt prompt, std::initializer_list<CString> arguments);

/// Shows the prompt in a message box and fails the exchange. Throws CUserException.
void FailWithPrompt(CDataExchange & exchange, Prompt prompt, std::initializer_list<CString> arguments = {});

/// The text of a window.
CString TextOf(HWND window);
/// Sets the text of a window unless it is that already, so that nothing flickers and no change is notified.
void SetTextOf(HWND window, LPCTSTR text);
} // namespace framework
