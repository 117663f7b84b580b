#include "ui/toolkit/text_history.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTextCursor>
#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "ui/toolkit/code_page.h"

namespace loquitor {
namespace {

class TextHistoryTest : public ::testing::Test {
 protected:
  void Type(const char* zKeys) { QTest::keyClicks(&area, zKeys); }
  void Press(Qt::Key zKey, int zTimes = 1) {
    for (int i = 0; i < zTimes; ++i) {
      QTest::keyClick(&area, zKey);
    }
  }
  void Press(QKeySequence::StandardKey zKey) { QTest::keySequence(&area, QKeySequence(zKey)); }

  /// A text of that many bytes, in lines of 64.
  static std::string Lines(std::size_t zBytes, char zLetter) {
    std::string text(zBytes, zLetter);
    for (std::size_t end = 63; end < zBytes; end += 64) {
      text[end] = '\n';
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

  std::mt19937 random{3};
  TextArea area{nullptr};
  TextHistory& history = *new TextHistory(&area);
};

TEST_F(TextHistoryTest, RunsOfTypingAndErasingAreStepsOfTheirOwn) {
  history.Load("one\ntwo");
  std::vector<std::string> texts = {"one\ntwo"};
  const auto done = [&](const char* zExpected) {
    EXPECT_EQ(area.Text(), zExpected);
    texts.push_back(area.Text());
  };
  Type("abc");
  done("abcone\ntwo");
  Press(Qt::Key_Return);
  done("abc\none\ntwo");
  Type("de");
  done("abc\ndeone\ntwo");
  Press(Qt::Key_Backspace, 4);
  done("abone\ntwo");
  Type("x");
  Press(Qt::Key_Home);
  done("abxone\ntwo");
  Press(Qt::Key_Delete, 3);
  done("one\ntwo");
  history.Append("\nthree");
  done("one\ntwo\nthree");
  Type("!");
  done("one\ntwo\nthree!");
  area.Select(0, 4);
  area.ReplaceSelection("1\n");
  done("1\ntwo\nthree!");
  history.ReplaceAll("other");
  done("other");
  for (std::size_t i = texts.size() - 1; i-- > 0;) {
    Press(QKeySequence::Undo);
    EXPECT_EQ(area.Text(), texts[i]);
    EXPECT_EQ(history.Text(), texts[i]);
  }
  EXPECT_FALSE(history.CanUndo());
  for (std::size_t i = 1; i < texts.size(); ++i) {
    Press(QKeySequence::Redo);
    EXPECT_EQ(area.Text(), texts[i]);
    EXPECT_EQ(history.Text(), texts[i]);
  }
  EXPECT_FALSE(history.CanRedo());
}

TEST_F(TextHistoryTest, FollowsRandomEditsAndTakesThemAllBack) {
  for (int round = 0; round < 60; ++round) {
    std::string start(random() % 40, 'x');
    history.Load(start);
    for (int edit = 0; edit < 30; ++edit) {
      EditAtRandom();
      ASSERT_EQ(history.Text(), area.Text()) << "round " << round << ", edit " << edit;
      if (random() % 4 == 0) {
        history.Undo();
        ASSERT_EQ(history.Text(), area.Text());
      }
    }
    EditAtRandom();
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

TEST_F(TextHistoryTest, ANewEditForgetsWhatWasTakenBack) {
  Type("a");
  history.Undo();
  Type("b");
  EXPECT_FALSE(history.CanRedo());
  history.Redo();
  EXPECT_EQ(area.Text(), "b");
  EXPECT_EQ(history.BytesHeld(), 0U);
}

TEST_F(TextHistoryTest, OldStepsGiveWayWhenTheyHoldTooMuch) {
  constexpr std::size_t Size = TextHistory::MinimumBytes / 4;
  history.Load(Lines(Size, 'a'));
  for (const char letter : {'b', 'c', 'd', 'e', 'f', 'g'}) {
    history.ReplaceAll(Lines(Size, letter));
    EXPECT_LE(history.BytesHeld(), TextHistory::MinimumBytes);
  }
  int steps = 0;
  for (; history.CanUndo(); ++steps) {
    history.Undo();
    EXPECT_LE(history.BytesHeld(), TextHistory::MinimumBytes);
  }
  EXPECT_EQ(steps, 3);
  EXPECT_EQ(history.Text(), Lines(Size, 'd'));

  history.Load(Lines(2 * TextHistory::MinimumBytes, 'x'));
  history.ReplaceAll("");
  history.Undo();
  EXPECT_EQ(history.Text().size(), 2 * TextHistory::MinimumBytes);
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
}  // namespace loquitor
