#include "dialogs/PopupConfig.h"

CPopupConfigEntry::CPopupConfigEntry(CString const & text, std::function<void()> const & callback)
    : m_text(text),
      m_callback(callback),
      m_id(-1)
{
}

CString const & CPopupConfigEntry::Text() const
{
    return m_text;
}

std::function<void()> const & CPopupConfigEntry::Callback() const
{
    return m_callback;
}

int CPopupConfigEntry::ID() const
{
    return m_id;
}

void CPopupConfigEntry::ID(int id)
{
    m_id = id;
}
