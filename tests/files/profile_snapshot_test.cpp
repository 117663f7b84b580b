#include "files/profile_snapshot.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "files/profile_edit.h"
#include "tests/support/loaded_text.h"
#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

TEST(ProfileSnapshotTest, FindsEveryKeyOfALargeFile) {
  std::string text;
  for (int line = 0; line < 28'000; ++line) {
    if (line % 700 == 0) {  // forty sections, ten of them for the second time
      text += "[S" + std::to_string(line / 700 % 30) + "]\n";
    }
    text += "Word" + std::to_string(line % 700 % 650) + "=" + std::to_string(line) + "\n";
  }
  const ProfileSnapshot snapshot(AsLoaded(text));
  for (int line = 0; line < 21'000; line += line % 700 == 649 ? 51 : 1) {
    ASSERT_EQ(snapshot.Find("s" + std::to_string(line / 700), "wORD" + std::to_string(line % 700)),
              std::to_string(line));
  }
}

/// Nothing is found and nothing hangs, whatever the file repeats.
TEST(ProfileSnapshotTest, GetsThroughHugeAndHostileTexts) {
  std::mt19937 random(7);
  std::string noise(1 << 16, '\0');
  std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
  const std::string longKey = "[s]\nk" + std::string(100'000, ' ') + "=1\n";
  for (const auto& [start, pattern] : Rows<std::string, std::string>{{"[s]\n", noise},
                                                                     {"[s]\n", "=\n"},
                                                                     {"[s]\n", "[\n"},
                                                                     {"[s]\n", "k=1\r"},
                                                                     {"[s]\n", "\r"},
                                                                     {"[s]\n", " "},
                                                                     {longKey, "k=2\n"}}) {
    std::string text = start;
    while (text.size() < 300'000) {  // what is quadratic takes 10^10 steps
      text += pattern;
    }
    EXPECT_EQ(ProfileSnapshot(AsLoaded(text)).Find("s", "none"), std::nullopt);
    const ProfileValue value{"k", "1"};
    EXPECT_TRUE(TextWithValues(text, "none", {&value, 1})->starts_with(text));
  }
}

/// One of many names that differ only in the highest bits of some bytes. The hash multiplies eight
/// bytes at a time; a difference in the highest bit of one product is undone by the next eight
/// bytes, so all of these names have one hash.
std::string CollidingName(unsigned zNumber) {
  std::string name;
  for (int bit = 0; bit < 12; ++bit) {
    const char byte = (zNumber >> bit & 1) != 0 ? '\x81' : '\x01';
    name.append(
        {byte, 'a', 'a', 'a', 'a', 'a', 'a', 'a', byte, 'a', 'a', 'a', byte, 'a', 'a', 'a'});
  }
  return name;
}

TEST(ProfileSnapshotTest, FindsNamesThatWereMadeToCollide) {
  constexpr unsigned names = 1 << 12;
  std::string text = "[s]\n";
  for (unsigned i = 0; i < 2 * names; ++i) {  // all of them twice
    text += CollidingName(i % names) + "=" + std::to_string(i) + "\n";
  }
  const ProfileSnapshot snapshot(AsLoaded(text));
  for (unsigned i = 0; i < names; ++i) {
    std::string name = CollidingName(i);
    name[1] = 'A';
    ASSERT_EQ(snapshot.Find("s", name), std::to_string(i));
    name[1] = 'b';
    ASSERT_EQ(snapshot.Find("s", name), std::nullopt);
  }
}

}  // namespace
}  // namespace loquitor::testing
