// The framework's string manager. No string is used in this file: optimising one, the compiler would take the nil
// string, which is never freed, for one that is.

#include <cstdlib>
#include <cstring>

#include "StringServices.h"

namespace
{
class StringManager final : public ATL::IAtlStringMgr
{
public:
    ATL::CStringData * Allocate(int nAllocLength, int nCharSize) noexcept override
    {
        return Resize(nullptr, nAllocLength, nCharSize);
    }
    void Free(ATL::CStringData * pData) noexcept override;
    ATL::CStringData * Reallocate(ATL::CStringData * pData, int nAllocLength, int nCharSize) noexcept override
    {
        return Resize(pData, nAllocLength, nCharSize);
    }
    ATL::CStringData * GetNilString() noexcept override;
    ATL::IAtlStringMgr * Clone() noexcept override { return this; }

private:
    ATL::CStringData * Resize(ATL::CStringData * old, int length, int charSize) noexcept
    {
        constexpr size_t step = 8;
        size_t const characters = (static_cast<size_t>(length) + 1 + step - 1) / step * step;
        void * const memory = std::realloc(old, sizeof(ATL::CStringData) + characters * static_cast<size_t>(charSize));
        if (memory == nullptr)
            return nullptr;
        auto * const data = static_cast<ATL::CStringData *>(memory);
        if (old == nullptr)
        {
            *data = {this, 0, 0, 1};
            std::memset(data->data(), 0, static_cast<size_t>(charSize));
        }
        data->nAllocLength = static_cast<int>(characters) - 1;
        return data;
    }
};

struct NilString
{
    ATL::CStringData header;
    wchar_t terminator[2];
};

// Neither is ever destroyed, so that strings of any lifetime may use them.
constinit StringManager s_manager;
constinit NilString s_nil{{&s_manager, 0, 0, 2}, {0, 0}};

void StringManager::Free(ATL::CStringData * pData) noexcept
{
    if (pData != &s_nil.header)
        std::free(pData);
}

ATL::CStringData * StringManager::GetNilString() noexcept
{
    s_nil.header.AddRef();
    return &s_nil.header;
}
} // namespace

ATL::IAtlStringMgr * AFXAPI AfxGetStringManager()
{
    return &s_manager;
}
