#pragma once
// What programs that read the screen are told of the small controls. Knows no window. Internal to the module.

#include <optional>
#include <string>

#include "access/AccessElement.h"

namespace accessible
{
/// A caption as it is spoken.
struct Caption
{
    std::wstring text;
    /// "Alt+X" where the caption underlines a letter.
    std::wstring shortcut;
};
/// '&' underlines what follows, "&&" stands for itself.
Caption CaptionOf(std::wstring const & text);

/// What is known of every control.
struct ControlFacts
{
    /// The caption of the label ahead of it; empty for none.
    std::wstring label;
    /// The window's text.
    std::wstring text;
    bool enabled = true;
    bool focused = false;
    bool focusable = true;
};

/// Named by its label, or else by its own text.
Description DescribeControl(Role role, ControlFacts const & facts);
/// Named by its own text, or else by its label.
Description DescribeButton(ControlFacts const & facts, bool pressed);
/// A display that can't have the focus. shown: what it reads.
Description DescribeReadOut(ControlFacts const & facts, std::wstring const & shown);
/// level: 0 to 1.
Description DescribeSlider(ControlFacts const & facts, double level);
/// A field whose text is its value. readOnly: the user can't type there.
Description DescribeField(ControlFacts const & facts, bool readOnly);
/// shown: the text of the combo.
Description DescribeCombo(ControlFacts const & facts, std::wstring const & shown, bool dropped);

/// How a list's item stands.
struct ItemFacts
{
    std::wstring text;
    bool enabled = true;
    bool selected = false;
    bool focused = false;
    /// Some of it shows.
    bool inSight = true;
};
/// An item that is chosen by its default action.
Description DescribeChoice(ItemFacts const & facts);
/// An item with a check box of its own.
Description DescribeTick(ItemFacts const & facts, bool ticked);

/// What a column's header shows beside its title.
enum class HeaderMark
{
    none,
    unchecked,
    checked,
    mixed,
    ascending,
    descending
};
/// canBePressed: a click sorts or ticks.
Description DescribeColumn(ItemFacts const & facts, HeaderMark mark, bool canBePressed);

/// Items of a control that have no parts themselves.
struct ItemRow
{
    int count = 0;
    /// Beside each other, not below.
    bool sideBySide = false;
};
bool Exists(ItemRow const & items, Element element);
/// The element beside an element; nothing if there is none.
std::optional<Element> Navigate(ItemRow const & items, Element from, Direction direction);
} // namespace accessible
