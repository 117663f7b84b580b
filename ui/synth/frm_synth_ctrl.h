#pragma once

#include <QStringList>
#include <array>
#include <cstdint>
#include <functional>

#include "link/sound_library.h"
#include "ui/synth/register_writer.h"
#include "ui/synth/synth_registers.h"
#include "ui/toolkit/editor_context.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/tool_window.h"

namespace loquitor {

class CheckBox;
class OptionGroup;
class ScrollBar;
class TextBox;

/// The window in which the synthesizer is played by hand: every change of a value goes to the chip
/// at once, as one register write. Opening and closing leave the chip reset and quiet.
///
/// Handlers of several steps (Shut Up, Load, Harmonise, the adjust tools) live through the events
/// that each write lets run. Each step therefore reads the controls as they are then, and a handler
/// ends early where a newer one has set all oscillators meanwhile.
class FrmSynthCtrl : public ToolWindow {
  Q_OBJECT
 public:
  FrmSynthCtrl(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;
  void Unload() override;
  void changeEvent(QEvent* zEvent) override;

 private:
  /// A register's bar and the box that shows its value.
  struct ValueControl {
    ScrollBar* bar = nullptr;
    TextBox* box = nullptr;
  };

  void ConnectValueControls();
  void ConnectTools();
  void ConnectButtons();
  QStringList SoundNames() const;
  void AddValueControl(int zRegister, const QString& zBar, const QString& zBox,
                       const std::function<void()>& zChanged);

  void scFreq_Change(int zIndex);
  void scVol_Change(int zIndex);
  void scLevel_Change(int zIndex);
  void scEnvolopeFreq_Change();
  void ValueBox_LostFocus(int zRegister);
  void SendEnvelopeSettings();
  void Command1_Click();
  void FreqAdj_Rebase();
  void VolAdj_Rebase();
  void scFreqAdjTone_Change();
  void scVolAdjTone_Change();
  void btnLoad_Click();
  void btnSave_Click();
  void btnShutUp_Click();
  void txtHFreq_Change();

  void SendRegisterLevelToOrvatone(int zRegister, int zLevel);
  void SendOscillatorVolumeToOrvatone(int zOscillator, int zVolume);
  void SendOscillatorFrequencyToOrvatone(int zOscillator, int zFrequency);
  void SendEnvolopeControlToOrvatone(std::uint8_t zControlValue);
  std::uint8_t GetEnvolopeCtrlValue() const;
  void CheckVolumeLimits();
  void SynthShutUp();

  void WriteRegister(int zRegister, int zValue);
  void EnterText(int zRegister);
  void ShowValue(int zRegister);
  int ShownValue(int zRegister) const;
  ScrollBar* scFreq(int zIndex) const;
  ScrollBar* scVol(int zIndex) const;
  bool IsNameUsable();
  void MarkHFreq(bool zIsMarked);

  EditorContext context_;
  SoundLibrary library_;
  RegisterWriter writer_;
  Form form_;
  std::array<ValueControl, 16> valueControls_{};  // by register
  OptionGroup* envelopeTypes_ = nullptr;
  std::array<std::int32_t, synth::ToneCount + 1> FreqAdjBase_{};  // by oscillator
  std::array<std::int16_t, synth::ToneCount + 1> VolAdjBase_{};
  int oscillatorTurn_ = 0;  // how often all oscillators have been set at once
  bool isFocusOnItsWay_ = false;
};

}  // namespace loquitor
