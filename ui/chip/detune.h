#pragma once

#include <string>
#include <string_view>

namespace loquitor {

inline constexpr int DetuneLocation = 235;

/// What a detune text asks for.
struct DetuneRequest {
  std::string command;     ///< one memory write group without a closing sequence, or empty
  bool isRefused = false;  ///< the value is no byte and must not be sent
};

/// Reads a detune text. One that begins with "&H" (capital H) means the hexadecimal digits behind
/// that, as far as they go (none: 0), and is refused outside 0 to 255; any other text asks for
/// nothing.
DetuneRequest ReadDetune(std::string_view zText);

}  // namespace loquitor
