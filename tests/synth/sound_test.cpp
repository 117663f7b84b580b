#include "ui/synth/sound.h"

#include "tests/synth/synth_window.h"

namespace loquitor::testing {
namespace {

TEST(SoundName, SaysWhichNamesASectionCannotHold) {
  for (const char* good : {"Bell", "Big Ben", "[", "a[b", ";x", "a=b", "\xC4ol", "\"q\"", "'"}) {
    EXPECT_EQ(FaultOfSoundName(good), "") << good;
  }
  for (const char* bad : {"", " ", "\t ", " Bell", "Bell ", "a]b", "]", "a\nb", "a\rb", "a\tb"}) {
    EXPECT_NE(FaultOfSoundName(bad), "") << bad;
  }
  EXPECT_NE(FaultOfSoundName(std::string_view("a\0b", 3)), "");
}

TEST_F(OpenSynthTest, ASoundIsSavedUnderItsNameAndNothingIsSent) {
  Given("scFreq", {440, 0, 3999});
  Given("scVol", {20, 31});
  GivenSounds("Bell", "; mine\r\n[Other]\r\nFreq1=5\r\n");
  Click("btnSave");
  EXPECT_EQ(
      ReadBytes(Library()),
      "; mine\r\n[Other]\r\nFreq1=5\r\n[Bell]\r\nFreq1=440\r\nVol1=20\r\nFreq2=0\r\nVol2=31\r\n"
      "Freq3=3999\r\nVol3=0\r\nFreq4=0\r\nVol4=0\r\nFreq5=0\r\nVol5=0\r\n");
  EXPECT_EQ(Sent(), "");
}

TEST_F(OpenSynthTest, LoadingWritesOnlyWhatDiffersOscillatorByOscillator) {
  Given("scVol", {20, 5, 5});
  GivenSounds("bell",
              "[Bell]\nFreq1=440\nVol1=20\nFreq2=9999\nVol2=-3\nFreq3=2.5\nVol3=x\nVol4=1e9\n");
  Click("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 440}, {2, 3999}, {12, 0}, {3, 2}, {13, 0}, {14, 31}}));
  Box("txtSound")->setText("no such sound");
  Click("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 0}, {11, 0}, {2, 0}, {3, 0}, {14, 0}}));
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(OpenSynthTest, AWrongNameIsRefusedAndAnUnusableLibraryGivesNoMessage) {
  Given("scFreq", {440});
  for (const char* button : {"btnSave", "btnLoad"}) {
    prompts.asked.clear();
    Box("txtSound")->setText("a]b");
    Click(button);
    ASSERT_EQ(prompts.asked.size(), 1U) << button;
    EXPECT_EQ(prompts.asked[0].title, "Loquitor");
    EXPECT_EQ(Value("scFreq(1)"), 440);
  }
  EXPECT_FALSE(std::filesystem::exists(Library()));
  std::filesystem::create_directory(Library());
  prompts.asked.clear();
  Box("txtSound")->setText("Bell");
  Click("btnSave");
  Click("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 0}}));
  EXPECT_TRUE(prompts.asked.empty());
}

}  // namespace
}  // namespace loquitor::testing
