#include "ui/toolkit/text_history.h"

#include <QKeyEvent>
#include <QMenu>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "ui/toolkit/code_page.h"
#include "ui/toolkit/large_blocks.h"

namespace loquitor {
namespace {

/// How many characters of the document are looked at in one piece.
constexpr int PieceLength = 1 << 16;

/// From how many bytes on the memory of what the box has shown is given back before it shows more.
constexpr std::size_t LargeText = 1 << 20;

/// From how many bytes on a step is compressed, and how hard (1 to 9, see zlib).
constexpr std::size_t PackedFrom = 1 << 16;
constexpr int PackingLevel = 1;

/// The bytes of a piece of the document. Every character gets one, a foreign one a question mark,
/// so that positions in the document and in the bytes stay the same.
std::string BytesOf(QString zPiece) {
  zPiece.replace(QChar::ParagraphSeparator, QChar::LineFeed);
  zPiece.replace(QChar::LineSeparator, QChar::LineFeed);
  if (!CanHold(zPiece)) {
    for (QChar& character : zPiece) {
      character = CanHold(QString(character)) ? character : QChar('?');
    }
  }
  return ToBytes(zPiece);
}

/// Where two texts differ: what stands in the one between what they have in common at their
/// beginning and at their end, and what in the other.
struct Stretch {
  std::size_t start;
  std::string_view before;
  std::string_view after;
};

Stretch ChangedStretch(std::string_view zBefore, std::string_view zAfter) {
  const auto first = std::mismatch(zBefore.begin(), zBefore.end(), zAfter.begin(), zAfter.end());
  const auto start = static_cast<std::size_t>(first.first - zBefore.begin());
  zBefore.remove_prefix(start);
  zAfter.remove_prefix(start);
  const auto last = std::mismatch(zBefore.rbegin(), zBefore.rend(), zAfter.rbegin(), zAfter.rend());
  const auto tail = static_cast<std::size_t>(last.first - zBefore.rbegin());
  zBefore.remove_suffix(tail);
  zAfter.remove_suffix(tail);
  return {start, zBefore, zAfter};
}

/// Inserts a text in pieces: as one, it would take three times its size on the way.
void InsertPieces(QTextCursor& zCursor, std::string_view zText) {
  for (std::size_t from = 0; from < zText.size(); from += PieceLength) {
    zCursor.insertText(ToQString(zText.substr(from, PieceLength)));
  }
}

/// Sets a flag as long as it lives.
class FlagRaised {
 public:
  explicit FlagRaised(bool& zFlag) : flag_(zFlag), before_(std::exchange(zFlag, true)) {}
  ~FlagRaised() { flag_ = before_; }
  FlagRaised(const FlagRaised&) = delete;
  FlagRaised& operator=(const FlagRaised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

TextHistory::TextHistory(TextArea* zArea, std::size_t zBound)
    : QObject(zArea), area_(zArea), bound_(zBound) {
  text_ = AreaText(0, area_->document()->characterCount() - 1);
  area_->setUndoRedoEnabled(false);
  area_->installEventFilter(this);
  area_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(area_, &QWidget::customContextMenuRequested, this, &TextHistory::ShowContextMenu);
  connect(area_->document(), &QTextDocument::contentsChange, this,
          [this](int zFrom, int zRemoved, int) { RecordChange(zFrom, zRemoved); });
}

void TextHistory::Load(std::string zText) {
  undo_.clear();
  ForgetRedo();
  bytesHeld_ = 0;
  text_ = std::move(zText);
  Show();
}

void TextHistory::ReplaceAll(const std::function<std::string()>& zRewrite) {
  const int caret = area_->textCursor().position();
  ClearArea();
  std::string rewritten = zRewrite();
  const Stretch changed = ChangedStretch(text_, rewritten);
  if (!changed.before.empty() || !changed.after.empty()) {
    Step step{changed.start, changed.after.size(), std::string(changed.before), caret};
    text_ = std::move(rewritten);
    ForgetRedo();
    Push(undo_, std::move(step));
  }
  Show();
}

void TextHistory::Append(std::string zText) {
  if (zText.empty()) {
    return;
  }
  const std::size_t start = text_.size();
  text_.append(std::exchange(zText, {}));  // not kept twice while the box takes several times it
  const std::string_view added = std::string_view(text_).substr(start);
  area_->moveCursor(QTextCursor::End);
  {
    const FlagRaised ownChange(isOwnChange_);
    QTextCursor cursor = area_->textCursor();
    cursor.beginEditBlock();
    InsertPieces(cursor, added);
    cursor.endEditBlock();
    area_->setTextCursor(cursor);
  }
  area_->ensureCursorVisible();
  ForgetRedo();
  Push(undo_, {start, added.size(), {}});
}

void TextHistory::Undo() {
  if (CanUndo()) {
    Push(redo_, Apply(Pop(undo_)));
  }
}

void TextHistory::Redo() {
  if (CanRedo()) {
    Push(undo_, Apply(Pop(redo_)));
  }
}

/// Exchanges what the step holds with what the box holds, and returns the step that exchanges them
/// again. The whole text is shown afresh where most of it changes: that is quicker, and lets go of
/// the memory of what was there.
TextHistory::Step TextHistory::Apply(Step zStep) {
  const std::size_t added = zStep.Size();
  Step inverse{zStep.start, added, {}};
  int caret = static_cast<int>(zStep.start + added);
  if (zStep.caret >= 0) {
    inverse.caret = area_->textCursor().position();
    caret = zStep.caret;
  }
  const std::size_t size = text_.size() - zStep.length + added;
  const bool isShownAfresh = std::max(zStep.length, added) > size / 2;
  if (isShownAfresh) {
    ClearArea();  // first, for its memory
  }
  zStep.Unpack();
  if (zStep.start == 0 && zStep.length == text_.size()) {
    inverse.other = std::exchange(text_, std::move(zStep.other));
  } else {
    inverse.other = text_.substr(zStep.start, zStep.length);
    text_.replace(zStep.start, zStep.length, std::exchange(zStep.other, {}));
  }
  if (isShownAfresh) {
    inverse.Pack();
    Show();
  } else {
    ShowChange(inverse.start, zStep.length, inverse.length);
  }
  area_->Select(caret, 0);
  area_->ensureCursorVisible();
  return inverse;
}

/// Shows what now stands from `zStart` on, `zAdded` bytes, in place of `zRemoved` bytes.
void TextHistory::ShowChange(std::size_t zStart, std::size_t zRemoved, std::size_t zAdded) {
  const FlagRaised ownChange(isOwnChange_);
  QTextCursor cursor(area_->document());
  cursor.setPosition(static_cast<int>(zStart));
  cursor.setPosition(static_cast<int>(zStart + zRemoved), QTextCursor::KeepAnchor);
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  InsertPieces(cursor, std::string_view(text_).substr(zStart, zAdded));
  cursor.endEditBlock();
}

void TextHistory::ClearArea() {
  const FlagRaised ownChange(isOwnChange_);
  area_->SetText("");
  if (text_.size() >= LargeText) {
    ReturnSmallBlocks();
  }
}

void TextHistory::Show() {
  ClearArea();
  const FlagRaised ownChange(isOwnChange_);
  QTextCursor cursor(area_->document());
  cursor.beginEditBlock();
  InsertPieces(cursor, text_);
  cursor.endEditBlock();
  area_->moveCursor(QTextCursor::Start);
}

/// The user has changed the area. `zRemoved` may count the end of the document, and the stretch may
/// be larger than what has really changed; what was added follows from the lengths.
void TextHistory::RecordChange(int zFrom, int zRemoved) {
  if (isOwnChange_) {
    return;
  }
  const auto start = std::min(static_cast<std::size_t>(zFrom), text_.size());
  const auto removed = std::min(static_cast<std::size_t>(zRemoved), text_.size() - start);
  const int length = area_->document()->characterCount() - 1;
  const auto behind = static_cast<int>(text_.size() - start - removed);
  const std::string added = AreaText(zFrom, length - behind);

  const Stretch changed = ChangedStretch(std::string_view(text_).substr(start, removed), added);
  Step step{start + changed.start, changed.after.size(), std::string(changed.before)};
  if (step.length == 0 && step.other.empty()) {
    return;
  }
  step.isRun = step.length + step.other.size() == 1 && changed.after != "\n";
  text_.replace(step.start, step.other.size(), changed.after);
  ForgetRedo();
  if (!JoinsLastStep(step)) {
    Push(undo_, std::move(step));
  }
}

/// Makes a typed or erased character part of the run before it, when it carries that on.
bool TextHistory::JoinsLastStep(const Step& zStep) {
  if (undo_.empty() || !undo_.back().isRun || !zStep.isRun) {
    return false;
  }
  Step& last = undo_.back();
  if (zStep.length > 0) {
    const bool joins = last.other.empty() && last.start + last.length == zStep.start;
    last.length += joins ? 1 : 0;
    return joins;
  }
  const bool isBefore = zStep.start + 1 == last.start;
  if (last.length > 0 || (!isBefore && zStep.start != last.start)) {
    return false;
  }
  last.other.insert(isBefore ? 0 : last.other.size(), zStep.other);
  last.start = zStep.start;
  ++bytesHeld_;
  return true;
}

void TextHistory::Push(std::deque<Step>& zSteps, Step zStep) {
  zStep.Pack();
  bytesHeld_ += zStep.other.size();
  zSteps.push_back(std::move(zStep));
  KeepWithinBound();
}

TextHistory::Step TextHistory::Pop(std::deque<Step>& zSteps) {
  Step step = std::move(zSteps.back());
  zSteps.pop_back();
  bytesHeld_ -= step.other.size();
  return step;
}

void TextHistory::Step::Pack() {
  if (!isPacked && other.size() >= PackedFrom) {
    plainSize = other.size();
    other = qCompress(reinterpret_cast<const uchar*>(other.data()),
                      static_cast<qsizetype>(other.size()), PackingLevel)
                .toStdString();
    isPacked = true;
  }
}

void TextHistory::Step::Unpack() {
  if (isPacked) {
    other = qUncompress(reinterpret_cast<const uchar*>(other.data()),
                        static_cast<qsizetype>(other.size()))
                .toStdString();
    isPacked = false;
  }
}

void TextHistory::KeepWithinBound() {
  const std::size_t bound = std::max(bound_, 2 * text_.size());
  const auto isTooMuch = [this, bound] { return bytesHeld_ + undo_.size() * sizeof(Step) > bound; };
  while (undo_.size() > 1 && isTooMuch()) {
    bytesHeld_ -= undo_.front().other.size();
    undo_.pop_front();
  }
}

void TextHistory::ForgetRedo() {
  for (const Step& step : redo_) {
    bytesHeld_ -= step.other.size();
  }
  redo_.clear();
}

/// The bytes of the document from `zFrom` to before `zEnd`, made in pieces.
std::string TextHistory::AreaText(int zFrom, int zEnd) const {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(std::max(zEnd - zFrom, 0)));
  QTextCursor cursor(area_->document());
  for (int from = zFrom; from < zEnd; from += PieceLength) {
    cursor.setPosition(from);
    cursor.setPosition(std::min(from + PieceLength, zEnd), QTextCursor::KeepAnchor);
    bytes += BytesOf(cursor.selectedText());
  }
  return bytes;
}

bool TextHistory::eventFilter(QObject* zWatched, QEvent* zEvent) {
  if (zEvent->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(zEvent);
    if (key->matches(QKeySequence::Undo)) {
      Undo();
      return true;
    }
    if (key->matches(QKeySequence::Redo)) {
      Redo();
      return true;
    }
  }
  return QObject::eventFilter(zWatched, zEvent);
}

void TextHistory::ShowContextMenu(const QPoint& zPosition) {
  QMenu* menu = area_->createStandardContextMenu(zPosition);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QList<QAction*> actions = menu->actions();
  const auto replace = [menu, this](QAction* zOld, bool zIsEnabled, auto zStep) {
    auto* own = new QAction(zOld->icon(), zOld->text(), menu);
    own->setEnabled(zIsEnabled);
    connect(own, &QAction::triggered, this, zStep);
    menu->insertAction(zOld, own);
    menu->removeAction(zOld);
  };
  replace(actions.at(0), CanUndo(), &TextHistory::Undo);
  replace(actions.at(1), CanRedo(), &TextHistory::Redo);
  menu->popup(area_->viewport()->mapToGlobal(zPosition));
}

}  // namespace loquitor
