// Saving when things go wrong, where a test can fork, kill, limit files and be other users: other
// programs, kills, full disks, folders that may not be written, links, what is no file.

#include <fcntl.h>
#include <grp.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <string>
#include <thread>

#include "files/file_bytes.h"
#include "tests/files/safe_save.h"

namespace loquitor::testing {
namespace {

namespace fs = std::filesystem;

/// Runs `zStory` in a new process.
pid_t StartChild(const std::function<bool()>& zStory) {
  const pid_t child = fork();
  if (child == 0) {
    _exit(zStory() ? 0 : 1);
  }
  return child;
}

/// Waits for the end of a child; true when its story returned true.
bool HasSucceeded(pid_t zChild) {
  int status = 0;
  return waitpid(zChild, &status, 0) == zChild && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool InChild(const std::function<bool()>& zStory) {
  return HasSucceeded(StartChild(zStory));
}

class SafeSavePosixTest : public SafeSaveTest {
 protected:
  static struct stat StatusOf(const fs::path& zFile) {
    struct stat status {};
    EXPECT_EQ(stat(zFile.c_str(), &status), 0);
    return status;
  }
};

TEST_F(SafeSavePosixTest, TwoProgramsSavingAtOnceLoseNothing) {
  constexpr int words = 1000;
  const auto saveAll = [this](const std::string& zStem) {
    int saved = 0;
    for (; saved < words && Save(zStem + std::to_string(saved), "\\HE \\LO"); ++saved) {
    }
    return saved == words;
  };
  const pid_t child = StartChild([&] { return saveAll("child"); });
  EXPECT_TRUE(saveAll("parent"));
  EXPECT_TRUE(HasSucceeded(child));
  const std::string text = ReadBytes(file);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1 + 2 * words);
  for (int i = 0; i < words; ++i) {
    ASSERT_EQ(Load("child" + std::to_string(i)), "\\HE \\LO");
    ASSERT_EQ(Load("parent" + std::to_string(i)), "\\HE \\LO");
  }
  ExpectNoLitter();
}

/// Lets a process save one word after the other, and kills it after `zTime`. Returns how many saves
/// had returned.
int CountSavesUntilKilled(const std::function<bool(int)>& zSave, std::chrono::microseconds zTime) {
  int ends[2];
  EXPECT_EQ(pipe(ends), 0);
  const pid_t child = StartChild([&] {
    for (int i = 0; zSave(i) && write(ends[1], "", 1) == 1; ++i) {
    }
    return false;
  });
  static_cast<void>(close(ends[1]));
  std::this_thread::sleep_for(zTime);
  EXPECT_EQ(kill(child, SIGKILL), 0);
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status)) << "a save has failed";
  int saved = 0;
  for (char told; read(ends[0], &told, 1) == 1;) {
    ++saved;
  }
  static_cast<void>(close(ends[0]));
  return saved;
}

TEST_F(SafeSavePosixTest, AKilledProgramLeavesAWholeFileAndNoLitter) {
  std::mt19937 random(20260722);
  const auto valueOf = [](int zWord) {
    return std::string(static_cast<unsigned>(zWord) % 97, 'x');
  };
  int word = 0;
  for (int round = 0; round < 500; ++round) {
    const auto save = [&](int i) {
      return Save("w" + std::to_string(word + i), valueOf(word + i));
    };
    const int end = word + CountSavesUntilKilled(save, std::chrono::microseconds(random() % 8000));
    for (; word < end; ++word) {
      ASSERT_EQ(Load("w" + std::to_string(word)), valueOf(word));
    }
    ++word;  // it is not known whether the interrupted save took place
    if (word > 2000 || round == 499) {
      // The first save after the file was removed may have been cut off.
      ASSERT_TRUE(!fs::exists(file) || ReadBytes(file).ends_with("\r\n"));
      ASSERT_TRUE(Save("last", "1"));
      ExpectNoLitter();
      fs::remove(file);
      word = 0;
    }
  }
}

TEST_F(SafeSavePosixTest, AFullDiskLeavesTheOldFileWhole) {
  WriteBytes(file, "[Words]\nk=1\n");
  EXPECT_TRUE(InChild([this] {
    static_cast<void>(signal(SIGXFSZ, SIG_IGN));
    const rlimit limit{1000, 1000};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0 && !Save("k", std::string(2000, 'x')) &&
           !ReplaceFile(file, std::string(1001, 'x')) && Save("j", "fits");
  }));
  EXPECT_EQ(ReadBytes(file), "[Words]\nk=1\nj=fits\r\n");
  ExpectNoLitter();
}

TEST_F(SafeSavePosixTest, AFolderOrFileThatMayNotBeWrittenStaysAsItIs) {
  for (const auto& [folderMode, fileMode] : {std::pair{0555U, 0666U}, std::pair{0777U, 0444U}}) {
    ASSERT_EQ(chmod(folder.Path().c_str(), 0777), 0);
    fs::remove(file);
    WriteBytes(file, "[Words]\nk=1\n");
    ASSERT_EQ(chmod(file.c_str(), fileMode), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), folderMode), 0);
    EXPECT_TRUE(InChild([this] {
      constexpr uid_t nobody = 65534;
      const bool isBound = geteuid() != 0 || setuid(nobody) == 0;  // nothing binds an administrator
      return isBound && Load("k") == "1" && !Save("k", "2") && !ReplaceFile(file, "new") &&
             Load("k") == "1";
    }));
    EXPECT_EQ(ReadBytes(file), "[Words]\nk=1\n");
    ExpectNoLitter();
  }
  ASSERT_EQ(chmod(folder.Path().c_str(), 0700), 0);
}

TEST_F(SafeSavePosixTest, PermissionsAndOwnerAreKeptAndNewFilesFollowTheMask) {
  using namespace std::string_literals;
  // User 12345 may write the file, and the group may only read it. The mode does not show that.
  const std::string list =
      "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\x39\x30\0\0"
      "\4\0\4\0\xFF\xFF\xFF\xFF\x10\0\6\0\xFF\xFF\xFF\xFF"
      "\x20\0\0\0\xFF\xFF\xFF\xFF"s;
  const auto accessList = [this] {
    std::string found(99, '\0');
    const auto size = getxattr(file.c_str(), "system.posix_acl_access", found.data(), found.size());
    return found.substr(0, static_cast<std::size_t>(std::max(size, ssize_t{0})));
  };
  for (const mode_t mode : {0600, 0664, 0640, 0755}) {
    WriteBytes(file, "");
    ASSERT_EQ(chmod(file.c_str(), mode), 0);
    if (geteuid() == 0) {
      ASSERT_EQ(chown(file.c_str(), 12345, 54321), 0);
    }
    const bool hasList = mode == 0640 && setxattr(file.c_str(), "system.posix_acl_access",
                                                  list.data(), list.size(), 0) == 0;
    const auto before = StatusOf(file);
    ASSERT_TRUE(Save("k", std::to_string(mode)));
    EXPECT_EQ(accessList(), hasList ? list : "");
    EXPECT_EQ(StatusOf(file).st_mode, before.st_mode);
    EXPECT_EQ(StatusOf(file).st_uid, before.st_uid);
    EXPECT_EQ(StatusOf(file).st_gid, before.st_gid);
    EXPECT_NE(StatusOf(file).st_ino, before.st_ino);  // swapped, not written over
    fs::remove(file);
  }
  if (geteuid() == 0) {  // else there is no other user to share a file with
    static constexpr gid_t everyones = 54321;
    WriteBytes(file, "");
    ASSERT_EQ(chmod(file.c_str(), 0664) + chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(chown(file.c_str(), 12345, everyones), 0);
    EXPECT_TRUE(InChild([this] {
      return setgroups(1, &everyones) + setgid(12346) + setuid(12346) == 0 && Save("k", "1");
    }));
    EXPECT_EQ(StatusOf(file).st_gid, everyones);
    fs::remove(file);
  }
  const mode_t mask = umask(027);
  ASSERT_TRUE(Save("k", "1"));
  static_cast<void>(umask(mask));
  EXPECT_EQ(StatusOf(file).st_mode & 0777, mode_t{0640});
}

TEST_F(SafeSavePosixTest, LinksAreFollowedToTheFileOrToWhereItWillBe) {
  fs::create_directories(folder / "a/b");
  fs::create_symlink("a/link", file);
  fs::create_symlink("b/real.dic", folder / "a/link");
  ASSERT_TRUE(Save("k", "1"));  // the link is dangling until now
  ASSERT_TRUE(Save("k", "2"));
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_TRUE(fs::is_symlink(folder / "a/link"));
  EXPECT_EQ(ReadBytes(folder / "a/b/real.dic"), "[Words]\r\nk=2\r\n");
  for (const std::string& bytes : {std::string("a\0\r\n\xFF", 5), std::string(300'000, 'x')}) {
    ASSERT_TRUE(ReplaceFile(file, bytes));
    EXPECT_EQ(ReadWholeFile(folder / "a/b/real.dic"), bytes);
  }

  fs::create_symlink("circle2", folder / "circle1");
  fs::create_symlink("circle1", folder / "circle2");
  EXPECT_FALSE(WriteProfileValue("s", "k", "1", folder / "circle1"));
  EXPECT_FALSE(ReplaceFile(folder / "circle1", ""));
}

/// In a shared folder anyone may take the name of the new file.
TEST_F(SafeSavePosixTest, ANameThatSomeoneElseHasTakenDoesNotStopASave) {
  const fs::path taken = folder / ".loquitor-new";
  ASSERT_TRUE(Save("k", "2"));
  if (geteuid() != 0) {
    GTEST_SKIP() << "only an administrator can be two users";
  }
  WriteBytes(taken, "someone else's");
  ASSERT_EQ(chmod(folder.Path().c_str(), 01777) + chmod(file.c_str(), 0666), 0);
  EXPECT_TRUE(InChild([this] { return setuid(12345) == 0 && !Save("k", "3"); }))
      << "someone else's dictionary cannot be swapped there";
  ASSERT_EQ(chown(file.c_str(), 12345, 12345), 0);
  EXPECT_TRUE(InChild([this] { return setuid(12345) == 0 && Save("k", "4"); }));
  EXPECT_EQ(ReadBytes(taken), "someone else's");
  EXPECT_THAT(folder.Names(), ::testing::UnorderedElementsAre("Loquitor.Dic", ".loquitor-new"));
}

TEST_F(SafeSavePosixTest, WhatIsNoOrdinaryFileOnThisSystemIsNeitherReadNorReplaced) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  for (const fs::path& path :
       {folder / "pipe", fs::path("/dev/zero"), fs::path("/proc/none.ini")}) {
    const auto type = fs::status(path).type();
    EXPECT_EQ(ReadProfileValue("s", "k", "default", 99, path), "default") << path;
    EXPECT_EQ(ReadWholeFile(path), std::nullopt) << path;
    EXPECT_FALSE(WriteProfileValue("s", "k", "1", path)) << path;
    EXPECT_FALSE(ReplaceFile(path, "1")) << path;
    EXPECT_EQ(fs::status(path).type(), type) << path;
  }
  EXPECT_THAT(folder.Names(), ::testing::ElementsAre("pipe"));
}

}  // namespace
}  // namespace loquitor::testing
