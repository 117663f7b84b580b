#include "voice/wav_file.h"

#include <gtest/gtest.h>

#include <array>
#include <system_error>

#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

TEST(WavFileTest, IsAValidFileAfterEveryWrite) {
  const TempFolder folder;
  WavFile file(folder / "a.wav");
  const std::string format =
      "WAVEfmt \x10\0\0\0\x01\0\x01\0\x80\x3E\0\0\0\x7D\0\0\x02\0\x10\0data"s;
  EXPECT_EQ(ReadBytes(folder / "a.wav"), "RIFF\x24\0\0\0"s + format + "\0\0\0\0"s);
  file.Write(std::array<std::int16_t, 2>{1, -2});
  EXPECT_EQ(ReadBytes(folder / "a.wav"), "RIFF\x28\0\0\0"s + format + "\x04\0\0\0\x01\0\xFE\xFF"s);
  file.Write(std::array<std::int16_t, 1>{-32768});
  EXPECT_EQ(ReadBytes(folder / "a.wav"),
            "RIFF\x2A\0\0\0"s + format + "\x06\0\0\0\x01\0\xFE\xFF\0\x80"s);
}

TEST(WavFileTest, ReplacesAnOlderFile) {
  const TempFolder folder;
  WriteBytes(folder / "a.wav", std::string(1000, 'x'));
  const WavFile file(folder / "a.wav");
  EXPECT_EQ(ReadBytes(folder / "a.wav").size(), 44U);
}

TEST(WavFileTest, SaysWhyItCannotBeWritten) {
  const TempFolder folder;
  const auto complaint = [](const std::filesystem::path& zPath) -> std::string {
    try {
      WavFile file(zPath);
      file.Write(std::array<std::int16_t, 1000>{});
      return "none";
    } catch (const std::system_error& error) {
      return error.what();
    }
  };
  const std::string missing = (folder / "none" / "a.wav").string();
  EXPECT_EQ(complaint(missing), "cannot write " + missing + ": No such file or directory");
  EXPECT_EQ(complaint("/dev/full"), "cannot write /dev/full: No space left on device");
}

}  // namespace
}  // namespace loquitor::testing
