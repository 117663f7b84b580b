#include "say/speaker.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "files/settings_file.h"
#include "tests/e2e/pty_chip.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

TEST(SpeakerTest, GivesUpOnALineThatIsHeldBackAndStartsAfresh) {
  int count = 0;
  const QCoreApplication application(count, nullptr);
  TempFolder folder;
  PtyChip chip;
  WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=" + chip.Path() + "\r\n");
  const SettingsFile settings(folder.Path());
  Speaker speaker(settings, false, std::chrono::milliseconds(30));
  for (const std::size_t length : {2U, 60U}) {  // less than a port's queue takes, and more
    chip.HoldBack();
    EXPECT_FALSE(speaker.Say(std::string(length, 'a')));
    EXPECT_TRUE(speaker.Complaint().starts_with("the chip holds the line back"));
    chip.Release();
    EXPECT_TRUE(speaker.Say("b"));
    EXPECT_EQ(chip.Received(), "b");
    chip.Forget();
  }
}

}  // namespace
}  // namespace loquitor::testing
