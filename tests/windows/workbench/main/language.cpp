// The choice of a language.

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "LanguageDialog.h"
#include "logic/Texts.h"
#include "MainWindowTest.h"
#include "RecordingCells.h"

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
        INT_PTR const result = dialog.DoModal();
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
    INT_PTR const result = Run(dialog, {[&] {
                                   items = Items(List(dialog));
                                   chosen = TextOf(List(dialog));
                                   dialog.PostMessage(WM_COMMAND, IDCANCEL);
                               }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(items.size(), 1 + workbench::language_count);
    EXPECT_EQ(items.front(), L"(Windows)");
    for (workbench::LanguageFacts const & facts : workbench::language_facts)
    {
        EXPECT_NE(std::find(items.begin(), items.end(), facts.name), items.end()) << facts.id;
    }
    EXPECT_EQ(chosen, L"Deutsch");
}

TEST_F(WorkbenchLanguage, TheChoiceSpeaksThePresentLanguage)
{
    std::set<std::wstring> titles;
    for (auto const & facts : workbench::language_facts)
    {
        workbench::UseLanguage(facts.id);
        CLanguageDialog dialog(facts.id, *m_window);
        std::wstring shown;
        Run(dialog, {[&] {
                shown = TextOf(dialog);
                dialog.PostMessage(WM_COMMAND, IDCANCEL);
            }});
        EXPECT_EQ(shown, workbench::Text(L"Choose Display Language")) << facts.id;
        titles.insert(shown);
    }
    EXPECT_EQ(titles.size(), workbench::language_count);
    EXPECT_TRUE(titles.contains(L"Choose Display Language"));
    EXPECT_TRUE(titles.contains(L"Anzeigesprache w\u00E4hlen"));
}

TEST_F(WorkbenchLanguage, ATypedNameCountsAndAWrongOneIsToldOf)
{
    CLanguageDialog dialog(1033, *m_window);
    bool stillOpen = false;
    auto const type = [&](wchar_t const * text) {
        ::SendMessageW(List(dialog), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        ::SetWindowTextW(List(dialog), text);
        dialog.SendMessage(WM_COMMAND, IDOK);
    };
    INT_PTR const result = Run(dialog, {[&] { type(L"Klingon"); },
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

TEST_F(WorkbenchLanguage, TypedLettersChooseTheFirstThatBeginsWithThem)
{
    CLanguageDialog dialog(1033, *m_window);
    struct Field
    {
        std::wstring text;
        int chosen;
        DWORD selection;
    };
    auto const field = [&] {
        return Field{TextOf(List(dialog)), static_cast<int>(::SendMessageW(List(dialog), CB_GETCURSEL, 0, 0)),
                     static_cast<DWORD>(::SendMessageW(List(dialog), CB_GETEDITSEL, 0, 0))};
    };
    std::vector<Field> seen;
    std::vector<std::wstring> items;
    INT_PTR const result = Run(dialog, {[&] {
                                            items = Items(List(dialog));
                                            tests::Type(L"d");
                                        },
                                        [&] {
                                            seen.push_back(field());
                                            tests::Type(L"e");
                                        },
                                        [&] {
                                            seen.push_back(field());
                                            tests::Key(VK_BACK);
                                        },
                                        [&] {
                                            seen.push_back(field());
                                            tests::Key(VK_HOME, {VK_SHIFT});
                                        },
                                        [&] { tests::Type(L"es"); },
                                        [&] {
                                            seen.push_back(field());
                                            tests::Key(VK_RETURN);
                                        }});
    EXPECT_EQ(result, IDOK);
    auto const place = [&](wchar_t const * name) {
        return static_cast<int>(std::ranges::find(items, name) - items.begin());
    };
    ASSERT_EQ(seen.size(), 4U);
    EXPECT_EQ(seen[0].text, L"Deutsch");
    EXPECT_EQ(seen[0].chosen, place(L"Deutsch"));
    EXPECT_EQ(seen[0].selection, static_cast<DWORD>(MAKELONG(1, 7)));
    EXPECT_EQ(seen[1].text, L"Deutsch");
    EXPECT_EQ(seen[1].selection, static_cast<DWORD>(MAKELONG(2, 7)));
    EXPECT_EQ(seen[2].text, L"De") << "what is taken away stays away";
    EXPECT_EQ(seen[3].text, L"Espa\u00F1ol");
    EXPECT_EQ(seen[3].chosen, place(L"Espa\u00F1ol"));
    EXPECT_EQ(seen[3].selection, static_cast<DWORD>(MAKELONG(2, 7)));
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

TEST_F(WorkbenchLanguage, ReachesTheLinesInSightAtOnceAndTheOthersSoon)
{
    m_window->ShowTargets({Folder(300)});
    ASSERT_TRUE(WaitUntilRead());
    CRecordingList & list = m_window->List();
    auto const rating = [&list](int row) {
        return std::wstring(list.GetItemText(row, CRecordingList::column_rating).GetString());
    };
    ASSERT_EQ(rating(299), L"Not rated");
    m_window->ChooseLanguage(1031);
    EXPECT_EQ(rating(0), L"Nicht bewertet");
    workbench::RecordingTable table = list.Table(CRecordingList::Lines::all, {});
    while (table.Table().rows.size() < table.Rows())
    {
        table.MakeRow();
    }
    EXPECT_NE(std::ranges::find(table.Table().rows.back(), L"Nicht bewertet"), table.Table().rows.back().end())
        << "copies don't wait";
    EXPECT_TRUE(tests::PumpUntil([&] {
        for (int row = 0; row < list.GetItemCount(); ++row)
        {
            if (rating(row) != L"Nicht bewertet")
            {
                return false;
            }
        }
        return true;
    }));
}

TEST_F(WorkbenchLanguage, ReachesTheWindowsThatAreOpen)
{
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    ASSERT_TRUE(m_window->ShowPreview());
    ASSERT_TRUE(m_window->ShowSettings());
    CSettingsSheet & sheet = m_window->SettingsSheet();
    constexpr int spectrogram_page = 2;
    sheet.SetActivePage(spectrogram_page);
    CPropertyPage & page = *sheet.GetActivePage();
    HWND const scale = page.GetDlgItem(IDC_FREQUENCY_SCALE)->m_hWnd;
    ::SendMessageW(scale, CB_SETCURSEL, 1, 0);
    page.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_FREQUENCY_SCALE, CBN_SELCHANGE), reinterpret_cast<LPARAM>(scale));
    auto const windowMenu = [this] {
        std::vector<std::wstring> texts;
        CMenu & menu = *m_window->GetMenu()->GetSubMenu(5);
        for (UINT place = 0; place < menu.GetMenuItemCount(); ++place)
        {
            CString text;
            menu.GetMenuString(place, text, MF_BYPOSITION);
            texts.emplace_back(text.GetString());
        }
        return texts;
    };
    std::size_t const before = windowMenu().size();

    m_window->ChooseLanguage(1031);
    EXPECT_EQ(TextOf(m_window->Details()), L"Einzelheiten der Aufnahme");
    EXPECT_EQ(TextOf(*m_window->Details().GetDlgItem(IDCANCEL)), L"&Schlie\u00DFen");
    CString details;
    m_window->Details().GetDlgItemText(IDC_DETAIL_TEXT, details);
    EXPECT_GE(details.Find(L"Datei"), 0);
    EXPECT_EQ(TextOf(m_window->Preview()), L"Druckvorschau");
    EXPECT_EQ(TextOf(*m_window->Preview().GetDlgItem(IDC_PRINT)), L"&Drucken...");
    EXPECT_EQ(TextOf(sheet), L"Einstellungen");
    EXPECT_EQ(TextOf(*sheet.GetDlgItem(ID_APPLY_NOW)), L"\u00DC&bernehmen");
    EXPECT_NE(::FindWindowExW(page.m_hWnd, nullptr, L"Static", L"&Fenster (Werte):"), nullptr);
    wchar_t text[40] = L"";
    TCITEM tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = text;
    tab.cchTextMax = static_cast<int>(std::size(text));
    sheet.GetTabControl()->GetItem(4, &tab);
    EXPECT_STREQ(text, L"Dialoge");
    EXPECT_EQ(Items(scale), (std::vector<std::wstring>{L"Linear", L"Logarithmisch"}));
    std::vector<std::wstring> const menu = windowMenu();
    EXPECT_EQ(menu.size(), before);
    EXPECT_NE(std::ranges::find(menu, L"Einstellungen"), menu.end());
    EXPECT_NE(std::ranges::find(menu, L"Einzelheiten der Aufnahme"), menu.end());

    // What the user has chosen is still there to be taken.
    sheet.SendMessage(WM_COMMAND, IDOK);
    ASSERT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
    EXPECT_EQ(m_window->Settings().frequencyScale, workbench::FrequencyScale::logarithmic);
}
