#include "ui/chip/frm_eeprom.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>

#include "link/scp.h"
#include "sim/virtual_chip.h"
#include "tests/support/window_test.h"
#include "ui/toolkit/code_page.h"
#include "ui/toolkit/text_area.h"

namespace loquitor::testing {
namespace {

constexpr const char* EmptySlotFour =
    R"(\00J32HFFN\01J32HFFN\02J32HFFN\03J32H10N\04J32HFFN\05J32HFFN\06J32HFFN\07J32HFFN)"
    R"(\08J32HFFN\09J32HFFN\010J32HFFN\011J32HFFN\012J32HFFN\013J32HFFN\014J32HFFN)"
    R"(\015J32HFFN\016J32H80N\017J32H83N\018J32HFFN\0VX)";

class EepromEditor : public WindowTest {
 protected:
  void GivenPhrase(int zSlot, std::string_view zPhrase) {
    ASSERT_TRUE(settings.SaveIniValue("EEPROM", "Phrase" + std::to_string(zSlot), zPhrase));
  }
  std::string StoredPhrase(int zSlot) {
    return settings.GetIniValue("EEPROM", "Phrase" + std::to_string(zSlot), "");
  }
  void Open() {
    editor = std::make_unique<frmEEPROM>(nullptr, context);
    editor->Open();
  }
  void Reopen() {
    editor->close();
    Open();
  }
  template <class T = QWidget>
  T* Find(const QString& zName) {
    T* control = editor->findChild<T*>(zName);
    EXPECT_NE(control, nullptr) << zName.toStdString();
    return control;
  }
  QLabel* PhraseLabel(int zSlot) { return Find<QLabel>(Indexed("Phrase", zSlot)); }
  void Click(const QString& zName) { QTest::mouseClick(Find(zName), Qt::LeftButton); }
  /// Opens the phrase editor on a row, types `zText` into it, leaves it by `zLeave`; what it
  /// showed.
  std::string Edit(const QString& zRow, std::string_view zText,
                   const std::function<void(ToolWindow*)>& zLeave) {
    std::string shown;
    QTimer::singleShot(0, editor.get(), [&] {
      auto* phraseEditor = qobject_cast<ToolWindow*>(QApplication::activeModalWidget());
      ASSERT_NE(phraseEditor, editor.get());
      auto* box = phraseEditor->findChild<TextArea*>("txtSayData");
      shown = box->Text();
      box->SetText(zText);
      zLeave(phraseEditor);
    });
    QTest::keyClick(Find(zRow), Qt::Key_Return);
    return shown;
  }
  static void PressDone(ToolWindow* zEditor) {
    QTest::mouseClick(zEditor->findChild<QWidget*>("btnDone"), Qt::LeftButton);
  }
  std::string Usage() { return Find<QLabel>("txtUsed")->text().toStdString(); }
  QColor UsageColour() {
    auto* label = Find<QLabel>("txtUsed");
    return label->palette().color(label->backgroundRole());
  }

  std::unique_ptr<frmEEPROM> editor;
};

TEST_F(EepromEditor, ShowsTheStoredPhrasesAndWhatTheyTake) {
  GivenPhrase(3, "\\IY \\EH");
  GivenPhrase(15, "fish&&chips&<b>peas</b>");
  Open();
  EXPECT_EQ(editor->windowTitle(), "Orvatone EEPROM Editor");
  EXPECT_EQ(PhraseLabel(3)->text(), "\\IY \\EH");
  EXPECT_EQ(PhraseLabel(15)->text(), "fish&&chips&<b>peas</b>");
  EXPECT_EQ(PhraseLabel(0)->text(), "");
  EXPECT_EQ(Find<QLabel>("lbs(15)")->text(), "15 ");
  EXPECT_EQ(Usage(), "40 used of 256");
  EXPECT_TRUE(Sent().empty());
}

TEST_F(EepromEditor, WritesTheImageInOneString) {
  GivenPhrase(3, "\\IY \\EH");
  Open();
  Click("btnWrite");
  EXPECT_EQ(Sent(), EmptySlotFour);
  EXPECT_FALSE(port.opened.at(0).hardwareHandshaking);
  EXPECT_TRUE(Find("btnWrite")->isEnabled());
}

TEST_F(EepromEditor, ColoursTheUsageAndRefusesWhatDoesNotFit) {
  const QColor yellow(255, 255, 0);
  const QColor red(255, 0, 0);
  const struct {
    int codes;  // a phrase of that many gives an image of 17 more bytes
    const char* usage;
    QColor colour;
    bool isWritten;
  } rows[] = {{202, "240 used of 256", {}, true},
              {203, "241 used of 256", yellow, true},
              {218, "256 used of 256", yellow, true},
              {219, "257 used of 256", red, false}};
  GivenDictionary("ten=\\IY\\IY\\IY\\IY\\IY\\IY\\IY\\IY\\IY\\IY\r\n");
  for (const auto& row : rows) {
    std::string phrase;
    for (int left = row.codes; left > 0; left -= left < 10 ? 1 : 10) {
      phrase += left < 10 ? "\\IY " : "ten ";
    }
    GivenPhrase(9, phrase);
    Open();
    EXPECT_EQ(Usage(), row.usage);
    EXPECT_EQ(UsageColour(), row.colour.isValid() ? row.colour : QPalette().color(QPalette::Window))
        << row.usage;
    Click("btnWrite");
    EXPECT_EQ(Sent().ends_with("N\\0VX"), row.isWritten) << row.usage;
    EXPECT_EQ(prompts.asked.size(), row.isWritten ? 0U : 1U) << row.usage;
  }
  EXPECT_EQ(prompts.asked[0].text, "EEPROM Phrases too large.\r\nReduce and try again.");
  EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::Ok);
  EXPECT_EQ(prompts.asked[0].title, ApplicationTitle);
  EXPECT_EQ(port.opened.size(), 1U) << "refused phrases open no port";
  EXPECT_TRUE(Find("btnWrite")->isEnabled());
}

TEST_F(EepromEditor, WritesWhatTheDictionaryHoldsNow) {
  GivenPhrase(0, "hello");
  Open();
  EXPECT_EQ(Usage(), "37 used of 256");
  GivenDictionary("hello=\\HE\r\n");
  Click("btnWrite");
  EXPECT_TRUE(Sent().ends_with("\\016J32HB7N\\017J32HFFN\\0VX"));
}

TEST_F(EepromEditor, PlaysTheSlotOfANumberByMouseAndKeyboard) {
  Open();
  Click("lbs(5)");
  EXPECT_EQ(Sent(), "\x1d\x05");
  EXPECT_TRUE(port.opened.at(0).hardwareHandshaking);
  QTest::keyClick(Find("lbs(0)"), Qt::Key_Space);
  EXPECT_EQ(Sent(), std::string("\x1d\0", 2));
  QTest::keyClick(Find("lbs(13)"), Qt::Key_Return);
  EXPECT_EQ(Sent(), "\x1d\x0d");
}

TEST_F(EepromEditor, TakesBackAPhraseFromThePhraseEditorOnlyByDone) {
  GivenPhrase(2, "\\IY");
  Open();
  shared.WordToMove = "left over";
  EXPECT_EQ(Edit("Phrase(2)", "\\IY\n\\EH & <i>", &ToolWindow::close), "\\IY");
  EXPECT_EQ(PhraseLabel(2)->text(), "\\IY");
  EXPECT_EQ(shared.WordToMove, "");
  EXPECT_EQ(Edit("Phrase(2)", "\\IY\n\\EH & <i>", &PressDone), "\\IY");
  EXPECT_EQ(PhraseLabel(2)->text(), "\\IY\n\\EH & <i>");
  EXPECT_EQ(Usage(), "41 used of 256") << "two codes and the pause of two blanks";
  EXPECT_EQ(Sent(), "") << "the chip is not written";
}

TEST_F(EepromEditor, KeepsPhrasesApartWhileASendOfThePhraseEditorWaitsForTheLine) {
  Open();
  port.isHeldBack = true;
  const auto sayAndLeave = [this](ToolWindow* zEditor) {
    auto* whileSending = new QTimer(zEditor);
    QObject::connect(whileSending, &QTimer::timeout, zEditor, [=, this] {
      whileSending->stop();
      PressDone(zEditor);
      EXPECT_EQ(PhraseLabel(1)->text(), "first");
      Edit("Phrase(2)", "second", &PressDone);
      port.isHeldBack = false;
    });
    whileSending->start(20);
    QTest::mouseClick(zEditor->findChild<QWidget*>("bntSayIt"), Qt::LeftButton);
  };
  Edit("Phrase(1)", "first", sayAndLeave);
  EXPECT_EQ(PhraseLabel(1)->text(), "first");
  EXPECT_EQ(PhraseLabel(2)->text(), "second");
}

TEST_F(EepromEditor, MarksAPhraseThatTheSettingsWouldCut) {
  Open();
  Edit("Phrase(7)", std::string(255, 'x'), &PressDone);
  EXPECT_FALSE(PhraseLabel(7)->toolTip().contains("255 come back"));
  Edit("Phrase(7)", std::string(300, 'x'), &PressDone);
  EXPECT_TRUE(PhraseLabel(7)->toolTip().contains(
      "This phrase has 300 characters. Only the first 255 come back"));
  EXPECT_TRUE(PhraseLabel(7)->toolTip().contains(QString(300, 'x')));
  EXPECT_TRUE(PhraseLabel(7)->accessibleDescription().contains("dictionary"));
  EXPECT_TRUE(prompts.asked.empty());
  Reopen();
  EXPECT_EQ(PhraseLabel(7)->text(), QString(255, 'x'));
  EXPECT_EQ(PhraseLabel(7)->accessibleDescription(), "");
}

TEST_F(EepromEditor, MarksAPhraseWhoseSoundTheSettingsWouldChange) {
  const struct {
    const char* phrase;
    const char* stored;
    bool isMarked;
  } rows[] = {{"\\IY \\EH ", "\\IY \\EH", false},
              {"\\IY\n\\EH", "\\IY \\EH", false},
              {"\\IY \n\n\\EH", "\\IY  \\EH", true},
              {"  \\IY", "\\IY", true},
              {"\t  \\IY", "\\IY", true},
              {"\"  \\IY\"", "\\IY", true},
              {"\"\\IY\"", "\\IY", false},
              {",\\IY", ",\\IY", false}};
  for (const auto& row : rows) {
    Open();
    Edit("Phrase(1)", row.phrase, &PressDone);
    EXPECT_EQ(PhraseLabel(1)->accessibleDescription().contains("sound different"), row.isMarked)
        << row.phrase;
    editor->close();
    EXPECT_EQ(StoredPhrase(1), row.stored);
  }
}

TEST_F(EepromEditor, TabsFromRowToRowToTheButtons) {
  Open();
  QStringList order;
  QWidget* at = Find("lbs(0)");
  for (int step = 0; step < 35; ++step) {
    order += at->objectName();
    do {
      at = at->nextInFocusChain();
    } while ((at->focusPolicy() & Qt::TabFocus) == 0);
  }
  QStringList expected;
  for (int slot = 0; slot < PhraseSlotCount; ++slot) {
    expected << Indexed("lbs", slot) << Indexed("Phrase", slot);
  }
  EXPECT_EQ(order, expected << "btnWrite"
                            << "btnShutUp"
                            << "btnDone");
}

TEST_F(EepromEditor, TellsAScreenReaderThePhrase) {
  GivenPhrase(5, "hello world");
  Open();
  const auto heard = [this](const QString& zName) {
    return QAccessible::queryAccessibleInterface(Find(zName))->text(QAccessible::Name);
  };
  EXPECT_EQ(heard("Phrase(5)"), "Phrase 5: hello world");
  EXPECT_EQ(heard("Phrase(6)"), "Phrase 6: empty");
  EXPECT_EQ(heard("lbs(6)"), "Play phrase 6");
}

TEST_F(EepromEditor, StoresEveryPhraseAndKeepsUnknownKeys) {
  WriteBytes(folder / "Loquitor.ini",
             "[EEPROM]\r\nPhrase2=\\IY  \\EH\r\nMine=stays\r\n[Other]\r\nToo=1\r\n");
  Open();
  editor->close();
  EXPECT_TRUE(editor->IsUnloaded());
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[EEPROM]\r\nPhrase2=\\IY  \\EH\r\nMine=stays\r\nPhrase0=\r\nPhrase1=\r\nPhrase3=\r\n"
            "Phrase4=\r\nPhrase5=\r\nPhrase6=\r\nPhrase7=\r\nPhrase8=\r\nPhrase9=\r\n"
            "Phrase10=\r\nPhrase11=\r\nPhrase12=\r\nPhrase13=\r\nPhrase14=\r\nPhrase15=\r\n"
            "[Other]\r\nToo=1\r\n");
}

TEST_F(EepromEditor, ShutUpCutsAWrite) {
  Open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(editor.get()));
  port.onByte = [this] {
    if (port.written.size() == 100) {
      EXPECT_FALSE(Find("btnWrite")->isEnabled());
      EXPECT_FALSE(PhraseLabel(0)->isEnabled()) << "nothing else may cut the write";
      Click("btnWrite");
      Click("lbs(4)");
      QTest::keyClick(editor.get(), Qt::Key_Tab);  // the one control but Done that is left
      EXPECT_TRUE(Find("btnShutUp")->hasFocus());
      QTest::keyClick(Find("btnShutUp"), Qt::Key_Space);
    }
  };
  Click("btnWrite");
  const std::string whole = EepromWriteString(BuildEepromImage({}));
  EXPECT_EQ(Sent(), whole.substr(0, 100) + StopSequence());
  EXPECT_TRUE(Find("btnWrite")->isEnabled());
  EXPECT_TRUE(PhraseLabel(0)->isEnabled());
}

TEST_F(EepromEditor, ClosingInMidWriteStopsItAndStoresOnce) {
  GivenPhrase(0, "\\IY");
  Open();
  int closings = 0;
  QObject::connect(editor.get(), &ToolWindow::Closed, [&closings] { ++closings; });
  port.onByte = [this] {
    if (port.written.size() == 50) {
      Click("btnDone");
      editor->close();
    }
  };
  Click("btnWrite");
  EXPECT_EQ(Sent().size(), 50U);
  EXPECT_EQ(closings, 1);
  EXPECT_EQ(StoredPhrase(0), "\\IY");
}

TEST_F(EepromEditor, ClosedWhileTheWriteBeginsSendsNothing) {
  Open();
  QTimer::singleShot(0, editor.get(), [this] { editor->close(); });
  Click("btnWrite");
  EXPECT_EQ(Sent(), "");
}

TEST_F(EepromEditor, StaysUsableWhenThePortFails) {
  GivenPhrase(3, "\\IY \\EH");
  Open();
  port.bytesUntilFailure = 20;
  Click("btnWrite");
  EXPECT_EQ(Sent().size(), 20U);
  EXPECT_EQ(host.portState, PortState::Failed);
  EXPECT_TRUE(Find("btnWrite")->isEnabled());
  EXPECT_TRUE(PhraseLabel(3)->isEnabled());
  port.bytesUntilFailure = -1;
  Click("btnWrite");
  EXPECT_EQ(Sent(), EmptySlotFour);
}

TEST_F(EepromEditor, TheChipThenHoldsWhatTheWindowShows) {
  GivenDictionary("hello=\\HE \\EH \\LO \\OW\r\n");
  const std::map<int, std::string> phrases{
      {0, "hello, \\PITCH \\100"}, {4, "\\IY"}, {7, "hello  hello"}, {15, "\\NTC#1 \\0 hello"}};
  for (const auto& [slot, phrase] : phrases) {
    GivenPhrase(slot, phrase);
  }
  Open();
  Click("btnWrite");
  VirtualChip chip;
  chip.Receive(Sent());
  for (int slot = 0; slot < PhraseSlotCount; ++slot) {
    Click(Indexed("lbs", slot));
    const std::vector<ChipEvent> played = chip.Receive(Sent());
    ASSERT_FALSE(played.empty()) << slot;
    EXPECT_EQ(played[0].kind, ChipEventKind::Play);
    const std::string shown = ToBytes(PhraseLabel(slot)->text());
    EXPECT_EQ(played[0].codes, translator.MnemonicsToCodes(translator.ExpandSayData(shown)))
        << slot;
  }
  const std::string image = editor->GetEEPROMPhraseString();
  for (std::size_t at = 0; at < image.size(); ++at) {
    EXPECT_EQ(chip.Eeprom(static_cast<int>(at)), static_cast<std::uint8_t>(image[at])) << at;
  }
}

}  // namespace
}  // namespace loquitor::testing
