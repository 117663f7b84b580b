#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "files/platform_files.h"
#include "files/profile_file.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {

/// A folder in a memory file system, where saves are quick because nothing is flushed. The
/// temporary folder if there is none.
inline std::filesystem::path QuickPlace() {
  return IsWritableFolder("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
}

/// A folder with nothing but the file that is saved.
class SafeSaveTest : public ::testing::Test {
 protected:
  bool Save(const std::string& zKey, const std::string& zValue) const {
    return WriteProfileValue("Words", zKey, zValue, file);
  }
  std::string Load(const std::string& zKey) const {
    return ReadProfileValue("Words", zKey, "(none)", 2560, file);
  }
  void ExpectNoLitter() const {
    EXPECT_THAT(folder.Names(), ::testing::ElementsAre("Loquitor.Dic"));
  }

  TempFolder folder{QuickPlace()};
  std::filesystem::path file = folder / "Loquitor.Dic";
};

}  // namespace loquitor::testing
