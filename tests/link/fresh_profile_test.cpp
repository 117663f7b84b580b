#include "link/fresh_profile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <string>
#include <thread>

#include "link/profile_file.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

/// A file that others change, and the one index that has to notice.
class FreshProfileTest : public ::testing::Test {
 protected:
  std::string Value() {
    const auto index = profile.Index();
    return index ? std::string(index->Find("s", "k").value_or("(no key)")) : "(no file)";
  }
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
  FreshProfile profile{file};
};

TEST_F(FreshProfileTest, SeesEveryChangeAtOnce) {
  EXPECT_EQ(Value(), "(no file)");
  WriteBytes(file, Text("0"));
  EXPECT_EQ(Value(), "0");
  ASSERT_TRUE(WriteProfileValue("s", "k", "1", file));
  EXPECT_EQ(Value(), "1");
  std::filesystem::remove(file);
  EXPECT_EQ(Value(), "(no file)");
  WriteBytes(file, "");
  EXPECT_EQ(Value(), "(no key)");
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_EQ(Value(), "(no file)");
  std::filesystem::remove(file);
  WriteBytes(file, Text("huge"));
  std::filesystem::resize_file(file, LargestLoadedFile + 1);
  EXPECT_EQ(Value(), "(no file)");
  std::filesystem::remove(file);
  std::filesystem::create_symlink("elsewhere", file);
  for (const char* value : {"4", "5"}) {
    WriteBytes(folder / "elsewhere", Text(value));
    EXPECT_EQ(Value(), value);
  }
}

/// The clock that dates changes stands still for milliseconds: many of these states have the same
/// size and the same times.
TEST_F(FreshProfileTest, SeesChangesOfTheSameSizeInTheSameTick) {
  WriteBytes(file, Text("100"));
  for (int i = 100; i < 1000; ++i) {
    const std::string value = std::to_string(i);
    i % 3 == 0 ? RenameOver(value) : WriteInPlace(value);
    ASSERT_EQ(Value(), value);
    ASSERT_EQ(ReadProfileValue("s", "k", "", 99, file), value);
  }
}

TEST_F(FreshProfileTest, IsNotDeceivedByTimesThatAreSetBack) {
  WriteBytes(file, Text("1"));
  LetItSettle();
  EXPECT_EQ(Value(), "1");
  struct stat before {};
  ASSERT_EQ(stat(file.c_str(), &before), 0);
  WriteInPlace("2");
  const timespec times[] = {before.st_atim, before.st_mtim};
  ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
  EXPECT_EQ(Value(), "2");
}

TEST_F(FreshProfileTest, TrustsNoStampThatIsTooYoung) {
  constexpr std::int64_t second = 1'000'000'000;
  for (const auto& [changed, now, isSettled] : Rows<std::int64_t, std::int64_t, bool>{
           {100 * second + 1, 100 * second + 15'000'000, false},
           {100 * second + 1, 100 * second + 25'000'000, true},
           {100 * second + 1, 99 * second, false},  // the clock was set back
           {100 * second, 101 * second, false},     // counts whole seconds
           {100 * second, 102 * second, false},     // counts them two at a time
           {100 * second, 103 * second, true}}) {
    EXPECT_EQ(IsSettled({1, 2, 3, 0, changed}, now), isSettled) << now;
  }
  WriteBytes(file, Text("1"));
  EXPECT_FALSE(LoadFile(file)->isSettled);
  LetItSettle();
  EXPECT_TRUE(LoadFile(file)->isSettled);
}

TEST_F(FreshProfileTest, ReadsAnUnchangedFileOnce) {
  WriteBytes(file, Text("1"));
  const auto young = profile.Index();
  EXPECT_EQ(profile.Index(), young);  // read again, the same bytes: not indexed again
  LetItSettle();
  const auto settled = profile.Index();
  EXPECT_EQ(settled, young);
  const auto index = FreshIndexOf(file);
  EXPECT_EQ(FreshIndexOf(file), index);
  WriteInPlace("2");
  EXPECT_NE(FreshIndexOf(file), index);
  EXPECT_EQ(index->Find("s", "k"), "1");  // who holds the old state keeps it whole
}

TEST_F(FreshProfileTest, RemembersMoreFilesThanItHasRoomForWithoutMixingThem) {
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 9; ++i) {
      const auto other = folder / ("file" + std::to_string(i));
      WriteBytes(other, Text(std::to_string(10 * round + i)));
      EXPECT_EQ(ReadProfileValue("s", "k", "", 99, other), std::to_string(10 * round + i));
    }
  }
}

}  // namespace
}  // namespace loquitor::testing
