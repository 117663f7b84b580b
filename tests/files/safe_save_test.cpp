// Saving when things go wrong, as far as it is the same on every system.

#include <algorithm>
#include <future>
#include <thread>

#include "files/file_bytes.h"
#include "tests/files/safe_save.h"

namespace loquitor::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(SafeSaveTest, TwoWritersAtOnceLoseNothing) {
  constexpr int words = 300;
  const auto saveAll = [this](const std::string& zStem) {
    int saved = 0;
    for (; saved < words && Save(zStem + std::to_string(saved), "\\HE \\LO"); ++saved) {
    }
    return saved;
  };
  std::future<int> other = std::async(std::launch::async, saveAll, "other");
  EXPECT_EQ(saveAll("one"), words);
  EXPECT_EQ(other.get(), words);
  const std::string text = ReadBytes(file);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1 + 2 * words);
  for (int i = 0; i < words; ++i) {
    ASSERT_EQ(Load("one" + std::to_string(i)), "\\HE \\LO");
    ASSERT_EQ(Load("other" + std::to_string(i)), "\\HE \\LO");
  }
  ExpectNoLitter();
}

TEST_F(SafeSaveTest, ANameThatIsTakenDoesNotStopASave) {
  const fs::path taken = folder / ".loquitor-new";
  WriteBytes(taken, "left by a killed program");
  ASSERT_TRUE(Save("k", "1"));
  ExpectNoLitter();
  fs::create_directories(taken / "not empty");  // cannot be removed like a file
  ASSERT_TRUE(Save("k", "2"));
  fs::remove_all(taken);
  ExpectNoLitter();
}

TEST_F(SafeSaveTest, ASaveThatCannotGetTheLockFails) {
  ASSERT_TRUE(Save("k", "1"));
  std::promise<void> held;
  std::promise<void> wanted;
  std::thread other([&] {
    const FolderLock lock(folder.Path());
    EXPECT_EQ(lock.Result(), FolderLock::State::Held);
    held.set_value();
    wanted.get_future().wait();
  });
  held.get_future().wait();
  EXPECT_FALSE(Save("k", "2"));
  wanted.set_value();
  other.join();
  EXPECT_TRUE(Save("k", "3"));
}

TEST_F(SafeSaveTest, WhatIsNoOrdinaryFileIsNeitherReadNorReplaced) {
  fs::create_directory(folder / "folder");
  for (const fs::path& path : {folder / "folder", folder / "none/file", fs::path()}) {
    const auto type = fs::status(path).type();
    EXPECT_EQ(StampOf(path), std::nullopt) << path;
    EXPECT_EQ(ReadProfileValue("s", "k", "default", 99, path), "default") << path;
    EXPECT_EQ(ReadWholeFile(path), std::nullopt) << path;
    EXPECT_FALSE(WriteProfileValue("s", "k", "1", path)) << path;
    EXPECT_FALSE(ReplaceFile(path, "1")) << path;
    EXPECT_EQ(fs::status(path).type(), type) << path;
  }
  EXPECT_THAT(folder.Names(), ::testing::ElementsAre("folder"));
}

TEST_F(SafeSaveTest, ABarePathIsTakenFromTheCurrentFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  EXPECT_TRUE(WriteProfileValue("s", "k", "1", "bare.ini"));
  EXPECT_EQ(ReadProfileValue("s", "k", "", 9, "bare.ini"), "1");
  fs::current_path(before);
  EXPECT_THAT(folder.Names(), ::testing::ElementsAre("bare.ini"));
}

TEST_F(SafeSaveTest, PathsHaveLettersOfEveryAlphabet) {
  const fs::path place = folder.Path() / fs::path(u8"\u039B\u03AD\u03BE\u03B7 \u0438 \u00FC");
  ASSERT_TRUE(fs::create_directory(place));
  file = place / fs::path(u8"\u0421\u043B\u043E\u0432\u0430 \u03A9.ini");
  EXPECT_TRUE(IsWritableFolder(place));
  for (const char* value : {"1", "2"}) {  // the first save makes the file
    ASSERT_TRUE(Save("k", value));
    EXPECT_EQ(Load("k"), value);
    EXPECT_EQ(FollowLinks(file)->filename(), file.filename());
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(place), {}), 1);
}

}  // namespace
}  // namespace loquitor::testing
