// The map from handles of one kind to their objects, one per thread and kind.
//
// Permanent entries are made by Attach, Create and SubclassWindow and name an object that
// somebody owns. Temporary ones are made on demand for handles without an object; they never
// destroy their handle and live until the thread is next idle.
#pragma once

#include <classes/Platform.h>

#include <unordered_map>

namespace afxint {

/// How deep the current thread is in message handlers. A temporary object made inside a handler
/// outlives every idle time of loops that the same handler runs.
int HandlerDepth();

/// Traits names `Handle`, `Object`, `static Object* Wrap(Handle)` (a new object that holds the
/// handle) and `static void Unwrap(Object*)` (takes the handle back and deletes the object).
template <class Traits>
class HandleMap
{
public:
    using Handle = typename Traits::Handle;
    using Object = typename Traits::Object;

    HandleMap() = default;
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;
    ~HandleMap() { DropTemporaries(-1); }

    /// The object that owns the handle; NULL when there is none.
    Object* FindPermanent(Handle handle) const
    {
        const auto found = permanent_.find(handle);
        return found == permanent_.end() ? NULL : found->second;
    }

    /// The object of the handle, a temporary one when nobody owns it; NULL only for a NULL handle.
    Object* FindOrWrap(Handle handle)
    {
        if (handle == NULL)
            return NULL;
        if (Object* owner = FindPermanent(handle))
            return owner;
        const int depth = HandlerDepth();
        if (const auto found = temporary_.find(handle); found != temporary_.end()) {
            found->second.depth = depth < found->second.depth ? depth : found->second.depth;
            return found->second.object;
        }
        Object* object = Traits::Wrap(handle);
        temporary_.emplace(handle, Temporary{object, depth});
        return object;
    }

    size_t CountTemporaries() const { return temporary_.size(); }

    void Add(Handle handle, Object* owner) { permanent_[handle] = owner; }
    void Remove(Handle handle) { permanent_.erase(handle); }

    /// Deletes the temporary objects that were made deeper in handlers than `depth`.
    void DropTemporaries(int depth)
    {
        for (auto entry = temporary_.begin(); entry != temporary_.end();) {
            if (entry->second.depth <= depth) {
                ++entry;
                continue;
            }
            Object* object = entry->second.object;
            entry = temporary_.erase(entry);
            Traits::Unwrap(object);
        }
    }

private:
    struct Temporary
    {
        Object* object;
        int depth;
    };
    std::unordered_map<Handle, Object*> permanent_;
    std::unordered_map<Handle, Temporary> temporary_;
};

} // namespace afxint
