#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>

namespace loquitor {

/// A WAV file of 16-bit mono samples, VoiceSampleRate per second. It is a valid file after every
/// Write that succeeds.
class WavFile {
 public:
  /// Creates the file or empties it. Throws std::system_error with the path and the cause when it
  /// cannot be written.
  explicit WavFile(const std::filesystem::path& zPath);

  /// Appends samples. Throws std::system_error when they cannot be written, or when the file would
  /// grow beyond the 4 GiB that the format can hold.
  void Write(std::span<const std::int16_t> zSamples);

 private:
  void WriteHeader();
  [[noreturn]] void Fail(int zError) const;

  std::filesystem::path path_;
  std::ofstream file_;
  std::uint32_t bytes_ = 0;  // size of the samples
};

}  // namespace loquitor
