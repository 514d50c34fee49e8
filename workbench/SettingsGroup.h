#pragma once

#include <functional>

#include "dialogs/PropertyPage3d.h"
#include "Settings.h"

/// The base of the groups that the settings consist of. Each is a page with a dialog template of its own, and knows
/// nothing of the others nor of the sheet that it stands in.
class CSettingsGroup : public CPropertyPage3d
{
public:
    explicit CSettingsGroup(UINT templateId);

    /// Whether the system's dialogs are dark. Visual styles are made for light ones.
    static bool HasDarkGround();

    /// Shows these settings.
    virtual void Show(workbench::Settings const & settings) = 0;
    /// Puts what the user has chosen into the settings. False if that is no choice; the user has been told then, and
    /// the focus is where it can be put right.
    virtual bool Take(workbench::Settings & settings) = 0;

    /// Shows what it says in the present language. What the user has chosen stays.
    virtual void ShowTexts();
    /// What its tab says in the present language.
    CString Caption() const;

    /// Gives the settings as they are.
    std::function<workbench::Settings()> m_current;
    /// Called with the settings that hold what the user has changed here.
    std::function<void(workbench::Settings const &)> m_onAccepted;

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    BOOL OnKillActive() override;
    BOOL OnApply() override;
    BOOL PreTranslateMessage(MSG * message) override;

protected:
    /// Lets a control follow the page's size; its id as it is in the template.
    void Follow(int id, CEdges const & edges);
    /// Notes that the user has changed something.
    void Changed();

private:
    UINT m_template;
    bool m_filled = false;  ///< the controls show the settings
    bool m_changed = false; ///< and the user has changed them since
};
