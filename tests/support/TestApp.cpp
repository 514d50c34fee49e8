#include "TestApp.h"

namespace tests
{
TestApp::TestApp()
{
    m_pszAppName = _tcsdup(_T("instrument_ui_tests"));
}

BOOL TestApp::LoadState(LPCTSTR lpszSectionName, CFrameImpl * pFrameImpl)
{
    return m_keepsWorkspace && CWinAppEx::LoadState(lpszSectionName, pFrameImpl);
}

void TestApp::OnClosingMainFrame(CFrameImpl * pFrameImpl)
{
    if (m_keepsWorkspace)
        CWinAppEx::OnClosingMainFrame(pFrameImpl);
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
