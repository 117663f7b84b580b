#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

inline constexpr int InputEventCount = 16;  ///< the rows before the power-up row
inline constexpr int PowerUpEvent = 16;     ///< the last row
inline constexpr int EventCount = 17;

/// The captions of the events ("&&" shows as one "&"). Those of the inputs are in the order of
/// their bytes in the EEPROM.
inline constexpr std::array<const char*, EventCount> EventCaptions{
    "Input #0 - Goes High", "Input #0 - Goes Low", "Input #1 - Goes High", "Input #1 - Goes Low",
    "Input #2 - Goes High", "Input #2 - Goes Low", "Input #3 - Goes High", "Input #3 - Goes Low",
    "Input #4 - Goes High", "Input #4 - Goes Low", "Input #5 - Goes High", "Input #5 - Goes Low",
    "Input #6 - Goes High", "Input #6 - Goes Low", "Input #7 - Goes High", "Input #7 - Goes Low",
    "Power up && Reset",
};

/// The frames that hold the option pairs.
enum class OptionFrame { InputStyle, OutputControl, OutputStartup };

/// One option button. Buttons 2k and 2k + 1 are a pair, of which at most one is chosen.
struct OptionRow {
  OptionFrame frame;
  const char* setting;  ///< the caption of the pair
  const char* caption;
  const char* key;   ///< in section [EEPROM] of the settings
  std::uint8_t bit;  ///< set in the frame's byte when it is chosen; 0 for the right one of a pair
};

inline constexpr int OptionCount = 16;

/// The keys of the input styles are swapped: In7RC belongs to TTL Signal, In7TTL to RC Pulse.
/// Stored files have them so.
inline constexpr std::array<OptionRow, OptionCount> OptionRows{{
    {OptionFrame::InputStyle, "Input #7", "TTL Signal", "In7RC", 0x10},
    {OptionFrame::InputStyle, "Input #7", "RC Pulse", "In7TTL", 0},
    {OptionFrame::InputStyle, "Input #6", "TTL Signal", "In6RC", 0x20},
    {OptionFrame::InputStyle, "Input #6", "RC Pulse", "In6TTL", 0},
    {OptionFrame::OutputControl, "Output #0", "Chip", "Out0Chip", 0x01},
    {OptionFrame::OutputControl, "Output #0", "Phrase", "Out0Phrase", 0},
    {OptionFrame::OutputControl, "Output #1", "Chip", "Out1Chip", 0x02},
    {OptionFrame::OutputControl, "Output #1", "Phrase", "Out1Phrase", 0},
    {OptionFrame::OutputControl, "Output #2", "Chip", "Out2Chip", 0x04},
    {OptionFrame::OutputControl, "Output #2", "Phrase", "Out2Phrase", 0},
    {OptionFrame::OutputStartup, "Output #0", "On", "Out0On", 0x01},
    {OptionFrame::OutputStartup, "Output #0", "Off", "Out0Off", 0},
    {OptionFrame::OutputStartup, "Output #1", "On", "Out1On", 0x02},
    {OptionFrame::OutputStartup, "Output #1", "Off", "Out1Off", 0},
    {OptionFrame::OutputStartup, "Output #2", "On", "Out2On", 0x04},
    {OptionFrame::OutputStartup, "Output #2", "Off", "Out2Off", 0},
}};

/// What one event does. The power-up event uses only playsPhrase and phrase.
struct EventSetting {
  bool playsPhrase = false;
  bool clearsBuffer = false;
  bool callsPhrase = false;
  bool restartsFromWait = false;
  int phrase = 0;  ///< any number; the chip gets its low four bits
};

/// Everything that the event window writes to the chip.
struct EventConfiguration {
  std::array<EventSetting, EventCount> events{};
  std::array<bool, OptionCount> options{};  ///< whether the button is chosen
  bool isAutoSilent = false;
  int scpNode = 0;  ///< any number; the chip gets its low three bits
};

/// The byte of an input's event. Bits 0 to 3 hold the phrase. Bit 4 is set unless it restarts from
/// a wait, bit 5 if it calls the phrase, bit 6 unless it clears the buffer, bit 7 unless it plays.
std::uint8_t EventByte(const EventSetting& zEvent);

/// The byte of the power-up event: as EventByte, with bits 4, 5 and 6 always set.
std::uint8_t PowerUpByte(const EventSetting& zEvent);

/// The byte for location 238: outputs controlled by the chip in bits 0 to 2, Auto Silence in bit 3,
/// TTL style of inputs 7 and 6 in bits 4 and 5, bits 6 and 7 set.
std::uint8_t InputOutputByte(const EventConfiguration& zConfiguration);

/// The byte for location 239: outputs that start on in bits 0 to 2, bit 3 set, the node in bits 4
/// to 6, bit 7 set.
std::uint8_t StartupNodeByte(const EventConfiguration& zConfiguration);

/// The whole command string: reset; the groups for 240 to 255, 237, 238 and 239; the storing
/// command; the connection test.
std::string EventConfigurationString(const EventConfiguration& zConfiguration);

/// The phrase number in a box's text: the number at its start (text/number_text.h), rounded to the
/// nearest with halves to even. Nothing when there is no number or it does not fit 32 bits.
std::optional<int> PhraseNumberOf(std::string_view zText);

/// The phrase that the chip plays for a phrase number, 0 to 15.
int PlayedPhrase(int zNumber);

/// Tells the user what a phrase number means. `zNumber` is nothing for a text that cannot be sent.
/// `zPhrase` is the Say Data of phrase PlayedPhrase(*zNumber).
std::string DescribePhraseNumber(std::optional<int> zNumber, std::string_view zPhrase);

}  // namespace loquitor
