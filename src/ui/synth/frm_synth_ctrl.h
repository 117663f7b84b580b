#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "core/synth_registers.h"
#include "files/sound_library.h"
#include "ui/controls/form.h"
#include "ui/synth/register_writer.h"
#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

namespace loquitor {

class BarAndBox;
class OptionGroup;
class SoundNameBox;

/// The window in which the synthesizer is played by hand. Every change of a value is sent to the
/// chip at once, as one register write. Opening and closing the window leave the chip reset and
/// quiet. While the last writes go out after closing, for 3 seconds at most, no other window takes
/// user input.
///
/// Events run during every write. A handler that changes several controls sets all of them before
/// the first write, so that the handlers that run in those events see the whole change.
class FrmSynthCtrl : public ToolWindow {
  Q_OBJECT
 public:
  FrmSynthCtrl(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;
  void Unload() override;
  void changeEvent(QEvent* zEvent) override;

 private:
  void ConnectValueControls();
  void ConnectTools();
  void ConnectButtons();
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

  void SetTogether(const std::function<void()>& zChange);
  int ShownValue(int zRegister) const;
  BarAndBox& Control(int zRegister) const;
  BarAndBox& Frequency(int zOscillator) const {
    return Control(synth::FrequencyRegister(zOscillator));
  }
  BarAndBox& Volume(int zOscillator) const { return Control(synth::VolumeRegister(zOscillator)); }
  bool IsNameUsable();
  void MarkHFreq(bool zIsMarked);

  EditorContext context_;
  SoundLibrary library_;
  RegisterWriter writer_;
  Form form_;
  std::array<BarAndBox*, synth::RegisterCount> controls_{};  // by register
  OptionGroup* envelopeTypes_ = nullptr;
  SoundNameBox* soundName_ = nullptr;
  std::array<std::int32_t, synth::ToneCount + 1> FreqAdjBase_{};  // by oscillator
  std::array<std::int16_t, synth::ToneCount + 1> VolAdjBase_{};
  std::optional<UserInputHold> closingHold_;  // from closing until the last byte has gone out
};

}  // namespace loquitor
