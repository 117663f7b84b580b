#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// The world around a virtual chip: the line on which its bytes arrive, the lines of standard
/// input, and the wish to end. Each system has its own; OfferChipLine makes it.
class ChipLine {
 public:
  virtual ~ChipLine() = default;

  /// What a program opens to reach the chip, in words for the user (UTF-8).
  virtual std::string Name() const = 0;

  /// Returns when something may have arrived or the end is asked for, after `zLongest` at the
  /// latest. Nothing waits without an end. Throws std::system_error when the system cannot wait.
  virtual void Wait(std::optional<std::chrono::milliseconds> zLongest) = 0;

  /// The bytes that have arrived; empty when there are none. Does not block. Throws
  /// std::system_error when the line cannot be read any more.
  virtual std::string Read() = 0;

  /// The text that has arrived on standard input since the last call. Does not block.
  virtual std::string ReadInput() = 0;

  /// Whether the user or the system has asked the program to end.
  virtual bool IsAskedToStop() const = 0;
};

/// Offers a line to programs that send to the chip, any number of them one after another. There can
/// be one at a time in a process.
///
/// `zLink` is the value of the option --link, empty without it: elsewhere the path of a symbolic
/// link to a pseudo-terminal, on Windows the name of a pipe. Throws std::runtime_error, whose text
/// says what is wrong, when the line cannot be offered.
std::unique_ptr<ChipLine> OfferChipLine(const std::string& zLink);

/// What --help says of --link.
extern const std::string_view LinkHelp;

}  // namespace loquitor
