#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <cstddef>

#include "line/code_sender.h"

namespace loquitor {

/// Shows how much of a long send is still to go, in front of the title of the window in front:
/// "43% to go - Orvatone EEPROM Editor". Sends of less than a second are not shown.
class SendProgress : public QObject {
 public:
  /// `zMainWindow` is the window in front when no editor is open. Both outlive this object.
  SendProgress(QWidget* zMainWindow, const CodeSender& zSender);

  /// A send has begun, or the last one has ended.
  void SetSending(bool zIsSending);

 private:
  void Update();
  void Show(QWidget* zWindow, const QString& zProgress);
  void Clear();

  QWidget* mainWindow_;
  const CodeSender& sender_;
  QTimer timer_;
  std::size_t total_ = 0;  // the bytes of the present send
  std::size_t toGo_ = 0;   // those that it had when it was looked at last
  int looks_ = 0;          // how often it has been looked at
  QPointer<QWidget> shownIn_;
  QString title_;  // of that window, without the progress
};

}  // namespace loquitor
