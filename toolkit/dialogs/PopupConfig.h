#pragma once
// The description of a popup menu that is made when it is shown.
//
//     CPopupConfig popup;
//     popup.Add(L"Print", [this] { Print(); });
//     popup.AddSeparator();
//     popup.Add(L"Export", {});                    // greyed
//     ActivatePopup(popup, x, y);                  // CDialog3d

#include <afx.h>

#include <cstddef>
#include <functional>
#include <list>
#include <utility>

#include "frame/Export.h"

/// One entry of a popup menu. With an empty text it is a separator; with a text and an empty callback it is greyed.
class INSTRUMENT_UI_API CPopupConfigEntry
{
public:
    /// callback: called once the entry is chosen.
    CPopupConfigEntry(CString const & text, std::function<void()> const & callback);

    /// The text; empty for a separator.
    CString const & Text() const;
    /// What is called once the entry is chosen.
    std::function<void()> const & Callback() const;
    /// The command id that the shown popup gave the entry; -1 before.
    int ID() const;

private:
    friend class CDialog3d;
    friend class CPopupConfig;

    void ID(int id);

    CString m_text;
    std::function<void()> m_callback;
    int m_id;
};

/// The entries of a popup menu, in the menu's order.
class CPopupConfig
{
public:
    /// Adds at the end.
    void Add(CPopupConfigEntry entry) { m_entries.push_back(std::move(entry)); }
    void Add(CString const & text, std::function<void()> const & callback) { m_entries.emplace_back(text, callback); }
    /// Adds a line at the end.
    void AddSeparator() { m_entries.emplace_back(CString(), std::function<void()>()); }

    /// The number of entries, lines included.
    std::size_t size() const { return m_entries.size(); }
    /// Whether there are no entries.
    bool empty() const { return m_entries.empty(); }
    /// The entries in their order.
    auto begin() const { return m_entries.begin(); }
    /// Behind the last entry.
    auto end() const { return m_entries.end(); }

    /// Gives every entry, separators too, a command id: the numbers that follow `last`.
    void NumberAfter(int last)
    {
        for (CPopupConfigEntry & entry : m_entries)
        {
            last = static_cast<int>(static_cast<unsigned int>(last) + 1u);
            entry.ID(last);
        }
    }
    /// The first entry whose command id has the same low 16 bits, or null.
    CPopupConfigEntry const * Find(unsigned int id) const
    {
        constexpr unsigned int low_word = 0xFFFF;
        for (CPopupConfigEntry const & entry : m_entries)
        {
            if ((static_cast<unsigned int>(entry.ID()) & low_word) == (id & low_word))
                return &entry;
        }
        return nullptr;
    }

private:
    std::list<CPopupConfigEntry> m_entries;
};
