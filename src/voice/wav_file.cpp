#include "voice/wav_file.h"

#include <cerrno>
#include <limits>
#include <string>
#include <system_error>

#include "text/path_text.h"
#include "voice/filters.h"

namespace loquitor {

namespace {

constexpr std::uint32_t HeaderBytes = 44;
constexpr std::uint32_t SampleBytes = 2;

void AddNumber(std::string& zBytes, std::uint32_t zNumber, int zSize) {
  for (int i = 0; i < zSize; ++i) {
    zBytes += static_cast<char>(zNumber >> (8 * i) & 0xFF);
  }
}

/// Everything in a WAV file before its samples. Numbers have the low byte first.
std::string Header(std::uint32_t zSampleBytes) {
  constexpr std::uint32_t plainSamples = 1;
  constexpr std::uint32_t channels = 1;
  std::string header = "RIFF";
  AddNumber(header, HeaderBytes - 8 + zSampleBytes, 4);
  header += "WAVEfmt ";
  AddNumber(header, 16, 4);  // bytes of this chunk
  AddNumber(header, plainSamples, 2);
  AddNumber(header, channels, 2);
  AddNumber(header, VoiceSampleRate, 4);
  AddNumber(header, VoiceSampleRate * SampleBytes, 4);  // bytes a second
  AddNumber(header, SampleBytes, 2);
  AddNumber(header, 8 * SampleBytes, 2);
  header += "data";
  AddNumber(header, zSampleBytes, 4);
  return header;
}

}  // namespace

WavFile::WavFile(const std::filesystem::path& zPath) : path_(zPath) {
  errno = 0;
  file_.open(path_, std::ios::binary | std::ios::trunc);
  WriteHeader();
}

void WavFile::Fail(int zError) const {
  throw std::system_error(zError == 0 ? EIO : zError, std::generic_category(),
                          "cannot write " + TextOf(path_));
}

void WavFile::WriteHeader() {
  const std::string header = Header(bytes_);
  file_.seekp(0);
  file_.write(header.data(), static_cast<std::streamsize>(header.size()));
  file_.seekp(0, std::ios::end);
  if (!file_.flush()) {
    Fail(errno);
  }
}

void WavFile::Write(std::span<const std::int16_t> zSamples) {
  constexpr std::size_t most = std::numeric_limits<std::uint32_t>::max() - HeaderBytes;
  if (zSamples.size() > (most - bytes_) / SampleBytes) {
    Fail(EFBIG);
  }
  std::string bytes;
  for (const std::int16_t sample : zSamples) {
    AddNumber(bytes, static_cast<std::uint16_t>(sample), SampleBytes);
  }
  errno = 0;
  file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes_ += static_cast<std::uint32_t>(bytes.size());
  WriteHeader();
}

}  // namespace loquitor
