#include "ui/chip/event_configuration.h"

#include <gtest/gtest.h>

#include <utility>

#include "ui/chip/decimal_form.h"

namespace loquitor {
namespace {

TEST(EventConfiguration, MakesEventBytes) {
  const struct {
    EventSetting event;
    int input;
    int powerUp;
  } rows[] = {{{}, 0xD0, 0xF0},
              {{.playsPhrase = true, .clearsBuffer = true, .restartsFromWait = true, .phrase = 5},
               0x05,
               0x75},
              {{.callsPhrase = true, .phrase = 3}, 0xF3, 0xF3},
              {{.playsPhrase = true}, 0x50, 0x70},
              {{.clearsBuffer = true}, 0x90, 0xF0},
              {{.restartsFromWait = true}, 0xC0, 0xF0},
              {{.phrase = 20}, 0xD4, 0xF4},
              {{.phrase = -1}, 0xDF, 0xFF}};
  for (const auto& row : rows) {
    EXPECT_EQ(EventByte(row.event), row.input);
    EXPECT_EQ(PowerUpByte(row.event), row.powerUp);
  }
}

/// The bytes for locations 238 and 239, one behind the other.
int BytesOf(const EventConfiguration& zConfiguration) {
  return InputOutputByte(zConfiguration) << 8 | StartupNodeByte(zConfiguration);
}

TEST(EventConfiguration, MakesConfigurationBytes) {
  const std::array<int, OptionCount> alone{0xD088, 0xC088, 0xE088, 0xC088, 0xC188, 0xC088,
                                           0xC288, 0xC088, 0xC488, 0xC088, 0xC089, 0xC088,
                                           0xC08A, 0xC088, 0xC08C, 0xC088};
  EventConfiguration leftOnes;
  leftOnes.isAutoSilent = true;
  EXPECT_EQ(BytesOf(leftOnes), 0xC888);
  for (std::size_t option = 0; option < alone.size(); ++option) {
    EventConfiguration configuration;
    configuration.options[option] = true;
    EXPECT_EQ(BytesOf(configuration), alone[option]) << option;
    leftOnes.options[option] = option % 2 == 0;
  }
  EXPECT_EQ(BytesOf(leftOnes), 0xFF8F);
  for (const auto& [node, bytes] : {std::pair(5, 0xC0D8), {7, 0xC0F8}, {9, 0xC098}, {-1, 0xC0F8}}) {
    EventConfiguration configuration;
    configuration.scpNode = node;
    EXPECT_EQ(BytesOf(configuration), bytes) << node;
  }
}

TEST(EventConfiguration, TakesOnlyNormalisedPhraseNumbers) {
  const struct {
    const char* text;
    std::optional<int> number;
  } rows[] = {{"0", 0},      {"15", 15},         {"-1", -1},
              {"12.5", 12},  {"13.5", 14},       {"2147483647", 2147483647},
              {"", {}},      {"abc", {}},        {"7x", {}},
              {"05", {}},    {"2147483648", {}}, {"-2147483649", {}},
              {"1E+20", {}}, {"1E999", {}}};
  for (const auto& row : rows) {
    EXPECT_EQ(PhraseNumberOf(row.text), row.number) << row.text;
  }
}

TEST(DecimalForm, IsTheShortestThatPeopleExpect) {
  const struct {
    std::string text;
    std::string form;
  } rows[] = {{"", "0"},          {"abc", "0"},
              {"7x", "7"},        {"12.5", "12.5"},
              {".5", "0.5"},      {"-.5", "-0.5"},
              {"7.0", "7"},       {"007", "7"},
              {"-0", "0"},        {"+3", "3"},
              {"1E3", "1000"},    {"1D-2x", "0.01"},
              {" 1 2 ", "12"},    {"&HFF", "255"},
              {"0.1", "0.1"},     {"1.2.3", "1.2"},
              {"-1", "-1"},       {"99999999999", "99999999999"},
              {"1E15", "1E+15"},  {"-2E-7", "-2E-07"},
              {"1E999", "1E999"}, {"123456789012345", "123456789012345"}};
  for (const auto& row : rows) {
    EXPECT_EQ(DecimalForm(row.text), row.form) << row.text;
    EXPECT_EQ(DecimalForm(row.form), row.form) << row.text;
  }
}

}  // namespace
}  // namespace loquitor
