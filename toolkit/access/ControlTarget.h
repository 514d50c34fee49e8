#pragma once
// The accessible objects of the small controls: what they have in common. Internal to the module.

#include <afxwin.h>

#include <optional>
#include <string>

#include "access/AccessibleControls.h"
#include "access/AccessObject.h"
#include "frame/WindowAlive.h"

/// A control, with or without items. Made anew for each that asks for it; it serves as long as the control has the
/// window that it had then.
class ControlTarget : public AccessTarget
{
public:
    /// life: a member of the control.
    ControlTarget(CWnd const & control, LifeSign const & life) : m_alive(control, life), m_window(control.m_hWnd) {}

    bool IsThere() const override { return m_alive.IsAlive(); }
    HWND Window() const override { return m_window; }
    bool Exists(accessible::Element element) override { return accessible::Exists(Items(), element); }
    int ChildCount(accessible::Element element) override { return element.IsControl() ? Items().count : 0; }
    std::optional<accessible::Element> Navigate(accessible::Element from, accessible::Direction direction) override
    {
        return accessible::Navigate(Items(), from, direction);
    }
    std::optional<accessible::Element> ElementAt(CPoint point) override;
    std::optional<CRect> RectOf(accessible::Element element) override;
    accessible::Description Describe(accessible::Element element) override
    {
        return element.IsControl() ? DescribeSelf() : DescribeItem(element.row);
    }
    bool Act(accessible::Element element) override { return element.IsControl() ? ActSelf() : ActItem(element.row); }

protected:
    virtual accessible::ItemRow Items() { return {}; }
    /// Client coordinates, as below; nothing for an item that has no place.
    virtual std::optional<CRect> ItemRect(int) { return {}; }
    /// -1 for none.
    virtual int ItemAt(CPoint) { return -1; }
    virtual accessible::Description DescribeSelf() = 0;
    virtual accessible::Description DescribeItem(int) { return {}; }
    virtual bool ActSelf() { return false; }
    virtual bool ActItem(int) { return false; }
    /// Client coordinates.
    virtual CRect SelfRect();

    /// Asks windows, so that the control may be gone afterwards.
    accessible::ControlFacts Facts() const;
    bool IsEnabled() const { return ::IsWindowEnabled(m_window) != FALSE; }
    /// Whether some of an item shows.
    bool IsInSight(std::optional<CRect> const & rect);

private:
    WindowAlive m_alive;
    HWND m_window;
};

/// A push button.
class ButtonTarget final : public ControlTarget
{
public:
    using ControlTarget::ControlTarget;

protected:
    accessible::Description DescribeSelf() override;
    bool ActSelf() override;
};

/// The text of a window; empty for none.
std::wstring WindowTextOf(HWND window);
/// The text of the label that stands ahead of a control in its dialog.
std::wstring LabelOf(HWND control);
