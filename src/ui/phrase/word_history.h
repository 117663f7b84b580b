#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

namespace loquitor {

class TextArea;
class TextBox;

/// Keeps a word box in step with the undo history of a text area. When an edit that loaded the
/// entry of a word is undone, the box gets the word from before it back. When the edit is redone,
/// the box gets the loaded word again. A word that the user has typed since then stays.
class WordHistory : public QObject {
  Q_OBJECT
 public:
  /// The area owns this object.
  WordHistory(TextArea* zArea, TextBox* zWordBox);

  /// Runs `zEdit`, one undoable edit of the area, and puts `zWord` into the box.
  void Record(const std::string& zWord, const std::function<void()>& zEdit);

 private:
  struct Edit {
    int end;  ///< the size of the undo history after it
    std::string before;
    std::string after;
  };

  void ForgetRedo();
  void Area_ContentsChanged();
  void ReplaceWord(const std::string& zOld, const std::string& zNew);

  TextArea* area_;
  TextBox* wordBox_;
  std::vector<Edit> edits_;  ///< oldest first
  int end_ = 0;              ///< the present size of the undo history
};

}  // namespace loquitor
