#include "TestApp.h"

namespace tests
{
TestApp::TestApp() : CWinApp(_T("instrument_ui_tests"))
{
}

int TestApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt)
{
    m_messages.push_back({lpszPrompt != nullptr ? lpszPrompt : L"", nType, nIDPrompt});
    if (!m_answers.empty())
    {
        int const answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    switch (nType & MB_TYPEMASK)
    {
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return IDYES;
    case MB_RETRYCANCEL:
        return IDCANCEL;
    case MB_ABORTRETRYIGNORE:
        return IDIGNORE;
    default:
        return IDOK;
    }
}

std::vector<TestApp::Message> TestApp::Take()
{
    return std::exchange(m_messages, {});
}

std::vector<std::wstring> TestApp::TakeMessages()
{
    std::vector<std::wstring> texts;
    for (Message & message : m_messages)
        texts.push_back(std::move(message.text));
    m_messages.clear();
    return texts;
}

void TestApp::Reset()
{
    m_answers.clear();
    m_messages.clear();
}
} // namespace tests
