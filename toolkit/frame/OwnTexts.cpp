#include "frame/OwnTexts.h"

#include <cstddef>
#include <iterator>

namespace
{
struct Entry
{
    wchar_t const * english;
    wchar_t const * german;
    wchar_t const * spanish;
};

constexpr Entry entries[] = {
    {L"Press", L"Dr\u00FCcken", L"Presionar"},
    {L"Open", L"\u00D6ffnen", L"Abrir"},
    {L"Close", L"Schlie\u00DFen", L"Cerrar"},
    {L"Edit", L"Bearbeiten", L"Editar"},
    {L"Jump", L"Springen", L"Saltar"},
    {L"Check", L"Ankreuzen", L"Marcar"},
    {L"Uncheck", L"Abw\u00E4hlen", L"Desmarcar"},
    {L"Select", L"Ausw\u00E4hlen", L"Seleccionar"},
    {L"Ascending", L"Aufsteigend", L"Ascendente"},
    {L"Descending", L"Absteigend", L"Descendente"},
    {L"This is not a number.", L"Das ist keine Zahl.", L"Esto no es un n\u00FAmero."},
    {L"This is not a date and time.", L"Das ist kein Datum mit Uhrzeit.", L"Esto no es una fecha con hora."},
    {L"This text cannot be read.", L"Dieser Text ist nicht lesbar.", L"Este texto no se puede leer."},
    {L"This value was not accepted.", L"Dieser Wert wurde nicht angenommen.", L"Este valor no fue aceptado."},
};
static_assert(std::size(entries) == own_texts);
} // namespace

wchar_t const * OwnTextIn(OwnText text, unsigned short language)
{
    constexpr unsigned short primary_part = 0x3FF;
    constexpr unsigned short german = 0x07;
    constexpr unsigned short spanish = 0x0A;
    Entry const & entry = entries[static_cast<std::size_t>(text)];
    switch (language & primary_part)
    {
    case german:
        return entry.german;
    case spanish:
        return entry.spanish;
    default:
        return entry.english;
    }
}

wchar_t const * ReadOwnText(OwnText text)
{
    return OwnTextIn(text, LanguageInForce());
}
