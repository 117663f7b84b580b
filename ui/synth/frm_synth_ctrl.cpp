#include "ui/synth/frm_synth_ctrl.h"

#include <QEvent>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "ui/synth/name_completion.h"
#include "ui/synth/sound_name.h"
#include "ui/synth/synth_form.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/code_page.h"
#include "ui/toolkit/scroll_bar.h"
#include "ui/toolkit/text_box.h"

namespace loquitor {

namespace {

constexpr int NeutralAdjustment = 100;  // per cent
constexpr QColor OverLimit(255, 0, 0);
constexpr QColor NearLimit(255, 255, 0);
constexpr QColor WrongNumber(255, 176, 176);

// At 2400 bits a second the longest farewell takes 0.7 seconds.
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

bool IsOscillatorRegister(int zRegister) {
  return (zRegister >= synth::FrequencyRegister(1) &&
          zRegister <= synth::FrequencyRegister(synth::OscillatorCount)) ||
         zRegister >= synth::VolumeRegister(1);
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
  new NameCompletion(form_.Get<TextBox>("txtSound"), [this] { return SoundNames(); });
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
  auto* bar = form_.Get<ScrollBar>(zBar);
  auto* box = form_.Get<TextBox>(zBox);
  valueControls_[static_cast<std::size_t>(zRegister)] = {bar, box};
  connect(bar, &ScrollBar::Change, this, zChanged);
  connect(bar, &ScrollBar::Scroll, this, zChanged);
  connect(box, &TextBox::LostFocus, this, [this, zRegister] { ValueBox_LostFocus(zRegister); });
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
    connect(form_.Get<QPushButton>(zButton), &QPushButton::clicked, this, zRebase);
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
  const auto onClick = [this](const char* zButton, auto zHandler) {
    connect(form_.Get<QPushButton>(zButton), &QPushButton::clicked, this, zHandler);
  };
  onClick("Command1", &FrmSynthCtrl::Command1_Click);
  onClick("btnLoad", &FrmSynthCtrl::btnLoad_Click);
  onClick("btnSave", &FrmSynthCtrl::btnSave_Click);
  onClick("btnShutUp", &FrmSynthCtrl::btnShutUp_Click);
  onClick("btnDone", &FrmSynthCtrl::close);
}

QStringList FrmSynthCtrl::SoundNames() const {
  QStringList names;
  for (const std::string& name : library_.SoundNames()) {
    names.push_back(ToQString(name));
  }
  return names;
}

void FrmSynthCtrl::changeEvent(QEvent* zEvent) {
  ToolWindow::changeEvent(zEvent);
  // The desktop has changed its colours: the button face is another one.
  if (zEvent->type() == QEvent::PaletteChange && oscillatorTurn_ > 0) {
    CheckVolumeLimits();
  }
}

void FrmSynthCtrl::Load() {
  // Sent as soon as the window stands: on a line that is held back the sends wait, and the window
  // has to be there and usable meanwhile.
  QTimer::singleShot(0, this, [this] {
    if (!IsUnloaded()) {
      SynthShutUp();
    }
  });
}

void FrmSynthCtrl::Unload() {
  // The line may be held back for good: what is left of the handlers must not wait for ever.
  QTimer::singleShot(LongestClosing, this, [this] { writer_.GiveUp(); });
  writer_.StopSending();
  SynthShutUp();
  SendEnvolopeControlToOrvatone(0);
}

void FrmSynthCtrl::scFreq_Change(int zIndex) {
  ShowValue(synth::FrequencyRegister(zIndex));
  SendOscillatorFrequencyToOrvatone(zIndex, scFreq(zIndex)->value());
}

void FrmSynthCtrl::scVol_Change(int zIndex) {
  ShowValue(synth::VolumeRegister(zIndex));
  SendOscillatorVolumeToOrvatone(zIndex, scVol(zIndex)->value());
  CheckVolumeLimits();
}

void FrmSynthCtrl::scLevel_Change(int zIndex) {
  const int number = synth::LevelRegister(zIndex);
  ShowValue(number);
  SendRegisterLevelToOrvatone(zIndex, ShownValue(number));
}

void FrmSynthCtrl::scEnvolopeFreq_Change() {
  ShowValue(synth::EnvelopeFrequencyRegister);
  SendOscillatorFrequencyToOrvatone(0, ShownValue(synth::EnvelopeFrequencyRegister));
}

void FrmSynthCtrl::ValueBox_LostFocus(int zRegister) {
  // The control that the focus goes to hears of it, and of the press that brings it, only when this
  // has returned. A write lets events run: a release would come before its press, and an adjust bar
  // move before it has taken its bases.
  isFocusOnItsWay_ = true;
  EnterText(zRegister);
  isFocusOnItsWay_ = false;
}

void FrmSynthCtrl::EnterText(int zRegister) {
  const auto [bar, box] = valueControls_[static_cast<std::size_t>(zRegister)];
  const double number = NumberAtStart(box->Text());
  if (number < 0 || number > bar->maximum()) {
    box->SetText(std::to_string(number < 0 ? 0 : bar->maximum()));
  }
  bar->setValue(WholeNumberInRange(box->Text(), bar->maximum()));
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
  box->SetBackground(zIsMarked ? WrongNumber : QColor());
  box->setToolTip(fault);
  box->setAccessibleDescription(fault);
}

void FrmSynthCtrl::Command1_Click() {
  const double base = NumberAtStart(form_.Get<TextBox>("txtHFreq")->Text());
  MarkHFreq(!(base > 0));
  const int turn = oscillatorTurn_;
  for (int i = 1; base > 0 && i <= synth::ToneCount && turn == oscillatorTurn_; ++i) {
    scFreq(i)->setValue(HarmonisedFrequency(scFreq(i)->value(), base));
  }
}

void FrmSynthCtrl::FreqAdj_Rebase() {
  for (int i = 1; i <= synth::ToneCount; ++i) {
    FreqAdjBase_[static_cast<std::size_t>(i)] = scFreq(i)->value();
  }
  form_.Get<ScrollBar>("scFreqAdjTone")->setValue(NeutralAdjustment);
}

void FrmSynthCtrl::VolAdj_Rebase() {
  for (int i = 1; i <= synth::ToneCount; ++i) {
    VolAdjBase_[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(scVol(i)->value());
  }
  form_.Get<ScrollBar>("scVolAdjTone")->setValue(NeutralAdjustment);
}

void FrmSynthCtrl::scFreqAdjTone_Change() {
  const auto* bar = form_.Get<ScrollBar>("scFreqAdjTone");
  const int turn = oscillatorTurn_;
  for (int i = 1; i <= synth::ToneCount && turn == oscillatorTurn_; ++i) {
    scFreq(i)->setValue(AdjustedFrequency(FreqAdjBase_[static_cast<std::size_t>(i)], bar->value()));
  }
}

void FrmSynthCtrl::scVolAdjTone_Change() {
  const auto* bar = form_.Get<ScrollBar>("scVolAdjTone");
  const int turn = oscillatorTurn_;
  for (int i = 1; i <= synth::ToneCount && turn == oscillatorTurn_; ++i) {
    scVol(i)->setValue(AdjustedVolume(VolAdjBase_[static_cast<std::size_t>(i)], bar->value()));
  }
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
  const std::string name = form_.Get<TextBox>("txtSound")->Text();
  const int turn = ++oscillatorTurn_;
  const auto set = [&](ScrollBar* zBar, const std::string& zKey) {
    if (turn == oscillatorTurn_) {
      zBar->setValue(WholeNumberInRange(library_.GetSoundValue(name, zKey, "0"), zBar->maximum()));
    }
  };
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    set(scFreq(i), "Freq" + std::to_string(i));
    set(scVol(i), "Vol" + std::to_string(i));
  }
}

void FrmSynthCtrl::btnSave_Click() {
  if (!IsNameUsable()) {
    return;
  }
  std::vector<ProfileValue> sound;
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    sound.push_back({"Freq" + std::to_string(i), std::to_string(scFreq(i)->value())});
    sound.push_back({"Vol" + std::to_string(i), std::to_string(scVol(i)->value())});
  }
  // A library that cannot be written stays as it was, without a message.
  static_cast<void>(library_.SaveSoundValues(form_.Get<TextBox>("txtSound")->Text(), sound));
}

void FrmSynthCtrl::btnShutUp_Click() {
  writer_.StopSending();
  SynthShutUp();
}

void FrmSynthCtrl::SendRegisterLevelToOrvatone(int zRegister, int zLevel) {
  WriteRegister(synth::LevelRegister(zRegister), zLevel);
}

void FrmSynthCtrl::SendOscillatorVolumeToOrvatone(int zOscillator, int zVolume) {
  WriteRegister(synth::VolumeRegister(zOscillator), zVolume);
}

void FrmSynthCtrl::SendOscillatorFrequencyToOrvatone(int zOscillator, int zFrequency) {
  WriteRegister(synth::FrequencyRegister(zOscillator), zFrequency);
}

void FrmSynthCtrl::SendEnvolopeControlToOrvatone(std::uint8_t zControlValue) {
  WriteRegister(synth::EnvelopeControlRegister, zControlValue);
}

void FrmSynthCtrl::WriteRegister(int zRegister, int zValue) {
  if (isFocusOnItsWay_) {
    writer_.Postpone(zRegister, zValue);
    QTimer::singleShot(0, this, [this] { writer_.SendPostponed(); });
  } else {
    writer_.Write(zRegister, zValue);
  }
}

std::uint8_t FrmSynthCtrl::GetEnvolopeCtrlValue() const {
  // None is chosen only until the opening has chosen the first one.
  const int type = std::max(envelopeTypes_->Chosen(), 0);
  return EnvelopeControlByte(static_cast<synth::EnvelopeType>(type),
                             form_.Get<CheckBox>("Check2(0)")->Value() != 0,
                             form_.Get<CheckBox>("Check2(1)")->Value() != 0);
}

void FrmSynthCtrl::CheckVolumeLimits() {
  int sum = 0;
  for (int i = 1; i <= synth::ToneCount; ++i) {
    sum += scVol(i)->value();
  }
  const QColor colour =
      ColourOf(BandOfToneVolumes(sum), palette().color(QPalette::Active, QPalette::Button));
  for (int i = 1; i <= synth::ToneCount; ++i) {
    form_.Get<TextBox>(Indexed("txtVol", i))->SetBackground(colour);
  }
}

void FrmSynthCtrl::SynthShutUp() {
  const int turn = ++oscillatorTurn_;
  writer_.SendReset();
  for (const auto& [number, value] : synth::QuietState) {
    const bool isOvertaken = turn != oscillatorTurn_ && IsOscillatorRegister(number);
    if (!isOvertaken) {
      valueControls_[static_cast<std::size_t>(number)].bar->setValue(value);
    } else if (ShownValue(number) != value) {
      // The load that came meanwhile did not write it if it stood there already: the reset took it.
      WriteRegister(number, ShownValue(number));
    }
  }
  envelopeTypes_->SetChosen(static_cast<int>(synth::EnvelopeType::Saw), true);
  form_.Get<CheckBox>("Check2(0)")->SetValue(0);
  form_.Get<CheckBox>("Check2(1)")->SetValue(0);
}

void FrmSynthCtrl::ShowValue(int zRegister) {
  const auto [bar, box] = valueControls_[static_cast<std::size_t>(zRegister)];
  box->SetText(std::to_string(bar->value()));
}

int FrmSynthCtrl::ShownValue(int zRegister) const {
  return zRegister == synth::EnvelopeControlRegister
             ? GetEnvolopeCtrlValue()
             : valueControls_[static_cast<std::size_t>(zRegister)].bar->value();
}

ScrollBar* FrmSynthCtrl::scFreq(int zIndex) const {
  return valueControls_[static_cast<std::size_t>(synth::FrequencyRegister(zIndex))].bar;
}

ScrollBar* FrmSynthCtrl::scVol(int zIndex) const {
  return valueControls_[static_cast<std::size_t>(synth::VolumeRegister(zIndex))].bar;
}

}  // namespace loquitor
