#include "line/serial_port.h"

#include <gtest/gtest.h>

namespace loquitor::testing {
namespace {

TEST(SerialPortTest, ABaudRateIsAPlainPositiveNumber) {
  EXPECT_EQ(BaudRateOf("9600"), 9600);
  EXPECT_EQ(BaudRateOf("2147483647"), 2147483647);
  for (const char* text : {"2147483648", "0", "", "-1", "+9600", "9600.0", " 9600", "9600 "}) {
    EXPECT_EQ(BaudRateOf(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace loquitor::testing
