#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "sim/virtual_chip.h"
#include "tests/support/window_test.h"
#include "ui/synth/frm_synth_ctrl.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/scroll_bar.h"
#include "ui/toolkit/text_box.h"

namespace loquitor::testing {

/// Register writes, number and value, as they stand on the line.
inline std::string Writes(std::initializer_list<std::pair<int, int>> zWrites) {
  std::string bytes;
  for (const auto& [number, value] : zWrites) {
    bytes += "\\0" + std::to_string(number) + "J " + std::to_string(value) + "NX";
  }
  return bytes;
}

/// What opening the window sends: the reset and fourteen writes.
inline std::string OpeningBytes() {
  return "\\0RX" + Writes({{11, 0},
                           {12, 0},
                           {13, 0},
                           {14, 0},
                           {15, 0},
                           {0, 88},
                           {1, 0},
                           {2, 0},
                           {3, 0},
                           {4, 0},
                           {5, 0},
                           {6, 0},
                           {7, 96},
                           {8, 0}});
}

/// The synth control window on a scripted port.
class SynthTest : public WindowTest {
 protected:
  /// Opens the window and lets it send; `opening` is what it sent.
  void GivenOpenWindow() {
    window = std::make_unique<FrmSynthCtrl>(nullptr, context);
    window->Open();
    LetRun();
    opening = Sent();
  }

  static void LetRun() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }

  template <class T>
  T* The(const QString& zName) const {
    T* control = window->findChild<T*>(zName);
    if (control == nullptr) {
      throw std::runtime_error("no control " + zName.toStdString());
    }
    return control;
  }
  ScrollBar* Bar(const QString& zName) const { return The<ScrollBar>(zName); }
  TextBox* Box(const QString& zName) const { return The<TextBox>(zName); }
  int Value(const QString& zBar) const { return Bar(zBar)->value(); }

  void Press(const char* zButton) {
    The<QAbstractButton>(zButton)->click();
    LetRun();
  }

  /// Types into a box and leaves it by Tab.
  void Enter(const char* zBox, const QString& zText) {
    Box(zBox)->setFocus(Qt::TabFocusReason);
    Box(zBox)->selectAll();
    QTest::keyClicks(Box(zBox), zText);
    QTest::keyClick(Box(zBox), Qt::Key_Tab);
    LetRun();
  }

  /// Sets the bars 1, 2 and so on of a kind and forgets what that sent.
  void Given(const char* zStem, std::initializer_list<int> zValues) {
    int index = 1;
    for (const int value : zValues) {
      Bar(Indexed(zStem, index++))->setValue(value);
    }
    static_cast<void>(Sent());
  }

  std::vector<int> Values(const char* zStem) const {
    std::vector<int> values;
    for (int i = 1; i <= synth::OscillatorCount; ++i) {
      values.push_back(Value(Indexed(zStem, i)));
    }
    return values;
  }

  /// The chip holds what the window shows.
  void ExpectShown(const VirtualChip& zChip) const {
    for (int i = 1; i <= synth::OscillatorCount; ++i) {
      EXPECT_EQ(zChip.Register(i), Value(Indexed("scFreq", i))) << "frequency " << i;
      EXPECT_EQ(zChip.Register(10 + i), Value(Indexed("scVol", i))) << "volume " << i;
    }
    EXPECT_EQ(zChip.Register(0), Value("scEnvolopeFreq"));
    EXPECT_EQ(zChip.Register(6), Value("scLevel(0)"));
    EXPECT_EQ(zChip.Register(7), Value("scLevel(1)"));
    int envelope =
        64 * The<CheckBox>("Check2(1)")->Value() + 128 * The<CheckBox>("Check2(0)")->Value();
    for (int type = 1; type <= 3; ++type) {
      envelope += The<OptionButton>(Indexed("Option1", type))->isChecked() ? type : 0;
    }
    EXPECT_EQ(zChip.Register(8), envelope);
  }

  std::unique_ptr<FrmSynthCtrl> window;
  std::string opening;
};

}  // namespace loquitor::testing
