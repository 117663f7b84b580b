#include "ui/toolkit/unwrapped_layout.h"

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <string>

#include "ui/toolkit/text_area.h"

namespace loquitor {
namespace {

constexpr int Lines = 3'000;

/// An area of many lines beside one with Qt's own layout, both given the same keys.
class UnwrappedLayoutTest : public ::testing::Test {
 protected:
  UnwrappedLayoutTest() {
    area.StopWrapping();
    plain.setLineWrapMode(QPlainTextEdit::NoWrap);
    std::string text;
    for (int line = 0; line < Lines; ++line) {
      text += std::to_string(line) + std::string(static_cast<std::size_t>(line % 97), 'w') + '\n';
    }
    for (TextArea* each : {&area, &plain}) {
      each->resize(400, 300);
      each->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
      each->show();
      each->SetText(text);
    }
    QCoreApplication::processEvents();
  }

  void Press(Qt::Key zKey, Qt::KeyboardModifiers zHeld = Qt::NoModifier) {
    for (TextArea* each : {&area, &plain}) {
      QTest::keyClick(each, zKey, zHeld);
    }
  }
  void ScrollBy(int zPages) {
    for (TextArea* each : {&area, &plain}) {
      QScrollBar* bar = each->verticalScrollBar();
      bar->setValue(bar->value() + zPages * bar->pageStep());
    }
    QCoreApplication::processEvents();
  }
  const UnwrappedLayout& Layout() {
    return dynamic_cast<UnwrappedLayout&>(*area.document()->documentLayout());
  }
  int LinesLaidOut() {
    int lines = 0;
    for (QTextBlock line = area.document()->begin(); line.isValid(); line = line.next()) {
      lines += line.layout()->lineCount() > 0 ? 1 : 0;
    }
    return lines;
  }
  /// What a user sees of `zArea` and of where it is scrolled to.
  static std::string View(TextArea& zArea) {
    std::string view;
    for (const QScrollBar* bar : {zArea.verticalScrollBar(), zArea.horizontalScrollBar()}) {
      view += std::to_string(bar->value()) + " of " + std::to_string(bar->maximum()) + ", ";
    }
    const QRect caret = zArea.cursorRect();
    return view + "caret " + std::to_string(caret.x()) + " " + std::to_string(caret.y());
  }
  bool IsDrawnAsByQt() { return area.grab().toImage() == plain.grab().toImage(); }

  TextArea area{nullptr};
  TextArea plain{nullptr};
};

TEST_F(UnwrappedLayoutTest, ShowsWhatQtShowsAndHoldsFewOfTheLinesThatWereInView) {
  QSignalSpy changes(area.document(), &QTextDocument::contentsChange);
  for (const auto& [key, held] :
       {std::pair(Qt::Key_PageDown, Qt::NoModifier), {Qt::Key_PageUp, Qt::ShiftModifier}}) {
    for (std::string before; before != View(plain);) {
      before = View(plain);
      Press(key, held);
      ASSERT_EQ(View(area), View(plain));
    }
    EXPECT_LE(LinesLaidOut(), Layout().LinesKept() + 40) << "a page more, though nothing is drawn";
    EXPECT_TRUE(IsDrawnAsByQt());
  }
  for (int page = 0; page < Lines / 15; ++page) {
    ScrollBy(page % 5 == 4 ? -1 : 1);
    ASSERT_EQ(View(area), View(plain));
    ASSERT_TRUE(page % 16 > 0 || IsDrawnAsByQt()) << page;
  }
  EXPECT_LE(LinesLaidOut(), Layout().LinesKept());
  EXPECT_EQ(changes.count(), 0) << "a change would be read out and recorded for undo";
}

TEST_F(UnwrappedLayoutTest, FollowsEditsAsQtDoes) {
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers held;
    int times;
  } rows[] = {
      {Qt::Key_Down, Qt::NoModifier, 96},       {Qt::Key_End, Qt::NoModifier, 1},
      {Qt::Key_X, Qt::NoModifier, 3},           {Qt::Key_Return, Qt::NoModifier, 2},
      {Qt::Key_Backspace, Qt::NoModifier, 2},   {Qt::Key_Home, Qt::NoModifier, 1},
      {Qt::Key_Delete, Qt::ControlModifier, 2}, {Qt::Key_Backspace, Qt::NoModifier, 1},
      {Qt::Key_PageUp, Qt::ShiftModifier, 2},   {Qt::Key_X, Qt::ControlModifier, 1},
      {Qt::Key_End, Qt::ControlModifier, 1},    {Qt::Key_V, Qt::ControlModifier, 2},
      {Qt::Key_Home, Qt::ControlModifier, 1},   {Qt::Key_A, Qt::ControlModifier, 1},
      {Qt::Key_Delete, Qt::NoModifier, 1},      {Qt::Key_Z, Qt::ControlModifier, 1},
  };
  for (const auto& [key, held, times] : rows) {
    for (int i = 0; i < times; ++i) {
      Press(key, held);
      ASSERT_EQ(View(area), View(plain)) << QKeySequence(held | key).toString().toStdString();
      ASSERT_TRUE(IsDrawnAsByQt()) << QKeySequence(held | key).toString().toStdString();
    }
  }
}

TEST_F(UnwrappedLayoutTest, TheWidestLineMadeNarrowerNarrowsTheText) {
  const int before = area.horizontalScrollBar()->maximum();
  area.Select(0, 0);
  area.ReplaceSelection(std::string(5000, 'W'));
  EXPECT_GT(area.horizontalScrollBar()->maximum(), 10 * before);
  QTest::keyClick(&area, Qt::Key_Home, Qt::ShiftModifier);
  QTest::keyClick(&area, Qt::Key_Delete);
  QCoreApplication::processEvents();
  EXPECT_EQ(area.horizontalScrollBar()->maximum(), before);
}

TEST_F(UnwrappedLayoutTest, WhatIsBeingComposedStays) {
  QInputMethodEvent compose("\u3042", {});
  QCoreApplication::sendEvent(&area, &compose);
  for (int page = 0; page < 100; ++page) {
    ScrollBy(1);
  }
  EXPECT_EQ(area.textCursor().block().layout()->preeditAreaText(), "\u3042");
  QInputMethodEvent commit;
  commit.setCommitString("a");
  QCoreApplication::sendEvent(&area, &commit);
  ScrollBy(1);
  EXPECT_LE(LinesLaidOut(), Layout().LinesKept());
}

}  // namespace
}  // namespace loquitor
