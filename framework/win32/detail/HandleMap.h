#pragma once
// The maps from operating-system handles to the framework's objects, one set a thread.
//
// A map holds permanent entries (an object that owns or is attached to its handle) and temporary ones, made when
// FromHandle meets a handle that has no object. Temporary objects are detached and deleted by DeleteTemporaries, which
// the message loop calls when it is idle.

#include <functional>
#include <unordered_map>

namespace framework
{
/// Maps handles to objects of T. T is CWnd, CDC, CGdiObject, CMenu or CImageList.
template <class T> class HandleMap
{
public:
    /// make: gives a new object attached to the handle. release: clears the object's handle, so that its destructor
    /// leaves the handle alone.
    HandleMap(std::function<T *(void *)> make, std::function<void(T *)> release)
        : m_make(std::move(make)),
          m_release(std::move(release))
    {
    }
    HandleMap(HandleMap const &) = delete;
    HandleMap & operator=(HandleMap const &) = delete;
    ~HandleMap() { DeleteTemporaries(); }

    /// The permanent object of the handle, else its temporary one, which is made if missing. Null for a null handle.
    T * FromHandle(void * handle)
    {
        if (handle == nullptr)
            return nullptr;
        if (T * const permanent = LookupPermanent(handle))
            return permanent;
        auto const found = m_temporary.find(handle);
        if (found != m_temporary.end())
            return found->second;
        T * const object = m_make(handle);
        m_temporary.emplace(handle, object);
        return object;
    }
    T * LookupPermanent(void * handle) const
    {
        auto const found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }
    T * LookupTemporary(void * handle) const
    {
        auto const found = m_temporary.find(handle);
        return found == m_temporary.end() ? nullptr : found->second;
    }
    void SetPermanent(void * handle, T * object) { m_permanent[handle] = object; }
    void RemovePermanent(void * handle) { m_permanent.erase(handle); }
    void DeleteTemporaries()
    {
        auto doomed = std::move(m_temporary);
        m_temporary.clear();
        for (auto & [handle, object] : doomed)
        {
            m_release(object);
            delete object;
        }
    }

private:
    std::function<T *(void *)> m_make;
    std::function<void(T *)> m_release;
    std::unordered_map<void *, T *> m_permanent;
    std::unordered_map<void *, T *> m_temporary;
};
} // namespace framework
