#include "ui/chip/event_configuration.h"

#include <span>

#include "core/eeprom.h"
#include "line/scp.h"
#include "text/number_text.h"

namespace loquitor {
namespace {

constexpr unsigned AutoSilenceBit = 0x08;
constexpr unsigned InputOutputFixedBits = 0xc0;
constexpr unsigned StartupFixedBits = 0x88;
constexpr unsigned NodeBits = 0x07;
constexpr int NodeShift = 4;

unsigned BitsOfChosen(const EventConfiguration& zConfiguration, OptionFrame zFrame) {
  unsigned bits = 0;
  for (std::size_t index = 0; index < OptionRows.size(); ++index) {
    if (OptionRows[index].frame == zFrame && zConfiguration.options[index]) {
      bits |= OptionRows[index].bit;
    }
  }
  return bits;
}

}  // namespace

std::uint8_t EventByte(const EventSetting& zEvent) {
  int byte = PlayedPhrase(zEvent.phrase);
  byte |= zEvent.restartsFromWait ? 0 : event_bit::NoRestart;
  byte |= zEvent.callsPhrase ? event_bit::Call : 0;
  byte |= zEvent.clearsBuffer ? 0 : event_bit::NoClear;
  byte |= zEvent.playsPhrase ? 0 : event_bit::NoPlay;
  return static_cast<std::uint8_t>(byte);
}

std::uint8_t PowerUpByte(const EventSetting& zEvent) {
  return EventByte(
      {.playsPhrase = zEvent.playsPhrase, .callsPhrase = true, .phrase = zEvent.phrase});
}

std::uint8_t InputOutputByte(const EventConfiguration& zConfiguration) {
  return static_cast<std::uint8_t>(BitsOfChosen(zConfiguration, OptionFrame::InputStyle) |
                                   BitsOfChosen(zConfiguration, OptionFrame::OutputControl) |
                                   (zConfiguration.isAutoSilent ? AutoSilenceBit : 0) |
                                   InputOutputFixedBits);
}

std::uint8_t StartupNodeByte(const EventConfiguration& zConfiguration) {
  const unsigned node = static_cast<unsigned>(zConfiguration.scpNode) & NodeBits;
  return static_cast<std::uint8_t>(BitsOfChosen(zConfiguration, OptionFrame::OutputStartup) |
                                   (node << NodeShift) | StartupFixedBits);
}

std::string EventConfigurationString(const EventConfiguration& zConfiguration) {
  std::string command(scp::Reset);
  int location = eeprom::FirstInputEvent;
  for (const EventSetting& event : std::span(zConfiguration.events).first<InputEventCount>()) {
    command += MemoryWriteGroup(location++, EventByte(event));
  }
  command += MemoryWriteGroup(eeprom::PowerUp, PowerUpByte(zConfiguration.events[PowerUpEvent]));
  command += MemoryWriteGroup(eeprom::InputsAndOutputs, InputOutputByte(zConfiguration));
  command += MemoryWriteGroup(eeprom::OutputStartAndNode, StartupNodeByte(zConfiguration));
  return command.append(scp::StoreConfiguration).append(scp::Test);
}

std::optional<int> PhraseNumberOf(std::string_view zText) {
  return HasNumberAtStart(zText) ? WholeNumberAtStart(zText) : std::nullopt;
}

int PlayedPhrase(int zNumber) {
  return zNumber & event_bit::Phrase;
}

std::string DescribePhraseNumber(std::optional<int> zNumber, std::string_view zPhrase) {
  if (!zNumber) {
    return "This is not a number that can be written. Type one from 0 to 15.";
  }
  const int played = PlayedPhrase(*zNumber);
  std::string text;
  if (played != *zNumber) {
    text = "The Orvatone has phrases 0 to 15. It takes the lowest four bits of this number.\n";
  }
  text += "Phrase " + std::to_string(played);
  return zPhrase.empty() ? text + " is empty." : text.append(": ").append(zPhrase);
}

}  // namespace loquitor
