// The voice: its sounds, and the codes that change how they are said.

#include <gtest/gtest.h>

#include <set>

#include "core/code_table.h"
#include "tests/support/rows.h"
#include "tests/voice/measure.h"
#include "voice/effects.h"
#include "voice/sound_table.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

const std::string Iy = "\x80";
const std::string Ah = "\x88";
const std::string SlowAh = "\x08\x88";
const std::string Beep = "\xDC";

TEST(SpeechTest, HasARowForEverySoundOfTheChipAndTheyAllSoundDifferent) {
  CodeTable table;
  table.BuildCodeTable();
  std::set<Samples> heard;
  int sounds = 0;
  for (int code = 32; code < 256; ++code) {
    const auto byte = static_cast<std::uint8_t>(code);
    const bool isNamed = !table.GetCodeMnemonic(byte).empty();
    const bool hasRow = FindSound(byte) != nullptr || FindEffect(byte) != nullptr;
    EXPECT_EQ(hasRow, isNamed) << code;
    const Samples samples = Said(std::string(1, static_cast<char>(code)));
    EXPECT_EQ(Peak(samples) > 100, isNamed) << code << " " << Peak(samples);
    sounds += isNamed;
    if (isNamed) {
      heard.insert(samples);
    }
    if (const VoiceSound* sound = FindSound(byte)) {
      EXPECT_EQ(sound->code, code);
    }
    if (const Effect* effect = FindEffect(byte)) {
      EXPECT_EQ(effect->code, code);
    }
  }
  EXPECT_EQ(sounds, 72 + 55);
  EXPECT_EQ(heard.size(), static_cast<std::size_t>(sounds));
}

TEST(SpeechTest, VoicesAtThePitchInHertz) {
  EXPECT_NEAR(Fundamental(Middle(Said(SlowAh))), 88, 1) << "the default";
  for (const char vowel : {'\x80', '\x83', '\x88', '\x8B', '\x8C', '\x94', '\x97'}) {
    for (const int pitch : {55, 88, 110, 175, 247}) {
      const std::string codes = {'\x16', static_cast<char>(pitch), '\x08', '\x08', vowel};
      EXPECT_NEAR(Fundamental(Middle(Said(codes))), pitch, 0.015 * pitch)
          << (vowel & 0xFF) << " at " << pitch;
    }
  }
  EXPECT_NEAR(Fundamental(Middle(Said("\x16\x6E\x1F"s + SlowAh))), 88, 1) << "after a reset code";
}

TEST(SpeechTest, WhispersAtPitchZero) {
  const Samples whispered = Said("\x16\0\x08\x88"s);
  EXPECT_GT(Loudness(Middle(whispered)), 100);
  EXPECT_LT(Loudness(Middle(whispered)), Loudness(Middle(Said(SlowAh))));
}

TEST(SpeechTest, PausesAsLongAsTheirTableSays) {
  const double beeps = Milliseconds(Said(Beep + Beep));
  for (const auto& [codes, ms] : Rows<std::string, double>{{"\x01", 100},
                                                           {"\x02", 300},
                                                           {"\x03", 700},
                                                           {"\x04", 10},
                                                           {"\x05", 36},
                                                           {"\x06", 60},
                                                           {"\0"s, 0},
                                                           {"\x1E\0"s, 0},
                                                           {"\x1E\x64", 1000},
                                                           {"\x1E\xFF", 2550},
                                                           {"\x02\x02", 600}}) {
    EXPECT_NEAR(Milliseconds(Said(Beep + codes + Beep)) - beeps, ms, 0.1) << ms;
  }
  const Samples around = Said(Iy + "\x02" + Iy);
  const std::size_t sound = Said(Iy).size();
  ASSERT_EQ(around.size(), 2 * sound + SamplesIn(300));
  EXPECT_EQ(Peak(std::span(around).subspan(sound + SamplesIn(60), SamplesIn(200))), 0);
}

TEST(SpeechTest, TakesItsTimeFromSpeedAndModifiers) {
  for (const std::string& sound : {Iy, Beep}) {
    const double usual = Milliseconds(Said(sound));
    for (const auto& [codes, factor] : Rows<std::string, double>{{"\x15\x72", 1},
                                                                 {"\x15\x32", 2},
                                                                 {"\x15\x12", 4},
                                                                 {"\x07", 1 / 1.5},
                                                                 {"\x08", 2},
                                                                 {"\x08\x15\x32", 4},
                                                                 {"\x1A\x05", 5},
                                                                 {"\x1A\x03\x08", 6}}) {
      // The frames of a sound are 2 ms long, and a sound before itself is not the last of a phrase.
      const double tolerance = codes[0] == '\x1A' ? 0.4 * factor * usual : 2.0 + 2 * factor;
      EXPECT_NEAR(Milliseconds(Said(codes + sound)), factor * usual, tolerance) << factor;
    }
    EXPECT_EQ(Said("\x1A\x01" + sound), Said(sound));
    EXPECT_EQ(Said("\x1A\0"s + sound + "\x01").size(), SamplesIn(100)) << "repeated zero times";
    const double later = Milliseconds(Said("\x08" + sound + "\x02" + sound));
    EXPECT_NEAR(later, 3 * usual + 300, 4) << "a modifier holds for one sound";
  }
}

TEST(SpeechTest, IsAsLoudAsItsVolumeAndModifiersSay) {
  const double usual = Loudness(Middle(Said(Ah)));
  const double usualBeep = Loudness(Middle(Said(Beep)));
  EXPECT_NEAR(20 * std::log10(usual / 32768), -18, 4);
  for (const auto& [codes, factor] : Rows<std::string, double>{
           {"\x14\x60", 1}, {"\x14\x30", 0.5}, {"\x14\x7F", 127.0 / 96}, {"\x14\0"s, 0}}) {
    EXPECT_NEAR(Loudness(Middle(Said(codes + Ah))), factor * usual, 0.03 * usual) << factor;
    EXPECT_NEAR(Loudness(Middle(Said(codes + Beep))), factor * usualBeep, 0.03 * usualBeep);
  }
  EXPECT_LT(Loudness(Middle(Said("\x12" + Ah))), 0.6 * usual) << "soft";
  EXPECT_LT(Loudness(Middle(Said("\x0F" + Ah))), 0.9 * usual) << "relaxed";
  EXPECT_GT(Loudness(Middle(Said("\x0E" + Ah))), 1.1 * usual) << "stressed";
}

TEST(SpeechTest, BendsTheFormantsAndLeavesThePitch) {
  const VoiceSound& uw = *FindSound(0x8B);
  for (const int bend : {0, 3, 5, 10, 15}) {
    const std::string bent = {'\x17', static_cast<char>(bend)};
    const double formant = uw.from.f2 * std::pow(1.03, bend - 5);
    const Samples low = Said(bent + "\x16\x28\x08\x8B");
    EXPECT_NEAR(Strongest(Middle(low), 700, 1700), formant, 45) << bend;
    EXPECT_NEAR(Fundamental(Middle(Said(bent + "\x08\x8B"))), 88, 1) << bend;
  }
}

TEST(SpeechTest, PutsTheFormantsWhereTheTableHasThem) {
  int vowels = 0;
  for (const VoiceSound& sound : SoundTable()) {
    const bool isSteady = sound.from.f1 == sound.to.f1 && sound.from.f2 == sound.to.f2;
    if (sound.kind != SoundKind::Vowel || !isSteady) {
      continue;
    }
    ++vowels;
    const std::string atForty = {'\x16', '\x28', '\x08', static_cast<char>(sound.code)};
    const Samples samples = Said(atForty);
    for (const double formant : {sound.from.f1, sound.from.f2}) {
      EXPECT_NEAR(Strongest(Middle(samples), formant - 150, formant + 150), formant, 45)
          << int{sound.code};
    }
  }
  EXPECT_GE(vowels, 10);
}

/// In windows of 20 ms: the loudness, and the strongest frequency between 700 and 2600 Hz.
std::vector<std::pair<double, double>> Course(const Samples& zSamples) {
  std::vector<std::pair<double, double>> course;
  for (std::size_t i = 0; i + SamplesIn(20) < zSamples.size(); i += SamplesIn(10)) {
    const auto window = std::span(zSamples).subspan(i, SamplesIn(20));
    course.emplace_back(Loudness(window), Strongest(window, 700, 2600));
  }
  return course;
}

TEST(SpeechTest, JoinsNeighboursAndPartsThemAtAPauseWithoutTransition) {
  for (const auto& [pause, isJoined] : Rows<std::string, bool>{{"", true}, {"\0"s, false}}) {
    const auto course = Course(Said("\x80" + pause + "\x8B"));
    int between = 0;
    double quietest = 1e9;
    double loudest = 0;
    for (std::size_t i = course.size() / 4; i < course.size() * 3 / 4; ++i) {
      quietest = std::min(quietest, course[i].first);
      loudest = std::max(loudest, course[i].first);
      between += course[i].second > 1250 && course[i].second < 1950;
    }
    EXPECT_EQ(between > 0, isJoined);
    EXPECT_EQ(quietest > loudest / 2, isJoined) << quietest << " of " << loudest;
  }
}

TEST(SpeechTest, IgnoresWhatMeansNothingAndAnUnfinishedCommand) {
  EXPECT_EQ(Said("").size(), 0U);
  EXPECT_EQ(Peak(Said("\x09\x0A\x1B\x20\x7F\xFF")), 0);
  EXPECT_EQ(Said(Iy + "\x09\x18\x07\x19\x07\xFF" + Ah), Said(Iy + Ah));
  EXPECT_EQ(Said(Iy + "\x16"), Said(Iy));
  ChipSound sound([](int) { return std::string(); });
  sound.Say("\x16");
  sound.Say("\x6E" + SlowAh);
  EXPECT_NEAR(Fundamental(Middle(RenderAll(sound))), 110, 1.5) << "a value in a later call";
}

TEST(SpeechTest, MakesTheSameSamplesEachTimeAndInPortionsOfAnySize) {
  std::string codes = "\x15\x7F";
  for (int code = 128; code < 255; ++code) {
    codes += static_cast<char>(code);
  }
  const Samples once = Said(codes);
  EXPECT_EQ(Said(codes), once);
  ChipSound sound([](int) { return std::string(); });
  sound.Say(codes);
  Samples portions;
  for (std::size_t size = 1; portions.size() < once.size(); size = size * 3 % 1009 + 1) {
    Samples part(std::min(size, once.size() - portions.size()));
    sound.Render(part);
    portions.insert(portions.end(), part.begin(), part.end());
  }
  EXPECT_EQ(portions, once);
}

}  // namespace
}  // namespace loquitor::testing
