#include "list/XHeaderCtrl.h"

#include <afxcontrolbarutil.h>

#include <memory>

#include "access/ControlTarget.h"
#include "frame/WindowAlive.h"
#include "layout/Resolution.h"
#include "list/CheckMarks.h"
#include "list/XListCtrl.h"

IMPLEMENT_DYNCREATE(CXHeaderCtrl, CHeaderCtrl)

namespace
{
// Pixels at 96 dots an inch.
constexpr int usual_spacing = 6;
constexpr int room_about_marks = 4;
} // namespace

BEGIN_MESSAGE_MAP(CXHeaderCtrl, CHeaderCtrl)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(HDM_INSERTITEMA, &CXHeaderCtrl::OnInsertItem)
    ON_MESSAGE(HDM_INSERTITEMW, &CXHeaderCtrl::OnInsertItem)
    ON_MESSAGE(HDM_DELETEITEM, &CXHeaderCtrl::OnDeleteItem)
    ON_MESSAGE(HDM_SETIMAGELIST, &CXHeaderCtrl::OnSetImageList)
    ON_MESSAGE(HDM_LAYOUT, &CXHeaderCtrl::OnLayout)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CXHeaderCtrl::CXHeaderCtrl() : m_textColor(::GetSysColor(COLOR_BTNTEXT))
{
    ReadColors();
}

void CXHeaderCtrl::ReadColors()
{
    m_colorHighlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    m_colorShadow = ::GetSysColor(COLOR_BTNSHADOW);
    m_colorFace = ::GetSysColor(COLOR_BTNFACE);
    m_colorText = ::GetSysColor(COLOR_BTNTEXT);
}

BOOL CXHeaderCtrl::OnEraseBkgnd(CDC *)
{
    return TRUE;
}

void CXHeaderCtrl::OnPaint()
{
    CPaintDC dc(this);
    if (m_doubleBuffer != 0)
    {
        CMemDC buffer(dc, this);
        PaintHeader(&buffer.GetDC());
    }
    else
    {
        PaintHeader(&dc);
    }
}

// The title colour is the host's and stays.
void CXHeaderCtrl::OnSysColorChange()
{
    CHeaderCtrl::OnSysColorChange();
    ReadColors();
}

// Hosts expect that a double click is nothing but another press, on a divider too.
void CXHeaderCtrl::OnLButtonDblClk(UINT flags, CPoint point)
{
    SendMessage(WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
}

LRESULT CXHeaderCtrl::OnInsertItem(WPARAM, LPARAM)
{
    return Default();
}

LRESULT CXHeaderCtrl::OnDeleteItem(WPARAM, LPARAM)
{
    return Default();
}

LRESULT CXHeaderCtrl::OnSetImageList(WPARAM, LPARAM lParam)
{
    IMAGEINFO info = {};
    auto const images = reinterpret_cast<HIMAGELIST>(lParam);
    if (images == nullptr || !ImageList_GetImageInfo(images, 0, &info))
    {
        info = {};
    }
    m_imageWidth = info.rcImage.right - info.rcImage.left;
    m_imageHeight = info.rcImage.bottom - info.rcImage.top;
    m_imageDpi = m_dpi;
    return Default();
}

LRESULT CXHeaderCtrl::OnLayout(WPARAM, LPARAM lParam)
{
    if (m_layoutWiden != 0)
    {
        reinterpret_cast<HDLAYOUT *>(lParam)->prc->right += 2 * ::GetSystemMetrics(SM_CXBORDER);
    }
    if (m_dpi == resolution::usual)
        return Default();
    LRESULT const result = Default();
    // As high as its marks need.
    HDLAYOUT const & layout = *reinterpret_cast<HDLAYOUT const *>(lParam);
    int const room = resolution::Scaled(check_marks::box_size + room_about_marks, m_dpi);
    int const lacking = layout.pwpos != nullptr ? room - layout.pwpos->cy : 0;
    if (result != FALSE && lacking > 0)
    {
        layout.pwpos->cy += lacking;
        layout.prc->top += lacking;
    }
    return result;
}

BOOL CXHeaderCtrl::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    m_dpi = dpi;
    m_spacing = resolution::Scaled(usual_spacing, dpi);
    if (m_hWnd != nullptr)
        Invalidate(FALSE);
    return TRUE;
}

void CXHeaderCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    WindowAlive const watch(*this, m_life);
    if (m_directColumnClick && m_list != nullptr)
    {
        int const count = GetItemCount();
        for (int order = 0; order < count; ++order)
        {
            int const index = OrderToIndex(order);
            CRect rect;
            if (GetItemRect(index, &rect) && rect.PtInRect(point))
            {
                m_list->OnHeaderColumnClick(index);
                break;
            }
        }
    }
    // The host has heard of the click, and may have ended the list.
    if (watch.IsAlive())
        CHeaderCtrl::OnLButtonDown(flags, point);
}

// --- What programs that read the screen see ---

class CXHeaderCtrl::Access final : public ControlTarget
{
public:
    Access(CXHeaderCtrl & header, LifeSign const & life) : ControlTarget(header, life), m_header(header) {}

protected:
    accessible::ItemRow Items() override { return {IsThere() ? m_header.GetItemCount() : 0, true}; }
    accessible::Description DescribeSelf() override
    {
        accessible::ControlFacts facts = Facts();
        facts.focusable = false;
        return accessible::DescribeControl(accessible::Role::list, facts);
    }
    accessible::Description DescribeItem(int col) override
    {
        constexpr int longest_title = 260;
        wchar_t title[longest_title + 1] = {};
        HDITEMW item{};
        item.mask = HDI_TEXT | HDI_IMAGE;
        item.pszText = title;
        item.cchTextMax = longest_title;
        bool const known = IsThere() && m_header.GetItem(col, &item);
        accessible::ItemFacts facts;
        facts.text = known && item.pszText != nullptr ? item.pszText : L"";
        facts.enabled = IsEnabled();
        facts.inSight = IsInSight(ItemRect(col));
        bool const marked = known && IsThere() && !m_header.m_useImageList;
        return accessible::DescribeColumn(facts, marked ? MarkOf(item.iImage) : accessible::HeaderMark::none,
                                          CanBePressed());
    }
    std::optional<CRect> ItemRect(int col) override
    {
        CRect rect;
        if (!IsThere() || !m_header.GetItemRect(col, &rect))
            return {};
        return rect;
    }
    int ItemAt(CPoint point) override
    {
        HDHITTESTINFO hit{};
        hit.pt = point;
        return static_cast<int>(::SendMessageW(Window(), HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    }
    // As a click: the list hears of it from the header itself, or by the native notification.
    bool ActItem(int col) override
    {
        if (!IsThere() || !IsEnabled() || !CanBePressed())
            return false;
        if (m_header.m_directColumnClick && m_header.m_list != nullptr)
        {
            m_header.m_list->OnHeaderColumnClick(col);
            return true;
        }
        NMHEADERW click{};
        click.hdr = {Window(), static_cast<UINT_PTR>(::GetDlgCtrlID(Window())), HDN_ITEMCLICKW};
        click.iItem = col;
        ::SendMessageW(::GetParent(Window()), WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
        return true;
    }

private:
    bool CanBePressed() const
    {
        bool const direct = IsThere() && m_header.m_directColumnClick && m_header.m_list != nullptr;
        return direct || (::GetWindowLongPtrW(Window(), GWL_STYLE) & HDS_BUTTONS) != 0;
    }
    static accessible::HeaderMark MarkOf(int image)
    {
        switch (image)
        {
        case XHC_UNCHECKED:
            return accessible::HeaderMark::unchecked;
        case XHC_CHECKED:
            return accessible::HeaderMark::checked;
        case XHC_MIXED:
        case XHC_CROSSED:
            return accessible::HeaderMark::mixed;
        case XHC_SORT_ASCENDING:
            return accessible::HeaderMark::ascending;
        case XHC_SORT_DESCENDING:
            return accessible::HeaderMark::descending;
        default:
            return accessible::HeaderMark::none;
        }
    }

    CXHeaderCtrl & m_header;
};

LRESULT CXHeaderCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<Access>(*this, m_life), wParam);
    HWND const window = m_hWnd;
    switch (message)
    {
    case HDM_INSERTITEMA:
    case HDM_INSERTITEMW:
    case HDM_DELETEITEM: {
        LRESULT const result = CHeaderCtrl::DefWindowProc(message, wParam, lParam);
        TellOfEvent(EVENT_OBJECT_REORDER, window, {});
        return result;
    }
    case HDM_SETITEMA:
    case HDM_SETITEMW: {
        auto const * const item = reinterpret_cast<HDITEMW const *>(lParam);
        UINT const changed = item != nullptr ? item->mask : 0;
        LRESULT const result = CHeaderCtrl::DefWindowProc(message, wParam, lParam);
        accessible::Element const column{static_cast<int>(wParam), -1};
        if ((changed & HDI_TEXT) != 0)
            TellOfEvent(EVENT_OBJECT_NAMECHANGE, window, column);
        if ((changed & HDI_IMAGE) != 0)
            TellOfEvent(EVENT_OBJECT_STATECHANGE, window, column);
        return result;
    }
    default:
        return CHeaderCtrl::DefWindowProc(message, wParam, lParam);
    }
}
