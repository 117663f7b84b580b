// Runs a fuzz target over the files of the folders that it is given, for CTest.

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "link/file_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize);

namespace {

/// Replays the files of one folder; their number. Folders that do not exist have none.
int ReplayFolder(const std::filesystem::path& zFolder) {
  int count = 0;
  if (!std::filesystem::is_directory(zFolder)) {
    return count;
  }
  for (const auto& entry : std::filesystem::directory_iterator(zFolder)) {
    const auto bytes = loquitor::ReadWholeFile(entry.path());
    if (!bytes) {
      std::cerr << "cannot read " << entry.path() << '\n';
      std::exit(EXIT_FAILURE);
    }
    std::cout << entry.path().filename().string() << std::endl;  // flushed: tells which one crashed
    static_cast<void>(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes->data()),
                                             bytes->size()));
    ++count;
  }
  return count;
}

}  // namespace

int main(int zCount, char** zArguments) {
  int replayed = 0;
  for (int i = 1; i < zCount; ++i) {
    replayed += ReplayFolder(zArguments[i]);
  }
  std::cout << replayed << " inputs replayed\n";
  return replayed > 0 ? EXIT_SUCCESS : EXIT_FAILURE;  // a target without inputs tests nothing
}
