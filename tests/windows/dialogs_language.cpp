// The language chooser as a dialog: what it lists and selects, and what OK and Cancel do.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/SprachauswahlDlg.h"
#include "ImportPatch.h"
#include "Input.h"
#include "Pump.h"
#include "ResourceReader.h"
#include "ScopedWindow.h"

namespace
{
constexpr WORD german = 1031;
constexpr WORD english = 1033;
constexpr int list_id = 1044;

std::vector<LANGID> g_threadLanguages;

LANGID WINAPI RecordThreadLanguage(LANGID language)
{
    g_threadLanguages.push_back(language);
    return language;
}

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

class LanguageChooser : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_patch.Done());
        g_threadLanguages.clear();
    }

    static bool IsOpen(CWnd & dialog) { return dialog.GetSafeHwnd() != nullptr && dialog.IsWindowVisible(); }
    static HWND List(CWnd & dialog) { return GetDlgItem(dialog, list_id); }
    static int Selected(CWnd & dialog) { return static_cast<int>(SendMessageW(List(dialog), CB_GETCURSEL, 0, 0)); }

    /// Runs the dialog. inside: called once it has opened; it has to see to its end.
    INT_PTR Run(CSprachauswahlDlg & dialog, std::function<void()> const & inside)
    {
        tests::LaterActions later;
        later.Add(inside, [&] { return IsOpen(dialog); });
        later.Add([&] { dialog.EndDialog(-7); }, [] { return false; }); // where nothing has ended it
        INT_PTR const result = dialog.DoModal();
        EXPECT_FALSE(later.Failed());
        return result;
    }

    static void Press(CWnd & dialog, UINT id) { dialog.PostMessage(WM_COMMAND, id); }

private:
    tests::ImportPatch m_patch{L"instrument_ui.dll", "SetThreadUILanguage", &RecordThreadLanguage};
};

/// A chooser with one language more.
class WithDanish : public CSprachauswahlDlg
{
public:
    static constexpr unsigned short danish = 1030;

    BOOL m_systemSetsFocus = FALSE;

    explicit WithDanish(CWnd * parent) : CSprachauswahlDlg(english, parent) {}

protected:
    BOOL OnInitDialog() override
    {
        m_systemSetsFocus = CSprachauswahlDlg::OnInitDialog();
        SpracheAufnehmen(L"Dansk", danish);
        return m_systemSetsFocus;
    }
};
} // namespace

TEST_F(LanguageChooser, ListsTheLanguagesWithTheirIds)
{
    std::vector<std::pair<std::wstring, LRESULT>> const expected = {
        {L"(Windows)", 1024},
        {L"Deutsch", 1031},
        {L"English", 1033},
        {L"\u4E2D\u6587 (Chinese)", 2052},
        {L"\u010Cesk\u00FD (Czech)", 1029},
        {L"Espa\u00F1ol", 3082},
        {L"Fran\u00E7ais", 1036},
        {L"Magyarul (Hungarian)", 1038},
        {L"Italiano", 1040},
        {L"\u65E5\u672C\u8A9E (Japanese)", 1041},
        {L"\uD55C\uAE00 (Korean)", 1042},
        {L"Portugu\u00EAs", 2070},
        {L"Polski", 1045},
        {L"\u0420\u0443\u0441\u0441\u043A\u0438\u0439 (Russian)", 1049},
    };
    for (WORD const language : {german, english})
    {
        tests::ScopedLanguage const inForce(language);
        tests::ScopedWindow parent;
        CSprachauswahlDlg dialog(english, parent);
        std::vector<std::pair<std::wstring, LRESULT>> listed;
        Run(dialog, [&] {
            auto const count = static_cast<WPARAM>(SendMessageW(List(dialog), CB_GETCOUNT, 0, 0));
            for (WPARAM item = 0; item < count; ++item)
            {
                wchar_t text[64] = L"";
                SendMessageW(List(dialog), CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(text));
                listed.emplace_back(text, SendMessageW(List(dialog), CB_GETITEMDATA, item, 0));
            }
            Press(dialog, IDCANCEL);
        });
        EXPECT_EQ(listed, expected) << language;
    }
}

TEST_F(LanguageChooser, SpeaksTheLanguageInForce)
{
    struct Texts
    {
        WORD language;
        std::wstring title;
        std::wstring cancel;
    };
    for (Texts const & texts : {Texts{german, L"Anzeigesprache w\u00E4hlen", L"Abbruch"},
                                Texts{english, L"Choose Display Language", L"Cancel"}})
    {
        tests::ScopedLanguage const inForce(texts.language);
        tests::ScopedWindow parent;
        CSprachauswahlDlg dialog(english, parent);
        Run(dialog, [&] {
            EXPECT_EQ(TextOf(dialog), texts.title);
            EXPECT_EQ(TextOf(GetDlgItem(dialog, IDOK)), L"OK");
            EXPECT_EQ(TextOf(GetDlgItem(dialog, IDCANCEL)), texts.cancel);
            EXPECT_EQ(TextOf(List(dialog)), L"English");
            Press(dialog, IDCANCEL);
        });
    }
}

// The German prompt and note just fit in Microsoft Sans Serif, which MS Shell Dlg stands for. Wine takes Tahoma, which
// is wider.
TEST_F(LanguageChooser, TextsHaveRoom)
{
    struct Measured
    {
        WORD language;
        bool prompts;
    };
    for (Measured const & measured : {Measured{german, false}, Measured{english, true}})
    {
        tests::ScopedLanguage const inForce(measured.language);
        tests::ScopedWindow parent;
        CSprachauswahlDlg dialog(english, parent);
        int texts = 0;
        Run(dialog, [&] {
            CClientDC dc(&dialog);
            CFont * const former = dc.SelectObject(dialog.GetFont());
            for (CWnd * child = dialog.GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
            {
                CString text;
                child->GetWindowText(text);
                CRect room;
                child->GetClientRect(room);
                int const id = child->GetDlgCtrlID();
                bool const isPrompt = id != list_id && id != IDOK && id != IDCANCEL;
                if (isPrompt && !measured.prompts)
                    continue;
                CRect needed(0, 0, room.Width(), 0);
                dc.DrawText(text, needed, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS);
                EXPECT_LE(needed.Width(), room.Width()) << testing::PrintToString(text.GetString());
                EXPECT_LE(needed.Height(), room.Height()) << testing::PrintToString(text.GetString());
                ++texts;
            }
            dc.SelectObject(former);
            Press(dialog, IDCANCEL);
        });
        EXPECT_EQ(texts, measured.prompts ? 5 : 3);
    }
}

TEST_F(LanguageChooser, FocusBeginsInTheListAndTabGoesOverTheButtons)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    std::vector<int> order;
    tests::LaterActions later;
    auto const focused = [&](int id) {
        return [&dialog, id] {
            return IsChild(::GetDlgItem(dialog, id), ::GetFocus()) || ::GetFocus() == ::GetDlgItem(dialog, id);
        };
    };
    later.Add([&] { ASSERT_TRUE(tests::BringToFront(dialog)); }, [&] { return IsOpen(dialog); });
    later.Add([&] { order.push_back(list_id), tests::Key(VK_TAB); }, focused(list_id));
    later.Add([&] { order.push_back(IDOK), tests::Key(VK_TAB); }, focused(IDOK));
    later.Add([&] { order.push_back(IDCANCEL), tests::Key(VK_TAB); }, focused(IDCANCEL));
    later.Add(
        [&] {
            EXPECT_EQ(LOWORD(dialog.GetDefID()), IDOK);
            tests::Key(VK_RETURN);
        },
        focused(list_id));
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(order, (std::vector<int>{list_id, IDOK, IDCANCEL}));
}

TEST_F(LanguageChooser, SelectsTheLanguageGiven)
{
    tests::ScopedWindow parent;
    for (auto const & [language, name] : {std::pair{1033, L"English"}, {1024, L"(Windows)"}, {1045, L"Polski"}})
    {
        CSprachauswahlDlg dialog(static_cast<unsigned short>(language), parent);
        EXPECT_EQ(dialog.SprachId(), language);
        EXPECT_FALSE(dialog.SpracheGeaendert());
        Run(dialog, [&, &wanted = name] {
            EXPECT_EQ(TextOf(List(dialog)), wanted);
            Press(dialog, IDCANCEL);
        });
    }
}

TEST_F(LanguageChooser, UnknownLanguageSelectsNothingAndOkKeepsIt)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(1034, parent);
    EXPECT_EQ(Run(dialog,
                  [&] {
                      EXPECT_EQ(Selected(dialog), CB_ERR);
                      EXPECT_EQ(TextOf(List(dialog)), L"");
                      Press(dialog, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.SprachId(), 1034);
    EXPECT_FALSE(dialog.SpracheGeaendert());
    EXPECT_TRUE(g_threadLanguages.empty());
}

TEST_F(LanguageChooser, OkOnTheSameLanguageSwitchesNothing)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    EXPECT_EQ(Run(dialog, [&] { Press(dialog, IDOK); }), IDOK);
    EXPECT_EQ(dialog.SprachId(), english);
    EXPECT_FALSE(dialog.SpracheGeaendert());
    EXPECT_TRUE(g_threadLanguages.empty());
}

TEST_F(LanguageChooser, WindowsLanguageChosenWithTheKeyboardSwitchesTheThread)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    tests::LaterActions later;
    later.Add([&] { ASSERT_TRUE(tests::BringToFront(dialog)); }, [&] { return IsOpen(dialog); });
    later.Add([&] { tests::Key(VK_UP); }, [&] { return ::IsChild(List(dialog), ::GetFocus()); });
    later.Add([&] { tests::Key(VK_UP); }, [&] { return Selected(dialog) == 1; });
    later.Add([&] { tests::Key(VK_RETURN); }, [&] { return Selected(dialog) == 0; });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(dialog.SprachId(), 1024);
    EXPECT_TRUE(dialog.SpracheGeaendert());
    EXPECT_EQ(g_threadLanguages, std::vector<LANGID>{1024});
}

TEST_F(LanguageChooser, LanguageChosenWithTheMouseSwitchesTheThread)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    tests::LaterActions later;
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    later.Add(
        [&] {
            ASSERT_TRUE(tests::BringToFront(dialog));
            ASSERT_TRUE(::GetComboBoxInfo(List(dialog), &info));
            tests::Click(tests::ClientPoint(List(dialog), CRect(info.rcButton).CenterPoint()));
        },
        [&] { return IsOpen(dialog); });
    later.Add(
        [&] {
            RECT item{};
            ::SendMessageW(info.hwndList, LB_GETITEMRECT, 5, reinterpret_cast<LPARAM>(&item));
            tests::Click(tests::ClientPoint(info.hwndList, CRect(item).CenterPoint()));
        },
        [&] { return ::SendMessageW(List(dialog), CB_GETDROPPEDSTATE, 0, 0) != 0; });
    later.Add([&] { tests::Click(tests::Centre(::GetDlgItem(dialog, IDOK))); },
              [&] { return TextOf(List(dialog)) == L"Espa\u00F1ol"; });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(dialog.SprachId(), 3082);
    EXPECT_TRUE(dialog.SpracheGeaendert());
    EXPECT_EQ(g_threadLanguages, std::vector<LANGID>{3082});
}

TEST_F(LanguageChooser, CancelChangesNothing)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    tests::LaterActions later;
    later.Add([&] { ASSERT_TRUE(tests::BringToFront(dialog)); }, [&] { return IsOpen(dialog); });
    later.Add([&] { tests::Key(VK_UP); }, [&] { return ::IsChild(List(dialog), ::GetFocus()); });
    later.Add([&] { tests::Key(VK_ESCAPE); }, [&] { return Selected(dialog) == 1; });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(dialog.SprachId(), english);
    EXPECT_FALSE(dialog.SpracheGeaendert());
    EXPECT_TRUE(g_threadLanguages.empty());
}

TEST_F(LanguageChooser, NextRunBeginsWithTheLanguageChosen)
{
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    Run(dialog, [&] {
        SendMessageW(List(dialog), CB_SETCURSEL, 1, 0);
        Press(dialog, IDOK);
    });
    ASSERT_EQ(dialog.SprachId(), german);
    ASSERT_TRUE(dialog.SpracheGeaendert());
    Run(dialog, [&] {
        EXPECT_EQ(TextOf(List(dialog)), L"Deutsch");
        EXPECT_FALSE(dialog.SpracheGeaendert()) << "a new run has changed nothing yet";
        Press(dialog, IDOK);
    });
    EXPECT_EQ(dialog.SprachId(), german);
    EXPECT_FALSE(dialog.SpracheGeaendert());
    EXPECT_EQ(g_threadLanguages, std::vector<LANGID>{german});
}

TEST_F(LanguageChooser, DerivedChooserAddsLanguages)
{
    tests::ScopedWindow parent;
    WithDanish dialog(parent);
    Run(dialog, [&] {
        EXPECT_EQ(TextOf(List(dialog)), L"English");
        SendMessageW(List(dialog), CB_SETCURSEL, 14, 0);
        EXPECT_EQ(TextOf(List(dialog)), L"Dansk");
        Press(dialog, IDOK);
    });
    EXPECT_EQ(dialog.m_systemSetsFocus, TRUE);
    EXPECT_EQ(dialog.SprachId(), WithDanish::danish);
    EXPECT_EQ(g_threadLanguages, std::vector<LANGID>{WithDanish::danish});
}

TEST_F(LanguageChooser, ToolkitsModuleIsCurrentWhileItIsOpen)
{
    HINSTANCE const former = AfxGetResourceHandle();
    tests::ScopedWindow parent;
    CSprachauswahlDlg dialog(english, parent);
    Run(dialog, [&] {
        EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(L"instrument_ui.dll"));
        EXPECT_FALSE(parent.IsWindowEnabled());
        Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(AfxGetResourceHandle(), former);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(LanguageChooser, HasARunTimeClass)
{
    CSprachauswahlDlg dialog(english, nullptr);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CSprachauswahlDlg)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CDialogEx)));
    EXPECT_STREQ(dialog.GetRuntimeClass()->m_lpszClassName, "CSprachauswahlDlg");
}
