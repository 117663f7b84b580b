#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <array>
#include <functional>

#include "tests/support/rows.h"
#include "ui/controls/code_page.h"
#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"

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

TEST_F(TextBoxes, RefuseADropAndAPasteAsAWhole) {
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
  EXPECT_EQ(box.Text(), "caf\xE9twothree");
  EXPECT_EQ(box.cursorPosition(), 12);
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
  area.SetText(all.substr(1) + "\nsecond");  // X selections end at a NUL
  area.selectAll();
  area.copy();
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
  area.paste();
  EXPECT_EQ(area.Text(), all.substr(1) + "\nsecond");
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
  area.Select(100, 7);
  EXPECT_EQ(area.SelectionStart(), 7);
  QTest::keyClick(&area, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(area.Text(), "a\nx\nyd\n\n");
}

TEST_F(TextBoxes, TypingAndReplacementsAreStepsOfTheirOwn) {
  const auto type = [this](const char* zKeys) {
    return [this, zKeys] { QTest::keyClicks(&area, zKeys); };
  };
  const auto insert = [this](const char* zText) {
    return [this, zText] { area.ReplaceSelection(zText); };
  };
  const auto replace = [this](const char* zText) {
    return [this, zText] { area.ReplaceText(zText); };
  };
  std::vector<std::string> texts = {""};
  for (const std::function<void()>& act : std::initializer_list<std::function<void()>>{
           type("ab "), insert("\\IY "), insert("\\EH "), type("cd"), insert("\\OW "), replace(""),
           [this] { Paste(area, "pasted"); }, type("ef"), replace("new"), insert("E"), type("x")}) {
    act();
    texts.push_back(area.Text());
  }
  for (std::size_t i = texts.size() - 1; i-- > 0;) {
    QTest::keySequence(&area, QKeySequence::Undo);
    EXPECT_EQ(area.Text(), texts[i]) << i;
  }
  EXPECT_FALSE(area.document()->isUndoAvailable());
  for (std::size_t i = 1; i < texts.size(); ++i) {
    QTest::keySequence(&area,
                       i % 2 == 0 ? QKeySequence(QKeySequence::Redo) : QKeySequence("Ctrl+Y"));
    EXPECT_EQ(area.Text(), texts[i]);
  }
}

TEST_F(TextBoxes, AnAreaRefusesWhatWouldMakeALineTooLong) {
  area.SetLimits({.longestLine = 10, .characters = 22, .lines = 3});
  for (const auto& [text, start, length, pasted, expected] :
       Rows<const char*, int, int, const char*, const char*>{
           {"12345", 5, 0, "67890", "1234567890"},
           {"12345", 2, 0, "678901", "12345"},
           {"12345", 0, 5, "abcdefghij", "abcdefghij"},
           {"12345", 2, 2, "abcdefgh", "12345"},
           {"12345\n12345", 5, 1, "", "1234512345"},
           {"12345\n12345", 4, 3, "x", "1234x2345"},
           {"12345\n123456", 5, 1, "x", "12345\n123456"},
           {"12345", 5, 0, "67890\n1234567890", "1234567890\n1234567890"},
           {"12345", 5, 0, "6\n12345678901\n", "12345"},
           {"12345", 3, 0, "6\n123456789", "12345"},
           {"1234567890\n1234567890", 21, 0, "\n", "1234567890\n1234567890\n"},
           {"1234567890\n1234567890", 21, 0, "\n1", "1234567890\n1234567890"},
           {"1\n2", 3, 0, "\n\n", "1\n2"},
           {"1\n2\n3", 0, 5, "4\n5\n6", "4\n5\n6"}}) {
    area.SetText(text);
    area.Select(start, length);
    Paste(area, pasted);
    EXPECT_EQ(area.Text(), expected) << text << " + " << pasted;
  }
  area.SetText("1234567890");
  Type(area, "x");
  Commit(area, "y");
  EXPECT_EQ(area.Text(), "1234567890");
  EXPECT_TRUE(QToolTip::text().contains("10 characters"));
  area.Select(10, 0);
  QTest::keyClick(&area, Qt::Key_Backspace);
  QTest::keyClick(&area, Qt::Key_Return);
  QTest::keyClicks(&area, "ab");
  EXPECT_EQ(area.Text(), "123456789\nab");
}

TEST_F(TextBoxes, TheLettersOfAnAreaGrowAndShrinkByKeysAndWheel) {
  const auto size = [this] { return QFontInfo(area.font()).pixelSize(); };
  const int normal = size();
  const auto turn = [this](int zDelta, Qt::KeyboardModifiers zModifiers) {
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, zDelta}, {}, zModifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(area.viewport(), &wheel);
  };
  area.setFocus();
  QTest::keyClick(&area, Qt::Key_Plus, Qt::ControlModifier);
  turn(120, Qt::ControlModifier);
  EXPECT_EQ(size(), normal + 2);
  turn(120, Qt::NoModifier);
  turn(-120, Qt::ControlModifier);
  QTest::keyClick(&area, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(size(), normal);
  for (int i = 0; i < 99; ++i) {
    turn(-120, Qt::ControlModifier);
  }
  EXPECT_EQ(size(), 8) << "still readable";
  QTest::keyClick(&area, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(size(), normal);
  EXPECT_EQ(area.Text(), "");
}

TEST_F(TextBoxes, TheMenuOfABoxOutlivesThePasteThatLetsEventsRun) {
  QGuiApplication::clipboard()->setText("pasted");
  QContextMenuEvent wanted(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(&box, &wanted);
  const QPointer<QWidget> menu = QApplication::activePopupWidget();
  bool isAlive = false;
  QObject::connect(&box, &TextBox::textChanged, [&] {
    QCoreApplication::sendPostedEvents();
    isAlive = !menu.isNull();
  });
  QTest::keyClick(menu, Qt::Key_P);
  EXPECT_EQ(box.Text(), "pasted");
  EXPECT_TRUE(isAlive);
}

TEST_F(TextBoxes, ABoxLosesTheFocusToAnotherControlButNotToAMenuOrAnotherProgram) {
  QSignalSpy lost(&box, &TextBox::LostFocus);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Tab);
  EXPECT_EQ(lost.count(), 1);
  for (const auto reason :
       {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&box, &out);
    EXPECT_EQ(lost.count(), 1) << reason;
  }
}

}  // namespace
}  // namespace loquitor::testing
