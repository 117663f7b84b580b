#pragma once

#include <QObject>
#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "ui/toolkit/text_area.h"

namespace loquitor {

/// Keeps the text of a TextArea as bytes beside it, and its undo steps within bounded memory, for
/// texts of many megabytes. It takes the place of the area's own undo: the keys and the
/// context menu reach this one. A run of typing or erasing is one step, and so is each call that
/// changes the text. A step holds only the text that is not in the box, compressed when it is long.
/// Positions count bytes; a line break is one LF.
class TextHistory : public QObject {
  Q_OBJECT
 public:
  static constexpr std::size_t UsualBound = std::size_t{8} << 20;

  /// Becomes a child of `zArea`, whose text it takes over. Its steps together hold at most `zBound`
  /// bytes, or twice the text where that is more; the oldest go first, and the newest is kept
  /// whatever its size.
  explicit TextHistory(TextArea* zArea, std::size_t zBound = UsualBound);

  /// The text of the area.
  const std::string& Text() const { return text_; }

  /// Shows `zText` and forgets all steps. The caret stands at the start.
  void Load(std::string zText);

  /// Replaces the whole text by what `zRewrite` makes, which is one step; none when it is the same.
  /// The box is emptied before `zRewrite` runs, because it holds several times the text, and shown
  /// afresh, the caret at the start. The step holds nothing of what the two have in common at their
  /// beginning and their end.
  void ReplaceAll(const std::function<std::string()>& zRewrite);

  /// Adds `zText` behind the last character, which is one step. The caret ends behind it, in view.
  void Append(std::string zText);

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }

  /// Takes back the latest step, or does it again. Nothing happens when there is none.
  void Undo();
  void Redo();

  /// How many bytes of text the steps hold.
  std::size_t BytesHeld() const { return bytesHeld_; }

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  /// To take a step back: `length` bytes from `start` on become `other`.
  struct Step {
    std::size_t start = 0;
    std::size_t length = 0;
    std::string other;   ///< compressed when isPacked
    int caret = -1;      ///< where the caret goes; -1: behind `other`
    bool isRun = false;  ///< one character typed or erased, and those that followed it
    bool isPacked = false;
    std::size_t plainSize = 0;  ///< of `other`, when isPacked

    std::size_t Size() const { return isPacked ? plainSize : other.size(); }
    void Pack();
    void Unpack();
  };

  void RecordChange(int zFrom, int zRemoved);
  void Push(std::deque<Step>& zSteps, Step zStep);
  Step Pop(std::deque<Step>& zSteps);
  bool JoinsLastStep(const Step& zStep);
  void KeepWithinBound();
  Step Apply(Step zStep);
  void ClearArea();
  void Show();
  void ShowChange(std::size_t zStart, std::size_t zRemoved, std::size_t zAdded);
  std::string AreaText(int zFrom, int zEnd) const;
  void ForgetRedo();
  void ShowContextMenu(const QPoint& zPosition);

  TextArea* area_;
  std::size_t bound_;
  std::string text_;
  std::deque<Step> undo_;
  std::deque<Step> redo_;
  std::size_t bytesHeld_ = 0;
  bool isOwnChange_ = false;
};

}  // namespace loquitor
