#include "ui/synth/register_writer.h"

#include <utility>

#include "link/scp.h"

namespace loquitor {

RegisterWriter::RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue)
    : sender_(zSender), shownValue_(std::move(zShownValue)) {}

void RegisterWriter::Write(int zNumber, int zValue) {
  postponed_ &= ~Only(zNumber);
  SendPostponed();
  Send(Only(zNumber), RegisterWrite(zNumber, zValue));
}

void RegisterWriter::SendReset() {
  Send({}, scp::Reset);
}

void RegisterWriter::StopSending() {
  sender_.ClearPendingOutput();
  waiting_.reset();
  cut_.reset();
  postponed_.reset();
}

void RegisterWriter::GiveUp() {
  hasGivenUp_ = true;
  if (sender_.SendCount() == lastSend_) {
    StopSending();
  }
}

void RegisterWriter::Send(Registers zRegister, std::string_view zText) {
  if (hasGivenUp_) {
    return;
  }
  if (sender_.PendingOutput().empty()) {
    waiting_.reset();
  }
  cut_ = (cut_ | waiting_) & ~zRegister;
  waiting_ |= zRegister;
  lastSend_ = sender_.SendCount() + 1;
  ++depth_;
  sender_.SendCodesToOrvatone(zText, false);
  if (depth_ == 1) {
    WriteWhatWasCut();
  }
  --depth_;
}

void RegisterWriter::SendEach(Registers& zRegisters) {
  for (int number = 0; number < static_cast<int>(zRegisters.size()); ++number) {
    if ((zRegisters & Only(number)).any()) {
      zRegisters &= ~Only(number);
      Send(Only(number), RegisterWrite(number, shownValue_(number)));
    }
  }
}

void RegisterWriter::WriteWhatWasCut() {
  while (cut_.any() && !sender_.HasFailed()) {
    SendEach(cut_);
  }
  cut_.reset();
}

}  // namespace loquitor
