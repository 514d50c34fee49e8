#pragma once
// Puts another function in the place of one that a module imports, for the life of the object:
//
//     tests::ImportPatch const patch(L"instrument_ui.dll", "SetThreadUILanguage", &Substitute);
//     ASSERT_TRUE(patch.Done());

#include <windows.h>

namespace tests
{
class ImportPatch
{
public:
    /// module: a loaded one. function: imported by name from whatever library.
    template <typename Function> ImportPatch(wchar_t const * module, char const * function, Function * substitute)
        : ImportPatch(module, function, reinterpret_cast<ULONG_PTR>(substitute))
    {
    }
    ImportPatch(wchar_t const * module, char const * function, ULONG_PTR substitute);
    ~ImportPatch();
    ImportPatch(ImportPatch const &) = delete;
    ImportPatch & operator=(ImportPatch const &) = delete;

    /// False if the module has no such import.
    bool Done() const { return m_entry != nullptr; }

private:
    ULONG_PTR * m_entry = nullptr;
    ULONG_PTR m_former = 0;
};
} // namespace tests
