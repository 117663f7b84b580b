#pragma once

#include <chrono>
#include <cstddef>
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
  /// `zLongestStandstill`: how long it waits for a line that takes no byte. An adapter does not
  /// tell how its own buffer empties while the chip speaks, some hundred codes: minutes.
  Speaker(const SettingsFile& zSettings, bool zIsForced,
          std::chrono::milliseconds zLongestStandstill = std::chrono::minutes(5));

  /// Sends a code string and waits until it has left for the line. False when it could not be sent,
  /// or the line stood still for too long and the rest was discarded; Complaint then says why.
  bool Say(std::string_view zCodes);

  /// Closes the port behind the last byte.
  void Finish() { port_.CloseWhenSent(); }

  /// Why the last call of Say was in vain.
  const std::string& Complaint() const { return complaint_; }

 private:
  std::string PortDevice() const override;
  bool IsFlowControlTicked() const override;
  void ShowPortState(PortState zState) override;
  bool ConfirmLongPhrase() override;
  void StopClosingTimer() override {}  // the port stays open until Finish
  void StartClosingTimer(int) override {}
  void LetEventsRun(UserInput zInput) override { turns_.LetEventsRun(zInput); }
  void WaitForEvents(UserInput zInput) override;
  void SetTicking(bool zIsOn) override { turns_.SetTicking(zIsOn); }

  std::string PortNumberText() const;
  std::size_t BytesLeft() const;

  const SettingsFile& settings_;
  const bool isForced_;
  const std::chrono::milliseconds longestStandstill_;
  QtSerialPort port_;
  CodeSender sender_;
  EventTurns turns_;
  std::size_t bytesLeft_ = 0;
  std::chrono::steady_clock::time_point lastProgress_;  // when `bytesLeft_` came to be so many
  bool wasOpen_ = false;
  std::string complaint_;
};

}  // namespace loquitor
