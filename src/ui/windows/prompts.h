#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace loquitor {

/// The buttons of a message box, and the one that answered it. A box that is closed, or whose owner
/// is destroyed, answers Cancel if it has that button, otherwise No if it has that, otherwise Ok.
enum class PromptButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class PromptAnswer { Ok, Cancel, Yes, No };

inline const QString ApplicationTitle = QStringLiteral("Loquitor");

/// The questions and messages of the program. Tests answer them with an implementation of their
/// own.
class Prompts {
 public:
  virtual ~Prompts() = default;

  /// Shows a message box without an icon over `zOwner` (may be null) and waits for the answer.
  /// `zText` is plain text; "\r\n" and "\n" break lines.
  virtual PromptAnswer Ask(QWidget* zOwner, const QString& zTitle, const QString& zText,
                           PromptButtons zButtons) = 0;

  /// Shows an input box over `zOwner` (may be null) that starts with `zInitial`, and waits for the
  /// answer. Returns the typed text, or nothing when the box was cancelled or its owner destroyed.
  virtual std::optional<QString> AskText(QWidget* zOwner, const QString& zTitle,
                                         const QString& zPrompt, const QString& zInitial) = 0;

  /// Shows a message with an OK button and the title of the application.
  void Tell(QWidget* zOwner, const QString& zText) {
    Ask(zOwner, ApplicationTitle, zText, PromptButtons::Ok);
  }
};

/// Shows the boxes on the desktop. An input box refuses characters outside Windows-1252.
class DesktopPrompts : public Prompts {
 public:
  PromptAnswer Ask(QWidget* zOwner, const QString& zTitle, const QString& zText,
                   PromptButtons zButtons) override;
  std::optional<QString> AskText(QWidget* zOwner, const QString& zTitle, const QString& zPrompt,
                                 const QString& zInitial) override;
};

}  // namespace loquitor
