#pragma once
// The interface of the suite's preference store, and the place where a process sets its store up.
//
// A key is a null-terminated wide string. An index selects one of several values under a key, counted from 0.

#include <cstddef>

#include "frame/Export.h"

namespace lookup
{
/// What became of a value to be stored.
enum result
{
    success = 0,
    /// The key is null or longer than the store can hold.
    bad_key,
    /// The store may not be written.
    access_denied,
    failure
};
} // namespace lookup

/// All values under one key. The store owns it.
class CVeskEntry
{
public:
    /// Stores the value.
    virtual void SetInt(int value, std::size_t index) = 0;
    /// The stored value, or the fallback where there is none.
    virtual int GetIntFb(std::size_t index, int fallback) = 0;

protected:
    CVeskEntry() = default;
    CVeskEntry(CVeskEntry const &) = default;
    CVeskEntry & operator=(CVeskEntry const &) = default;
    ~CVeskEntry() = default;
};

/// A preference store.
class CResourceVesk
{
public:
    virtual ~CResourceVesk() = default;

    /// The entry for the key, made if missing; the store owns it, and it stays usable as long as the store. The second
    /// argument is 0. Null for a key that the store cannot hold.
    virtual CVeskEntry * CreateEntry(wchar_t const * key, int kind) = 0;
    /// Stores the value, making the key if needed.
    virtual lookup::result LookupSetBool(wchar_t const * key, bool value, std::size_t index) = 0;
    /// Stores the value, making the key if needed.
    virtual lookup::result LookupSetInt(wchar_t const * key, int value, std::size_t index) = 0;
    /// The stored value, or the fallback where there is none.
    virtual bool LookupGetBool(wchar_t const * key, std::size_t index, bool fallback) = 0;
    /// The stored value, or the fallback where there is none.
    virtual int LookupGetInt(wchar_t const * key, std::size_t index, int fallback) = 0;
    /// Removes the key with all its indices. Non-zero on success, 0 for a key without a value.
    virtual int Delete(wchar_t const * key) = 0;
};

/// The process's access to its preference store.
class INSTRUMENT_UI_API CVeskBase
{
public:
    /// The process's store, or null while none is set.
    static CResourceVesk * PreferenceVesk();
    /// Sets the process's store; null ends persistence. The store is not owned and must stay until another one is set.
    static void SetPreferenceVesk(CResourceVesk * store);
};
