#include "controls/XEditBrowseCtrl.h"

#include <afxdlgs.h>

#include <algorithm>
#include <clocale>
#include <cwchar>
#include <memory>

#include "access/ControlTarget.h"
#include "controls/IdNameSelection.h"
#include "controls/SmallIcon.h"
#include "frame/GraphicsScopes.h"
#include "frame/RegisteredMessages.h"
#include "frame/ToolkitResources.h"
#include "frame/WindowAlive.h"
#include "resource_ids.h"

namespace
{
constexpr UINT internal_message = 1053;
constexpr wchar_t nothing_selected[] = L"\u2015\u2015";
constexpr float drop_height_factor = 1.1f;
constexpr float long_drop_height_factor = 2.1f;

constexpr DWORD file_buffer_length = 64000;
/// Of all fields; each dialog starts with what the last one has left here.
wchar_t g_fileBuffer[file_buffer_length];

CString const & TextForAllItems()
{
    static CString text;
    if (text.IsEmpty())
        text = LoadToolkitString(TOOLKIT_STRING_ALL_ITEMS);
    return text;
}

template <std::size_t size> void Store(wchar_t (&to)[size], wchar_t const * text)
{
    ::wcscpy_s(to, size, text != nullptr ? text : L"");
}

wchar_t const * NullIfEmpty(wchar_t const * text)
{
    return *text != L'\0' ? text : nullptr;
}
} // namespace

IMPLEMENT_DYNAMIC(CXEditBrowseCtrl, CMFCEditBrowseCtrl)

BEGIN_MESSAGE_MAP(CXEditBrowseCtrl, CMFCEditBrowseCtrl)
    ON_WM_SIZE()
    ON_MESSAGE(internal_message, &CXEditBrowseCtrl::OnInterneNachricht)
END_MESSAGE_MAP()

CXEditBrowseCtrl::CXEditBrowseCtrl()
    : m_openDialog(TRUE),
      m_defaultExtension{},
      m_defaultFilename{},
      m_initialDirectory{},
      m_fileFlags(0),
      m_fileMustExist(true),
      m_multiSelect(false),
      m_overwritePrompt(true),
      m_additionalFileFlags(0),
      m_pathList(10),
      m_idNameMode(false),
      m_dialogHold(std::make_shared<CIdNameMultiselectDlg>()),
      m_dialog(*m_dialogHold),
      m_selectionChanged(false),
      m_dropHeightFactor(drop_height_factor),
      m_notifyTag(0),
      m_browsing(false)
{
}

CXEditBrowseCtrl::~CXEditBrowseCtrl()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
    EndDropDown();
}

void CXEditBrowseCtrl::PostNcDestroy()
{
    EndDropDown();
    CMFCEditBrowseCtrl::PostNcDestroy();
}

void CXEditBrowseCtrl::EndDropDown()
{
    if (m_dialog.m_hWnd != nullptr)
        m_dialog.EndDialog(IDCANCEL);
}

// --- Set-up ---

void CXEditBrowseCtrl::PrepareFileOpenBrowser(CString const & filter, wchar_t const * defaultExtension,
                                              wchar_t const * initialDirectory)
{
    m_openDialog = TRUE;
    m_filter = filter;
    Store(m_defaultExtension, defaultExtension);
    Store(m_initialDirectory, initialDirectory);
    LifeWatch const life(m_life);
    EnableBrowseButton();
    if (!life.Over())
        ShowButtonImage();
}

void CXEditBrowseCtrl::PrepareFileSaveAsBrowser(CString const & filter, wchar_t const * defaultExtension,
                                                wchar_t const * initialDirectory)
{
    m_openDialog = FALSE;
    m_filter = filter;
    if (defaultExtension != nullptr)
        Store(m_defaultExtension, defaultExtension);
    if (initialDirectory != nullptr)
        Store(m_initialDirectory, initialDirectory);
    LifeWatch const life(m_life);
    EnableBrowseButton();
    if (!life.Over())
        ShowButtonImage();
}

void CXEditBrowseCtrl::ShowButtonImage()
{
    m_hasImage = true;
    SetBrowseButtonImage(LoadSmallToolkitIcon(TOOLKIT_ICON_BROWSE, INT_MAX, m_dpi), TRUE);
}

BOOL CXEditBrowseCtrl::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    if (dpi == m_dpi)
        return TRUE;
    m_dpi = dpi;
    WindowAlive const alive(*this, m_life);
    m_dialog.m_control.SetDpi(dpi);
    if (alive.IsThere() && m_hasImage)
        ShowButtonImage();
    if (alive.IsAlive() && m_idNameMode)
        UpdateSelectionText();
    return TRUE;
}

void CXEditBrowseCtrl::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

void CXEditBrowseCtrl::PreSubclassWindow()
{
    CMFCEditBrowseCtrl::PreSubclassWindow();
    window_dpi::Begin(*this, m_followsDpi);
}

void CXEditBrowseCtrl::PrepareIdNameBrowser()
{
    m_idNameMode = true;
    LifeWatch const life(m_life);
    EnableBrowseButton();
    if (!life.Over())
        UpdateSelectionText();
}

void CXEditBrowseCtrl::PrepareLongIdNameBrowser()
{
    LifeWatch const life(m_life);
    PrepareIdNameBrowser();
    if (!life.Over())
        m_dropHeightFactor = long_drop_height_factor;
}

void CXEditBrowseCtrl::SetDefaultFilename(wchar_t const * name)
{
    Store(m_defaultFilename, name);
}

void CXEditBrowseCtrl::SetDlgTitle(CString const & title)
{
    m_dlgTitle = title;
}

void CXEditBrowseCtrl::SetAdditionalFileFlags(unsigned long flags)
{
    m_additionalFileFlags |= flags;
}

void CXEditBrowseCtrl::SetNotifyTag(unsigned int tag)
{
    m_notifyTag = tag;
}

void CXEditBrowseCtrl::BrowseNow()
{
    if (m_hWnd != nullptr)
        PostMessage(internal_message);
}

// --- Items and selection ---

void CXEditBrowseCtrl::ResetTheMap()
{
    m_dialog.m_control.ResetTheMap();
}

void CXEditBrowseCtrl::AddItem(int id, CString const & name)
{
    m_dialog.m_control.AddItem(id, name);
}

void CXEditBrowseCtrl::SetTheMap(std::map<int, CString> const & map)
{
    m_dialog.m_control.SetTheMap(map);
}

void CXEditBrowseCtrl::SetSelection(std::set<int> const & ids)
{
    m_selection = ids;
}

void CXEditBrowseCtrl::SetSelection(int id)
{
    m_selection = {id};
}

void CXEditBrowseCtrl::SetSelectionAll()
{
    SetSelection(id_name::all_items);
}

void CXEditBrowseCtrl::SetSelectionNone()
{
    m_selection.clear();
}

std::set<int> const & CXEditBrowseCtrl::TheSelection() const
{
    return m_selection;
}

bool CXEditBrowseCtrl::SelectionChanged() const
{
    return m_selectionChanged;
}

void CXEditBrowseCtrl::SelectionAcknowledged()
{
    m_selectionChanged = false;
}

void CXEditBrowseCtrl::UpdateSelectionText()
{
    if (m_hWnd == nullptr)
        return;
    WindowAlive const alive(*this, m_life);
    // The host hears of the questions for font and text.
    auto const font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
    if (!alive.IsAlive())
        return;
    CIdNameMultiselectCtrl const & control = m_dialog.m_control;
    CString text(nothing_selected);
    if (!m_selection.empty() && !control.TheMap().empty())
    {
        if (m_selection.contains(id_name::all_items))
            text = TextForAllItems();
        else
        {
            CRect rect;
            GetWindowRect(&rect);
            TextMeasure const measure(m_hWnd, font);
            text = id_name::JoinedNames(
                m_selection, [&](int id) { return control.GetName(id); },
                [&](CString const & part) { return measure.Width(part); }, rect.Width(), m_dpi);
        }
    }
    CString present;
    GetWindowText(present);
    if (alive.IsAlive() && present != text)
        SetWindowText(text);
}

// --- Browsing ---

void CXEditBrowseCtrl::OnBrowse()
{
    if (m_browsing || m_hWnd == nullptr)
        return;
    LifeWatch const life(m_life);
    m_browsing = true;
    if (m_idNameMode)
    {
        ShowIdNameBrowser();
        if (!life.Over() && m_selectionChanged)
            NotifyParent(m_notifyTag, 0);
    }
    else
        ShowFileBrowser();
    if (!life.Over())
        m_browsing = false;
}

void CXEditBrowseCtrl::ShowIdNameBrowser()
{
    CRect field;
    GetWindowRect(&field);
    int const height = static_cast<int>(static_cast<float>(field.Width()) * m_dropHeightFactor);
    m_dialog.m_placement = CRect(field.left, field.bottom, field.right, field.bottom + height);
    m_dialog.m_control.SetSelection(m_selection);

    LifeWatch const life(m_life);
    std::shared_ptr<CIdNameMultiselectDlg> const dialog = m_dialogHold;
    bool const accepted = dialog->DoModal() == IDOK;
    if (life.Over())
        return;
    m_selectionChanged = accepted;
    if (!accepted)
        return;
    m_selection = dialog->m_control.TheSelection();
    UpdateSelectionText();
}

unsigned int CXEditBrowseCtrl::ComputedFileFlags() const
{
    unsigned int flags = 0;
    if (m_openDialog)
        flags = m_fileMustExist ? OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST : OFN_HIDEREADONLY;
    else
    {
        flags = OFN_NOREADONLYRETURN | OFN_HIDEREADONLY;
        if (m_overwritePrompt)
            flags |= OFN_OVERWRITEPROMPT;
    }
    if (m_multiSelect)
        flags |= OFN_EXPLORER | OFN_ALLOWMULTISELECT;
    return flags | m_additionalFileFlags | OFN_DONTADDTORECENT | OFN_NOCHANGEDIR;
}

void CXEditBrowseCtrl::ShowFileBrowser()
{
    m_fileFlags = ComputedFileFlags();
    CFileDialog dialog(m_openDialog, NullIfEmpty(m_defaultExtension), NullIfEmpty(m_defaultFilename), m_fileFlags,
                       m_filter, this, 0, TRUE);
    // Copies: the field may be gone before the dialog.
    CString const title = m_dlgTitle;
    CString const directory = m_initialDirectory;
    OPENFILENAMEW & description = dialog.GetOFN();
    description.lpstrTitle = title;
    description.lpstrInitialDir = directory;
    description.lpstrFile = g_fileBuffer;
    description.nMaxFile = file_buffer_length;

    WindowAlive const alive(*this, m_life);
    INT_PTR const result = dialog.DoModal();
    // The system's dialog may have brought in code that sets it.
    std::setlocale(LC_NUMERIC, "C");
    if (result != IDOK || !alive.IsAlive())
        return;
    SetWindowText(dialog.GetPathName());
    if (!alive.IsThere())
        return;
    if (m_multiSelect)
    {
        m_pathList.RemoveAll();
        POSITION position = dialog.GetStartPosition();
        while (position != nullptr)
        {
            CString const path = dialog.GetNextPathName(position);
            CFileStatus status;
            if (!m_fileMustExist || CFile::GetStatus(path, status))
                m_pathList.AddTail(path);
        }
        if (m_pathList.IsEmpty())
            return;
    }
    NotifyParent(m_notifyTag, 0);
}

void CXEditBrowseCtrl::NotifyParent(unsigned int tag, long value)
{
    if (!::IsWindow(m_hWnd))
        return;
    CWnd const * receiver = GetParent();
    if (receiver == nullptr)
        receiver = GetOwner();
    if (receiver != nullptr && ::IsWindow(receiver->m_hWnd))
        ::PostMessageW(receiver->m_hWnd, WM_XEDITBROWSE_COMPLETED, tag, value);
}

LRESULT CXEditBrowseCtrl::OnInterneNachricht(WPARAM, LPARAM)
{
    OnBrowse();
    return 0;
}

void CXEditBrowseCtrl::OnSize(UINT type, int cx, int cy)
{
    LifeWatch const life(m_life);
    CMFCEditBrowseCtrl::OnSize(type, cx, cy);
    if (!life.Over() && m_idNameMode)
        UpdateSelectionText();
}

// --- What programs that read the screen see ---

namespace
{
/// The field with its button, which is an item of it.
class BrowseAccess final : public ControlTarget
{
public:
    BrowseAccess(CXEditBrowseCtrl & field, LifeSign const & life) : ControlTarget(field, life), m_field(field) {}

protected:
    accessible::ItemRow Items() override
    {
        return {IsThere() && m_field.GetMode() != CMFCEditBrowseCtrl::BrowseMode_None ? 1 : 0, true};
    }
    accessible::Description DescribeSelf() override
    {
        bool const readOnly = (::GetWindowLongPtrW(Window(), GWL_STYLE) & ES_READONLY) != 0;
        return accessible::DescribeField(Facts(), readOnly);
    }
    accessible::Description DescribeItem(int) override
    {
        accessible::ControlFacts facts;
        facts.text = L"Browse";
        facts.enabled = IsEnabled();
        accessible::Description described = accessible::DescribeButton(facts, false);
        // The keyboard stays in the field.
        described.states &= ~accessible::state::focusable;
        return described;
    }
    bool ActItem(int) override
    {
        if (!IsThere() || !IsEnabled())
            return false;
        m_field.BrowseNow();
        return true;
    }
    CRect SelfRect() override
    {
        CRect rect = ControlTarget::SelfRect();
        rect.right = std::max(rect.right, WindowRight());
        return rect;
    }
    std::optional<CRect> ItemRect(int) override
    {
        CRect rect = ControlTarget::SelfRect();
        rect.left = rect.right;
        rect.right = std::max(rect.right, WindowRight());
        return rect;
    }
    int ItemAt(CPoint point) override { return ItemRect(0)->PtInRect(point) ? 0 : -1; }

private:
    /// The button stands between the client area and the window's right edge.
    LONG WindowRight() const
    {
        RECT rect{};
        ::GetWindowRect(Window(), &rect);
        POINT corner{rect.right, rect.bottom};
        ::ScreenToClient(Window(), &corner);
        return corner.x;
    }

    CXEditBrowseCtrl & m_field;
};
} // namespace

LRESULT CXEditBrowseCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<BrowseAccess>(*this, m_life), wParam);
    window_dpi::Heed(*this, m_followsDpi, message);
    return CMFCEditBrowseCtrl::DefWindowProc(message, wParam, lParam);
}
