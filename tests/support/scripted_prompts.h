#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "ui/toolkit/prompts.h"

namespace loquitor::testing {

/// Answers the program's questions from a list and remembers them. Without an answer in the list a
/// box is closed (Cancel, No or Ok).
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
    if (whileOpen) {
      whileOpen();
    }
    if (answers.empty()) {
      return Closed(zButtons);
    }
    const PromptAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::optional<QString> AskText(QWidget*, const QString& zTitle, const QString& zPrompt,
                                 const QString& zInitial) override {
    asked.push_back({zTitle, zPrompt, PromptButtons::OkCancel});
    offered.push_back(zInitial);
    if (texts.empty()) {
      return std::nullopt;
    }
    const QString text = texts.front();
    texts.pop_front();
    return text;
  }

  std::vector<Asked> asked;
  std::vector<QString> offered;  ///< the texts that input boxes started with
  std::deque<PromptAnswer> answers;
  std::deque<QString> texts;
  std::function<void()> whileOpen;

 private:
  static PromptAnswer Closed(PromptButtons zButtons) {
    switch (zButtons) {
      case PromptButtons::Ok:
        return PromptAnswer::Ok;
      case PromptButtons::YesNo:
        return PromptAnswer::No;
      default:
        return PromptAnswer::Cancel;
    }
  }
};

}  // namespace loquitor::testing
