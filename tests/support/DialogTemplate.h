#pragma once
// A dialog template in memory:
//
//     tests::DialogTemplate dialog(L"Title", CRect(0, 0, 120, 80));
//     dialog.Add(L"Button", L"OK", IDOK, CRect(10, 60, 50, 74), WS_TABSTOP | BS_DEFPUSHBUTTON);
//     object.CreateIndirect(dialog.Get(), parent);

#include <afxwin.h>

#include <string_view>
#include <vector>

namespace tests
{
class DialogTemplate
{
public:
    /// rect: dialog units; with an origin of (0, 0) the framework centres the window. font: its face name, 8 points;
    /// none if empty.
    explicit DialogTemplate(std::wstring_view title, CRect const & rect = CRect(0, 0, 160, 100),
                            DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME, DWORD exStyle = 0,
                            std::wstring_view font = L"Tahoma");

    /// Adds a control, visible and a child. className: "Button", "Edit", ... or a registered class. rect: dialog units.
    void Add(std::wstring_view className, std::wstring_view text, int id, CRect const & rect, DWORD style = WS_TABSTOP,
             DWORD exStyle = 0);

    /// Valid until the next Add and as long as the object lives.
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }
    size_t SizeInBytes() const { return m_words.size() * sizeof(WORD); }

private:
    void PutDword(DWORD value);
    void PutText(std::wstring_view text);
    void PutRect(CRect const & rect);

    std::vector<WORD> m_words;
    WORD m_count = 0;
};
} // namespace tests
