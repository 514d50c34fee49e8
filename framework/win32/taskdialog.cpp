// CTaskDialog.

#include <afxtaskdialog.h>

#include <bit>

IMPLEMENT_DYNAMIC(CTaskDialog, CObject)

namespace
{
using ShowFunction = HRESULT(WINAPI *)(TASKDIALOGCONFIG const *, int *, int *, WINBOOL *);

/// Null where the common controls have none: those before version 6.
ShowFunction FindShowFunction()
{
    HMODULE const controls = ::GetModuleHandle(_T("comctl32.dll"));
    FARPROC const found = controls == nullptr ? nullptr : ::GetProcAddress(controls, "TaskDialogIndirect");
    return std::bit_cast<ShowFunction>(found);
}

struct CommonButton
{
    int flag;
    int id;
};
constexpr CommonButton common_buttons[] = {{TDCBF_OK_BUTTON, IDOK},       {TDCBF_YES_BUTTON, IDYES},
                                           {TDCBF_NO_BUTTON, IDNO},       {TDCBF_CANCEL_BUTTON, IDCANCEL},
                                           {TDCBF_RETRY_BUTTON, IDRETRY}, {TDCBF_CLOSE_BUTTON, IDCLOSE}};

LPCWSTR UnlessEmpty(CString const & text)
{
    return text.IsEmpty() ? nullptr : text.GetString();
}
} // namespace

CTaskDialog::CTaskDialog(CString const & strContent, CString const & strMainInstruction, CString const & strTitle,
                         int nCommonButtons, int nTaskDialogOptions, CString const & strFooter)
    : m_content(strContent),
      m_instruction(strMainInstruction),
      m_title(strTitle),
      m_footer(strFooter),
      m_options(nTaskDialogOptions),
      m_commonButtons(nCommonButtons)
{
}

CTaskDialog::CTaskDialog(CString const & strContent, CString const & strMainInstruction, CString const & strTitle,
                         int nIDCommandControlsFirst, int nIDCommandControlsLast, int nCommonButtons,
                         int nTaskDialogOptions, CString const & strFooter)
    : CTaskDialog(strContent, strMainInstruction, strTitle, nCommonButtons, nTaskDialogOptions, strFooter)
{
    CTaskDialog::LoadCommandControls(nIDCommandControlsFirst, nIDCommandControlsLast);
}

CTaskDialog::~CTaskDialog() = default;

BOOL CTaskDialog::IsSupported()
{
    return FindShowFunction() != nullptr;
}

INT_PTR CTaskDialog::ShowDialog(CString const & strContent, CString const & strMainInstruction,
                                CString const & strTitle, int nIDCommandControlsFirst, int nIDCommandControlsLast,
                                int nCommonButtons, int nTaskDialogOptions, CString const & strFooter)
{
    CTaskDialog dialog(strContent, strMainInstruction, strTitle, nIDCommandControlsFirst, nIDCommandControlsLast,
                       nCommonButtons, nTaskDialogOptions, strFooter);
    return dialog.DoModal();
}

INT_PTR CTaskDialog::DoModal(HWND hParent)
{
    ShowFunction const show = FindShowFunction();
    if (show == nullptr)
        AfxThrowNotSupportedException();
    TASKDIALOGCONFIG config{};
    FillConfig(config);
    config.hwndParent = hParent;
    config.pfCallback = &CTaskDialog::Callback;
    config.lpCallbackData = reinterpret_cast<LONG_PTR>(this);
    int button = 0;
    int radio = 0;
    WINBOOL verified = FALSE;
    HRESULT const result = show(&config, &button, &radio, &verified);
    m_window = nullptr;
    if (result == E_OUTOFMEMORY)
        AfxThrowMemoryException();
    if (FAILED(result))
        AfxThrowInvalidArgException();
    m_selectedButton = button;
    m_selectedRadio = radio;
    m_verified = verified;
    return button;
}

std::vector<TASKDIALOG_BUTTON> CTaskDialog::Shown(std::vector<Button> const & buttons)
{
    std::vector<TASKDIALOG_BUTTON> shown;
    for (Button const & button : buttons)
        shown.push_back({button.id, button.caption.GetString()});
    return shown;
}

void CTaskDialog::FillConfig(TASKDIALOGCONFIG & config)
{
    m_shownCommands = Shown(m_commands);
    m_shownRadios = Shown(m_radios);
    config.cbSize = sizeof(config);
    config.hInstance = AfxGetResourceHandle();
    // The system refuses links without a command.
    int const links = TDF_USE_COMMAND_LINKS | TDF_USE_COMMAND_LINKS_NO_ICON;
    int flags = m_commands.empty() ? m_options & ~links : m_options;
    flags |= m_verified ? TDF_VERIFICATION_FLAG_CHECKED : 0;
    config.dwCommonButtons = static_cast<TASKDIALOG_COMMON_BUTTON_FLAGS>(m_commonButtons);
    config.pszWindowTitle = UnlessEmpty(m_title);
    config.pszMainInstruction = UnlessEmpty(m_instruction);
    config.pszContent = UnlessEmpty(m_content);
    config.pszFooter = UnlessEmpty(m_footer);
    config.pszExpandedInformation = UnlessEmpty(m_expanded);
    config.pszCollapsedControlText = UnlessEmpty(m_collapsedLabel);
    config.pszExpandedControlText = UnlessEmpty(m_expandedLabel);
    config.pszVerificationText = UnlessEmpty(m_verification);
    config.cButtons = static_cast<UINT>(m_shownCommands.size());
    config.pButtons = m_shownCommands.data();
    config.nDefaultButton = m_defaultCommand;
    config.cRadioButtons = static_cast<UINT>(m_shownRadios.size());
    config.pRadioButtons = m_shownRadios.data();
    config.nDefaultRadioButton = m_defaultRadio;
    config.cxWidth = static_cast<UINT>(m_width);
    if (m_mainIconHandle != nullptr)
    {
        flags |= TDF_USE_HICON_MAIN;
        config.hMainIcon = m_mainIconHandle;
    }
    else
    {
        config.pszMainIcon = m_mainIconName;
    }
    if (m_footerIconHandle != nullptr)
    {
        flags |= TDF_USE_HICON_FOOTER;
        config.hFooterIcon = m_footerIconHandle;
    }
    else
    {
        config.pszFooterIcon = m_footerIconName;
    }
    config.dwFlags = static_cast<TASKDIALOG_FLAGS>(flags);
}

HRESULT CALLBACK CTaskDialog::Callback(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LONG_PTR dialog)
{
    try
    {
        return reinterpret_cast<CTaskDialog *>(dialog)->Notice(window, message, wParam, lParam);
    }
    catch (CException * exception)
    {
        // The system's code in between can't be unwound.
        exception->ReportError();
        exception->Delete();
        return S_OK;
    }
}

HRESULT CTaskDialog::Notice(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case TDN_DIALOG_CONSTRUCTED:
        m_window = window;
        return OnInit();
    case TDN_CREATED:
        m_window = window;
        ApplyStates();
        return OnCreate();
    case TDN_NAVIGATED:
        m_window = window;
        ApplyStates();
        return OnNavigatePage();
    case TDN_BUTTON_CLICKED:
        m_selectedButton = static_cast<int>(wParam);
        return OnCommandControlClick(static_cast<int>(wParam));
    case TDN_RADIO_BUTTON_CLICKED:
        m_selectedRadio = static_cast<int>(wParam);
        return OnRadioButtonClick(static_cast<int>(wParam));
    case TDN_VERIFICATION_CLICKED:
        m_verified = wParam != 0;
        return OnVerificationCheckboxClick(m_verified);
    case TDN_EXPANDO_BUTTON_CLICKED:
        return OnExpandButtonClicked(wParam != 0);
    case TDN_HYPERLINK_CLICKED:
        return OnHyperlinkClick(CString(reinterpret_cast<LPCWSTR>(lParam)));
    case TDN_TIMER:
        return OnTimer(static_cast<long>(wParam));
    case TDN_HELP:
        return OnHelp();
    case TDN_DESTROYED: {
        HRESULT const result = OnDestroy();
        m_window = nullptr;
        return result;
    }
    default:
        return S_OK;
    }
}

void CTaskDialog::ApplyStates()
{
    for (Button const & button : m_commands)
    {
        SetState(TDM_ENABLE_BUTTON, button.id, button.enabled);
        if (button.elevated)
            SetState(TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, button.id, TRUE);
    }
    for (Button const & button : m_radios)
        SetState(TDM_ENABLE_RADIO_BUTTON, button.id, button.enabled);
    SetCommonButtonOptions(m_disabledCommon, m_elevatedCommon);
    if ((m_options & (TDF_SHOW_PROGRESS_BAR | TDF_SHOW_MARQUEE_PROGRESS_BAR)) == 0)
        return;
    if (m_marquee)
        SetProgressBarMarquee(TRUE, m_marqueeSpeed);
    Tell(TDM_SET_PROGRESS_BAR_RANGE, 0, MAKELPARAM(m_progressMin, m_progressMax));
    Tell(TDM_SET_PROGRESS_BAR_POS, static_cast<WPARAM>(m_progress), 0);
    Tell(TDM_SET_PROGRESS_BAR_STATE, static_cast<WPARAM>(m_progressState), 0);
}

void CTaskDialog::Tell(UINT message, WPARAM wParam, LPARAM lParam) const
{
    if (m_window != nullptr)
        ::SendMessage(m_window, message, wParam, lParam);
}

void CTaskDialog::SetState(UINT message, int id, BOOL state) const
{
    Tell(message, static_cast<WPARAM>(id), static_cast<LPARAM>(state));
}

void CTaskDialog::SendText(int element, CString const & text) const
{
    Tell(TDM_SET_ELEMENT_TEXT, static_cast<WPARAM>(element), reinterpret_cast<LPARAM>(text.GetString()));
}

CTaskDialog::Button & CTaskDialog::Find(std::vector<Button> & buttons, int id)
{
    for (Button & button : buttons)
    {
        if (button.id == id)
            return button;
    }
    AfxThrowInvalidArgException();
}

void CTaskDialog::SetWindowTitle(CString & strWindowTitle)
{
    m_title = strWindowTitle;
    if (m_window != nullptr)
        ::SetWindowText(m_window, m_title);
}

void CTaskDialog::SetMainInstruction(CString const & strInstructions)
{
    m_instruction = strInstructions;
    SendText(TDE_MAIN_INSTRUCTION, m_instruction);
}

void CTaskDialog::SetContent(CString const & strContent)
{
    m_content = strContent;
    SendText(TDE_CONTENT, m_content);
}

void CTaskDialog::SetFooterText(CString const & strFooterText)
{
    m_footer = strFooterText;
    SendText(TDE_FOOTER, m_footer);
}

void CTaskDialog::SetExpansionArea(CString const & strExpandedInformation, CString const & strCollapsedLabel,
                                   CString const & strExpandedLabel)
{
    m_expanded = strExpandedInformation;
    m_collapsedLabel = strCollapsedLabel;
    m_expandedLabel = strExpandedLabel;
    SendText(TDE_EXPANDED_INFORMATION, m_expanded);
}

void CTaskDialog::SetMainIcon(HICON hMainIcon)
{
    m_mainIconHandle = hMainIcon;
    m_mainIconName = nullptr;
    Tell(TDM_UPDATE_ICON, TDIE_ICON_MAIN, reinterpret_cast<LPARAM>(hMainIcon));
}

void CTaskDialog::SetMainIcon(LPCWSTR lpszMainIcon)
{
    m_mainIconHandle = nullptr;
    m_mainIconName = lpszMainIcon;
    Tell(TDM_UPDATE_ICON, TDIE_ICON_MAIN, reinterpret_cast<LPARAM>(lpszMainIcon));
}

void CTaskDialog::SetFooterIcon(HICON hFooterIcon)
{
    m_footerIconHandle = hFooterIcon;
    m_footerIconName = nullptr;
    Tell(TDM_UPDATE_ICON, TDIE_ICON_FOOTER, reinterpret_cast<LPARAM>(hFooterIcon));
}

void CTaskDialog::SetFooterIcon(LPCWSTR lpszFooterIcon)
{
    m_footerIconHandle = nullptr;
    m_footerIconName = lpszFooterIcon;
    Tell(TDM_UPDATE_ICON, TDIE_ICON_FOOTER, reinterpret_cast<LPARAM>(lpszFooterIcon));
}

void CTaskDialog::SetDialogWidth(int nWidth)
{
    if (nWidth < 0)
        AfxThrowInvalidArgException();
    m_width = nWidth;
}

void CTaskDialog::SetOptions(int nOptionFlag)
{
    m_options = nOptionFlag;
}

void CTaskDialog::AddCommandControl(int nCommandControlID, CString const & strCaption, BOOL bEnabled,
                                    BOOL bRequiresElevation)
{
    if (strCaption.IsEmpty())
        AfxThrowInvalidArgException();
    m_commands.push_back({nCommandControlID, strCaption, bEnabled, bRequiresElevation});
}

void CTaskDialog::LoadCommandControls(int nIDCommandControlsFirst, int nIDCommandControlsLast)
{
    if (nIDCommandControlsFirst > nIDCommandControlsLast)
        AfxThrowInvalidArgException();
    for (int id = nIDCommandControlsFirst; id <= nIDCommandControlsLast; ++id)
    {
        CString caption;
        if (caption.LoadString(static_cast<UINT>(id)))
            AddCommandControl(id, caption);
    }
}

void CTaskDialog::RemoveAllCommandControls()
{
    m_commands.clear();
}

void CTaskDialog::SetCommandControlOptions(int nCommandControlID, BOOL bEnabled, BOOL bRequiresElevation)
{
    Button & button = Find(m_commands, nCommandControlID);
    button.enabled = bEnabled;
    button.elevated = bRequiresElevation;
    SetState(TDM_ENABLE_BUTTON, nCommandControlID, bEnabled);
    SetState(TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, nCommandControlID, bRequiresElevation);
}

BOOL CTaskDialog::IsCommandControlEnabled(int nCommandControlID) const
{
    return Find(const_cast<std::vector<Button> &>(m_commands), nCommandControlID).enabled;
}

void CTaskDialog::SetDefaultCommandControl(int nCommandControlID)
{
    m_defaultCommand = nCommandControlID;
}

void CTaskDialog::AddRadioButton(int nRadioButtonID, CString const & strCaption, BOOL bEnabled)
{
    if (strCaption.IsEmpty())
        AfxThrowInvalidArgException();
    m_radios.push_back({nRadioButtonID, strCaption, bEnabled, FALSE});
}

void CTaskDialog::LoadRadioButtons(int nIDRadioButtonsFirst, int nIDRadioButtonsLast)
{
    if (nIDRadioButtonsFirst > nIDRadioButtonsLast)
        AfxThrowInvalidArgException();
    for (int id = nIDRadioButtonsFirst; id <= nIDRadioButtonsLast; ++id)
    {
        CString caption;
        if (caption.LoadString(static_cast<UINT>(id)))
            AddRadioButton(id, caption);
    }
}

void CTaskDialog::RemoveAllRadioButtons()
{
    m_radios.clear();
}

void CTaskDialog::SetRadioButtonOptions(int nRadioButtonID, BOOL bEnabled)
{
    Find(m_radios, nRadioButtonID).enabled = bEnabled;
    SetState(TDM_ENABLE_RADIO_BUTTON, nRadioButtonID, bEnabled);
}

BOOL CTaskDialog::IsRadioButtonEnabled(int nRadioButtonID) const
{
    return Find(const_cast<std::vector<Button> &>(m_radios), nRadioButtonID).enabled;
}

void CTaskDialog::SetDefaultRadioButton(int nRadioButtonID)
{
    m_defaultRadio = nRadioButtonID;
}

void CTaskDialog::SetCommonButtons(int nButtonMask, int nDisabledButtonMask, int nElevationButtonMask)
{
    m_commonButtons = nButtonMask;
    SetCommonButtonOptions(nDisabledButtonMask, nElevationButtonMask);
}

void CTaskDialog::SetCommonButtonOptions(int nDisabledButtonMask, int nElevationButtonMask)
{
    m_disabledCommon = nDisabledButtonMask;
    m_elevatedCommon = nElevationButtonMask;
    for (CommonButton const & button : common_buttons)
    {
        if ((m_commonButtons & button.flag) == 0)
            continue;
        SetState(TDM_ENABLE_BUTTON, button.id, (nDisabledButtonMask & button.flag) == 0);
        SetState(TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, button.id, (nElevationButtonMask & button.flag) != 0);
    }
}

int CTaskDialog::GetCommonButtonCount() const
{
    int count = 0;
    for (CommonButton const & button : common_buttons)
        count += (m_commonButtons & button.flag) != 0 ? 1 : 0;
    return count;
}

int CTaskDialog::GetCommonButtonFlag(int nButtonId) const
{
    for (CommonButton const & button : common_buttons)
    {
        if (button.id == nButtonId)
            return button.flag;
    }
    return 0;
}

int CTaskDialog::GetCommonButtonId(int nFlag)
{
    for (CommonButton const & button : common_buttons)
    {
        if (button.flag == nFlag)
            return button.id;
    }
    return 0;
}

void CTaskDialog::SetVerificationCheckboxText(CString & strVerificationText)
{
    m_verification = strVerificationText;
}

void CTaskDialog::SetVerificationCheckbox(BOOL bChecked)
{
    m_verified = bChecked;
    Tell(TDM_CLICK_VERIFICATION, static_cast<WPARAM>(bChecked), FALSE);
}

void CTaskDialog::SetProgressBarMarquee(BOOL bEnabled, int nMarqueeSpeed)
{
    m_marquee = bEnabled;
    m_marqueeSpeed = nMarqueeSpeed;
    m_options |= bEnabled ? TDF_SHOW_MARQUEE_PROGRESS_BAR : 0;
    Tell(TDM_SET_MARQUEE_PROGRESS_BAR, static_cast<WPARAM>(bEnabled), 0);
    Tell(TDM_SET_PROGRESS_BAR_MARQUEE, static_cast<WPARAM>(bEnabled), nMarqueeSpeed);
}

void CTaskDialog::SetProgressBarRange(int nRangeMin, int nRangeMax)
{
    if (nRangeMin >= nRangeMax)
        AfxThrowInvalidArgException();
    m_progressMin = nRangeMin;
    m_progressMax = nRangeMax;
    m_options |= TDF_SHOW_PROGRESS_BAR;
    Tell(TDM_SET_PROGRESS_BAR_RANGE, 0, MAKELPARAM(nRangeMin, nRangeMax));
}

void CTaskDialog::SetProgressBarPosition(int nProgressPos)
{
    if (nProgressPos < m_progressMin || nProgressPos > m_progressMax)
        AfxThrowInvalidArgException();
    m_progress = nProgressPos;
    m_options |= TDF_SHOW_PROGRESS_BAR;
    Tell(TDM_SET_PROGRESS_BAR_POS, static_cast<WPARAM>(nProgressPos), 0);
}

void CTaskDialog::SetProgressBarState(int nState)
{
    m_progressState = nState;
    m_options |= TDF_SHOW_PROGRESS_BAR;
    Tell(TDM_SET_PROGRESS_BAR_STATE, static_cast<WPARAM>(nState), 0);
}

void CTaskDialog::ClickCommandControl(int nCommandControlID) const
{
    Tell(TDM_CLICK_BUTTON, static_cast<WPARAM>(nCommandControlID), 0);
}

void CTaskDialog::ClickRadioButton(int nRadioButtonID) const
{
    Tell(TDM_CLICK_RADIO_BUTTON, static_cast<WPARAM>(nRadioButtonID), 0);
}

void CTaskDialog::NavigateTo(CTaskDialog & oTaskDialog) const
{
    if (m_window == nullptr)
        AfxThrowInvalidArgException();
    TASKDIALOGCONFIG config{};
    oTaskDialog.FillConfig(config);
    config.pfCallback = &CTaskDialog::Callback;
    config.lpCallbackData = reinterpret_cast<LONG_PTR>(&oTaskDialog);
    Tell(TDM_NAVIGATE_PAGE, 0, reinterpret_cast<LPARAM>(&config));
}

HRESULT CTaskDialog::OnInit()
{
    return S_OK;
}

HRESULT CTaskDialog::OnCreate()
{
    return S_OK;
}

HRESULT CTaskDialog::OnDestroy()
{
    return S_OK;
}

HRESULT CTaskDialog::OnNavigatePage()
{
    return S_OK;
}

HRESULT CTaskDialog::OnCommandControlClick(int)
{
    return S_OK;
}

HRESULT CTaskDialog::OnRadioButtonClick(int)
{
    return S_OK;
}

HRESULT CTaskDialog::OnVerificationCheckboxClick(BOOL)
{
    return S_OK;
}

HRESULT CTaskDialog::OnExpandButtonClicked(BOOL)
{
    return S_OK;
}

HRESULT CTaskDialog::OnHyperlinkClick(CString const &)
{
    return S_OK;
}

HRESULT CTaskDialog::OnHelp()
{
    return S_OK;
}

HRESULT CTaskDialog::OnTimer(long)
{
    return S_OK;
}
