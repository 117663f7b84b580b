#include "ui/chip/event_configuration.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "ui/chip/decimal_form.h"

namespace loquitor {
namespace {

/// A configuration with these options chosen.
EventConfiguration Chosen(std::initializer_list<std::size_t> zOptions, bool zIsAutoSilent = false,
                          int zNode = 0) {
  EventConfiguration configuration;
  for (const std::size_t option : zOptions) {
    configuration.options[option] = true;
  }
  configuration.isAutoSilent = zIsAutoSilent;
  configuration.scpNode = zNode;
  return configuration;
}

TEST(EventConfiguration, MakesEventBytes) {
  const struct {
    EventSetting event;
    int input;
    int powerUp;
  } rows[] = {
      {{}, 0xD0, 0xF0},
      {{.playsPhrase = true, .clearsBuffer = true, .restartsFromWait = true, .phrase = 5},
       0x05,
       0x75},
      {{.callsPhrase = true, .phrase = 3}, 0xF3, 0xF3},
      {{.playsPhrase = true}, 0x50, 0x70},
      {{.clearsBuffer = true}, 0x90, 0xF0},
      {{.restartsFromWait = true}, 0xC0, 0xF0},
      {{.phrase = 20}, 0xD4, 0xF4},
      {{.phrase = -1}, 0xDF, 0xFF},
      {{.phrase = 16}, 0xD0, 0xF0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(EventByte(row.event), row.input);
    EXPECT_EQ(PowerUpByte(row.event), row.powerUp);
  }
}

TEST(EventConfiguration, MakesConfigurationBytes) {
  const struct {
    EventConfiguration configuration;
    int inputOutput;
    int startupNode;
  } rows[] = {
      {Chosen({}), 0xC0, 0x88},
      {Chosen({}, true), 0xC8, 0x88},
      {Chosen({0, 2, 4, 6, 8, 10, 12, 14}, true), 0xFF, 0x8F},
      {Chosen({1, 3, 5, 7, 9, 11, 13, 15}, false, 5), 0xC0, 0xD8},
      {Chosen({0}), 0xD0, 0x88},
      {Chosen({2}), 0xE0, 0x88},
      {Chosen({4}), 0xC1, 0x88},
      {Chosen({6}), 0xC2, 0x88},
      {Chosen({8}), 0xC4, 0x88},
      {Chosen({10}), 0xC0, 0x89},
      {Chosen({12}), 0xC0, 0x8A},
      {Chosen({14}), 0xC0, 0x8C},
      {Chosen({}, false, 9), 0xC0, 0x98},
      {Chosen({}, false, -1), 0xC0, 0xF8},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(InputOutputByte(row.configuration), row.inputOutput);
    EXPECT_EQ(StartupNodeByte(row.configuration), row.startupNode);
  }
}

TEST(EventConfiguration, IsSentAsOneString) {
  EventConfiguration configuration = Chosen({}, true);
  configuration.events[15].phrase = 7;
  EXPECT_EQ(EventConfigurationString(configuration),
            std::string(R"(\0RX\0240J32HD0N\0241J32HD0N\0242J32HD0N\0243J32HD0N\0244J32HD0N)"
                        R"(\0245J32HD0N\0246J32HD0N\0247J32HD0N\0248J32HD0N\0249J32HD0N)"
                        R"(\0250J32HD0N\0251J32HD0N\0252J32HD0N\0253J32HD0N\0254J32HD0N)"
                        R"(\0255J32HD7N\0237J32HF0N\0238J32HC8N\0239J32H88N\0W)") +
                std::string(5, '\0') + R"(\0VX)");
}

TEST(EventConfiguration, TakesOnlyNormalisedPhraseNumbers) {
  const struct {
    const char* text;
    std::optional<int> number;
  } rows[] = {
      {"0", 0},      {"15", 15},         {"-1", -1},
      {"12.5", 12},  {"13.5", 14},       {"2147483647", 2147483647},
      {"", {}},      {"abc", {}},        {"7x", {}},
      {"05", {}},    {"2147483648", {}}, {"-2147483649", {}},
      {"1E+20", {}}, {"1E999", {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(PhraseNumberOf(row.text), row.number) << row.text;
  }
}

TEST(DecimalForm, IsTheShortestThatPeopleExpect) {
  const struct {
    std::string text;
    std::string form;
  } rows[] = {
      {"", "0"},          {"abc", "0"},
      {"7x", "7"},        {"12.5", "12.5"},
      {".5", "0.5"},      {"-.5", "-0.5"},
      {"7.0", "7"},       {"007", "7"},
      {"-0", "0"},        {"+3", "3"},
      {"1E3", "1000"},    {"1D-2x", "0.01"},
      {" 1 2 ", "12"},    {"&HFF", "255"},
      {"0.1", "0.1"},     {"1.2.3", "1.2"},
      {"-1", "-1"},       {"99999999999", "99999999999"},
      {"1E15", "1E+15"},  {"-2E-7", "-2E-07"},
      {"1E999", "1E999"}, {"123456789012345", "123456789012345"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(DecimalForm(row.text), row.form) << row.text;
    EXPECT_EQ(DecimalForm(row.form), row.form) << row.text;
  }
}

}  // namespace
}  // namespace loquitor
