#include "line/scp.h"

#include <gtest/gtest.h>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;
using Text = std::string_view;

TEST(Scp, WritesGoOutInTheFormThatTheChipReads) {
  for (const auto& [value, text] : Rows<std::uint8_t, Text>{
           {0, "00"}, {9, "09"}, {10, "0A"}, {16, "10"}, {175, "AF"}, {255, "FF"}}) {
    EXPECT_EQ(GetTwoDigitHex(value), text);
  }
  for (const auto& [sent, bytes] :
       Rows<std::string, std::string>{{MemoryWriteGroup(0, 0), "\\00J32H00N"},
                                      {MemoryWriteGroup(240, 10), "\\0240J32H0AN"},
                                      {RegisterWrite(7, 96), "\\07J 96NX"},
                                      {RegisterWrite(15, -63), "\\015J-63NX"},
                                      {StopSequence(), "\\0RX\x1f\0"s},
                                      {ConnectionTest(), "\x1f\\0VX"},
                                      {std::string(scp::StoreConfiguration), "\\0W\0\0\0\0\0"s}}) {
    EXPECT_EQ(sent, bytes);
  }
}

}  // namespace
}  // namespace loquitor::testing
