#include "FakeLayoutPlatform.h"

#include <algorithm>

namespace
{
std::string Numbers(int left, int top, int width, int height)
{
    return " " + std::to_string(left) + " " + std::to_string(top) + " " + std::to_string(width) + " " +
           std::to_string(height);
}
} // namespace

LayoutPlatform & LayoutPlatform::Instance()
{
    return FakeLayoutPlatform::Current();
}

FakeLayoutPlatform & FakeLayoutPlatform::Current()
{
    static FakeLayoutPlatform platform;
    return platform;
}

void FakeLayoutPlatform::Reset()
{
    onMove = nullptr;
    recording = true;
    calls.clear();
    assertions.clear();
    m_byHandle.clear();
    m_windows.clear();
}

// The engine passes window objects on and never looks into them, so a record of ours serves as one.
FakeLayoutPlatform::Window & FakeLayoutPlatform::WindowOf(CWnd const & object)
{
    return const_cast<Window &>(reinterpret_cast<Window const &>(object));
}

CWnd & FakeLayoutPlatform::ObjectOf(Window & window)
{
    return reinterpret_cast<CWnd &>(window);
}

FakeLayoutPlatform::Window * FakeLayoutPlatform::Find(HWND handle)
{
    auto const found = m_byHandle.find(handle);
    return found == m_byHandle.end() ? nullptr : found->second;
}

CWnd & FakeLayoutPlatform::Add(Window * parent, CRect const & outer, HWND handle, int id)
{
    m_windows.push_back({m_windows.size(), handle, id, outer, parent, {}});
    Window & added = m_windows.back();
    m_byHandle[handle] = &added;
    if (parent != nullptr)
        parent->children.push_back(&added);
    return ObjectOf(added);
}

CWnd & FakeLayoutPlatform::AddDialog(CRect const & outer)
{
    return Add(nullptr, outer, reinterpret_cast<HWND>(0x10000 + 2 * m_windows.size()), 0);
}

CWnd & FakeLayoutPlatform::AddChild(CWnd & parent, CRect const & place, int id)
{
    CWnd & child = AddChildWithHandle(parent, place, reinterpret_cast<HWND>(0x10000 + 2 * m_windows.size()));
    WindowOf(child).id = id;
    return child;
}

CWnd & FakeLayoutPlatform::AddChildWithHandle(CWnd & parent, CRect const & place, HWND handle)
{
    Window & owner = WindowOf(parent);
    CRect outer(place);
    outer.OffsetRect(owner.outer.left + frame_width, owner.outer.top + caption_height);
    return Add(&owner, outer, handle, 0);
}

void FakeLayoutPlatform::SetOuter(CWnd & window, CRect const & outer)
{
    Window & moved = WindowOf(window);
    CPoint const shift(outer.left - moved.outer.left, outer.top - moved.outer.top);
    moved.outer = outer;
    for (Window * const child : moved.children)
        child->outer.OffsetRect(shift.x, shift.y);
}

void FakeLayoutPlatform::Destroy(CWnd & window)
{
    Window & doomed = WindowOf(window);
    m_byHandle.erase(doomed.handle);
    if (doomed.parent != nullptr)
        std::erase(doomed.parent->children, &doomed);
}

CRect FakeLayoutPlatform::PlaceOf(CWnd const & window) const
{
    Window const & child = WindowOf(window);
    CRect place(child.outer);
    place.OffsetRect(-child.parent->outer.left - frame_width, -child.parent->outer.top - caption_height);
    return place;
}

std::string FakeLayoutPlatform::Name(CWnd const & window)
{
    return std::to_string(WindowOf(window).number);
}

void FakeLayoutPlatform::Log(std::string call)
{
    calls.push_back(std::move(call));
}

HWND FakeLayoutPlatform::HandleOf(CWnd const & window)
{
    return WindowOf(window).handle;
}

CWnd * FakeLayoutPlatform::DialogItem(CWnd & dialog, int id)
{
    for (Window * const child : WindowOf(dialog).children)
    {
        if (child->id == id)
            return &ObjectOf(*child);
    }
    return nullptr;
}

bool FakeLayoutPlatform::IsWindow(HWND window)
{
    return Find(window) != nullptr;
}

void FakeLayoutPlatform::GetWindowRect(HWND window, RECT & rect)
{
    Window const * const found = Find(window);
    if (recording)
        Log("GetWindowRect " + (found != nullptr ? std::to_string(found->number) : "none"));
    if (found != nullptr)
        rect = found->outer;
}

HWND FakeLayoutPlatform::GetParent(HWND window)
{
    Window const * const found = Find(window);
    return found != nullptr && found->parent != nullptr ? found->parent->handle : nullptr;
}

void FakeLayoutPlatform::ScreenToClient(HWND window, POINT & point)
{
    if (Window const * const found = Find(window))
    {
        point.x -= found->outer.left + frame_width;
        point.y -= found->outer.top + caption_height;
    }
}

HWND FakeLayoutPlatform::FirstChild(HWND parent)
{
    Window const * const found = Find(parent);
    return found != nullptr && !found->children.empty() ? found->children.front()->handle : nullptr;
}

HWND FakeLayoutPlatform::NextWindow(HWND window)
{
    Window * const found = Find(window);
    if (found == nullptr || found->parent == nullptr)
        return nullptr;
    std::vector<Window *> const & siblings = found->parent->children;
    auto const next = std::next(std::find(siblings.begin(), siblings.end(), found));
    return next == siblings.end() ? nullptr : (*next)->handle;
}

void FakeLayoutPlatform::MoveWindow(HWND window, int left, int top, int width, int height)
{
    Window * const found = Find(window);
    if (recording)
        Log("MoveWindow " + std::to_string(found->number) + Numbers(left, top, width, height));
    found->outer = CRect(left, top, left + width, top + height);
    found->outer.OffsetRect(found->parent->outer.left + frame_width, found->parent->outer.top + caption_height);
    if (onMove)
        onMove(ObjectOf(*found));
}

void FakeLayoutPlatform::MoveDialog(CWnd & dialog, int left, int top, int width, int height)
{
    if (recording)
        Log("MoveDialog " + Name(dialog) + Numbers(left, top, width, height));
    SetOuter(dialog, CRect(left, top, left + width, top + height));
}

void FakeLayoutPlatform::Invalidate(HWND window)
{
    // As the system does nothing for a window that has ended.
    Window const * const found = Find(window);
    if (recording && found != nullptr)
        Log("Invalidate " + std::to_string(found->number));
}

void FakeLayoutPlatform::ReportAssertion(wchar_t const * expression, wchar_t const * source, unsigned int line)
{
    assertions.push_back({expression, source, line});
}
