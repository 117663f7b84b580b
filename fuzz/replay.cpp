// Runs a fuzz target over the files of the folders that it is given, and then over random mixtures
// of them, for CTest.

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "files/file_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize);

namespace {

constexpr int Mixtures = 6000;

void Replay(const std::string& zInput) {
  static_cast<void>(
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(zInput.data()), zInput.size()));
}

/// Replays the files of a folder and adds them to `zInputs`. The folder need not exist.
void ReplayFolder(const std::filesystem::path& zFolder, std::vector<std::string>& zInputs) {
  if (!std::filesystem::is_directory(zFolder)) {
    return;
  }
  std::set<std::filesystem::path> files;  // sorted, so that the mixtures are the same everywhere
  for (const auto& entry : std::filesystem::directory_iterator(zFolder)) {
    files.insert(entry.path());
  }
  for (const std::filesystem::path& file : files) {
    const auto bytes = loquitor::ReadWholeFile(file);
    if (!bytes) {
      std::cerr << "cannot read " << file << '\n';
      std::exit(EXIT_FAILURE);
    }
    std::cout << file.filename().string() << std::endl;  // flushed, to show which one crashed
    Replay(zInputs.emplace_back(*bytes));
  }
}

/// One of the inputs, with a few short stretches replaced by stretches of others or by any byte.
std::string Mixed(const std::vector<std::string>& zInputs, std::mt19937& zRandom) {
  const auto pick = [&]() -> const std::string& { return zInputs[zRandom() % zInputs.size()]; };
  std::string mixed = pick();
  for (auto changes = zRandom() % 8; changes > 0; --changes) {
    const std::string& other = pick();
    const std::string piece = zRandom() % 4 == 0
                                  ? std::string(1, static_cast<char>(zRandom()))
                                  : other.substr(zRandom() % (other.size() + 1), zRandom() % 16);
    mixed.replace(zRandom() % (mixed.size() + 1), zRandom() % 8, piece);
  }
  return mixed;
}

}  // namespace

int main(int zCount, char** zArguments) {
  std::vector<std::string> inputs;
  for (int i = 1; i < zCount; ++i) {
    ReplayFolder(zArguments[i], inputs);
  }
  if (inputs.empty()) {
    std::cerr << "a target without inputs tests nothing\n";
    return EXIT_FAILURE;
  }
  std::mt19937 random(7);  // NOLINT: the same mixtures each time
  for (int mixture = 0; mixture < Mixtures; ++mixture) {
    std::cout << "mixture " << mixture << std::endl;
    Replay(Mixed(inputs, random));
  }
}
