#include "files/profile_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <string>
#include <thread>

#include "files/platform_files.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

/// A file that others change, and the object that has to notice.
class ProfileFileFreshnessTest : public ::testing::Test {
 protected:
  std::string Value() const { return profile.Read("s", "k", "(none)", 99); }
  static std::string Text(const std::string& zValue) { return "[s]\nk=" + zValue + "\n"; }

  void WriteInPlace(const std::string& zValue) {
    std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
    stream << Text(zValue);
    ASSERT_TRUE(stream.flush());
  }
  void RenameOver(const std::string& zValue) {
    WriteBytes(folder / "other", Text(zValue));
    std::filesystem::rename(folder / "other", file);
  }
  /// Waits until the stamp of the file is a proof.
  static void LetItSettle() { std::this_thread::sleep_for(std::chrono::milliseconds(50)); }

  TempFolder folder;
  std::filesystem::path file = folder / "words.ini";
  ProfileFile profile{file};
};

TEST_F(ProfileFileFreshnessTest, SeesEveryChangeAtOnce) {
  EXPECT_EQ(Value(), "(none)");
  WriteBytes(file, Text("0"));
  EXPECT_EQ(Value(), "0");
  ASSERT_TRUE(WriteProfileValue("s", "k", "1", file));
  EXPECT_EQ(Value(), "1");
  std::filesystem::remove(file);
  EXPECT_EQ(Value(), "(none)");
  WriteBytes(file, "");
  EXPECT_EQ(Value(), "(none)");
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_EQ(Value(), "(none)");
  std::filesystem::remove(file);
  WriteBytes(file, Text("huge"));
  std::filesystem::resize_file(file, LargestLoadedFile + 1);
  EXPECT_EQ(Value(), "(none)");
}

#ifndef _WIN32  // where links need rights that users do not have

TEST_F(ProfileFileFreshnessTest, SeesChangesThroughALink) {
  std::filesystem::create_symlink("elsewhere", file);
  for (const char* value : {"4", "5"}) {
    WriteBytes(folder / "elsewhere", Text(value));
    EXPECT_EQ(Value(), value);
  }
}

#endif

/// The clock that gives the times of changes has steps of milliseconds, so many of these states
/// have the same size and the same times.
TEST_F(ProfileFileFreshnessTest, SeesChangesOfTheSameSizeInTheSameTick) {
  WriteBytes(file, Text("100"));
  for (int i = 100; i < 1000; ++i) {
    const std::string value = std::to_string(i);
    i % 3 == 0 ? RenameOver(value) : WriteInPlace(value);
    ASSERT_EQ(Value(), value);
  }
}

TEST_F(ProfileFileFreshnessTest, IsNotDeceivedByTimesThatAreSetBack) {
  WriteBytes(file, Text("1"));
  LetItSettle();
  EXPECT_EQ(Value(), "1");
  const auto before = std::filesystem::last_write_time(file);
  WriteInPlace("2");
  std::filesystem::last_write_time(file, before);
  EXPECT_EQ(Value(), "2");
}

TEST_F(ProfileFileFreshnessTest, TrustsNoStampThatIsTooYoung) {
  constexpr std::int64_t second = 1'000'000'000;
  for (const auto& [changed, now, isReliable] : Rows<std::int64_t, std::int64_t, bool>{
           {100 * second + 1, 100 * second + 15'000'000, false},
           {100 * second + 1, 100 * second + 25'000'000, true},
           {100 * second + 1, 99 * second, false},  // the clock was set back
           {100 * second, 101 * second, false},     // counts whole seconds
           {100 * second, 102 * second, false},     // counts them two at a time
           {100 * second, 103 * second, true}}) {
    EXPECT_EQ(IsReliable({1, 2, 3, 0, changed}, now), isReliable) << now;
  }
  WriteBytes(file, Text("1"));
  EXPECT_FALSE(LoadFile(file)->isStampReliable);
  LetItSettle();
  EXPECT_TRUE(LoadFile(file)->isStampReliable);
}

TEST_F(ProfileFileFreshnessTest, IndexesAnUnchangedFileOnce) {
  WriteBytes(file, Text("1"));
  const auto young = profile.Snapshot();
  EXPECT_EQ(profile.Snapshot(), young);  // read again, the same bytes: not indexed again
  LetItSettle();
  EXPECT_EQ(profile.Snapshot(), young);
  WriteInPlace("2");
  EXPECT_NE(profile.Snapshot(), young);
  EXPECT_EQ(young->Find("s", "k"), "1");  // the old state stays whole for its holder
}

}  // namespace
}  // namespace loquitor::testing
