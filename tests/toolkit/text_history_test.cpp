#include "ui/toolkit/text_history.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTextCursor>
#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/support/rows.h"
#include "ui/toolkit/code_page.h"

namespace loquitor::testing {
namespace {

constexpr std::size_t Bound = 700'000;

class TextHistoryTest : public ::testing::Test {
 protected:
  /// Types a text in which Enter is '\n', Backspace '\b', Delete '\x7F' and Home '\r'.
  void Type(const std::string& zText) {
    const std::map<char, Qt::Key> keys{{'\n', Qt::Key_Return},
                                       {'\b', Qt::Key_Backspace},
                                       {'\x7F', Qt::Key_Delete},
                                       {'\r', Qt::Key_Home}};
    for (const char character : zText) {
      const auto key = keys.find(character);
      key == keys.end() ? QTest::keyClick(&area, character) : QTest::keyClick(&area, key->second);
    }
  }
  void Press(QKeySequence::StandardKey zKey) { QTest::keySequence(&area, QKeySequence(zKey)); }

  void ExpectText(const std::string& zText) {
    EXPECT_EQ(area.Text(), zText);
    EXPECT_EQ(history.Text(), zText);
  }

  /// A text of that many bytes, in lines of 64, that hardly becomes smaller by compression.
  std::string Lines(std::size_t zBytes) {
    std::string text(zBytes, '\0');
    for (std::size_t at = 0; at < zBytes; ++at) {
      const char byte = static_cast<char>(random());
      text[at] = at % 64 == 63 ? '\n' : byte == '\r' ? ' ' : byte;
    }
    return text;
  }

  /// One edit of any kind, as typing, pasting, dragging and input methods make them.
  void EditAtRandom() {
    const auto place = [this] {
      return static_cast<int>(random() % static_cast<unsigned>(area.document()->characterCount()));
    };
    std::string bytes(random() % 6, '\0');
    std::generate(bytes.begin(), bytes.end(), [this] {
      const char byte = static_cast<char>(random());
      return byte == '\r' || random() % 4 == 0 ? '\n' : byte;
    });
    QTextCursor cursor = area.textCursor();
    cursor.beginEditBlock();
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
      cursor.setPosition(place());
      cursor.setPosition(random() % 3 == 0 ? place() : cursor.position(), QTextCursor::KeepAnchor);
      random() % 4 == 0 ? cursor.deletePreviousChar() : cursor.insertText(ToQString(bytes));
    }
    cursor.endEditBlock();
    area.setTextCursor(cursor);
  }

  void ReplaceAll(const std::string& zText) {
    history.ReplaceAll([&zText] { return zText; });
  }

  /// The text with one stretch of it replaced, or none; now and then nearly all of it.
  std::string Varied(std::string zText) {
    const std::size_t start = random() % (zText.size() + 1);
    const std::string other(random() % 3 == 0 ? random() % 60 : random() % 3, "xy\n"[random() % 3]);
    return zText.replace(start, random() % 5, other);
  }

  std::mt19937 random{3};
  TextArea area{nullptr};
  TextHistory& history = *new TextHistory(&area, Bound);
};

TEST_F(TextHistoryTest, RunsOfTypingAndErasingAreStepsOfTheirOwn) {
  history.Load("one\ntwo");
  std::vector<std::string> texts = {"one\ntwo"};
  const auto done = [&](const std::string& zExpected) {
    ExpectText(zExpected);
    texts.push_back(zExpected);
  };
  for (const auto& [keys, expected] :
       Rows<std::string, std::string>{{"abc", "abcone\ntwo"},
                                      {"\n", "abc\none\ntwo"},
                                      {"de", "abc\ndeone\ntwo"},
                                      {"\b\b\b\b", "abone\ntwo"},
                                      {"x", "abxone\ntwo"},
                                      {"\r\x7F\x7F\x7F", "one\ntwo"}}) {
    Type(keys);
    done(expected);
  }
  history.Append("\nthree");
  done("one\ntwo\nthree");
  Type("!");
  done("one\ntwo\nthree!");
  area.Select(0, 4);
  area.ReplaceSelection("1\n");
  done("1\ntwo\nthree!");
  ReplaceAll("other");
  done("other");
  for (std::size_t i = texts.size() - 1; i-- > 0;) {
    Press(QKeySequence::Undo);
    ExpectText(texts[i]);
  }
  EXPECT_FALSE(history.CanUndo());
  for (std::size_t i = 1; i < texts.size(); ++i) {
    Press(QKeySequence::Redo);
    ExpectText(texts[i]);
  }
  EXPECT_FALSE(history.CanRedo());
}

TEST_F(TextHistoryTest, FollowsRandomEditsAndTakesThemAllBack) {
  for (int round = 0; round < 60; ++round) {
    std::string start(random() % 40, 'x');
    history.Load(start);
    for (int edit = 0; edit < 30; ++edit) {
      random() % 4 == 0 ? ReplaceAll(Varied(history.Text())) : EditAtRandom();
      ASSERT_EQ(history.Text(), area.Text()) << "round " << round << ", edit " << edit;
      if (random() % 4 == 0) {
        history.Undo();
      }
    }
    history.Append("end");
    const std::string end = area.Text();
    while (history.CanUndo()) {
      history.Undo();
      ASSERT_EQ(history.Text(), area.Text());
    }
    EXPECT_EQ(area.Text(), start);
    while (history.CanRedo()) {
      history.Redo();
    }
    EXPECT_EQ(area.Text(), end);
  }
}

TEST_F(TextHistoryTest, TheSameTextAgainIsNoStepAndANewOneForgetsWhatWasTakenBack) {
  history.Load("one\ntwo");
  area.moveCursor(QTextCursor::End);
  Type("!");
  history.Undo();
  ReplaceAll("one\ntwo");
  EXPECT_EQ(area.SelectionStart(), 0);
  EXPECT_FALSE(history.CanUndo());
  history.Redo();
  EXPECT_EQ(area.Text(), "one\ntwo!");
  history.Undo();
  Type("?");
  history.Redo();
  EXPECT_EQ(area.Text(), "one\ntwo?") << "a new edit forgets what was taken back";
}

TEST_F(TextHistoryTest, TakingBackAReplacementPutsTheCaretWhereItWas) {
  for (const char* other : {"one\ntwo\n3\nfour", "all else"}) {
    history.Load("one\ntwo\nthree\nfour");
    area.Select(5, 0);
    ReplaceAll(other);
    EXPECT_EQ(area.SelectionStart(), 0);
    area.Select(3, 0);
    history.Undo();
    EXPECT_EQ(area.SelectionStart(), 5) << other;
    history.Redo();
    EXPECT_EQ(area.SelectionStart(), 3) << other;
    EXPECT_EQ(area.Text(), other);
  }
}

TEST_F(TextHistoryTest, OldStepsGiveWayWhenTheyHoldTooMuch) {
  constexpr std::size_t Size = Bound * 2 / 7;
  std::vector<std::string> texts;
  for (int i = 0; i < 6; ++i) {
    texts.push_back(Lines(Size));
    i == 0 ? history.Load(texts[0]) : ReplaceAll(texts.back());
    EXPECT_LE(history.BytesHeld(), Bound);
  }
  for (const int i : {4, 3, 2}) {
    history.Undo();
    EXPECT_TRUE(history.Text() == texts[static_cast<std::size_t>(i)]) << i;
    EXPECT_LE(history.BytesHeld(), Bound);
  }
  EXPECT_FALSE(history.CanUndo());
  history.Redo();
  EXPECT_TRUE(area.Text() == texts[3]);
  const std::string large = Lines(Bound * 5 / 4);
  history.Load(large);
  ReplaceAll("");
  history.Undo();
  EXPECT_TRUE(history.Text() == large) << "the newest step is kept whatever its size";
}

TEST_F(TextHistoryTest, TheContextMenuOffersItsSteps) {
  Type("ab");
  area.show();
  for (const auto& [action, isEnabled, text] : Rows<int, bool, const char*>{
           {1, false, "ab"}, {0, true, ""}, {0, false, ""}, {1, true, "ab"}}) {
    emit area.customContextMenuRequested(QPoint(1, 1));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    EXPECT_EQ(menu->actions().at(action)->isEnabled(), isEnabled);
    menu->actions().at(action)->trigger();
    menu->close();
    EXPECT_EQ(area.Text(), text);
  }
}

}  // namespace
}  // namespace loquitor::testing
