#include <QRegularExpression>
#include <QWheelEvent>
#include <random>

#include "tests/support/window_test.h"
#include "ui/main/frm_utility.h"

namespace loquitor::testing {
namespace {

/// Random numbers, the same each time for the same seed.
class RandomNumbers {
 public:
  explicit RandomNumbers(unsigned zSeed) : numbers_(zSeed) {}

  /// From 0 to `zBelow` - 1; 0 for 0.
  int Random(std::size_t zBelow) { return zBelow == 0 ? 0 : static_cast<int>(numbers_() % zBelow); }
  int Random(int zBelow) { return Random(static_cast<std::size_t>(zBelow)); }
  bool Chance(int zOneIn) { return Random(zOneIn) == 0; }

 private:
  std::mt19937 numbers_;
};

/// Someone who clicks, types, drags and closes whatever is in front, without a plan.
class RestlessUser : public QObject {
 public:
  RestlessUser(QWidget* zMainWindow, RandomNumbers& zRandom, int zActions)
      : mainWindow_(zMainWindow), random_(zRandom), left_(zActions) {}

  void Start() { ScheduleNext(); }
  int ActionsLeft() const { return left_; }

  /// Happens now and then between two actions.
  std::function<void()> onMishap;

 private:
  void ScheduleNext() {
    QTimer::singleShot(0, this, [this] { Act(); });
  }

  void Act() {
    if (left_ == 0) {
      CloseEverything();
      return;
    }
    --left_;
    if (Chance(40)) {
      onMishap();
    }
    ScheduleNext();  // first: the action may open a window and not return before it is closed
    QWidget* window = QApplication::activeModalWidget();
    if (window != nullptr && Chance(80)) {
      window->close();
    } else {
      ActOn(RandomControl(window != nullptr ? window : mainWindow_));
    }
  }

  /// Window by window, as a person does, or all at once, as the end of a session does.
  void CloseEverything() {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr || Chance(3)) {
      mainWindow_->close();
    } else {
      ScheduleNext();
      window->close();
    }
  }

  /// Any control except the one that would end the program.
  QWidget* RandomControl(QWidget* zWindow) {
    QWidgetList controls;
    for (QWidget* control : zWindow->findChildren<QWidget*>()) {
      const bool endsTheProgram = zWindow == mainWindow_ && control->objectName() == "btnDone";
      if (control->isVisible() && control->isEnabled() && !endsTheProgram) {
        controls.push_back(control);
      }
    }
    return controls.isEmpty() ? zWindow : controls[Random(static_cast<int>(controls.size()))];
  }

  void ActOn(QWidget* zControl) {
    const QPoint point(Random(zControl->width()), Random(zControl->height()));
    switch (Random(6)) {
      case 0:
      case 1:
        QTest::mouseClick(zControl, Qt::LeftButton, {}, point);
        return;
      case 2:
        QTest::mouseDClick(zControl, Qt::LeftButton, {}, point);
        return;
      case 3:
        Drag(zControl, point);
        return;
      case 4:
        TurnWheel(zControl, point);
        return;
      default:
        PressKey(zControl);
    }
  }

  void Drag(QPointer<QWidget> zControl, QPoint zFrom) {
    QTest::mousePress(zControl, Qt::LeftButton, {}, zFrom);
    for (int move = 0; move < 5 && zControl; ++move) {
      QTest::mouseMove(zControl, {Random(zControl->width()), Random(zControl->height())});
    }
    if (zControl) {
      QTest::mouseRelease(zControl, Qt::LeftButton, {}, zFrom);
    }
  }

  void TurnWheel(QWidget* zControl, QPoint zAt) {
    QWheelEvent turn(zAt, zControl->mapToGlobal(zAt), {}, {0, Chance(2) ? 120 : -120}, {}, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(zControl, &turn);
  }

  void PressKey(QWidget* zControl) {
    static constexpr Qt::Key keys[] = {
        Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Space,    Qt::Key_Return, Qt::Key_Escape,
        Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Insert,
        Qt::Key_Home, Qt::Key_End,     Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_F3};
    if (Chance(2)) {
      QTest::keyClick(zControl, keys[Random(std::size(keys))]);
    } else if (Chance(4)) {
      QTest::keyClick(zControl, Chance(2) ? Qt::Key_Z : Qt::Key_A, Qt::ControlModifier);
    } else {
      QTest::keyClick(zControl, static_cast<char>(' ' + Random(95)));
    }
  }

  int Random(std::size_t zBelow) { return random_.Random(zBelow); }
  int Random(int zBelow) { return random_.Random(zBelow); }
  bool Chance(int zOneIn) { return random_.Chance(zOneIn); }

  QWidget* mainWindow_;
  RandomNumbers& random_;
  int left_;
};

/// Answers each question with any of its buttons.
class RashPrompts : public Prompts {
 public:
  explicit RashPrompts(RandomNumbers& zRandom) : random_(zRandom) {}

  PromptAnswer Ask(QWidget*, const QString&, const QString& zText,
                   PromptButtons zButtons) override {
    asked.push_back(zText);
    if (zButtons == PromptButtons::Ok) {
      return PromptAnswer::Ok;
    }
    const bool canCancel = zButtons != PromptButtons::YesNo;
    if (canCancel && random_.Chance(3)) {
      return PromptAnswer::Cancel;
    }
    return zButtons == PromptButtons::OkCancel ? PromptAnswer::Ok
           : random_.Chance(2)                 ? PromptAnswer::Yes
                                               : PromptAnswer::No;
  }

  std::optional<QString> AskText(QWidget*, const QString&, const QString& zPrompt,
                                 const QString& zInitial) override {
    asked.push_back(zPrompt);
    return random_.Chance(3)   ? std::nullopt
           : random_.Chance(2) ? std::optional(zInitial)
                               : QStringLiteral("o");
  }

  std::vector<QString> asked;

 private:
  RandomNumbers& random_;
};

/// Whether a user whose disk is in order can come across this box.
bool MayBeAsked(const QString& zText) {
  static const QRegularExpression boxes(
      "^(Find:|“.*” was not found|\\d+ Words added|Must select either With Data|No word |Every "
      "word of the dictionary has data|The dictionary holds no words|"
      "Cannot save mutil-word|A dictionary word cannot|This control code will cause|Nothing was "
      "(sent|written)|"
      "If you do not know|Do you want|The detune value|EEPROM Phrases too large|"
      "Type the name of the sound|Flow Control is currently disabled)",
      QRegularExpression::DotMatchesEverythingOption);
  return boxes.match(zText).hasMatch();
}

/// A number from the environment, for longer runs by hand.
int Given(const char* zVariable, int zDefault) {
  return qEnvironmentVariableIsSet(zVariable) ? qEnvironmentVariableIntValue(zVariable) : zDefault;
}

class RandomActions : public WindowTest {
 protected:
  RandomActions() {
    std::string entries = "cat=\\KE \\AY \\TT\r\ndog=\\DO \\AW \\OG\r\nempty=\r\nlong=";
    for (int copies = 0; copies < 200; ++copies) {
      entries += "\\IY";
    }
    GivenDictionary(entries + "\r\n");
    std::filesystem::current_path(folder.Path());
    WriteBytes(folder / "ImportWords.txt", "cat mouse don't\n");
    std::string ports = "[Ports]\r\n";
    for (int number = 1; number < 200; ++number) {
      ports += std::to_string(number) + "=" + (folder / "line").string() + "\r\n";
    }
    WriteBytes(folder / "Loquitor.ini", ports + "[EEPROM]\r\nPhrase0=cat long dog\r\n");
  }
  ~RandomActions() override { std::filesystem::current_path("/"); }

  /// Ten times: opens the program over `zPort`, acts, and closes it whatever it is doing then.
  /// `zMishap` happens to the line now and then.
  void RunProgram(SerialPort& zPort, int zActions, const std::function<void()>& zMishap) {
    constexpr int rounds = 10;
    for (int round = 0; round < rounds; ++round) {
      settings.SaveIniValue("Serial", "Port", "1");  // nonsense typed before would stay
      frmUtility mainWindow(zPort, settings, dictionary, rash);
      mainWindow.Open();
      RestlessUser user(&mainWindow, random, zActions / rounds);
      user.onMishap = zMishap;
      user.Start();
      ASSERT_TRUE(QTest::qWaitFor([&] { return !mainWindow.isVisible(); }, 240'000));
      ASSERT_EQ(QApplication::activeModalWidget(), nullptr);
      ASSERT_EQ(user.ActionsLeft(), 0);
      ASSERT_FALSE(zPort.IsOpen());
      ASSERT_FALSE(mainWindow.Context().sender.IsSending());
    }
    for (const QString& text : rash.asked) {
      EXPECT_TRUE(MayBeAsked(text)) << text.toStdString();
    }
  }

  RandomNumbers random{static_cast<unsigned>(Given("LOQUITOR_RANDOM_SEED", 20261122))};
  RashPrompts rash{random};
};

TEST_F(RandomActions, AreSurvivedOverALineThatFailsInEveryWay) {
  std::size_t opened = 0;
  const auto change = [&] {
    port.isHeldBack = random.Chance(3);
    port.unsentBytes = random.Chance(4) ? 5 : 0;
    port.refusesToOpen = random.Chance(4);
    port.bytesUntilFailure = random.Chance(4) ? random.Random(300) : -1;
    if (port.IsOpen() && random.Chance(4)) {
      port.Vanish();
    }
    opened = port.opened.size();
  };
  RunProgram(port, Given("LOQUITOR_RANDOM_ACTIONS", 2000), change);
  EXPECT_GT(opened, 10u) << "hardly anything was sent";
}

}  // namespace
}  // namespace loquitor::testing
