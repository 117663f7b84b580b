#pragma once

#include <bitset>
#include <cstddef>
#include <deque>
#include <functional>
#include <string_view>
#include <utility>

#include "link/code_sender.h"

namespace loquitor {

/// Writes registers of the synthesizer through the one sender, each write a send of its own.
///
/// A write that starts in the events of another one cuts that one short: the chip never gets the
/// rest. Most often both are for the same bar, and the newer value is the one that counts. Where
/// they are not, the register that was cut would keep its old value although the window shows the
/// new one; so when the last of such writes has ended, each register that may have been cut and was
/// not written since is written once more, with the value that the window then shows.
class RegisterWriter {
 public:
  /// `zShownValue` gives the value that the window shows for a register. `zSender` lives longer.
  RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue);

  /// Writes `zValue` to register `zNumber` (0 to 15), after the writes that were postponed.
  void Write(int zNumber, int zValue);

  /// Sends the reset string.
  void SendReset();

  /// Leaves a write to the next SendPostponed or Write.
  void Postpone(int zNumber, int zValue) { postponed_.emplace_back(zNumber, zValue); }

  /// Makes the writes that were postponed, in their order.
  void SendPostponed();

  /// Empties PendingOutput and forgets every write that was cut or postponed.
  void StopSending();

  /// Ends the send under way if it is this writer's own; no further write does anything.
  void GiveUp();

 private:
  static constexpr int RegisterCount = 16;
  using Registers = std::bitset<RegisterCount>;

  static Registers Only(int zNumber) { return Registers(1ULL << zNumber); }
  void Send(int zNumber, int zValue);
  void Send(Registers zRegister, std::string_view zText);
  void WriteWhatWasCut();

  CodeSender& sender_;
  std::function<int(int)> shownValue_;
  Registers last_;  ///< the register of the last send, none for the reset
  Registers cut_;   ///< may have been cut short, and not written since
  std::deque<std::pair<int, int>> postponed_;  ///< number and value
  std::size_t lastSend_ = 0;  ///< which one of the sender's sends was the last of this writer
  int depth_ = 0;             ///< how many of the sends under way are this writer's
  bool hasGivenUp_ = false;
};

}  // namespace loquitor
