// What the wrappers of drawing objects, device contexts, menus and image lists share: a handle
// in a public member, and an entry in the map of the thread as long as it is owned.
#pragma once

#include "threads/ThreadState.h"

#include <utility>

namespace afxint {

/// Puts the handle into the member and enters the object as its owner. FALSE for a NULL handle.
template <class Map>
BOOL TakeHandle(Map& map, typename Map::Handle handle, typename Map::Object* owner,
                typename Map::Handle& member)
{
    ASSERT(member == NULL);
    if (handle == NULL)
        return FALSE;
    member = handle;
    map.Add(handle, owner);
    return TRUE;
}

/// Empties the member and returns what it held. A temporary object leaves the owner's entry alone.
template <class Map>
typename Map::Handle GiveHandle(Map& map, const typename Map::Object* owner,
                                typename Map::Handle& member)
{
    const auto handle = std::exchange(member, nullptr);
    if (handle != NULL && map.FindPermanent(handle) == owner)
        map.Remove(handle);
    return handle;
}

} // namespace afxint
