#include "sim/virtual_chip.h"

#include <gtest/gtest.h>

#include "line/scp.h"
#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

std::string Lines(VirtualChip& zChip, std::string_view zBytes) {
  std::string lines;
  for (const ChipEvent& event : zChip.Receive(zBytes)) {
    lines += zChip.Describe(event) + "\n";
  }
  return lines;
}

/// Stores `zCodes` as the phrase of `zSlot`, from `zStart` on.
void Store(VirtualChip& zChip, int zSlot, int zStart, std::string_view zCodes) {
  std::string write = MemoryWriteGroup(zSlot, static_cast<std::uint8_t>(zStart));
  for (const char code : std::string(zCodes) + "\xff") {
    write += MemoryWriteGroup(zStart++, static_cast<std::uint8_t>(code));
  }
  zChip.Receive(write + std::string(scp::Test));
}

TEST(VirtualChipTest, SaysWhatTheBytesMean) {
  for (const auto& [bytes, lines] : Rows<std::string, std::string>{
           {"", ""},
           {"\x00\x10\xb7\xfe"s, "code 0 \\P0\ncode 16 \\WAIT\ncode 183 \\HE\ncode 254 \\M2\n"},
           {"\x14\x00\x1e\xff\x1a\x07"s,
            "control 20 \\VOLUME 0\ncontrol 30 \\DELAY 255\ncontrol 26 \\REPEAT 7\n"},
           {"\x16\\\x80"s, "control 22 \\PITCH 92\ncode 128 \\IY\n"},  // any byte can be a value
           {"U\xff\x09 A"s,
            "sync character U\nunknown: FF  .\nunknown: 09  .\nunknown: 20   \nunknown: 41  A\n"},
           {"\x1d\x05\x1c\x14"s, "control 29 \\PLAY 5: empty\ncontrol 28 \\CALL 20: empty\n"},
           {StopSequence() + ConnectionTest(),
            "SCP reset\ncode 31 \\RESET\ncode 0 \\P0\ncode 31 \\RESET\nSCP test\n"},
           {MemoryWriteGroup(240, 0xD0) + MemoryWriteGroup(255, 7) + MemoryWriteGroup(237, 1),
            "SCP memory write: location 240 = 208 (input 0 goes high: does nothing)\n"
            "SCP memory write: location 255 = 7 (input 7 goes low: plays phrase 7, clears the "
            "buffer, "
            "restarts from a wait)\n"
            "SCP memory write: location 237 = 1 (power up and reset: plays phrase 1)\n"},
           {MemoryWriteGroup(234, 2) + MemoryWriteGroup(0, 255) +
                std::string(scp::StoreConfiguration),
            "SCP memory write: location 234 = 2 (phrases)\n"
            "SCP memory write: location 0 = 255 (start of phrase 0)\n"
            "SCP store configuration\n"},
           {RegisterWrite(7, 96) + RegisterWrite(12, 20) + RegisterWrite(1, 3999) +
                RegisterWrite(8, -5) + RegisterWrite(0, 88) + RegisterWrite(9, 1),
            "SCP register write: register 7 = 96 (master volume)\n"
            "SCP register write: register 12 = 20 (volume of oscillator 2)\n"
            "SCP register write: register 1 = 3999 (frequency of oscillator 1)\n"
            "SCP register write: register 8 = -5 (envelope control)\n"
            "SCP register write: register 0 = 88 (envelope frequency)\n"
            "SCP register write: register 9 = 1 (not used)\n"},
           // The detune write has no X; what follows is understood all the same.
           {MemoryWriteGroup(235, 16) + "\x80" + MemoryWriteGroup(235, 255) + RegisterWrite(6, 1),
            "SCP memory write: location 235 = 16 (clock detune)\ncode 128 \\IY\n"
            "SCP memory write: location 235 = 255 (clock detune)\n"
            "SCP register write: register 6 = 1 (distortion)\n"},
           // What fits no grammar.
           {"\\5RX", "unknown: 5C  \\\nunknown: 35  5\nunknown: 52  R\nunknown: 58  X\n"},
           {"\\0QX\x80", "unknown: 5C 30 51  \\0Q\ncode 128 \\IY\n"},
           {"\\0~\\0\x7f", "unknown: 5C 30 7E  \\0~\nincomplete: 5C 30  \\0\nunknown: 7F  .\n"},
           {"\\003J", "unknown: 5C 30 30 33 4A  \\003J\n"},            // a leading zero
           {"\\0256J", "unknown: 5C 30 32 35 36 4A  \\0256J\n"},       // no such location
           {"\\03J31H", "unknown: 5C 30 33 4A 33 31 48  \\03J31H\n"},  // another address
           {"\\03J32Hf", "unknown: 5C 30 33 4A 33 32 48 66  \\03J32Hf\n"},
           {"\\03J32H1FFN", "unknown: 5C 30 33 4A 33 32 48 31 46 46 4E  \\03J32H1FFN\n"},
           {"\\07J96NX", "unknown: 5C 30 37 4A 39 36 4E  \\07J96N\n"},       // no sign place
           {"\\016J 1NX", "unknown: 5C 30 31 36 4A 20 31 4E  \\016J 1N\n"},  // no such register
           {"\\01JRX", "unknown: 5C 30 31 4A 52  \\01JR\n"},
           {"\\0123456789", "unknown: 5C 30 31 32 33 34 35 36 37 38 39  \\0123456789\n"},
           {"\\024\\0RX", "incomplete: 5C 30 32 34  \\024\nSCP reset\n"},  // a write cut by Shut Up
           {"\\0W\0\0\\0RX"s, "incomplete: 5C 30 57 00 00  \\0W..\nSCP reset\n"},
           {"\\0W\x05"s, "incomplete: 5C 30 57  \\0W\ncode 5 \\P5\n"}}) {
    VirtualChip chip;
    EXPECT_EQ(Lines(chip, bytes), lines) << ::testing::PrintToString(bytes);
    EXPECT_EQ(chip.Pending(), std::nullopt) << ::testing::PrintToString(bytes);
  }
}

TEST(VirtualChipTest, KeepsWhatIsWrittenAndNothingElse) {
  VirtualChip chip;
  chip.Receive(MemoryWriteGroup(0, 16) + MemoryWriteGroup(255, 1) + RegisterWrite(15, 31) +
               RegisterWrite(7, 127) + "\\01J32H00\\02J 5");
  for (const auto& [location, value] : Rows<int, int>{{0, 16}, {1, 255}, {255, 1}}) {
    EXPECT_EQ(chip.Eeprom(location), value) << location;
  }
  for (const auto& [number, written, reset] :
       Rows<int, int, int>{{0, 88, 88}, {2, 0, 0}, {7, 127, 96}, {15, 31, 0}}) {
    EXPECT_EQ(chip.Register(number), written) << number;
    VirtualChip again = chip;
    again.Receive(scp::Reset);
    EXPECT_EQ(again.Register(number), reset) << number;
    EXPECT_EQ(again.Eeprom(0), 16);
  }
}

TEST(VirtualChipTest, PlaysStoredPhrasesAndTheOnesTheyCall) {
  VirtualChip chip;
  Store(chip, 3, 16, "\x80\x83");
  Store(chip, 4, 30, "\x1c\x03\x16\x1c\x1d\x04\x1c\x05");  // pitch 28 is no call; 4 plays itself
  Store(chip, 5, 50, "\x1c\x04\x1c\x03");
  EXPECT_EQ(chip.StoredPhrase(3), "\x80\x83");
  EXPECT_EQ(Lines(chip, "\x1d\x03"), "control 29 \\PLAY 3: 128 \\IY, 131 \\EH\n");
  EXPECT_EQ(Lines(chip, "\x1c\x04"),
            "control 28 \\CALL 4: 28 \\CALL 3, 22 \\PITCH 28, 29 \\PLAY 4, 28 \\CALL 5\n"
            "  phrase 3: 128 \\IY, 131 \\EH\n"
            "  phrase 5: 28 \\CALL 4, 28 \\CALL 3\n");
}

TEST(VirtualChipTest, StoredPhrasesEndWithTheirArea) {
  for (const auto& [start, length] :
       Rows<std::uint8_t, std::size_t>{{255, 0}, {235, 0}, {234, 1}, {230, 5}}) {
    VirtualChip chip;
    std::string write = MemoryWriteGroup(0, start);
    for (int location = 1; location < 256; ++location) {
      write += MemoryWriteGroup(location, 128);
    }
    chip.Receive(write);
    EXPECT_EQ(chip.StoredPhrase(0), std::string(length, '\x80')) << int{start};
  }
  EXPECT_EQ(VirtualChip().StoredPhrase(-1) + VirtualChip().StoredPhrase(16), "");
}

TEST(VirtualChipTest, ShowsWhatIsNotCompleteWithoutGivingItUp) {
  VirtualChip chip;
  EXPECT_TRUE(chip.Receive("\x16").empty());
  EXPECT_EQ(chip.Describe(chip.Pending().value()), "incomplete: 16  .");
  EXPECT_EQ(Lines(chip, "\x05\\07J 9"), "control 22 \\PITCH 5\n");
  EXPECT_EQ(chip.Describe(chip.Pending().value()), "incomplete: 5C 30 37 4A 20 39  \\07J 9");
  EXPECT_EQ(Lines(chip, "6NX"), "SCP register write: register 7 = 96 (master volume)\n");
}

}  // namespace
}  // namespace loquitor::testing
