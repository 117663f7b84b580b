#include "ui/phrase/voice_controls.h"

namespace loquitor {
namespace {

constexpr char FrameName[] = "Frame9";
constexpr int FirstTop = 240;
constexpr int RowDistance = 300;

/// The rows of one setting, `zTop` twips below the top of the frame.
void AddSetting(Form& zForm, const VoiceSetting& zSetting, int zTop) {
  const std::string caption = zSetting.caption;
  const std::string textBoxName = caption + " value";
  const std::string barName = caption + " bar";
  zForm.Add({.kind = ControlKind::ClickLabel,
             .name = zSetting.label,
             .parent = FrameName,
             .caption = zSetting.caption,
             .place = {120, zTop, 675, 255},
             .tooltip = zSetting.tooltip});
  zForm.Add({.kind = ControlKind::TextBox,
             .name = zSetting.textBox,
             .parent = FrameName,
             .caption = "5",
             .place = {790, zTop, 435, 285},
             .accessibleName = textBoxName.c_str()});
  zForm.Add({.kind = ControlKind::ScrollBar,
             .name = zSetting.bar,
             .parent = FrameName,
             .caption = "",
             .place = {1320, zTop, 4155, 255},
             .accessibleName = barName.c_str(),
             .barMaximum = zSetting.maximum,
             .barPage = zSetting.page});
}

}  // namespace

void VoiceControls::AddTo(Form& zForm) {
  int top = FirstTop;
  for (const VoiceSetting& setting : VoiceSettings) {
    AddSetting(zForm, setting, top);
    top += RowDistance;
  }
}

VoiceControls::VoiceControls(const Form& zForm, const CodeTable& zCodeTable, QObject* zParent)
    : QObject(zParent),
      codeTable_(zCodeTable),
      chkApplyControlsBeforeSounds_(zForm.Get<CheckBox>("chkApplyControlsBeforeSounds")),
      chkApplyControlsBeforeSayData_(zForm.Get<CheckBox>("chkApplyControlsBeforeSayData")) {
  for (std::size_t i = 0; i < VoiceSettingCount; ++i) {
    const VoiceSetting& setting = VoiceSettings[i];
    controls_[i] = {zForm.Get<ClickLabel>(setting.label), zForm.Get<TextBox>(setting.textBox),
                    zForm.Get<ScrollBar>(setting.bar)};
    Connect(static_cast<VoiceIndex>(i));
  }
  chkApplyControlsBeforeSounds_->SetValue(1);
  chkApplyControlsBeforeSayData_->SetValue(1);
}

void VoiceControls::Connect(VoiceIndex zSetting) {
  const Controls& controls = controls_[zSetting];
  connect(controls.bar, &ScrollBar::Change, this, [=, this] { Bar_Change(zSetting); });
  connect(controls.bar, &ScrollBar::Scroll, this, [=, this] { Bar_Change(zSetting); });
  connect(controls.textBox, &TextBox::LostFocus, this, [=, this] { TextBox_LostFocus(zSetting); });
  connect(controls.label, &ClickLabel::DoubleClick, this, [=, this] { Label_DblClick(zSetting); });
}

std::string VoiceControls::GetControlCodes() const {
  VoiceValues values{};
  for (std::size_t i = 0; i < values.size(); ++i) {
    values[i] = controls_[i].bar->value();
  }
  return ControlCodeString(values);
}

std::string VoiceControls::PrefixForSayData() const {
  return chkApplyControlsBeforeSayData_->Value() == 1 ? GetControlCodes() : std::string();
}

void VoiceControls::SetDefaults() {
  for (const VoiceIndex setting : {Volume, Pitch, Speed, Bend}) {
    controls_[setting].bar->setValue(VoiceSettings[setting].defaultValue);
  }
}

void VoiceControls::SetPitch(std::uint8_t zPitch) {
  controls_[Pitch].bar->setValue(zPitch);
}

QVector<ClickLabel*> VoiceControls::Labels() const {
  QVector<ClickLabel*> labels;
  for (const Controls& controls : controls_) {
    labels.append(controls.label);
  }
  return labels;
}

void VoiceControls::Bar_Change(VoiceIndex zSetting) {
  const Controls& controls = controls_[zSetting];
  controls.textBox->SetText(std::to_string(controls.bar->value()));
}

void VoiceControls::TextBox_LostFocus(VoiceIndex zSetting) {
  const Controls& controls = controls_[zSetting];
  const std::string typed = controls.textBox->Text();
  const CommittedVoiceText committed = CommitVoiceText(typed, VoiceSettings[zSetting].maximum);
  if (committed.text != typed) {
    controls.textBox->SetText(committed.text);
  }
  controls.bar->setValue(committed.value);
}

void VoiceControls::Label_DblClick(VoiceIndex zSetting) {
  TextBox_LostFocus(zSetting);
  emit InsertWanted(codeTable_.GetCodeMnemonic(VoiceSettings[zSetting].code) + " \\" +
                    std::to_string(controls_[zSetting].bar->value()));
}

}  // namespace loquitor
