#include "ChildProgram.h"

#include <map>

namespace tests
{
namespace
{
constexpr wchar_t name_variable[] = L"TEST_CHILD_NAME";
constexpr wchar_t argument_variable[] = L"TEST_CHILD_ARGUMENT";
constexpr int unknown_child_exit_code = 98;
constexpr DWORD time_limit = 300000; // ms; only a hang reaches it
constexpr UINT killed_exit_code = 99;

std::wstring Variable(wchar_t const * name)
{
    wchar_t value[1024];
    DWORD const length = ::GetEnvironmentVariableW(name, value, 1024);
    return std::wstring(value, length < 1024 ? length : 0);
}

std::map<std::string, ChildFunction> & Children()
{
    static std::map<std::string, ChildFunction> children;
    return children;
}

std::wstring ProgramPath()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}
} // namespace

ChildProgram::ChildProgram(std::string const & name, std::wstring const & argument)
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
    std::wstring command = L"\"" + ProgramPath() + L"\"";
    ::SetEnvironmentVariableW(name_variable, std::wstring(name.begin(), name.end()).c_str());
    ::SetEnvironmentVariableW(argument_variable, argument.c_str());
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
    {
        ::CloseHandle(process.hThread);
        m_process = process.hProcess;
    }
    ::SetEnvironmentVariableW(name_variable, nullptr);
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

bool RegisterChild(std::string const & name, ChildFunction function)
{
    return Children().emplace(name, function).second;
}

std::optional<int> RunAsChild()
{
    std::wstring const wide = Variable(name_variable);
    if (wide.empty())
        return std::nullopt;
    auto const found = Children().find(std::string(wide.begin(), wide.end()));
    return found != Children().end() ? found->second(Variable(argument_variable)) : unknown_child_exit_code;
}
} // namespace tests
