#pragma once

#include <QObject>
#include <cstdint>
#include <string>

#include "core/code_table.h"
#include "ui/phrase/voice_values.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/click_label.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/scroll_bar.h"
#include "ui/toolkit/text_box.h"

namespace loquitor {

/// The Controls frame of the phrase editor: the bars hold the voice settings, the boxes show them
/// and take typed values, a double click on a label asks for the setting to be written into the Say
/// Data. The two check boxes that say when the settings are applied belong to it too.
class VoiceControls : public QObject {
  Q_OBJECT
 public:
  /// Adds the labels, boxes and bars to `zForm`, in tab order.
  static void AddTo(Form& zForm);

  /// The frame and all its controls must stand in `zForm`.
  VoiceControls(const Form& zForm, const CodeTable& zCodeTable, QObject* zParent);

  /// The control-code prefix of the present values, 8 bytes.
  std::string GetControlCodes() const;

  /// The same when the settings are to be applied before Say Data, else the empty text.
  std::string PrefixForSayData() const;

  /// Whether the settings are to be applied before the sounds of the palette.
  bool AppliesToSounds() const { return chkApplyControlsBeforeSounds_->Value() == 1; }

  void SetDefaults();
  void SetPitch(std::uint8_t zPitch);

  /// The clickable labels, in order.
  QVector<ClickLabel*> Labels() const;

 signals:
  /// `zText` is to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

 private:
  struct Controls {
    ClickLabel* label;
    TextBox* textBox;
    ScrollBar* bar;
  };

  void Connect(VoiceIndex zSetting);
  void Bar_Change(VoiceIndex zSetting);
  void TextBox_LostFocus(VoiceIndex zSetting);
  void Label_DblClick(VoiceIndex zSetting);

  const CodeTable& codeTable_;
  std::array<Controls, VoiceSettingCount> controls_;
  CheckBox* chkApplyControlsBeforeSounds_;
  CheckBox* chkApplyControlsBeforeSayData_;
};

}  // namespace loquitor
