#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace loquitor {

/// One of the four voice settings of the chip, and its controls.
struct VoiceSetting {
  const char* caption;
  const char* label;  ///< the names of its controls
  const char* textBox;
  const char* bar;
  const char* tooltip;  ///< of the label
  std::uint8_t code;    ///< the chip code that sets it
  int maximum;          ///< the minimum is 0
  int page;             ///< page step of the bar
  int defaultValue;
};

/// The order of their codes, of their places in the window and in the prefix.
enum VoiceIndex : std::size_t { Volume, Speed, Pitch, Bend, VoiceSettingCount };

inline constexpr std::array<VoiceSetting, VoiceSettingCount> VoiceSettings{{
    {"Volume", "lblVolume", "txtVolume", "scVolume", "Set the Master Volume Level", 20, 127, 8, 96},
    {"Speed", "lblSpeed", "txtSpeed", "scSpeed", "Set the Play Speed", 21, 127, 8, 114},
    {"Pitch", "lblPitch", "txtPitch", "scPitch", "Set the Vocalization Pitch", 22, 255, 8, 88},
    {"Bend", "lblBend", "txtBend", "scBend", "Set the Frequency Bend", 23, 15, 1, 5},
}};

}  // namespace loquitor
