// Loading an archive with something of everything from any bytes: it ends well or with the exception for it.

#include <cstdint>
#include <cstdlib>

#include "framework_ArchiveContents.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size > UINT32_MAX)
        return 0;
    int const cause = archive_contents::LoadContents(data, size);
    if (cause < -1)
        std::abort();
    return 0;
}
