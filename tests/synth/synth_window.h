#pragma once

#include <initializer_list>
#include <utility>

#include "sim/virtual_chip.h"
#include "tests/support/window_test.h"
#include "ui/synth/frm_synth_ctrl.h"

namespace loquitor::testing {

inline const std::string Reset = "\\0RX";

/// Register writes, number and value, as they are on the line.
inline std::string Writes(std::initializer_list<std::pair<int, int>> zWrites) {
  std::string bytes;
  for (const auto& [number, value] : zWrites) {
    bytes += "\\0" + std::to_string(number) + "J " + std::to_string(value) + "NX";
  }
  return bytes;
}

/// The synth control window on a scripted port.
class SynthTest : public ToolWindowTest {
 protected:
  /// Opens the window and lets it send; `opening` is what it sent.
  void GivenOpenWindow() {
    Open<FrmSynthCtrl>();
    LetRun();
    opening = Sent();
  }

  /// Sets the bars 1, 2 and so on of a kind, and drops what that sent.
  void Given(const char* zStem, const std::vector<int>& zValues) {
    int index = 1;
    for (const int value : zValues) {
      Bar(Indexed(zStem, index++))->setValue(value);
    }
    static_cast<void>(Sent());
  }

  /// Puts sounds into the library and the name of one into its box.
  void GivenSounds(const char* zName, std::string_view zSounds) {
    WriteBytes(Library(), zSounds);
    Box("txtSound")->setText(zName);
  }

  static void LetRun() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }

  std::filesystem::path Library() const { return folder / "OTSounds.txt"; }
  int Value(const QString& zBar) { return Bar(zBar)->value(); }
  QColor Colour(const QString& zBox) { return ColourOf(Box(zBox)); }
  void Press(const QString& zButton) { Get<QAbstractButton>(zButton)->click(); }

  std::vector<int> Values(const char* zStem) {
    std::vector<int> values;
    for (int i = 1; i <= synth::OscillatorCount; ++i) {
      values.push_back(Value(Indexed(zStem, i)));
    }
    return values;
  }

  /// Expects that a chip that has received `zBytes` holds what the window shows.
  void ExpectShown(const std::string& zBytes) {
    VirtualChip chip;
    chip.Receive(zBytes);
    EXPECT_FALSE(chip.Pending().has_value());
    for (int i = 1; i <= synth::OscillatorCount; ++i) {
      EXPECT_EQ(chip.Register(i), Value(Indexed("scFreq", i))) << i;
      EXPECT_EQ(chip.Register(10 + i), Value(Indexed("scVol", i))) << i;
    }
    EXPECT_EQ(chip.Register(0), Value("scEnvolopeFreq"));
    EXPECT_EQ(chip.Register(6), Value("scLevel(0)"));
    EXPECT_EQ(chip.Register(7), Value("scLevel(1)"));
    int type = 3;
    while (!Get<OptionButton>(Indexed("Option1", type))->isChecked()) {
      --type;
    }
    EXPECT_EQ(chip.Register(8), type + 64 * Get<CheckBox>("Check2(1)")->Value() +
                                    128 * Get<CheckBox>("Check2(0)")->Value());
  }

  std::string opening;
};

class OpenSynthTest : public SynthTest {
 protected:
  void SetUp() override { GivenOpenWindow(); }
};

}  // namespace loquitor::testing
