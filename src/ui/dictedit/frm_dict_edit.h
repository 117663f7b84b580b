#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "ui/controls/form.h"
#include "ui/windows/editor_context.h"
#include "ui/windows/tool_window.h"

namespace loquitor {

class TextArea;
class WordImport;
struct FilledEntries;

/// The dictionary editor: the dictionary file as one text that can be typed in, searched, saved,
/// sorted, cleaned, extended with the words of ImportWords.txt (in the working directory), and
/// filled with the sounds of its blank entries. Only Save Changes, Save & Sort and Erase Blank
/// Entries write the file. Closing the window drops what has not been saved.
class frmDictEdit : public ToolWindow {
  Q_OBJECT
 public:
  frmDictEdit(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;

 private:
  void btnSaveChanges_Click();
  void btnFind_Click();
  void btnSort_Click();
  void btnEraseBlank_Click();
  void btnReadTerms_Click();

  void ConnectControls();
  void AddActions();
  void AddUndoActions();
  void FixBoxWidth();
  void LoadDictionary();
  void TellOnceShown(const QString& zText);
  void ShowWhetherSaved(bool zIsSaved);
  void SaveAndRewrite(QWidget* zButton, std::string (*zRewrite)(std::string));
  void ShowRewritten(std::string (*zRewrite)(std::string));
  bool SaveText();
  bool MayReplaceFile();
  void FindNext();
  void FillBlank();
  std::optional<FilledEntries> FillWithProgress(const std::string& zText);
  void ShowSelection();
  std::size_t TextLength() const;
  void AppendToText(std::string_view zText);
  QString ImportFailure(WordImport& zImport);
  bool IsTooMuch(const WordImport& zImport) const;

  EditorContext context_;
  Form form_;
  TextArea* txtDictionary_;
  QPushButton* btnSaveChanges_;
  QString sought_;
  bool isUnread_ = false;  ///< the file exists, but the box does not show what is in it
};

}  // namespace loquitor
