#include "ui/chip/eeprom_image.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

TEST(EepromImage, PutsFilledSlotsInOrderBehindTheOffsets) {
  std::array<SlotCodes, PhraseSlotCount> slots;
  slots[0] = "\x80";
  slots[2] = "";  // mnemonics without a code still take their place
  slots[15] = std::string("\0\x83", 2);
  EXPECT_EQ(BuildEepromImage(slots), std::string("\x10\xff\x12", 3) + std::string(12, EndOfPhrase) +
                                         "\x13" + std::string("\x80\xff\xff\0\x83\xff", 6));
}

TEST(EepromImage, CountsOffsetsModulo256) {
  std::array<SlotCodes, PhraseSlotCount> slots;
  slots[0] = std::string(238, '\x80');  // 16 + 238 + 1 = 255
  slots[1] = std::string(4, '\x81');    // 255 + 4 + 1 = 260
  slots[2] = "\x82";
  EXPECT_EQ(BuildEepromImage(slots).substr(0, 4), "\x10\xff\x04\xff");
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
  } rows[] = {{"", std::nullopt},
              {" ", std::nullopt},
              {"missing words", std::nullopt},
              {"nothing", std::nullopt},
              {"\\ZZ9", ""},
              {"hello \\EH", "\xb7\x83"},
              {"\\PITCH \\0", std::string("\x16\0", 2)}};
  for (const auto& row : rows) {
    EXPECT_EQ(TranslateSlot(translator, row.sayData), row.codes) << row.sayData;
  }
}

}  // namespace
}  // namespace loquitor
