#include "ui/dictedit/frm_dict_edit.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <optional>
#include <utility>

#include "core/dictionary_text.h"
#include "core/word_import.h"
#include "english/blank_entries.h"
#include "english/unread_text.h"
#include "files/file_bytes.h"
#include "ui/controls/code_page.h"
#include "ui/controls/colours.h"
#include "ui/controls/hint.h"
#include "ui/controls/text_area.h"
#include "ui/dictedit/editable_text.h"
#include "ui/dictedit/word_list.h"
#include "ui/windows/busy.h"

namespace loquitor {
namespace {

constexpr TwipSize ClientSize{10350, 7500};

constexpr ControlRow Rows[] = {
    ButtonRow("btnReadTerms", "", "Import New Words", {9060, 210, 1245, 615}),
    {ControlKind::TextArea,
     "txtDictionary",
     "",
     "",
     {60, 60, 8925, 7395},
     "",
     "Text of the dictionary"},
    ButtonRow("btnSaveChanges", "", "Save Changes", {9060, 6000, 1245, 435}),
    ButtonRow("btnSort", "", "Save && Sort", {9060, 5460, 1245, 435}),
    ButtonRow("btnDone", "", "Done", {9060, 6960, 1245, 435}),
    ButtonRow("btnFind", "", "Find", {9060, 3540, 1245, 435}),
    ButtonRow("btnEraseBlank", "", "Erase Blank Entries", {9060, 930, 1245, 585}),
};

constexpr const char* WordListFile = "ImportWords.txt";
constexpr std::string_view NoEntry = "NoEntry";
constexpr int ShownLength = 60;  ///< of a sought text, in a message

QString Shown(const std::filesystem::path& zPath) {
  return QString::fromStdString(zPath.string());
}

QString FilledNotice(const FilledEntries& zFilled) {
  QString notice = QStringLiteral("Blank entries that have sounds now: %L1.").arg(zFilled.count);
  std::vector<std::string> unread;
  for (const std::string& word : zFilled.unread) {
    unread.push_back(ToQString(word).toStdString());
  }
  if (!unread.empty()) {
    notice += "\nStill blank, because they cannot be read: " +
              QString::fromStdString(DescribeUnread(unread));
  }
  return notice;
}

}  // namespace

frmDictEdit::frmDictEdit(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Dictionary Editor"), ClientSize),
      context_(zContext),
      form_(this) {
  form_.Add(Rows);
  txtDictionary_ = form_.Get<TextArea>("txtDictionary");
  txtDictionary_->StopWrapping();
  txtDictionary_->SetLimits({.longestLine = EditableLimits::LineLength,
                             .characters = EditableLimits::Bytes,
                             .lines = EditableLimits::Lines});
  btnSaveChanges_ = form_.Get<QPushButton>("btnSaveChanges");
  ConnectControls();
  AddActions();
  AddUndoActions();
}

void frmDictEdit::ConnectControls() {
  form_.OnClick("btnReadTerms", this, &frmDictEdit::btnReadTerms_Click);
  form_.OnClick("btnSaveChanges", this, &frmDictEdit::btnSaveChanges_Click);
  form_.OnClick("btnSort", this, &frmDictEdit::btnSort_Click);
  form_.OnClick("btnDone", this, &frmDictEdit::close);
  form_.OnClick("btnFind", this, &frmDictEdit::btnFind_Click);
  form_.OnClick("btnEraseBlank", this, &frmDictEdit::btnEraseBlank_Click);
  connect(txtDictionary_, &QPlainTextEdit::textChanged, this, [this] { ShowWhetherSaved(false); });
}

/// These keys act whichever control of the window has the focus.
void frmDictEdit::AddActions() {
  QAction* const find = addAction("&Find...", this, &frmDictEdit::btnFind_Click);
  find->setShortcuts(QKeySequence::Find);
  QAction* const findNext = addAction("Find &Next", Qt::Key_F3, this, &frmDictEdit::FindNext);
  QAction* const save = addAction("&Save Changes", this, &frmDictEdit::btnSaveChanges_Click);
  save->setShortcuts(QKeySequence::Save);
  const bool canRead = context_.english != nullptr;
  QAction* const fill = addAction(
      canRead ? "Fill &Blank Entries" : "Fill &Blank Entries (this build cannot read English)",
      this, &frmDictEdit::FillBlank);
  fill->setEnabled(canRead);
  txtDictionary_->addActions({find, findNext, save, fill});
}

/// The text itself takes these keys only while it has the focus.
void frmDictEdit::AddUndoActions() {
  QAction* const undo = addAction("Undo", txtDictionary_, &QPlainTextEdit::undo);
  undo->setShortcuts(QKeySequence::Undo);
  QList<QKeySequence> redoKeys = QKeySequence::keyBindings(QKeySequence::Redo);
  if (const QKeySequence other(Qt::CTRL | Qt::Key_Y); !redoKeys.contains(other)) {
    redoKeys.append(other);
  }
  addAction("Redo", txtDictionary_, &QPlainTextEdit::redo)->setShortcuts(redoKeys);
}

void frmDictEdit::Load() {
  form_.Get<QPushButton>("btnReadTerms")
      ->setToolTip("Add the words that the dictionary lacks from\n" +
                   QDir::toNativeSeparators(QDir::current().filePath(WordListFile)));
  FixBoxWidth();
  LoadDictionary();
  ShowWhetherSaved(true);
}

/// Gives the box its final width before it gets a text: when the width changes, Qt makes a layout
/// for every line of the text, which takes more memory than the text.
void frmDictEdit::FixBoxWidth() {
  txtDictionary_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  static_cast<void>(txtDictionary_->grab(QRect(0, 0, 1, 1)));  // delivers the pending resize events
}

void frmDictEdit::LoadDictionary() {
  const std::filesystem::path file = context_.dictionary.File();
  std::error_code unknown;
  if (!std::filesystem::exists(file, unknown) && !unknown) {
    TellOnceShown(QStringLiteral("There is no dictionary yet. Saving will create it as\r\n%1")
                      .arg(Shown(file)));
    return;
  }
  const EditableText dictionary = ReadEditableText(file);
  isUnread_ = !dictionary.failure.isEmpty();
  if (isUnread_) {
    TellOnceShown(dictionary.failure);
  } else {
    txtDictionary_->SetText(dictionary.text);
  }
}

void frmDictEdit::TellOnceShown(const QString& zText) {
  QTimer::singleShot(0, this, [this, zText] {
    if (!IsUnloaded()) {
      context_.prompts.Tell(this, zText);
    }
  });
}

void frmDictEdit::ShowWhetherSaved(bool zIsSaved) {
  SetColours(btnSaveChanges_, QPalette::Button, QPalette::ButtonText,
             zIsSaved ? QColor() : WarningBackground);
  btnSaveChanges_->setToolTip(zIsSaved
                                  ? QStringLiteral("Everything is saved.")
                                  : QStringLiteral("The text has changes that are not saved."));
}

void frmDictEdit::btnSaveChanges_Click() {
  SaveText();
}

void frmDictEdit::btnSort_Click() {
  SaveAndRewrite(form_.Get<QPushButton>("btnSort"), SortedText);
}

void frmDictEdit::btnEraseBlank_Click() {
  SaveAndRewrite(form_.Get<QPushButton>("btnEraseBlank"), CleanedText);
}

/// Saves, then shows what `zRewrite` makes of the file.
void frmDictEdit::SaveAndRewrite(QWidget* zButton, std::string (*zRewrite)(std::string)) {
  RunBusy(this, zButton, [&] {
    if (SaveText()) {
      ShowRewritten(zRewrite);
    }
  });
}

/// Reads the file back and shows what `zRewrite` makes of its bytes.
void frmDictEdit::ShowRewritten(std::string (*zRewrite)(std::string)) {
  std::optional<std::string> bytes = ReadWholeFile(context_.dictionary.File());
  if (!bytes) {
    context_.prompts.Tell(this, QStringLiteral("The dictionary was saved, but cannot be read back:"
                                               "\r\n%1")
                                    .arg(Shown(context_.dictionary.File())));
    return;
  }
  const std::string text = zRewrite(std::move(*bytes));
  const bool isSame = text.size() == TextLength() && text == txtDictionary_->Text();
  if (!isSame) {
    txtDictionary_->ReplaceText(text);
  }
}

bool frmDictEdit::SaveText() {
  if (!MayReplaceFile()) {
    return false;
  }
  if (!ReplaceFile(context_.dictionary.File(), FileBytesFromBox(txtDictionary_->Text()))) {
    context_.prompts.Tell(
        this,
        QStringLiteral("The dictionary could not be saved; the file is as it was, and your "
                       "text is still here.\r\nCheck the disk and whether you may write\r\n%1")
            .arg(Shown(context_.dictionary.File())));
    return false;
  }
  isUnread_ = false;
  ShowWhetherSaved(true);
  return true;
}

/// Whether the text in the box may replace the file. Asks when the file could not be shown.
bool frmDictEdit::MayReplaceFile() {
  return !isUnread_ ||
         context_.prompts.Ask(
             this, ApplicationTitle,
             QStringLiteral(
                 "The dictionary file could not be shown here. Replace all that is in it "
                 "by the text in this window?"),
             PromptButtons::YesNo) == PromptAnswer::Yes;
}

void frmDictEdit::btnFind_Click() {
  const std::optional<QString> sought =
      context_.prompts.AskText(this, QStringLiteral("Find"), QStringLiteral("Find:"), sought_);
  if (sought && !sought->isEmpty()) {
    sought_ = *sought;
    FindNext();
  }
}

void frmDictEdit::FindNext() {
  if (sought_.isEmpty()) {
    btnFind_Click();
    return;
  }
  const auto from = txtDictionary_->SelectionStart() + txtDictionary_->SelectionLength();
  const std::size_t found = CanHold(sought_) ? FindText(txtDictionary_->Text(), ToBytes(sought_),
                                                        static_cast<std::size_t>(from))
                                             : std::string::npos;
  if (found == std::string::npos) {
    const QString shown = sought_.size() > ShownLength ? sought_.left(ShownLength) + u'…' : sought_;
    context_.prompts.Tell(this, QStringLiteral("“%1” was not found.").arg(shown));
    return;
  }
  txtDictionary_->Select(static_cast<int>(found), static_cast<int>(sought_.size()));
  ShowSelection();
}

void frmDictEdit::FillBlank() {
  const bool isOpen = RunBusy(this, nullptr, [this] {
    const std::optional<FilledEntries> filled = FillWithProgress(txtDictionary_->Text());
    if (!filled || IsUnloaded()) {
      return;
    }
    if (filled->text.size() > EditableLimits::Bytes) {
      context_.prompts.Tell(this, QStringLiteral("Nothing was changed: with all sounds the "
                                                 "dictionary would be too large for this window."));
      return;
    }
    if (filled->count > 0) {
      txtDictionary_->ReplaceText(filled->text);
    }
    ShowHint(txtDictionary_, FilledNotice(*filled));
  });
  if (isOpen) {
    txtDictionary_->setFocus();
  }
}

/// Nothing when the user cancels or the window is closed. Events run only while the progress is
/// shown, which keeps the window from taking input.
std::optional<FilledEntries> frmDictEdit::FillWithProgress(const std::string& zText) {
  constexpr int untilShown = 500;  // milliseconds
  constexpr int betweenSteps = 50;
  QProgressDialog progress("Filling the blank entries...", "Cancel", 0,
                           static_cast<int>(zText.size()), this);
  progress.setWindowTitle(windowTitle());
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(0);
  progress.reset();  // it is not shown before its first value
  QElapsedTimer time;
  time.start();
  qint64 nextStep = untilShown;
  return FillBlankEntries(zText, *context_.english, [&](std::size_t zBytesRead) {
    if (time.elapsed() < nextStep || zBytesRead == zText.size()) {
      return true;
    }
    progress.setValue(static_cast<int>(zBytesRead));
    QCoreApplication::processEvents();  // QProgressDialog runs none at its first value
    nextStep = time.elapsed() + betweenSteps;
    return !progress.wasCanceled() && !IsUnloaded();
  });
}

void frmDictEdit::ShowSelection() {
  txtDictionary_->setFocus(Qt::OtherFocusReason);
  if (!txtDictionary_->viewport()->rect().contains(txtDictionary_->cursorRect())) {
    txtDictionary_->centerCursor();
  }
}

void frmDictEdit::btnReadTerms_Click() {
  WordImport import([this](std::string_view zWord) {
    return context_.dictionary.GetDictionaryValue(DictionaryStore::Section, zWord, NoEntry) ==
           NoEntry;
  });
  QString failure;
  auto* const button = form_.Get<QPushButton>("btnReadTerms");
  const bool isOpen = RunBusy(this, button, [&] {
    failure = ImportFailure(import);
    if (!IsUnloaded()) {
      AppendToText(import.TakeAddedText());
    }
  });
  if (!isOpen) {
    return;
  }
  if (!failure.isEmpty()) {
    context_.prompts.Tell(this, failure);
  }
  context_.prompts.Ask(this, QStringLiteral("Import Status"),
                       QString::number(import.Count()) + QStringLiteral(" Words added"),
                       PromptButtons::Ok);
}

/// In bytes. Does not make the text, which would take a while when it is long.
std::size_t frmDictEdit::TextLength() const {
  return static_cast<std::size_t>(txtDictionary_->document()->characterCount()) - 1;
}

/// Adds `zText` at the end of the text. The caret is then after it, in view.
void frmDictEdit::AppendToText(std::string_view zText) {
  if (!zText.empty()) {
    txtDictionary_->moveCursor(QTextCursor::End);
    txtDictionary_->ReplaceSelection(zText);
    txtDictionary_->ensureCursorVisible();
  }
}

/// Feeds the word list to `zImport` until its end, until the window is closed or until the box
/// would hold too much. Events run meanwhile. Returns what went wrong, or nothing.
QString frmDictEdit::ImportFailure(WordImport& zImport) {
  WordList list(WordListFile);
  while (const std::optional<std::string_view> piece = list.NextPiece()) {
    zImport.Feed(*piece);
    QCoreApplication::processEvents();
    if (IsUnloaded()) {
      return {};
    }
    if (IsTooMuch(zImport)) {
      return QStringLiteral(
          "The word list has more words, or a longer one, than the dictionary can take;\r\nonly "
          "the words before that were added.");
    }
  }
  zImport.Finish();
  return list.HasFailed() ? QStringLiteral("The word list %1 cannot be read or created in\r\n%2")
                                .arg(WordListFile, QDir::currentPath())
                          : QString();
}

bool frmDictEdit::IsTooMuch(const WordImport& zImport) const {
  return TextLength() + zImport.AddedText().size() > EditableLimits::Bytes ||
         static_cast<std::size_t>(txtDictionary_->blockCount()) + zImport.Count() >
             EditableLimits::Lines ||
         zImport.UnfinishedSize() > EditableLimits::LineLength;
}

}  // namespace loquitor
