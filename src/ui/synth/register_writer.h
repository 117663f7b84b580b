#pragma once

#include <bitset>
#include <deque>
#include <functional>
#include <string>

#include "core/synth_registers.h"
#include "line/code_sender.h"
#include "line/scp.h"

namespace loquitor {

/// Writes registers of the synthesizer through the sender, each write as a send of its own.
///
/// A write that starts in the events of another one cuts that one short. If both are for the same
/// register, only the newer value counts. If they are for different registers, the chip would keep
/// an old value that the window no longer shows. So when the last of these sends has ended, each
/// register whose write was cut is written again unless it has been written since, with the value
/// that the window shows then.
///
/// Events run during every write. A change of several controls is therefore made inside Postpone:
/// all controls are set before the first event runs.
class RegisterWriter {
 public:
  /// `zShownValue` returns the value that the window shows for a register. `zSender` outlives the
  /// writer.
  RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue);

  /// Writes `zValue` to register `zNumber` (0 to 15). Sends that are postponed go out first. Inside
  /// Postpone the write is postponed.
  void Write(int zNumber, int zValue);

  /// Sends the reset string, in the same order as Write.
  void SendReset();

  /// Runs `zChange`, which must not let events run, and postpones what it writes. Drops writes to
  /// the same registers that were postponed before.
  void Postpone(const std::function<void()>& zChange);

  /// Sends what is postponed, in order. This cuts a write under way, but not a reset, which goes
  /// out first.
  void SendPostponed();

  /// As SendPostponed, after the sends of this writer that are under way.
  void SendPostponedWhenIdle();

  /// Empties PendingOutput and forgets every write that was cut or postponed.
  void StopSending();

  /// Ends the send under way if it is one of this writer. After this the writer sends nothing.
  void GiveUp();

  /// True while a send of this writer is under way.
  bool IsSending() const { return depth_ > 0; }

 private:
  using Registers = std::bitset<synth::RegisterCount>;

  /// What one send carries.
  struct Command {
    Registers target;  ///< the one register that it writes; none for the reset
    std::string bytes;
  };
  using Commands = std::deque<Command>;

  static Registers Only(int zNumber) { return Registers(1ULL << zNumber); }
  static Command WriteOf(int zNumber, int zValue) {
    return {Only(zNumber), RegisterWrite(zNumber, zValue)};
  }
  void SendInOrder(Command zCommand);
  void Send(const Command& zCommand);
  void WriteWhatWasCut();

  CodeSender& sender_;
  std::function<int(int)> shownValue_;
  Commands postponed_;
  bool isPostponing_ = false;
  bool isResetting_ = false;  ///< the send under way is the reset
  Registers pending_;         ///< their writes may still be in PendingOutput
  Registers cut_;             ///< may have been cut short, and not written since
  SendTicket lastSend_;
  int depth_ = 0;  ///< how many of the sends under way are this writer's
  bool hasGivenUp_ = false;
};

}  // namespace loquitor
