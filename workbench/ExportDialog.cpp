#include "ExportDialog.h"

#include <system_error>
#include <utility>

#include "BrowseKey.h"
#include "frame/RegisteredMessages.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;
using workbench::Translatable;

namespace
{

constexpr wchar_t extension[] = L".txt";

constexpr wchar_t const * line_texts[] = {Translatable(L"All"), Translatable(L"The selected ones"),
                                          Translatable(L"The marked ones")};

} // namespace

BEGIN_MESSAGE_MAP(CExportDialog, CDialog3d)
    ON_REGISTERED_MESSAGE(WM_XEDITBROWSE_COMPLETED, &CExportDialog::OnBrowsed)
END_MESSAGE_MAP()

CExportDialog::CExportDialog(workbench::Settings const & settings, std::vector<int> order, CWnd & owner)
    : CDialog3d(NO_DLL, IDD_EXPORT_LIST, &owner),
      m_file(settings.exportFile),
      m_hidden(settings.exportHidden),
      m_order(std::move(order)),
      m_lines(static_cast<CRecordingList::Lines>(settings.exportLines))
{
    SetDialogTitle(Text(L"Export List"));
    SetGenuineTitle(L"Export List");
    m_fadeInOnCreate = settings.fadeIn;
    SetGrabAndMove(settings.dragByBackground);
}

void CExportDialog::DoDataExchange(CDataExchange * exchange)
{
    CDialog3d::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_EXPORT_FILE, m_fileField);
    DDX_Control(exchange, IDC_EXPORT_COLUMNS, m_columns);
    DDX_Control(exchange, IDC_EXPORT_LINES, m_lineChoice);
}

BOOL CExportDialog::OnInitDialog()
{
    CDialog3d::OnInitDialog();
    auto const folder = m_file.parent_path().wstring();
    m_fileField.PrepareFileSaveAsBrowser(
        Text(L"Text with tabs (*.txt)|*.txt|CSV (*.csv)|*.csv|Web page (*.html)|*.html|All files (*.*)|*.*||"), L"txt",
        folder.size() < MAX_PATH ? folder.c_str() : L"");
    m_fileField.SetDlgTitle(Text(L"Export List"));
    m_fileField.SetNotifyTag(IDC_EXPORT_FILE);
    m_fileField.SetWindowText(m_file.c_str());
    m_columns.ShowColumns(m_order, m_hidden);
    m_columns.PrepareIdNameBrowser();
    m_columns.SetNotifyTag(IDC_EXPORT_COLUMNS);
    for (int i = 0; i < static_cast<int>(std::size(line_texts)); ++i)
    {
        m_lineChoice.AddItem(Text(line_texts[i]), i);
    }
    m_lineChoice.SelectItemData(static_cast<int>(m_lines));
    for (int const id : {IDC_EXPORT_FILE, IDC_FORMAT_NOTE, IDC_EXPORT_COLUMNS})
    {
        D3dLayoutChild(id, CEdges::TOP_LEFT_RIGHT(), nullptr);
    }
    for (int const id : {IDOK, IDCANCEL})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_RIGHT(), nullptr);
    }
    D3dLayoutComplete(CDialogResizer::RESIZE_HORIZONTAL);
    return TRUE;
}

BOOL CExportDialog::PreTranslateMessage(MSG * message)
{
    return workbench::BrowseByKey(*message) || CDialog3d::PreTranslateMessage(message);
}

/// The file dialog has asked already whether a file may be replaced.
LRESULT CExportDialog::OnBrowsed(WPARAM tag, LPARAM)
{
    if (tag == IDC_EXPORT_FILE)
    {
        CString file;
        m_fileField.GetWindowText(file);
        m_agreed = file.GetString();
    }
    return 0;
}

bool CExportDialog::MayReplace(std::filesystem::path const & file) const
{
    std::error_code error;
    return file == m_agreed || !std::filesystem::exists(file, error) ||
           AfxMessageBox(Text(L"Replace this file?") + (L"\n\n" + CString(file.c_str())), MB_YESNO | MB_ICONQUESTION) ==
               IDYES;
}

void CExportDialog::OnOK()
{
    CString typed;
    m_fileField.GetWindowText(typed);
    typed.Trim();
    typed.Trim(L'"');
    std::filesystem::path file(typed.GetString());
    if (!file.has_extension() && !typed.IsEmpty())
    {
        file += extension;
    }
    if (!file.is_absolute() || !file.has_filename())
    {
        AfxMessageBox(Text(L"Type the whole path of the file, or choose one."), MB_ICONEXCLAMATION);
        m_fileField.SetFocus();
        return;
    }
    if (!MayReplace(file))
    {
        return;
    }
    m_file = file;
    m_hidden = m_columns.HiddenColumns();
    m_lines = static_cast<CRecordingList::Lines>(m_lineChoice.GetSelectedItemData(0));
    CDialog3d::OnOK();
}
