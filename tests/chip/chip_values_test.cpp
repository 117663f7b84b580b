// What the windows of the chip compute: texts, bytes and command strings.

#include "tests/support/window_test.h"
#include "ui/chip/decimal_form.h"
#include "ui/chip/detune.h"
#include "ui/chip/eeprom_image.h"
#include "ui/chip/event_configuration.h"

namespace loquitor::testing {
namespace {

TEST(Detune, SendsOnlyBytesInHexadecimal) {
  const TextPairs sent = {{"&HFF", "FF"}, {"&H10", "10"},  {"&H5", "05"},    {"&HZZ", "00"},
                          {"&H", "00"},   {"&Ha7x", "A7"}, {"&H000FF", "FF"}};
  for (const auto& [text, hex] : sent) {
    EXPECT_EQ(ReadDetune(text).command, std::string("\\0235J32H") + hex + "N") << text;
    EXPECT_FALSE(ReadDetune(text).isRefused) << text;
  }
  for (const char* text : {"&H100", "&HFFFF", "&HFFFFFFFFFFFFFFFFFF", "255", "&hFF", "", " &HFF"}) {
    EXPECT_EQ(ReadDetune(text).command, "") << text;
    EXPECT_EQ(ReadDetune(text).isRefused, std::string_view(text).starts_with("&H")) << text;
  }
}

TEST(EepromImage, PutsFilledSlotsInOrderAfterTheirOffsetsModulo256) {
  std::array<SlotCodes, eeprom::PhraseCount> phrases;
  phrases[0] = "\x80";
  phrases[2] = "";  // mnemonics without a code still take their place
  phrases[15] = std::string("\0\x83", 2);
  EXPECT_EQ(BuildEepromImage(phrases), std::string("\x10\xff\x12", 3) + std::string(12, '\xff') +
                                           "\x13" + std::string("\x80\xff\xff\0\x83\xff", 6));
  phrases[0] = std::string(238, '\x80');  // 16 + 238 + 1 = 255
  phrases[1] = std::string(4, '\x81');    // 255 + 4 + 1 = 260
  EXPECT_EQ(BuildEepromImage(phrases).substr(0, 4), "\x10\xff\x04\xff");
}

TEST_F(WindowTest, ASlotIsEmptyWithoutMnemonics) {
  GivenDictionary("hello=\\HE\r\nnothing=\r\n");
  for (const char* sayData : {"", " ", "missing words", "nothing"}) {
    EXPECT_EQ(TranslateSlot(translator, sayData), std::nullopt) << sayData;
  }
  EXPECT_EQ(TranslateSlot(translator, "\\ZZ9"), "");
  EXPECT_EQ(TranslateSlot(translator, "hello \\EH"), "\xb7\x83");
  EXPECT_EQ(TranslateSlot(translator, "\\PITCH \\0"), std::string("\x16\0", 2));
}

TEST(EventConfiguration, MakesConfigurationBytes) {
  const auto bytesOf = [](const EventConfiguration& zConfiguration) {  // of locations 238 and 239
    return InputOutputByte(zConfiguration) << 8 | StartupNodeByte(zConfiguration);
  };
  const std::array<int, OptionCount> alone{0xD088, 0xC088, 0xE088, 0xC088, 0xC188, 0xC088,
                                           0xC288, 0xC088, 0xC488, 0xC088, 0xC089, 0xC088,
                                           0xC08A, 0xC088, 0xC08C, 0xC088};
  EventConfiguration leftOnes;
  leftOnes.isAutoSilent = true;
  EXPECT_EQ(bytesOf(leftOnes), 0xC888);
  for (std::size_t option = 0; option < alone.size(); ++option) {
    EventConfiguration configuration;
    configuration.options[option] = true;
    EXPECT_EQ(bytesOf(configuration), alone[option]) << option;
    leftOnes.options[option] = option % 2 == 0;
  }
  EXPECT_EQ(bytesOf(leftOnes), 0xFF8F);
  for (const auto& [node, bytes] : {std::pair(5, 0xC0D8), {7, 0xC0F8}, {9, 0xC098}, {-1, 0xC0F8}}) {
    EventConfiguration configuration;
    configuration.scpNode = node;
    EXPECT_EQ(bytesOf(configuration), bytes) << node;
  }
}

TEST(DecimalForm, IsTheShortestDecimalForm) {
  const Rows<std::string, std::string> rows = {{"", "0"},           {"12.5", "12.5"},
                                               {".5", "0.5"},       {"-.5", "-0.5"},
                                               {"7.0", "7"},        {"007", "7"},
                                               {"-0", "0"},         {"0.1", "0.1"},
                                               {"12E14", "1.2E15"}, {"-.0000002", "-0.0000002"},
                                               {"1E999", "1E999"}};
  for (const auto& [text, form] : rows) {
    EXPECT_EQ(DecimalForm(text), form) << text;
    EXPECT_EQ(DecimalForm(form), form) << text;
  }
  EXPECT_EQ(DecimalForm("123456789012345"), "123456789012345");
}

TEST(PhraseNumber, IsReadFromTheStartOfTheText) {
  EXPECT_EQ(PhraseNumberOf("-1x"), -1);
  EXPECT_EQ(PhraseNumberOf("13.5"), 14);
  for (const char* text : {"", "abc", "2147483648"}) {
    EXPECT_EQ(PhraseNumberOf(text), std::nullopt) << text;
  }
}

TEST(PhraseNumber, IsDescribedByThePhraseThatIsPlayed) {
  EXPECT_EQ(DescribePhraseNumber(4, "hello"), "Phrase 4: hello");
  EXPECT_EQ(DescribePhraseNumber(0, ""), "Phrase 0 is empty.");
  EXPECT_THAT(DescribePhraseNumber(20, "hello"), ::testing::EndsWith("number.\nPhrase 4: hello"));
  EXPECT_EQ(PlayedPhrase(-1), 15);
  EXPECT_THAT(DescribePhraseNumber(std::nullopt, "hello"), ::testing::HasSubstr("not a number"));
}

}  // namespace
}  // namespace loquitor::testing
