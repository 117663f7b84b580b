#include "link/profile_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "link/profile_edit.h"
#include "tests/support/plain_profile.h"

namespace loquitor::testing {
namespace {

/// Makes profile texts in which everything that means something occurs often.
class TextMaker {
 public:
  explicit TextMaker(unsigned zSeed) : random_(zSeed) {}

  int Below(int zEnd) { return static_cast<int>(random_() % static_cast<unsigned>(zEnd)); }

  std::string Name() {
    static const char* const names[] = {"a",
                                        "A",
                                        "key",
                                        "KEY",
                                        " k e y ",
                                        "\xE4\x9C",
                                        "\xC4\x8C",
                                        "",
                                        "\t",
                                        "longer name",
                                        "LONGER NAME",
                                        "b]",
                                        ";c",
                                        "[d",
                                        "e=f",
                                        "nine char",
                                        "NINE\xDE"
                                        "char",
                                        "\xFE"};
    return names[Below(std::size(names))];
  }

  std::string Value() {
    static const char* const values[] = {"",    "1",    " x ",  "\"q\"", "' q '", "\"", "'\"",
                                         "a=b", "\r\n", "a\nb", "[s]",   ";",     "\t"};
    return values[Below(std::size(values))];
  }

  std::string Text() {
    std::string text = Below(8) == 0 ? "\xEF\xBB\xBF" : "";
    for (int lines = Below(24); lines > 0; --lines) {
      text += Line();
      static const char* const ends[] = {"\r\n", "\n", "\r", "\r\n", "\n\r"};
      text += lines == 1 && Below(2) == 0 ? "" : ends[Below(std::size(ends))];
    }
    return text;
  }

 private:
  std::string Line() {
    switch (Below(6)) {
      case 0:
        return (Below(4) == 0 ? " [" : "[") + Name() + (Below(8) == 0 ? "" : "]x");
      case 1:
        return Below(2) == 0 ? " \t" : ";" + Name() + "=" + Value();
      case 2:
        return Name();
      default:
        return Name() + (Below(3) == 0 ? " = " : "=") + Value();
    }
  }

  std::mt19937 random_;
};

TEST(ProfileIndexTest, FindsAndEditsLikeAPlainReference) {
  TextMaker make(20260722);
  for (int round = 0; round < 20'000; ++round) {
    const std::string text = make.Text(), section = make.Name(), key = make.Name(),
                      value = make.Value();
    SCOPED_TRACE(::testing::PrintToString(text) + " [" + section + "] " + key);
    PlainProfile expected(text);
    ASSERT_EQ(expected.Text(), text);
    const auto plain = expected.Read(section, key);
    ASSERT_EQ(ProfileIndex(AsLoaded(text)).Find(section, key), plain);
    const auto edit = EditForValue(text, section, key, value);
    ASSERT_EQ(edit.has_value(), expected.Write(section, key, value));
    ASSERT_EQ(edit ? Edited(text, *edit) : text, expected.Text());
  }
}

TEST(ProfileIndexTest, FindsEveryKeyOfALargeFile) {
  std::string text;
  for (int section = 0; section < 40; ++section) {
    text += "[S" + std::to_string(section % 30) + "]\n";  // ten of them for the second time
    for (int key = 0; key < 700; ++key) {
      text += "Word" + std::to_string(key % 650) + "=" + std::to_string(section) + "." +
              std::to_string(key) + "\n";
    }
  }
  const ProfileIndex index(AsLoaded(text));
  for (int section = 0; section < 30; ++section) {
    for (int key = 0; key < 650; ++key) {
      ASSERT_EQ(index.Find("s" + std::to_string(section), "wORD" + std::to_string(key)),
                std::to_string(section) + "." + std::to_string(key));
    }
    EXPECT_EQ(index.Find("s" + std::to_string(section), "word650"), std::nullopt);
  }
}

TEST(ProfileIndexTest, NamesTheSectionsThatCanBeRead) {
  const ProfileIndex index(AsLoaded("k=1\n[Bell]\n [ Drum ]\n[bell]\n[]\n[\xC4\n;[no]\n"));
  EXPECT_THAT(index.SectionNames(), ::testing::ElementsAre("Bell", "Drum", "", "\xC4"));
}

/// Files that are no profiles: nothing is found, nothing hangs, whatever repeats a million times.
TEST(ProfileIndexTest, GetsThroughHugeAndHostileTexts) {
  constexpr std::size_t size = 1'000'000;  // what is quadratic would take hours
  std::mt19937 random(7);
  std::string noise(1 << 16, '\0');
  for (char& c : noise) {
    c = static_cast<char>(random());
  }
  for (const std::string& pattern :
       {noise, std::string("=\n"), std::string("[\n"), std::string("k=1\r"), std::string("\r"),
        std::string("a"), std::string(" "), std::string("=")}) {
    std::string text = "[s]\n";
    while (text.size() < size) {
      text += pattern;
    }
    const ProfileIndex index(AsLoaded(text));
    EXPECT_EQ(index.Find("s", "none"), std::nullopt);
    EXPECT_EQ(EditForValue(text, "none", "k", "1")->end, text.size());
  }
}

}  // namespace
}  // namespace loquitor::testing
