#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "ui/windows/prompts.h"

namespace loquitor::testing {

/// Answers the program's questions from a list, and remembers them. When the list is empty it
/// closes the box (Cancel, No or Ok).
class ScriptedPrompts : public Prompts {
 public:
  struct Asked {
    QString title;
    QString text;
    PromptButtons buttons;
  };

  PromptAnswer Ask(QWidget*, const QString& zTitle, const QString& zText,
                   PromptButtons zButtons) override {
    asked.push_back({zTitle, zText, zButtons});
    whileOpen();
    return TakeFirst(answers).value_or(Closed(zButtons));
  }

  std::optional<QString> AskText(QWidget*, const QString& zTitle, const QString& zPrompt,
                                 const QString& zInitial) override {
    asked.push_back({zTitle, zPrompt, PromptButtons::OkCancel});
    offered.push_back(zInitial);
    return TakeFirst(texts);
  }

  std::vector<Asked> asked;
  std::vector<QString> offered;  ///< the texts that input boxes started with
  std::deque<PromptAnswer> answers;
  std::deque<QString> texts;
  std::function<void()> whileOpen = [] {};

 private:
  template <class Answer>
  static std::optional<Answer> TakeFirst(std::deque<Answer>& zAnswers) {
    if (zAnswers.empty()) {
      return std::nullopt;
    }
    const Answer first = zAnswers.front();
    zAnswers.pop_front();
    return first;
  }
  static PromptAnswer Closed(PromptButtons zButtons) {
    return zButtons == PromptButtons::Ok      ? PromptAnswer::Ok
           : zButtons == PromptButtons::YesNo ? PromptAnswer::No
                                              : PromptAnswer::Cancel;
  }
};

}  // namespace loquitor::testing
