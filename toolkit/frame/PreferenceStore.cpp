#include "frame/PreferenceStore.h"

namespace
{
CResourceVesk * process_store = nullptr;
} // namespace

CResourceVesk * CVeskBase::PreferenceVesk()
{
    return process_store;
}

void CVeskBase::SetPreferenceVesk(CResourceVesk * store)
{
    process_store = store;
}
