#pragma once

#include <QObject>
#include <QTimer>
#include <QWidgetList>
#include <string_view>

#include "line/code_sender.h"

namespace loquitor {

/// The write of a window to the chip. It continues to its last byte when the window is closed.
/// While it is going out, the controls that would cut it are disabled; also in a window of the same
/// kind that is opened meanwhile. Belongs to its window.
class ChipWrite : public QObject {
 public:
  /// `zTicket` names the last write of this kind of window, and outlives the window. `zControls`:
  /// the controls that would cut the write.
  ChipWrite(QWidget* zWindow, CodeSender& zSender, SendTicket& zTicket, QWidgetList zControls);

  /// For a window that is about to be shown: shows a write that an earlier window left going out,
  /// until it ends. The pointer over the window is the hourglass until then.
  void ShowEarlierWrite();

  /// Sends `zCommand`. Returns as CodeSender::SendCodesToOrvatone does.
  void Send(std::string_view zCommand);

 private:
  bool IsGoingOut() const;
  void SetControlsEnabled(bool zIsEnabled);
  void WatchEarlierWrite();

  QWidget* window_;
  CodeSender& sender_;
  SendTicket& ticket_;
  QWidgetList controls_;
  QTimer watch_;
};

}  // namespace loquitor
