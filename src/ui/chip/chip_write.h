#pragma once

#include <QObject>
#include <QTimer>
#include <QWidgetList>
#include <string_view>

#include "line/code_sender.h"

namespace loquitor {

/// The write of a window to the chip. It continues to its last byte when the window is closed.
/// While it goes out, the controls that would cut it are disabled, also in a window of the same
/// kind that is opened meanwhile.
class ChipWrite : public QObject {
 public:
  /// `zWindow` owns this object. `zSender` and `zTicket` outlive it; `zTicket` names the last write
  /// of this kind of window. `zControls` are the controls that would cut the write.
  ChipWrite(QWidget* zWindow, CodeSender& zSender, SendTicket& zTicket, QWidgetList zControls);

  /// To be called before the window is shown. If the write of an earlier window is still going out,
  /// disables the controls and shows the hourglass over the window until that write ends.
  void ShowEarlierWrite();

  /// Sends the command string `zCommand`, with the controls disabled. Returns when
  /// CodeSender::SendCodesToOrvatone does.
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
