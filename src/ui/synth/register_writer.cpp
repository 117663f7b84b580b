#include "ui/synth/register_writer.h"

#include <utility>

namespace loquitor {

RegisterWriter::RegisterWriter(CodeSender& zSender, std::function<int(int)> zShownValue)
    : sender_(zSender), shownValue_(std::move(zShownValue)) {}

void RegisterWriter::Write(int zNumber, int zValue) {
  SendInOrder(WriteOf(zNumber, zValue));
}

void RegisterWriter::SendReset() {
  SendInOrder({{}, std::string(scp::Reset)});
}

void RegisterWriter::SendInOrder(Command zCommand) {
  postponed_.push_back(std::move(zCommand));
  if (!isPostponing_) {
    SendPostponed();
  }
}

void RegisterWriter::Postpone(const std::function<void()>& zChange) {
  Commands earlier = std::exchange(postponed_, {});
  isPostponing_ = true;
  zChange();
  isPostponing_ = false;
  Registers written;
  for (const Command& command : postponed_) {
    written |= command.target;
  }
  std::erase_if(earlier, [&](const Command& zOld) { return (zOld.target & written).any(); });
  postponed_.insert(postponed_.begin(), earlier.begin(), earlier.end());
}

void RegisterWriter::SendPostponedWhenIdle() {
  if (depth_ == 0) {
    SendPostponed();  // otherwise the sends under way go on with these
  }
}

void RegisterWriter::SendPostponed() {
  while (!postponed_.empty() && !isResetting_) {
    const Command command = std::move(postponed_.front());
    postponed_.pop_front();
    Send(command);
  }
}

void RegisterWriter::StopSending() {
  sender_.ClearPendingOutput();
  pending_.reset();
  cut_.reset();
  postponed_.clear();
}

void RegisterWriter::GiveUp() {
  hasGivenUp_ = true;
  if (sender_.IsUnderWay(lastSend_)) {
    StopSending();
  }
}

void RegisterWriter::Send(const Command& zCommand) {
  if (hasGivenUp_) {
    return;
  }
  if (sender_.PendingOutput().empty()) {
    pending_.reset();
  }
  cut_ |= pending_;
  cut_ &= ~zCommand.target;
  pending_ |= zCommand.target;
  isResetting_ = zCommand.target.none();
  ++depth_;
  sender_.SendCodesToOrvatone(zCommand.bytes, false, &lastSend_);
  isResetting_ = false;
  if (depth_ == 1) {
    WriteWhatWasCut();
  }
  --depth_;
}

void RegisterWriter::WriteWhatWasCut() {
  bool isLeftToOther = false;  // an outer send has taken the bytes over and writes them whole
  while (cut_.any() && !isLeftToOther && !sender_.HasFailed()) {
    for (int number = 0; number < synth::RegisterCount; ++number) {
      if ((cut_ & Only(number)).any()) {
        cut_ &= ~Only(number);
        Send(WriteOf(number, shownValue_(number)));
      }
    }
    isLeftToOther = !sender_.PendingOutput().empty();
  }
  cut_.reset();
}

}  // namespace loquitor
