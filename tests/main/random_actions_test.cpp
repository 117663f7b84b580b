#include <gmock/gmock.h>

#include <QRegularExpression>
#include <QTimer>
#include <QWheelEvent>
#include <random>

#include "tests/support/window_test.h"
#include "ui/main/frm_utility.h"
#include "ui/toolkit/tool_window.h"

namespace loquitor::testing {
namespace {

constexpr int ActionCount = 2000;

/// Someone who clicks, types, drags and closes whatever is in front, without a plan but with the
/// same luck each time.
class RestlessUser : public QObject {
 public:
  RestlessUser(QWidget* zMainWindow, unsigned zSeed) : mainWindow_(zMainWindow), luck_(zSeed) {}

  void Start() { ScheduleNext(); }
  int ActionsDone() const { return done_; }

 private:
  void ScheduleNext() {
    QTimer::singleShot(0, this, [this] { Act(); });
  }

  void Act() {
    if (done_ == ActionCount) {
      CloseEverything();
      return;
    }
    ++done_;
    ScheduleNext();  // first: the action may open a window and not return before it is closed
    QWidget* window = QApplication::activeModalWidget();
    if (window != nullptr && Chance(80)) {
      window->close();
    } else {
      ActOn(RandomControl(window != nullptr ? window : mainWindow_));
    }
  }

  void CloseEverything() {
    if (QWidget* window = QApplication::activeModalWidget()) {
      ScheduleNext();
      window->close();
    } else {
      mainWindow_->close();
    }
  }

  /// Any control but the one that would end the program.
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

  int Random(std::size_t zBelow) { return zBelow == 0 ? 0 : static_cast<int>(luck_() % zBelow); }
  int Random(int zBelow) { return Random(static_cast<std::size_t>(zBelow)); }
  bool Chance(int zOneIn) { return Random(zOneIn) == 0; }

  QWidget* mainWindow_;
  std::mt19937 luck_;
  int done_ = 0;
};

/// Whether a restless user, whose disk and port are in order, can have brought up the box himself.
bool MayBeAsked(const QString& zText) {
  static const QRegularExpression boxes(
      "^(Find:|“.*” was not found|\\d+ Words added|Must select either With Data|No word |Every "
      "word of the dictionary has data|The dictionary holds no words|"
      "Cannot save mutil-word|This control code will cause|Nothing was (sent|written)|"
      "If you do not know|Do you want|The detune value|EEPROM Phrases too large|"
      "Type the name of the sound|Flow Control is currently disabled)",
      QRegularExpression::DotMatchesEverythingOption);
  return boxes.match(zText).hasMatch();
}

TEST_F(WindowTest, SurvivesTwoThousandRandomActionsWithoutABoxThatNobodyAskedFor) {
  GivenDictionary("cat=\\KE \\AY \\TT\r\ndog=\\DO \\AW \\OG\r\nempty=\r\n");
  std::filesystem::current_path(folder.Path());
  WriteBytes(folder / "ImportWords.txt", "cat mouse don't\n");
  frmUtility mainWindow(port, settings, dictionary, prompts);
  mainWindow.Open();
  RestlessUser user(&mainWindow, 20261122);
  user.Start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !mainWindow.isVisible(); }, 240'000));

  EXPECT_EQ(user.ActionsDone(), ActionCount);
  EXPECT_FALSE(port.IsOpen());
  for (const ScriptedPrompts::Asked& asked : prompts.asked) {
    EXPECT_TRUE(MayBeAsked(asked.text)) << asked.text.toStdString();
  }
}

}  // namespace
}  // namespace loquitor::testing
