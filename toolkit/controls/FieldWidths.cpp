#include "controls/FieldWidths.h"

#include "layout/Resolution.h"

namespace
{
constexpr int edges_of_a_field = 6;
constexpr int edges_of_a_button = 2;
constexpr wchar_t const * dots = L"...";
constexpr int kept_characters = tip_text_room - 1 - 3;
} // namespace

bool IsTooWide(int textWidth, int fieldWidth, unsigned int dpi)
{
    return textWidth > fieldWidth - resolution::Scaled(edges_of_a_field, dpi);
}

CRect ComboTextField(CRect const & client, int thumb, unsigned int dpi)
{
    CRect field(client);
    field.right -= thumb + resolution::Scaled(edges_of_a_button, dpi);
    return field;
}

int DropWidth(int widestText, int scrollBar, int edge)
{
    return widestText + scrollBar + 2 * edge;
}

CString TipText(CString const & text)
{
    return text.GetLength() < tip_text_room ? text : dots + text.Right(kept_characters);
}
