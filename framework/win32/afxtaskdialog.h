#pragma once
// A message box with main instruction, command links, radio buttons, check box and progress bar.

#define __AFXTASKDIALOG_H__

#include <afxwin.h>
#include <commctrl.h>

#include <vector>

/// The system's task dialog, which common controls of version 6 have. What is set while it is up shows at once, but for
/// the lists of controls. An unknown control throws CInvalidArgException.
class FRAMEWORK_API CTaskDialog : public CObject
{
    DECLARE_DYNAMIC(CTaskDialog)

public:
    CTaskDialog(CString const & strContent, CString const & strMainInstruction, CString const & strTitle,
                int nCommonButtons = TDCBF_OK_BUTTON | TDCBF_CANCEL_BUTTON,
                int nTaskDialogOptions = TDF_ENABLE_HYPERLINKS | TDF_USE_COMMAND_LINKS,
                CString const & strFooter = _T(""));
    /// The command controls are the strings of the resources with these identifiers.
    CTaskDialog(CString const & strContent, CString const & strMainInstruction, CString const & strTitle,
                int nIDCommandControlsFirst, int nIDCommandControlsLast, int nCommonButtons,
                int nTaskDialogOptions = TDF_ENABLE_HYPERLINKS | TDF_USE_COMMAND_LINKS,
                CString const & strFooter = _T(""));
    ~CTaskDialog() override;

    static BOOL IsSupported();
    static INT_PTR ShowDialog(CString const & strContent, CString const & strMainInstruction, CString const & strTitle,
                              int nIDCommandControlsFirst, int nIDCommandControlsLast,
                              int nCommonButtons = TDCBF_YES_BUTTON | TDCBF_NO_BUTTON,
                              int nTaskDialogOptions = TDF_ENABLE_HYPERLINKS | TDF_USE_COMMAND_LINKS,
                              CString const & strFooter = _T(""));
    /// The identifier of the button that ended it. Throws CNotSupportedException where the system has no task dialogs,
    /// and CInvalidArgException for what it refuses.
    INT_PTR DoModal(HWND hParent = ::GetActiveWindow());

    void SetWindowTitle(CString & strWindowTitle);
    void SetMainInstruction(CString const & strInstructions);
    void SetContent(CString const & strContent);
    void SetFooterText(CString const & strFooterText);
    void SetExpansionArea(CString const & strExpandedInformation, CString const & strCollapsedLabel = _T(""),
                          CString const & strExpandedLabel = _T(""));
    void SetMainIcon(HICON hMainIcon);
    void SetMainIcon(LPCWSTR lpszMainIcon);
    void SetFooterIcon(HICON hFooterIcon);
    void SetFooterIcon(LPCWSTR lpszFooterIcon);
    /// In dialog units; 0 is what fits.
    void SetDialogWidth(int nWidth = 0);
    int GetOptions() const { return m_options; }
    void SetOptions(int nOptionFlag);

    void AddCommandControl(int nCommandControlID, CString const & strCaption, BOOL bEnabled = TRUE,
                           BOOL bRequiresElevation = FALSE);
    void LoadCommandControls(int nIDCommandControlsFirst, int nIDCommandControlsLast);
    void RemoveAllCommandControls();
    void SetCommandControlOptions(int nCommandControlID, BOOL bEnabled, BOOL bRequiresElevation = FALSE);
    BOOL IsCommandControlEnabled(int nCommandControlID) const;
    void SetDefaultCommandControl(int nCommandControlID);
    int GetSelectedCommandControlID() const { return m_selectedButton; }

    void AddRadioButton(int nRadioButtonID, CString const & strCaption, BOOL bEnabled = TRUE);
    void LoadRadioButtons(int nIDRadioButtonsFirst, int nIDRadioButtonsLast);
    void RemoveAllRadioButtons();
    void SetRadioButtonOptions(int nRadioButtonID, BOOL bEnabled);
    BOOL IsRadioButtonEnabled(int nRadioButtonID) const;
    void SetDefaultRadioButton(int nRadioButtonID);
    int GetSelectedRadioButtonID() const { return m_selectedRadio; }

    void SetCommonButtons(int nButtonMask, int nDisabledButtonMask = 0, int nElevationButtonMask = 0);
    void SetCommonButtonOptions(int nDisabledButtonMask, int nElevationButtonMask = 0);
    int GetCommonButtonCount() const;
    /// The flag of a button by its identifier, 0 for none.
    int GetCommonButtonFlag(int nButtonId) const;
    /// The identifier of a button by its flag, 0 for none.
    int GetCommonButtonId(int nFlag);

    void SetVerificationCheckboxText(CString & strVerificationText);
    void SetVerificationCheckbox(BOOL bChecked);
    BOOL GetVerificationCheckboxState() const { return m_verified; }

    void SetProgressBarMarquee(BOOL bEnabled = TRUE, int nMarqueeSpeed = 0);
    void SetProgressBarRange(int nRangeMin, int nRangeMax);
    void SetProgressBarPosition(int nProgressPos);
    void SetProgressBarState(int nState = PBST_NORMAL);

    // What happens in the dialog. S_FALSE keeps it open after a click.
    virtual HRESULT OnInit();
    virtual HRESULT OnCreate();
    virtual HRESULT OnDestroy();
    virtual HRESULT OnNavigatePage();
    virtual HRESULT OnCommandControlClick(int nCommandControlID);
    virtual HRESULT OnRadioButtonClick(int nRadioButtonID);
    virtual HRESULT OnVerificationCheckboxClick(BOOL bChecked);
    virtual HRESULT OnExpandButtonClicked(BOOL bExpanded);
    virtual HRESULT OnHyperlinkClick(CString const & strHref);
    virtual HRESULT OnHelp();
    /// With the option TDF_CALLBACK_TIMER; milliseconds since the start.
    virtual HRESULT OnTimer(long lTime);

protected:
    void ClickCommandControl(int nCommandControlID) const;
    void ClickRadioButton(int nRadioButtonID) const;
    /// Shows the other dialog in place of this one, which is up.
    void NavigateTo(CTaskDialog & oTaskDialog) const;

private:
    struct Button
    {
        int id;
        CString caption;
        BOOL enabled;
        BOOL elevated;
    };

    static HRESULT CALLBACK Callback(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LONG_PTR dialog);
    HRESULT Notice(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void FillConfig(TASKDIALOGCONFIG & config);
    void ApplyStates();
    void SendText(int element, CString const & text) const;
    void SetState(UINT message, int id, BOOL state) const;
    void Tell(UINT message, WPARAM wParam, LPARAM lParam) const;
    static Button & Find(std::vector<Button> & buttons, int id);
    static std::vector<TASKDIALOG_BUTTON> Shown(std::vector<Button> const & buttons);

    CString m_content;
    CString m_instruction;
    CString m_title;
    CString m_footer;
    CString m_expanded;
    CString m_collapsedLabel;
    CString m_expandedLabel;
    CString m_verification;
    std::vector<Button> m_commands;
    std::vector<Button> m_radios;
    std::vector<TASKDIALOG_BUTTON> m_shownCommands;
    std::vector<TASKDIALOG_BUTTON> m_shownRadios;
    int m_options;
    int m_commonButtons;
    int m_disabledCommon = 0;
    int m_elevatedCommon = 0;
    int m_defaultCommand = 0;
    int m_defaultRadio = 0;
    int m_width = 0;
    int m_selectedButton = 0;
    int m_selectedRadio = 0;
    BOOL m_verified = FALSE;
    HICON m_mainIconHandle = nullptr;
    LPCWSTR m_mainIconName = nullptr;
    HICON m_footerIconHandle = nullptr;
    LPCWSTR m_footerIconName = nullptr;
    BOOL m_marquee = FALSE;
    int m_marqueeSpeed = 0;
    int m_progressMin = 0;
    int m_progressMax = 100;
    int m_progress = 0;
    int m_progressState = PBST_NORMAL;
    HWND m_window = nullptr; // while it is up
};
