#include "access/AccessibleControls.h"

#include <algorithm>
#include <cmath>

#include "frame/OwnTexts.h"

namespace accessible
{
namespace
{
/// Names the control by the first of two captions that says something.
void Name(Description & described, std::wstring const & first, std::wstring const & second)
{
    Caption caption = CaptionOf(first);
    if (caption.text.empty())
        caption = CaptionOf(second);
    described.name = caption.text;
    described.shortcut = caption.shortcut;
}

Description WithStates(Role role, ControlFacts const & facts)
{
    Description described;
    described.role = role;
    if (!facts.enabled)
        described.states = state::unavailable;
    else if (facts.focusable)
        described.states = state::focusable;
    if (facts.focused)
        described.states |= state::focused;
    return described;
}

/// A default action is there while the control is enabled.
void Act(Description & described, wchar_t const * action)
{
    if ((described.states & state::unavailable) == 0)
        described.action = action;
}

Description DescribeItem(Role role, ItemFacts const & facts, wchar_t const * action)
{
    Description described;
    described.role = role;
    described.name = facts.text;
    described.states = facts.enabled ? 0 : state::unavailable;
    if (facts.selected)
        described.states |= state::selected;
    if (facts.focused)
        described.states |= state::focused;
    if (!facts.inSight)
        described.states |= state::offscreen;
    Act(described, action);
    return described;
}
} // namespace

Caption CaptionOf(std::wstring const & text)
{
    Caption caption;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        bool const marks = text[i] == L'&';
        if (marks && ++i == text.size())
            break;
        if (marks && text[i] != L'&' && caption.shortcut.empty())
            caption.shortcut = std::wstring(L"Alt+") + text[i];
        caption.text += text[i];
    }
    // A label in front of a field ends with a colon, which is not part of the name.
    while (!caption.text.empty() && (caption.text.back() == L' ' || caption.text.back() == L':'))
        caption.text.pop_back();
    return caption;
}

Description DescribeControl(Role role, ControlFacts const & facts)
{
    Description described = WithStates(role, facts);
    Name(described, facts.label, facts.text);
    return described;
}

Description DescribeButton(ControlFacts const & facts, bool pressed)
{
    Description described = WithStates(Role::button, facts);
    Name(described, facts.text, facts.label);
    if (pressed)
        described.states |= state::pressed;
    Act(described, ReadOwnText(OwnText::press));
    return described;
}

Description DescribeReadOut(ControlFacts const & facts, std::wstring const & shown)
{
    Description described = DescribeControl(Role::label, facts);
    described.states = state::read_only | (described.states & state::unavailable);
    described.value = shown;
    return described;
}

Description DescribeSlider(ControlFacts const & facts, double level)
{
    Description described = DescribeControl(Role::slider, facts);
    described.value = std::to_wstring(std::lround(100 * std::clamp(level, 0.0, 1.0))) + L"%";
    return described;
}

Description DescribeField(ControlFacts const & facts, bool readOnly)
{
    Description described = WithStates(Role::text, facts);
    Name(described, facts.label, L"");
    described.value = facts.text;
    if (readOnly)
        described.states |= state::read_only;
    return described;
}

Description DescribeCombo(ControlFacts const & facts, std::wstring const & shown, bool dropped)
{
    Description described = WithStates(Role::drop_down, facts);
    Name(described, facts.label, L"");
    described.value = shown;
    described.states |= state::has_popup | (dropped ? state::expanded : state::collapsed);
    Act(described, ReadOwnText(dropped ? OwnText::close : OwnText::open));
    return described;
}

Description DescribeChoice(ItemFacts const & facts)
{
    Description described = DescribeItem(Role::row, facts, ReadOwnText(OwnText::select));
    described.states |= state::selectable | state::focusable;
    return described;
}

Description DescribeTick(ItemFacts const & facts, bool ticked)
{
    Description described =
        DescribeItem(Role::check_box, facts, ReadOwnText(ticked ? OwnText::uncheck : OwnText::check));
    described.states |= state::selectable | state::focusable;
    if (ticked)
        described.states |= state::checked;
    return described;
}

Description DescribeColumn(ItemFacts const & facts, HeaderMark mark, bool canBePressed)
{
    Description described = DescribeItem(Role::column_header, facts, canBePressed ? ReadOwnText(OwnText::press) : L"");
    switch (mark)
    {
    case HeaderMark::checked:
        described.states |= state::checked;
        break;
    case HeaderMark::mixed:
        described.states |= state::mixed;
        break;
    case HeaderMark::ascending:
        described.value = ReadOwnText(OwnText::ascending);
        break;
    case HeaderMark::descending:
        described.value = ReadOwnText(OwnText::descending);
        break;
    case HeaderMark::none:
    case HeaderMark::unchecked:
        break;
    }
    return described;
}

bool Exists(ItemRow const & items, Element element)
{
    return element.IsControl() || (element.IsRow() && element.row < items.count);
}

std::optional<Element> Navigate(ItemRow const & items, Element from, Direction direction)
{
    Element to = from;
    switch (direction)
    {
    case Direction::first_child:
    case Direction::last_child:
        if (!from.IsControl() || items.count <= 0)
            return {};
        return Element{direction == Direction::first_child ? 0 : items.count - 1, -1};
    case Direction::next:
        ++to.row;
        break;
    case Direction::previous:
        --to.row;
        break;
    case Direction::left:
    case Direction::right:
        if (items.sideBySide)
            to.row += direction == Direction::right ? 1 : -1;
        break;
    case Direction::up:
    case Direction::down:
        if (!items.sideBySide)
            to.row += direction == Direction::down ? 1 : -1;
        break;
    }
    // What stands beside the control itself is its parent's matter.
    if (!from.IsRow() || !to.IsRow() || to == from || !Exists(items, to))
        return {};
    return to;
}
} // namespace accessible
