#include "ui/chip/eeprom_image.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

using Slots = std::array<SlotCodes, PhraseSlotCount>;

std::string EmptyOffsets(std::size_t zCount) {
  return std::string(zCount, EndOfPhrase);
}

TEST(EepromImage, PutsFilledSlotsInOrderBehindTheOffsets) {
  Slots slots;
  slots[0] = "\x80";
  slots[2] = "";  // mnemonics without a code still take their place
  slots[15] = std::string("\0\x83", 2);
  EXPECT_EQ(BuildEepromImage(slots), std::string("\x10\xff\x12", 3) + EmptyOffsets(12) + "\x13" +
                                         std::string("\x80\xff\xff\0\x83\xff", 6));
}

TEST(EepromImage, CountsOffsetsModulo256) {
  Slots slots;
  slots[0] = std::string(238, '\x80');  // 16 + 238 + 1 = 255
  slots[1] = std::string(4, '\x81');    // 255 + 4 + 1 = 260
  slots[2] = "\x82";
  EXPECT_EQ(BuildEepromImage(slots).substr(0, 4), "\x10\xff\x04\xff");
}

TEST(EepromImage, IsWrittenByteByByteFromLocationZero) {
  Slots slots;
  slots[3] = "\x80\x83";
  EXPECT_EQ(EepromWriteString(BuildEepromImage(slots)),
            R"(\00J32HFFN\01J32HFFN\02J32HFFN\03J32H10N\04J32HFFN\05J32HFFN\06J32HFFN\07J32HFFN)"
            R"(\08J32HFFN\09J32HFFN\010J32HFFN\011J32HFFN\012J32HFFN\013J32HFFN\014J32HFFN)"
            R"(\015J32HFFN\016J32H80N\017J32H83N\018J32HFFN\0VX)");
}

TEST(EepromImage, TellsHowMuchIsUsed) {
  const struct {
    std::size_t imageLength;
    const char* text;
    UsageBand band;
  } rows[] = {
      {16, "37 used of 256", UsageBand::Roomy},
      {19, "40 used of 256", UsageBand::Roomy},
      {219, "240 used of 256", UsageBand::Roomy},
      {220, "241 used of 256", UsageBand::Tight},
      {235, "256 used of 256", UsageBand::Tight},
      {236, "257 used of 256", UsageBand::Overfull},
      {5000, "5021 used of 256", UsageBand::Overfull},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(UsageText(UsedLocations(row.imageLength)), row.text);
    EXPECT_EQ(BandOfUsage(UsedLocations(row.imageLength)), row.band) << row.text;
  }
}

TEST(EepromImage, TranslatesASlot) {
  const testing::TempFolder folder;
  testing::WriteBytes(folder / "Loquitor.Dic", "[words]\r\nhello=\\HE\r\nnothing=\r\n");
  CodeTable table;
  table.BuildCodeTable();
  const DictionaryStore dictionary(folder.Path());
  const SayDataTranslator translator(table, dictionary);
  const struct {
    const char* sayData;
    SlotCodes codes;
  } rows[] = {
      {"", std::nullopt},
      {" ", std::nullopt},
      {"missing words", std::nullopt},
      {"nothing", std::nullopt},
      {"\\ZZ9", ""},
      {"hello \\EH", "\xb7\x83"},
      {"\\PITCH \\0", std::string("\x16\0", 2)},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(TranslateSlot(translator, row.sayData), row.codes) << row.sayData;
  }
}

}  // namespace
}  // namespace loquitor
