#pragma once
// A walk over the children of a window whose handlers may end any of them, or the window. Inside framework.dll only.

#include <afxwin.h>

#include <algorithm>
#include <vector>

namespace framework
{
/// From top to bottom, also over children that come meanwhile.
class ChildWalk
{
public:
    explicit ChildWalk(HWND parent) : m_parent(parent) {}

    /// The next child; null at the end, or once the parent has ended.
    HWND Next()
    {
        // The walk goes on behind the last one that is still there.
        while (!m_passed.empty() && !IsChild(m_passed.back()))
        {
            m_passed.pop_back();
            m_lost = true;
        }
        if (!::IsWindow(m_parent))
            return nullptr;
        HWND const next = m_passed.empty() ? ::GetTopWindow(m_parent) : ::GetWindow(m_passed.back(), GW_HWNDNEXT);
        if (next != nullptr)
            m_passed.push_back(next);
        return next;
    }
    /// Whether a child has ended after its turn had come.
    bool HasLost() const
    {
        return m_lost || !std::all_of(m_passed.begin(), m_passed.end(), [this](HWND child) { return IsChild(child); });
    }
    bool IsChild(HWND window) const { return ::GetAncestor(window, GA_PARENT) == m_parent; }

private:
    HWND m_parent;
    std::vector<HWND> m_passed;
    bool m_lost = false;
};
} // namespace framework
