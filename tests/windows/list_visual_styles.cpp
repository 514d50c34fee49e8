// Access to the visual styles. What is found stays for the process, so most of it is looked at from other processes.

#include <afxwin.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <type_traits>

#include "Bitmap.h"
#include "ChildProgram.h"
#include "list/VisualStyles.h"
#include "list_FakeVisualStyles.h"
#include "ScopedWindow.h"

#define FOR_EACH_FUNCTION(X)                                                                                           \
    X(OpenThemeData)                                                                                                   \
    X(CloseThemeData)                                                                                                  \
    X(DrawThemeBackground)                                                                                             \
    X(DrawThemeText)                                                                                                   \
    X(GetThemeBackgroundContentRect)                                                                                   \
    X(GetThemeBackgroundExtent)                                                                                        \
    X(GetThemePartSize)                                                                                                \
    X(GetThemeTextExtent)                                                                                              \
    X(GetThemeTextMetrics)                                                                                             \
    X(GetThemeBackgroundRegion)                                                                                        \
    X(HitTestThemeBackground)                                                                                          \
    X(DrawThemeEdge)                                                                                                   \
    X(DrawThemeIcon)                                                                                                   \
    X(IsThemePartDefined)                                                                                              \
    X(IsThemeBackgroundPartiallyTransparent)                                                                           \
    X(GetThemeColor)                                                                                                   \
    X(GetThemeMetric)                                                                                                  \
    X(GetThemeString)                                                                                                  \
    X(GetThemeBool)                                                                                                    \
    X(GetThemeInt)                                                                                                     \
    X(GetThemeEnumValue)                                                                                               \
    X(GetThemePosition)                                                                                                \
    X(GetThemeFont)                                                                                                    \
    X(GetThemeRect)                                                                                                    \
    X(GetThemeMargins)                                                                                                 \
    X(GetThemeIntList)                                                                                                 \
    X(GetThemePropertyOrigin)                                                                                          \
    X(SetWindowTheme)                                                                                                  \
    X(GetThemeFilename)                                                                                                \
    X(GetThemeSysColor)                                                                                                \
    X(GetThemeSysColorBrush)                                                                                           \
    X(GetThemeSysBool)                                                                                                 \
    X(GetThemeSysSize)                                                                                                 \
    X(GetThemeSysFont)                                                                                                 \
    X(GetThemeSysString)                                                                                               \
    X(GetThemeSysInt)                                                                                                  \
    X(IsThemeActive)                                                                                                   \
    X(IsAppThemed)                                                                                                     \
    X(GetWindowTheme)                                                                                                  \
    X(EnableThemeDialogTexture)                                                                                        \
    X(IsThemeDialogTextureEnabled)                                                                                     \
    X(GetThemeAppProperties)                                                                                           \
    X(SetThemeAppProperties)                                                                                           \
    X(GetCurrentThemeName)                                                                                             \
    X(GetThemeDocumentationProperty)                                                                                   \
    X(DrawThemeParentBackground)                                                                                       \
    X(EnableTheming)

namespace
{
namespace fake = tests::fake_visual_styles;

constexpr wchar_t missing_library[] = L"no_such_visual_styles.dll";
constexpr wchar_t other_library[] = L"version.dll";
constexpr int buffer_size = 255;

// Some platform headers lack a const that others have.
template <typename T> struct Plain
{
    using Type = T;
};
template <typename T> struct Plain<T const *>
{
    using Type = T *;
};

template <typename Result, typename... Arguments, typename PlatformResult, typename... PlatformArguments>
consteval bool SameSignature(Result (CVisualStyles::*)(Arguments...) const,
                             PlatformResult(WINAPI *)(PlatformArguments...))
{
    if constexpr (sizeof...(Arguments) != sizeof...(PlatformArguments))
        return false;
    else
    {
        return std::is_same_v<Result, PlatformResult> &&
               (std::is_same_v<typename Plain<Arguments>::Type, typename Plain<PlatformArguments>::Type> && ...);
    }
}

#define CHECK_SIGNATURE(name) static_assert(SameSignature(&CVisualStyles::name, decltype(&::name){}));
FOR_EACH_FUNCTION(CHECK_SIGNATURE)

/// Calls the member with zeros.
template <typename Result, typename... Arguments>
bool Fails(CVisualStyles const & styles, Result (CVisualStyles::*member)(Arguments...) const)
{
    if constexpr (std::is_void_v<Result>)
    {
        (styles.*member)(Arguments{}...);
        return true;
    }
    else if constexpr (std::is_same_v<Result, HRESULT>)
    {
        return (styles.*member)(Arguments{}...) == static_cast<HRESULT>(0x80004005);
    }
    else
    {
        return (styles.*member)(Arguments{}...) == Result{};
    }
}

std::wstring ProgramPath()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

DLLVERSIONINFO g_controlsVersion;

HRESULT CALLBACK ControlsVersion(DLLVERSIONINFO * version)
{
    version->dwMajorVersion = g_controlsVersion.dwMajorVersion;
    version->dwMinorVersion = g_controlsVersion.dwMinorVersion;
    return S_OK;
}

/// Gives the common controls of this process another version, for good: writes a jump over the function that tells it.
bool ChangeControlsVersion(DWORD major, DWORD minor)
{
    g_controlsVersion.dwMajorVersion = major;
    g_controlsVersion.dwMinorVersion = minor;
    HMODULE const library = ::LoadLibraryW(L"comctl32.dll");
    void * const function = reinterpret_cast<void *>(::GetProcAddress(library, "DllGetVersion"));
    // mov rax, address; jmp rax
    unsigned char jump[] = {0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0};
    auto const target = reinterpret_cast<std::uintptr_t>(&ControlsVersion);
    std::memcpy(jump + 2, &target, sizeof(target));
    DWORD protection;
    if (function == nullptr || !::VirtualProtect(function, sizeof(jump), PAGE_EXECUTE_READWRITE, &protection))
        return false;
    std::memcpy(function, jump, sizeof(jump));
    ::VirtualProtect(function, sizeof(jump), protection, &protection);
    return ::FlushInstructionCache(::GetCurrentProcess(), function, sizeof(jump)) != FALSE;
}

void ExpectSuccess(std::string const & name, std::wstring const & argument = {})
{
    tests::ChildProgram child(name, argument);
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), 0u) << child.ErrorText();
}

/// Every function twice, since the first call fills its slot.
int FunctionsThatDoNotFail(std::wstring const & library)
{
    CVisualStyles const styles(library.c_str());
    int failures = 0;
    for (int round = 0; round < 2; ++round)
    {
#define CALL_FUNCTION(name)                                                                                            \
    if (!Fails(styles, &CVisualStyles::name))                                                                          \
    {                                                                                                                  \
        std::fprintf(stderr, "%s\n", #name);                                                                           \
        ++failures;                                                                                                    \
    }
        FOR_EACH_FUNCTION(CALL_FUNCTION)
    }
    return failures;
}

CHILD_PROGRAM(VisualStylesWithoutFunctions)
{
    return FunctionsThatDoNotFail(argument);
}

CHILD_PROGRAM(VisualStylesLeaveOutputsAlone)
{
    CVisualStyles const styles(argument.c_str());
    COLORREF color = 0x123456;
    wchar_t text[] = L"unchanged";
    bool const failed = FAILED(styles.GetThemeColor(nullptr, 1, 1, 1, &color)) &&
                        FAILED(styles.GetCurrentThemeName(text, 9, text, 9, text, 9));
    return failed && color == 0x123456 && std::wstring(text) == L"unchanged" ? 0 : 1;
}

CHILD_PROGRAM(VisualStylesSlotsAreTheProcesss)
{
    CVisualStyles const without(argument.c_str());
    if (without.GetThemeSysColor(nullptr, COLOR_WINDOW) != 0)
        return 1;
    // The slot is filled, so the library that has the function comes too late.
    CVisualStyles const with;
    return ::GetSysColor(COLOR_WINDOW) != 0 && with.GetThemeSysColor(nullptr, COLOR_WINDOW) == 0 ? 0 : 2;
}

CHILD_PROGRAM(VisualStylesStyledPaintingWithoutLibrary)
{
    CVisualStyles const styles(argument.c_str());
    if (!ChangeControlsVersion(6, 0))
        return 9;
    return styles.IsStyledPaintingOn() == 0 && styles.IsStyledPaintingOn() == 0 ? 0 : 1;
}

CHILD_PROGRAM(VisualStylesNamedThemeIsNotStyled)
{
    CVisualStyles const styles(ProgramPath().c_str());
    if (!ChangeControlsVersion(6, 0))
        return 9;
    fake::g_result = S_FALSE;
    fake::g_colorScheme = L"NormalColor";
    fake::g_themed = TRUE;
    if (styles.IsStyledPaintingOn() != 0 || fake::g_calls != 1 || fake::g_themeSize != buffer_size ||
        fake::g_colorSize != buffer_size)
        return 1;
    fake::g_result = E_FAIL;
    return styles.IsStyledPaintingOn() == 0 && fake::g_calls == 1 ? 0 : 2;
}

CHILD_PROGRAM(VisualStylesOtherControlsAreNotStyled)
{
    CVisualStyles const styles(ProgramPath().c_str());
    size_t const point = argument.find(L'.');
    if (!ChangeControlsVersion(std::stoul(argument), std::stoul(argument.substr(point + 1))))
        return 9;
    fake::g_result = E_FAIL;
    fake::g_colorScheme = L"NormalColor";
    fake::g_themed = TRUE;
    if (styles.IsStyledPaintingOn() != 0)
        return 1;
    g_controlsVersion = {};
    g_controlsVersion.dwMajorVersion = 6;
    return styles.IsStyledPaintingOn() == 0 && fake::g_calls == 0 ? 0 : 2;
}

CHILD_PROGRAM(VisualStylesKnownColorSchemeIsStyled)
{
    CVisualStyles const styles(ProgramPath().c_str());
    if (!ChangeControlsVersion(6, 0))
        return 9;
    fake::g_result = E_FAIL;
    fake::g_colorScheme = argument.c_str();
    fake::g_themed = TRUE;
    if (styles.IsStyledPaintingOn() != 1)
        return 1;
    fake::g_result = S_OK;
    fake::g_themed = FALSE;
    return styles.IsStyledPaintingOn() == 1 && fake::g_calls == 1 ? 0 : 2;
}

CHILD_PROGRAM(VisualStylesOtherColorSchemeIsNotStyled)
{
    CVisualStyles const styles(ProgramPath().c_str());
    if (!ChangeControlsVersion(6, 0))
        return 9;
    fake::g_result = E_FAIL;
    fake::g_colorScheme = argument.c_str();
    fake::g_themed = TRUE;
    if (styles.IsStyledPaintingOn() != 0)
        return 1;
    fake::g_colorScheme = L"NormalColor";
    return styles.IsStyledPaintingOn() == 0 && fake::g_calls == 1 ? 0 : 2;
}

CHILD_PROGRAM(VisualStylesUnthemedApplicationIsStyledFromTheSecondQuestionOn)
{
    CVisualStyles const styles(ProgramPath().c_str());
    if (!ChangeControlsVersion(6, 0))
        return 9;
    fake::g_result = E_FAIL;
    fake::g_colorScheme = L"NormalColor";
    fake::g_themed = FALSE;
    if (styles.IsStyledPaintingOn() != 0)
        return 1;
    return styles.IsStyledPaintingOn() == 1 ? 0 : 2;
}

CHILD_PROGRAM(VisualStylesObjectWithoutLibraryIsNotStyledAtFirst)
{
    CVisualStyles const full(ProgramPath().c_str());
    if (!ChangeControlsVersion(6, 0))
        return 9;
    fake::g_result = E_FAIL;
    fake::g_colorScheme = L"NormalColor";
    fake::g_themed = TRUE;
    wchar_t theme[buffer_size];
    wchar_t color[buffer_size];
    // Both slots are filled from the full library; only the object that is asked has none.
    if (full.GetCurrentThemeName(theme, buffer_size, color, buffer_size, nullptr, 0) != E_FAIL || !full.IsAppThemed())
        return 1;
    CVisualStyles const empty(missing_library);
    if (empty.IsStyledPaintingOn() != 0)
        return 2;
    return empty.IsStyledPaintingOn() == 1 ? 0 : 3;
}

TEST(ListVisualStyles, MissingLibraryMakesEveryFunctionFail)
{
    ExpectSuccess("VisualStylesWithoutFunctions", missing_library);
}

TEST(ListVisualStyles, LibraryWithoutTheFunctionsMakesEveryFunctionFail)
{
    ExpectSuccess("VisualStylesWithoutFunctions", other_library);
}

TEST(ListVisualStyles, FallbacksWriteNothing)
{
    ExpectSuccess("VisualStylesLeaveOutputsAlone", missing_library);
}

TEST(ListVisualStyles, WhatAFunctionWasFoundToBeStaysForTheProcess)
{
    ExpectSuccess("VisualStylesSlotsAreTheProcesss", missing_library);
}

TEST(ListVisualStyles, StyledPaintingIsOffWithoutTheLibrary)
{
    ExpectSuccess("VisualStylesStyledPaintingWithoutLibrary", missing_library);
}

TEST(ListVisualStyles, StyledPaintingIsOffUnlessTheCommonControlsAreOfVersionSix)
{
    for (wchar_t const * version : {L"5.82", L"5.0", L"6.10", L"7.0"})
    {
        ExpectSuccess("VisualStylesOtherControlsAreNotStyled", version);
    }
}

TEST(ListVisualStyles, StyledPaintingIsOffForAThemeThatHasAName)
{
    ExpectSuccess("VisualStylesNamedThemeIsNotStyled");
}

TEST(ListVisualStyles, StyledPaintingIsOnForThreeColorSchemesInAnyCase)
{
    for (wchar_t const * scheme : {L"normalcolor", L"NormalColor", L"HomeStead", L"METALLIC"})
    {
        ExpectSuccess("VisualStylesKnownColorSchemeIsStyled", scheme);
    }
}

TEST(ListVisualStyles, StyledPaintingIsOffForOtherColorSchemes)
{
    for (wchar_t const * scheme : {L"", L"Blue", L"normalcolor2", L"normal"})
    {
        ExpectSuccess("VisualStylesOtherColorSchemeIsNotStyled", scheme);
    }
}

TEST(ListVisualStyles, StyledPaintingTurnsOnAtTheSecondQuestionOfAnUnthemedApplication)
{
    ExpectSuccess("VisualStylesUnthemedApplicationIsStyledFromTheSecondQuestionOn");
}

TEST(ListVisualStyles, StyledPaintingTurnsOnAtTheSecondQuestionOfAnObjectWithoutLibrary)
{
    ExpectSuccess("VisualStylesObjectWithoutLibraryIsNotStyledAtFirst");
}

TEST(ListVisualStyles, ThePlatformHasEveryFunction)
{
    HMODULE const library = ::LoadLibraryW(L"UxTheme.dll");
    ASSERT_NE(library, nullptr);
#define CHECK_EXPORT(name) EXPECT_NE(::GetProcAddress(library, #name), nullptr) << #name;
    FOR_EACH_FUNCTION(CHECK_EXPORT)
    ::FreeLibrary(library);
}

TEST(ListVisualStyles, TheModuleLoadsTheLibraryAtItsStart)
{
    EXPECT_NE(::GetModuleHandleW(L"UxTheme.dll"), nullptr);
}

TEST(ListVisualStyles, TheLibraryIsReleasedWithTheObject)
{
    constexpr wchar_t rarely_used[] = L"avifil32.dll";
    ASSERT_EQ(::GetModuleHandleW(rarely_used), nullptr);
    {
        CVisualStyles const styles(rarely_used);
        EXPECT_NE(::GetModuleHandleW(rarely_used), nullptr);
    }
    EXPECT_EQ(::GetModuleHandleW(rarely_used), nullptr);
}

TEST(ListVisualStyles, CallsReachThePlatform)
{
    CVisualStyles const styles;
    EXPECT_EQ(styles.IsThemeActive(), ::IsThemeActive());
    EXPECT_EQ(styles.GetThemeSysColor(nullptr, COLOR_WINDOW), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(styles.GetThemeSysSize(nullptr, SM_CXVSCROLL), ::GetSystemMetrics(SM_CXVSCROLL));
    DWORD const properties = styles.GetThemeAppProperties();
    EXPECT_NE(properties, 0u);
    styles.SetThemeAppProperties(STAP_ALLOW_NONCLIENT);
    EXPECT_EQ(styles.GetThemeAppProperties(), static_cast<DWORD>(STAP_ALLOW_NONCLIENT));
    styles.SetThemeAppProperties(properties);
}

TEST(ListVisualStyles, AThemeIsOpenedDrawnAndClosed)
{
    CVisualStyles const styles;
    ASSERT_TRUE(styles.IsThemeActive());
    tests::ScopedWindow window(CRect(0, 0, 100, 100), WS_OVERLAPPEDWINDOW);
    HTHEME const theme = styles.OpenThemeData(window.m_hWnd, L"COMBOBOX");
    ASSERT_NE(theme, nullptr);
    EXPECT_EQ(styles.GetWindowTheme(window.m_hWnd), theme);
    EXPECT_TRUE(styles.IsThemePartDefined(theme, 1, 0));

    constexpr COLORREF background = RGB(1, 2, 3);
    tests::Canvas canvas(40, 30, background);
    CRect const rect(10, 5, 30, 25);
    EXPECT_EQ(styles.DrawThemeBackground(theme, canvas.Dc(), 1, 1, rect, nullptr), S_OK);
    CRect const painted = canvas.BoundsOfOther(background);
    EXPECT_FALSE(painted.IsRectEmpty());
    EXPECT_EQ(painted | rect, rect);

    EXPECT_EQ(styles.CloseThemeData(theme), S_OK);
}

TEST(ListVisualStyles, AWrongThemeGivesThePlatformsFailure)
{
    CVisualStyles const styles;
    COLORREF color = 0;
    HRESULT const result = styles.GetThemeColor(nullptr, 1, 1, 3801, &color);
    EXPECT_EQ(result, E_HANDLE);
}

TEST(ListVisualStyles, StyledPaintingIsOffOnThisPlatform)
{
    CVisualStyles const styles;
    EXPECT_EQ(styles.IsStyledPaintingOn(), 0);
    EXPECT_EQ(styles.IsStyledPaintingOn(), 0);
}
} // namespace
