#include "ui/chip/event_configuration.h"

#include "line/scp.h"
#include "text/number_text.h"

namespace loquitor {
namespace {

constexpr unsigned PhraseBits = 0x0f;
constexpr unsigned NoRestartBit = 0x10;
constexpr unsigned CallBit = 0x20;
constexpr unsigned NoClearBit = 0x40;
constexpr unsigned NoPlayBit = 0x80;

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
  unsigned byte = static_cast<unsigned>(zEvent.phrase) & PhraseBits;
  byte |= zEvent.restartsFromWait ? 0 : NoRestartBit;
  byte |= zEvent.callsPhrase ? CallBit : 0;
  byte |= zEvent.clearsBuffer ? 0 : NoClearBit;
  byte |= zEvent.playsPhrase ? 0 : NoPlayBit;
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
  for (std::size_t row = 0; row < InputEventCount; ++row) {
    command += MemoryWriteGroup(EventRows[row].location, EventByte(zConfiguration.events[row]));
  }
  command += MemoryWriteGroup(EventRows[PowerUpEvent].location,
                              PowerUpByte(zConfiguration.events[PowerUpEvent]));
  command += MemoryWriteGroup(InputOutputLocation, InputOutputByte(zConfiguration));
  command += MemoryWriteGroup(StartupNodeLocation, StartupNodeByte(zConfiguration));
  return command.append(scp::StoreConfiguration).append(scp::Test);
}

std::optional<int> PhraseNumberOf(std::string_view zText) {
  return HasNumberAtStart(zText) ? WholeNumberAtStart(zText) : std::nullopt;
}

int PlayedPhrase(int zNumber) {
  return static_cast<int>(static_cast<unsigned>(zNumber) & PhraseBits);
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
