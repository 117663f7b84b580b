#include "ui/phrase/say_data_places.h"

#include <gtest/gtest.h>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

TEST(SayDataPlaces, FindsTheWordThatTheDictionaryIsAskedFor) {
  // The text with the position as a bar, the word, and the text of the word.
  const Rows<const char*, const char*, const char*> rows = {{"say ro|bot", "robot", "robot"},
                                                            {"say |robot", "robot", "robot"},
                                                            {"robot|, no", "robot", "robot"},
                                                            {"I don|'t", "dont", "don't"},
                                                            {"one\ntwo| x", "onetwo", "one\ntwo"},
                                                            {"\\IY\\E|H x", "", ""},
                                                            {"a  |  b", "", ""},
                                                            {"|", "", ""},
                                                            {"x |\\IY", "", ""}};
  for (const auto& [marked, word, text] : rows) {
    std::string sayData = marked;
    const std::size_t position = sayData.find('|');
    sayData.erase(position, 1);
    const auto place = WordAt(sayData, position);
    EXPECT_EQ(place ? place->word : "", word) << marked;
    EXPECT_EQ(place ? sayData.substr(place->start, place->length) : "", text) << marked;
  }
}

TEST(SayDataPlaces, AViewIsExtendedToWholeWordsAndNotBeyondACut) {
  // The text with the view in brackets, whether it is cut at each end, and the whole words.
  const Rows<const char*, bool, bool, const char*> rows = {
      {"one t[wo th]ree four", false, false, "two three"},
      {"o[ne two]", false, false, "one two"},
      {"one[]", false, false, "one"},
      {"o[ne two thr]ee", true, true, " two"},
      {"E\\A[X\\BE\\D]O\\E", true, true, "\\AX\\BE\\DO"},
      {"lo[ng]er", true, true, ""},
      {"lo[ng]er", true, false, ""}};
  for (const auto& [marked, isCutAtStart, isCutAtEnd, expected] : rows) {
    std::string text = marked;
    const std::size_t start = text.find('[');
    text.erase(start, 1);
    const std::size_t end = text.find(']');
    text.erase(end, 1);
    const TextSpan words = WholeWords(text, {start, end}, isCutAtStart, isCutAtEnd);
    EXPECT_EQ(text.substr(words.start, words.end - words.start), expected) << marked;
  }
}

}  // namespace
}  // namespace loquitor::testing
