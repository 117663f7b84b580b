#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/eeprom.h"
#include "ui/controls/form.h"
#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

namespace loquitor {

class ChipWrite;
class PhraseLabel;
class SlotLabel;

/// The editor of the sixteen phrases that the chip stores. It shows them, opens each in the phrase
/// editor, plays what the chip holds, shows how much of the EEPROM they take and writes them. The
/// labels hold the phrases. The settings file keeps them between runs.
class frmEEPROM : public ToolWindow {
  Q_OBJECT
 public:
  frmEEPROM(QWidget* zOwner, const EditorContext& zContext);

  /// The bytes for location 0 onward that the present phrases make with the present dictionary.
  std::string GetEEPROMPhraseString() const;

  /// Shows how many of the chip's locations are in use with these bytes: on yellow when few are
  /// left, on red when there are not enough.
  void ReportUsed();

 protected:
  void Load() override;
  void Unload() override;

 private:
  void AddSlot(int zIndex);
  QWidgetList WriteCutters() const;
  void ShowPhrase(int zIndex, std::string_view zPhrase);

  void WritePhrases();

  void btnWrite_Click();
  void btnShutUp_Click();
  void Phrase_Click(int zIndex);
  void lbs_Click(int zIndex);

  EditorContext context_;
  Form form_;
  std::array<SlotLabel*, eeprom::PhraseCount> lbs_{};
  std::array<PhraseLabel*, eeprom::PhraseCount> phrases_{};
  ChipWrite* write_ = nullptr;
};

}  // namespace loquitor
