#include "link/profile_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "link/profile_edit.h"
#include "tests/support/plain_profile.h"

namespace loquitor::testing {
namespace {

/// Makes texts of pieces that mean something in a profile.
class TextMaker {
 public:
  std::string Name() {
    return Pick({"a", "A", "key", "KEY", " k e y ", "\xE4\x9C", "\xC4\x8C", "", "\t",
                 "nine\xDE char", "NINE\xFE char", "b]", ";c", "[d", "e=f", "\n"});
  }
  std::string Value() {
    return Pick({"", "1", " x ", "\"q\"", "' q '", "\"", "'\"", "a=b", "\r\n", "a\nb", "[s]", ";"});
  }
  std::string Text() {
    std::string text = Pick({"", "", "", "\xEF\xBB\xBF"});
    for (auto lines = random_() % 24; lines > 0; --lines) {
      text += Pick({"", "", "\t", "; ", "[a]\n", "[KEY\r\n", " [ \xC4\x8C ] x=1\r", "["}) + Name() +
              Pick({"=", "=", " = ", "]", ""}) + Value() + Pick({"\r\n", "\n", "\r", "\n\r"});
    }
    return text.substr(0, text.size() - random_() % 2);
  }

 private:
  std::string Pick(std::initializer_list<const char*> zTexts) {
    return zTexts.begin()[random_() % zTexts.size()];
  }

  std::mt19937 random_{20260722};
};

TEST(ProfileIndexTest, FindsAndEditsLikeAPlainReference) {
  TextMaker make;
  for (int round = 0; round < 10'000; ++round) {
    const std::string text = make.Text(), section = make.Name(), key = make.Name(),
                      value = make.Value();
    SCOPED_TRACE(::testing::PrintToString(text) + " [" + section + "] " + key);
    PlainProfile plain(text);
    ASSERT_EQ(plain.Text(), text);
    ASSERT_EQ(ProfileIndex(AsLoaded(text)).Find(section, key), plain.Read(section, key));
    const auto edit = EditForValue(text, section, key, value);
    ASSERT_EQ(edit.has_value(), plain.Write(section, key, value));
    const std::string after = edit ? Edited(text, *edit) : text;
    ASSERT_EQ(after, plain.Text());
    ASSERT_EQ(ProfileIndex(AsLoaded(after)).Find(section, key), plain.Read(section, key));
  }
}

TEST(ProfileIndexTest, FindsEveryKeyOfALargeFile) {
  const auto value = [](int zSection, int zKey) {
    return std::to_string(zSection) + "." + std::to_string(zKey);
  };
  std::string text;
  for (int section = 0; section < 40; ++section) {
    text += "[S" + std::to_string(section % 30) + "]\n";  // ten of them for the second time
    for (int key = 0; key < 700; ++key) {
      text += "Word" + std::to_string(key % 650) + "=" + value(section, key) + "\n";
    }
  }
  const ProfileIndex index(AsLoaded(text));
  for (int section = 0; section < 30; ++section) {
    for (int key = 0; key < 650; ++key) {
      ASSERT_EQ(index.Find("s" + std::to_string(section), "wORD" + std::to_string(key)),
                value(section, key));
    }
  }
}

TEST(ProfileIndexTest, NamesTheSectionsThatCanBeRead) {
  const ProfileIndex index(AsLoaded("k=1\n[Bell]\n [ Drum ]\n[bell]\n[]\n[\xC4\n;[no]\n"));
  EXPECT_THAT(index.SectionNames(), ::testing::ElementsAre("Bell", "Drum", "", "\xC4"));
}

/// Files that are no profiles: nothing is found, nothing hangs, whatever repeats a million times.
TEST(ProfileIndexTest, GetsThroughHugeAndHostileTexts) {
  std::mt19937 random(7);
  std::string noise(1 << 16, '\0');
  for (char& c : noise) {
    c = static_cast<char>(random());
  }
  for (const std::string& pattern : {noise, std::string("=\n"), std::string("[\n"),
                                     std::string("k=1\r"), std::string("\r"), std::string(" ")}) {
    std::string text = "[s]\n";
    while (text.size() < 1'000'000) {  // what is quadratic would take hours
      text += pattern;
    }
    EXPECT_EQ(ProfileIndex(AsLoaded(text)).Find("s", "none"), std::nullopt);
    EXPECT_EQ(EditForValue(text, "none", "k", "1")->end, text.size());
  }
}

}  // namespace
}  // namespace loquitor::testing
