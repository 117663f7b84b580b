#include "ui/synth/register_writer.h"

#include <utility>

#include "link/scp.h"

namespace loquitor {

RegisterWriter::RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue)
    : sender_(zSender), shownValue_(std::move(zShownValue)) {}

void RegisterWriter::Write(int zNumber, int zValue) {
  const bool isNext = postponed_.empty();
  SendPostponed();
  // The events of those may have moved the register on.
  Send(zNumber, isNext ? zValue : shownValue_(zNumber));
}

void RegisterWriter::SendReset() {
  Send({}, scp::Reset);
}

void RegisterWriter::SendPostponed() {
  while (!postponed_.empty()) {
    const auto [number, value] = postponed_.front();
    postponed_.pop_front();
    Send(number, value);
  }
}

void RegisterWriter::StopSending() {
  sender_.ClearPendingOutput();
  last_.reset();
  cut_.reset();
  postponed_.clear();
}

void RegisterWriter::GiveUp() {
  hasGivenUp_ = true;
  if (sender_.SendCount() == lastSend_) {
    StopSending();
  }
}

void RegisterWriter::Send(int zNumber, int zValue) {
  Send(Only(zNumber), RegisterWrite(zNumber, zValue));
}

void RegisterWriter::Send(Registers zRegister, std::string_view zText) {
  if (hasGivenUp_) {
    return;
  }
  if (!sender_.PendingOutput().empty()) {
    cut_ |= last_;
  }
  cut_ &= ~zRegister;
  last_ = zRegister;
  lastSend_ = sender_.SendCount() + 1;
  ++depth_;
  sender_.SendCodesToOrvatone(zText, false);
  if (depth_ == 1) {
    WriteWhatWasCut();
  }
  --depth_;
}

void RegisterWriter::WriteWhatWasCut() {
  bool isLeftToOther = false;  // a send further out has the bytes, and keeps those of a turn whole
  while (cut_.any() && !isLeftToOther && !sender_.HasFailed()) {
    for (int number = 0; number < RegisterCount; ++number) {
      if ((cut_ & Only(number)).any()) {
        cut_ &= ~Only(number);
        Send(number, shownValue_(number));
      }
    }
    isLeftToOther = !sender_.PendingOutput().empty();
  }
  cut_.reset();
}

}  // namespace loquitor
