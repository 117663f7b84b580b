#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "line/code_sender.h"
#include "say/system_line.h"

namespace loquitor {

class SettingsFile;

/// Sends phrases to the port of the settings, without a window. Needs a SpeakerApplication.
class Speaker : private SenderHost {
 public:
  /// `zSettings` must outlive the speaker. `zIsForced` is the answer to the long-phrase question.
  /// `zLongestStandstill` is how long it waits for a line that takes no byte. The default is long,
  /// because an adapter's own buffer of some hundred codes may take minutes to empty, in which no
  /// progress is seen.
  Speaker(const SettingsFile& zSettings, bool zIsForced,
          std::chrono::milliseconds zLongestStandstill = std::chrono::minutes(5));

  /// Sends a code string and waits until it has left for the line. False when it could not be sent,
  /// or when the line stood still for too long and the rest was discarded. Complaint then says why.
  bool Say(std::string_view zCodes);

  /// Closes the port after the last byte.
  void Finish() { port_.CloseWhenSent(); }

  /// Why the last call of Say failed.
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
  SpeakerTurns turns_;
  SpeakerPort port_;
  CodeSender sender_;
  std::size_t bytesLeft_ = 0;
  std::chrono::steady_clock::time_point lastProgress_;  // the time when `bytesLeft_` last changed
  std::string complaint_;
};

}  // namespace loquitor
