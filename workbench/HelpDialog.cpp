#include "HelpDialog.h"

#include "logic/NumberSigns.h"
#include "resource.h"

using workbench::HelpTopic;
using workbench::Text;

namespace
{

// In dialog units: where what a key does begins.
constexpr int key_room = 90;
CSize const preferred_size(420, 260);

} // namespace

BEGIN_MESSAGE_MAP(CHelpDialog, CWorkbenchDialog)
    ON_LBN_SELCHANGE(IDC_HELP_TOPICS, &CHelpDialog::OnTopicChosen)
END_MESSAGE_MAP()

CHelpDialog::CHelpDialog(CWnd & owner) : CWorkbenchDialog(IDD_HELP, L"Help", owner) {}

bool CHelpDialog::Show(HelpTopic topic)
{
    m_topic = topic;
    if (HWND const active = ::GetActiveWindow(); active != m_hWnd)
    {
        m_former = active;
    }
    if (IsOpen())
    {
        EnableWindow(TRUE); // a modal dialog that has opened since is no reason to keep the help back
        Fill();
    }
    return Open(Text(L"Help"));
}

void CHelpDialog::ShowTexts()
{
    if (IsOpen())
    {
        ShowTemplateTexts(Text(L"Help"));
        Fill();
    }
}

void CHelpDialog::DoDataExchange(CDataExchange * exchange)
{
    CWorkbenchDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_HELP_TOPICS, m_topics);
    DDX_Control(exchange, IDC_HELP_PAGE, m_page);
}

BOOL CHelpDialog::OnInitDialog()
{
    CWorkbenchDialog::OnInitDialog();
    Fill();
    D3dLayoutChild(IDC_HELP_TOPICS, CEdges::TOP_LEFT_BOTTOM(), nullptr);
    D3dLayoutChild(IDC_HELP_PAGE, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    D3dLayoutChild(IDCANCEL, CEdges::BOTTOM_RIGHT(), nullptr);
    D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    Enlarge(preferred_size);
    m_topics.SetFocus();
    return FALSE;
}

void CHelpDialog::Fill()
{
    m_topics.ResetContent();
    for (int topic = 0; topic < workbench::help_topic_count; ++topic)
    {
        m_topics.AddString(HelpPageOf(static_cast<HelpTopic>(topic), workbench::PresentLanguage()).title);
    }
    m_topics.SetCurSel(static_cast<int>(m_topic));
    ShowPage();
}

std::wstring CHelpDialog::PageText() const
{
    workbench::Language const language = workbench::PresentLanguage();
    if (m_topic == HelpTopic::keys)
    {
        return KeysPage(m_menus ? m_menus() : std::vector<workbench::MenuTexts>(), language);
    }
    return workbench::WithSigns(HelpPageOf(m_topic, language).text);
}

void CHelpDialog::ShowPage()
{
    // Lines end as edit fields have it. Keys are a table; elsewhere paragraphs stand apart, and what is explained above
    // its explanation.
    bool const isTable = m_topic == HelpTopic::keys;
    std::wstring text;
    for (wchar_t const character : PageText())
    {
        switch (character)
        {
        case L'\n':
            text += isTable ? L"\r\n" : L"\r\n\r\n";
            break;
        case L'\t':
            text += isTable ? L"\t" : L"\r\n";
            break;
        default:
            text += character;
            break;
        }
    }
    m_page.SetTabStops(key_room);
    m_page.SetWindowText(text.c_str());
}

void CHelpDialog::OnTopicChosen()
{
    if (int const chosen = m_topics.GetCurSel(); chosen >= 0)
    {
        m_topic = static_cast<HelpTopic>(chosen);
        ShowPage();
    }
}

void CHelpDialog::OnCancel()
{
    HWND const former = m_former;
    CWorkbenchDialog::OnCancel();
    if (::IsWindow(former) && ::IsWindowEnabled(former) && ::IsWindowVisible(former))
    {
        ::SetActiveWindow(former);
    }
}
