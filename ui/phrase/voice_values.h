#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace loquitor {

/// One of the four voice settings of the chip and the controls that stand for it.
struct VoiceSetting {
  const char* caption;
  const char* label;  ///< control names
  const char* textBox;
  const char* bar;
  const char* tooltip;  ///< of the label
  std::uint8_t code;    ///< the chip code that sets it
  int maximum;          ///< it ranges from 0 to here
  int page;             ///< page step of the bar
  int defaultValue;
};

/// In the order of their codes, which is their order on the window and in the prefix.
enum VoiceIndex : std::size_t { Volume, Speed, Pitch, Bend, VoiceSettingCount };

inline constexpr std::array<VoiceSetting, VoiceSettingCount> VoiceSettings{{
    {"Volume", "lblVolume", "txtVolume", "scVolume", "Set the Master Volume Level", 20, 127, 8, 96},
    {"Speed", "lblSpeed", "txtSpeed", "scSpeed", "Set the Play Speed", 21, 127, 8, 114},
    {"Pitch", "lblPitch", "txtPitch", "scPitch", "Set the Vocalization Pitch", 22, 255, 8, 88},
    {"Bend", "lblBend", "txtBend", "scBend", "Set the Frequency Bend", 23, 15, 1, 5},
}};

/// The values of the settings, each in its range, by VoiceIndex.
using VoiceValues = std::array<int, VoiceSettingCount>;

/// The control-code prefix: each setting's code followed by its value, 8 bytes.
std::string ControlCodeString(const VoiceValues& zValues);

/// What a text box of the voice controls becomes when it loses the focus.
struct CommittedVoiceText {
  std::string text;  ///< the text of the box; as typed unless the number was out of range
  int value;         ///< the value for the bar, in range
};

/// Reads the number at the start of `zText`, clamps it to 0..`zMaximum` and rounds it to the
/// nearest whole number, an exact half to the even neighbour.
CommittedVoiceText CommitVoiceText(std::string_view zText, int zMaximum);

}  // namespace loquitor
