#pragma once

namespace loquitor {

/// Has the C library take blocks of memory from a megabyte on from the system one by one and give
/// each back as soon as it is freed. Otherwise it keeps the blocks that a text of megabytes goes
/// through while it is sorted or replaced, and never uses them well again. Call once, at the start
/// of the program; does nothing where the C library has no such setting.
void ReturnLargeBlocksAtOnce();

/// Gives what has been freed in small blocks back to the system, in a few milliseconds for tens of
/// megabytes. For the moment when a large structure is gone and large blocks come next, which
/// cannot use its place. Does nothing where the C library cannot do that.
void ReturnSmallBlocks();

}  // namespace loquitor
