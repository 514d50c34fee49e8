#pragma once

#include <afxwin.h>

#include "frame/Export.h"

class CStandaloneFrameWnd;

/// A base for any object of the host that opens a frame of its own, without a document, and is told what happens to it.
///
///     class Scope : public CStandaloneFrameUser
///     {
///         void Show() { m_frame = CreateFrame<ScopeView>(L"Scope"); }
///         void BeiFrameAbleben() override
///         {
///             m_frame = nullptr;
///             CStandaloneFrameUser::BeiFrameAbleben();
///         }
///         CStandaloneFrameWnd * m_frame = nullptr;
///     };
///
/// A frame keeps a plain pointer to its user: a user has to see to the end of its frame before it ends itself.
class INSTRUMENT_UI_API CStandaloneFrameUser
{
public:
    CStandaloneFrameUser();
    /// Takes over whether a frame lives. The frame itself goes on telling the user that made it.
    CStandaloneFrameUser(CStandaloneFrameUser const & other);
    /// Takes over whether a frame lives.
    CStandaloneFrameUser & operator=(CStandaloneFrameUser const & other);
    virtual ~CStandaloneFrameUser() = 0;

    /// The frame is about to end; said once. An override calls the base class, or FrameLebt stays true; that is meant.
    virtual void BeiFrameAbleben();
    /// A command of the frame's menu; the two numbers are the host's convention. Does nothing by default.
    virtual void MenueKommando(int first, int second);
    /// For the host's own use; the toolkit doesn't call it. Does nothing by default.
    virtual void FrameEreignis(int event, unsigned long number, void const * data, wchar_t const * text);
    /// A double click on the frame itself, with the message's flags and its point in the client area; the third
    /// argument is -1. Does nothing by default.
    virtual void MausLDoppelKlick(unsigned int flags, CPoint point, int index);
    /// The same with the right button.
    virtual void MausRDoppelKlick(unsigned int flags, CPoint point, int index);

    /// Whether a frame of this user is alive.
    bool FrameLebt() const;

protected:
    /// Opens a frame with that title, which is also the name under which its place is remembered, and one view of the
    /// class View, which has dynamic creation. The application's main window must be a CMDIFrameWnd. The frame deletes
    /// itself with its window. Null if it could not be made; the user's FrameLebt is false then.
    template <class View> CStandaloneFrameWnd * CreateFrame(wchar_t const * title)
    {
        return FrameErzeugen(title, RUNTIME_CLASS(View));
    }
    /// The same with a class that is known at run time only.
    CStandaloneFrameWnd * CreateFrame(wchar_t const * title, CRuntimeClass * viewClass)
    {
        return FrameErzeugen(title, viewClass);
    }

private:
    friend class CStandaloneFrameWnd;

    CStandaloneFrameWnd * FrameErzeugen(wchar_t const * title, CRuntimeClass * viewClass);

    bool m_frameLebt;
};
