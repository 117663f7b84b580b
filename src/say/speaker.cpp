#include "say/speaker.h"

#include <optional>
#include <utility>

#include "files/settings_file.h"
#include "line/port_numbers.h"
#include "text/number_text.h"

namespace loquitor {

Speaker::Speaker(const SettingsFile& zSettings, bool zIsForced,
                 std::chrono::milliseconds zLongestStandstill)
    : settings_(zSettings),
      isForced_(zIsForced),
      longestStandstill_(zLongestStandstill),
      turns_([this] { sender_.Tick(); }),
      port_(turns_),
      sender_(port_, *this, settings_) {}

bool Speaker::Say(std::string_view zCodes) {
  complaint_.clear();
  lastProgress_ = std::chrono::steady_clock::now();
  sender_.SendCodesToOrvatone(zCodes, true);
  return complaint_.empty();
}

std::size_t Speaker::BytesLeft() const {
  return sender_.PendingOutput().size() + static_cast<std::size_t>(port_.UnsentBytes());
}

void Speaker::WaitForEvents(UserInput zInput) {
  turns_.WaitForEvents(zInput);
  const auto now = std::chrono::steady_clock::now();
  const std::size_t left = BytesLeft();
  if (left != std::exchange(bytesLeft_, left)) {
    lastProgress_ = now;
  } else if (left > 0 && now - lastProgress_ > longestStandstill_) {
    complaint_ =
        "the chip holds the line back; the last codes were not sent (for a cable without CTS set "
        "FlowControl=0 in section [Serial] of Loquitor.ini)";
    sender_.CloseSerialPort();
  }
}

std::string Speaker::PortNumberText() const {
  return settings_.GetIniValue("Serial", "Port", "1");
}

std::string Speaker::PortDevice() const {
  const std::optional<int> number = WholeNumberAtStart(PortNumberText());
  return number ? DeviceForPort(*number, settings_, DevicesPresent) : std::string();
}

bool Speaker::IsFlowControlTicked() const {
  return WantsFlowControl(settings_);
}

void Speaker::ShowPortState(PortState zState) {
  if (zState == PortState::Failed) {
    complaint_ = DescribeFailure(sender_.Failure(), PortNumberText());
  }
}

bool Speaker::ConfirmLongPhrase() {
  if (!isForced_) {
    complaint_ =
        "flow control is off and the phrase is longer than 64 codes, so that some of them would be "
        "lost; nothing was sent (--force sends it all the same)";
  }
  return isForced_;
}

}  // namespace loquitor
