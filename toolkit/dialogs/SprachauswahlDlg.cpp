#include "dialogs/SprachauswahlDlg.h"

#include <vector>

#include "dialogs/DisplayLanguages.h"
#include "frame/ToolkitResources.h"
#include "resource_ids.h"

IMPLEMENT_DYNAMIC(CSprachauswahlDlg, CDialogEx)

BEGIN_MESSAGE_MAP(CSprachauswahlDlg, CDialogEx)
END_MESSAGE_MAP()

CSprachauswahlDlg::CSprachauswahlDlg(unsigned short languageId, CWnd * parent)
    : CDialogEx(TOOLKIT_DIALOG_LANGUAGE, parent),
      m_sprachId(languageId),
      m_spracheGeaendert(false)
{
}

INT_PTR CSprachauswahlDlg::DoModal()
{
    CToolkitResourceExchange const exchange;
    return CDialogEx::DoModal();
}

unsigned short CSprachauswahlDlg::SprachId() const
{
    return m_sprachId;
}

bool CSprachauswahlDlg::SpracheGeaendert() const
{
    return m_spracheGeaendert;
}

void CSprachauswahlDlg::DoDataExchange(CDataExchange * pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, TOOLKIT_CONTROL_LANGUAGE_LIST, m_sprachListe);
}

BOOL CSprachauswahlDlg::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    m_spracheGeaendert = false;
    for (DisplayLanguage const & language : DisplayLanguages())
    {
        SpracheAufnehmen(language.name, language.id);
    }
    std::vector<std::uintptr_t> itemData;
    for (int item = 0; item < m_sprachListe.GetCount(); ++item)
    {
        itemData.push_back(m_sprachListe.GetItemData(item));
    }
    m_sprachListe.SetCurSel(PositionOfLanguage(itemData, m_sprachId));
    return TRUE;
}

void CSprachauswahlDlg::OnOK()
{
    m_spracheGeaendert = false;
    int const selected = m_sprachListe.GetCurSel();
    if (selected != CB_ERR)
    {
        LanguageChoice const choice = ChooseLanguage(m_sprachId, m_sprachListe.GetItemData(selected));
        m_sprachId = choice.id;
        m_spracheGeaendert = choice.changed;
    }
    if (m_spracheGeaendert)
    {
        ::SetThreadUILanguage(m_sprachId);
    }
    CDialogEx::OnOK();
}

void CSprachauswahlDlg::SpracheAufnehmen(wchar_t const * name, unsigned int languageId)
{
    m_sprachListe.SetItemData(m_sprachListe.AddString(name), languageId);
}
