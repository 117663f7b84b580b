#include "ui/main/frm_utility.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QToolTip>

#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

constexpr const char* Ports = "[Ports]\r\n1=/scripted/one\r\n7=/scripted/seven\r\n";
const std::string TestBytes = "\x1F\\0VX";

class MainWindow : public ToolWindowTest {
 protected:
  void TearDown() override { QApplication::closeAllWindows(); }

  /// The program starts; its settings file holds two devices and `zSettings`.
  void Start(const std::string& zSettings = "") {
    WriteBytes(folder / "Loquitor.ini", Ports + zSettings);
    main.emplace(port, settings, dictionary, prompts);
    main->Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*main));
  }
  QWidget* Front() override { return &*main; }

  /// The whole name of a device that the settings file holds. On Windows it begins with the drive.
  std::string Scripted(const std::string& zName) const {
    return (folder.Path() / ("/scripted/" + zName)).generic_string();
  }
  QColor BoxColour() { return ColourOf(Box("txtComPort")); }
  void LeavePortBox() {
    Box("txtComPort")->setFocus();
    QTest::keyClick(Box("txtComPort"), Qt::Key_Tab);
  }

  /// What the mouse over the port box shows.
  std::string PortTooltip() {
    auto* box = Get("txtComPort");
    QHelpEvent hover(QEvent::ToolTip, {3, 3}, box->mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(box, &hover);
    return box->toolTip().toStdString();
  }

  static ToolWindow* Modal() {
    return qobject_cast<ToolWindow*>(QApplication::activeModalWidget());
  }

  std::optional<frmUtility> main;
};

const QColor White(255, 255, 255);
const QColor Green(0, 255, 0);
const QColor Red(255, 0, 0);

TEST_F(MainWindow, LoadsTheStoredSettingsOrTheDefaultsAndOpensNoPort) {
  const Rows<const char*, const char*, int> rows = {
      {"", "1", 1},
      {"[Serial]\r\nPort=7\r\nFlowControl=0\r\n", "7", 0},
      {"[serial]\r\nport=abc\r\nflowcontrol=1\r\n", "abc", 1},
      {"[Serial]\r\nPort=\r\nFlowControl=2\r\n", "1", 0},
      {"[Serial]\r\nFlowControl=7\r\n", "1", 1},
      {"[Serial]\r\nFlowControl=yes\r\n", "1", 1}};
  for (const auto& [stored, number, flow] : rows) {
    Start(stored);
    EXPECT_EQ(Box("txtComPort")->Text(), number) << stored;
    EXPECT_EQ(Get<CheckBox>("chkFlow")->Value(), flow) << stored;
    EXPECT_EQ(BoxColour(), White);
    EXPECT_EQ(main->Context().codeTable.GetCodeIndex("\\IY"), 128);
  }
  EXPECT_TRUE(port.opened.empty());
}

TEST_F(MainWindow, StoresItsSettingsOnceHoweverItIsClosed) {
  for (const bool isByButton : {true, false}) {
    Start();
    Type("txtComPort", "7");
    Get<CheckBox>("chkFlow")->SetValue(0);
    isByButton ? Click("btnDone") : static_cast<void>(main->close());
    EXPECT_FALSE(main->isVisible());
    const std::string stored = std::string(Ports) + "[Serial]\r\nPort=7\r\nFlowControl=0\r\n";
    EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), stored);
    WriteBytes(folder / "Loquitor.ini", "untouched");
    main->close();
    EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), "untouched");
  }
}

TEST_F(MainWindow, TheTestTurnsTheBoxGreenAndTheTimerWhiteAgain) {
  Start();
  auto* timer = Get<QTimer>("Timer1");
  EXPECT_FALSE(timer->isActive());
  Click("cmdTestSerialPort");
  EXPECT_EQ(port.TakeWritten(), TestBytes);
  EXPECT_EQ(port.opened.back().device, Scripted("one"));
  EXPECT_FALSE(port.opened.back().hardwareHandshaking);
  EXPECT_EQ(BoxColour(), Green);
  EXPECT_EQ(timer->interval(), 1000);
  EXPECT_TRUE(timer->isActive());
  timer->setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !port.IsOpen(); }));
  EXPECT_EQ(BoxColour(), White);
  EXPECT_EQ(timer->interval(), 0);
  EXPECT_FALSE(timer->isActive());
}

TEST_F(MainWindow, APortThatCannotBeOpenedTurnsRedUntilTheBoxIsLeft) {
  std::vector<const char*> numbers = {"0", "-1", "abc", "", "99999999999", "1e300"};
#ifndef _WIN32  // where this is COM200
  numbers.push_back("200");
#endif
  for (const char* number : numbers) {
    Start();
    Type("txtComPort", number);
    Click("cmdTestSerialPort");
    EXPECT_EQ(BoxColour(), Red) << number;
    LeavePortBox();
    EXPECT_EQ(BoxColour(), White) << number;
  }
  EXPECT_TRUE(port.opened.empty());
  port.refusesToOpen = true;
  Start();
  Click("cmdTestSerialPort");
  EXPECT_EQ(BoxColour(), Red);
  EXPECT_EQ(port.TakeWritten(), "");
}

TEST_F(MainWindow, LeavingThePortBoxClosesThePortAndTheNextSendOpensTheNewOne) {
  Start();
  Click("cmdTestSerialPort");
  Type("txtComPort", " 7 ");
  EXPECT_TRUE(port.IsOpen());
  LeavePortBox();
  EXPECT_FALSE(port.IsOpen());
  EXPECT_EQ(BoxColour(), White);
  Click("cmdTestSerialPort");
  EXPECT_EQ(port.opened.back().device, Scripted("seven"));
}

TEST_F(MainWindow, TheTooltipOfThePortBoxListsThePresentPorts) {
  Start();
  WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n3=/dev/null\r\n");
  EXPECT_THAT(PortTooltip(), ::testing::HasSubstr("/dev/null"));
}

class PortFailures : public MainWindow {
 protected:
  /// The hint that is shown at the test button, or soon will be.
  QString AwaitHint() {
    static_cast<void>(QTest::qWaitFor([] { return QToolTip::isVisible(); }, 300));
    return Get("cmdTestSerialPort")->accessibleDescription();
  }
  void ForgetHint() {
    QToolTip::hideText();
    ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    Get("cmdTestSerialPort")->setAccessibleDescription({});
  }
  QString Tooltip() {
    const std::string text = PortTooltip();
    ForgetHint();
    return QString::fromStdString(text);
  }
};

TEST_F(PortFailures, AreToldAtTheLastUsedControlAndInTheTooltipOfTheBoxWhileItIsRed) {
  const QString inUse =
      QString::fromStdString("Port 1: " + Scripted("one") + " is in use by another program.");
  Start();
  port.refusesToOpen = true;
  Click("cmdTestSerialPort");
  EXPECT_EQ(AwaitHint(), inUse);
  EXPECT_TRUE(Tooltip().startsWith(inUse + "\n\n"));
  LeavePortBox();
  EXPECT_FALSE(Tooltip().contains(inUse));
  Type("txtComPort", " x");
  Click("cmdTestSerialPort");
  EXPECT_TRUE(AwaitHint().startsWith("Port x: no device has this number.\n"));
  Type("txtComPort", "<b>" + QString(30, 'x'));
  Click("cmdTestSerialPort");
  EXPECT_TRUE(AwaitHint().startsWith("Port <b>xxxxxxxxxxxxxxxxx: no device"));
  EXPECT_TRUE(Tooltip().contains("Port &lt;b&gt;xxxxxxxxxxxxxxxxx: no device"));
}

TEST_F(PortFailures, WaitForTheReleaseOfTheMouseWhichWouldHideTheHint) {
  Start();
  port.refusesToOpen = true;
  QTest::mousePress(Get("cmdTestSerialPort"), Qt::LeftButton);
  main->Context().sender.SendCodesToOrvatone("x", false);
  EXPECT_EQ(AwaitHint(), "");
  QTest::mouseRelease(Get("cmdTestSerialPort"), Qt::LeftButton);
  EXPECT_NE(AwaitHint(), "");
}

TEST_F(PortFailures, OfALostPortAreToldOnlyDuringASend) {
  Start();
  Click("cmdTestSerialPort");
  port.Vanish();
  EXPECT_EQ(AwaitHint(), "");
  const QString failed = QString::fromStdString("Port 1: " + Scripted("one") + " failed.");
  EXPECT_TRUE(Tooltip().startsWith(failed));
  port.bytesUntilFailure = 2;
  Click("cmdTestSerialPort");
  EXPECT_TRUE(AwaitHint().startsWith(failed));
}

TEST_F(MainWindow, AsksBeforeALongPhraseWithoutFlowControl) {
  Start("[Serial]\r\nFlowControl=0\r\n");
  CodeSender& its = main->Context().sender;
  prompts.answers = {PromptAnswer::No, PromptAnswer::Yes};
  its.SendCodesToOrvatone(std::string(65, '\x05'), true);
  EXPECT_EQ(port.TakeWritten(), "");
  its.SendCodesToOrvatone(std::string(65, '\x05'), true);
  EXPECT_EQ(port.TakeWritten().size(), 65U);
  ASSERT_EQ(prompts.asked.size(), 2U);
  EXPECT_EQ(prompts.asked[0].title, "Notice");
  EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::YesNo);
  EXPECT_EQ(prompts.asked[0].text,
            "Flow Control is currently disabled. -AND-\r\n"
            "The phrase that you are about to play is longer than 64 codes.\r\n\r\n"
            "This will result in some of the codes after the 64th one to not being played.\r\n\r\n"
            "Do you still want to send it to the Orvatone.");
  Get<CheckBox>("chkFlow")->SetValue(1);
  its.CloseSerialPort();
  its.SendCodesToOrvatone(std::string(65, '\x05'), true);
  EXPECT_EQ(prompts.asked.size(), 2U);
  EXPECT_TRUE(port.opened.back().hardwareHandshaking);
}

TEST_F(MainWindow, TabVisitsTheControlsInTheirOrderAndEnterAndEscapePressNothing) {
  Start();
  EXPECT_EQ(TabOrder("EditPhrases"),
            "EditPhrases EditEEPROM btnSetSerialPort txtComPort cmdTestSerialPort btnSynth "
            "Command1 btnDictEdit btnDone chkFlow");
  for (QWidget* control : main->findChildren<QWidget*>()) {
    QTest::keyClick(control, Qt::Key_Return);
    QTest::keyClick(control, Qt::Key_Escape);
  }
  EXPECT_EQ(Modal(), nullptr);
  EXPECT_TRUE(main->isVisible());
  EXPECT_TRUE(port.opened.empty());
}

TEST_F(MainWindow, EachButtonOpensItsEditorOnce) {
  Start();
  SharedState& its = main->Context().shared;
  for (const auto& [button, editor] : {std::pair("EditPhrases", "loquitor::frmPhrase"),
                                       {"EditEEPROM", "loquitor::frmEEPROM"},
                                       {"btnSetSerialPort", "loquitor::frmButtons"},
                                       {"btnSynth", "loquitor::FrmSynthCtrl"},
                                       {"Command1", "loquitor::frmBaudRate"},
                                       {"btnDictEdit", "loquitor::frmDictEdit"}}) {
    its.PhraseToMove = its.WordToMove = "left over";
    int opened = 0;
    After(0, [&, zButton = button, zEditor = editor] {
      ASSERT_NE(Modal(), nullptr) << zButton;
      ++opened;
      EXPECT_STREQ(Modal()->metaObject()->className(), zEditor);
      EXPECT_EQ(Modal()->parentWidget(), &*main);
      EXPECT_EQ(its.PhraseToMove.empty(), zButton == std::string("EditPhrases"));
      EXPECT_EQ(its.WordToMove, its.PhraseToMove);
      const ToolWindow* first = Modal();
      Get<QAbstractButton>(zButton)->click();  // as a second click that came while it opened
      EXPECT_EQ(Modal(), first);
      Modal()->close();
    });
    Click(button);
    EXPECT_EQ(opened, 1) << button;
    EXPECT_EQ(Modal(), nullptr) << button;
  }
}

TEST_F(MainWindow, StaysUsableWhileASendOfAClosedEditorWaitsForTheLine) {
  Start();
  port.isHeldBack = true;
  std::string steps;
  After(0, [&] {
    After(0, [&] {  // a send of the editor waits for the line: it is closed, another one opened
      Modal()->close();
      EXPECT_EQ(Modal(), nullptr);
      After(0, [&] {
        steps += Modal() == nullptr ? "none " : "second ";
        Modal()->close();
        port.isHeldBack = false;
      });
      Click("btnDictEdit");
      steps += "closed ";
    });
    main->Context().sender.SendCodesToOrvatone("abc", false);
    steps += "sent ";
  });
  Click("Command1");
  EXPECT_EQ(steps, "second closed sent ");
  EXPECT_EQ(port.TakeWritten(), "abc");
}

TEST_F(MainWindow, ClosingEndsAWaitingSendAndOpensNoPortAgain) {
  Start();
  port.isHeldBack = true;
  After(0, [&] { main->close(); });
  Click("cmdTestSerialPort");
  EXPECT_FALSE(main->isVisible());
  EXPECT_FALSE(port.IsOpen());
  main->Context().sender.SendCodesToOrvatone("more of the same handler", false);
  EXPECT_EQ(port.opened.size(), 1U);
  EXPECT_EQ(port.TakeWritten(), "");
}

TEST_F(MainWindow, ASessionThatEndsUnloadsTheEditorsFirst) {
  Start();
  bool isEditorUnloaded = false;
  After(0, [&] {
    ToolWindow* editor = Modal();
    main->close();
    isEditorUnloaded = editor->IsUnloaded();
  });
  Click("btnSetSerialPort");
  EXPECT_TRUE(isEditorUnloaded);
  EXPECT_FALSE(main->isVisible());
  EXPECT_NE(ReadBytes(folder / "Loquitor.ini").find("Port=1"), std::string::npos);
}

}  // namespace
}  // namespace loquitor::testing
