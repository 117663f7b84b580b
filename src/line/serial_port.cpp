#include "line/serial_port.h"

#include <charconv>

namespace loquitor {

std::optional<std::int32_t> BaudRateOf(std::string_view zText) {
  std::int32_t rate = 0;
  const char* end = zText.data() + zText.size();
  const auto [stop, error] = std::from_chars(zText.data(), end, rate);
  if (error != std::errc() || stop != end || rate <= 0) {
    return std::nullopt;
  }
  return rate;
}

}  // namespace loquitor
