#include "suite_ChildProgram.h"

namespace tests
{
namespace
{
constexpr wchar_t argument_variable[] = L"TEST_CHILD_ARGUMENT";
constexpr DWORD time_limit = 60000; // ms
constexpr UINT killed_exit_code = 99;

std::wstring ProgramPath()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}
} // namespace

ChildProgram::ChildProgram(std::string const & test, std::wstring const & argument)
{
    SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
    HANDLE errors = nullptr;
    if (!::CreatePipe(&m_errors, &errors, &inherited, 0))
        return;
    ::SetHandleInformation(m_errors, HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = errors;
    startup.hStdError = errors;
    std::wstring command = L"\"" + ProgramPath() + L"\" --gtest_also_run_disabled_tests --gtest_filter=" +
                           std::wstring(test.begin(), test.end());
    ::SetEnvironmentVariableW(argument_variable, argument.c_str());
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
    {
        ::CloseHandle(process.hThread);
        m_process = process.hProcess;
    }
    ::SetEnvironmentVariableW(argument_variable, nullptr);
    ::CloseHandle(errors);
}

ChildProgram::~ChildProgram()
{
    if (m_process != nullptr)
    {
        Kill();
        ::CloseHandle(m_process);
    }
    if (m_errors != nullptr)
        ::CloseHandle(m_errors);
}

bool ChildProgram::WaitForEnd()
{
    return Started() && ::WaitForSingleObject(m_process, time_limit) == WAIT_OBJECT_0;
}

void ChildProgram::Kill()
{
    ::TerminateProcess(m_process, killed_exit_code);
    ::WaitForSingleObject(m_process, time_limit);
}

DWORD ChildProgram::ExitCode() const
{
    DWORD code = STILL_ACTIVE;
    ::GetExitCodeProcess(m_process, &code);
    return code;
}

std::string ChildProgram::ErrorText()
{
    std::string text;
    char buffer[4096];
    DWORD count = 0;
    while (::ReadFile(m_errors, buffer, sizeof(buffer), &count, nullptr) && count != 0)
        text.append(buffer, count);
    return text;
}

std::wstring ChildProgram::Argument()
{
    wchar_t argument[1024];
    DWORD const length = ::GetEnvironmentVariableW(argument_variable, argument, 1024);
    return std::wstring(argument, length);
}
} // namespace tests
