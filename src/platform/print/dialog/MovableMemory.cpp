#include "platform/print/dialog/MovableMemory.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <new>

namespace orvane
{

namespace
{
struct Block {
    std::unique_ptr<std::byte[]> bytes;
    std::size_t size = 0;
    unsigned locks = 0;
};

std::map<quint32, Block> &blocks()
{
    static std::map<quint32, Block> all;
    return all;
}

Block *blockOf(quint32 handle)
{
    const auto found = blocks().find(handle);
    return found == blocks().end() ? nullptr : &found->second;
}

quint32 freshHandle()
{
    static quint32 last = 0;
    return ++last;
}

// How much of the length there is from this address on: all of it where the address is in no block.
std::size_t within(const void *address, std::size_t length)
{
    const auto *place = static_cast<const std::byte *>(address);
    const std::less<> before;
    for (const auto &[handle, block] : blocks()) {
        const std::byte *first = block.bytes.get();
        if (before(place, first) || !before(place, first + block.size)) continue;
        return std::min(length, block.size - static_cast<std::size_t>(place - first));
    }
    return length;
}
} // namespace

quint32 GlobalAlloc(quint32, std::size_t size)
{
    std::unique_ptr<std::byte[]> bytes(new (std::nothrow) std::byte[size]());
    if (!bytes) return 0;
    const quint32 handle = freshHandle();
    blocks().emplace(handle, Block{std::move(bytes), size});
    return handle;
}

void *GlobalLock(quint32 handle)
{
    Block *block = blockOf(handle);
    if (!block || block->size == 0) return nullptr;
    ++block->locks;
    return block->bytes.get();
}

bool GlobalUnlock(quint32 handle)
{
    Block *block = blockOf(handle);
    if (!block || block->locks == 0) return false;
    return --block->locks > 0;
}

quint32 GlobalFree(quint32 handle)
{
    return blocks().erase(handle) > 0 ? 0 : handle;
}

std::size_t GlobalSize(quint32 handle)
{
    const Block *block = blockOf(handle);
    return block ? block->size : 0;
}

void RtlMoveMemory(void *destination, const void *source, std::size_t length)
{
    const std::size_t room = within(source, within(destination, length));
    if (room > 0) std::memmove(destination, source, room);
}

std::size_t movableBlocks()
{
    return blocks().size();
}

} // namespace orvane
