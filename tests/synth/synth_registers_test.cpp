#include "ui/synth/synth_registers.h"

#include <gtest/gtest.h>

#include <limits>

#include "ui/synth/sound_name.h"

namespace loquitor {
namespace {

TEST(SynthRegisters, TheEnvelopeByteHoldsTypeAndBothBoxes) {
  using enum synth::EnvelopeType;
  EXPECT_EQ(EnvelopeControlByte(Saw, false, false), 0);
  EXPECT_EQ(EnvelopeControlByte(Sine, false, true), 65);
  EXPECT_EQ(EnvelopeControlByte(Triangle, true, false), 130);
  EXPECT_EQ(EnvelopeControlByte(Square, true, true), 195);
}

TEST(SynthRegisters, HarmoniseFindsTheNearestMultipleThatFits) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    int frequency;
    double base;
    int expected;
  } rows[] = {
      {54, 110, 0},        {55, 110, 110},     {100, 110, 110},      {170, 110, 220},
      {3999, 110, 3960},   {0, 110, 0},        {3999, 1, 3999},      {7, 2.5, 8},
      {6, 2.5, 5},         {9, 2.5, 10},       {3600, 1000, 3000},   {2500, 4000, 0},
      {1999, 3999, 0},     {2000, 3999, 3999}, {3999, 3999.4, 3999}, {3999, 3999.5, 0},
      {3999, 0.3, 3999},   {440, 1e-300, 440}, {440, 5e-324, 440},   {3999, 1e300, 0},
      {3999, infinity, 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(HarmonisedFrequency(row.frequency, row.base), row.expected)
        << row.frequency << " by " << row.base;
  }
}

TEST(SynthRegisters, AdjustedValuesRoundHalvesToEvenAndStopAtTheTop) {
  const struct {
    int base;
    int percent;
    int frequency;
    int volume;
  } rows[] = {
      {0, 200, 0, 0},   {10, 150, 15, 15}, {20, 150, 30, 30}, {31, 150, 46, 31},
      {5, 150, 8, 8},   {3, 150, 4, 4},    {31, 100, 31, 31}, {31, 0, 0, 0},
      {25, 50, 12, 12}, {27, 50, 14, 14},  {1, 50, 0, 0},     {31, 200, 62, 31},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(AdjustedFrequency(row.base, row.percent), row.frequency) << row.base;
    EXPECT_EQ(AdjustedVolume(static_cast<std::int16_t>(row.base), row.percent), row.volume)
        << row.base;
  }
  EXPECT_EQ(AdjustedFrequency(2000, 200), 3999);
  EXPECT_EQ(AdjustedFrequency(3999, 200), 3999);
  EXPECT_EQ(AdjustedFrequency(3999, 100), 3999);
}

TEST(SoundName, SaysWhichNamesASectionCannotHold) {
  for (const char* good : {"Bell", "Big Ben", "[", "a[b", ";x", "a=b", "\xC4ol", "\"q\"", "'"}) {
    EXPECT_EQ(FaultOfSoundName(good), "") << good;
  }
  for (const char* bad : {"", " ", "\t ", " Bell", "Bell ", "a]b", "]", "a\nb", "a\rb", "a\tb"}) {
    EXPECT_NE(FaultOfSoundName(bad), "") << bad;
  }
  EXPECT_NE(FaultOfSoundName(std::string_view("a\0b", 3)), "");
}

}  // namespace
}  // namespace loquitor
