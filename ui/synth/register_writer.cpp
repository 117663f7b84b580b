#include "ui/synth/register_writer.h"

#include <algorithm>
#include <utility>

#include "link/scp.h"

namespace loquitor {

RegisterWriter::RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue)
    : sender_(zSender), shownValue_(std::move(zShownValue)) {}

void RegisterWriter::Write(int zNumber, int zValue) {
  postponed_.reset(Place(zNumber));
  SendPostponed();
  Send({zNumber, RegisterWrite(zNumber, zValue)});
}

void RegisterWriter::SendReset() {
  Send({NoRegister, std::string(scp::Reset)});
}

void RegisterWriter::SendPostponed() {
  TakeEach(postponed_, [this](int zNumber) {
    Send({zNumber, RegisterWrite(zNumber, shownValue_(zNumber))});
  });
}

void RegisterWriter::StopSending() {
  sender_.ClearPendingOutput();
  ledger_ = {};
  postponed_.reset();
}

void RegisterWriter::GiveUp() {
  if (PendingCount() > 0) {
    StopSending();
  }
  hasGivenUp_ = true;
}

std::size_t RegisterWriter::PendingCount() const {
  std::string text;
  for (const Command& command : ledger_.present) {
    text += command.text;
  }
  const std::string_view pending = sender_.PendingOutput();
  return text.ends_with(pending) ? pending.size() : 0;
}

void RegisterWriter::Send(Command zCommand) {
  if (hasGivenUp_) {
    return;
  }
  const std::size_t ahead = PendingCount();
  ForgetWritten(ahead);
  const Ledger before = ledger_;
  Enter(zCommand, ahead);
  ++depth_;
  sender_.SendCodesToOrvatone(zCommand.text, false);
  --depth_;
  const std::size_t left = sender_.PendingOutput().size();
  if (ahead > 0 && left > zCommand.text.size()) {
    // Too deep a nest: the sender has left the bytes to a send under way, behind some of its own.
    ledger_ = before;
    Enter(zCommand, ahead - (left - zCommand.text.size()));
  }
  if (depth_ == 0 && !isMending_) {
    WriteWhatWasCut();
  }
}

void RegisterWriter::ForgetWritten(std::size_t zPendingCount) {
  auto& present = ledger_.present;
  auto first = present.end();
  while (zPendingCount > 0 && first != present.begin()) {
    --first;
    zPendingCount -= std::min(zPendingCount, first->text.size());
  }
  present.erase(present.begin(), first);
}

void RegisterWriter::Enter(const Command& zCommand, std::size_t zCutCount) {
  auto& present = ledger_.present;
  while (zCutCount > 0 && !present.empty()) {
    zCutCount -= std::min(zCutCount, present.back().text.size());
    if (present.back().number != NoRegister) {
      ledger_.cut.set(Place(present.back().number));
    }
    present.pop_back();
  }
  if (zCommand.number != NoRegister) {
    ledger_.cut.reset(Place(zCommand.number));
  }
  present.push_back(zCommand);
}

void RegisterWriter::WriteWhatWasCut() {
  if (sender_.HasFailed()) {
    ledger_.cut.reset();  // there is no line to write to
  }
  isMending_ = true;
  while (ledger_.cut.any()) {
    TakeEach(ledger_.cut, [this](int zNumber) { Write(zNumber, shownValue_(zNumber)); });
  }
  isMending_ = false;
}

template <class Act>
void RegisterWriter::TakeEach(Registers& zRegisters, Act zAct) {
  for (int number = 0; number < RegisterCount; ++number) {
    if (zRegisters.test(Place(number))) {
      zRegisters.reset(Place(number));
      zAct(number);
    }
  }
}

}  // namespace loquitor
