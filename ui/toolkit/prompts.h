#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace loquitor {

/// The buttons of a message box, and the one that answered it. Closing a box answers Cancel where
/// it has one, else No where it has one, else Ok.
enum class PromptButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class PromptAnswer { Ok, Cancel, Yes, No };

inline const QString ApplicationTitle = QStringLiteral("Loquitor");

/// Everything that the program asks its user, behind one interface so that a test can answer.
class Prompts {
 public:
  virtual ~Prompts() = default;

  /// A message box without icon over `zOwner`. `zText` is plain text; "\r\n" and "\n" break lines.
  virtual PromptAnswer Ask(QWidget* zOwner, const QString& zTitle, const QString& zText,
                           PromptButtons zButtons) = 0;

  /// An input box; the typed text, or nothing when it was cancelled.
  virtual std::optional<QString> AskText(QWidget* zOwner, const QString& zTitle,
                                         const QString& zPrompt, const QString& zInitial) = 0;

  /// A message with an OK button and the application's title.
  void Tell(QWidget* zOwner, const QString& zText) {
    Ask(zOwner, ApplicationTitle, zText, PromptButtons::Ok);
  }
};

/// The real boxes.
class DesktopPrompts : public Prompts {
 public:
  PromptAnswer Ask(QWidget* zOwner, const QString& zTitle, const QString& zText,
                   PromptButtons zButtons) override;
  std::optional<QString> AskText(QWidget* zOwner, const QString& zTitle, const QString& zPrompt,
                                 const QString& zInitial) override;
};

}  // namespace loquitor
