// Movable memory, as the print dialog's records travel in it: blocks by handle, which have an address only while they
// are locked. A handle is never given twice, so one that was freed stays unknown.
#pragma once

#include <QtGlobal>
#include <cstddef>

namespace orvane
{

inline constexpr quint32 MovableZeroFilled = 66;

// A new block's handle, or 0 where there is no room for it. A block is zero-filled whatever the flags.
quint32 GlobalAlloc(quint32 flags, std::size_t size);

// The block's address, and one lock more; nullptr for an unknown handle and for a block without bytes.
void *GlobalLock(quint32 handle);

// One lock less. True where the block is still locked; false where it isn't any more, or never was, or is unknown.
bool GlobalUnlock(quint32 handle);

// 0 where the block is gone now, locked or not; the handle where it is unknown.
quint32 GlobalFree(quint32 handle);

// 0 for an unknown handle.
std::size_t GlobalSize(quint32 handle);

// The two ranges may overlap. Where one begins in a block, nothing is read or written beyond the block's end.
void RtlMoveMemory(void *destination, const void *source, std::size_t length);

// The blocks that are not freed yet.
std::size_t movableBlocks();

} // namespace orvane
