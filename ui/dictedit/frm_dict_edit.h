#pragma once

#include <QString>
#include <filesystem>
#include <string>

#include "core/word_import.h"
#include "ui/toolkit/editor_context.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/text_history.h"
#include "ui/toolkit/tool_window.h"

namespace loquitor {

/// The dictionary editor: the dictionary file as one text that can be typed in, searched, saved,
/// sorted, cleaned and fed with the words of ImportWords.txt (in the working directory). Only the
/// saving buttons write the file; closing the window drops what has not been saved.
class frmDictEdit : public ToolWindow {
  Q_OBJECT
 public:
  /// What a dictionary may have that is shown; an import ends where there would be more. Beyond it
  /// the box would need minutes and gigabytes: it takes about two seconds and 270 MB for a million
  /// lines, and works out all of a line whenever it draws a part of it.
  static constexpr std::size_t MaximumBytes = std::size_t{64} << 20;
  static constexpr std::size_t MaximumLines = 2'000'000;
  static constexpr std::size_t MaximumLineLength = 65'536;

  frmDictEdit(QWidget* zOwner, const EditorContext& zContext);

 protected:
  void Load() override;

 private:
  void btnSaveChanges_Click();
  void btnFind_Click();
  void btnSort_Click();
  void btnEraseBlank_Click();
  void btnReadTerms_Click();
  void btnDone_Click();

  void ConnectControls();
  void FixBoxWidth();
  void LoadDictionary();
  QString ShowDictionary(const std::filesystem::path& zFile);
  void TellOnceShown(const QString& zText);
  void SaveAndRewrite(QWidget* zButton, std::string (*zRewrite)(std::string));
  bool SaveText();
  bool MayReplaceFile();
  void FindNext();
  void ShowSelection();
  QString ImportFailure(WordImport& zImport);
  bool IsTooMuch(const WordImport& zImport) const;

  EditorContext context_;
  Form form_;
  TextArea* txtDictionary_;
  TextHistory* history_;
  QString sought_;
  bool isUnread_ = false;  ///< the file is there, but the box does not show what is in it
};

}  // namespace loquitor
