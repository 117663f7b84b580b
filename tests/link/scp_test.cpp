#include "link/scp.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

using namespace std::string_literals;

TEST(Scp, HexadecimalValuesHaveTwoDigits) {
  const struct {
    std::uint8_t value;
    const char* text;
  } cases[] = {{0, "00"}, {9, "09"}, {10, "0A"}, {16, "10"}, {175, "AF"}, {255, "FF"}};
  for (const auto& one : cases) {
    EXPECT_EQ(GetTwoDigitHex(one.value), one.text);
  }
}

TEST(Scp, WritesGoOutInTheFormThatTheChipReads) {
  const struct {
    std::string sent;
    std::string bytes;
  } cases[] = {{MemoryWriteGroup(0, 0), "\\00J32H00N"},
               {MemoryWriteGroup(3, 255), "\\03J32HFFN"},
               {MemoryWriteGroup(240, 10), "\\0240J32H0AN"},
               {RegisterWrite(7, 96), "\\07J 96NX"},
               {RegisterWrite(0, 0), "\\00J 0NX"},
               {RegisterWrite(15, -63), "\\015J-63NX"},
               {StopSequence(), "\\0RX\x1f\0"s},
               {ConnectionTest(), "\x1f\\0VX"},
               {std::string(scp::StoreConfiguration), "\\0W\0\0\0\0\0"s}};
  for (const auto& one : cases) {
    EXPECT_EQ(one.sent, one.bytes);
  }
}

}  // namespace
}  // namespace loquitor
