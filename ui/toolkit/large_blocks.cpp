#include "ui/toolkit/large_blocks.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace loquitor {

void ReturnLargeBlocksAtOnce() {
#ifdef __GLIBC__
  // Setting the threshold also ends its growth with the size of the blocks that are freed.
  static_cast<void>(mallopt(M_MMAP_THRESHOLD, 1 << 20));  // refused: only memory is lost
#endif
}

void ReturnSmallBlocks() {
#ifdef __GLIBC__
  static_cast<void>(malloc_trim(0));  // whether there was anything does not matter
#endif
}

}  // namespace loquitor
