#include "ui/chip/eeprom_image.h"

#include "core/say_data.h"
#include "line/scp.h"

namespace loquitor {

SlotCodes TranslateSlot(const SayDataTranslator& zTranslator, std::string_view zSayData) {
  const std::string mnemonics = zTranslator.ExpandSayData(zSayData);
  if (mnemonics.empty()) {
    return std::nullopt;
  }
  return zTranslator.MnemonicsToCodes(mnemonics);
}

std::string BuildEepromImage(const std::array<SlotCodes, eeprom::PhraseCount>& zSlots) {
  constexpr char end = static_cast<char>(eeprom::EndOfPhrase);
  std::string offsets;
  std::string data;
  for (const SlotCodes& codes : zSlots) {
    if (!codes) {
      offsets += end;
      continue;
    }
    offsets += static_cast<char>((zSlots.size() + data.size()) % eeprom::Size);
    data += *codes;
    data += end;
  }
  return offsets + data;
}

std::string EepromWriteString(std::string_view zImage) {
  std::string command;
  int location = 0;
  for (const char byte : zImage) {
    command += MemoryWriteGroup(location++, static_cast<std::uint8_t>(byte));
  }
  return command.append(scp::Test);
}

std::string UsageText(std::size_t zUsed) {
  return std::to_string(zUsed) + " used of " + std::to_string(eeprom::Size);
}

UsageBand BandOfUsage(std::size_t zUsed) {
  constexpr std::size_t mostRoomy = 240;
  if (zUsed > eeprom::Size) {
    return UsageBand::Overfull;
  }
  return zUsed > mostRoomy ? UsageBand::Tight : UsageBand::Roomy;
}

}  // namespace loquitor
