#pragma once
// What the tests of the list's in-place editors share.

#include <map>

#include "list_InputTest.h"

namespace list_editors
{
using Entries = std::map<int, wchar_t const *>;

// What the editors tell the list by.
inline UINT const edit_ends = ::RegisterWindowMessageW(L"WM_XEDIT_KILL_FOCUS");
inline UINT const edit_escapes = ::RegisterWindowMessageW(L"WM_XEDIT_VK_ESCAPE");
inline UINT const combo_completes = ::RegisterWindowMessageW(L"WM_XCOMBOLIST_COMPLETE");

class ListEditorTest : public list_input::ListInputTest
{
protected:
    HWND Edit() const { return tests::OpenEditOf(m_list); }
    static HWND Combo() { return tests::OpenCombo(); }

    static CString TextOf(HWND window)
    {
        wchar_t text[200] = {};
        ::SendMessageW(window, WM_GETTEXT, 200, reinterpret_cast<LPARAM>(text));
        return text;
    }
    static void SetText(HWND window, wchar_t const * text)
    {
        ::SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }

    /// Opens the edit of that cell by a real click.
    void OpenEdit(int row, int col)
    {
        m_list.SetEdit(row, col, true);
        ClickForEditor(row, col);
        ASSERT_NE(Edit(), nullptr);
        ASSERT_EQ(::GetFocus(), Edit());
    }
    /// The release of the button goes to the editor, not to the list.
    void ClickForEditor(int row, int col)
    {
        list_input::Click(Screen(Middle(row, col)));
        EXPECT_TRUE(tests::PumpUntil([this] { return Edit() != nullptr || Combo() != nullptr; }));
        tests::PumpPosted();
    }
    /// Presses a real key and waits until the edit has ended.
    void EndEditWith(WORD key)
    {
        tests::Key(key);
        EXPECT_TRUE(tests::PumpUntil([this] { return Edit() == nullptr; }));
        tests::PumpPosted();
    }

    /// Makes the cell a combo of the ids 10, 20 and 30 with the texts "ten", "twenty" and "thirty".
    void MakeCombo(int row, int col, int selected)
    {
        Entries const entries{{10, L"ten"}, {20, L"twenty"}, {30, L"thirty"}};
        m_list.SetComboBox(row, col, entries, selected, selected);
    }
    bool PumpUntilComboIsGone()
    {
        return tests::PumpUntil([] { return Combo() == nullptr; });
    }
};
} // namespace list_editors
