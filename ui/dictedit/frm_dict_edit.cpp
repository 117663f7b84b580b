#include "ui/dictedit/frm_dict_edit.h"

#include <QCoreApplication>
#include <QDir>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <array>
#include <filesystem>
#include <optional>
#include <utility>

#include "core/dictionary_text.h"
#include "link/file_bytes.h"
#include "link/fresh_profile.h"
#include "ui/dictedit/word_list.h"
#include "ui/toolkit/busy.h"
#include "ui/toolkit/code_page.h"

namespace loquitor {
namespace {

constexpr TwipSize ClientSize{10350, 7500};

constexpr std::array<ControlRow, 7> Rows{{
    {ControlKind::Button, "btnReadTerms", "", "Import New Words", {9060, 210, 1245, 615}},
    {ControlKind::TextArea,
     "txtDictionary",
     "",
     "",
     {60, 60, 8925, 7395},
     "",
     "Text of the dictionary"},
    {ControlKind::Button, "btnSaveChanges", "", "Save Changes", {9060, 6000, 1245, 435}},
    {ControlKind::Button, "btnSort", "", "Save && Sort", {9060, 5460, 1245, 435}},
    {ControlKind::Button, "btnDone", "", "Done", {9060, 6960, 1245, 435}},
    {ControlKind::Button, "btnFind", "", "Find", {9060, 3540, 1245, 435}},
    {ControlKind::Button, "btnEraseBlank", "", "Erase Blank Entries", {9060, 930, 1245, 585}},
}};

constexpr const char* WordListFile = "ImportWords.txt";
constexpr std::string_view NoEntry = "NoEntry";
constexpr int ShownLength = 60;  ///< of a sought text, in a message

QString Shown(const std::filesystem::path& zPath) {
  return QString::fromStdString(zPath.string());
}

}  // namespace

frmDictEdit::frmDictEdit(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Dictionary Editor"), ClientSize),
      context_(zContext),
      form_(this) {
  form_.Add(Rows);
  txtDictionary_ = form_.Get<TextArea>(QStringLiteral("txtDictionary"));
  txtDictionary_->StopWrapping();
  history_ = new TextHistory(txtDictionary_);
  ConnectControls();
}

void frmDictEdit::ConnectControls() {
  const auto onClick = [this](const char* zName, void (frmDictEdit::*zHandler)()) {
    connect(form_.Get<QPushButton>(QString::fromLatin1(zName)), &QPushButton::clicked, this,
            zHandler);
  };
  onClick("btnReadTerms", &frmDictEdit::btnReadTerms_Click);
  onClick("btnSaveChanges", &frmDictEdit::btnSaveChanges_Click);
  onClick("btnSort", &frmDictEdit::btnSort_Click);
  onClick("btnDone", &frmDictEdit::btnDone_Click);
  onClick("btnFind", &frmDictEdit::btnFind_Click);
  onClick("btnEraseBlank", &frmDictEdit::btnEraseBlank_Click);

  const auto onKey = [this](const QKeySequence& zKey, auto* zReceiver, auto zHandler) {
    connect(new QShortcut(zKey, this), &QShortcut::activated, zReceiver, zHandler);
  };
  onKey(QKeySequence::Find, this, &frmDictEdit::btnFind_Click);
  onKey(Qt::Key_F3, this, &frmDictEdit::FindNext);
  onKey(QKeySequence::Save, this, &frmDictEdit::btnSaveChanges_Click);
  // Also while the focus is on the button that has just changed the text.
  onKey(QKeySequence::Undo, history_, &TextHistory::Undo);
  onKey(QKeySequence::Redo, history_, &TextHistory::Redo);
}

void frmDictEdit::Load() {
  FixBoxWidth();
  LoadDictionary();
}

/// Gives the box its final width before it gets a text: when the width changes, Qt makes a layout
/// for every line there is, which takes more memory than the text.
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
  const QString failure = ShowDictionary(file);
  isUnread_ = !failure.isEmpty();
  if (isUnread_) {
    TellOnceShown(failure.arg(Shown(file)));
  }
}

/// Returns why the file cannot be shown (%1 stands for its name), or nothing.
QString frmDictEdit::ShowDictionary(const std::filesystem::path& zFile) {
  const QString tooLarge = QStringLiteral("The dictionary is too large to be edited here:\r\n%1");
  std::error_code failure;
  if (std::filesystem::file_size(zFile, failure) > MaximumBytes && !failure) {
    return tooLarge;
  }
  std::optional<std::string> bytes = ReadWholeFile(zFile);
  if (!bytes) {
    return QStringLiteral("The dictionary cannot be read. Check whether you may read it:\r\n%1");
  }
  std::string text = BoxTextFromFile(*bytes);
  bytes.reset();
  const TextExtent extent = ExtentOf(text);
  if (extent.lines > MaximumLines) {
    return tooLarge;
  }
  if (extent.longestLine > MaximumLineLength) {
    return QStringLiteral(
               "Line %2 of the dictionary is too long to be edited here; it must not "
               "have more than %3 characters:\r\n%1")
        .arg(QStringLiteral("%1"), QString::number(extent.longestAt),
             QString::number(MaximumLineLength));
  }
  history_->Load(std::move(text));
  return {};
}

void frmDictEdit::TellOnceShown(const QString& zText) {
  QTimer::singleShot(0, this, [this, zText] {
    if (!IsUnloaded()) {
      context_.prompts.Tell(this, zText);
    }
  });
}

void frmDictEdit::btnSaveChanges_Click() {
  SaveText();
}

void frmDictEdit::btnSort_Click() {
  SaveAndRewrite(form_.Get<QPushButton>(QStringLiteral("btnSort")), SortedText);
}

void frmDictEdit::btnEraseBlank_Click() {
  SaveAndRewrite(form_.Get<QPushButton>(QStringLiteral("btnEraseBlank")), CleanedText);
}

void frmDictEdit::btnDone_Click() {
  close();
}

/// Saves, and then shows what `zRewrite` makes of the bytes that are now in the file.
void frmDictEdit::SaveAndRewrite(QWidget* zButton, std::string (*zRewrite)(std::string)) {
  const Busy busy(this, zButton);
  if (IsUnloaded() || !SaveText()) {
    return;
  }
  std::optional<std::string> bytes;
  history_->ReplaceAll([&] {
    bytes = ReadWholeFile(context_.dictionary.File());
    return bytes ? zRewrite(std::move(*bytes)) : history_->Text();
  });
  if (!bytes) {
    context_.prompts.Tell(this, QStringLiteral("The dictionary was saved, but cannot be read back:"
                                               "\r\n%1")
                                    .arg(Shown(context_.dictionary.File())));
  }
}

bool frmDictEdit::SaveText() {
  if (!MayReplaceFile()) {
    return false;
  }
  if (!ReplaceFile(context_.dictionary.File(), FileBytesFromBox(history_->Text()))) {
    context_.prompts.Tell(
        this,
        QStringLiteral("The dictionary could not be saved; the file is as it was, and your "
                       "text is still here.\r\nCheck the disk and whether you may write\r\n%1")
            .arg(Shown(context_.dictionary.File())));
    return false;
  }
  isUnread_ = false;
  return true;
}

/// A file that could not be shown is replaced by what is in the box only after a question.
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
  const std::size_t found = CanHold(sought_) ? FindText(history_->Text(), ToBytes(sought_),
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

void frmDictEdit::ShowSelection() {
  txtDictionary_->setFocus(Qt::OtherFocusReason);
  if (!txtDictionary_->viewport()->rect().contains(txtDictionary_->cursorRect())) {
    txtDictionary_->centerCursor();
  }
}

void frmDictEdit::btnReadTerms_Click() {
  // An index of its own, because one that is remembered would take more memory than the file.
  std::optional<FreshProfile> words(context_.dictionary.File());
  WordImport import([&words](std::string_view zWord) {
    const auto index = words->Index();
    return !index || DictionaryStore::EntryIn(*index, zWord, NoEntry) == NoEntry;
  });
  QString failure;
  {
    const Busy busy(this, form_.Get<QPushButton>(QStringLiteral("btnReadTerms")));
    failure = ImportFailure(import);
    words.reset();
    if (!IsUnloaded()) {
      history_->Append(import.TakeAddedText());
    }
  }
  if (IsUnloaded()) {
    return;
  }
  if (!failure.isEmpty()) {
    context_.prompts.Tell(this, failure);
  }
  context_.prompts.Ask(this, QStringLiteral("Import Status"),
                       QString::number(import.Count()) + QStringLiteral(" Words added"),
                       PromptButtons::Ok);
}

/// Feeds the word list to `zImport`, with the window alive meanwhile, until its end, until the
/// window is closed or until the box would hold too much. Returns what went wrong, or nothing.
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
          "the "
          "words before were added.");
    }
  }
  zImport.Finish();
  return list.HasFailed() ? QStringLiteral("The word list %1 cannot be read or created in\r\n%2")
                                .arg(WordListFile, QDir::currentPath())
                          : QString();
}

bool frmDictEdit::IsTooMuch(const WordImport& zImport) const {
  return history_->Text().size() + zImport.AddedText().size() > MaximumBytes ||
         static_cast<std::size_t>(txtDictionary_->blockCount()) + zImport.Count() > MaximumLines ||
         zImport.UnfinishedSize() > MaximumLineLength;
}

}  // namespace loquitor
