// Saving when things go wrong, as only Windows has it.

#include <thread>

#include "tests/files/safe_save.h"
#include "tests/support/wine.h"

namespace loquitor::testing {
namespace {

TEST_F(SafeSaveTest, AReadOnlyFileStaysAsItIs) {
  if (IsOnWine()) {
    GTEST_SKIP() << "nothing binds the superuser of the system below Wine";
  }
  ASSERT_TRUE(Save("k", "1"));
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_FALSE(Save("k", "2"));
  EXPECT_EQ(Load("k"), "1");
  ExpectNoLitter();
  ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(SafeSaveTest, AFileThatAnotherProgramHasForItselfStaysAsItIs) {
  ASSERT_TRUE(Save("k", "1"));
  const HANDLE other = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_FALSE(Save("k", "2"));
  EXPECT_EQ(Load("k"), "1");
  CloseHandle(other);
  ExpectNoLitter();
  EXPECT_TRUE(Save("k", "3"));
}

TEST_F(SafeSaveTest, OneFolderHasOneLockHoweverItsNameIsWritten) {
  std::filesystem::create_directory(folder / "Words");
  const FolderLock lock(folder / "Words");
  ASSERT_EQ(lock.Result(), FolderLock::State::Held);
  FolderLock::State other = FolderLock::State::Held;
  std::thread([&] { other = FolderLock(folder / "words/../WORDS").Result(); }).join();
  EXPECT_EQ(other, FolderLock::State::TimedOut);
}

}  // namespace
}  // namespace loquitor::testing
