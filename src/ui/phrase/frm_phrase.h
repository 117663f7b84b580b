#pragma once

#include <string>
#include <string_view>

#include "ui/controls/form.h"
#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

namespace loquitor {

class DictionaryBrowser;
class SilentMarks;
class SoundPalette;
class TextArea;
class VoiceControls;

/// The phrase editor. The user writes a phrase as Say Data, hears it, views its codes, and builds
/// it from the sound palette, the voice controls and the dictionary. It starts with
/// SharedState::PhraseToMove and WordToMove. Done stores the Say Data and the word there; closing
/// it in another way does not.
class frmPhrase : public ToolWindow {
  Q_OBJECT
 public:
  frmPhrase(QWidget* zOwner, const EditorContext& zContext);

  /// Sends mnemonic text to the chip, after the control-code prefix if that is ticked for Say Data.
  void SayThisAllophoneList(std::string_view zAllophoneList);

  /// Shows a code string in the codes viewer. Returns when the viewer has been closed.
  void ShowThisCodeList(std::string_view zOrvatoneCodes);

  /// Replaces the selection of the Say Data by `zText` and one blank, as one undoable step. If
  /// nothing is selected, inserts them at the caret, which first moves past the blanks after it.
  void InsertIntoSayData(std::string_view zText);

 protected:
  void Load() override;
  void Activate() override;

 private:
  void AddControls();
  void ConnectButtons();
  void ConnectEnglish(DictionaryBrowser* zBrowser);
  void SetKeys();
  void HideUnreachableControls();

  void bntSayIt_Click();
  void btnSaySelection_Click();
  void btnClear_Click();
  void btnCodes_Click();
  void Command2_Click();
  void btnShutUp_Click();
  void btnDone_Click();

  /// The whole Say Data or the selection. It is read after the pending events have run.
  using SayDataPart = std::string (TextArea::*)() const;
  void Say(SayDataPart zPart, const char* zButton);
  void ViewCodes(SayDataPart zPart, const char* zButton);
  std::string CodesOf(std::string_view zAllophoneList) const;

  const EditorContext context_;
  Form form_;
  VoiceControls* voice_ = nullptr;
  SoundPalette* palette_ = nullptr;
  TextArea* txtSayData_ = nullptr;
  SilentMarks* marks_ = nullptr;
};

}  // namespace loquitor
