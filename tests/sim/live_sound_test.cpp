// The sound of the virtual chip, and the lines that change its inputs.

#include "sim/live_sound.h"

#include <gtest/gtest.h>

#include "sim/input_line.h"
#include "tests/support/rows.h"
#include "tests/voice/measure.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

class LiveSoundTest : public ::testing::Test {
 protected:
  void Receive(std::string_view zBytes) {
    for (const ChipEvent& event : chip.Receive(zBytes)) {
      sound.Hear(event, chip);
    }
  }
  void Change(int zInput, bool zIsHigh) {
    sound.RunEvent(DecodeEvent(EventByte({zInput, zIsHigh}, chip)));
  }
  Samples Hear(double zMs) {
    Samples samples(SamplesIn(zMs));
    sound.Render(samples);
    return samples;
  }

  VirtualChip chip;
  LiveSound sound;
};

const std::string Beep = "\xDD";  // 1000 Hz

bool IsBeep(const Samples& zSamples) {
  return ToneHeight(Middle(zSamples), 1000) > 1000;
}

TEST_F(LiveSoundTest, SoundsWithinFiftyMillisecondsAndIsSilentWithinTwentyOfAReset) {
  for (const char* codes : {"\x88\x88\x88\x88", "\x8C\x88", "\xBB\x80", "\xDD"}) {
    Hear(1000);
    Receive(codes);
    EXPECT_GT(Peak(Hear(50)), 30) << codes;
    Hear(60);
    Receive("\\0RX\x1F\0"s);
    Hear(20);
    EXPECT_EQ(Peak(Hear(1000)), 0) << codes;
  }
}

TEST_F(LiveSoundTest, TakesWhatArrivesByteByByte) {
  for (const char byte : "\x14\x30"s + Beep) {
    Receive(std::string(1, byte));
  }
  const double half = ToneHeight(Middle(Hear(150)), 1000);
  Receive("\\0RX" + Beep);
  EXPECT_NEAR(ToneHeight(Middle(Hear(150)), 1000) / half, 2, 0.1);
}

TEST_F(LiveSoundTest, SaysThePhrasesOfItsMemoryAndPlaysItsRegisters) {
  Receive("\\00J32H10N\\016J32HDDN\\017J32HFFN\\0VX\x1D\0"s);
  EXPECT_TRUE(IsBeep(Hear(150)));
  Receive("\\01J 440NX\\011J 20NX");
  Hear(10000);
  EXPECT_GT(ToneHeight(Hear(200), 440), 1000) << "until it is changed";
  Receive("\\01J 880NX");
  Hear(10);
  EXPECT_GT(ToneHeight(Hear(200), 880), 1000);
  Receive("\\011J 0NX");
  Hear(50);
  EXPECT_EQ(Peak(Hear(200)), 0);
  Receive("\\0237J32H70N\\0RX");
  EXPECT_TRUE(IsBeep(Hear(150))) << "the phrase of power up and reset";
}

TEST_F(LiveSoundTest, DoesWhatTheInputsAreConfiguredFor) {
  Receive("\\00J32H10N\\016J32HDDN\\017J32HFFN");
  Receive("\\0246J32H50N");  // input 3 goes high: play phrase 0
  Receive("\\0247J32HE0N");  // input 3 goes low: restart from Wait
  Change(2, true);
  EXPECT_EQ(Peak(Hear(100)), 0) << "not configured";
  Change(3, true);
  EXPECT_TRUE(IsBeep(Hear(150)));
  Hear(50);
  Receive("\x10" + Beep);
  EXPECT_EQ(Peak(Hear(1000)), 0);
  Change(3, false);
  EXPECT_TRUE(IsBeep(Hear(150)));
}

TEST_F(LiveSoundTest, KeepsWhatSoundsAndHalfASecondOfSilence) {
  sound.Record();
  Hear(1000);
  EXPECT_EQ(sound.TakeRecorded().size(), 0U);
  EXPECT_FALSE(sound.IsSounding());
  Receive(Beep);
  EXPECT_TRUE(sound.IsSounding());
  Samples heard;
  for (int i = 0; i < 300; ++i) {
    const Samples part = Hear(10);
    heard.insert(heard.end(), part.begin(), part.end());
  }
  const Samples kept = sound.TakeRecorded();
  EXPECT_NEAR(Milliseconds(kept), 150 + 500, 40);
  ASSERT_LE(kept.size(), heard.size());
  EXPECT_TRUE(std::equal(kept.begin(), kept.end(), heard.begin()));
  EXPECT_EQ(sound.TakeRecorded().size(), 0U);
}

TEST(InputLineTest, ReadsAnInputAndItsLevel) {
  for (const auto& [line, input, isHigh] : Rows<const char*, int, bool>{
           {"3h", 3, true}, {"0l", 0, false}, {" 7 High ", 7, true}, {"7\tLOW\r", 7, false}}) {
    const auto change = ParseInputLine(line);
    ASSERT_TRUE(change.has_value()) << line;
    EXPECT_EQ(change->input, input);
    EXPECT_EQ(change->isHigh, isHigh);
  }
  for (const char* line : {"", " ", "3", "h", "8h", "3x", "33h", "-1h", "high 3"}) {
    EXPECT_FALSE(ParseInputLine(line).has_value()) << line;
  }
}

}  // namespace
}  // namespace loquitor::testing
