#include "files/platform_files.h"

#include <random>

namespace loquitor {
namespace {

constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;

/// Kernels take the time of a change from a clock whose coarsest tick is 10 ms. This is twice that.
constexpr std::int64_t ClockTick = NanosecondsPerSecond / 50;

/// For file systems that store whole seconds. Some of them count in steps of two.
constexpr std::int64_t CoarsestTimes = 2 * NanosecondsPerSecond + NanosecondsPerSecond / 10;

}  // namespace

bool IsReliable(const FileStamp& zStamp, std::int64_t zNow) {
  const bool countsWholeSeconds = zStamp.changed % NanosecondsPerSecond == 0;
  return zNow - zStamp.changed > (countsWholeSeconds ? CoarsestTimes : ClockTick);
}

std::string NewFileName(FolderLock::State zLock, int zAttempt) {
  const std::string name = ".loquitor-new";
  const bool isOneWriter = zLock == FolderLock::State::Held;
  return isOneWriter && zAttempt == 0 ? name : name + std::to_string(std::random_device()());
}

}  // namespace loquitor
