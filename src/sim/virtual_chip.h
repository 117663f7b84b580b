#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/code_table.h"
#include "core/eeprom.h"
#include "core/synth_registers.h"

namespace loquitor {

/// What bytes on the line mean to the chip. Each kind names the members of ChipEvent that it uses.
enum class ChipEventKind {
  Code,          ///< a code with a mnemonic and without a value: number
  ControlCode,   ///< a code and its value byte: number, value
  Play,          ///< code 29 and the number of a phrase: number, value, codes
  Call,          ///< code 28, likewise
  StoredPhrase,  ///< after Play or Call, once for each further phrase that the codes 28 and 29
                 ///< in stored phrases lead to: value, codes
  Reset,         ///< SCP command R
  Test,          ///< SCP command V
  StoreConfiguration,  ///< SCP command W with its five zeros
  MemoryWrite,         ///< a write to the EEPROM: number, value
  RegisterWrite,       ///< a write to the synthesizer: number, value
  Sync,                ///< the character U
  Unknown,             ///< bytes that mean nothing to the chip
  Incomplete,          ///< the beginning of something whose rest has not arrived
};

/// One thing that the chip has received.
struct ChipEvent {
  ChipEventKind kind;
  int number = 0;       ///< code, EEPROM location or register
  int value = 0;        ///< value byte, written value or phrase number
  std::string codes{};  ///< the codes of the stored phrase
  std::string bytes{};  ///< as received, without the X that ends an SCP sequence

  bool operator==(const ChipEvent&) const = default;
};

/// A stand-in for the Orvatone: takes the bytes of the line (docs/wire-format.md), says what they
/// mean, and keeps what the chip would keep. Takes any bytes in portions of any size; the events do
/// not depend on the portions. The memory and the time per byte are bounded.
class VirtualChip {
 public:
  /// A chip with an erased EEPROM (all 255) and the synthesizer in its quiet state.
  VirtualChip();

  /// The events that `zBytes` complete, in order.
  std::vector<ChipEvent> Receive(std::string_view zBytes);

  /// The bytes that wait for the rest of a code or a command, as an Incomplete event. Nothing when
  /// there are none. They keep waiting.
  std::optional<ChipEvent> Pending() const;

  /// One line of text for an event, without a line end.
  std::string Describe(const ChipEvent& zEvent) const;

  /// The byte at an EEPROM location, 0 to 255.
  std::uint8_t Eeprom(int zLocation) const;

  /// The value of a synthesizer register, 0 to 15.
  int Register(int zRegister) const;

  /// The codes of the stored phrase in slot `zSlot`, 0 to 15. They begin at the location that the
  /// byte at location `zSlot` holds, and end before a byte 255 or at the end of the phrase area.
  /// Empty for a slot that is empty or does not exist.
  std::string StoredPhrase(int zSlot) const;

 private:
  enum class Mode { Speech, Value, Node, Command, StoreZeros };
  using Events = std::vector<ChipEvent>;

  void ReceiveByte(char zByte, Events& zEvents);
  void ReceiveSpeech(char zByte, Events& zEvents);
  void ReceiveValue(char zByte, Events& zEvents);
  void ReceiveNode(char zByte, Events& zEvents);
  void ReceiveCommand(char zByte, Events& zEvents);
  void ReceiveStoreZero(char zByte, Events& zEvents);
  void RunCommand(char zLetter, std::string_view zOperand, Events& zEvents);
  bool RunAddressCommand(char zLetter, std::string_view zOperand, Events& zEvents);
  bool RunPlainCommand(char zLetter, Events& zEvents);
  void CloseSequence(Events& zEvents);
  bool SelectLocation(std::string_view zOperand);
  bool SelectHighAddress(std::string_view zOperand);
  bool WriteValue(std::string_view zOperand, Events& zEvents);
  void AddReachedPhrases(int zSlot, Events& zEvents) const;
  void ResetRegisters();
  void EndPiece();
  void Emit(Events& zEvents, ChipEvent zEvent);
  void Abandon(ChipEventKind zKind, Events& zEvents);
  std::string PhraseWords(std::string_view zCodes) const;
  std::string CodeWords(std::string_view zCodes) const;

  CodeTable codeTable_;
  std::array<std::uint8_t, eeprom::Size> eeprom_;
  std::array<int, synth::RegisterCount> registers_;
  Mode mode_ = Mode::Speech;
  std::string piece_;             ///< received bytes that belong to no event yet
  std::size_t operandStart_ = 0;  ///< offset in `piece_`
  std::optional<int> location_;   ///< selected by J
  bool isMemory_ = false;         ///< whether H has selected the memory
};

}  // namespace loquitor
