#pragma once

#include <functional>

#include "Settings.h"
#include "dialogs/Dialog3d.h"

/// The base of the workbench's modeless dialogs: they follow the settings and say when they open and close.
class CWorkbenchDialog : public CDialog3d
{
public:
    /// The dialog stays above its owner. name: under which the dialog's place is stored.
    CWorkbenchDialog(UINT templateId, wchar_t const * name, CWnd & owner);

    int DisplayDialog() override;

    /// Opens the dialog with that title, or brings it to the front. False without its template.
    bool Open(CString const & title);

    /// Lets the dialog follow these settings from now on.
    void Follow(workbench::Settings const & settings);

    /// Called with true when the dialog has opened and with false when it is about to end.
    std::function<void(CWorkbenchDialog &, bool)> m_onOpened;

protected:
    /// Gives the dialog, when it opens for the first time, a size in dialog units, as far as the screen has room. Its
    /// template's size is its least one. To be called when the layout is complete.
    void Enlarge(CSize size);

    void OnOK() override;
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnDestroy();

    UINT m_template;
    CWnd & m_owner;
    unsigned char m_alphaWhileInactive = 255;
};
