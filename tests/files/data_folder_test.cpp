#include "files/data_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

namespace fs = std::filesystem;

/// A program, a package's files and a home. The superuser may write everywhere, so a place that
/// cannot be written is one that is not there: below an ordinary file.
class DataFolderTest : public ::testing::Test {
 protected:
  DataFolderTest() {
    fs::create_directory(program);
    fs::create_directory(share);
    WriteBytes(folder / "file", "");
  }

  fs::path Choose(const fs::path& zProgram, const std::optional<fs::path>& zUser) const {
    return ChooseDataFolder({zProgram, share, zUser});
  }

  TempFolder folder;
  const fs::path program = folder / "program";
  const fs::path share = folder / "share";
  const fs::path user = folder / "home/data/Loquitor";
  const fs::path closed = folder / "file/closed";
};

TEST_F(DataFolderTest, AWritableProgramFolderKeepsTheFiles) {
  WriteBytes(program / "Loquitor.Dic", "[words]\r\n");
  EXPECT_EQ(Choose(program, user), program);
  EXPECT_FALSE(fs::exists(folder / "home"));
}

TEST_F(DataFolderTest, APackageAndAClosedFolderLeaveThemToTheUser) {
  EXPECT_EQ(Choose(closed, user), user);
  EXPECT_TRUE(fs::is_empty(user));  // there is no dictionary to start with
  WriteBytes(share / "Loquitor.Dic", "starter");
  EXPECT_EQ(Choose(program, user), user);  // also for the superuser, who may write into it
  EXPECT_EQ(ReadBytes(user / "Loquitor.Dic"), "starter");
}

TEST_F(DataFolderTest, TheDictionaryIsCopiedOnceAndTheProgramsOwnComesFirst) {
  WriteBytes(share / "Loquitor.Dic", "of the package");
  WriteBytes(program / "Loquitor.Dic", "of the program");
  EXPECT_EQ(Choose(program, user), user);
  EXPECT_EQ(ReadBytes(user / "Loquitor.Dic"), "of the program");
  WriteBytes(user / "Loquitor.Dic", "mine");
  EXPECT_EQ(Choose(program, user), user);
  EXPECT_EQ(ReadBytes(user / "Loquitor.Dic"), "mine");
}

#ifndef _WIN32  // where links need rights that users do not have

TEST_F(DataFolderTest, ALinkToADictionaryThatIsAwayStays) {
  WriteBytes(program / "Loquitor.Dic", "of the program");
  WriteBytes(share / "Loquitor.Dic", "of the package");
  fs::create_directories(user);
  fs::create_symlink(folder / "unplugged disk", user / "Loquitor.Dic");
  EXPECT_EQ(Choose(program, user), user);
  EXPECT_TRUE(fs::is_symlink(user / "Loquitor.Dic"));
  EXPECT_FALSE(fs::exists(folder / "unplugged disk"));
}

#endif

TEST_F(DataFolderTest, WithoutAUsersFolderTheDictionaryIsReadWhereItIs) {
  EXPECT_EQ(Choose(closed, std::nullopt), closed);
  WriteBytes(share / "Loquitor.Dic", "starter");
  EXPECT_EQ(Choose(closed, std::nullopt), share);
  EXPECT_EQ(Choose(closed, folder / "file/Loquitor"), share);
}

#ifdef _WIN32

TEST(DataPlacesTest, TheEnvironmentNamesTheUsersFolder) {
  const std::wstring before = _wgetenv(L"LOCALAPPDATA");
  for (const auto& [data, expected] :
       Rows<const wchar_t*, const wchar_t*>{{L"C:\\\u0416 \u03A9", L"C:\\\u0416 \u03A9\\Loquitor"},
                                            {L"", L""},
                                            {L"relative", L""}}) {
    _wputenv_s(L"LOCALAPPDATA", data);
    EXPECT_EQ(FindDataPlaces().user.value_or("").wstring(), expected);
  }
  _wputenv_s(L"LOCALAPPDATA", before.c_str());
}

#else

TEST(DataPlacesTest, TheEnvironmentNamesTheUsersFolder) {
  for (const auto& [data, home, expected] :
       Rows<const char*, const char*, const char*>{{"/d", "/h", "/d/Loquitor"},
                                                   {"", "/h", "/h/.local/share/Loquitor"},
                                                   {"relative", "/h", "/h/.local/share/Loquitor"},
                                                   {"", "relative", ""}}) {
    setenv("XDG_DATA_HOME", data, 1);
    setenv("HOME", home, 1);
    EXPECT_EQ(FindDataPlaces().user.value_or("").string(), expected) << data << " " << home;
  }
}

#endif

}  // namespace
}  // namespace loquitor::testing
