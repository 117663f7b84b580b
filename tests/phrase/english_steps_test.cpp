// English in the Say Data box: what is underlined, and the steps of its context menu.
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolTip>

#include "english/english_reader.h"
#include "tests/phrase/phrase_window.h"
#include "tests/support/scripted_phones.h"

namespace loquitor::testing {
namespace {

constexpr char Robot[] = "\\RR \\OW \\BO \\OH \\TT";

class EnglishSteps : public PhraseWindowTest {
 protected:
  void SetUp() override {
    GivenDictionary("dog=\\DO\r\nblank=\r\n");
    context.english = &reader_;
    Open();
  }

  /// The underlined parts, each in brackets.
  std::string Underlined() {
    AwaitIdleTurn();
    AwaitIdleTurn();  // the first one may show more of the text
    std::string parts;
    for (const QTextEdit::ExtraSelection& mark : SayDataBox()->extraSelections()) {
      parts += '[' + mark.cursor.selectedText().toStdString() + ']';
    }
    return parts;
  }
  static void AwaitIdleTurn() {
    bool hasCome = false;
    QTimer::singleShot(0, [&] { hasCome = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasCome; }));
  }
  static bool IsHinted(const QString& zWords) {
    return QTest::qWaitFor([&] { return QToolTip::text().contains(zWords); }, 1000);
  }
  void Key(Qt::Key zKey, Qt::KeyboardModifiers zModifiers = {}) {
    QTest::keyClick(SayDataBox(), zKey, zModifiers);
  }
  /// Opens the context menu at a character; the caller closes it.
  QMenu* MenuAt(int zPosition) {
    QTextCursor cursor(SayDataBox()->document());
    cursor.setPosition(zPosition);
    const QPoint point = SayDataBox()->cursorRect(cursor).center();
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, point, SayDataBox()->mapToGlobal(point));
    QCoreApplication::sendEvent(SayDataBox()->viewport(), &wanted);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }
  static QAction* Entry(const QMenu* zMenu, const QString& zText) {
    for (QAction* action : zMenu->actions()) {
      if (action->text().startsWith(zText)) {
        return action;
      }
    }
    throw std::invalid_argument("no entry " + zText.toStdString());
  }
  void Choose(int zPosition, const QString& zText) {
    QMenu* menu = MenuAt(zPosition);
    QAction* entry = Entry(menu, zText);
    menu->close();
    entry->trigger();
  }

 private:
  ScriptedPhones phones_;
  EnglishReader reader_{phones_, codeTable};
};

TEST_F(EnglishSteps, SilentWordsAreUnderlinedWhileTheyAreTypedAndUntilTheyAreSaved) {
  QTest::keyClicks(SayDataBox(), "dog robot \\IY\\ZQ blan");
  EXPECT_EQ(Underlined(), "[robot][\\ZQ][blan]");
  QTest::keyClicks(SayDataBox(), "k");
  EXPECT_EQ(Underlined(), "[robot][\\ZQ][blank]");
  Key(Qt::Key_Backspace);
  const int steps = SayDataBox()->document()->availableUndoSteps();
  EXPECT_EQ(Underlined(), "[robot][\\ZQ][blan]");
  EXPECT_EQ(SayDataBox()->document()->availableUndoSteps(), steps);

  Type("txtDict", "robot");
  GivenSayData("\\RR|");
  Press("cmdSave");
  GivenSayData("robot blank|");
  EXPECT_EQ(Underlined(), "[blank]");
}

TEST_F(EnglishSteps, OnlyThePartOfALongTextThatIsInViewIsUnderlined) {
  std::string text;
  for (int i = 0; i < 5000; ++i) {
    text += "word" + std::to_string(i) + " ";
  }
  GivenSayData("|" + text);
  const std::string atStart = Underlined();
  EXPECT_TRUE(atStart.starts_with("[word0]")) << atStart;
  EXPECT_LT(SayDataBox()->extraSelections().size(), 300);
  Key(Qt::Key_End, Qt::ControlModifier);
  const std::string atEnd = Underlined();
  EXPECT_TRUE(atEnd.ends_with("[word4999]")) << atEnd;
  EXPECT_LT(SayDataBox()->extraSelections().size(), 300);
}

TEST_F(EnglishSteps, InsertItsSoundsReplacesTheWordInOneStep) {
  const Rows<const char*, const char*> rows = {{"see ro|bot, dog", Robot},
                                               {"do|g", "\\DO"},  // the entry comes first
                                               {"robot|", Robot}};
  for (const auto& [before, sounds] : rows) {
    GivenSayData(before);
    const std::string old = SayDataBox()->Text();
    Key(Qt::Key_F6);
    EXPECT_THAT(SayDataBox()->Text(), ::testing::HasSubstr(sounds));
    SayDataBox()->undo();
    EXPECT_EQ(SayDataBox()->Text(), old);
  }
  GivenSayData("|dog robot");
  Choose(6, "Insert Its Sounds");
  EXPECT_EQ(SayData(), std::string("dog ") + Robot + "|");
}

TEST_F(EnglishSteps, AHintTellsWhatCannotBeReadAndNothingChanges) {
  const Rows<const char*, Qt::KeyboardModifiers, const char*> rows = {
      {"a  |  \\IY", Qt::NoModifier, "no word here"},
      {"mum|ble", Qt::NoModifier, "“mumble” cannot be read"},
      {"mum|ble", Qt::ShiftModifier, "“mumble” cannot be read"},
      {"do|g", Qt::ShiftModifier, "“dog” has an entry"}};
  const std::string saved = ReadBytes(dictionary.File());
  for (const auto& [before, modifiers, hint] : rows) {
    GivenSayData(before);
    Key(Qt::Key_F6, modifiers);
    EXPECT_EQ(SayData(), before);
    EXPECT_TRUE(IsHinted(hint)) << QToolTip::text().toStdString();
  }
  EXPECT_EQ(ReadBytes(dictionary.File()), saved);
}

TEST_F(EnglishSteps, AddToDictionaryWritesTheEntryAndLeavesTheWord) {
  GivenSayData("|dog robot blank");
  EXPECT_EQ(Underlined(), "[robot][blank]");
  Choose(6, "Add to Dictionary");
  EXPECT_EQ(SayData(), "|dog robot blank");
  EXPECT_EQ(ReadBytes(dictionary.File()),
            std::string("[words]\r\ndog=\\DO\r\nblank=\r\nrobot=") + Robot + "\r\n");
  EXPECT_EQ(Underlined(), "[blank]");
  EXPECT_TRUE(IsHinted("“robot” is now in the dictionary")) << QToolTip::text().toStdString();
}

TEST_F(EnglishSteps, EnglishToSoundsReadsTheSelectionOrTheWholeTextInOneStep) {
  const Rows<const char*, const char*> rows = {
      {"see the dog| see me", "\\SE\\IY \\DH\\AX dog \\SE\\IY \\MM\\IY|"},
      {"see [see dog] see", "see \\SE\\IY dog| see"},
      {"dog [see ]dog", "dog \\SE\\IY |dog"},
      {"dog[\nsee\n]dog", "dog\n \\SE\\IY \n|dog"},
      {"dog, [see], dog", "dog, \\SE\\IY|, dog"},
      {"dog\n[see] \ndog", "dog\n \\SE\\IY| \ndog"},
      {"see\nme\n\ndog|", "\\SE\\IY \\MM\\IY \\P3 \n\ndog|"}};
  for (const auto& [before, after] : rows) {
    GivenSayData(before);
    const std::string old = SayDataBox()->Text();
    Key(Qt::Key_F9);
    EXPECT_EQ(SayData(), after);
    SayDataBox()->undo();
    EXPECT_EQ(SayDataBox()->Text(), old);
  }
  GivenSayData("see mumble|");
  Key(Qt::Key_F9);
  EXPECT_EQ(SayData(), "\\SE\\IY|");
  EXPECT_TRUE(IsHinted("\"mumble\"")) << QToolTip::text().toStdString();
}

TEST_F(EnglishSteps, EnglishToSoundsMakesNoLineThatTheBoxWouldNotTake) {
  std::string paragraph;
  for (int i = 0; i < 5000; ++i) {
    paragraph += "see ";  // \SE\IY, 35,000 characters in all
  }
  GivenSayData((paragraph + paragraph + "|").c_str());
  Key(Qt::Key_F9);
  EXPECT_EQ(SayData(), paragraph + paragraph + "|");
  EXPECT_TRUE(IsHinted("too long for one line")) << QToolTip::text().toStdString();
  GivenSayData((paragraph + "\n\n" + paragraph + "|").c_str());
  Key(Qt::Key_F9);
  EXPECT_TRUE(SayData().ends_with("\\SE\\IY|"));
}

TEST_F(EnglishSteps, LoadingAWordWithoutDataOffersItsSounds) {
  for (const char* button : {"cmdLoadInsert", "cmdLoadOver"}) {
    GivenSayData("|");
    Type("txtDict", "dog robot");
    Press(button);
    EXPECT_TRUE(SayDataBox()->Text().starts_with("\\DO "));
    EXPECT_TRUE(IsHinted("“robot”")) << QToolTip::text().toStdString();
    EXPECT_TRUE(IsHinted(QString("F6 inserts these sounds: ") + Robot));
    const std::string loaded = SayDataBox()->Text();
    Key(Qt::Key_F6);
    EXPECT_EQ(SayDataBox()->Text(), loaded + Robot + " ");
    SayDataBox()->undo();
    EXPECT_EQ(SayDataBox()->Text(), loaded);
  }
}

TEST_F(EnglishSteps, AHintIsShortAndShowsWordsAsTheyAreTyped) {
  for (const auto& [words, hint] : Rows<const char*, const char*>{
           {"<b>robot", "“&lt;b&gt;robot”"},
           {"robot a b c d e f g h i", "“f”, “g” and 2 more.\n"},
           {"robot robot robot robot robot robot robot", "\\OH \\TT …"}}) {
    Box("txtDict")->SetText(words);
    Press("cmdLoadOver");
    EXPECT_TRUE(IsHinted(hint)) << QToolTip::text().toStdString();
  }
}

TEST_F(EnglishSteps, TheMenuShowsTheKeysAndSaysWhenItCannotReadEnglish) {
  const auto keys = [&] {
    QMenu* menu = MenuAt(0);
    QString all;
    for (const char* text : {"Insert Its Sounds", "Add to Dictionary", "English to Sounds"}) {
      const QAction* entry = Entry(menu, text);
      all += entry->text() + '|' + entry->shortcut().toString() + (entry->isEnabled() ? '+' : '-');
    }
    menu->close();
    return all.toStdString();
  };
  EXPECT_EQ(keys(), "Insert Its Sounds|F6+Add to Dictionary|Shift+F6+English to Sounds|F9+");
  window->close();
  context.english = nullptr;
  Open();
  EXPECT_EQ(keys(),
            "Insert Its Sounds (this build cannot read English)|F6-"
            "Add to Dictionary (this build cannot read English)|Shift+F6-"
            "English to Sounds (this build cannot read English)|F9-");
  GivenSayData("rob|ot");
  Key(Qt::Key_F6);
  EXPECT_EQ(SayData(), "rob|ot");
  EXPECT_EQ(Underlined(), "[robot]");
}

}  // namespace
}  // namespace loquitor::testing
