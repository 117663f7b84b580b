#include "ui/chip/detune.h"

#include "core/eeprom.h"
#include "line/scp.h"
#include "text/number_text.h"

namespace loquitor {

DetuneRequest ReadDetune(std::string_view zText) {
  if (!zText.starts_with("&H")) {
    return {};
  }
  const double value = NumberAtStart(zText);
  if (value < 0 || value > 255) {
    return {.command = {}, .isRefused = true};
  }
  return {.command = MemoryWriteGroup(eeprom::Detune, static_cast<std::uint8_t>(value))};
}

}  // namespace loquitor
