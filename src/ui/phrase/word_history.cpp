#include "ui/phrase/word_history.h"

#include <QTextDocument>

#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"

namespace loquitor {

WordHistory::WordHistory(TextArea* zArea, TextBox* zWordBox)
    : QObject(zArea), area_(zArea), wordBox_(zWordBox) {
  connect(area_->document(), &QTextDocument::undoCommandAdded, this, &WordHistory::ForgetRedo);
  connect(area_->document(), &QTextDocument::contentsChanged, this,
          &WordHistory::Area_ContentsChanged);
}

void WordHistory::Record(const std::string& zWord, const std::function<void()>& zEdit) {
  const std::string before = wordBox_->Text();
  zEdit();
  wordBox_->SetText(zWord);
  edits_.push_back({area_->document()->availableUndoSteps(), before, zWord});
}

/// A new edit takes the place of those that were undone.
void WordHistory::ForgetRedo() {
  std::erase_if(edits_, [this](const Edit& zEdit) { return zEdit.end > end_; });
}

void WordHistory::Area_ContentsChanged() {
  const int before = end_;
  end_ = area_->document()->availableUndoSteps();
  if (end_ < before && !area_->document()->isRedoAvailable()) {
    edits_.clear();  // SetText has forgotten the undo history
  }
  for (auto edit = edits_.rbegin(); edit != edits_.rend(); ++edit) {
    if (edit->end > end_ && edit->end <= before) {
      ReplaceWord(edit->after, edit->before);
    }
  }
  for (const Edit& edit : edits_) {
    if (edit.end > before && edit.end <= end_) {
      ReplaceWord(edit.before, edit.after);
    }
  }
}

void WordHistory::ReplaceWord(const std::string& zOld, const std::string& zNew) {
  if (wordBox_->Text() == zOld) {
    wordBox_->SetText(zNew);
  }
}

}  // namespace loquitor
