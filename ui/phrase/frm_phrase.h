#pragma once

#include <string>
#include <string_view>

#include "ui/toolkit/editor_context.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/text_area.h"
#include "ui/toolkit/tool_window.h"

namespace loquitor {

class DictionaryBrowser;
class SoundPalette;
class VoiceControls;

/// The phrase editor: a phrase is written as Say Data, heard, viewed as codes and built from the
/// sound palette, the voice controls and the dictionary. It starts with SharedState::PhraseToMove
/// and WordToMove where they are not empty; Done writes both back, closing it otherwise leaves
/// them.
class frmPhrase : public ToolWindow {
  Q_OBJECT
 public:
  frmPhrase(QWidget* zOwner, const EditorContext& zContext);

  /// Sends mnemonic text to the chip, behind the control-code prefix when that is ticked.
  void SayThisAllophoneList(std::string_view zAllophoneList);

  /// Shows the codes of a code string in the codes viewer; returns when that is closed.
  void ShowThisCodeList(std::string_view zOrvatoneCodes);

  /// Puts the text and one blank at the caret of the Say Data in place of the selection. Where
  /// nothing is selected, blanks behind the caret are passed over first. One undoable step.
  void InsertIntoSayData(std::string_view zText);

 protected:
  void Load() override;
  void Activate() override;

 private:
  void AddControls();
  void ConnectButtons();
  void HideUnreachableControls();

  void bntSayIt_Click();
  void btnSaySelection_Click();
  void btnClear_Click();
  void btnCodes_Click();
  void Command2_Click();
  void btnShutUp_Click();
  void btnDone_Click();

  /// The whole Say Data or the selection, read when the events that were pending have run.
  using SayDataPart = std::string (TextArea::*)() const;
  void Say(SayDataPart zPart, const char* zButton);
  void ViewCodes(SayDataPart zPart, const char* zButton);
  std::string CodesOf(std::string_view zAllophoneList) const;

  const EditorContext context_;
  Form form_;
  VoiceControls* voice_ = nullptr;
  SoundPalette* palette_ = nullptr;
  TextArea* txtSayData_ = nullptr;
};

}  // namespace loquitor
