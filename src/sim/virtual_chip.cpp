#include "sim/virtual_chip.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "line/scp.h"
#include "sim/configuration_words.h"
#include "text/letters.h"

namespace loquitor {

namespace {

constexpr std::size_t StoreZeroCount = 5;
constexpr std::size_t MaxOperand = 8;  ///< longer than any number that a command takes

int ByteValue(char zByte) {
  return static_cast<unsigned char>(zByte);
}

bool IsHexDigit(char zByte) {
  return IsDigit(zByte) || (zByte >= 'A' && zByte <= 'F');
}

bool IsOperandCharacter(char zByte) {
  return IsHexDigit(zByte) || zByte == ' ' || zByte == '-';
}

std::optional<int> ParseNumber(std::string_view zDigits, int zBase) {
  int number = 0;
  const char* end = zDigits.data() + zDigits.size();
  const auto result = std::from_chars(zDigits.data(), end, number, zBase);
  if (zDigits.empty() || result.ec != std::errc() || result.ptr != end) {
    return std::nullopt;
  }
  return number;
}

/// Digits only, no leading zeros.
std::optional<int> ParsePlainDecimal(std::string_view zText) {
  const bool hasLeadingZero = zText.size() > 1 && zText.front() == '0';
  if (hasLeadingZero || !std::all_of(zText.begin(), zText.end(), IsDigit)) {
    return std::nullopt;
  }
  return ParseNumber(zText, 10);
}

/// A blank or a minus sign, then digits.
std::optional<int> ParseSignedDecimal(std::string_view zText) {
  if (zText.empty() || (zText.front() != ' ' && zText.front() != '-')) {
    return std::nullopt;
  }
  const std::optional<int> number = ParsePlainDecimal(zText.substr(1));
  return number && zText.front() == '-' ? -*number : number;
}

/// Exactly two upper-case hexadecimal digits.
std::optional<int> ParseTwoDigitHex(std::string_view zText) {
  if (zText.size() != 2 || !std::all_of(zText.begin(), zText.end(), IsHexDigit)) {
    return std::nullopt;
  }
  return ParseNumber(zText, 16);
}

std::string RegisterName(int zRegister) {
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    if (zRegister == synth::FrequencyRegister(i)) {
      return "frequency of oscillator " + std::to_string(i);
    }
    if (zRegister == synth::VolumeRegister(i)) {
      return "volume of oscillator " + std::to_string(i);
    }
  }
  switch (zRegister) {
    case synth::EnvelopeFrequencyRegister:
      return "envelope frequency";
    case synth::DistortionRegister:
      return "distortion";
    case synth::MasterVolumeRegister:
      return "master volume";
    case synth::EnvelopeControlRegister:
      return "envelope control";
    default:
      return "not used";
  }
}

std::string LocationName(int zLocation) {
  if (zLocation < eeprom::PhraseCount) {
    return "start of phrase " + std::to_string(zLocation);
  }
  if (zLocation < eeprom::PhrasesEnd) {
    return "phrases";
  }
  if (zLocation >= eeprom::FirstInputEvent) {
    return "input " + std::to_string((zLocation - eeprom::FirstInputEvent) / 2) +
           (zLocation % 2 == 0 ? " goes high" : " goes low");
  }
  constexpr const char* names[] = {"clock detune", "not used", "power up and reset",
                                   "inputs and outputs", "output start-up and node"};
  return names[zLocation - eeprom::PhrasesEnd];
}

/// The location's name, and the meaning of its value if it is a configuration byte.
std::string LocationWords(int zLocation, int zValue) {
  const std::string words = ConfigurationWords(zLocation, static_cast<std::uint8_t>(zValue));
  return LocationName(zLocation) + (words.empty() ? "" : ": " + words);
}

/// Two hexadecimal digits a byte, then the bytes as text where they are printable.
std::string ByteWords(std::string_view zBytes) {
  std::string hexadecimal;
  std::string text;
  for (const char byte : zBytes) {
    hexadecimal += (hexadecimal.empty() ? "" : " ") + GetTwoDigitHex(static_cast<uint8_t>(byte));
    text += byte >= ' ' && byte <= '~' ? byte : '.';
  }
  return hexadecimal + "  " + text;
}

}  // namespace

VirtualChip::VirtualChip() {
  codeTable_.BuildCodeTable();
  eeprom_.fill(eeprom::EndOfPhrase);
  ResetRegisters();
}

std::vector<ChipEvent> VirtualChip::Receive(std::string_view zBytes) {
  Events events;
  for (const char byte : zBytes) {
    ReceiveByte(byte, events);
  }
  return events;
}

std::optional<ChipEvent> VirtualChip::Pending() const {
  if (piece_.empty()) {
    return std::nullopt;
  }
  return ChipEvent{.kind = ChipEventKind::Incomplete, .bytes = piece_};
}

std::uint8_t VirtualChip::Eeprom(int zLocation) const {
  return eeprom_.at(static_cast<std::size_t>(zLocation));
}

int VirtualChip::Register(int zRegister) const {
  return registers_.at(static_cast<std::size_t>(zRegister));
}

std::string VirtualChip::StoredPhrase(int zSlot) const {
  std::string codes;
  if (zSlot < 0 || zSlot >= eeprom::PhraseCount) {
    return codes;
  }
  for (int location = Eeprom(zSlot); location < eeprom::PhrasesEnd; ++location) {
    if (Eeprom(location) == eeprom::EndOfPhrase) {
      break;
    }
    codes += static_cast<char>(Eeprom(location));
  }
  return codes;
}

void VirtualChip::ReceiveByte(char zByte, Events& zEvents) {
  switch (mode_) {
    case Mode::Speech:
      return ReceiveSpeech(zByte, zEvents);
    case Mode::Value:
      return ReceiveValue(zByte, zEvents);
    case Mode::Node:
      return ReceiveNode(zByte, zEvents);
    case Mode::Command:
      return ReceiveCommand(zByte, zEvents);
    case Mode::StoreZeros:
      return ReceiveStoreZero(zByte, zEvents);
  }
}

void VirtualChip::ReceiveSpeech(char zByte, Events& zEvents) {
  const int code = ByteValue(zByte);
  piece_ += zByte;
  if (zByte == '\\') {
    mode_ = Mode::Node;
  } else if (TakesValue(code)) {
    mode_ = Mode::Value;
  } else if (zByte == scp::SyncCharacter.front()) {
    Emit(zEvents, {.kind = ChipEventKind::Sync});
  } else if (codeTable_.GetCodeMnemonic(static_cast<std::uint8_t>(code)).empty()) {
    Emit(zEvents, {.kind = ChipEventKind::Unknown});
  } else {
    Emit(zEvents, {.kind = ChipEventKind::Code, .number = code});
  }
}

void VirtualChip::ReceiveValue(char zByte, Events& zEvents) {
  const int code = ByteValue(piece_.front());
  const int value = ByteValue(zByte);
  piece_ += zByte;
  mode_ = Mode::Speech;
  if (code != chip_code::Play && code != chip_code::Call) {
    Emit(zEvents, {.kind = ChipEventKind::ControlCode, .number = code, .value = value});
    return;
  }
  Emit(zEvents, {.kind = code == chip_code::Play ? ChipEventKind::Play : ChipEventKind::Call,
                 .number = code,
                 .value = value,
                 .codes = StoredPhrase(value)});
  AddReachedPhrases(value, zEvents);
}

void VirtualChip::ReceiveNode(char zByte, Events& zEvents) {
  if (zByte != '0') {
    Abandon(zByte == '\\' ? ChipEventKind::Incomplete : ChipEventKind::Unknown, zEvents);
    mode_ = Mode::Speech;
    ReceiveSpeech(zByte, zEvents);
    return;
  }
  piece_ += zByte;
  operandStart_ = piece_.size();
  mode_ = Mode::Command;
}

void VirtualChip::ReceiveCommand(char zByte, Events& zEvents) {
  const bool isSpeech = zByte < ' ' || zByte > '~';
  if (isSpeech || zByte == '\\' || zByte == scp::SyncCharacter.front()) {
    Abandon(ChipEventKind::Incomplete, zEvents);
    mode_ = Mode::Speech;
    ReceiveSpeech(zByte, zEvents);
    return;
  }
  if (IsOperandCharacter(zByte)) {
    piece_ += zByte;
    if (piece_.size() - operandStart_ > MaxOperand) {
      Abandon(ChipEventKind::Unknown, zEvents);
    }
    return;
  }
  const std::string operand = piece_.substr(operandStart_);
  piece_ += zByte;
  RunCommand(zByte, operand, zEvents);
}

void VirtualChip::RunCommand(char zLetter, std::string_view zOperand, Events& zEvents) {
  if (zLetter == 'X') {
    CloseSequence(zEvents);
    return;
  }
  const bool isUnderstood = RunAddressCommand(zLetter, zOperand, zEvents) ||
                            (zOperand.empty() && !location_ && RunPlainCommand(zLetter, zEvents));
  operandStart_ = piece_.size();
  if (!isUnderstood) {
    Abandon(ChipEventKind::Unknown, zEvents);
  }
}

void VirtualChip::CloseSequence(Events& zEvents) {
  mode_ = Mode::Speech;
  const bool isOnlyTheX = piece_.size() == 1;
  if (isOnlyTheX) {
    EndPiece();
  } else {
    Abandon(ChipEventKind::Unknown, zEvents);
  }
}

/// Runs J, H or N. False when its turn has not come or the operand does not have its form.
bool VirtualChip::RunAddressCommand(char zLetter, std::string_view zOperand, Events& zEvents) {
  switch (zLetter) {
    case 'J':
      return !location_ && SelectLocation(zOperand);
    case 'H':
      return location_ && !isMemory_ && SelectHighAddress(zOperand);
    case 'N':
      return location_ && WriteValue(zOperand, zEvents);
    default:
      return false;
  }
}

bool VirtualChip::RunPlainCommand(char zLetter, Events& zEvents) {
  switch (zLetter) {
    case 'R':
      ResetRegisters();
      Emit(zEvents, {.kind = ChipEventKind::Reset});
      return true;
    case 'V':
      Emit(zEvents, {.kind = ChipEventKind::Test});
      return true;
    case 'W':
      mode_ = Mode::StoreZeros;
      return true;
    default:
      return false;
  }
}

bool VirtualChip::SelectLocation(std::string_view zOperand) {
  location_ = ParsePlainDecimal(zOperand);
  return location_ && *location_ < eeprom::Size;
}

bool VirtualChip::SelectHighAddress(std::string_view zOperand) {
  isMemory_ = ParsePlainDecimal(zOperand) == scp::MemoryHighAddress;
  return isMemory_;
}

bool VirtualChip::WriteValue(std::string_view zOperand, Events& zEvents) {
  const std::size_t location = static_cast<std::size_t>(*location_);
  const std::optional<int> value =
      isMemory_ ? ParseTwoDigitHex(zOperand) : ParseSignedDecimal(zOperand);
  if (!value || (!isMemory_ && location >= synth::RegisterCount)) {
    return false;
  }
  if (isMemory_) {
    eeprom_[location] = static_cast<std::uint8_t>(*value);
  } else {
    registers_[location] = *value;
  }
  Emit(zEvents, {.kind = isMemory_ ? ChipEventKind::MemoryWrite : ChipEventKind::RegisterWrite,
                 .number = static_cast<int>(location),
                 .value = *value});
  return true;
}

void VirtualChip::ReceiveStoreZero(char zByte, Events& zEvents) {
  if (zByte != '\0') {
    Abandon(ChipEventKind::Incomplete, zEvents);
    mode_ = Mode::Command;
    ReceiveCommand(zByte, zEvents);
    return;
  }
  piece_ += zByte;
  if (piece_.size() - operandStart_ == StoreZeroCount) {
    mode_ = Mode::Command;
    Emit(zEvents, {.kind = ChipEventKind::StoreConfiguration});
  }
}

/// Follows the codes 28 and 29 in stored phrases. Each phrase is listed once, so this ends even if
/// phrases call each other in a circle.
void VirtualChip::AddReachedPhrases(int zSlot, Events& zEvents) const {
  std::array<bool, 256> isListed{};
  isListed[static_cast<std::size_t>(zSlot)] = true;
  std::vector<int> open{zSlot};
  for (std::size_t next = 0; next < open.size(); ++next) {
    const std::string codes = StoredPhrase(open[next]);
    for (std::size_t i = 0; i + 1 < codes.size(); i += TakesValue(ByteValue(codes[i])) ? 2 : 1) {
      const int code = ByteValue(codes[i]);
      const int slot = ByteValue(codes[i + 1]);
      const bool isReached = code == chip_code::Call || code == chip_code::Play;
      if (isReached && !std::exchange(isListed[static_cast<std::size_t>(slot)], true)) {
        open.push_back(slot);
        zEvents.push_back(
            {.kind = ChipEventKind::StoredPhrase, .value = slot, .codes = StoredPhrase(slot)});
      }
    }
  }
}

/// Returns the synthesizer to its quiet state.
void VirtualChip::ResetRegisters() {
  registers_.fill(0);
  for (const auto& [number, value] : synth::QuietState) {
    registers_[static_cast<std::size_t>(number)] = value;
  }
}

void VirtualChip::EndPiece() {
  piece_.clear();
  operandStart_ = 0;
  location_.reset();
  isMemory_ = false;
}

void VirtualChip::Emit(Events& zEvents, ChipEvent zEvent) {
  zEvent.bytes = piece_;
  zEvents.push_back(std::move(zEvent));
  EndPiece();
}

/// Ends a piece that will not be completed, with an event for its bytes if it has any.
void VirtualChip::Abandon(ChipEventKind zKind, Events& zEvents) {
  if (!piece_.empty()) {
    Emit(zEvents, {.kind = zKind});
  }
}

std::string VirtualChip::Describe(const ChipEvent& zEvent) const {
  const std::string value = std::to_string(zEvent.value);
  switch (zEvent.kind) {
    case ChipEventKind::Code:
      return "code " + CodeWords(zEvent.bytes);
    case ChipEventKind::ControlCode:
      return "control " + CodeWords(zEvent.bytes);
    case ChipEventKind::Play:
    case ChipEventKind::Call:
      return "control " + CodeWords(zEvent.bytes) + ": " + PhraseWords(zEvent.codes);
    case ChipEventKind::StoredPhrase:
      return "  phrase " + value + ": " + PhraseWords(zEvent.codes);
    case ChipEventKind::Reset:
      return "SCP reset";
    case ChipEventKind::Test:
      return "SCP test";
    case ChipEventKind::StoreConfiguration:
      return "SCP store configuration";
    case ChipEventKind::MemoryWrite:
      return "SCP memory write: location " + std::to_string(zEvent.number) + " = " + value + " (" +
             LocationWords(zEvent.number, zEvent.value) + ")";
    case ChipEventKind::RegisterWrite:
      return "SCP register write: register " + std::to_string(zEvent.number) + " = " + value +
             " (" + RegisterName(zEvent.number) + ")";
    case ChipEventKind::Sync:
      return "sync character U";
    case ChipEventKind::Unknown:
      return "unknown: " + ByteWords(zEvent.bytes);
    case ChipEventKind::Incomplete:
      return "incomplete: " + ByteWords(zEvent.bytes);
  }
  return {};
}

std::string VirtualChip::PhraseWords(std::string_view zCodes) const {
  return zCodes.empty() ? "empty" : CodeWords(zCodes);
}

/// Codes by number and mnemonic, each with its value byte if it takes one.
std::string VirtualChip::CodeWords(std::string_view zCodes) const {
  std::string words;
  for (std::size_t i = 0; i < zCodes.size(); ++i) {
    const int code = ByteValue(zCodes[i]);
    const std::string mnemonic = codeTable_.GetCodeMnemonic(static_cast<std::uint8_t>(code));
    words += (words.empty() ? "" : ", ") + std::to_string(code);
    words += mnemonic.empty() ? "" : " " + mnemonic;
    if (TakesValue(code) && i + 1 < zCodes.size()) {
      words += " " + std::to_string(ByteValue(zCodes[++i]));
    }
  }
  return words;
}

}  // namespace loquitor
