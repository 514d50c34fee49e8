#include "access/AccessObject.h"

#include <objbase.h>
#include <oleacc.h>

#include <atomic>
#include <new>
#include <utility>

using accessible::Element;

static_assert(static_cast<long>(accessible::Role::row) == ROLE_SYSTEM_LISTITEM);
static_assert(static_cast<long>(accessible::Role::list) == ROLE_SYSTEM_LIST);
static_assert(static_cast<long>(accessible::Role::grouping) == ROLE_SYSTEM_GROUPING);
static_assert(static_cast<long>(accessible::Role::column_header) == ROLE_SYSTEM_COLUMNHEADER);
static_assert(static_cast<long>(accessible::Role::cell) == ROLE_SYSTEM_CELL);
static_assert(static_cast<long>(accessible::Role::link) == ROLE_SYSTEM_LINK);
static_assert(static_cast<long>(accessible::Role::graphic) == ROLE_SYSTEM_GRAPHIC);
static_assert(static_cast<long>(accessible::Role::label) == ROLE_SYSTEM_STATICTEXT);
static_assert(static_cast<long>(accessible::Role::text) == ROLE_SYSTEM_TEXT);
static_assert(static_cast<long>(accessible::Role::button) == ROLE_SYSTEM_PUSHBUTTON);
static_assert(static_cast<long>(accessible::Role::check_box) == ROLE_SYSTEM_CHECKBUTTON);
static_assert(static_cast<long>(accessible::Role::radio_button) == ROLE_SYSTEM_RADIOBUTTON);
static_assert(static_cast<long>(accessible::Role::drop_down) == ROLE_SYSTEM_COMBOBOX);
static_assert(static_cast<long>(accessible::Role::progress) == ROLE_SYSTEM_PROGRESSBAR);
static_assert(static_cast<long>(accessible::Role::slider) == ROLE_SYSTEM_SLIDER);
static_assert(accessible::state::unavailable == STATE_SYSTEM_UNAVAILABLE &&
              accessible::state::selected == STATE_SYSTEM_SELECTED);
static_assert(accessible::state::focused == STATE_SYSTEM_FOCUSED && accessible::state::checked == STATE_SYSTEM_CHECKED);
static_assert(accessible::state::pressed == STATE_SYSTEM_PRESSED &&
              accessible::state::expanded == STATE_SYSTEM_EXPANDED &&
              accessible::state::collapsed == STATE_SYSTEM_COLLAPSED);
static_assert(accessible::state::mixed == STATE_SYSTEM_MIXED && accessible::state::read_only == STATE_SYSTEM_READONLY);
static_assert(accessible::state::offscreen == STATE_SYSTEM_OFFSCREEN &&
              accessible::state::focusable == STATE_SYSTEM_FOCUSABLE);
static_assert(accessible::state::selectable == STATE_SYSTEM_SELECTABLE &&
              accessible::state::linked == STATE_SYSTEM_LINKED);
static_assert(accessible::state::multi_selectable == STATE_SYSTEM_MULTISELECTABLE);
static_assert(accessible::state::has_popup == STATE_SYSTEM_HASPOPUP &&
              accessible::state::invisible == STATE_SYSTEM_INVISIBLE);

namespace
{
/// What COM is told where the control's code threw.
template <class Call> HRESULT Guarded(Call && call) noexcept
{
    try
    {
        return call();
    }
    catch (std::bad_alloc const &)
    {
        return E_OUTOFMEMORY;
    }
    catch (...)
    {
        return E_UNEXPECTED;
    }
}

HRESULT GiveText(std::wstring const & text, BSTR * result)
{
    if (text.empty())
        return S_FALSE;
    *result = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *result != nullptr ? S_OK : E_OUTOFMEMORY;
}

std::optional<accessible::Direction> DirectionOf(long number)
{
    switch (number)
    {
    case NAVDIR_UP:
        return accessible::Direction::up;
    case NAVDIR_DOWN:
        return accessible::Direction::down;
    case NAVDIR_LEFT:
        return accessible::Direction::left;
    case NAVDIR_RIGHT:
        return accessible::Direction::right;
    case NAVDIR_NEXT:
        return accessible::Direction::next;
    case NAVDIR_PREVIOUS:
        return accessible::Direction::previous;
    case NAVDIR_FIRSTCHILD:
        return accessible::Direction::first_child;
    case NAVDIR_LASTCHILD:
        return accessible::Direction::last_child;
    default:
        return {};
    }
}

/// Whether COM hands this thread's objects to other programs so that they are called by this thread. Makes COM ready
/// where nobody has; it stays so as long as the thread lives.
bool ComCallsThisThread()
{
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    HRESULT const known = ::CoGetApartmentType(&type, &qualifier);
    if (known == CO_E_NOTINITIALIZED || (known == S_OK && qualifier == APTTYPEQUALIFIER_IMPLICIT_MTA))
        return SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    return known == S_OK && type != APTTYPE_MTA;
}

/// An object that ends with the last reference to it. It begins with one, its maker's.
template <class Interface, class... Bases> class Counted : public Interface
{
public:
    Counted(Counted const &) = delete;
    Counted & operator=(Counted const &) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void ** result) override
    {
        if (result == nullptr)
            return E_POINTER;
        *result = nullptr;
        if (!::IsEqualIID(id, __uuidof(IUnknown)) && !::IsEqualIID(id, __uuidof(Interface)) &&
            !(::IsEqualIID(id, __uuidof(Bases)) || ...))
            return E_NOINTERFACE;
        *result = static_cast<Interface *>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        ULONG const left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    Counted() = default;
    virtual ~Counted() = default;

private:
    std::atomic<ULONG> m_references = 1;
};

/// Elements one after the other.
class ElementList;

/// One element. Children are objects of their own, so that each can be kept.
class AccessObject final : public Counted<IAccessible, IDispatch>
{
public:
    AccessObject(std::shared_ptr<AccessTarget> target, Element element)
        : m_target(std::move(target)),
          m_element(element)
    {
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT * count) override
    {
        if (count == nullptr)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo **) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR *, UINT, LCID, DISPID *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS *, VARIANT *, EXCEPINFO *, UINT *) override
    {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch ** parent) override
    {
        if (parent == nullptr)
            return E_POINTER;
        *parent = nullptr;
        return Asked([&] {
            if (m_element.IsControl())
            {
                return ::AccessibleObjectFromWindow(m_target->Window(), static_cast<DWORD>(OBJID_WINDOW),
                                                    __uuidof(IDispatch), reinterpret_cast<void **>(parent));
            }
            *parent = Object(m_element.IsCell() ? Element{m_element.row, -1} : Element{});
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long * count) override
    {
        if (count == nullptr)
            return E_POINTER;
        *count = 0;
        return Asked([&] {
            *count = m_target->ChildCount(m_element) + static_cast<long>(Windows().size());
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT which, IDispatch ** child) override
    {
        if (child == nullptr)
            return E_POINTER;
        *child = nullptr;
        return Asked([&] {
            std::optional<Element> const element = Named(which);
            if (!element)
                return GiveWindow(NamedWindow(which), child);
            *child = Object(*element);
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT which, BSTR * name) override
    {
        return Text(which, name, &accessible::Description::name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT which, BSTR * value) override
    {
        return Text(which, value, &accessible::Description::value);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT which, BSTR * action) override
    {
        return Text(which, action, &accessible::Description::action);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT which, VARIANT * role) override
    {
        return Number(which, role,
                      [](accessible::Description const & described) { return static_cast<long>(described.role); });
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT which, VARIANT * states) override
    {
        return Number(which, states, [](accessible::Description const & described) { return described.states; });
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT, BSTR * text) override { return NoText(text); }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR * text) override { return NoText(text); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR * file, VARIANT, long *) override { return NoText(file); }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT which, BSTR * text) override
    {
        return Text(which, text, &accessible::Description::shortcut);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT * focus) override
    {
        if (focus == nullptr)
            return E_POINTER;
        focus->vt = VT_EMPTY;
        return Asked([&] {
            if ((m_target->Describe({}).states & accessible::state::focused) == 0 || !m_target->IsThere())
                return S_FALSE;
            return Give(m_target->Focused(), focus);
        });
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT * selection) override;
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT which) override
    {
        return Asked([&] {
            std::optional<Element> const element = Named(which);
            if (!element)
                return E_INVALIDARG;
            return m_target->Select(*element, flags) ? S_OK : DISP_E_MEMBERNOTFOUND;
        });
    }
    HRESULT STDMETHODCALLTYPE accLocation(long * left, long * top, long * width, long * height, VARIANT which) override
    {
        if (left == nullptr || top == nullptr || width == nullptr || height == nullptr)
            return E_POINTER;
        *left = *top = *width = *height = 0;
        return Asked([&] {
            std::optional<Element> const element = Named(which);
            if (!element)
                return E_INVALIDARG;
            std::optional<CRect> const rect = m_target->RectOf(*element);
            if (!rect)
                return S_FALSE;
            *left = rect->left;
            *top = rect->top;
            *width = rect->Width();
            *height = rect->Height();
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT which, VARIANT * to) override
    {
        if (to == nullptr)
            return E_POINTER;
        to->vt = VT_EMPTY;
        return Asked([&] {
            std::optional<Element> const from = Named(which);
            std::optional<accessible::Direction> const way = DirectionOf(direction);
            if (!from || !way)
                return E_INVALIDARG;
            std::optional<Element> const found = m_target->Navigate(*from, *way);
            auto const windows = from->IsControl() ? Windows() : std::vector<HWND>();
            bool const first = *way == accessible::Direction::first_child && !found;
            if (!windows.empty() && (first || *way == accessible::Direction::last_child))
                return GiveWindow(first ? windows.front() : windows.back(), to);
            return found ? Give(*found, to) : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT * hit) override
    {
        if (hit == nullptr)
            return E_POINTER;
        hit->vt = VT_EMPTY;
        return Asked([&] {
            for (HWND const window : Windows())
            {
                CRect rect;
                if (::IsWindowVisible(window) && ::GetWindowRect(window, &rect) && rect.PtInRect(CPoint(x, y)))
                    return GiveWindow(window, hit);
            }
            std::optional<Element> const found = m_target->ElementAt(CPoint(x, y));
            return found ? Give(*found, hit) : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT which) override
    {
        return Asked([&] {
            std::optional<Element> const element = Named(which);
            if (!element)
                return E_INVALIDARG;
            return m_target->Act(*element) ? S_OK : DISP_E_MEMBERNOTFOUND;
        });
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~AccessObject() override = default;

    IAccessible * Object(Element element) const { return new AccessObject(m_target, element); }

    /// call() while the control and the element are there, and this object whatever the control's code releases.
    template <class Call> HRESULT Asked(Call && call) noexcept
    {
        AddRef();
        HRESULT const result = Guarded([&]() -> HRESULT {
            if (!m_target->IsThere() || !m_target->Exists(m_element))
                return CO_E_OBJNOTCONNECTED;
            return call();
        });
        Release();
        return result;
    }
    /// The element that a call is about: this one or a child of it; nothing if there is none.
    std::optional<Element> Named(VARIANT const & which) const
    {
        if (which.vt != VT_I4)
            return {};
        if (which.lVal == CHILDID_SELF)
            return m_element;
        // The control's own object knows all elements by their numbers, a row its cells by their places.
        Element const named = m_element.IsControl() ? accessible::ElementOf(which.lVal)
                              : m_element.IsRow() && which.lVal > 0
                                  ? Element{m_element.row, static_cast<int>(which.lVal - 1)}
                                  : Element{};
        if (named.IsControl() || !m_target->Exists(named))
            return {};
        return named;
    }
    /// The windows that are children of this element.
    std::vector<HWND> Windows() const
    {
        return m_element.IsControl() && m_target->IsThere() ? m_target->ChildWindows() : std::vector<HWND>();
    }
    /// They are numbered behind the control's own elements.
    HWND NamedWindow(VARIANT const & which) const
    {
        std::vector<HWND> const windows = Windows();
        long const place = which.vt == VT_I4 && !windows.empty() ? which.lVal - m_target->ChildCount(m_element) : 0;
        return place > 0 && place <= static_cast<long>(windows.size()) ? windows[static_cast<std::size_t>(place - 1)]
                                                                       : nullptr;
    }
    static HRESULT GiveWindow(HWND window, IDispatch ** result)
    {
        if (window == nullptr)
            return E_INVALIDARG;
        return ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch),
                                            reinterpret_cast<void **>(result));
    }
    static HRESULT GiveWindow(HWND window, VARIANT * result)
    {
        result->pdispVal = nullptr;
        HRESULT const answer = GiveWindow(window, &result->pdispVal);
        if (answer == S_OK)
            result->vt = VT_DISPATCH;
        return answer;
    }
    HRESULT Give(Element element, VARIANT * result) const
    {
        if (element == m_element)
        {
            result->vt = VT_I4;
            result->lVal = CHILDID_SELF;
            return S_OK;
        }
        result->pdispVal = Object(element);
        result->vt = VT_DISPATCH;
        return S_OK;
    }
    HRESULT Text(VARIANT const & which, BSTR * result, std::wstring accessible::Description::*part)
    {
        if (result == nullptr)
            return E_POINTER;
        *result = nullptr;
        return Asked([&] {
            std::optional<Element> const element = Named(which);
            return element ? GiveText(m_target->Describe(*element).*part, result) : E_INVALIDARG;
        });
    }
    template <class Part> HRESULT Number(VARIANT const & which, VARIANT * result, Part && part)
    {
        if (result == nullptr)
            return E_POINTER;
        result->vt = VT_EMPTY;
        return Asked([&] {
            std::optional<Element> const element = Named(which);
            if (!element)
                return E_INVALIDARG;
            result->lVal = part(m_target->Describe(*element));
            result->vt = VT_I4;
            return S_OK;
        });
    }
    HRESULT NoText(BSTR * result)
    {
        if (result == nullptr)
            return E_POINTER;
        *result = nullptr;
        return Asked([] { return S_FALSE; });
    }

    std::shared_ptr<AccessTarget> m_target;
    Element m_element;

    friend class ElementList;
};

/// Several selected elements, one after the other.
class ElementList final : public Counted<IEnumVARIANT>
{
public:
    /// next: the one given next; nothing at the end.
    ElementList(std::shared_ptr<AccessTarget> target, std::optional<Element> next)
        : m_target(std::move(target)),
          m_next(next)
    {
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT * results, ULONG * given) override
    {
        if (results == nullptr)
            return E_POINTER;
        ULONG count = 0;
        HRESULT const result = Guarded([&]() -> HRESULT {
            for (; count < wanted && Going(); ++count)
            {
                results[count].pdispVal = new AccessObject(m_target, *m_next);
                results[count].vt = VT_DISPATCH;
                m_next = m_target->NextSelected(*m_next);
            }
            return count == wanted ? S_OK : S_FALSE;
        });
        if (given != nullptr)
            *given = count;
        return result;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override
    {
        return Guarded([&]() -> HRESULT {
            for (; count > 0 && Going(); --count)
                m_next = m_target->NextSelected(*m_next);
            return count == 0 ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE Reset() override
    {
        return Guarded([&]() -> HRESULT {
            m_next = m_target->IsThere() ? m_target->NextSelected({}) : std::nullopt;
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT ** copy) override
    {
        if (copy == nullptr)
            return E_POINTER;
        *copy = nullptr;
        return Guarded([&]() -> HRESULT {
            *copy = new ElementList(m_target, m_next);
            return S_OK;
        });
    }

private:
    ~ElementList() override = default;

    /// Whether there is one to be given.
    bool Going() const { return m_next && m_target->IsThere(); }

    std::shared_ptr<AccessTarget> m_target;
    std::optional<Element> m_next;
};

HRESULT STDMETHODCALLTYPE AccessObject::get_accSelection(VARIANT * selection)
{
    if (selection == nullptr)
        return E_POINTER;
    selection->vt = VT_EMPTY;
    return Asked([&]() -> HRESULT {
        if (!m_element.IsControl())
            return S_FALSE;
        std::optional<Element> const first = m_target->NextSelected({});
        if (!first)
            return S_FALSE;
        if (!m_target->IsThere() || !m_target->NextSelected(*first))
            return Give(*first, selection);
        selection->punkVal = new ElementList(m_target, first);
        selection->vt = VT_UNKNOWN;
        return S_OK;
    });
}
} // namespace

bool AccessTarget::Select(Element element, long flags)
{
    if (!element.IsControl() || flags != SELFLAG_TAKEFOCUS)
        return false;
    ::SetFocus(Window());
    return true;
}

bool AsksForControl(UINT message, LPARAM lParam)
{
    // Only the low half is certain.
    return message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT;
}

LRESULT AnswerWithObject(std::shared_ptr<AccessTarget> const & target, WPARAM flags)
{
    IAccessible * object = nullptr;
    if (!ComCallsThisThread() || FAILED(Guarded([&]() -> HRESULT {
            object = new AccessObject(target, {});
            return S_OK;
        })))
        return 0;
    LRESULT const answer = ::LresultFromObject(__uuidof(IAccessible), flags, object);
    object->Release();
    return answer > 0 ? answer : 0;
}

void TellOfEvent(DWORD event, HWND window, Element element)
{
    if (::IsWinEventHookInstalled(event))
        ::NotifyWinEvent(event, window, OBJID_CLIENT, accessible::NumberOf(element));
}
