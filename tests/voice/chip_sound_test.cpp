// The sounds besides the voice, and what starts and stops all sound.

#include <gtest/gtest.h>

#include "tests/support/rows.h"
#include "tests/voice/measure.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

const std::string Iy = "\x80";
const std::string Beep = "\xDD";  // 1000 Hz, 150 ms
const std::string LongPhrase(200, '\x88');

class ChipSoundTest : public ::testing::Test {
 protected:
  void Hear(double zMs) { heard = Render(sound, zMs); }
  void HearAll() { heard = RenderAll(sound); }
  void SetRegisters(const std::vector<std::pair<int, int>>& zRegisters) {
    for (const auto& [number, value] : zRegisters) {
      sound.SetRegister(number, value);
    }
  }

  std::map<int, std::string> phrases;
  ChipSound sound{[this](int zSlot) { return phrases[zSlot]; }};
  Samples heard;
};

TEST_F(ChipSoundTest, DialsTheTelephonesTones) {
  const double low[] = {697, 770, 852, 941};
  const double high[] = {1209, 1336, 1477, 1633};
  const std::string keys = "123A456B789C*0#D";
  const std::string codes = "0123456789*#";
  for (std::size_t i = 0; i < codes.size(); ++i) {
    heard = Said(std::string(1, static_cast<char>(240 + i)));
    const std::size_t key = keys.find(codes[i]);
    for (std::size_t tone = 0; tone < 4; ++tone) {
      const bool isLow = tone == key / 4;
      const bool isHigh = tone == key % 4;
      EXPECT_EQ(ToneHeight(Middle(heard), low[tone]) > 1000, isLow) << codes[i];
      EXPECT_EQ(ToneHeight(Middle(heard), high[tone]) > 1000, isHigh) << codes[i];
    }
  }
}

TEST_F(ChipSoundTest, NeverClips) {
  std::string codes = "\x14\x7F\x15\x7F";
  for (int code = 128; code < 255; ++code) {
    codes += std::string("\x0E") + static_cast<char>(code);
  }
  sound.Say(codes);
  for (int i = 1; i <= 5; ++i) {
    SetRegisters({{i, 3999 / i}, {10 + i, 31}});
  }
  SetRegisters({{7, 127}, {6, 255}});
  Hear(30000);
  EXPECT_GT(Peak(heard), 30000) << "loud enough to ask for it";
  int clipped = 0;
  for (std::size_t i = 1; i < heard.size(); ++i) {
    clipped += std::abs(int{heard[i]}) >= 32767 && heard[i] == heard[i - 1];
  }
  EXPECT_EQ(clipped, 0);
}

TEST_F(ChipSoundTest, PlaysAnOscillatorUntilItsRegistersChange) {
  SetRegisters({{1, 440}});
  EXPECT_TRUE(sound.IsQuiet()) << "without a volume";
  SetRegisters({{11, 20}});
  EXPECT_FALSE(sound.IsQuiet());
  Hear(3000);
  const double height = ToneHeight(Middle(heard), 440);
  EXPECT_GT(height, 2000);
  EXPECT_LT(Loudness(Middle(heard)), height) << "hardly anything else";
  SetRegisters({{1, 1000}, {11, 10}});
  Hear(1000);
  EXPECT_NEAR(ToneHeight(Middle(heard), 1000), height / 2, height / 50);
  EXPECT_LT(ToneHeight(Middle(heard), 440), height / 100);
  SetRegisters({{7, 48}});
  Hear(1000);
  EXPECT_NEAR(ToneHeight(Middle(heard), 1000), height / 4, height / 50) << "half the master volume";
  SetRegisters({{11, 0}});
  EXPECT_TRUE(sound.IsQuiet());
  Hear(100);
  EXPECT_EQ(Peak(std::span(heard).subspan(SamplesIn(50))), 0);
}

TEST_F(ChipSoundTest, AddsTonesAndNoises) {
  SetRegisters({{1, 440}, {11, 20}, {2, 660}, {12, 20}, {3, 880}, {13, 20}});
  Hear(1000);
  for (const double hertz : {440.0, 660.0, 880.0}) {
    EXPECT_GT(ToneHeight(Middle(heard), hertz), 2000) << hertz;
  }
  const double tones = Loudness(Middle(heard));
  for (const int noise : {4, 5}) {
    sound.Reset();
    SetRegisters({{noise, 1000}, {10 + noise, 20}});
    Hear(1000);
    EXPECT_GT(Loudness(Middle(heard)), tones / 10);
    EXPECT_LT(ToneHeight(Middle(heard), 1000), Loudness(Middle(heard)) / 4) << "no tone";
    const double plain = Loudness(Middle(heard));
    SetRegisters({{6, 255}});
    Hear(1000);
    EXPECT_GT(Loudness(Middle(heard)), 1.3 * plain) << "distorted";
  }
}

TEST_F(ChipSoundTest, LetsTheEnvelopeShapeTonesOrNoises) {
  // The loudness in steps of 5 ms: how far it goes down and up.
  const auto depth = [this] {
    Hear(2000);
    double lowest = 1e9;
    double highest = 0;
    for (std::size_t i = SamplesIn(100); i + SamplesIn(5) < heard.size(); i += SamplesIn(5)) {
      const double loudness = Loudness(std::span(heard).subspan(i, SamplesIn(5)));
      lowest = std::min(lowest, loudness);
      highest = std::max(highest, loudness);
    }
    return lowest / highest;
  };
  constexpr int tonesEnveloped = 64;
  constexpr int noisesHalfEnveloped = 128;
  SetRegisters({{1, 2000}, {11, 30}, {0, 8}});
  EXPECT_GT(depth(), 0.95) << "no envelope";
  SetRegisters({{8, noisesHalfEnveloped}});
  EXPECT_GT(depth(), 0.95) << "only the noises are enveloped";
  for (int type = 0; type < 4; ++type) {
    SetRegisters({{8, tonesEnveloped + type}});
    EXPECT_LT(depth(), 0.1) << type;
  }
  SetRegisters({{11, 0}, {4, 3999}, {14, 31}, {8, tonesEnveloped + 3}});
  const double steady = depth();
  EXPECT_GT(steady, 0.4) << "noise is never quite even";
  SetRegisters({{8, noisesHalfEnveloped + 3}});
  EXPECT_LT(depth(), 0.8 * steady);
  EXPECT_GT(depth(), 0.2) << "half";
}

TEST_F(ChipSoundTest, IgnoresRegistersAndValuesThatDoNotExist) {
  SetRegisters({{-1, 5}, {9, 5}, {10, 5}, {16, 5}, {1, -40}, {11, 5}});
  EXPECT_TRUE(sound.IsQuiet());
  SetRegisters({{1, 440}, {11, 1000}});
  Hear(200);
  const Samples limited = heard;
  sound.Reset();
  Hear(200);
  ChipSound other([](int) { return std::string(); });
  other.SetRegister(1, 440);
  other.SetRegister(11, 31);
  EXPECT_EQ(Render(other, 200), limited);
}

TEST_F(ChipSoundTest, IsSilentWithinTwentyMillisecondsOfAReset) {
  using Registers = std::vector<std::pair<int, int>>;
  for (const auto& [codes, registers, ms] :
       Rows<std::string, Registers, double>{{LongPhrase, {}, 100},
                                            {LongPhrase, {}, 1001.3},
                                            {std::string(50, '\xBB'), {}, 150},
                                            {Beep, {}, 100},
                                            {"", {{1, 440}, {11, 31}}, 37},
                                            {"", {{4, 1000}, {14, 31}}, 37},
                                            {LongPhrase, {{1, 440}, {11, 31}}, 500}}) {
    sound.Say(codes);
    SetRegisters(registers);
    Hear(ms);
    EXPECT_GT(Peak(heard), 300) << ms;
    sound.Reset();
    EXPECT_TRUE(sound.IsQuiet());
    Hear(500);
    EXPECT_EQ(Peak(std::span(heard).subspan(SamplesIn(20))), 0) << ms;
    int highestStep = 0;  // no click: the sound fades
    for (std::size_t i = 1; i < heard.size(); ++i) {
      highestStep = std::max(highestStep, std::abs(heard[i] - heard[i - 1]));
    }
    EXPECT_LT(highestStep, 2500) << ms;
  }
  sound.Say(Iy);
  HearAll();
  EXPECT_NEAR(Milliseconds(heard), Milliseconds(Said(Iy)), 0.1) << "the rest is forgotten";
}

TEST_F(ChipSoundTest, HoldsEverythingAtAWaitUntilItIsRestarted) {
  constexpr std::uint8_t restart = 0xE0;  // all bits that keep things as they are, except Restart
  constexpr std::uint8_t nothing = 0xF0;
  sound.Say("\x10" + Beep);
  SetRegisters({{1, 440}, {11, 31}});
  Hear(100);
  EXPECT_TRUE(sound.IsQuiet());
  Hear(2000);
  EXPECT_EQ(Peak(heard), 0);
  sound.RunEvent(DecodeEvent(nothing));
  EXPECT_TRUE(sound.IsQuiet());
  sound.RunEvent(DecodeEvent(restart));
  EXPECT_FALSE(sound.IsQuiet());
  Hear(150);
  EXPECT_GT(ToneHeight(Middle(heard), 1000), 1000) << "the queue goes on";
  EXPECT_GT(ToneHeight(Middle(heard), 440), 1000) << "and so do the oscillators";
}

TEST_F(ChipSoundTest, SaysStoredPhrasesWhereTheyAreCalled) {
  phrases = {{0, Iy + Beep}, {3, "\x02\x1C\x02"s}, {2, Iy}};
  EXPECT_EQ(Said("\x1D\0"s, phrases), Said(phrases[0]));
  EXPECT_EQ(Said("\x1C\0"s, phrases), Said(phrases[0]));
  EXPECT_EQ(Said("\x1D\x03\x8B", phrases), Said("\x02\x80\x8B")) << "one that calls one";
  EXPECT_EQ(Said("\x1D\x07\x1C\xFF\x8B", phrases), Said("\x8B")) << "empty, not there";
}

TEST_F(ChipSoundTest, SurvivesPhrasesThatCallThemselves) {
  phrases = {{0, "\x1C\0"s}, {1, Iy + "\x1D\x01"}, {2, "\x1C\x02\x1C\x02" + Iy}};
  for (const int slot : {0, 1, 2}) {
    sound.Reset();
    sound.Say(std::string{'\x1D', static_cast<char>(slot)});
    Hear(3000);
    if (slot != 2) {  // it says IY when the queue can take no further phrase
      EXPECT_EQ(Peak(heard) > 0, slot == 1) << slot;
    }
    EXPECT_FALSE(sound.IsQuiet());
    sound.Reset();
    EXPECT_TRUE(sound.IsQuiet());
  }
}

TEST_F(ChipSoundTest, DoesWhatAnEventByteAsksFor) {
  // Bit 7 clear: say the phrase; 6 clear: empty the queue; 5 set: at once; 4 clear: restart.
  phrases[5] = Beep;
  const std::string queue = Iy + "\x02" + Iy;
  const double word = Milliseconds(Said(Iy));
  for (const auto& [event, beepAt, length] :
       Rows<int, double, double>{{0xF5, -1, 2 * word + 300},              // nothing
                                 {0x55, 2 * word + 300, 2 * word + 450},  // after what waits
                                 {0x75, word, 2 * word + 450},  // called: before what waits
                                 {0x15, 2, 152},                // in place of what waits
                                 {0x35, 2, 152},
                                 {0xB5, -1, 2}}) {  // only empties
    sound.Reset();
    sound.Say(queue);
    Hear(2);
    const Samples start = heard;
    sound.RunEvent(DecodeEvent(static_cast<std::uint8_t>(event)));
    HearAll();
    heard.insert(heard.begin(), start.begin(), start.end());
    EXPECT_NEAR(Milliseconds(heard), length, 4) << event;
    if (beepAt >= 0) {
      const auto beep = std::span(heard).subspan(SamplesIn(beepAt + 20), SamplesIn(100));
      EXPECT_GT(ToneHeight(beep, 1000), 1000) << event;
    }
  }
}

TEST_F(ChipSoundTest, WaitsALittleForTheNeighbourWhenCodesComeOneByOne) {
  ChipSound patient([](int) { return std::string(); }, 20);
  patient.Say(Iy);
  Render(patient, 10);
  patient.Say("\x8B");
  Samples later = RenderAll(patient);
  Samples atOnce = Said(Iy + "\x8B");
  EXPECT_EQ(later.size(), atOnce.size() + SamplesIn(10));
  patient.Say(Iy);
  const Samples beginning = Render(patient, 50);
  EXPECT_GT(Peak(beginning), 1000) << "the first sample comes within 50 ms";
}

}  // namespace
}  // namespace loquitor::testing
