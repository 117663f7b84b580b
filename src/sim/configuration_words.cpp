#include "sim/configuration_words.h"

#include "core/eeprom.h"

namespace loquitor {

namespace {

constexpr int OutputCount = 3;

bool HasBit(std::uint8_t zValue, int zBit) {
  return ((zValue >> zBit) & 1) != 0;
}

/// "output 0 on, output 1 off, output 2 on" with `zSet` for "on" and `zClear` for "off".
std::string OutputWords(std::uint8_t zValue, const char* zSet, const char* zClear) {
  std::string words;
  for (int output = 0; output < OutputCount; ++output) {
    words += (words.empty() ? "output " : ", output ") + std::to_string(output) + " " +
             (HasBit(zValue, output) ? zSet : zClear);
  }
  return words;
}

std::string InputWords(int zInput, bool zIsTtl) {
  return ", input " + std::to_string(zInput) + (zIsTtl ? " TTL signal" : " RC pulse");
}

/// At power up only the bits for the phrase have a meaning.
EventAction PowerUpEvent(std::uint8_t zValue) {
  const EventAction event = DecodeEvent(zValue);
  return {.saysPhrase = event.saysPhrase,
          .phrase = event.phrase,
          .isCall = false,
          .emptiesQueue = false,
          .restarts = false};
}

}  // namespace

std::string EventWords(const EventAction& zEvent) {
  std::string words;
  const auto add = [&words](const std::string& zWords) {
    words += (words.empty() ? "" : ", ") + zWords;
  };
  if (zEvent.saysPhrase) {
    add((zEvent.isCall ? "calls phrase " : "plays phrase ") + std::to_string(zEvent.phrase));
  }
  if (zEvent.emptiesQueue) {
    add("clears the buffer");
  }
  if (zEvent.restarts) {
    add("restarts from a wait");
  }
  return words.empty() ? "does nothing" : words;
}

std::string ConfigurationWords(int zLocation, std::uint8_t zValue) {
  if (zLocation >= eeprom::FirstInputEvent && zLocation < eeprom::Size) {
    return EventWords(DecodeEvent(zValue));
  }
  switch (zLocation) {
    case eeprom::PowerUp:
      return EventWords(PowerUpEvent(zValue));
    case eeprom::InputsAndOutputs:
      return OutputWords(zValue, "by chip", "by phrase") + InputWords(7, HasBit(zValue, 4)) +
             InputWords(6, HasBit(zValue, 5)) + ", auto silence " +
             (HasBit(zValue, 3) ? "on" : "off");
    case eeprom::OutputStartAndNode:
      return OutputWords(zValue, "on", "off") + ", SCP node " + std::to_string((zValue >> 4) & 7);
    default:
      return {};
  }
}

}  // namespace loquitor
