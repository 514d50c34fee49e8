#pragma once
// The accessible objects of a list with cells: what the report list and the table have in common. Internal to the
// module.

#include <afxwin.h>

#include <optional>

#include "access/AccessibleList.h"
#include "access/AccessObject.h"

/// A list as AccessibleList knows it. What the user does to it is each list's own matter.
class ListTarget : public AccessTarget
{
public:
    bool Exists(accessible::Element element) override { return accessible::Exists(Rows(), element); }
    int ChildCount(accessible::Element element) override { return accessible::ChildCount(Rows(), element); }
    std::optional<accessible::Element> Navigate(accessible::Element from, accessible::Direction direction) override
    {
        return accessible::Navigate(Rows(), from, direction);
    }
    std::optional<accessible::Element> ElementAt(CPoint point) override
    {
        ::ScreenToClient(Window(), &point);
        return accessible::ElementAt(Rows(), point);
    }
    std::optional<CRect> RectOf(accessible::Element element) override
    {
        std::optional<CRect> rect = accessible::RectOf(Rows(), element);
        if (rect && IsThere())
            ::MapWindowPoints(Window(), nullptr, reinterpret_cast<POINT *>(&*rect), 2);
        return rect;
    }
    accessible::Description Describe(accessible::Element element) override
    {
        accessible::Description described = accessible::Describe(Rows(), element);
        if (element.IsControl() && IsThere())
            described.name = Name();
        return described;
    }
    accessible::Element Focused() override
    {
        int const row = Rows().FocusedRow();
        return row >= 0 ? accessible::Element{row, Rows().FocusedCol()} : accessible::Element{};
    }
    std::optional<accessible::Element> NextSelected(accessible::Element after) override
    {
        int const row = Rows().NextSelected(after.row);
        return row >= 0 ? std::optional(accessible::Element{row, -1}) : std::nullopt;
    }

protected:
    virtual AccessibleList const & Rows() const = 0;
    virtual std::wstring Name() = 0;
};
