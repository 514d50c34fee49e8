#include "access/ControlTarget.h"

#include <cwchar>

using accessible::Element;

std::wstring WindowTextOf(HWND window)
{
    int const length = ::GetWindowTextLengthW(window);
    if (length <= 0)
        return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    int const taken = ::GetWindowTextW(window, text.data(), length + 1);
    text.resize(taken > 0 && taken <= length ? static_cast<std::size_t>(taken) : 0);
    return text;
}

std::wstring LabelOf(HWND control)
{
    constexpr int longest_class = 16;
    for (HWND window = ::GetWindow(control, GW_HWNDPREV); window != nullptr; window = ::GetWindow(window, GW_HWNDPREV))
    {
        if ((::GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        wchar_t name[longest_class] = {};
        ::GetClassNameW(window, name, longest_class);
        return ::_wcsicmp(name, L"Static") == 0 ? WindowTextOf(window) : std::wstring();
    }
    return {};
}

std::optional<Element> ControlTarget::ElementAt(CPoint point)
{
    ::ScreenToClient(m_window, &point);
    if (!SelfRect().PtInRect(point))
        return {};
    int const item = ItemAt(point);
    Element const found = item >= 0 ? Element{item, -1} : Element{};
    return IsThere() && Exists(found) ? found : Element{};
}

std::optional<CRect> ControlTarget::RectOf(Element element)
{
    auto rect = element.IsControl() ? std::optional<CRect>(SelfRect()) : ItemRect(element.row);
    if (rect)
        ::MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT *>(&*rect), 2);
    return rect;
}

CRect ControlTarget::SelfRect()
{
    CRect rect(0, 0, 0, 0);
    ::GetClientRect(m_window, &rect);
    return rect;
}

accessible::ControlFacts ControlTarget::Facts() const
{
    bool const isChild = (::GetWindowLongPtrW(m_window, GWL_STYLE) & WS_CHILD) != 0;
    accessible::ControlFacts facts;
    facts.label = isChild ? LabelOf(m_window) : std::wstring();
    facts.text = WindowTextOf(m_window);
    facts.enabled = IsEnabled();
    facts.focused = ::GetFocus() == m_window;
    return facts;
}

bool ControlTarget::IsInSight(std::optional<CRect> const & rect)
{
    CRect common;
    return rect && common.IntersectRect(*rect, SelfRect()) != FALSE;
}

accessible::Description ButtonTarget::DescribeSelf()
{
    accessible::ControlFacts const facts = Facts();
    return accessible::DescribeButton(facts, (::SendMessageW(Window(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0);
}

// Posted: the press may open a dialog, and the caller is not to wait for its end.
bool ButtonTarget::ActSelf()
{
    return IsEnabled() && ::PostMessageW(Window(), BM_CLICK, 0, 0) != FALSE;
}
