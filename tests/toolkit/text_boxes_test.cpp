#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <array>

#include "tests/support/rows.h"
#include "ui/toolkit/code_page.h"
#include "ui/toolkit/text_area.h"
#include "ui/toolkit/text_box.h"

namespace loquitor::testing {
namespace {

TEST(CodePage, HoldsEveryByteAndTellsWhatItCannotHold) {
  const QString text = ToQString(EveryByte());
  EXPECT_EQ(text.size(), 256);
  EXPECT_TRUE(CanHold(text));
  EXPECT_EQ(ToBytes(text), EveryByte());
  EXPECT_EQ(ToQString("\x80\x8A\x9E\xE4\xFF\x81\x9D"), QString("€Šžäÿ\u0081\u009D"));
  for (const char* foreign : {"ř", "日", "🙂", "\u0080", "\u0100", "\u2028"}) {
    EXPECT_FALSE(CanHold(foreign)) << foreign;
  }
  EXPECT_EQ(ToBytes("ařb🙂c"), "abc");
}

/// A window with one box of each kind.
class TextBoxes : public ::testing::Test {
 protected:
  TextBoxes() {
    box.setGeometry(10, 10, 200, 24);
    area.setGeometry(10, 40, 300, 100);
    window.resize(320, 200);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  static void Type(QWidget& zBox, const QString& zText) {
    zBox.setFocus();
    for (const char32_t character : zText.toUcs4()) {
      QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&character, 1));
      QCoreApplication::sendEvent(&zBox, &press);
    }
  }
  static void Paste(QWidget& zBox, const QString& zText) {
    zBox.setFocus();
    QGuiApplication::clipboard()->setText(zText);
    QTest::keySequence(&zBox, QKeySequence::Paste);
  }
  static void Commit(QWidget& zBox, const QString& zText) {
    zBox.setFocus();
    QInputMethodEvent commit;
    commit.setCommitString(zText);
    QCoreApplication::sendEvent(&zBox, &commit);
  }
  static void Drop(QWidget& zBox, const QString& zText) {
    QMimeData data;
    data.setText(zText);
    QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&zBox, &enter);
    QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&zBox, &drop);
  }
  void TearDown() override { QToolTip::hideText(); }
  void ExpectBoth(const std::string& zText) {
    EXPECT_EQ(box.Text(), zText);
    EXPECT_EQ(area.Text(), zText);
  }

  QDialog window;
  TextBox box{&window};
  TextArea area{&window};
  const std::array<QWidget*, 2> both{&box, &area};
};

TEST_F(TextBoxes, TakeWhatTheCodePageHoldsAndRefuseTheRestWithAHint) {
  for (const auto& [way, insert] :
       {std::pair("typed", &Type), {"pasted", &Paste}, {"input method", &Commit}}) {
    box.SetText("");
    area.SetText("");
    for (QWidget* each : both) {
      QToolTip::hideText();
      insert(*each, "é€");
      QCoreApplication::processEvents();
      EXPECT_FALSE(QToolTip::text().contains("cannot be used")) << way;
      insert(*each, "ř");
      insert(*each, "🙂");
      QCoreApplication::processEvents();
      EXPECT_TRUE(QToolTip::text().contains(QString("“🙂” cannot be used"))) << way;
    }
    ExpectBoth("\xE9\x80");
  }
}

TEST_F(TextBoxes, RefuseADropAndAPasteWholeSoThatNothingIsHalfInserted) {
  box.SetText("kept");
  area.SetText("kept");
  for (const auto insert : {&Paste, &Drop}) {
    insert(box, "good řbad");
    insert(*area.viewport(), "good řbad");
  }
  Paste(area, "good řbad");
  ExpectBoth("kept");
  Drop(box, "+");
  Drop(*area.viewport(), "+");
  EXPECT_EQ(box.Text().size(), 5U);
  EXPECT_EQ(area.Text().size(), 5U);
}

TEST_F(TextBoxes, ComposeAccentsAndPutPastedLinesIntoOne) {
  for (QWidget* each : both) {
    Paste(*each, "\n\ncafe\u0301\r\n\r\ntwo\nthree\n");
  }
  EXPECT_EQ(box.Text(), "caf\xE9 two three");
  EXPECT_EQ(box.cursorPosition(), 14);
  EXPECT_EQ(area.Text(), "\n\ncaf\xE9\n\ntwo\nthree\n");
}

TEST_F(TextBoxes, GiveBackExactlyWhatTheyWereGiven) {
  std::string all = EveryByte();
  std::erase_if(all, [](char zByte) { return zByte == '\r' || zByte == '\n'; });
  box.SetText(all);
  EXPECT_EQ(box.Text(), all);
  area.SetText(all + "\n" + all + "\n");
  EXPECT_EQ(area.Text(), all + "\n" + all + "\n");
  area.ReplaceText(all);
  area.Select(0, 0);
  area.ReplaceSelection(all);
  EXPECT_EQ(area.Text(), all + all);
  area.Select(0x9E, 3);
  EXPECT_EQ(area.SelectedText(), "\xA0\xA1\xA2");
  const std::string lines = all.substr(1) + "\nsecond";  // X selections end at a NUL
  area.SetText(lines);
  area.selectAll();
  area.copy();
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
  area.SetText("");
  area.paste();
  EXPECT_EQ(area.Text(), lines);
}

TEST_F(TextBoxes, EveryLineBreakOfAnAreaIsOneCharacter) {
  area.SetText("a\r\nb\rc\nd\n");
  EXPECT_EQ(area.Text(), "a\nb\nc\nd\n");
  area.Select(2, 4);
  EXPECT_EQ(area.SelectedText(), "b\nc\n");
  EXPECT_EQ(area.SelectionStart(), 2);
  EXPECT_EQ(area.SelectionLength(), 4);
  area.ReplaceSelection("x\r\ny");
  EXPECT_EQ(area.Text(), "a\nx\nyd\n");
  EXPECT_EQ(area.SelectionStart(), 5);
  EXPECT_EQ(area.CharacterAfterCaret(), 'd');
  area.MoveCaretRight();
  EXPECT_EQ(area.CharacterAfterCaret(), '\n');
  area.Select(100, 7);
  EXPECT_EQ(area.SelectionStart(), 7);
  EXPECT_EQ(area.CharacterAfterCaret(), 0);
  area.MoveCaretRight();
  EXPECT_EQ(area.SelectionStart(), 7);
  QTest::keyClick(&area, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(area.Text(), "a\nx\nyd\n\n");
}

TEST_F(TextBoxes, TypingAndReplacementsAreStepsOfTheirOwn) {
  std::vector<std::string> texts = {""};
  const auto done = [&] { texts.push_back(area.Text()); };
  const auto type = [&](const char* zKeys) {
    QTest::keyClicks(&area, zKeys);
    done();
  };
  const auto insert = [&](const char* zText) {
    area.ReplaceSelection(zText);
    done();
  };
  const auto replace = [&](const char* zText) {
    area.ReplaceText(zText);
    done();
  };
  type("ab ");
  insert("\\IY ");
  insert("\\EH ");
  type("cd");
  insert("\\OW ");
  replace("");
  Paste(area, "pasted");
  done();
  type("ef");
  replace("new");
  area.Select(1, 1);
  insert("E");
  type("x");
  for (std::size_t i = texts.size() - 1; i-- > 0;) {
    QTest::keySequence(&area, QKeySequence::Undo);
    EXPECT_EQ(area.Text(), texts[i]) << i;
  }
  EXPECT_FALSE(area.document()->isUndoAvailable());
  for (std::size_t i = 1; i < texts.size(); ++i) {
    QTest::keySequence(&area, QKeySequence::Redo);
    EXPECT_EQ(area.Text(), texts[i]);
  }
}

TEST_F(TextBoxes, LoseTheFocusToAnotherControlButNotToAMenuOrAnotherProgram) {
  QSignalSpy fromBox(&box, &TextBox::LostFocus);
  QSignalSpy fromArea(&area, &TextArea::LostFocus);
  area.setFocus();
  QTest::keyClick(&area, Qt::Key_Tab);
  EXPECT_EQ(area.Text(), "");
  EXPECT_EQ(fromArea.count(), 1);
  fromArea.clear();
  fromBox.clear();
  const Rows<Qt::FocusReason, bool> rows{
      {Qt::MouseFocusReason, true},  {Qt::TabFocusReason, true},
      {Qt::OtherFocusReason, true},  {Qt::ActiveWindowFocusReason, false},
      {Qt::PopupFocusReason, false}, {Qt::MenuBarFocusReason, false}};
  for (const auto& [reason, isLoss] : rows) {
    for (QWidget* each : both) {
      QFocusEvent out(QEvent::FocusOut, reason);
      QCoreApplication::sendEvent(each, &out);
    }
    EXPECT_EQ(fromBox.count() + fromArea.count(), isLoss ? 2 : 0) << reason;
    fromBox.clear();
    fromArea.clear();
  }
}

}  // namespace
}  // namespace loquitor::testing
