#pragma once
// The signs that numbers are written with: those of the user's region.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench
{

/// How numbers are written. As made, that of programs: a point, and commas between thousands.
struct NumberSigns
{
    std::wstring decimal = L".";
    std::wstring grouping = L",";
    std::wstring negative = L"-";
    /// How many digits each group has, from the point on; the last number holds for all that follow. A 0 at the end, as
    /// well as none at all, ends the grouping there: {3} is 1,234,567, {3, 2} is 12,34,567, {3, 0} is 1234,567.
    std::vector<int> groups = {3};

    bool operator==(NumberSigns const &) const = default;
};

/// The groups that Windows describes so: "3;0" repeats the last one, "3" does not, "3;2;0" is 12,34,567.
std::vector<int> GroupsOf(std::wstring_view description);

/// Sets the signs of all numbers that are written from now on. May be called from any thread, as all here.
void SetNumberSigns(NumberSigns signs);
NumberSigns PresentNumberSigns();

/// A number as programs write it, "-1234.5", with the present signs. Its digits are grouped if `grouped`. Whatever else
/// the text has stays, so that "0:01.500" and "2.5 kHz" go as well.
std::wstring WithSigns(std::wstring_view plain, bool grouped = false);

/// The reverse of that: the text as programs write it, without groups.
std::wstring WithoutSigns(std::wstring_view text);

/// The number that a user has typed: with the present signs, or with a point for the decimals. A point that groups in
/// the user's region does so where just a group of digits follows it. Nothing if it is no number.
std::optional<double> ParseNumber(std::wstring_view typed);

} // namespace workbench
