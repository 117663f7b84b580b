#pragma once

#include <bitset>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "link/code_sender.h"

namespace loquitor {

/// Writes registers of the synthesizer through the one sender, each write a send of its own.
///
/// A write that starts in the events of another one cuts that one short: the chip never gets the
/// rest. Most often both are for the same bar, and the newer value is the one that counts. Where
/// they are not, the register that was cut would keep its old value although the window shows the
/// new one; so when the last of such writes has ended, each register that was cut and not written
/// since is written once more, with the value that the window then shows.
class RegisterWriter {
 public:
  /// `zShownValue` gives the value that the window shows for a register. `zSender` lives longer.
  RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue);

  /// Writes `zValue` to register `zNumber` (0 to 15), after the others that were postponed.
  void Write(int zNumber, int zValue);

  /// Sends the reset string.
  void SendReset();

  /// Leaves register `zNumber` to the next SendPostponed or Write.
  void Postpone(int zNumber) { postponed_.set(Place(zNumber)); }

  /// Writes the registers that were postponed, with the values that the window now shows.
  void SendPostponed();

  /// Empties PendingOutput and forgets every register that was cut or postponed.
  void StopSending();

  /// StopSending where the pending output is this writer's own; no further write does anything.
  void GiveUp();

  /// How many bytes of this writer's own wait in PendingOutput.
  std::size_t PendingCount() const;

 private:
  static constexpr int RegisterCount = 16;
  using Registers = std::bitset<RegisterCount>;

  /// One string of the present send and the register that it is for.
  struct Command {
    int number;  ///< NoRegister for the reset
    std::string text;
  };
  static constexpr int NoRegister = -1;

  /// What the chip has not got yet.
  struct Ledger {
    std::vector<Command> present;  ///< the strings of the present send, in order
    Registers cut;                 ///< cut short, and not written since
  };

  static std::size_t Place(int zNumber) { return static_cast<std::size_t>(zNumber); }
  void Send(Command zCommand);

  /// Leaves in the ledger the strings of the present send of which `zPendingCount` bytes wait.
  void ForgetWritten(std::size_t zPendingCount);

  /// Enters a new string, before which the last `zCutCount` bytes of the present send are dropped.
  void Enter(const Command& zCommand, std::size_t zCutCount);

  void WriteWhatWasCut();
  template <class Act>
  void TakeEach(Registers& zRegisters, Act zAct);

  CodeSender& sender_;
  std::function<int(int)> shownValue_;
  Ledger ledger_;
  Registers postponed_;
  int depth_ = 0;  ///< how many of the sends under way are this writer's
  bool isMending_ = false;
  bool hasGivenUp_ = false;
};

}  // namespace loquitor
