#include "layout/DialogResizer.h"

#include <iterator>

#include "frame/PreferenceStore.h"
#include "frame/WrappingArithmetic.h"
#include "layout/LayoutPlatform.h"

namespace
{
constexpr int fraction_none = 0;
constexpr int fraction_third = 3333;
constexpr int fraction_half = 5000;
constexpr int fraction_two_thirds = 6667;
constexpr int fraction_whole = 10000;

CSize SizeOf(CRect const & rect)
{
    return CSize(wrapping::Difference(rect.right, rect.left), wrapping::Difference(rect.bottom, rect.top));
}

void Move(CRect & rect, CSize offset)
{
    rect.left = wrapping::Sum(rect.left, offset.cx);
    rect.top = wrapping::Sum(rect.top, offset.cy);
    rect.right = wrapping::Sum(rect.right, offset.cx);
    rect.bottom = wrapping::Sum(rect.bottom, offset.cy);
}

void Grow(CRect & rect, CSize growth)
{
    rect.right = wrapping::Sum(rect.right, growth.cx);
    rect.bottom = wrapping::Sum(rect.bottom, growth.cy);
}

/// The child behind this one. Where a handler has ended the latter, the one that is now behind the child before it.
HWND Behind(HWND dialog, HWND child, HWND & former)
{
    LayoutPlatform & platform = LayoutPlatform::Instance();
    HWND const next = platform.NextWindow(child);
    if (next == nullptr && !platform.IsWindow(child))
        return former != nullptr ? platform.NextWindow(former) : platform.FirstChild(dialog);
    former = child;
    return next;
}

// 1 for a pane that is collapsed to nothing.
int Quotient(int design, int present)
{
    return present != 0 ? design / present : 1;
}

// The product stays in 32 bits: beyond 214,748 pixels of growth a whole fraction wraps around, and hosts expect that.
int Placed(int edge, int fraction, int growth)
{
    return wrapping::Sum(edge, wrapping::Product(fraction, growth) / fraction_whole);
}
} // namespace

CDialogResizer::CDialogResizer(CWnd & dialog, CString const & storageKey)
    : m_designRect(0, 0, 0, 0),
      m_currentRect(0, 0, 0, 0),
      m_storageKey(storageKey),
      m_dialog(dialog)
{
    LayoutPlatform & platform = LayoutPlatform::Instance();
    HWND const handle = platform.HandleOf(m_dialog);
    if (!platform.IsWindow(handle))
        platform.ReportAssertion(L"::IsWindow( dialog.m_hWnd)", L"DialogResizer", 45);
    platform.GetWindowRect(handle, m_designRect);
    m_currentRect = m_designRect;
}

CDialogResizer::~CDialogResizer()
{
    VeskLookup(true);
}

CRect CDialogResizer::FractionsOf(CEdges const & edges)
{
    CRect result(fraction_none, fraction_none, fraction_none, fraction_none);
    auto const horizontal = [&result](int left, int right) {
        result.left = left;
        result.right = right;
    };
    auto const vertical = [&result](int top, int bottom) {
        result.top = top;
        result.bottom = bottom;
    };

    // The order decides what contradicting edges give.
    if (edges & CEdges::LEFT())
        horizontal(fraction_none, fraction_none);
    if (edges & CEdges::LEFT_HALF())
        horizontal(fraction_none, fraction_half);
    if (edges & CEdges::RIGHT_HALF())
        horizontal(fraction_half, fraction_whole);
    if (edges & CEdges::RIGHT())
        horizontal((edges & CEdges::LEFT()) ? static_cast<int>(result.left) : fraction_whole, fraction_whole);
    if (edges & CEdges::HORI_CENTER())
        horizontal(fraction_half, fraction_half);

    if (edges & CEdges::TOP())
        vertical(fraction_none, fraction_none);
    if (edges & CEdges::TOP_HALF())
        vertical(fraction_none, fraction_half);
    if (edges & CEdges::TOP_THIRD())
        vertical(fraction_none, fraction_third);
    if (edges & CEdges::TOP_TWOTHIRD())
        vertical(fraction_none, fraction_two_thirds);
    if (edges & CEdges::BOTTOM())
        vertical((edges & CEdges::TOP()) ? static_cast<int>(result.top) : fraction_whole, fraction_whole);
    if (edges & CEdges::BOTTOM_HALF())
        vertical(fraction_half, fraction_whole);
    if (edges & CEdges::BOTTOM_THIRD())
        vertical(fraction_two_thirds, fraction_whole);
    if (edges & CEdges::BOTTOM_TWOTHIRD())
        vertical(fraction_third, fraction_whole);
    if (edges & CEdges::VERT_CENTER())
        vertical(fraction_half, fraction_half);
    return result;
}

void CDialogResizer::PositionChild(CWnd * child, CEdges const & edges, CRect const * designRect)
{
    PositionChild(child, FractionsOf(edges), designRect);
}

void CDialogResizer::PositionChild(int id, CEdges const & edges, CRect const * designRect)
{
    PositionChild(LayoutPlatform::Instance().DialogItem(m_dialog, id), edges, designRect);
}

void CDialogResizer::PositionChild(CWnd * child, CRect const & fractions, CRect const * designRect)
{
    if (child == nullptr)
        return;

    LayoutPlatform & platform = LayoutPlatform::Instance();
    HWND const handle = platform.HandleOf(*child);
    ChildPlacement placement{handle, CRect(0, 0, 0, 0), fractions};
    if (designRect != nullptr)
    {
        placement.designRect = *designRect;
    }
    else
    {
        CRect outer(0, 0, 0, 0);
        platform.GetWindowRect(handle, outer);
        HWND const parent = platform.GetParent(handle);
        platform.ScreenToClient(parent, outer.TopLeft());
        platform.ScreenToClient(parent, outer.BottomRight());
        placement.designRect = outer;
    }
    m_children.insert_or_assign(handle, placement);
}

void CDialogResizer::PositionChild(int id, CRect const & fractions, CRect const * designRect)
{
    PositionChild(LayoutPlatform::Instance().DialogItem(m_dialog, id), fractions, designRect);
}

void CDialogResizer::RepositionChild(CWnd const * child, CSize const * offset, CSize const * growth, bool scale)
{
    LayoutPlatform & platform = LayoutPlatform::Instance();
    auto const found = m_children.find(platform.HandleOf(*child));
    if (found == m_children.end())
        return;

    CSize shift = offset != nullptr ? *offset : CSize(0, 0);
    CSize added = growth != nullptr ? *growth : CSize(0, 0);
    if (scale)
    {
        CRect present(0, 0, 0, 0);
        platform.GetWindowRect(platform.HandleOf(m_dialog), present);
        CSize const designSize = SizeOf(m_designRect);
        CSize const presentSize = SizeOf(present);
        // Hosts expect whole quotients: a dialog larger than its design size drops the amounts.
        int const factorX = Quotient(designSize.cx, presentSize.cx);
        int const factorY = Quotient(designSize.cy, presentSize.cy);
        shift = CSize(wrapping::Product(shift.cx, factorX), wrapping::Product(shift.cy, factorY));
        added = CSize(wrapping::Product(added.cx, factorX), wrapping::Product(added.cy, factorY));
    }
    Move(found->second.designRect, shift);
    Grow(found->second.designRect, added);
}

void CDialogResizer::RepositionChild(int id, CSize const * offset, CSize const * growth, bool scale)
{
    if (CWnd const * const child = LayoutPlatform::Instance().DialogItem(m_dialog, id))
        RepositionChild(child, offset, growth, scale);
}

CRect CDialogResizer::Placed(ChildPlacement const & placement, CSize growth)
{
    CRect const & design = placement.designRect;
    CRect const & fractions = placement.fractions;
    return CRect(::Placed(design.left, fractions.left, growth.cx), ::Placed(design.top, fractions.top, growth.cy),
                 ::Placed(design.right, fractions.right, growth.cx),
                 ::Placed(design.bottom, fractions.bottom, growth.cy));
}

void CDialogResizer::OnSize()
{
    if (m_children.empty())
        return;

    LayoutPlatform & platform = LayoutPlatform::Instance();
    HWND const dialog = platform.HandleOf(m_dialog);
    CRect present(0, 0, 0, 0);
    platform.GetWindowRect(dialog, present);

    CSize const designSize = SizeOf(m_designRect);
    if (SizeOf(present).cy < designSize.cy)
        present.bottom = wrapping::Sum(present.top, designSize.cy);
    if (SizeOf(present).cx < designSize.cx)
        present.right = wrapping::Sum(present.left, designSize.cx);
    CSize const presentSize = SizeOf(present);
    CSize const growth(wrapping::Difference(presentSize.cx, designSize.cx),
                       wrapping::Difference(presentSize.cy, designSize.cy));

    // Windows made one after the other mostly have ascending handles, so the record behind the last one found is tried
    // before the tree is searched.
    auto guess = m_children.begin();
    LifeWatch const life(m_life);
    HWND former = nullptr; // the child before this one
    for (HWND child = platform.FirstChild(dialog); child != nullptr; child = Behind(dialog, child, former))
    {
        auto const found = guess != m_children.end() && guess->first == child ? guess : m_children.find(child);
        if (found == m_children.end())
            continue;
        CRect const place = Placed(found->second, growth);
        CSize const size = SizeOf(place);
        platform.MoveWindow(child, place.left, place.top, size.cx, size.cy);
        if (life.Over())
            return; // a handler of the child's has ended the dialog
        platform.Invalidate(child);
        guess = std::next(found);
    }
    m_currentRect = present;
}

void CDialogResizer::OnGetMinMaxInfo(tagMINMAXINFO * info, resize_dims_t dims)
{
    CSize const designSize = SizeOf(m_designRect);
    info->ptMinTrackSize = CPoint(designSize.cx, designSize.cy);
    if ((dims & RESIZE_HORIZONTAL) == 0)
        info->ptMaxTrackSize.x = designSize.cx;
    if ((dims & RESIZE_VERTICAL) == 0)
        info->ptMaxTrackSize.y = designSize.cy;
}

void CDialogResizer::RestoreStoredPosition()
{
    VeskLookup(false);
}

void CDialogResizer::VeskLookup(bool save)
{
    if (m_storageKey.IsEmpty())
        return;
    CResourceVesk * const store = CVeskBase::PreferenceVesk();
    CVeskEntry * const entry = store != nullptr ? store->CreateEntry(m_storageKey, 0) : nullptr;
    if (entry == nullptr)
        return;

    if (save)
    {
        entry->SetInt(m_currentRect.left, 0);
        entry->SetInt(m_currentRect.top, 1);
        entry->SetInt(m_currentRect.right, 2);
        entry->SetInt(m_currentRect.bottom, 3);
        return;
    }
    m_currentRect.left = entry->GetIntFb(0, m_currentRect.left);
    m_currentRect.top = entry->GetIntFb(1, m_currentRect.top);
    m_currentRect.right = entry->GetIntFb(2, m_currentRect.right);
    m_currentRect.bottom = entry->GetIntFb(3, m_currentRect.bottom);
    CSize const size = SizeOf(m_currentRect);
    LayoutPlatform::Instance().MoveDialog(m_dialog, m_currentRect.left, m_currentRect.top, size.cx, size.cy);
}
