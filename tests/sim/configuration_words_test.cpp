#include "sim/configuration_words.h"

#include <gtest/gtest.h>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

TEST(ConfigurationWordsTest, TellWhatTheBytesMakeTheChipDo) {
  for (const auto& [location, value, words] : Rows<int, std::uint8_t, const char*>{
           {234, 5, ""},  // a phrase
           {236, 5, ""},
           {237, 0xF0, "does nothing"},
           {237, 0x73, "plays phrase 3"},
           {238, 0xFF,
            "output 0 by chip, output 1 by chip, output 2 by chip, input 7 TTL signal, "
            "input 6 TTL signal, auto silence on"},
           {238, 0xD2,
            "output 0 by phrase, output 1 by chip, output 2 by phrase, input 7 TTL signal, "
            "input 6 RC pulse, auto silence off"},
           {238, 0xE4,
            "output 0 by phrase, output 1 by phrase, output 2 by chip, input 7 RC pulse, "
            "input 6 TTL signal, auto silence off"},
           {239, 0xD8, "output 0 off, output 1 off, output 2 off, SCP node 5"},
           {239, 0x8D, "output 0 on, output 1 off, output 2 on, SCP node 0"},
           {240, 0xD0, "does nothing"},
           {240, 0x05, "plays phrase 5, clears the buffer, restarts from a wait"},
           {244, 0x14, "plays phrase 4, clears the buffer"},
           {255, 0x73, "calls phrase 3"},
           {255, 0xF3, "does nothing"},  // how to call, but nothing is played
           {255, 0xC0, "restarts from a wait"}}) {
    EXPECT_EQ(ConfigurationWords(location, value), words) << location << " " << int{value};
  }
}

}  // namespace
}  // namespace loquitor::testing
