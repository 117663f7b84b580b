#include "line/send_queue.h"

namespace loquitor {

void SendQueue::Replace(std::string_view zCodes, bool zIsPhrase) {
  *this = SendQueue();
  bytes_ = zCodes;
  isLastPhrase_ = zIsPhrase;
}

void SendQueue::Add(std::string_view zCodes, bool zIsPhrase) {
  if (!isAdding_) {
    DropWhatMayBeReplaced();
    isLastPhrase_ = zIsPhrase;
  }
  bytes_ += zCodes;
  isAdding_ = true;
  wasCleared_ = false;
}

void SendQueue::Clear() {
  bytes_.clear();
  takenCount_ = 0;
  lastBegin_ = 0;
  wasCleared_ = true;
}

void SendQueue::DropWhatMayBeReplaced() {
  const bool hasLastBegun = takenCount_ > lastBegin_;
  if (!hasLastBegun) {
    bytes_.resize(lastBegin_);
  } else if (isLastPhrase_) {
    bytes_.resize(takenCount_);
  }
  bytes_.erase(0, takenCount_);
  takenCount_ = 0;
  lastBegin_ = bytes_.size();
}

}  // namespace loquitor
