#include "files/profile_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_view_literals;
using Text = std::string_view;

/// A profile file of a test's own.
class ProfileFileTest : public ::testing::Test {
 protected:
  void Given(Text zText) { WriteBytes(file, zText); }
  std::string Read(Text zSection, Text zKey, Text zDefault = "default",
                   std::size_t zBufferLength = 2560) {
    return ReadProfileValue(zSection, zKey, zDefault, zBufferLength, file);
  }
  bool Write(Text zSection, Text zKey, Text zValue) {
    return WriteProfileValue(zSection, zKey, zValue, file);
  }
  std::string Bytes() { return ReadBytes(file); }

  TempFolder folder;
  std::filesystem::path file = folder / "words.ini";
};

/// These rows and those of the writes show the rules. The fuzz target tries combinations of them
/// against a plain reference.
TEST_F(ProfileFileTest, ReadsTheFirstKeyOfTheFirstSectionThatMatches) {
  for (const auto& [text, section, key, value] : Rows<Text, Text, Text, Text>{
           {"[a]\r\nk=1\r\n", "a", "k", "1"},
           {"[a]\rk=1\r[b]\rk=2\r", "b", "k", "2"},
           {"[a]\r\r\n\n\rk=1\n\r", "a", "k", "1"},
           {"[\xC4\x8A\x9F]\n\xD6\xC9=1\n", "\xE4\x9A\xFF", "\xF6\xE9", "1"},
           {"[s]\n\xD7=1\n\xDF=2\n", "s", "\xF7", "default"},
           {"[s]\nk=1\n[t]\nx=1\n[S]\nk=2\nj=3\n", "s", "k", "1"},
           {" \t[ \ts \t] tail\n \tk\t = \t1 2\t \n", " s\t", "\tk ", "1 2"},
           {"[s]x]\nk=1\n", "s", "k", "1"},
           {"[open s \nk=1\n", "open s", "k", "1"},
           {"[]\nk=1\n", "", "k", "1"},
           {"k=0\n[s]\nj=1\n", "s", "k", "default"},
           {"[s]\n;k=1\n ; k=2\nk\nk2\n", "s", "k", "default"},
           {"[s]\nk = = \n", "s", "k", "="},
           {"[s]\na  b = 1\n", "s", "a b", "default"},
           {"[s]\nk= \t \n", "s", "k", ""},
           {"[s]\nk=\" a \"\n", "s", "k", " a "},
           {"[s]\nk= '\ta'\t\n", "s", "k", "\ta"},
           {"[s]\nk=\"a\n", "s", "k", "\"a"},
           {"[s]\nk=''a''\n", "s", "k", "'a'"},
           {"\xEF\xBB\xBF  [s]\nk=1\n", "s", "k", "1"},
           {"[s]\nk=a\0b\n"sv, "s", "k", "a\0b"sv},
           {"[s]\n\0=1\nk\0=2\nk=3"sv, "s", "k\0"sv, "2"},
           {"[s", "s", "k", "default"},
           {"[s]\nk=1", "s\nk", "k", "default"}}) {
    Given(text);
    EXPECT_EQ(Read(section, key), value) << ::testing::PrintToString(text);
  }
}

TEST_F(ProfileFileTest, ReadsLongValuesToTheirLineEnd) {
  for (const std::size_t length : {250U, 254U, 255U, 256U, 257U, 1023U, 1024U, 1025U, 5000U}) {
    const std::string value(length, 'x');
    for (const std::string_view end : {"\r\n", "\n", "\r", ""}) {
      Given("[s]\nk=" + value + std::string(end) + (end.empty() ? "" : "j=\r\ni=\n"));
      EXPECT_EQ(Read("s", "k", "", 9999), value) << length << ::testing::PrintToString(end);
    }
  }
}

TEST_F(ProfileFileTest, CutsTheValueAndTheDefaultToTheBuffer) {
  Given("[s]\nk=\"abcdef\"\n");
  for (const auto& [length, value, rest] :
       Rows<std::size_t, Text, Text>{{0, "", ""},
                                     {1, "", ""},
                                     {4, "abc", "123"},
                                     {7, "abcdef", "123456"},
                                     {8, "abcdef", "1234567"}}) {
    EXPECT_EQ(Read("s", "k", "x", length), value);
    EXPECT_EQ(Read("s", "none", "1234567", length), rest);
    EXPECT_EQ(Read("none", "k", "1234567", length), rest);
  }
}

TEST_F(ProfileFileTest, WritesOneValueAndLeavesTheRestAsItWas) {
  for (const auto& [before, section, key, value, after] : Rows<Text, Text, Text, Text, Text>{
           {"", "s", "k", "1", "[s]\r\nk=1\r\n"},
           {"\xEF\xBB\xBF[s]\nk=0\n", "s", "k", "1", "\xEF\xBB\xBF[s]\nk=1\r\n"},
           {"[s]\nWord=0\nx=1\n", "s", "wORD", "1", "[s]\nWord=1\r\nx=1\n"},
           {"[s]\n  k \t= 0 \nx", "s", "k", "1", "[s]\nk=1\r\nx"},
           {"[s]\nk=0\nk=9\n[s]\nk=8\n", "s", "k", "1", "[s]\nk=1\r\nk=9\n[s]\nk=8\n"},
           {"[s]\nk=0\n[t]\n[s]\nj=8\n", "s", "j", "1", "[s]\nk=0\nj=1\r\n[t]\n[s]\nj=8\n"},
           {"[s]\na=0\n\n \t\r\n\r[t]\nb=0\n", "s", "k", "1",
            "[s]\na=0\nk=1\r\n\n \t\r\n\r[t]\nb=0\n"},
           {"[s]\nstray", "s", "k", "1", "[s]\nstray\r\nk=1\r\n"},
           {"[t]\na=1\n\n\n", "s", "k", "1", "[t]\na=1\n\n\n[s]\r\nk=1\r\n"},
           {"k=0\n", "", "k", "1", "k=0\n[]\r\nk=1\r\n"},
           {"", " \tMy Words ", "\ta key ", "1", "[My Words]\r\na key=1\r\n"},
           {"[s]\nk='0'\n", "s", "k", "0 1", "[s]\nk=0 1\r\n"},
           {"[s]\nk=0\n", "s", "k", " a=b;[c] ", "[s]\nk= a=b;[c] \r\n"},
           {"[s]\nj=0\n", "s", "k", "a\r\nb\n\n\rc\rd", "[s]\nj=0\nk=abcd\r\n"},
           {"[s]\n;k=0\n", "s", "k", "1", "[s]\n;k=0\nk=1\r\n"},
           {"a\0b\n[s]\n\0\nk=0\n\0"sv, "s", "k", "1", "a\0b\n[s]\n\0\nk=1\r\n\0"sv},
           {"[s]\nk = 1\n", "s", "k", " 1 ", "[s]\nk = 1\n"},  // the file has it already
       }) {
    Given(before);
    EXPECT_TRUE(Write(section, key, value));
    EXPECT_EQ(Bytes(), after) << ::testing::PrintToString(before);
  }
  EXPECT_THAT(folder.Names(), ::testing::ElementsAre("words.ini"));
}

TEST_F(ProfileFileTest, WritesManyValuesAsOneAfterTheOtherWould) {
  const std::vector<ProfileValue> entries{
      {"b", "2"}, {"new", "x\r\ny"}, {"B", "3"}, {"empty", ""}, {"new", "z"}};
  for (const auto text : {"[s]\nb = 1\n; note\n\n[t]\nb=1"sv, "no section"sv, ""sv}) {
    Given(text);
    for (const ProfileValue& entry : entries) {
      ASSERT_TRUE(Write("s", entry.key, entry.value));
    }
    const std::string expected = Bytes();
    Given(text);
    EXPECT_TRUE(ProfileFile(file).Write("s", entries));
    EXPECT_EQ(Bytes(), expected) << text;
    const std::vector<ProfileValue> refused{{"b", "9"}, {"a=b", ""}};
    EXPECT_FALSE(ProfileFile(file).Write("s", refused));
    EXPECT_EQ(Bytes(), expected) << "one name that cannot be held: nothing is written";
  }
  EXPECT_FALSE(ProfileFile(folder / "no folder" / "file").Write("s", entries));
}

TEST_F(ProfileFileTest, RefusesNamesThatTheFormatCannotHold) {
  Given("[s]\nk=0\n");
  const Rows<Text, Text> rows{{"s", " \t"}, {"s", "a=b"},  {"s", "a\nb"},
                              {"s", "a\r"}, {"s", " [a]"}, {"s", "\t;"},
                              {"a]b", "k"}, {"a\nb", "k"}, {"\r", "k"}};
  for (const auto& [section, key] : rows) {
    EXPECT_FALSE(Write(section, key, "1")) << section << '/' << key;
    EXPECT_FALSE(WriteProfileValue(section, key, "1", folder / "new")) << section << '/' << key;
    EXPECT_EQ(Bytes(), "[s]\nk=0\n");
    EXPECT_THAT(folder.Names(), ::testing::ElementsAre("words.ini"));
  }
}

TEST_F(ProfileFileTest, KeepsEveryByteInNamesValuesAndTheRest) {
  const std::string text = "; every byte:" + EveryByte().substr(1);
  Given(text);
  for (int code = 1; code < 256; ++code) {
    const std::string number = std::to_string(code);
    const std::string word = "<" + std::string(1, static_cast<char>(code)) + ">";
    const bool isBreak = code == '\r' || code == '\n';
    ASSERT_TRUE(Write("values", number, word));
    EXPECT_EQ(Read("values", number), isBreak ? "<>" : word);
    EXPECT_EQ(Write("keys", word, number), !isBreak && code != '=') << code;
    EXPECT_EQ(Write(word, "k", number), !isBreak && code != ']') << code;
  }
  EXPECT_EQ(Bytes().substr(0, text.size()), text);
  EXPECT_THAT(Bytes(), ::testing::HasSubstr("\r\n<\xDC>=252\r\n"));  // the small letter's write
  EXPECT_EQ(Read("<\x01>", "k"), "1");
}

}  // namespace
}  // namespace loquitor::testing
