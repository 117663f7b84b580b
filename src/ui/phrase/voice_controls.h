#pragma once

#include <QObject>
#include <QVector>
#include <array>
#include <cstdint>
#include <string>

#include "core/code_table.h"
#include "ui/controls/bar_and_box.h"
#include "ui/controls/check_box.h"
#include "ui/controls/click_label.h"
#include "ui/controls/form.h"
#include "ui/phrase/voice_settings.h"

namespace loquitor {

/// The Controls frame of the phrase editor. The bars hold the voice settings, the boxes show them
/// and take typed values. A double click on a label asks for the setting to be inserted into the
/// Say Data. Two check boxes say when the settings are sent.
class VoiceControls : public QObject {
  Q_OBJECT
 public:
  /// Adds the labels, boxes and bars to `zForm`, in tab order.
  static void AddTo(Form& zForm);

  /// `zForm` has the frame and all its controls.
  VoiceControls(const Form& zForm, const CodeTable& zCodeTable, QObject* zParent);

  /// The control-code prefix: the code and the present value of each setting, 8 bytes.
  std::string GetControlCodes() const;

  /// GetControlCodes when the settings are to be sent before Say Data, otherwise empty.
  std::string PrefixForSayData() const;

  /// Whether the settings are to be sent before the sounds of the palette.
  bool AppliesToSounds() const { return chkApplyControlsBeforeSounds_->Value() == 1; }

  /// Gives each setting its default value.
  void SetDefaults();
  void SetPitch(std::uint8_t zPitch);

  /// The clickable labels, in the order of VoiceIndex.
  QVector<ClickLabel*> Labels() const;

 signals:
  /// `zText` is to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

 private:
  struct Controls {
    ClickLabel* label;
    BarAndBox* value;
  };

  void Label_DblClick(VoiceIndex zSetting);

  const CodeTable& codeTable_;
  std::array<Controls, VoiceSettingCount> controls_;
  CheckBox* chkApplyControlsBeforeSounds_;
  CheckBox* chkApplyControlsBeforeSayData_;
};

}  // namespace loquitor
