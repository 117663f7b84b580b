#pragma once

#include <string>
#include <string_view>

#include "link/code_sender.h"
#include "link/qt/event_turns.h"
#include "link/qt/qt_serial_port.h"
#include "link/settings_file.h"

namespace loquitor {

/// Sends phrases to the port of the settings, without a window. Needs a QCoreApplication.
class Speaker : private SenderHost {
 public:
  /// `zSettings` outlives the speaker. `zIsForced`: the answer to the long-phrase question.
  Speaker(const SettingsFile& zSettings, bool zIsForced);

  /// Sends a code string. False when it could not be sent; Complaint then says why.
  bool Say(std::string_view zCodes);

  /// Waits until everything sent has left for the line, then closes the port. False when the chip
  /// holds the line back for too long; the rest is discarded.
  bool Finish();

  /// Why the last call of Say or Finish was in vain.
  const std::string& Complaint() const { return complaint_; }

 private:
  std::string PortDevice() const override;
  bool IsFlowControlTicked() const override;
  void ShowPortState(PortState zState) override;
  bool ConfirmLongPhrase() override;
  void StopClosingTimer() override {}  // the port stays open until Finish
  void StartClosingTimer(int) override {}
  void LetEventsRun(UserInput zInput) override { turns_.LetEventsRun(zInput); }
  void WaitForEvents(UserInput zInput) override { turns_.WaitForEvents(zInput); }
  void SetTicking(bool zIsOn) override { turns_.SetTicking(zIsOn); }

  std::string PortNumberText() const;

  const SettingsFile& settings_;
  const bool isForced_;
  QtSerialPort port_;
  CodeSender sender_;
  EventTurns turns_;
  bool wasOpen_ = false;
  std::string complaint_;
};

}  // namespace loquitor
