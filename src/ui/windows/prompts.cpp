#include "ui/windows/prompts.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <memory>

#include "ui/controls/code_page_input.h"
#include "ui/windows/stray_double_click.h"

namespace loquitor {
namespace {

constexpr int InputWidth = 320;  // pixels

/// A set of buttons in Qt's terms.
struct BoxButtons {
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton onClose;
};

BoxButtons ButtonsOf(PromptButtons zButtons) {
  switch (zButtons) {
    case PromptButtons::OkCancel:
      return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
    case PromptButtons::YesNo:
      return {QMessageBox::Yes | QMessageBox::No, QMessageBox::No};
    case PromptButtons::YesNoCancel:
      return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel};
    case PromptButtons::Ok:
      break;
  }
  return {QMessageBox::Ok, QMessageBox::Ok};
}

PromptAnswer AnswerOf(int zButton) {
  switch (zButton) {
    case QMessageBox::Ok:
      return PromptAnswer::Ok;
    case QMessageBox::Yes:
      return PromptAnswer::Yes;
    case QMessageBox::No:
      return PromptAnswer::No;
    default:
      return PromptAnswer::Cancel;
  }
}

QString WithPlainBreaks(const QString& zText) {
  return QString(zText).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

/// Makes the box wide enough for its longest line and for its title. Otherwise Qt breaks lines at
/// half the screen, and window managers cut titles.
void KeepLinesWhole(QMessageBox& zBox) {
  constexpr int RoomForTheRest = 200;      // pixels: borders of the box and a part of the screen
  constexpr int RoomBesideTheTitle = 110;  // an icon and three buttons, less the borders of the box
  if (auto* label = zBox.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
    QFont bold = zBox.font();
    bold.setBold(true);
    const int lines = label->fontMetrics().size(Qt::TextExpandTabs, zBox.text()).width() + 2;
    const int title = QFontMetrics(bold).horizontalAdvance(zBox.windowTitle()) + RoomBesideTheTitle;
    label->setMinimumWidth(
        std::min(std::max(lines, title), zBox.screen()->size().width() - RoomForTheRest));
  }
}

}  // namespace

PromptAnswer DesktopPrompts::Ask(QWidget* zOwner, const QString& zTitle, const QString& zText,
                                 PromptButtons zButtons) {
  const BoxButtons buttons = ButtonsOf(zButtons);
  // The owner may be destroyed while the box is shown, which destroys the box too.
  const QPointer<QMessageBox> box =
      new QMessageBox(QMessageBox::NoIcon, zTitle, WithPlainBreaks(zText), buttons.buttons, zOwner);
  box->setTextFormat(Qt::PlainText);
  box->setEscapeButton(buttons.onClose);
  KeepLinesWhole(*box);
  IgnoreStrayDoubleClicks(box);
  const int answer = box->exec();
  if (!box) {
    return AnswerOf(buttons.onClose);
  }
  delete box;
  return AnswerOf(answer);
}

std::optional<QString> DesktopPrompts::AskText(QWidget* zOwner, const QString& zTitle,
                                               const QString& zPrompt, const QString& zInitial) {
  const QPointer<QInputDialog> box = new QInputDialog(zOwner);
  box->setWindowTitle(zTitle);
  box->setLabelText(WithPlainBreaks(zPrompt));
  box->setTextValue(zInitial);
  if (auto* line = box->findChild<QLineEdit*>()) {
    line->setValidator(new CodePageValidator(line));
    line->setMinimumWidth(InputWidth);
    line->selectAll();
  }
  IgnoreStrayDoubleClicks(box);
  const bool isAccepted = box->exec() == QDialog::Accepted;
  if (!box) {
    return std::nullopt;
  }
  const std::unique_ptr<QInputDialog> owned(box);
  return isAccepted ? std::optional(owned->textValue()) : std::nullopt;
}

}  // namespace loquitor
