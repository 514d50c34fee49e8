#pragma once
// What programs that read the screen are told of a control's elements. Knows no window; the numbers are those of the
// platform's documentation. Internal to the module.

#include <string>

namespace accessible
{
/// The control itself, a row of it or a cell.
struct Element
{
    int row = -1;
    int col = -1;

    bool operator==(Element const &) const = default;
    bool IsControl() const { return row < 0; }
    bool IsRow() const { return row >= 0 && col < 0; }
    bool IsCell() const { return row >= 0 && col >= 0; }
};

// An event names an element by a number: 0 is the control, rows count from 1, cells have negative numbers.

/// The cells of a row that have a number.
inline constexpr int numbered_columns = 256;
/// 0 stands for an element that is too far on to have one, too.
long NumberOf(Element element);
/// The element that a number names, whether or not it is there.
Element ElementOf(long number);

enum class Role : long
{
    none = 0,
    client = 0x0A,
    grouping = 0x14,
    column_header = 0x19,
    cell = 0x1D,
    link = 0x1E,
    list = 0x21,
    row = 0x22,
    graphic = 0x28,
    label = 0x29,
    text = 0x2A,
    button = 0x2B,
    check_box = 0x2C,
    radio_button = 0x2D,
    drop_down = 0x2E,
    progress = 0x30,
    slider = 0x33
};

namespace state
{
inline constexpr long unavailable = 0x1;
inline constexpr long selected = 0x2;
inline constexpr long focused = 0x4;
inline constexpr long pressed = 0x8;
inline constexpr long checked = 0x10;
inline constexpr long mixed = 0x20;
inline constexpr long read_only = 0x40;
inline constexpr long expanded = 0x200;
inline constexpr long collapsed = 0x400;
inline constexpr long invisible = 0x8000;
inline constexpr long offscreen = 0x10000;
inline constexpr long focusable = 0x100000;
inline constexpr long selectable = 0x200000;
inline constexpr long linked = 0x400000;
inline constexpr long multi_selectable = 0x1000000;
inline constexpr long has_popup = 0x40000000;
} // namespace state

enum class Direction
{
    up,
    down,
    left,
    right,
    next,
    previous,
    first_child,
    last_child
};

/// What an element says of itself.
struct Description
{
    Role role = Role::none;
    /// state bits.
    long states = 0;
    std::wstring name;
    std::wstring value;
    /// What the default action does, in a word; empty for none.
    std::wstring action;
    /// Such as "Alt+X"; empty for none.
    std::wstring shortcut;
};
} // namespace accessible
