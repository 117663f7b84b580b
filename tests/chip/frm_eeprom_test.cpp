#include "ui/chip/frm_eeprom.h"

#include <QAccessible>
#include <QLabel>

#include "tests/support/window_test.h"
#include "ui/controls/code_page.h"
#include "ui/phrase/frm_phrase.h"

namespace loquitor::testing {
namespace {

class EepromEditor : public ToolWindowTest {
 protected:
  void GivenPhrase(int zSlot, std::string_view zPhrase) {
    settings.SaveIniValue("EEPROM", "Phrase" + std::to_string(zSlot), zPhrase);
  }
  QAbstractButton* PhraseLabel(int zSlot) { return Get<QAbstractButton>(Indexed("Phrase", zSlot)); }
  std::string Usage() { return Get<QLabel>("txtUsed")->text().toStdString(); }
  QString Heard(const QString& zName) {
    return QAccessible::queryAccessibleInterface(Get(zName))->text(QAccessible::Name);
  }

  /// Opens the phrase editor on a row, puts `zText` into it and leaves it by `zLeave`. Returns what
  /// it showed first.
  std::string Edit(int zSlot, std::string_view zText,
                   const std::function<void(ToolWindow*)>& zLeave = &PressDone) {
    std::string shown;
    After(0, [&] {
      auto* editor = qobject_cast<frmPhrase*>(QApplication::activeModalWidget());
      ASSERT_NE(editor, nullptr);
      auto* box = editor->findChild<TextArea*>("txtSayData");
      shown = box->Text();
      box->SetText(zText);
      zLeave(editor);
    });
    QTest::keyClick(PhraseLabel(zSlot), Qt::Key_Return);
    return shown;
  }
  static void PressDone(ToolWindow* zEditor) {
    QTest::mouseClick(zEditor->findChild<QWidget*>("btnDone"), Qt::LeftButton);
  }
};

TEST_F(EepromEditor, ShowsTheStoredPhrasesAndWhatTheyTake) {
  GivenPhrase(3, "\\IY \\EH");
  GivenPhrase(15, "fish&&chips&<b>peas</b>");
  Open<frmEEPROM>();
  EXPECT_EQ(window->windowTitle(), "Orvatone EEPROM Editor");
  EXPECT_EQ(PhraseLabel(3)->text(), "\\IY \\EH");
  EXPECT_EQ(PhraseLabel(15)->text(), "fish&&chips&<b>peas</b>");
  EXPECT_EQ(PhraseLabel(0)->text(), "");
  EXPECT_EQ(Get<QAbstractButton>("lbs(15)")->text(), "15 ");
  EXPECT_EQ(Usage(), "40 used of 256");
  EXPECT_EQ(Heard("Phrase(3)"), "Phrase 3: \\IY \\EH");
  EXPECT_EQ(Heard("Phrase(6)"), "Phrase 6: empty");
  EXPECT_EQ(Heard("lbs(6)"), "Play phrase 6");
  for (const int slot : {6, 15}) {
    auto* row = QAccessible::queryAccessibleInterface(PhraseLabel(slot));
    EXPECT_EQ(row->text(QAccessible::Description), "A click or Enter opens the phrase editor.");
  }
  EXPECT_EQ(Sent(), "");
}

TEST_F(EepromEditor, DimsTheInvitationOfAnEmptyRowThatIsDisabled) {
  Open<frmEEPROM>();
  QAbstractButton* row = PhraseLabel(6);
  row->setEnabled(false);
  const QImage empty = row->grab().toImage();
  row->setText("Click to write a phrase");
  EXPECT_EQ(empty, row->grab().toImage()) << "not as dim as a phrase";
}

TEST_F(EepromEditor, WritesWhatPhrasesAndDictionaryHoldNow) {
  GivenPhrase(3, "hello");
  Open<frmEEPROM>();
  EXPECT_EQ(Usage(), "37 used of 256");
  GivenDictionary("hello=\\IY \\EH\r\n");
  Click("btnWrite");
  EXPECT_EQ(Sent(),
            R"(\00J32HFFN\01J32HFFN\02J32HFFN\03J32H10N\04J32HFFN\05J32HFFN\06J32HFFN\07J32HFFN)"
            R"(\08J32HFFN\09J32HFFN\010J32HFFN\011J32HFFN\012J32HFFN\013J32HFFN\014J32HFFN)"
            R"(\015J32HFFN\016J32H80N\017J32H83N\018J32HFFN\0VX)");
  EXPECT_FALSE(port.opened.at(0).hardwareHandshaking);
}

TEST_F(EepromEditor, ColoursTheUsageAndRefusesWhatDoesNotFit) {
  const QColor normal = QPalette().color(QPalette::Window);
  const QColor yellow(255, 255, 0);
  for (const auto& [used, colour, isWritten] :
       Rows<int, QColor, bool>{{240, normal, true},
                               {241, yellow, true},
                               {256, yellow, true},
                               {257, QColor(255, 0, 0), false}}) {
    // The reserved locations, the offsets and the end of one phrase take 38.
    std::string entry = "many=";
    for (int code = 38; code < used; ++code) {
      entry += "\\IY";
    }
    GivenDictionary(entry + "\r\n");
    GivenPhrase(9, "many");
    Open<frmEEPROM>();
    EXPECT_EQ(Usage(), std::to_string(used) + " used of 256");
    auto* label = Get<QLabel>("txtUsed");
    EXPECT_EQ(label->palette().color(label->backgroundRole()), colour) << used;
    Click("btnWrite");
    EXPECT_EQ(Sent().ends_with("N\\0VX"), isWritten) << used;
    EXPECT_EQ(prompts.asked.empty(), isWritten) << used;
  }
  EXPECT_EQ(Told(), QStringList("EEPROM Phrases too large.\r\nReduce and try again."));
  EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::Ok);
  EXPECT_EQ(prompts.asked[0].title, ApplicationTitle);
  EXPECT_EQ(port.opened.size(), 1U) << "refused phrases open no port";
  EXPECT_TRUE(Get("btnWrite")->isEnabled());
}

TEST_F(EepromEditor, PlaysTheSlotOfANumberByMouseAndKeyboard) {
  Open<frmEEPROM>();
  Click("lbs(5)");
  EXPECT_EQ(Sent(), "\x1d\x05");
  EXPECT_TRUE(port.opened.at(0).hardwareHandshaking);
  QTest::keyClick(Get("lbs(0)"), Qt::Key_Space);
  EXPECT_EQ(Sent(), std::string("\x1d\0", 2));
  QTest::keyClick(Get("lbs(13)"), Qt::Key_Return);
  EXPECT_EQ(Sent(), "\x1d\x0d");
}

TEST_F(EepromEditor, TakesBackAPhraseFromThePhraseEditorOnlyByDone) {
  GivenPhrase(2, "\\IY");
  Open<frmEEPROM>();
  shared.WordToMove = "left over";
  EXPECT_EQ(Edit(2, "\\IY\n\\EH & <i>", &ToolWindow::close), "\\IY");
  EXPECT_EQ(PhraseLabel(2)->text(), "\\IY");
  EXPECT_EQ(shared.WordToMove, "");
  EXPECT_EQ(Edit(2, "\\IY\n\\EH & <i>"), "\\IY");
  EXPECT_EQ(PhraseLabel(2)->text(), "\\IY\n\\EH & <i>");
  EXPECT_EQ(Usage(), "41 used of 256") << "two codes and the pause of two blanks";
  EXPECT_EQ(Sent(), "") << "the chip is not written";
}

TEST_F(EepromEditor, KeepsPhrasesApartWhileASendOfThePhraseEditorWaitsForTheLine) {
  Open<frmEEPROM>();
  port.isHeldBack = true;
  Edit(1, "first", [this](ToolWindow* zEditor) {
    QTimer::singleShot(20, zEditor, [=, this] {
      PressDone(zEditor);
      EXPECT_EQ(PhraseLabel(1)->text(), "first");
      Edit(2, "second");
      port.isHeldBack = false;
    });
    QTest::mouseClick(zEditor->findChild<QWidget*>("bntSayIt"), Qt::LeftButton);
  });
  EXPECT_EQ(PhraseLabel(1)->text(), "first");
  EXPECT_EQ(PhraseLabel(2)->text(), "second");
}

TEST_F(EepromEditor, MarksAPhraseThatComesBackChanged) {
  const char* const cut = " characters. Only the first 255 come back";
  const char* const different = "sound different";
  std::string lines, words;
  for (int line = 0; line < 1000; ++line) {
    lines += "x\n";
    words += "x ";
  }
  for (const auto& [phrase, comesBack, expected] : Rows<std::string, std::string, const char*>{
           {std::string(255, 'x'), std::string(255, 'x'), nullptr},
           {std::string(300, 'x'), std::string(255, 'x'), cut},
           {"\\IY \\EH ", "\\IY \\EH", nullptr},
           {"\\IY\n\\EH", "\\IY\\EH", nullptr},
           {"\\IY \n\n\\EH", "\\IY \\EH", nullptr},
           {"  \\IY", "\\IY", different},
           {"\t  \\IY", "\\IY", different},
           {"\"  \\IY\"", "\\IY", different},
           {"\"\\IY\"", "\\IY", nullptr},
           {",\\IY", ",\\IY", nullptr}}) {
    Open<frmEEPROM>();
    Edit(7, phrase);
    const QString warning = PhraseLabel(7)->accessibleDescription();
    EXPECT_EQ(warning.startsWith("This phrase"), expected != nullptr) << phrase;
    EXPECT_TRUE(warning.contains(expected)) << phrase;
    EXPECT_EQ(PhraseLabel(7)->toolTip().contains(warning), expected != nullptr) << phrase;
    const QString shown = ToQString(phrase).left(phrase == lines ? 40 : -1);
    EXPECT_TRUE(PhraseLabel(7)->toolTip().contains(shown.toHtmlEscaped()));
    EXPECT_LT(PhraseLabel(7)->toolTip().count('\n'), 40) << "higher than a screen";
    Reopen<frmEEPROM>();
    EXPECT_EQ(PhraseLabel(7)->text(), ToQString(comesBack));
    EXPECT_FALSE(PhraseLabel(7)->accessibleDescription().startsWith("This phrase"));
  }
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(EepromEditor, StoresEveryPhraseAndKeepsUnknownKeys) {
  WriteBytes(folder / "Loquitor.ini",
             "[EEPROM]\r\nPhrase2=\\IY  \\EH\r\nMine=stays\r\n[Other]\r\nToo=1\r\n");
  Open<frmEEPROM>();
  window->close();
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[EEPROM]\r\nPhrase2=\\IY  \\EH\r\nMine=stays\r\nPhrase0=\r\nPhrase1=\r\nPhrase3=\r\n"
            "Phrase4=\r\nPhrase5=\r\nPhrase6=\r\nPhrase7=\r\nPhrase8=\r\nPhrase9=\r\n"
            "Phrase10=\r\nPhrase11=\r\nPhrase12=\r\nPhrase13=\r\nPhrase14=\r\nPhrase15=\r\n"
            "[Other]\r\nToo=1\r\n");
}

}  // namespace
}  // namespace loquitor::testing
