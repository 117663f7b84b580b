#include "ui/synth/frm_synth_ctrl.h"

#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <string>

#include "text/number_text.h"
#include "ui/controls/bar_and_box.h"
#include "ui/controls/check_box.h"
#include "ui/controls/code_page.h"
#include "ui/controls/colours.h"
#include "ui/controls/push_button.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/text_box.h"
#include "ui/synth/sound.h"
#include "ui/synth/sound_name_box.h"
#include "ui/synth/synth_form.h"
#include "ui/synth/synth_values.h"

namespace loquitor {

namespace {

constexpr int NeutralAdjustment = 100;  // per cent
constexpr QColor OverLimit(255, 0, 0);
constexpr QColor NearLimit(255, 255, 0);

// At 2400 baud the last writes take 0.7 seconds at most.
constexpr int LongestClosing = 3000;  // milliseconds

QColor ColourOf(synth::VolumeBand zBand, const QColor& zButtonFace) {
  switch (zBand) {
    case synth::VolumeBand::Over:
      return OverLimit;
    case synth::VolumeBand::Near:
      return NearLimit;
    case synth::VolumeBand::Within:
      break;
  }
  return zButtonFace;
}

/// Why the volume boxes have the colour of `zBand`. Empty within the limit.
QString ReasonOf(synth::VolumeBand zBand, int zSum) {
  return zBand == synth::VolumeBand::Within ? QString()
                                            : QString("The three tone volumes add up to %1 of %2.")
                                                  .arg(zSum)
                                                  .arg(synth::ToneVolumeLimit);
}

QStringList SoundNames(const SoundLibrary& zLibrary) {
  QStringList names;
  for (const std::string& name : zLibrary.SoundNames()) {
    names.push_back(ToQString(name));
  }
  return names;
}

}  // namespace

FrmSynthCtrl::FrmSynthCtrl(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Synth Control"), SynthClientSize),
      context_(zContext),
      library_(zContext.settings.Folder()),
      writer_(zContext.sender, [this](int zRegister) { return ShownValue(zRegister); }),
      form_(this) {
  BuildSynthForm(form_);
  ConnectValueControls();
  ConnectTools();
  ConnectButtons();
  soundName_ =
      new SoundNameBox(form_.Get<TextBox>("txtSound"), [this] { return SoundNames(library_); });
}

void FrmSynthCtrl::ConnectValueControls() {
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    AddValueControl(synth::FrequencyRegister(i), Indexed("scFreq", i), Indexed("txtFreq", i),
                    [this, i] { scFreq_Change(i); });
    AddValueControl(synth::VolumeRegister(i), Indexed("scVol", i), Indexed("txtVol", i),
                    [this, i] { scVol_Change(i); });
  }
  for (int i = 0; i <= 1; ++i) {
    AddValueControl(synth::LevelRegister(i), Indexed("scLevel", i), Indexed("txtLevel", i),
                    [this, i] { scLevel_Change(i); });
  }
  AddValueControl(synth::EnvelopeFrequencyRegister, "scEnvolopeFreq", "txtEnvFreq",
                  [this] { scEnvolopeFreq_Change(); });
}

void FrmSynthCtrl::AddValueControl(int zRegister, const QString& zBar, const QString& zBox,
                                   const std::function<void()>& zChanged) {
  auto* control = new BarAndBox(form_.Get<ScrollBar>(zBar), form_.Get<TextBox>(zBox), this);
  controls_[static_cast<std::size_t>(zRegister)] = control;
  connect(control, &BarAndBox::Changed, this, zChanged);
  connect(control, &BarAndBox::BoxLeft, this, [this, zRegister] { ValueBox_LostFocus(zRegister); });
}

void FrmSynthCtrl::ConnectTools() {
  envelopeTypes_ = new OptionGroup(this);
  for (int i = 0; i <= 3; ++i) {
    envelopeTypes_->Add(form_.Get<OptionButton>(Indexed("Option1", i)), i);
  }
  connect(envelopeTypes_, &OptionGroup::Click, this, &FrmSynthCtrl::SendEnvelopeSettings);
  for (int i = 0; i <= 1; ++i) {
    connect(form_.Get<CheckBox>(Indexed("Check2", i)), &CheckBox::Click, this,
            &FrmSynthCtrl::SendEnvelopeSettings);
  }
  const auto addAdjustment = [this](const char* zBar, const char* zButton, auto zRebase,
                                    auto zChange) {
    auto* bar = form_.Get<ScrollBar>(zBar);
    connect(bar, &ScrollBar::GotFocus, this, zRebase);
    connect(form_.Get<PushButton>(zButton), &PushButton::clicked, this, zRebase);
    connect(bar, &ScrollBar::Change, this, zChange);
    connect(bar, &ScrollBar::Scroll, this, zChange);
  };
  addAdjustment("scFreqAdjTone", "Command3", &FrmSynthCtrl::FreqAdj_Rebase,
                &FrmSynthCtrl::scFreqAdjTone_Change);
  addAdjustment("scVolAdjTone", "Command2", &FrmSynthCtrl::VolAdj_Rebase,
                &FrmSynthCtrl::scVolAdjTone_Change);
  connect(form_.Get<TextBox>("txtHFreq"), &TextBox::textChanged, this,
          &FrmSynthCtrl::txtHFreq_Change);
}

void FrmSynthCtrl::ConnectButtons() {
  form_.OnClick("Command1", this, &FrmSynthCtrl::Command1_Click);
  form_.OnClick("btnLoad", this, &FrmSynthCtrl::btnLoad_Click);
  form_.OnClick("btnSave", this, &FrmSynthCtrl::btnSave_Click);
  form_.OnClick("btnShutUp", this, &FrmSynthCtrl::btnShutUp_Click);
  form_.OnClick("btnDone", this, &FrmSynthCtrl::close);
  form_.Get<PushButton>("btnShutUp")->SetKey(Qt::Key_F8);
}

void FrmSynthCtrl::changeEvent(QEvent* zEvent) {
  ToolWindow::changeEvent(zEvent);
  // The button face has another colour when the desktop's colours change.
  if (zEvent->type() == QEvent::PaletteChange) {
    CheckVolumeLimits();
  }
}

void FrmSynthCtrl::Load() {
  // Sent when the window is shown. While the line is held back the sends wait, and the user needs
  // the window meanwhile.
  QTimer::singleShot(0, this, [this] {
    if (!IsUnloaded()) {
      SynthShutUp();
    }
  });
}

void FrmSynthCtrl::Unload() {
  // The line may be held back forever.
  QTimer::singleShot(LongestClosing, this, [this] {
    writer_.GiveUp();
    closingHold_.reset();
  });
  closingHold_.emplace(context_.sender);
  writer_.StopSending();
  SynthShutUp();
  SendEnvolopeControlToOrvatone(0);
  if (!writer_.IsSending()) {
    closingHold_.reset();
  }
}

void FrmSynthCtrl::scFreq_Change(int zIndex) {
  SendOscillatorFrequencyToOrvatone(zIndex, Frequency(zIndex).Value());
}

void FrmSynthCtrl::scVol_Change(int zIndex) {
  SendOscillatorVolumeToOrvatone(zIndex, Volume(zIndex).Value());
  CheckVolumeLimits();
}

void FrmSynthCtrl::scLevel_Change(int zIndex) {
  SendRegisterLevelToOrvatone(zIndex, ShownValue(synth::LevelRegister(zIndex)));
}

void FrmSynthCtrl::scEnvolopeFreq_Change() {
  SendOscillatorFrequencyToOrvatone(0, ShownValue(synth::EnvelopeFrequencyRegister));
}

void FrmSynthCtrl::ValueBox_LostFocus(int zRegister) {
  // The control that takes the focus learns of it, and gets the press that moved it there, only
  // after this has returned. The write lets events run, so it has to wait. Otherwise a release
  // would come before its press, and an adjust bar would move before it has taken its bases.
  writer_.Postpone([&] { Control(zRegister).TakeText(); });
  QTimer::singleShot(0, this, [this] { writer_.SendPostponedWhenIdle(); });
}

void FrmSynthCtrl::SendEnvelopeSettings() {
  SendEnvolopeControlToOrvatone(GetEnvolopeCtrlValue());
}

void FrmSynthCtrl::txtHFreq_Change() {
  if (NumberAtStart(form_.Get<TextBox>("txtHFreq")->Text()) > 0) {
    MarkHFreq(false);
  }
}

void FrmSynthCtrl::MarkHFreq(bool zIsMarked) {
  auto* box = form_.Get<TextBox>("txtHFreq");
  const QString fault =
      zIsMarked ? QStringLiteral("Harmonise needs a number above 0 here.") : QString();
  box->SetBackground(zIsMarked ? RefusalBackground : QColor());
  box->setToolTip(fault);
  box->setAccessibleDescription(fault);
}

void FrmSynthCtrl::Command1_Click() {
  const double base = NumberAtStart(form_.Get<TextBox>("txtHFreq")->Text());
  MarkHFreq(!(base > 0));
  SetTogether([&] {
    for (int i = 1; base > 0 && i <= synth::ToneCount; ++i) {
      Frequency(i).SetValue(HarmonisedFrequency(Frequency(i).Value(), base));
    }
  });
}

void FrmSynthCtrl::FreqAdj_Rebase() {
  for (int i = 1; i <= synth::ToneCount; ++i) {
    FreqAdjBase_[static_cast<std::size_t>(i)] = Frequency(i).Value();
  }
  form_.Get<ScrollBar>("scFreqAdjTone")->setValue(NeutralAdjustment);
}

void FrmSynthCtrl::VolAdj_Rebase() {
  for (int i = 1; i <= synth::ToneCount; ++i) {
    VolAdjBase_[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(Volume(i).Value());
  }
  form_.Get<ScrollBar>("scVolAdjTone")->setValue(NeutralAdjustment);
}

void FrmSynthCtrl::scFreqAdjTone_Change() {
  const int percent = form_.Get<ScrollBar>("scFreqAdjTone")->value();
  SetTogether([&] {
    for (int i = 1; i <= synth::ToneCount; ++i) {
      Frequency(i).SetValue(AdjustedFrequency(FreqAdjBase_[static_cast<std::size_t>(i)], percent));
    }
  });
}

void FrmSynthCtrl::scVolAdjTone_Change() {
  const int percent = form_.Get<ScrollBar>("scVolAdjTone")->value();
  SetTogether([&] {
    for (int i = 1; i <= synth::ToneCount; ++i) {
      Volume(i).SetValue(AdjustedVolume(VolAdjBase_[static_cast<std::size_t>(i)], percent));
    }
  });
}

bool FrmSynthCtrl::IsNameUsable() {
  auto* box = form_.Get<TextBox>("txtSound");
  const std::string_view fault = FaultOfSoundName(box->Text());
  if (!fault.empty()) {
    context_.prompts.Tell(this, ToQString(fault));
    box->setFocus(Qt::OtherFocusReason);
  }
  return fault.empty();
}

void FrmSynthCtrl::btnLoad_Click() {
  if (!IsNameUsable()) {
    return;
  }
  const Sound sound = ReadSound(library_, form_.Get<TextBox>("txtSound")->Text());
  soundName_->UpdateMark();
  SetTogether([&] {
    for (int i = 1; i <= synth::OscillatorCount; ++i) {
      Frequency(i).SetValue(sound.frequencies[static_cast<std::size_t>(i - 1)]);
      Volume(i).SetValue(sound.volumes[static_cast<std::size_t>(i - 1)]);
    }
  });
}

void FrmSynthCtrl::btnSave_Click() {
  if (!IsNameUsable()) {
    return;
  }
  Sound sound;
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    sound.frequencies[static_cast<std::size_t>(i - 1)] = Frequency(i).Value();
    sound.volumes[static_cast<std::size_t>(i - 1)] = Volume(i).Value();
  }
  SaveSound(library_, form_.Get<TextBox>("txtSound")->Text(), sound);
  soundName_->UpdateMark();
}

void FrmSynthCtrl::btnShutUp_Click() {
  writer_.StopSending();
  SynthShutUp();
}

void FrmSynthCtrl::SendRegisterLevelToOrvatone(int zRegister, int zLevel) {
  writer_.Write(synth::LevelRegister(zRegister), zLevel);
}

void FrmSynthCtrl::SendOscillatorVolumeToOrvatone(int zOscillator, int zVolume) {
  writer_.Write(synth::VolumeRegister(zOscillator), zVolume);
}

void FrmSynthCtrl::SendOscillatorFrequencyToOrvatone(int zOscillator, int zFrequency) {
  writer_.Write(synth::FrequencyRegister(zOscillator), zFrequency);
}

void FrmSynthCtrl::SendEnvolopeControlToOrvatone(std::uint8_t zControlValue) {
  writer_.Write(synth::EnvelopeControlRegister, zControlValue);
}

std::uint8_t FrmSynthCtrl::GetEnvolopeCtrlValue() const {
  // None is chosen only before the first SynthShutUp.
  const int type = std::max(envelopeTypes_->Chosen(), 0);
  return EnvelopeControlByte(static_cast<synth::EnvelopeType>(type),
                             form_.Get<CheckBox>("Check2(0)")->Value() != 0,
                             form_.Get<CheckBox>("Check2(1)")->Value() != 0);
}

void FrmSynthCtrl::CheckVolumeLimits() {
  int sum = 0;
  for (int i = 1; i <= synth::ToneCount; ++i) {
    sum += Volume(i).Value();
  }
  const synth::VolumeBand band = BandOfToneVolumes(sum);
  const QColor colour = ColourOf(band, palette().color(QPalette::Active, QPalette::Button));
  for (int i = 1; i <= synth::ToneCount; ++i) {
    auto* box = form_.Get<TextBox>(Indexed("txtVol", i));
    box->SetBackground(colour);
    box->setToolTip(ReasonOf(band, sum));
    box->setAccessibleDescription(box->toolTip());
  }
}

void FrmSynthCtrl::SynthShutUp() {
  SetTogether([this] {
    writer_.SendReset();
    for (const auto& [number, value] : synth::QuietState) {
      Control(number).SetValue(value);
    }
    envelopeTypes_->Choose(static_cast<int>(synth::EnvelopeType::Saw));
    form_.Get<CheckBox>("Check2(0)")->SetValue(0);
    form_.Get<CheckBox>("Check2(1)")->SetValue(0);
  });
}

/// Runs `zChange`, which sets several controls, and then makes the writes of those that changed.
void FrmSynthCtrl::SetTogether(const std::function<void()>& zChange) {
  writer_.Postpone(zChange);
  writer_.SendPostponed();
}

int FrmSynthCtrl::ShownValue(int zRegister) const {
  return zRegister == synth::EnvelopeControlRegister ? GetEnvolopeCtrlValue()
                                                     : Control(zRegister).Value();
}

BarAndBox& FrmSynthCtrl::Control(int zRegister) const {
  return *controls_[static_cast<std::size_t>(zRegister)];
}

}  // namespace loquitor
