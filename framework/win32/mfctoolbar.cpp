// CMFCBaseToolBar, CMFCToolBar: buttons, pictures, layout, painting, states.

#include "afxtoolbar.h"
#include <afxpriv.h>

#include <algorithm>
#include <map>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/WndAccess.h"

using framework::Scaled;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CMFCBaseToolBar, CPane)
IMPLEMENT_DYNCREATE(CMFCToolBar, CMFCBaseToolBar)

// clang-format off
BEGIN_MESSAGE_MAP(CMFCToolBar, CMFCBaseToolBar)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_TIMER()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CMFCToolBar::HandleIdleUpdate)
    ON_MESSAGE(WM_GETFONT, &CMFCToolBar::HandleGetFont)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXT, 0, 0xFFFF, &CMFCToolBar::HandleToolTipText)
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr SIZE usual_button{23, 22};
constexpr SIZE usual_menu_button{23, 22};
constexpr int separator_width = 8;
constexpr int as_long_as_there_is = 32767;
constexpr UINT_PTR tool_bar_resource = 241; // RT_TOOLBAR
constexpr WORD tool_bar_version = 1;
constexpr SIZE button_beyond_image{7, 7};

/// The start of a resource that describes a tool bar; the identifiers follow.
struct ToolBarResource
{
    WORD version;
    WORD width;
    WORD height;
    WORD count;
};

/// What all bars share.
struct Shared
{
    CMFCToolBarImages images;
    std::map<UINT, int> imageOf; // command to picture
    CSize button{usual_button};
    CSize menuButton{usual_menu_button};
    CSize menuImage{CSize(16, 15)};
    BOOL toolTips = TRUE;
};

Shared & Everything()
{
    static Shared shared;
    return shared;
}

/// A button of the bar as its update handlers see it. A handler may end the bar.
class ButtonState : public CCmdUI
{
public:
    explicit ButtonState(CMFCToolBar & bar) : m_guard(&bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override
    {
        framework::CmdUiAccess::SetEnableChanged(*this, TRUE);
        Change(bOn ? TBBS_DISABLED : TBBS_PRESSED, bOn ? 0 : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override
    {
        LONG const check = nCheck == 1 ? TBBS_CHECKED : nCheck == 2 ? TBBS_INDETERMINATE : 0;
        Change(TBBS_CHECKED | TBBS_INDETERMINATE, check | TBBS_CHECKBOX);
    }
    void SetRadio(BOOL bOn) override
    {
        SetCheck(bOn ? 1 : 0);
        if (CMFCToolBarButton * const button = Button())
            button->SetRadio();
    }
    void SetText(LPCTSTR) override {} // a handler's text is the menu item's

private:
    CMFCToolBar * Bar() const { return m_guard.Alive() ? static_cast<CMFCToolBar *>(m_pOther) : nullptr; }
    CMFCToolBarButton * Button() const
    {
        CMFCToolBar * const bar = Bar();
        CMFCToolBarButton * const button = bar != nullptr ? bar->GetButton(static_cast<int>(m_nIndex)) : nullptr;
        return button != nullptr && button->m_nID == m_nID ? button : nullptr;
    }
    void Change(LONG remove, LONG add)
    {
        if (CMFCToolBarButton const * const button = Button())
        {
            Bar()->SetButtonStyle(static_cast<int>(m_nIndex),
                                  (button->m_nStyle & ~static_cast<UINT>(remove)) | static_cast<UINT>(add));
        }
    }

    WindowGuard m_guard;
};
} // namespace

CMFCBaseToolBar::CMFCBaseToolBar() = default;

CMFCBaseToolBar::~CMFCBaseToolBar() = default;

AFX_DOCK_TYPE CMFCBaseToolBar::GetDockingMode() const
{
    return DT_IMMEDIATE;
}

void CMFCBaseToolBar::GetMinSize(CSize & size) const
{
    size = CSize(0, 0);
}

void CMFCBaseToolBar::OnAfterChangeParent(CWnd * pWndOldParent)
{
    CPane::OnAfterChangeParent(pWndOldParent);
}

CMFCToolBar::CMFCToolBar()
    : m_lockedButtonSize(usual_button),
      m_locked(false),
      m_labels(false),
      m_viaFrame(true),
      m_height(0),
      m_hot(-1),
      m_pressed(-1),
      m_stale(false),
      m_resource(0)
{
}

CMFCToolBar::~CMFCToolBar()
{
    DestroyWindow();
    while (!m_buttons.IsEmpty())
        delete m_buttons.RemoveHead();
}

// Creation and contents

BOOL CMFCToolBar::Create(CWnd * pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, TBSTYLE_FLAT, dwStyle, CRect(1, 1, 1, 1), nID);
}

BOOL CMFCToolBar::CreateEx(CWnd * pParentWnd, DWORD, DWORD dwStyle, CRect rcBorders, UINT nID)
{
    ASSERT(pParentWnd != nullptr && (dwStyle & WS_CHILD) != 0);
    SetBorders(&rcBorders);
    SetOwner(pParentWnd);
    SetPaneStyle(dwStyle & CBRS_ALL);
    DWORD const style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | WS_CLIPSIBLINGS;
    if (!CPane::Create(nullptr, style | (dwStyle & CBRS_ALL), CRect(0, 0, 0, 0), pParentWnd, nID, AFX_CBRS_FLOAT))
        return FALSE;
    WindowGuard const guard(this);
    if (!guard.Alive())
        return FALSE;
    if ((dwStyle & CBRS_TOOLTIPS) != 0)
        EnableToolTips();
    return TRUE;
}

void CMFCToolBar::OnDestroy()
{
    WindowGuard const guard(this);
    framework::MenuMode & mode = framework::MenuMode::Current();
    if (mode.IsOn(*this))
        mode.End();
    if (guard.Alive())
        CMFCBaseToolBar::OnDestroy();
    m_hot = -1;
    m_pressed = -1;
}

bool CMFCToolBar::ReadResource(UINT resource, std::vector<UINT> & commands, CSize & image)
{
    LPCTSTR const name = MAKEINTRESOURCE(resource);
    LPCTSTR const kind = MAKEINTRESOURCE(tool_bar_resource);
    HINSTANCE const module = AfxFindResourceHandle(name, kind);
    HRSRC const found = ::FindResource(module, name, kind);
    HGLOBAL const loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    auto const * const start =
        loaded != nullptr ? static_cast<ToolBarResource const *>(::LockResource(loaded)) : nullptr;
    DWORD const size = found != nullptr ? ::SizeofResource(module, found) : 0;
    if (start == nullptr || size < sizeof *start || start->version != tool_bar_version ||
        size < sizeof *start + start->count * sizeof(WORD))
        return false;
    auto const * const first = reinterpret_cast<WORD const *>(start + 1);
    commands.assign(first, first + start->count);
    image = CSize(start->width, start->height);
    return true;
}

int CMFCToolBar::AddImages(CMFCToolBarImages & images, UINT bitmap, CSize image)
{
    images.SetImageSize(image);
    int const known = images.GetResourceOffset(bitmap);
    if (known >= 0)
        return known;
    int const first = images.GetCount();
    return images.Load(bitmap, nullptr, TRUE) ? first : -1;
}

void CMFCToolBar::MapImages(std::vector<UINT> const & commands, int first)
{
    for (UINT const command : commands)
    {
        if (command != 0)
            Everything().imageOf[command] = first++;
    }
}

BOOL CMFCToolBar::LoadToolBar(UINT uiResID, UINT, UINT, BOOL bLocked, UINT, UINT, UINT)
{
    std::vector<UINT> commands;
    CSize image;
    if (!ReadResource(uiResID, commands, image))
        return FALSE;
    m_locked = bLocked != FALSE;
    int const first = AddImages(m_locked ? m_lockedImages : Everything().images, uiResID, image);
    if (first < 0)
        return FALSE;
    m_resource = uiResID;
    if (m_locked)
        m_lockedButtonSize = image + CSize(button_beyond_image);
    else
    {
        Everything().button = image + CSize(button_beyond_image);
        MapImages(commands, first);
    }
    if (!SetButtons(commands.data(), static_cast<int>(commands.size()), FALSE))
        return FALSE; // the bar may have ended
    int next = first;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr;)
    {
        auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.GetNext(at));
        if ((button->m_nStyle & TBBS_SEPARATOR) == 0)
            button->SetImage(next++);
    }
    Relayout();
    return TRUE;
}

BOOL CMFCToolBar::LoadBitmap(UINT uiResID, UINT, UINT, BOOL bLocked, UINT, UINT)
{
    CMFCToolBarImages & images = bLocked ? m_lockedImages : Everything().images;
    m_locked = bLocked != FALSE;
    bool const loaded = AddImages(images, uiResID, images.GetImageSize()) >= 0;
    Relayout();
    return loaded;
}

BOOL PASCAL CMFCToolBar::AddToolBarForImageCollection(UINT uiResID, UINT uiBmpResID, UINT, UINT, UINT, UINT)
{
    std::vector<UINT> commands;
    CSize image;
    if (!ReadResource(uiResID, commands, image))
        return FALSE;
    int const first = AddImages(Everything().images, uiBmpResID != 0 ? uiBmpResID : uiResID, image);
    if (first < 0)
        return FALSE;
    MapImages(commands, first);
    return TRUE;
}

BOOL CMFCToolBar::SetButtons(const UINT * lpIDArray, int nIDCount, BOOL bRemapImages)
{
    framework::BarGuard const self(*this);
    RemoveAllButtons();
    if (!self.Alive())
        return FALSE;
    for (int at = 0; lpIDArray != nullptr && at < nIDCount; ++at)
    {
        if (lpIDArray[at] == 0)
            InsertSeparator();
        else
            Insert(new CMFCToolBarButton(lpIDArray[at], bRemapImages ? GetDefaultImage(lpIDArray[at]) : -1), -1);
    }
    return TRUE;
}

POSITION CMFCToolBar::PositionOf(int index) const
{
    return index >= 0 && index < GetCount() ? m_buttons.FindIndex(index) : nullptr;
}

int CMFCToolBar::Insert(CMFCToolBarButton * button, INT_PTR at)
{
    POSITION const before = at >= 0 ? PositionOf(static_cast<int>(at)) : nullptr;
    int const index = before != nullptr ? static_cast<int>(at) : GetCount();
    if (before != nullptr)
        m_buttons.InsertBefore(before, button);
    else
        m_buttons.AddTail(button);
    button->OnChangeParentWnd(this);
    if (m_labels && button->m_strText.IsEmpty())
        button->m_strText = LabelOf(button->m_nID);
    Relayout();
    return index;
}

int CMFCToolBar::InsertButton(const CMFCToolBarButton & button, INT_PTR iInsertAt)
{
    auto * const copy = DYNAMIC_DOWNCAST(CMFCToolBarButton, button.GetRuntimeClass()->CreateObject());
    if (copy == nullptr)
        return -1;
    copy->CopyFrom(button);
    return InsertButton(copy, static_cast<int>(iInsertAt));
}

int CMFCToolBar::InsertButton(CMFCToolBarButton * pButton, int iInsertAt)
{
    if (pButton == nullptr || iInsertAt > GetCount())
        return -1;
    return Insert(pButton, iInsertAt);
}

int CMFCToolBar::InsertSeparator(INT_PTR iInsertAt)
{
    auto * const separator = new CMFCToolBarButton;
    separator->m_nStyle = TBBS_SEPARATOR;
    return InsertButton(separator, static_cast<int>(iInsertAt));
}

BOOL CMFCToolBar::RemoveButton(int iIndex)
{
    POSITION const at = PositionOf(iIndex);
    if (at == nullptr)
        return FALSE;
    auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.GetAt(at));
    m_buttons.RemoveAt(at);
    m_hot = -1;
    m_pressed = -1;
    Relayout();
    button->OnChangeParentWnd(nullptr); // its menu closes, and whoever hears of that may end the bar
    delete button;
    return TRUE;
}

void CMFCToolBar::RemoveAllButtons()
{
    framework::BarGuard const self(*this);
    while (!m_buttons.IsEmpty())
    {
        m_hot = -1;
        m_pressed = -1;
        Relayout();
        auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.RemoveHead());
        button->OnChangeParentWnd(nullptr); // its menu closes, and whoever hears of that may end the bar
        delete button;
        if (!self.Alive())
            return;
    }
    m_hot = -1;
    m_pressed = -1;
}

int CMFCToolBar::ReplaceButton(UINT uiCmd, const CMFCToolBarButton & button, BOOL bAll)
{
    int replaced = 0;
    framework::BarGuard const self(*this);
    for (int at = CommandToIndex(uiCmd); at >= 0; at = CommandToIndex(uiCmd, at + 1))
    {
        auto * const copy = DYNAMIC_DOWNCAST(CMFCToolBarButton, button.GetRuntimeClass()->CreateObject());
        if (copy == nullptr)
            break;
        copy->CopyFrom(button);
        // A button without a picture of its own takes the one of its command.
        if (copy->GetImage() < 0 && copy->m_bImage)
            copy->SetImage(GetDefaultImage(uiCmd));
        RemoveButton(at);
        if (!self.Alive())
        {
            delete copy;
            break;
        }
        Insert(copy, at);
        ++replaced;
        if (!bAll)
            break;
    }
    return replaced;
}

int CMFCToolBar::GetCount() const
{
    return static_cast<int>(m_buttons.GetCount());
}

CMFCToolBarButton * CMFCToolBar::GetButton(int iIndex) const
{
    POSITION const at = PositionOf(iIndex);
    return at != nullptr ? static_cast<CMFCToolBarButton *>(m_buttons.GetAt(at)) : nullptr;
}

const CObList & CMFCToolBar::GetAllButtons() const
{
    return m_buttons;
}

int CMFCToolBar::ButtonToIndex(const CMFCToolBarButton * pButton) const
{
    int index = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr; ++index)
    {
        if (m_buttons.GetNext(at) == pButton)
            return index;
    }
    return -1;
}

int CMFCToolBar::CommandToIndex(UINT nIDFind, int iIndexFirst) const
{
    int index = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr; ++index)
    {
        auto const * const button = static_cast<CMFCToolBarButton const *>(m_buttons.GetNext(at));
        if (index >= iIndexFirst && button->m_nID == nIDFind)
            return index;
    }
    return -1;
}

UINT CMFCToolBar::GetItemID(int nIndex) const
{
    CMFCToolBarButton const * const button = GetButton(nIndex);
    return button != nullptr ? button->m_nID : 0;
}

void CMFCToolBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    EnsureLayout();
    CMFCToolBarButton const * const button = GetButton(nIndex);
    *lpRect = button != nullptr && !button->IsHidden() ? button->Rect() : CRect(0, 0, 0, 0);
}

void CMFCToolBar::GetInvalidateItemRect(int nIndex, LPRECT lpRect) const
{
    EnsureLayout();
    CMFCToolBarButton const * const button = GetButton(nIndex);
    *lpRect = button != nullptr ? button->GetInvalidateRect() : CRect(0, 0, 0, 0);
}

UINT CMFCToolBar::GetButtonStyle(int nIndex) const
{
    CMFCToolBarButton const * const button = GetButton(nIndex);
    return button != nullptr ? button->m_nStyle : 0;
}

void CMFCToolBar::SetButtonStyle(int nIndex, UINT nStyle)
{
    CMFCToolBarButton * const button = GetButton(nIndex);
    if (button == nullptr || button->m_nStyle == nStyle)
        return;
    bool const hidden = ((button->m_nStyle ^ nStyle) & TBBS_HIDDEN) != 0;
    button->SetStyle(nStyle);
    if (hidden)
        Relayout();
    else
        InvalidateButton(nIndex);
}

void CMFCToolBar::GetButtonInfo(int nIndex, UINT & nID, UINT & nStyle, int & iImage) const
{
    CMFCToolBarButton const * const button = GetButton(nIndex);
    nID = button != nullptr ? button->m_nID : 0;
    nStyle = button != nullptr ? button->m_nStyle : 0;
    iImage = button != nullptr ? button->GetImage() : -1;
}

void CMFCToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage)
{
    CMFCToolBarButton * const button = GetButton(nIndex);
    if (button == nullptr)
        return;
    button->m_nID = nID;
    button->SetStyle(nStyle);
    button->SetImage(iImage);
    Relayout();
}

BOOL CMFCToolBar::SetButtonText(int nIndex, LPCTSTR lpszText)
{
    CMFCToolBarButton * const button = GetButton(nIndex);
    if (button == nullptr)
        return FALSE;
    button->m_strText = lpszText;
    Relayout();
    return TRUE;
}

CString CMFCToolBar::GetButtonText(int nIndex) const
{
    CMFCToolBarButton const * const button = GetButton(nIndex);
    return button != nullptr ? button->m_strText : CString();
}

void CMFCToolBar::GetButtonText(int nIndex, CString & rString) const
{
    rString = GetButtonText(nIndex);
}

void CMFCToolBar::SetToolBarBtnText(UINT nBtnIndex, LPCTSTR szText, BOOL bShowText, BOOL bShowImage)
{
    CMFCToolBarButton * const button = GetButton(static_cast<int>(nBtnIndex));
    if (button == nullptr)
        return;
    if (bShowText)
        button->m_strText = szText != nullptr ? CString(szText) : LabelOf(button->m_nID);
    button->m_bText = bShowText;
    button->m_bImage = bShowImage;
    Relayout();
}

void CMFCToolBar::EnableTextLabels(BOOL bEnable)
{
    m_labels = bEnable != FALSE;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr;)
    {
        auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.GetNext(at));
        button->m_bText = bEnable;
        if (bEnable && button->m_strText.IsEmpty() && !OnSetDefaultButtonText(button))
            button->m_strText = LabelOf(button->m_nID);
    }
    Relayout();
}

BOOL CMFCToolBar::AreTextLabels() const
{
    return m_labels;
}

CString CMFCToolBar::LabelOf(UINT id) const
{
    CString text;
    if (id == 0 || !text.LoadString(id))
        return CString();
    int const line = text.Find(L'\n');
    return line >= 0 ? text.Mid(line + 1) : CString();
}

// Sizes and pictures

void PASCAL CMFCToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage)
{
    Everything().button = sizeButton;
    Everything().images.SetImageSize(sizeImage);
}

void PASCAL CMFCToolBar::SetMenuSizes(SIZE sizeButton, SIZE sizeImage)
{
    Everything().menuButton = sizeButton;
    Everything().menuImage = sizeImage;
}

CSize CMFCToolBar::GetMenuButtonSize()
{
    return framework::Scaled(Everything().menuButton);
}

CSize CMFCToolBar::GetMenuImageSize()
{
    return framework::Scaled(Everything().menuImage);
}

CSize CMFCToolBar::GetButtonSize() const
{
    return framework::Scaled(m_locked ? m_lockedButtonSize : Everything().button);
}

CSize CMFCToolBar::GetImageSize() const
{
    return m_locked ? m_lockedImages.GetImageSize(TRUE) : Everything().images.GetImageSize(TRUE);
}

void CMFCToolBar::SetLockedSizes(SIZE sizeButton, SIZE sizeImage, BOOL)
{
    m_lockedButtonSize = sizeButton;
    m_lockedImages.SetImageSize(sizeImage);
    m_locked = true;
    Relayout();
}

BOOL CMFCToolBar::IsLocked() const
{
    return m_locked;
}

void CMFCToolBar::SetHeight(int cyHeight)
{
    m_height = cyHeight;
    AdjustSize();
}

CMFCToolBarImages * CMFCToolBar::GetImages()
{
    return &Everything().images;
}

CMFCToolBarImages * CMFCToolBar::GetLockedImages()
{
    return &m_lockedImages;
}

CMFCToolBarImages * CMFCToolBar::ImagesOf(CMFCToolBarButton const & button) const
{
    return const_cast<CMFCToolBarImages *>(m_locked || button.IsLocked() ? &m_lockedImages : &Everything().images);
}

int CMFCToolBar::GetDefaultImage(UINT uiID)
{
    auto const found = Everything().imageOf.find(uiID);
    return found != Everything().imageOf.end() ? found->second : -1;
}

void CMFCToolBar::SetShowTooltips(BOOL bValue)
{
    Everything().toolTips = bValue;
}

BOOL CMFCToolBar::GetShowTooltips()
{
    return Everything().toolTips;
}

UINT CMFCToolBar::GetResourceID() const
{
    return m_resource;
}

void CMFCToolBar::SetRouteCommandsViaFrame(BOOL bValue)
{
    m_viaFrame = bValue != FALSE;
}

BOOL CMFCToolBar::GetRouteCommandsViaFrame()
{
    return m_viaFrame;
}

// Layout

CSize CMFCToolBar::SizeOf(CDC & dc, CMFCToolBarButton & button, bool horizontal)
{
    CSize const size = GetButtonSize();
    if ((button.m_nStyle & TBBS_SEPARATOR) == 0)
        return button.OnCalculateSize(&dc, CSize(size.cx, GetRowHeight()), horizontal);
    return horizontal ? CSize(Scaled(separator_width), GetRowHeight()) : CSize(size.cx, Scaled(separator_width));
}

CSize CMFCToolBar::Arrange(CDC & dc, int length, bool horizontal, bool place)
{
    CRect const inside = Inside();
    CPoint const origin = place ? inside.TopLeft() : CPoint(0, 0);
    CPoint at = origin;
    CSize size(0, 0);
    int row = 0; // the height of the row, or the width of the column
    for (POSITION position = m_buttons.GetHeadPosition(); position != nullptr;)
    {
        auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.GetNext(position));
        if (button->IsHidden())
            continue;
        CSize const need = SizeOf(dc, *button, horizontal);
        if (horizontal && at.x > origin.x && at.x + need.cx > origin.x + length)
        {
            at = CPoint(origin.x, at.y + row);
            row = 0;
        }
        if (place)
        {
            button->SetRect(horizontal ? CRect(at, need)
                                       : CRect(at, CSize(std::max<LONG>(need.cx, inside.Width()), need.cy)));
        }
        row = std::max<int>(row, horizontal ? need.cy : need.cx);
        size.cx = std::max<LONG>(size.cx, at.x + need.cx - origin.x);
        size.cy = std::max<LONG>(size.cy, at.y + need.cy - origin.y);
        if (horizontal)
            at.x += need.cx;
        else
            at.y += need.cy;
        if (button->m_bWrap && horizontal)
        {
            at = CPoint(origin.x, at.y + row);
            row = 0;
        }
    }
    return size;
}

CSize CMFCToolBar::ArrangeNow(int length, bool horizontal, bool place)
{
    framework::MeasureDC dc;
    return Arrange(dc.Get(), length, horizontal, place);
}

CRect CMFCToolBar::Inside() const
{
    CRect rect(0, 0, 0, 0);
    if (m_hWnd != nullptr)
        GetClientRect(&rect);
    CalcInsideRect(rect, IsHorizontal());
    return rect;
}

void CMFCToolBar::Relayout()
{
    if (m_hWnd == nullptr)
        return;
    m_stale = true;
    Invalidate();
}

void CMFCToolBar::EnsureLayout() const
{
    if (m_stale && m_hWnd != nullptr)
        const_cast<CMFCToolBar *>(this)->AdjustLayout();
}

void CMFCToolBar::AdjustLayout()
{
    m_stale = false;
    bool const horizontal = IsHorizontal() != FALSE;
    CRect const inside = Inside();
    ArrangeNow(horizontal ? inside.Width() : as_long_as_there_is, horizontal, true);
    if (m_hWnd != nullptr)
        Invalidate();
}

void CMFCToolBar::AdjustSize()
{
    AdjustLayout();
    if (CFrameWnd * const frame = TargetFrame())
        frame->RecalcLayout();
}

int CMFCToolBar::WrapToolBar(int nWidth, int, CDC *, int, int)
{
    bool const horizontal = IsHorizontal() != FALSE;
    CSize const size = ArrangeNow(nWidth, horizontal, true);
    int const row = std::max(GetRowHeight(), 1);
    return horizontal ? std::max<int>((size.cy + row - 1) / row, 1) : 1;
}

CSize CMFCToolBar::CalcSize(BOOL bVertDock)
{
    return ArrangeNow(as_long_as_there_is, bVertDock == FALSE, false);
}

CSize CMFCToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    // Buttons that the frame is too narrow for go to a further row.
    CRect around(0, 0, 0, 0);
    CalcInsideRect(around, bHorz);
    int length = as_long_as_there_is;
    CWnd const * const parent = m_hWnd != nullptr ? GetParent() : nullptr;
    if (parent != nullptr && bHorz)
    {
        CRect client;
        parent->GetClientRect(&client);
        if (client.Width() > 0)
            length = client.Width() + around.Width();
    }
    CSize size = ArrangeNow(length, bHorz != FALSE, false);
    if (m_height > 0 && bHorz)
        size.cy = m_height;
    (bHorz ? size.cy : size.cx) = std::max<LONG>(bHorz ? size.cy : size.cx, bHorz ? GetRowHeight() : GetColumnWidth());
    size -= around.Size();
    if (bStretch)
        (bHorz ? size.cx : size.cy) = as_long_as_there_is;
    return size;
}

int CMFCToolBar::CalcMaxButtonHeight()
{
    framework::MeasureDC dc;
    int height = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr;)
    {
        height =
            std::max<int>(height, SizeOf(dc.Get(), *static_cast<CMFCToolBarButton *>(m_buttons.GetNext(at)), true).cy);
    }
    return height;
}

int CMFCToolBar::GetRowHeight() const
{
    return GetButtonSize().cy;
}

int CMFCToolBar::GetColumnWidth() const
{
    return GetButtonSize().cx;
}

BOOL CMFCToolBar::CanBeClosed() const
{
    return TRUE;
}

BOOL CMFCToolBar::CanFocus() const
{
    return FALSE;
}

void CMFCToolBar::EnableDocking(DWORD dwAlignment)
{
    CMFCBaseToolBar::EnableDocking(dwAlignment);
}

BOOL CMFCToolBar::AllowChangeTextLabels() const
{
    return TRUE;
}

BOOL CMFCToolBar::AllowShowOnList() const
{
    return TRUE;
}

BOOL CMFCToolBar::IsButtonExtraSizeAvailable() const
{
    return TRUE;
}

void CMFCToolBar::OnReset() {}

BOOL CMFCToolBar::OnSetDefaultButtonText(CMFCToolBarButton *)
{
    return FALSE;
}

void CMFCToolBar::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CMFCBaseToolBar::OnSize(nType, cx, cy);
    if (guard.Alive())
        AdjustLayout();
}

// States

CFrameWnd * CMFCToolBar::TargetFrame() const
{
    CFrameWnd * const owner = DYNAMIC_DOWNCAST(CFrameWnd, GetOwner());
    return owner != nullptr ? owner : GetParentFrame();
}

LRESULT CMFCToolBar::HandleIdleUpdate(WPARAM wParam, LPARAM)
{
    CFrameWnd * const target = TargetFrame();
    if (target != nullptr && (GetStyle() & WS_VISIBLE) != 0)
        UpdateStates(target, static_cast<BOOL>(wParam));
    return 0;
}

bool CMFCToolBar::IsUpdated(CMFCToolBarButton const & button) const
{
    return (button.m_nStyle & TBBS_SEPARATOR) == 0 && button.m_nID != 0 && button.m_nID != static_cast<UINT>(-1);
}

void CMFCToolBar::UpdateStates(CFrameWnd * target, BOOL disableIfNoHandler)
{
    WindowGuard const guard(this);
    WindowGuard const targetGuard(target);
    ButtonState state(*this);
    for (int at = 0; at < GetCount(); ++at)
    {
        CMFCToolBarButton const * const button = GetButton(at);
        if (!IsUpdated(*button))
            continue;
        state.m_nIndex = static_cast<UINT>(at);
        state.m_nID = button->m_nID;
        framework::CmdUiAccess::SetIndexMax(state, static_cast<UINT>(GetCount()));
        framework::CmdUiAccess::DoUpdate(state, target, disableIfNoHandler);
        if (!guard.Alive() || !targetGuard.Alive())
            return;
    }
    UpdateDialogControls(target, disableIfNoHandler);
}

// Painting

LRESULT CMFCToolBar::HandleGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(framework::MenuFont().m_hObject);
}

BOOL CMFCToolBar::OnEraseBkgnd(CDC *)
{
    return TRUE;
}

void CMFCToolBar::OnFillBackground(CDC * pDC)
{
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
}

void CMFCToolBar::DoPaint(CDC * pDC)
{
    EnsureLayout();
    CRect clip;
    pDC->GetClipBox(&clip);
    // Drawn aside, so that nothing flickers.
    CRect client;
    GetClientRect(&client);
    CDC buffer;
    CBitmap bitmap;
    if (client.IsRectEmpty() || !buffer.CreateCompatibleDC(pDC) ||
        !bitmap.CreateCompatibleBitmap(pDC, client.Width(), client.Height()))
        return;
    HGDIOBJ const previousBitmap = ::SelectObject(buffer.m_hDC, bitmap.m_hObject);
    HGDIOBJ const previousFont = ::SelectObject(buffer.m_hDC, framework::MenuFont().m_hObject);
    OnFillBackground(&buffer);
    bool const horizontal = IsHorizontal() != FALSE;
    int index = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr; ++index)
    {
        auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.GetNext(at));
        CRect overlap;
        if (button->IsHidden() || !overlap.IntersectRect(&clip, &button->Rect()))
            continue;
        if ((button->m_nStyle & TBBS_SEPARATOR) != 0)
            DrawSeparator(&buffer, button->Rect(), horizontal);
        else
            DrawButton(&buffer, button, ImagesOf(*button), index == m_hot, FALSE);
    }
    pDC->BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &buffer, clip.left, clip.top, SRCCOPY);
    ::SelectObject(buffer.m_hDC, previousFont);
    ::SelectObject(buffer.m_hDC, previousBitmap);
}

BOOL CMFCToolBar::DrawButton(CDC * pDC, CMFCToolBarButton * pButton, CMFCToolBarImages * pImages, BOOL bHighlighted,
                             BOOL)
{
    pButton->OnDraw(pDC, pButton->Rect(), pImages, IsHorizontal(), FALSE, bHighlighted, TRUE, TRUE);
    return TRUE;
}

void CMFCToolBar::DrawSeparator(CDC * pDC, const CRect & rect, BOOL bHorz)
{
    CPoint const middle = rect.CenterPoint();
    COLORREF const colour = framework::Between(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNTEXT), 30);
    if (bHorz)
        pDC->FillSolidRect(middle.x, rect.top + Scaled(2), 1, rect.Height() - 2 * Scaled(2), colour);
    else
        pDC->FillSolidRect(rect.left + Scaled(2), middle.y, rect.Width() - 2 * Scaled(2), 1, colour);
}

CMFCToolBarButton * CMFCToolBar::InvalidateButton(int nIndex)
{
    CMFCToolBarButton * const button = GetButton(nIndex);
    if (button != nullptr && m_hWnd != nullptr && !m_stale)
    {
        CRect const rect = button->GetInvalidateRect();
        InvalidateRect(&rect, FALSE);
    }
    return button;
}

void CMFCToolBar::UpdateButton(int nIndex)
{
    InvalidateButton(nIndex);
}

void CMFCToolBar::OnSysColorChange()
{
    Invalidate();
}

void CMFCToolBar::OnSettingChange(UINT uFlags, LPCTSTR lpszSection)
{
    WindowGuard const guard(this);
    CMFCBaseToolBar::OnSettingChange(uFlags, lpszSection);
    if (!guard.Alive())
        return;
    if (uFlags == SPI_SETNONCLIENTMETRICS)
        framework::ReloadMenuFont();
    AdjustLayout();
}
