#include "ui/chip/frm_eeprom.h"

#include <QAccessible>
#include <QLabel>
#include <QTimer>
#include <functional>
#include <map>

#include "sim/virtual_chip.h"
#include "tests/support/window_test.h"
#include "ui/main/frm_codes.h"
#include "ui/phrase/frm_phrase.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/code_page.h"
#include "ui/toolkit/text_area.h"

namespace loquitor::testing {
namespace {

class EepromEditor : public ToolWindowTest {
 protected:
  void GivenPhrase(int zSlot, std::string_view zPhrase) {
    ASSERT_TRUE(settings.SaveIniValue("EEPROM", "Phrase" + std::to_string(zSlot), zPhrase));
  }
  void OpenEditor() { Open<frmEEPROM>(); }

  QLabel* PhraseLabel(int zSlot) { return Get<QLabel>(Indexed("Phrase", zSlot)); }
  std::string Usage() { return Get<QLabel>("txtUsed")->text().toStdString(); }
  QString Heard(const QString& zName) {
    return QAccessible::queryAccessibleInterface(Get(zName))->text(QAccessible::Name);
  }

  /// Opens the phrase editor on a row, types `zText` into it, leaves it by `zLeave`; what it
  /// showed.
  std::string Edit(int zSlot, std::string_view zText,
                   const std::function<void(ToolWindow*)>& zLeave = &PressDone) {
    std::string shown;
    QTimer::singleShot(0, window.get(), [&] {
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

  /// What View Codes of the phrase editor shows for a phrase alone.
  std::string ViewedCodes(const std::string& zSayData) {
    shared.PhraseToMove = zSayData;
    frmPhrase editor(nullptr, context);
    editor.Open();
    editor.findChild<CheckBox*>("chkApplyControlsBeforeSayData")->SetValue(0);
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [] {
      if (auto* viewer = qobject_cast<frmCodes*>(QApplication::activeModalWidget())) {
        viewer->close();
      }
    });
    closing.start(1);
    QTest::mouseClick(editor.findChild<QWidget*>("btnCodes"), Qt::LeftButton);
    return shared.OrvatoneCodes;
  }
};

TEST_F(EepromEditor, ShowsTheStoredPhrasesAndWhatTheyTake) {
  GivenPhrase(3, "\\IY \\EH");
  GivenPhrase(15, "fish&&chips&<b>peas</b>");
  OpenEditor();
  EXPECT_EQ(window->windowTitle(), "Orvatone EEPROM Editor");
  EXPECT_EQ(PhraseLabel(3)->text(), "\\IY \\EH");
  EXPECT_EQ(PhraseLabel(15)->text(), "fish&&chips&<b>peas</b>");
  EXPECT_EQ(PhraseLabel(0)->text(), "");
  EXPECT_EQ(Get<QLabel>("lbs(15)")->text(), "15 ");
  EXPECT_EQ(Usage(), "40 used of 256");
  EXPECT_EQ(Heard("Phrase(3)"), "Phrase 3: \\IY \\EH");
  EXPECT_EQ(Heard("Phrase(6)"), "Phrase 6: empty");
  EXPECT_EQ(Heard("lbs(6)"), "Play phrase 6");
  EXPECT_EQ(Sent(), "");
}

TEST_F(EepromEditor, WritesWhatPhrasesAndDictionaryHoldNow) {
  GivenPhrase(3, "hello");
  OpenEditor();
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
  const struct {
    int codes;  // a phrase of that many gives an image of 17 more bytes
    const char* usage;
    QColor colour;
    bool isWritten;
  } rows[] = {{202, "240 used of 256", normal, true},
              {203, "241 used of 256", yellow, true},
              {218, "256 used of 256", yellow, true},
              {219, "257 used of 256", QColor(255, 0, 0), false}};
  for (const auto& row : rows) {
    std::string entry = "many=";
    for (int code = 0; code < row.codes; ++code) {
      entry += "\\IY";
    }
    GivenDictionary(entry + "\r\n");
    GivenPhrase(9, "many");
    OpenEditor();
    EXPECT_EQ(Usage(), row.usage);
    auto* label = Get<QLabel>("txtUsed");
    EXPECT_EQ(label->palette().color(label->backgroundRole()), row.colour) << row.usage;
    Click("btnWrite");
    EXPECT_EQ(Sent().ends_with("N\\0VX"), row.isWritten) << row.usage;
    EXPECT_EQ(prompts.asked.empty(), row.isWritten) << row.usage;
  }
  EXPECT_EQ(prompts.asked.at(0).text, "EEPROM Phrases too large.\r\nReduce and try again.");
  EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::Ok);
  EXPECT_EQ(prompts.asked[0].title, ApplicationTitle);
  EXPECT_EQ(port.opened.size(), 1U) << "refused phrases open no port";
  EXPECT_TRUE(Get("btnWrite")->isEnabled());
}

TEST_F(EepromEditor, PlaysTheSlotOfANumberByMouseAndKeyboard) {
  OpenEditor();
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
  OpenEditor();
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
  OpenEditor();
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
  const struct {
    std::string phrase;
    std::string comesBack;
    const char* warning = nullptr;
  } rows[] = {{std::string(255, 'x'), std::string(255, 'x')},
              {std::string(300, 'x'), std::string(255, 'x'), cut},
              {lines, words.substr(0, 255), cut},
              {"\\IY \\EH ", "\\IY \\EH"},
              {"\\IY\n\\EH", "\\IY \\EH"},
              {"\\IY \n\n\\EH", "\\IY  \\EH", different},
              {"  \\IY", "\\IY", different},
              {"\t  \\IY", "\\IY", different},
              {"\"  \\IY\"", "\\IY", different},
              {"\"\\IY\"", "\\IY"},
              {",\\IY", ",\\IY"}};
  for (const auto& row : rows) {
    OpenEditor();
    Edit(7, row.phrase);
    const QString warning = PhraseLabel(7)->accessibleDescription();
    EXPECT_EQ(!warning.isEmpty(), row.warning != nullptr) << row.phrase;
    EXPECT_TRUE(warning.contains(row.warning)) << row.phrase;
    EXPECT_TRUE(PhraseLabel(7)->toolTip().contains(warning)) << row.phrase;
    const QString shown = ToQString(row.phrase).left(row.phrase == lines ? 40 : -1);
    EXPECT_TRUE(PhraseLabel(7)->toolTip().contains(shown.toHtmlEscaped()));
    EXPECT_LT(PhraseLabel(7)->toolTip().count('\n'), 40) << "higher than a screen";
    Reopen<frmEEPROM>();
    EXPECT_EQ(PhraseLabel(7)->text(), ToQString(row.comesBack));
    EXPECT_EQ(PhraseLabel(7)->accessibleDescription(), "");
  }
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(EepromEditor, TabsFromRowToRowToTheButtons) {
  OpenEditor();
  QStringList expected;
  for (int slot = 0; slot < PhraseSlotCount; ++slot) {
    expected << Indexed("lbs", slot) << Indexed("Phrase", slot);
  }
  EXPECT_EQ(TabOrder("lbs(0)"), expected.join(' ') + " btnWrite btnShutUp btnDone");
}

TEST_F(EepromEditor, StoresEveryPhraseAndKeepsUnknownKeys) {
  WriteBytes(folder / "Loquitor.ini",
             "[EEPROM]\r\nPhrase2=\\IY  \\EH\r\nMine=stays\r\n[Other]\r\nToo=1\r\n");
  OpenEditor();
  window->close();
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[EEPROM]\r\nPhrase2=\\IY  \\EH\r\nMine=stays\r\nPhrase0=\r\nPhrase1=\r\nPhrase3=\r\n"
            "Phrase4=\r\nPhrase5=\r\nPhrase6=\r\nPhrase7=\r\nPhrase8=\r\nPhrase9=\r\n"
            "Phrase10=\r\nPhrase11=\r\nPhrase12=\r\nPhrase13=\r\nPhrase14=\r\nPhrase15=\r\n"
            "[Other]\r\nToo=1\r\n");
}

TEST_F(EepromEditor, LocksThePhrasesDuringAWrite) {
  OpenEditor();
  port.onByte = [this] {
    if (port.written.size() == 100) {
      Click("lbs(4)");
      Click("Phrase(0)");
      QTest::keyClick(window.get(), Qt::Key_Tab);
      EXPECT_TRUE(Get("btnShutUp")->hasFocus()) << "the one control but Done that is left";
      QTest::keyClick(Get("btnShutUp"), Qt::Key_Space);
    }
  };
  Click("btnWrite");
  EXPECT_EQ(Sent().size(), 100U + 6U);
  EXPECT_TRUE(PhraseLabel(0)->isEnabled());
  EXPECT_TRUE(Get("lbs(15)")->isEnabled());
}

TEST_F(EepromEditor, TheChipThenHoldsWhatTheWindowShows) {
  GivenDictionary("hello=\\HE \\EH \\LO \\OW\r\n");
  std::map<int, std::string> phrases{
      {0, "hello, \\PITCH \\100"}, {4, "\\IY"}, {7, "hello  hello"}, {15, "\\NTC#1 \\0 hello"}};
  for (const auto& [slot, phrase] : phrases) {
    GivenPhrase(slot, phrase);
  }
  OpenEditor();
  Click("btnWrite");
  VirtualChip chip;
  chip.Receive(Sent());
  for (int slot = 0; slot < PhraseSlotCount; ++slot) {
    Click(Indexed("lbs", slot));
    const std::vector<ChipEvent> played = chip.Receive(Sent());
    ASSERT_FALSE(played.empty()) << slot;
    EXPECT_EQ(played[0].kind, ChipEventKind::Play);
    EXPECT_EQ(CodeListText(played[0].codes), ViewedCodes(phrases[slot])) << slot;
  }
}

}  // namespace
}  // namespace loquitor::testing
