// No control of any dialog is cut off or lies over another one, in any language and at any resolution of the screen.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "logic/Texts.h"

namespace
{

// Of a dialog template, by its documented form.
constexpr std::size_t style_offset = 12;
constexpr std::size_t menu_offset = 26;

constexpr int smallest_width = 1024;
constexpr int smallest_height = 600;

// What a sheet adds to its pages' height, in dialog units: title, tabs, buttons and gaps.
constexpr int sheet_height = 66;

std::size_t BehindName(std::vector<unsigned char> const & dialog, std::size_t place)
{
    auto const word = [&](std::size_t at) { return static_cast<WORD>(dialog[at] | dialog[at + 1] << 8); };
    if (word(place) == 0xFFFF)
    {
        return place + 4;
    }
    while (word(place) != 0)
    {
        place += 2;
    }
    return place + 2;
}

/// The dialog's template with a font of that many points, which has the size that the usual one has at a higher
/// resolution, and without the style of a page.
std::vector<unsigned char> Template(UINT id, WORD language, WORD points)
{
    HINSTANCE const module = AfxGetInstanceHandle();
    HRSRC const resource = ::FindResourceExW(module, RT_DIALOG, MAKEINTRESOURCEW(id), language);
    if (resource == nullptr)
    {
        return {};
    }
    auto const * const bytes = static_cast<unsigned char const *>(::LockResource(::LoadResource(module, resource)));
    std::vector<unsigned char> dialog(bytes, bytes + ::SizeofResource(module, resource));
    DWORD style = 0;
    std::memcpy(&style, &dialog[style_offset], sizeof style);
    style = (style & ~static_cast<DWORD>(WS_CHILD)) | WS_POPUP;
    std::memcpy(&dialog[style_offset], &style, sizeof style);
    std::size_t const font = BehindName(dialog, BehindName(dialog, BehindName(dialog, menu_offset)));
    std::memcpy(&dialog[font], &points, sizeof points);
    return dialog;
}

bool IsPage(UINT id, WORD language)
{
    HINSTANCE const module = AfxGetInstanceHandle();
    HRSRC const resource = ::FindResourceExW(module, RT_DIALOG, MAKEINTRESOURCEW(id), language);
    auto const * const bytes = static_cast<unsigned char const *>(::LockResource(::LoadResource(module, resource)));
    DWORD style = 0;
    std::memcpy(&style, bytes + style_offset, sizeof style);
    return (style & WS_CHILD) != 0;
}

std::vector<UINT> Dialogs()
{
    std::vector<UINT> ids;
    ::EnumResourceNamesW(
        AfxGetInstanceHandle(), RT_DIALOG,
        [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR to) -> BOOL {
            if (IS_INTRESOURCE(name))
            {
                reinterpret_cast<std::vector<UINT> *>(to)->push_back(
                    static_cast<UINT>(reinterpret_cast<ULONG_PTR>(name)));
            }
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&ids));
    return ids;
}

struct Control
{
    HWND window;
    CRect place;
    std::wstring text;
    std::wstring kind;
};

std::vector<Control> Controls(HWND dialog)
{
    std::vector<Control> controls;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        Control control{child, {}, {}, {}};
        ::GetWindowRect(child, &control.place);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&control.place), 2);
        wchar_t text[500] = L"";
        ::GetWindowTextW(child, text, 500);
        control.text = text;
        ::GetClassNameW(child, text, 500);
        control.kind = text;
        controls.push_back(control);
    }
    return controls;
}

/// The size that a control's text takes in its width.
CSize TextSize(Control const & control, int width)
{
    CClientDC dc(CWnd::FromHandle(control.window));
    HGDIOBJ const former =
        ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(control.window, WM_GETFONT, 0, 0)));
    CRect rect(0, 0, width, 0);
    ::DrawTextW(dc, control.text.c_str(), -1, &rect, DT_CALCRECT | (width > 0 ? DT_WORDBREAK : DT_SINGLELINE));
    ::SelectObject(dc, former);
    return rect.Size();
}

/// What is cut off of a control; empty if nothing is.
std::string Fault(Control const & control, int points)
{
    if (control.kind == L"Button")
    {
        bool const isBox = (::GetWindowLongW(control.window, GWL_STYLE) & BS_TYPEMASK) >= BS_CHECKBOX;
        int const extra = (isBox ? 20 : 6) * points / 8;
        long const needed = TextSize(control, 0).cx + extra;
        return needed > control.place.Width() ? "wants a width of " + std::to_string(needed) : "";
    }
    long const style = ::GetWindowLongW(control.window, GWL_STYLE) & SS_TYPEMASK;
    if (control.kind == L"Static" && (style == SS_LEFT || style == SS_RIGHT || style == SS_CENTER))
    {
        CSize const needed = TextSize(control, control.place.Width());
        if (needed.cx > control.place.Width())
        {
            return "wants a width of " + std::to_string(needed.cx);
        }
        return needed.cy > control.place.Height() ? "wants a height of " + std::to_string(needed.cy) : "";
    }
    return {};
}

void ExpectFits(HWND dialog, std::string const & name, int points)
{
    CRect client;
    ::GetClientRect(dialog, &client);
    std::vector<Control> const controls = Controls(dialog);
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        Control const & control = controls[i];
        CString const label(control.text.c_str());
        auto const which = name + ", control " + std::to_string(i) + " \"" + std::string(CStringA(label)) + "\" of " +
                           std::to_string(control.place.Width()) + " x " + std::to_string(control.place.Height());
        CRect common;
        EXPECT_TRUE(common.IntersectRect(control.place, client) && common == control.place) << which << " leaves it";
        EXPECT_EQ(control.text.empty() ? "" : Fault(control, points), "") << which;
        for (std::size_t other = i + 1; other < controls.size(); ++other)
        {
            EXPECT_FALSE(common.IntersectRect(control.place, controls[other].place)) << which << " lies over " << other;
        }
    }
}

} // namespace

TEST(WorkbenchDialogFit, NothingIsCutOffOrCoveredInAnyLanguageAt100To200Percent)
{
    std::vector<UINT> const dialogs = Dialogs();
    ASSERT_GE(dialogs.size(), 12U);
    for (unsigned int const id : dialogs)
    {
        for (workbench::LanguageFacts const & language : workbench::language_facts)
        {
            for (WORD const points : {8, 12, 16})
            {
                auto const name = "dialog " + std::to_string(id) + ", language " + std::to_string(language.id) + ", " +
                                  std::to_string(points * 100 / 8) + " %";
                std::vector<unsigned char> const dialog = Template(id, language.id, points);
                ASSERT_FALSE(dialog.empty()) << name;
                auto const window = ::CreateDialogIndirectParamW(
                    AfxGetInstanceHandle(), reinterpret_cast<DLGTEMPLATE const *>(dialog.data()), nullptr,
                    [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
                ASSERT_NE(window, nullptr) << name;
                ExpectFits(window, name, points);
                CRect place;
                ::GetWindowRect(window, &place);
                CRect extra(0, 0, 0, IsPage(id, language.id) ? sheet_height : 0);
                ::MapDialogRect(window, &extra);
                EXPECT_LE(place.Width(), smallest_width) << name;
                EXPECT_LE(place.Height() + extra.Height(), smallest_height) << name;
                ::DestroyWindow(window);
            }
        }
    }
}
