#include "link/platform_files.h"

namespace loquitor {
namespace {

constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;

/// Twice the coarsest tick (10 ms) by which kernels date changes.
constexpr std::int64_t ClockTick = NanosecondsPerSecond / 50;

/// File systems that count whole seconds, some of them two at a time.
constexpr std::int64_t CoarsestTimes = 2 * NanosecondsPerSecond + NanosecondsPerSecond / 10;

}  // namespace

bool IsSettled(const FileStamp& zStamp, std::int64_t zNow) {
  const bool countsWholeSeconds = zStamp.changed % NanosecondsPerSecond == 0;
  return zNow - zStamp.changed > (countsWholeSeconds ? CoarsestTimes : ClockTick);
}

}  // namespace loquitor
