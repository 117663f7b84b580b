#include "ui/chip/detune.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

TEST(Detune, SendsOnlyBytesInHexadecimal) {
  for (const auto& [text, hex] : {std::pair("&HFF", "FF"),
                                  {"&H10", "10"},
                                  {"&H5", "05"},
                                  {"&HZZ", "00"},
                                  {"&H", "00"},
                                  {"&Ha7x", "A7"},
                                  {"&H000FF", "FF"}}) {
    EXPECT_EQ(ReadDetune(text).command, std::string("\\0235J32H") + hex + "N") << text;
    EXPECT_FALSE(ReadDetune(text).isRefused) << text;
  }
  for (const char* text : {"&H100", "&HFFFF", "&HFFFFFFFFFFFFFFFFFF", "255", "&hFF", "", " &HFF"}) {
    EXPECT_EQ(ReadDetune(text).command, "") << text;
    EXPECT_EQ(ReadDetune(text).isRefused, std::string_view(text).starts_with("&H")) << text;
  }
}

}  // namespace
}  // namespace loquitor
