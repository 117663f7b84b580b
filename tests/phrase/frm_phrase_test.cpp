#include "ui/phrase/frm_phrase.h"

#include <gmock/gmock.h>

#include "tests/phrase/phrase_window.h"
#include "ui/main/frm_codes.h"

namespace loquitor::testing {
namespace {

using ::testing::StartsWith;

const std::string Stop = std::string("\\0RX\x1F\0", 6);

class FrmPhraseTest : public PhraseWindowTest {
 protected:
  /// The text of the codes viewer that pressing the button opens.
  std::string CodesShownBy(const char* zButton) {
    std::string shown = "no viewer";
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, window.get(), [&] {
      if (auto* viewer = qobject_cast<frmCodes*>(QApplication::activeModalWidget())) {
        EXPECT_EQ(viewer->parentWidget(), window.get());
        shown = viewer->findChild<TextArea*>("txtCodes")->Text();
        viewer->close();
      }
    });
    whenOpen.start(1);
    Press(zButton);
    return shown;
  }
};

TEST_F(FrmPhraseTest, StartsWithTheTextsOfItsOpener) {
  Open();
  EXPECT_EQ(window->windowTitle(), " Orvatone Phrase Editor");
  EXPECT_EQ(window->size(), TwipSize({11700, 7935}).ToPixels());
  EXPECT_EQ(SayData(), "|");
  EXPECT_EQ(Box("txtDict")->Text(), "");
  EXPECT_TRUE(SayDataBox()->hasFocus());
  shared.PhraseToMove = "\\IY \xE9\n";
  shared.WordToMove = "caf\xE9";
  Open();
  EXPECT_EQ(SayDataBox()->Text(), "\\IY \xE9\n");
  EXPECT_EQ(Box("txtDict")->Text(), "caf\xE9");
}

TEST_F(FrmPhraseTest, ReturnsItsTextsByDoneAlone) {
  for (const bool isDone : {false, true}) {
    shared.PhraseToMove = "old phrase";
    shared.WordToMove = "old";
    Open();
    Type("txtDict", "new");
    GivenSayData("new phrase|");
    if (isDone) {
      Press("btnDone");
    } else {
      window->close();
    }
    EXPECT_TRUE(window->IsUnloaded());
    EXPECT_EQ(shared.PhraseToMove, isDone ? "new phrase" : "old phrase");
    EXPECT_EQ(shared.WordToMove, isDone ? "new" : "old");
  }
}

TEST_F(FrmPhraseTest, SaysTheWholeTextOrTheSelection) {
  struct Case {
    const char* sayData;
    const char* button;
    std::string codes;
  };
  GivenDictionary("hello=\\HE \\EH \\LO \\OW\r\n");
  Open();
  for (const bool isApplied : {true, false}) {
    Tick("chkApplyControlsBeforeSayData", isApplied);
    Tick("chkApplyControlsBeforeSounds", !isApplied);
    for (const Case& expected :
         {Case{"|", "bntSayIt", ""}, Case{"\\IY \\P2|", "bntSayIt", "\x80\x02"},
          Case{"|hello,  \\PITCH\n \\100", "bntSayIt", "\xB7\x83\x92\x89\x02\x06\x16\x64"},
          Case{"\\IY [\\EH ]\\AX", "btnSaySelection", "\x83"},
          Case{"\\IY |\\EH", "btnSaySelection", ""}}) {
      GivenSayData(expected.sayData);
      Press(expected.button);
      EXPECT_EQ(Sent(), (isApplied ? DefaultPrefix : "") + expected.codes) << expected.sayData;
      EXPECT_EQ(SayData(), expected.sayData) << "the text, caret and selection stay";
      EXPECT_TRUE(SayDataBox()->hasFocus());
    }
  }
}

TEST_F(FrmPhraseTest, AsksBeforeALongPhraseWithoutFlowControl) {
  Open();
  host.isFlowControlTicked = false;
  host.sendsLongPhrases = false;
  SayDataBox()->SetText(std::string(57, ','));
  Press("bntSayIt");
  EXPECT_EQ(host.longPhraseQuestions, 1);
  EXPECT_EQ(Sent(), "");
}

TEST_F(FrmPhraseTest, ShowsTheCodesAndSendsNothing) {
  Open();
  GivenSayData("\\IY [\\P0]");
  EXPECT_EQ(CodesShownBy("btnCodes"), "20, 96, 21, 114, 22, 88, 23, 5, 128, 0");
  EXPECT_EQ(CodesShownBy("Command2"), "20, 96, 21, 114, 22, 88, 23, 5, 0");
  Tick("chkApplyControlsBeforeSayData", false);
  EXPECT_EQ(CodesShownBy("Command2"), "0");
  GivenSayData("|\\IY");
  EXPECT_EQ(CodesShownBy("Command2"), "");
  EXPECT_EQ(shared.OrvatoneCodes, "");
  EXPECT_EQ(Sent(), "");
}

TEST_F(FrmPhraseTest, InsertsAtTheCaretOrOverTheSelectionAndTakesItBack) {
  struct Case {
    const char* before;
    const char* text;
    const char* after;
  };
  Open();
  for (const Case& expected : {
           Case{"|", "\\IY", "\\IY |"},
           Case{"\\IY| \\EH", "\\AX", "\\IY \\AX |\\EH"},
           Case{"\\IY|  \\EH", "\\AX", "\\IY  \\AX |\\EH"},
           Case{"\\IY|\n \\EH", "\\AX", "\\IY\\AX |\n \\EH"},
           Case{"a[b] c", "x", "ax | c"},
           Case{"[all]", "", " |"},
           Case{"a|\xA0z", "\xE9", "a\xE9 |\xA0z"},
       }) {
    GivenSayData(expected.before);
    window->InsertIntoSayData(expected.text);
    EXPECT_EQ(SayData(), expected.after) << expected.before;
    const std::string after = SayDataBox()->Text();
    Press("btnClear");
    EXPECT_EQ(SayData(), "|");
    QTest::keyClick(SayDataBox(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SayDataBox()->Text(), after);
    QTest::keyClick(SayDataBox(), Qt::Key_Z, Qt::ControlModifier);
    const std::string before = SayDataBox()->Text();
    GivenSayData(expected.before);
    EXPECT_EQ(before, SayDataBox()->Text());
  }
}

TEST_F(FrmPhraseTest, ShutsUpInMidPhrase) {
  Open();
  GivenSayData("\\IY \\EH \\AX \\OW|");
  port.onByte = [this] {
    if (port.written.size() == 10) {
      QTimer::singleShot(0, window.get(), [this] { Press("btnShutUp"); });
    }
  };
  Press("bntSayIt");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80\x83" + Stop);
  EXPECT_TRUE(Get<QPushButton>("bntSayIt")->isEnabled());
}

TEST_F(FrmPhraseTest, DisablesTheButtonThatIsAtWorkAndTakesKeysForTheSayData) {
  Open();
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
  EXPECT_NE(window->cursor().shape(), Qt::WaitCursor);
}

TEST_F(FrmPhraseTest, ClosesWhileTheLineIsHeldBackForEver) {
  Open();
  port.isHeldBack = true;
  GivenSayData("\\IY|");
  WhileSending([this] {
    Press("btnDone");
    EXPECT_TRUE(window->IsUnloaded());
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(shared.PhraseToMove, "\\IY");
    sender.CloseSerialPort();
  });
  Press("bntSayIt");
  EXPECT_FALSE(sender.IsSending());
  EXPECT_EQ(Sent(), "");
}

TEST_F(FrmPhraseTest, DoesNothingMoreWhenItIsClosedAsAnActionBegins) {
  for (const char* button : {"bntSayIt", "btnSaySelection", "btnCodes", "Command2"}) {
    Open();
    QTimer::singleShot(0, window.get(), [this] { window->close(); });
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

TEST_F(FrmPhraseTest, SurvivesAPortThatVanishesInMidPhrase) {
  Open();
  port.bytesUntilFailure = 9;
  GivenSayData("\\IY \\EH|");
  Press("bntSayIt");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80");
  EXPECT_EQ(host.portState, PortState::Failed);
  port.bytesUntilFailure = -1;
  Press("bntSayIt");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80\x83");
}

TEST_F(FrmPhraseTest, KeepsWhatLiesOutsideItsFrameOutOfReach) {
  Open();
  for (const char* name : {"Command1(141)", "txtfindwith"}) {
    EXPECT_TRUE(Get<QWidget>(name)->isHidden()) << name;
  }
  int hidden = 0;
  for (const QWidget* control : window->findChildren<QWidget*>()) {
    hidden += control->isHidden() && !control->objectName().startsWith("qt_") ? 1 : 0;
  }
  EXPECT_EQ(hidden, 2);
}

}  // namespace
}  // namespace loquitor::testing
