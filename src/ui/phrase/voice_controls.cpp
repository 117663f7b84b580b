#include "ui/phrase/voice_controls.h"

namespace loquitor {
namespace {

constexpr char FrameName[] = "Frame9";
constexpr int FirstTop = 240;
constexpr int RowDistance = 300;

/// Adds the controls of one setting, `zTop` twips below the top of the frame.
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
  zForm.Add(BoxRow(zSetting.textBox, FrameName, "5", {790, zTop, 435, 285}, textBoxName.c_str()));
  zForm.Add(BarRow(zSetting.bar, FrameName, {1320, zTop, 4155, 255},
                   {zSetting.maximum, zSetting.page}, barName.c_str()));
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
  for (const VoiceIndex i : {Volume, Speed, Pitch, Bend}) {
    const VoiceSetting& setting = VoiceSettings[i];
    auto* label = zForm.Get<ClickLabel>(setting.label);
    auto* value =
        new BarAndBox(zForm.Get<ScrollBar>(setting.bar), zForm.Get<TextBox>(setting.textBox), this);
    controls_[i] = {label, value};
    connect(value, &BarAndBox::BoxLeft, value, &BarAndBox::TakeText);
    connect(label, &ClickLabel::DoubleClick, this, [=, this] { Label_DblClick(i); });
  }
  chkApplyControlsBeforeSounds_->SetValue(1);
  chkApplyControlsBeforeSayData_->SetValue(1);
}

std::string VoiceControls::GetControlCodes() const {
  std::string codes;
  for (const VoiceIndex i : {Volume, Speed, Pitch, Bend}) {
    codes.push_back(static_cast<char>(VoiceSettings[i].code));
    codes.push_back(static_cast<char>(controls_[i].value->Value()));
  }
  return codes;
}

std::string VoiceControls::PrefixForSayData() const {
  return chkApplyControlsBeforeSayData_->Value() == 1 ? GetControlCodes() : std::string();
}

void VoiceControls::SetDefaults() {
  for (const VoiceIndex setting : {Volume, Pitch, Speed, Bend}) {
    controls_[setting].value->SetValue(VoiceSettings[setting].defaultValue);
  }
}

void VoiceControls::SetPitch(std::uint8_t zPitch) {
  controls_[Pitch].value->SetValue(zPitch);
}

QVector<ClickLabel*> VoiceControls::Labels() const {
  QVector<ClickLabel*> labels;
  for (const Controls& controls : controls_) {
    labels.append(controls.label);
  }
  return labels;
}

void VoiceControls::Label_DblClick(VoiceIndex zSetting) {
  controls_[zSetting].value->TakeText();  // the focus may still be in the box
  emit InsertWanted(codeTable_.GetCodeMnemonic(VoiceSettings[zSetting].code) + " \\" +
                    std::to_string(controls_[zSetting].value->Value()));
}

}  // namespace loquitor
