#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor {

/// The bytes that are still to be written. They belong to one send, or to several that were added.
/// `zIsPhrase` is true for a spoken code string, which may be cut anywhere, and false for a command
/// string, which Add lets out whole once it has begun.
class SendQueue {
 public:
  /// Replaces all bytes by those of one send.
  void Replace(std::string_view zCodes, bool zIsPhrase);

  /// Adds the bytes of a send after those that were added in the same turn. The first call of a
  /// turn drops the bytes from earlier turns, except the rest of a command string that has begun.
  void Add(std::string_view zCodes, bool zIsPhrase);

  /// Begins a turn of the event loop; see Add.
  void BeginTurn() { isAdding_ = false; }

  /// Drops all bytes.
  void Clear();

  /// Removes the first byte and returns it. The queue must not be empty.
  char TakeByte() { return bytes_[takenCount_++]; }

  /// The bytes in the queue. Valid until the next call that changes it.
  std::string_view Bytes() const { return std::string_view(bytes_).substr(takenCount_); }

  bool IsEmpty() const { return takenCount_ == bytes_.size(); }

  /// True when the queue was last emptied by Clear, not by TakeByte.
  bool WasCleared() const { return wasCleared_; }

 private:
  void DropWhatMayBeReplaced();

  std::string bytes_;  // begins with those already taken, so that taking one moves no others
  std::size_t takenCount_ = 0;
  std::size_t lastBegin_ = 0;  // where the bytes of the last turn begin
  bool isLastPhrase_ = false;  // whether those are a phrase
  bool isAdding_ = false;      // Add was called in this turn
  bool wasCleared_ = false;
};

}  // namespace loquitor
