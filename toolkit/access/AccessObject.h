#pragma once
// The accessible objects of a control, for programs that read the screen. They last as long as anybody keeps them; once
// the control has ended they answer CO_E_OBJNOTCONNECTED. Internal to the module.

#include <afxwin.h>

#include <memory>
#include <optional>
#include <vector>

#include "access/AccessElement.h"

/// A control as its accessible objects ask it. Shared between them: its control is taken from it at the end. Whatever
/// is asked may run the host's code, which may end the control.
class AccessTarget
{
public:
    virtual ~AccessTarget() = default;

    /// False once the control has ended.
    virtual bool IsThere() const = 0;
    virtual HWND Window() const = 0;
    virtual bool Exists(accessible::Element) { return true; }
    virtual int ChildCount(accessible::Element) { return 0; }
    /// Windows that are children as well, behind the elements of the control's own.
    virtual std::vector<HWND> ChildWindows() { return {}; }
    virtual std::optional<accessible::Element> Navigate(accessible::Element, accessible::Direction) { return {}; }
    /// Screen coordinates, as below.
    virtual std::optional<accessible::Element> ElementAt(CPoint point) = 0;
    virtual std::optional<CRect> RectOf(accessible::Element element) = 0;
    virtual accessible::Description Describe(accessible::Element element) = 0;
    /// What a click does; false without a default action.
    virtual bool Act(accessible::Element) { return false; }
    /// The control itself for none.
    virtual accessible::Element Focused() { return {}; }
    /// The first selected element behind another one, of the control itself for the first of all. Asked for one after
    /// the other, so that nobody has to keep as many as there are.
    virtual std::optional<accessible::Element> NextSelected(accessible::Element) { return {}; }
    /// flags: SELFLAG_ bits; false if the element can't be selected.
    virtual bool Select(accessible::Element, long flags);
};

/// Whether a message asks for a control's own object.
bool AsksForControl(UINT message, LPARAM lParam);
/// Answers WM_GETOBJECT with the object of the control itself; 0 if that fails, and in a thread whose objects COM would
/// have called by other threads.
LRESULT AnswerWithObject(std::shared_ptr<AccessTarget> const & target, WPARAM flags);
/// Tells whoever listens of an event (EVENT_OBJECT_...). Costs next to nothing while nobody does.
void TellOfEvent(DWORD event, HWND window, accessible::Element element);
