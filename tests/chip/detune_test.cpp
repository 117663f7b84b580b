#include "ui/chip/detune.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

TEST(Detune, SendsOnlyBytesInHexadecimal) {
  const struct {
    const char* text;
    const char* command;
    bool isRefused;
  } rows[] = {
      {"&HFF", "\\0235J32HFFN", false},
      {"&H10", "\\0235J32H10N", false},
      {"&H5", "\\0235J32H05N", false},
      {"&HZZ", "\\0235J32H00N", false},
      {"&H", "\\0235J32H00N", false},
      {"&Ha7x", "\\0235J32HA7N", false},
      {"&H000FF", "\\0235J32HFFN", false},
      {"&H100", "", true},
      {"&H1FF", "", true},
      {"&HFFFF", "", true},
      {"&HFFFFFFFFFFFFFFFFFF", "", true},
      {"255", "", false},
      {"&hFF", "", false},
      {"", "", false},
      {" &HFF", "", false},
  };
  for (const auto& row : rows) {
    const DetuneRequest request = ReadDetune(row.text);
    EXPECT_EQ(request.command, row.command) << row.text;
    EXPECT_EQ(request.isRefused, row.isRefused) << row.text;
  }
}

}  // namespace
}  // namespace loquitor
