#include "ui/toolkit/text_history.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTextCursor>
#include <algorithm>
#include <functional>
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
  void Type(const char* zKeys) { QTest::keyClicks(&area, zKeys); }
  void Press(Qt::Key zKey, int zTimes = 1) {
    for (int i = 0; i < zTimes; ++i) {
      QTest::keyClick(&area, zKey);
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
    cursor.setPosition(place());
    cursor.setPosition(random() % 3 == 0 ? place() : cursor.position(), QTextCursor::KeepAnchor);
    cursor.beginEditBlock();
    cursor.insertText(ToQString(bytes));
    if (random() % 3 == 0) {
      cursor.setPosition(place());
      cursor.insertText(ToQString(bytes));
    }
    if (random() % 3 == 0) {
      cursor.setPosition(place());
      cursor.deletePreviousChar();
    }
    cursor.endEditBlock();
    area.setTextCursor(cursor);
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
  for (const auto& [expected, act] : Rows<const char*, std::function<void()>>{
           {"abcone\ntwo", [this] { Type("abc"); }},
           {"abc\none\ntwo", [this] { Press(Qt::Key_Return); }},
           {"abc\ndeone\ntwo", [this] { Type("de"); }},
           {"abone\ntwo", [this] { Press(Qt::Key_Backspace, 4); }},
           {"abxone\ntwo", [this] { Type("x"); }},
           {"one\ntwo",
            [this] {
              Press(Qt::Key_Home);
              Press(Qt::Key_Delete, 3);
            }},
           {"one\ntwo\nthree", [this] { history.Append("\nthree"); }},
           {"one\ntwo\nthree!", [this] { Type("!"); }},
           {"1\ntwo\nthree!",
            [this] {
              area.Select(0, 4);
              area.ReplaceSelection("1\n");
            }},
           {"other", [this] { history.ReplaceAll("other"); }}}) {
    act();
    ExpectText(expected);
    texts.push_back(expected);
  }
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
      random() % 4 == 0 ? history.ReplaceAll(Varied(history.Text())) : EditAtRandom();
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
  history.ReplaceAll("one\ntwo");
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
    history.ReplaceAll(other);
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
    i == 0 ? history.Load(texts[0]) : history.ReplaceAll(texts.back());
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
  history.ReplaceAll("");
  history.Undo();
  EXPECT_TRUE(history.Text() == large) << "the newest step is kept whatever its size";
}

TEST_F(TextHistoryTest, TheContextMenuOffersItsSteps) {
  Type("ab");
  const auto trigger = [this](int zAction) {
    emit area.customContextMenuRequested(QPoint(1, 1));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QAction* action = menu->actions().at(zAction);
    const bool isEnabled = action->isEnabled();
    action->trigger();
    menu->close();
    return isEnabled;
  };
  area.show();
  EXPECT_FALSE(trigger(1));
  EXPECT_TRUE(trigger(0));
  EXPECT_EQ(area.Text(), "");
  EXPECT_FALSE(trigger(0));
  EXPECT_TRUE(trigger(1));
  EXPECT_EQ(area.Text(), "ab");
}

}  // namespace
}  // namespace loquitor::testing
