#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor::testing {

/// A folder of a test's own, removed with everything in it at its end.
class TempFolder {
 public:
  explicit TempFolder(const std::filesystem::path& zIn = std::filesystem::temp_directory_path()) {
    std::random_device random;
    do {
      path_ = zIn / ("loquitor-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(std::string_view zName) const { return path_ / zName; }

  /// The names of what is in it.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

 private:
  std::filesystem::path path_;
};

inline void WriteBytes(const std::filesystem::path& zFile, std::string_view zBytes) {
  std::ofstream out(zFile, std::ios::binary | std::ios::trunc);
  out.write(zBytes.data(), static_cast<std::streamsize>(zBytes.size()));
  if (!out.flush()) {
    throw std::runtime_error("cannot write " + zFile.string());
  }
}

inline std::string ReadBytes(const std::filesystem::path& zFile) {
  std::ifstream in(zFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace loquitor::testing
