#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// What to send for a detune text.
struct DetuneRequest {
  std::string command;     ///< one memory write group without a closing sequence, or empty
  bool isRefused = false;  ///< the value is above 255 and must not be sent
};

/// Reads a detune text: "&H" (capital H) at its start, then hexadecimal digits up to the first
/// other character. No digits mean 0. A value above 255 is refused. Any other text gives no command
/// and is not refused.
DetuneRequest ReadDetune(std::string_view zText);

}  // namespace loquitor
