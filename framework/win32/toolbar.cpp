// CToolBar: buttons from resources or lists, their states by the targets' update handlers, their rows.

#include <afxext.h>

#include <algorithm>
#include <vector>

#include "detail/ControlSupport.h"
#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::Send;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

// clang-format off
BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCPAINT()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr SIZE default_button{23, 22};
constexpr SIZE default_image{16, 15};
constexpr SIZE button_beyond_image{7, 7}; // edges and space around a picture
constexpr int separator_width = 8;
constexpr int flat_separator_width = 6;
constexpr int no_wrap = 32767;
constexpr UINT_PTR tool_bar_resource = 241; // RT_TOOLBAR
constexpr WORD tool_bar_version = 1;

/// The start of a resource that describes a tool bar; the identifiers follow.
struct ToolBarResource
{
    WORD version;
    WORD width;
    WORD height;
    WORD count;
};

/// What the layout has to know of a button.
struct Item
{
    int width;
    bool hidden;
    bool separator; // between groups: where rows are best parted
    bool control;   // the place of a control that lies over the bar
    bool wrap;      // the last one of its row
};

BYTE StyleOf(UINT style)
{
    return static_cast<BYTE>(LOWORD(style));
}

BYTE StateOf(UINT style)
{
    return static_cast<BYTE>(HIWORD(style) ^ TBSTATE_ENABLED);
}

UINT StyleFrom(BYTE style, BYTE state)
{
    return static_cast<UINT>(MAKELONG(style, state ^ TBSTATE_ENABLED));
}

std::vector<Item> ItemsOf(HWND bar)
{
    int const count = Send<int>(bar, TB_BUTTONCOUNT);
    std::vector<Item> items;
    for (int at = 0; at < count; ++at)
    {
        TBBUTTON button{};
        CRect rect(0, 0, 0, 0);
        Send(bar, TB_GETBUTTON, at, &button);
        Send(bar, TB_GETITEMRECT, at, &rect);
        bool const divides = (button.fsStyle & TBSTYLE_SEP) != 0;
        items.push_back({divides ? button.iBitmap : rect.Width(), (button.fsState & TBSTATE_HIDDEN) != 0,
                         divides && button.idCommand == 0, divides && button.idCommand != 0,
                         (button.fsState & TBSTATE_WRAP) != 0});
    }
    return items;
}

/// Parts the items into rows of at most that width: at the last separator of a row if it has one, else before the item
/// that is too much. Gives the number of rows.
int Wrap(std::vector<Item> & items, int width)
{
    for (Item & item : items)
        item.wrap = false;
    int rows = 1;
    int x = 0;
    size_t first = 0; // of the row
    for (size_t at = 0; at < items.size(); ++at)
    {
        if (items[at].hidden)
            continue;
        if (x + items[at].width <= width)
        {
            x += items[at].width;
            continue;
        }
        size_t last = items.size();
        for (size_t back = at + 1; back > first && last == items.size(); --back)
        {
            if (items[back - 1].separator && !items[back - 1].hidden)
                last = back - 1;
        }
        for (size_t back = at; back > first && last == items.size(); --back)
        {
            if (!items[back - 1].hidden && !items[back - 1].control)
                last = back - 1;
        }
        if (last == items.size())
        {
            x += items[at].width; // it's alone in its row and can't be helped
            continue;
        }
        // A row that ends in nothing else needs no further one.
        bool const more = std::any_of(items.begin() + static_cast<std::ptrdiff_t>(last) + 1, items.end(),
                                      [](Item const & item) { return !item.hidden; });
        if (!more)
            break;
        items[last].wrap = true;
        ++rows;
        first = last + 1;
        at = last;
        x = 0;
    }
    return rows;
}

/// What rows of items take. A separator at the end of a row stands below it instead.
CSize Extent(std::vector<Item> const & items, int rowHeight)
{
    CSize size(0, 0);
    CPoint at(0, 0);
    for (Item const & item : items)
    {
        if (item.hidden)
            continue;
        if (item.separator && item.wrap)
        {
            at.x = 0;
            at.y += rowHeight + item.width * 2 / 3;
            continue;
        }
        at.x += item.width;
        size.cx = std::max(size.cx, at.x);
        size.cy = std::max<LONG>(size.cy, at.y + rowHeight);
        if (item.wrap)
        {
            at.x = 0;
            at.y += rowHeight;
        }
    }
    return size;
}

/// What the buttons take as they stand.
CSize PresentExtent(HWND bar)
{
    CSize size(0, 0);
    int const count = Send<int>(bar, TB_BUTTONCOUNT);
    for (int at = 0; at < count; ++at)
    {
        TBBUTTON button{};
        Send(bar, TB_GETBUTTON, at, &button);
        CRect rect(0, 0, 0, 0);
        Send(bar, TB_GETITEMRECT, at, &rect);
        bool const below = (button.fsStyle & TBSTYLE_SEP) != 0 && (button.fsState & TBSTATE_WRAP) != 0;
        if ((button.fsState & TBSTATE_HIDDEN) != 0 || below)
            continue;
        size.cx = std::max(size.cx, rect.right);
        size.cy = std::max(size.cy, rect.bottom);
    }
    return size;
}

/// A button of the bar as its update handlers see it. A handler may end the bar.
class ToolBarState : public CCmdUI
{
public:
    explicit ToolBarState(CToolBar & bar) : m_guard(&bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override
    {
        framework::CmdUiAccess::SetEnableChanged(*this, TRUE);
        // A button that is disabled while it is pressed would stay pressed.
        Change(bOn ? TBBS_DISABLED : TBBS_PRESSED, bOn ? 0 : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override
    {
        LONG const check = nCheck == 1 ? TBBS_CHECKED : nCheck == 2 ? TBBS_INDETERMINATE : 0;
        Change(TBBS_CHECKED | TBBS_INDETERMINATE, check | TBBS_CHECKBOX);
    }
    void SetText(LPCTSTR) override {} // a handler's text is the menu item's

private:
    void Change(LONG remove, LONG add)
    {
        if (!m_guard.Alive())
            return;
        auto const index = static_cast<int>(m_nIndex);
        auto & bar = *static_cast<CToolBar *>(m_pOther);
        bar.SetButtonStyle(index, (bar.GetButtonStyle(index) & ~static_cast<UINT>(remove)) | static_cast<UINT>(add));
    }

    WindowGuard m_guard;
};
} // namespace

CToolBar::CToolBar()
    : m_sizeButton(default_button),
      m_sizeImage(default_image),
      m_bitmap(nullptr),
      m_bitmapModule(nullptr),
      m_bitmapId(0),
      m_lastWidth(no_wrap)
{
}

CToolBar::~CToolBar()
{
    m_control.m_hWnd = nullptr;
    DestroyWindow(); // before its pictures
    if (m_bitmap != nullptr)
        ::DeleteObject(m_bitmap);
}

BOOL CToolBar::Create(CWnd * pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, 0, dwStyle, GetBorders(), nID);
}

BOOL CToolBar::CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID)
{
    ASSERT(pParentWnd != nullptr && (dwStyle & WS_CHILD) != 0);
    SetBorders(rcBorders);
    DWORD const style = TakeStyles(dwStyle, nID) | dwCtrlStyle;
    framework::LoadControlClasses(ICC_BAR_CLASSES);
    if (!CreateNative(TOOLBARCLASSNAME, style, pParentWnd, nID))
        return FALSE;
    Send(m_hWnd, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    SetSizes(m_sizeButton, m_sizeImage);
    return TRUE;
}

CToolBarCtrl & CToolBar::GetToolBarCtrl() const
{
    m_control.m_hWnd = m_hWnd;
    return m_control;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage)
{
    m_sizeButton = sizeButton;
    m_sizeImage = sizeImage;
    if (m_hWnd == nullptr)
        return;
    Send(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELPARAM(sizeImage.cx, sizeImage.cy));
    Send(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(sizeButton.cx, sizeButton.cy));
    Invalidate();
}

void CToolBar::SetHeight(int cyHeight)
{
    CRect borders = GetBorders();
    // What the lines at its sides leave, half above the buttons and half below; an odd one above.
    CRect lines(0, 0, 0, 0);
    CalcInsideRect(lines, TRUE);
    int const drawn = -lines.Height() - borders.top - borders.bottom;
    int const space = std::max<int>(cyHeight - drawn - m_sizeButton.cy, 0);
    borders.bottom = space / 2;
    borders.top = space - borders.bottom;
    SetBorders(&borders);
    if (m_hWnd != nullptr)
        Invalidate();
}

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName)
{
    LPWSTR const kind = MAKEINTRESOURCE(tool_bar_resource);
    HINSTANCE const module = AfxFindResourceHandle(lpszResourceName, kind);
    HRSRC const found = ::FindResource(module, lpszResourceName, kind);
    HGLOBAL const loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    auto const * const resource =
        loaded != nullptr ? static_cast<ToolBarResource const *>(::LockResource(loaded)) : nullptr;
    DWORD const size = found != nullptr ? ::SizeofResource(module, found) : 0;
    if (resource == nullptr || size < sizeof *resource || resource->version != tool_bar_version ||
        size < sizeof *resource + resource->count * sizeof(WORD))
        return FALSE;
    auto const * const commands = reinterpret_cast<WORD const *>(resource + 1);
    std::vector<UINT> const identifiers(commands, commands + resource->count);
    CSize const image(resource->width, resource->height);
    SetSizes(image + button_beyond_image, image);
    return SetButtons(identifiers.data(), resource->count) && LoadBitmap(lpszResourceName);
}

BOOL CToolBar::LoadToolBar(UINT nIDResource)
{
    return LoadToolBar(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName)
{
    HINSTANCE const module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    // The colours of a button in the resource become the system's.
    HBITMAP const bitmap = ::CreateMappedBitmap(module, reinterpret_cast<INT_PTR>(lpszResourceName), 0, nullptr, 0);
    if (bitmap == nullptr || !PutBitmap(bitmap))
        return FALSE;
    m_bitmapModule = module;
    bool const byNumber = IS_INTRESOURCE(lpszResourceName);
    m_bitmapId = byNumber ? LOWORD(reinterpret_cast<UINT_PTR>(lpszResourceName)) : 0;
    m_bitmapName = byNumber ? nullptr : lpszResourceName;
    return TRUE;
}

BOOL CToolBar::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::SetBitmap(HBITMAP hbmImageWell)
{
    m_bitmapModule = nullptr;
    return PutBitmap(hbmImageWell);
}

BOOL CToolBar::PutBitmap(HBITMAP bitmap)
{
    BITMAP description{};
    if (::GetObject(bitmap, sizeof description, &description) == 0)
        return FALSE;
    int const count = m_sizeImage.cx > 0 ? description.bmWidth / m_sizeImage.cx : 0;
    bool done = false;
    if (m_bitmap == nullptr)
    {
        TBADDBITMAP add{nullptr, reinterpret_cast<UINT_PTR>(bitmap)};
        done = Send<int>(m_hWnd, TB_ADDBITMAP, count, &add) == 0;
    }
    else
    {
        TBREPLACEBITMAP replace{nullptr, reinterpret_cast<UINT_PTR>(m_bitmap), nullptr,
                                reinterpret_cast<UINT_PTR>(bitmap), count};
        done = Send<BOOL>(m_hWnd, TB_REPLACEBITMAP, 0, &replace) != FALSE;
    }
    if (!done)
    {
        ::DeleteObject(bitmap);
        return FALSE;
    }
    if (m_bitmap != nullptr && m_bitmap != bitmap)
        ::DeleteObject(m_bitmap);
    m_bitmap = bitmap;
    return TRUE;
}

void CToolBar::OnSysColorChange()
{
    WindowGuard const guard(this);
    CControlBar::OnSysColorChange();
    if (!guard.Alive() || m_bitmapModule == nullptr)
        return;
    LPCTSTR const name = m_bitmapId != 0 ? MAKEINTRESOURCE(m_bitmapId) : m_bitmapName.GetString();
    if (HBITMAP const bitmap = ::CreateMappedBitmap(m_bitmapModule, reinterpret_cast<INT_PTR>(name), 0, nullptr, 0))
        PutBitmap(bitmap);
    Invalidate();
}

BOOL CToolBar::SetButtons(const UINT * lpIDArray, int nIDCount)
{
    ASSERT(::IsWindow(m_hWnd) && nIDCount > 0);
    while (Send<int>(m_hWnd, TB_BUTTONCOUNT) > 0)
    {
        if (!Send<BOOL>(m_hWnd, TB_DELETEBUTTON))
            break;
    }
    bool const flat = (GetStyle() & TBSTYLE_FLAT) != 0;
    std::vector<TBBUTTON> buttons;
    int image = 0;
    for (int at = 0; at < nIDCount; ++at)
    {
        TBBUTTON button{};
        if (lpIDArray == nullptr)
        {
            button.iBitmap = -1;
            button.fsStyle = TBSTYLE_BUTTON;
        }
        else if (lpIDArray[at] == ID_SEPARATOR)
        {
            button.iBitmap = flat ? flat_separator_width : separator_width;
            button.fsStyle = TBSTYLE_SEP;
            button.fsState = TBSTATE_ENABLED;
        }
        else
        {
            button.iBitmap = image++;
            button.idCommand = static_cast<int>(lpIDArray[at]);
            button.fsStyle = TBSTYLE_BUTTON;
            button.fsState = TBSTATE_ENABLED;
        }
        button.iString = -1;
        buttons.push_back(button);
    }
    if (!Send<BOOL>(m_hWnd, TB_ADDBUTTONS, nIDCount, buttons.data()))
        return FALSE;
    m_count = nIDCount;
    return TRUE;
}

int CToolBar::CommandToIndex(UINT nIDFind) const
{
    int const at = Send<int>(m_hWnd, TB_COMMANDTOINDEX, nIDFind);
    return at;
}

UINT CToolBar::GetItemID(int nIndex) const
{
    TBBUTTON button{};
    return Send<BOOL>(m_hWnd, TB_GETBUTTON, nIndex, &button) ? static_cast<UINT>(button.idCommand) : 0;
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    TBBUTTON button{};
    ::SetRectEmpty(lpRect);
    if (Send<BOOL>(m_hWnd, TB_GETBUTTON, nIndex, &button) && (button.fsState & TBSTATE_HIDDEN) == 0)
        Send(m_hWnd, TB_GETITEMRECT, nIndex, lpRect);
}

UINT CToolBar::GetButtonStyle(int nIndex) const
{
    TBBUTTON button{};
    Send(m_hWnd, TB_GETBUTTON, nIndex, &button);
    return StyleFrom(button.fsStyle, button.fsState);
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle)
{
    TBBUTTON button{};
    if (!Send<BOOL>(m_hWnd, TB_GETBUTTON, nIndex, &button) || StyleFrom(button.fsStyle, button.fsState) == nStyle)
        return;
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_BYINDEX | TBIF_STATE;
    if (button.fsStyle != StyleOf(nStyle))
        info.dwMask |= TBIF_STYLE;
    info.fsStyle = StyleOf(nStyle);
    info.fsState = StateOf(nStyle);
    Send(m_hWnd, TB_SETBUTTONINFO, nIndex, &info);
}

void CToolBar::GetButtonInfo(int nIndex, UINT & nID, UINT & nStyle, int & iImage) const
{
    TBBUTTON button{};
    Send(m_hWnd, TB_GETBUTTON, nIndex, &button);
    nID = static_cast<UINT>(button.idCommand);
    nStyle = StyleFrom(button.fsStyle, button.fsState);
    iImage = button.iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage)
{
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_BYINDEX | TBIF_COMMAND | TBIF_STATE | TBIF_STYLE | TBIF_IMAGE;
    info.idCommand = static_cast<int>(nID);
    info.fsStyle = StyleOf(nStyle);
    info.fsState = StateOf(nStyle);
    info.iImage = iImage;
    if ((nStyle & TBBS_SEPARATOR) != 0)
    {
        info.dwMask |= TBIF_SIZE;
        info.cx = static_cast<WORD>(iImage);
    }
    Send(m_hWnd, TB_SETBUTTONINFO, nIndex, &info);
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText)
{
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
    info.pszText = const_cast<LPTSTR>(lpszText);
    return Send<BOOL>(m_hWnd, TB_SETBUTTONINFO, nIndex, &info);
}

CString CToolBar::GetButtonText(int nIndex) const
{
    return framework::CollectText([this, nIndex](TCHAR * buffer, int size) {
        TBBUTTONINFO info{};
        info.cbSize = sizeof info;
        info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
        info.pszText = buffer;
        info.cchText = size;
        return Send<int>(m_hWnd, TB_GETBUTTONINFO, nIndex, &info) != -1;
    });
}

void CToolBar::GetButtonText(int nIndex, CString & rString) const
{
    rString = GetButtonText(nIndex);
}

// Layout

bool CToolBar::WrapWidth(DWORD mode, int length, int & width) const
{
    if ((m_style & CBRS_SIZE_FIXED) != 0)
        return false;
    bool const dynamic = (m_style & CBRS_SIZE_DYNAMIC) != 0;
    width = (mode & LM_HORZ) != 0 ? no_wrap : 0;
    if (!dynamic)
        return true;
    bool const docks = (mode & (LM_HORZDOCK | LM_VERTDOCK)) != 0;
    bool const floats = !docks && length == -1 && (m_style & CBRS_FLOATING) != 0;
    if ((mode & LM_MRUWIDTH) != 0 || floats)
        width = m_lastWidth;
    else if (docks)
        width = (mode & LM_HORZDOCK) != 0 ? no_wrap : 0;
    else if (length != -1)
    {
        CRect inside(0, 0, 0, 0);
        CalcInsideRect(inside, (mode & LM_HORZ) != 0);
        width = length + ((mode & LM_LENGTHY) != 0 ? inside.Height() : inside.Width());
    }
    return true;
}

namespace
{
/// Parts the items so that their height stays within the length, in rows as wide as that needs and no wider.
void WrapToHeight(std::vector<Item> & items, int height, int rowHeight)
{
    int widest = 0;
    int all = 0;
    for (Item const & item : items)
    {
        if (item.hidden)
            continue;
        widest = std::max(widest, item.width);
        all += item.width;
    }
    int low = widest; // the smallest width that is low enough
    int high = std::max(all, widest);
    while (low < high)
    {
        int const middle = (low + high) / 2;
        Wrap(items, middle);
        if (Extent(items, rowHeight).cy <= height)
            high = middle;
        else
            low = middle + 1;
    }
    Wrap(items, low);
}
} // namespace

CSize CToolBar::CalcLayout(DWORD mode, int length)
{
    CSize size(0, 0);
    if (Send<int>(m_hWnd, TB_BUTTONCOUNT) > 0)
    {
        int const rowHeight = HIWORD(Send<DWORD>(m_hWnd, TB_GETBUTTONSIZE));
        std::vector<Item> const present = ItemsOf(m_hWnd);
        std::vector<Item> items = present;
        int width = 0;
        if (WrapWidth(mode, length, width))
        {
            if ((mode & LM_LENGTHY) != 0)
                WrapToHeight(items, width, rowHeight);
            else
                Wrap(items, width);
        }
        bool same = true;
        for (size_t at = 0; at < items.size(); ++at)
        {
            if (items[at].wrap == present[at].wrap)
                continue;
            same = false;
            if ((mode & LM_COMMIT) == 0)
                continue;
            UINT const style = GetButtonStyle(static_cast<int>(at)) & ~static_cast<UINT>(TBBS_WRAPPED);
            SetButtonStyle(static_cast<int>(at), style | (items[at].wrap ? static_cast<UINT>(TBBS_WRAPPED) : 0));
        }
        // The control knows best what its rows take, once they are so.
        bool const stands = same || (mode & LM_COMMIT) != 0;
        size = stands ? PresentExtent(m_hWnd) : Extent(items, rowHeight);
        if ((mode & LM_COMMIT) != 0 && (mode & (LM_HORZDOCK | LM_VERTDOCK)) == 0)
            m_lastWidth = size.cx;
    }
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, (mode & LM_HORZ) != 0);
    size.cx -= inside.Width();
    size.cy -= inside.Height();
    CSize const least = CControlBar::CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZ) != 0);
    return CSize(std::max(size.cx, least.cx), std::max(size.cy, least.cy));
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    return CalcLayout((bStretch ? LM_STRETCH : 0) | (bHorz ? LM_HORZ : 0), -1);
}

CSize CToolBar::CalcDynamicLayout(int nLength, DWORD nMode)
{
    bool const docked = (nMode & (LM_HORZDOCK | LM_VERTDOCK)) != 0;
    if (nLength == -1 && docked && (nMode & (LM_MRUWIDTH | LM_COMMIT)) == 0)
        return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZDOCK) != 0);
    return CalcLayout(nMode, nLength);
}

void CToolBar::Arrange(DWORD mode)
{
    CalcLayout(mode | LM_COMMIT, -1);
}

// Idle time, tool tips

void CToolBar::OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler)
{
    WindowGuard const guard(this);
    WindowGuard const target(pTarget);
    ToolBarState state(*this);
    constexpr LONG reflected = MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE);
    // Handlers may take buttons out and put others in.
    for (state.m_nIndex = 0; guard.Alive() && target.Alive(); ++state.m_nIndex)
    {
        int const count = Send<int>(m_hWnd, TB_BUTTONCOUNT);
        TBBUTTON button{};
        if (static_cast<int>(state.m_nIndex) >= count || !Send<BOOL>(m_hWnd, TB_GETBUTTON, state.m_nIndex, &button))
            break;
        framework::CmdUiAccess::SetIndexMax(state, static_cast<UINT>(count));
        state.m_nID = static_cast<UINT>(button.idCommand);
        if ((button.fsStyle & TBSTYLE_SEP) != 0)
            continue;
        if (CWnd::OnCmdMsg(0, static_cast<int>(reflected), &state, nullptr) || !guard.Alive())
            continue;
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr))
            continue;
        if (guard.Alive() && target.Alive())
            framework::CmdUiAccess::DoUpdate(state, pTarget, bDisableIfNoHndler);
    }
    if (guard.Alive() && target.Alive())
        UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO * pTI) const
{
    INT_PTR const child = CWnd::OnToolHitTest(point, pTI);
    if (child != -1)
        return child;
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point))
        return -1;
    int const count = Send<int>(m_hWnd, TB_BUTTONCOUNT);
    for (int at = 0; at < count; ++at)
    {
        CRect rect;
        GetItemRect(at, &rect);
        if (!rect.PtInRect(point) || (GetButtonStyle(at) & TBBS_SEPARATOR) != 0)
            continue;
        UINT const id = GetItemID(at);
        if (id == 0)
            return -1;
        if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE)
        {
            pTI->hwnd = m_hWnd;
            pTI->rect = rect;
            pTI->uId = id;
            pTI->lpszText = LPSTR_TEXTCALLBACK;
        }
        return static_cast<INT_PTR>(id);
    }
    return -1;
}

// Painting

void CToolBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS * lpncsp)
{
    CalcNonClient(lpncsp);
}

LRESULT CToolBar::OnNcHitTest(CPoint)
{
    return HTCLIENT;
}

void CToolBar::OnNcPaint()
{
    PaintNonClient();
}

void CToolBar::OnPaint()
{
    Default();
}

BOOL CToolBar::OnEraseBkgnd(CDC * pDC)
{
    // In a bar of bands the bands' background shows through; a frame has none to show.
    if (DYNAMIC_DOWNCAST(CReBar, GetParent()) != nullptr)
        return static_cast<BOOL>(Default());
    CRect rect;
    GetClientRect(&rect);
    pDC->FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}
