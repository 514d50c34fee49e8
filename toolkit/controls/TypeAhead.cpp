#include "controls/TypeAhead.h"

namespace
{
constexpr int text_end = -1;
} // namespace

void CompleteTyped(CompletionField & field)
{
    CString const typed = field.Text();
    int const length = typed.GetLength();
    std::optional<CompletionField::Selection> const selection = field.Selected();
    bool const found = field.TakeRow(typed);
    if (!found)
        field.SetText(typed);
    if (found && (!selection || selection->end >= length))
        field.Select({length, text_end});
    else if (selection)
        field.Select(*selection);
}

bool KeyCompletes(unsigned int virtualKey)
{
    return virtualKey != VK_BACK && virtualKey != VK_DELETE;
}
