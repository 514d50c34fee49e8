#pragma once

#include <functional>

#include "dialogs/Dialog3d.h"
#include "Settings.h"

/// Moves a window to where all of it is on its screen, or its upper left corner if it is larger: a place that was kept
/// when the screen was larger may lie beyond this one.
void BringOntoScreen(CWnd & window);

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

    /// Shows what an open dialog says in the present language.
    virtual void ShowTexts() = 0;

    /// Called with true when the dialog has opened and with false when it is about to end.
    std::function<void(CWorkbenchDialog &, bool)> m_onOpened;

protected:
    /// Gives it that title, and its controls the texts of its template in the present language.
    void ShowTemplateTexts(CString const & title);

    /// Gives the dialog, when it opens for the first time, a size in dialog units, as far as the screen has room. Its
    /// template's size is its least one. To be called when the layout is complete.
    void Enlarge(CSize size);

    void OnOK() override;
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnDestroy();

    void SetTitle(CString const & title);

    UINT m_template;
    CWnd & m_owner;
    unsigned char m_alphaWhileInactive = 255;
};
