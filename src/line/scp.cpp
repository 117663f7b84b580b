#include "line/scp.h"

namespace loquitor {

std::string GetTwoDigitHex(std::uint8_t zValue) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  return {digits[zValue >> 4], digits[zValue & 15]};
}

std::string MemoryWriteGroup(int zLocation, std::uint8_t zValue) {
  return std::string(scp::Node) + std::to_string(zLocation) + "J" +
         std::to_string(scp::MemoryHighAddress) + "H" + GetTwoDigitHex(zValue) + "N";
}

std::string RegisterWrite(int zRegister, int zValue) {
  const char* signPlace = zValue < 0 ? "" : " ";
  return std::string(scp::Node) + std::to_string(zRegister) + "J" + signPlace +
         std::to_string(zValue) + "NX";
}

std::string StopSequence() {
  return std::string(scp::Reset) + std::string("\x1f\0", 2);
}

std::string ConnectionTest() {
  return "\x1f" + std::string(scp::Test);
}

}  // namespace loquitor
