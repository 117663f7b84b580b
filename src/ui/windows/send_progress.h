#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <cstddef>

#include "line/code_sender.h"

namespace loquitor {

/// Shows in a window's title how much of a long send is left: "43% to go - Orvatone EEPROM Editor".
/// The window is the topmost one. Sends of less than a second are not shown.
class SendProgress : public QObject {
 public:
  /// `zMainWindow` shows the progress when no editor is open. Both outlive this object.
  SendProgress(QWidget* zMainWindow, const CodeSender& zSender);

  /// To be called with true when a send begins, and with false when the last one has ended.
  void SetSending(bool zIsSending);

 private:
  void Update();
  void Show(QWidget* zWindow, const QString& zProgress);
  void Clear();

  QWidget* mainWindow_;
  const CodeSender& sender_;
  QTimer timer_;
  std::size_t total_ = 0;  // bytes of the present send
  std::size_t toGo_ = 0;   // bytes that were left at the last look
  int looks_ = 0;          // how many looks at the present send there were
  QPointer<QWidget> shownIn_;
  QString title_;  // the title of shownIn_ without the progress
};

}  // namespace loquitor
