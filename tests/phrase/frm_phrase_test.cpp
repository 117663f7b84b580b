#include "ui/phrase/frm_phrase.h"

#include <QHelpEvent>
#include <QToolTip>
#include <set>

#include "tests/phrase/phrase_window.h"
#include "ui/phrase/frm_codes.h"

namespace loquitor::testing {
namespace {

class FrmPhraseTest : public PhraseWindowTest {
 protected:
  /// Double-clicks the button. Returns the text of the one codes viewer that opens.
  std::string CodesShownBy(const char* zButton) {
    std::vector<std::string> shown;
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, window.get(), [&] {
      if (auto* viewer = qobject_cast<frmCodes*>(QApplication::activeModalWidget())) {
        EXPECT_EQ(viewer->parentWidget(), window.get());
        shown.push_back(viewer->findChild<TextArea*>("txtCodes")->Text());
        viewer->close();
      }
    });
    whenOpen.start(1);
    After(0, [=, this] { Press(zButton); });
    Press(zButton);
    EXPECT_EQ(shown.size(), 1u) << zButton;
    return shown.empty() ? "no viewer" : shown.back();
  }
};

TEST_F(FrmPhraseTest, StartsWithTheTextsOfItsOpenerAndReturnsThemOnlyByDone) {
  EXPECT_EQ(SayData(), "|");
  EXPECT_EQ(Box("txtDict")->Text(), "");
  for (const bool isDone : {false, true}) {
    shared.PhraseToMove = "\\IY \xE9\n";
    shared.WordToMove = "caf\xE9";
    Open();
    EXPECT_TRUE(SayDataBox()->hasFocus());
    EXPECT_EQ(SayDataBox()->Text(), "\\IY \xE9\n");
    EXPECT_EQ(Box("txtDict")->Text(), "caf\xE9");
    Type("txtDict", "new");
    GivenSayData("new phrase|");
    isDone ? Press("btnDone") : static_cast<void>(window->close());
    EXPECT_TRUE(window->IsUnloaded());
    EXPECT_EQ(shared.PhraseToMove, isDone ? "new phrase" : "\\IY \xE9\n");
    EXPECT_EQ(shared.WordToMove, isDone ? "new" : "caf\xE9");
  }
}

TEST_F(FrmPhraseTest, SaysTheWholeTextOrTheSelection) {
  GivenDictionary("hello=\\HE \\EH \\LO \\OW\r\n");
  for (const bool isApplied : {true, false}) {
    Tick("chkApplyControlsBeforeSayData", isApplied);
    Tick("chkApplyControlsBeforeSounds", !isApplied);
    for (const auto& [sayData, button, codes] : Rows<const char*, const char*, const char*>{
             {"|", "bntSayIt", ""},
             {"\\IY \\P2|", "bntSayIt", "\x80\x02"},
             {"|hello,  \\PITCH\n \\100", "bntSayIt", "\xB7\x83\x92\x89\x02\x06\x16\x64"},
             {"\\IY [\\EH ]\\AX", "btnSaySelection", "\x83"},
             {"\\IY |\\EH", "btnSaySelection", ""}}) {
      After(0, [&] { GivenSayData(sayData); });  // still pending
      Press(button);
      EXPECT_EQ(Sent(), (isApplied ? DefaultPrefix : "") + codes) << sayData;
      EXPECT_EQ(SayData(), sayData) << "the text, caret and selection stay";
      EXPECT_TRUE(SayDataBox()->hasFocus());
    }
  }
}

TEST_F(FrmPhraseTest, ShowsTheCodesInOneViewerAndSendsNothing) {
  GivenSayData("\\IY [\\P0]");
  EXPECT_EQ(CodesShownBy("btnCodes"), "20, 96, 21, 114, 22, 88, 23, 5, 128, 0");
  Tick("chkApplyControlsBeforeSayData", false);
  EXPECT_EQ(CodesShownBy("Command2"), "0");
  GivenSayData("|\\IY");
  EXPECT_EQ(CodesShownBy("Command2"), "");
  EXPECT_EQ(Sent(), "");
}

TEST_F(FrmPhraseTest, EachKeyPressesItsButtonAndTakesWhatIsTypedIntoABox) {
  const std::string prefix = "\x14\x60\x15\x72\x16\xC8\x17\x05";  // pitch 200
  const Rows<QKeySequence, const char*, std::string> rows = {
      {Qt::Key_F5, "bntSayIt", prefix + "\x80\x83"},
      {Qt::SHIFT | Qt::Key_F5, "btnSaySelection", prefix + "\x83"},
      {Qt::Key_F8, "btnShutUp", std::string("\\0RX\x1F\0", 6)},
      {Qt::CTRL | Qt::Key_S, "cmdSave", ""}};
  for (const auto& [key, button, sent] : rows) {
    Open();
    GivenSayData("\\IY [\\EH]");
    Type("txtDict", "word");
    Type("txtPitch", "200");
    QTest::keySequence(window.get(), key);
    EXPECT_EQ(Sent(), sent) << button;
    EXPECT_EQ(Bar("scPitch")->value(), 200) << button;
    const QString tooltip = Get(button)->toolTip();
    QHelpEvent pointedAt(QEvent::ToolTip, {1, 1}, {1, 1});
    QApplication::sendEvent(Get(button), &pointedAt);
    EXPECT_EQ(QToolTip::text(), tooltip + " (" + key.toString() + ")");
  }
  EXPECT_EQ(dictionary.GetDictionaryValue("words", "word", ""), "\\IY \\EH");
}

TEST_F(FrmPhraseTest, InsertsAtTheCaretOrOverTheSelectionAndTakesItBack) {
  const Rows<const char*, const char*, const char*> rows = {
      {"|", "\\IY", "\\IY |"},
      {"\\IY| \\EH", "\\AX", "\\IY \\AX |\\EH"},
      {"\\IY|  \\EH", "\\AX", "\\IY  \\AX |\\EH"},
      {"\\IY|\n \\EH", "\\AX", "\\IY\\AX |\n \\EH"},
      {"a[b] c", "x", "ax | c"},
      {"[all]", "", " |"},
      {"a|\xA0z", "\xE9", "a\xE9 |\xA0z"}};
  for (const auto& [before, text, after] : rows) {
    GivenSayData(before);
    const std::string old = SayDataBox()->Text();
    Editor().InsertIntoSayData(text);
    EXPECT_EQ(SayData(), after) << before;
    Press("btnClear");
    EXPECT_EQ(SayData(), "|");
    QTest::keyClick(SayDataBox(), Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(SayDataBox(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SayDataBox()->Text(), old) << "two steps back";
  }
}

TEST_F(FrmPhraseTest, MovesTheCaretPastManyBlanksAtOnce) {
  GivenSayData("|" + std::string(1000, ' ') + "x");
  const QSignalSpy moves(SayDataBox(), &TextArea::cursorPositionChanged);
  Editor().InsertIntoSayData("\\IY");
  EXPECT_EQ(SayData(), std::string(1000, ' ') + "\\IY |x");
  EXPECT_LT(moves.size(), 4) << "each move lays the line out";
}

TEST_F(FrmPhraseTest, DisablesTheButtonThatIsAtWorkAndTakesKeysForTheSayData) {
  port.isHeldBack = true;
  WhileSending([this] {
    EXPECT_FALSE(Get<QPushButton>("bntSayIt")->isEnabled());
    EXPECT_TRUE(Get<QPushButton>("btnSaySelection")->isEnabled());
    EXPECT_EQ(window->cursor().shape(), Qt::WaitCursor);
    QTest::keyClicks(window->focusWidget(), "x");
    port.isHeldBack = false;
  });
  Get<QPushButton>("bntSayIt")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Space);
  EXPECT_EQ(Sent(), DefaultPrefix);
  EXPECT_EQ(SayData(), "x|");
  EXPECT_TRUE(Get<QPushButton>("bntSayIt")->isEnabled());
  EXPECT_NE(window->cursor().shape(), Qt::WaitCursor);
}

TEST_F(FrmPhraseTest, DoesNothingMoreWhenItIsClosedAsAnActionBegins) {
  GivenDictionary("cat=\\KE\r\n");
  for (const char* button :
       {"bntSayIt", "btnSaySelection", "btnCodes", "Command2", "btnNextWord"}) {
    Open();
    After(0, [this] { window->close(); });
    Press(button);
    EXPECT_EQ(Sent(), "") << button;
  }
  Open();
  DoubleClick("Wait", 1);
  Click("Wait");
  window->close();
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(prompts.asked.size(), 1u) << "only while the window was open";
  EXPECT_EQ(Sent(), "");
}

TEST_F(FrmPhraseTest, HidesOnlyTheControlsOutsideTheirFrame) {
  std::set<QString> hidden;
  for (const QWidget* control : window->findChildren<QWidget*>()) {
    if (control->isHidden() && !control->objectName().startsWith("qt_")) {
      hidden.insert(control->objectName());
    }
  }
  EXPECT_EQ(hidden, (std::set<QString>{"Command1(141)", "txtfindwith"}));
}

}  // namespace
}  // namespace loquitor::testing
