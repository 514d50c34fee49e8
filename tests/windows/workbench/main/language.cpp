// The choice of a language.

#include "MainWindowTest.h"

#include <functional>
#include <vector>

#include "LanguageDialog.h"
#include "logic/Texts.h"

namespace
{

std::vector<std::wstring> Items(HWND list)
{
    std::vector<std::wstring> items;
    for (WPARAM item = 0; item < static_cast<WPARAM>(::SendMessageW(list, CB_GETCOUNT, 0, 0)); ++item)
    {
        wchar_t text[100] = L"";
        ::SendMessageW(list, CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(text));
        items.emplace_back(text);
    }
    return items;
}

std::wstring TextOf(HWND window)
{
    wchar_t text[200] = L"";
    ::GetWindowTextW(window, text, 200);
    return text;
}

class WorkbenchLanguage : public tests::MainWindowTest
{
protected:
    void TearDown() override
    {
        workbench::UseLanguage(1033);
        ::SetThreadLocale(m_locale);
        ::SetThreadUILanguage(0);
        MainWindowTest::TearDown();
    }

    static HWND List(CWnd & dialog) { return ::FindWindowExW(dialog.m_hWnd, nullptr, L"ComboBox", nullptr); }

    /// Runs the dialog. steps: done one after the other once it is open; the last one has to end it.
    static INT_PTR Run(CLanguageDialog & dialog, std::vector<std::function<void()>> const & steps)
    {
        tests::LaterActions later;
        for (auto const & step : steps)
        {
            later.Add(step, [&] { return dialog.GetSafeHwnd() != nullptr && dialog.IsWindowVisible(); });
        }
        auto const result = dialog.DoModal();
        EXPECT_FALSE(later.Failed());
        return result;
    }

private:
    LCID const m_locale = ::GetThreadLocale();
};

} // namespace

TEST_F(WorkbenchLanguage, TheChoiceHasTheLanguagesOfTheWorkbenchAndNoOthers)
{
    CLanguageDialog dialog(1031, *m_window);
    std::vector<std::wstring> items;
    std::wstring chosen;
    auto const result = Run(dialog, {[&] {
                                items = Items(List(dialog));
                                chosen = TextOf(List(dialog));
                                dialog.PostMessage(WM_COMMAND, IDCANCEL);
                            }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(items.size(), 1 + workbench::language_count);
    EXPECT_EQ(items.front(), L"(Windows)");
    for (auto const & facts : workbench::language_facts)
    {
        EXPECT_NE(std::find(items.begin(), items.end(), facts.name), items.end()) << facts.id;
    }
    EXPECT_EQ(chosen, L"Deutsch");
}

TEST_F(WorkbenchLanguage, TheChoiceSpeaksThePresentLanguage)
{
    for (auto const & [id, title] :
         {std::pair{1033, L"Choose Display Language"}, {1031, L"Anzeigesprache w\u00E4hlen"}, {3082, L"Elegir idioma"}})
    {
        workbench::UseLanguage(static_cast<unsigned short>(id));
        CLanguageDialog dialog(static_cast<unsigned short>(id), *m_window);
        std::wstring shown;
        Run(dialog, {[&] {
                shown = TextOf(dialog);
                dialog.PostMessage(WM_COMMAND, IDCANCEL);
            }});
        EXPECT_EQ(shown, title);
    }
}

TEST_F(WorkbenchLanguage, ATypedNameCountsAndAWrongOneIsToldOf)
{
    CLanguageDialog dialog(1033, *m_window);
    auto stillOpen = false;
    auto const type = [&](wchar_t const * text) {
        ::SendMessageW(List(dialog), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        ::SetWindowTextW(List(dialog), text);
        dialog.SendMessage(WM_COMMAND, IDOK);
    };
    auto const result = Run(dialog, {[&] { type(L"Klingon"); },
                                     [&] {
                                         stillOpen = true;
                                         type(L"Espa\u00F1ol");
                                     }});
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Choose one of the languages in the list."});
    EXPECT_TRUE(dialog.SpracheGeaendert());
    EXPECT_EQ(dialog.SprachId(), 3082);
}

TEST_F(WorkbenchLanguage, AMenuOpenedInSpanishIsSpanish)
{
    workbench::UseLanguage(3082);
    CloseWindow();
    OpenWindow();
    CString text;
    m_window->GetMenu()->GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, L"&Archivo");
    EXPECT_EQ(Status().substr(0, 13), L"0 grabaciones");
}
