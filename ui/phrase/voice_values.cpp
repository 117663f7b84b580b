#include "ui/phrase/voice_values.h"

#include "core/number_text.h"

namespace loquitor {

std::string ControlCodeString(const VoiceValues& zValues) {
  std::string codes;
  for (std::size_t i = 0; i < zValues.size(); ++i) {
    codes.push_back(static_cast<char>(VoiceSettings[i].code));
    codes.push_back(static_cast<char>(zValues[i]));
  }
  return codes;
}

CommittedVoiceText CommitVoiceText(std::string_view zText, int zMaximum) {
  const double number = NumberAtStart(zText);
  if (number > zMaximum) {
    return {std::to_string(zMaximum), zMaximum};
  }
  if (number < 0) {
    return {"0", 0};
  }
  return {std::string(zText), RoundToWhole(number).value_or(0)};
}

}  // namespace loquitor
