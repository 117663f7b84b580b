#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "ui/toolkit/code_page.h"
#include "ui/toolkit/text_area.h"
#include "ui/toolkit/text_box.h"

namespace loquitor {
namespace {

/// All characters that the code page has but the line breaks, which boxes treat on their own.
std::string AllButLineBreaks() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') {
      bytes.push_back(static_cast<char>(byte));
    }
  }
  return bytes;
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

  QDialog window;
  TextBox box{&window};
  TextArea area{&window};
};

TEST_F(TextBoxes, TakeWhatTheCodePageHoldsAndRefuseTheRestWithAHint) {
  for (const auto& [way, insert] :
       {std::pair("typed", &Type), {"pasted", &Paste}, {"input method", &Commit}}) {
    box.SetText("");
    area.SetText("");
    for (QWidget* each : std::initializer_list<QWidget*>{&box, &area}) {
      QToolTip::hideText();
      insert(*each, QString::fromUtf8("é€"));
      QCoreApplication::processEvents();
      EXPECT_FALSE(QToolTip::text().contains("cannot be used")) << way;
      insert(*each, QString::fromUtf8("ř"));
      insert(*each, QString::fromUtf8("🙂"));
      QCoreApplication::processEvents();
      EXPECT_TRUE(QToolTip::text().contains(QString::fromUtf8("“🙂” cannot be used"))) << way;
    }
    EXPECT_EQ(box.Text(), "\xE9\x80") << way;
    EXPECT_EQ(area.Text(), "\xE9\x80") << way;
  }
}

TEST_F(TextBoxes, RefuseADropAndAPasteWholeSoThatNothingIsHalfInserted) {
  box.SetText("kept");
  area.SetText("kept");
  for (const auto insert : {&Paste, &Drop}) {
    insert(box, QString::fromUtf8("good řbad"));
    insert(*area.viewport(), QString::fromUtf8("good řbad"));
  }
  Paste(area, QString::fromUtf8("good řbad"));
  EXPECT_EQ(box.Text(), "kept");
  EXPECT_EQ(area.Text(), "kept");
  Drop(box, "+");
  Drop(*area.viewport(), "+");
  EXPECT_EQ(box.Text().size(), 5U);
  EXPECT_EQ(area.Text().size(), 5U);
}

TEST_F(TextBoxes, ComposeAccentsAndPutPastedLinesIntoOne) {
  for (QWidget* each : std::initializer_list<QWidget*>{&box, &area}) {
    Paste(*each, QString::fromUtf8("\n\ncafe\u0301\r\n\r\ntwo\nthree\n"));
  }
  EXPECT_EQ(box.Text(), "caf\xE9 two three");
  EXPECT_EQ(box.cursorPosition(), 14);
  EXPECT_EQ(area.Text(), "\n\ncaf\xE9\n\ntwo\nthree\n");
}

TEST_F(TextBoxes, GiveBackExactlyWhatTheyWereGiven) {
  const std::string all = AllButLineBreaks();
  box.SetText(all);
  EXPECT_EQ(box.Text(), all);
  area.SetText(all + "\n" + all + "\n");
  EXPECT_EQ(area.Text(), all + "\n" + all + "\n");
  area.ReplaceText(all);
  EXPECT_EQ(area.Text(), all);
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
  area.SetText("");
  std::vector<std::string> texts = {""};
  const auto done = [&] { texts.push_back(area.Text()); };
  QTest::keyClicks(&area, "ab ");
  done();
  area.ReplaceSelection("\\IY ");
  done();
  area.ReplaceSelection("\\EH ");
  done();
  QTest::keyClicks(&area, "cd");
  done();
  area.ReplaceSelection("\\OW ");
  done();
  area.ReplaceText("");
  done();
  QGuiApplication::clipboard()->setText("pasted");
  area.paste();
  done();
  QTest::keyClicks(&area, "ef");
  done();
  area.ReplaceText("new");
  done();
  area.Select(1, 1);
  area.ReplaceSelection("E");
  done();
  QTest::keyClicks(&area, "x");
  done();
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
  for (const auto& [reason, isLoss] : {std::pair(Qt::MouseFocusReason, true),
                                       {Qt::TabFocusReason, true},
                                       {Qt::OtherFocusReason, true},
                                       {Qt::ActiveWindowFocusReason, false},
                                       {Qt::PopupFocusReason, false},
                                       {Qt::MenuBarFocusReason, false}}) {
    for (QWidget* each : std::initializer_list<QWidget*>{&box, &area}) {
      QFocusEvent out(QEvent::FocusOut, reason);
      QCoreApplication::sendEvent(each, &out);
    }
    EXPECT_EQ(fromBox.count(), isLoss) << reason;
    EXPECT_EQ(fromArea.count(), isLoss) << reason;
    fromBox.clear();
    fromArea.clear();
  }
}

}  // namespace
}  // namespace loquitor
