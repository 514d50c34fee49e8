#include "controls/FieldWidths.h"

namespace
{
constexpr int edges_of_a_field = 6;
constexpr int edges_of_a_button = 2;
constexpr wchar_t const * dots = L"...";
constexpr int kept_characters = tip_text_room - 1 - 3;
} // namespace

bool IsTooWide(int textWidth, int fieldWidth)
{
    return textWidth > fieldWidth - edges_of_a_field;
}

CRect ComboTextField(CRect const & client, int thumb)
{
    CRect field(client);
    field.right -= thumb + edges_of_a_button;
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
