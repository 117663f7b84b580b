#include "say/speaker.h"

#include <chrono>
#include <optional>

#include "core/number_text.h"
#include "link/port_numbers.h"
#include "link/qt/serial_devices.h"
#include "say/drain.h"

namespace loquitor {

namespace {

/// At the end as long as this without a byte leaving for the line means that the chip is stuck: it
/// holds the line back while it speaks, at the very most some seconds a sound.
constexpr std::chrono::seconds LongestStandstill{10};

}  // namespace

Speaker::Speaker(const SettingsFile& zSettings, bool zIsForced)
    : settings_(zSettings),
      isForced_(zIsForced),
      sender_(port_, *this, settings_),
      turns_([this] { sender_.Tick(); }) {}

bool Speaker::Say(std::string_view zCodes) {
  complaint_.clear();
  sender_.SendCodesToOrvatone(zCodes, true);
  return complaint_.empty();
}

bool Speaker::Finish() {
  complaint_.clear();
  SetTicking(true);
  const int unsent = AwaitDrained([this] { return port_.UnsentBytes(); },
                                  [this] { WaitForEvents(UserInput::Now); }, LongestStandstill);
  SetTicking(false);
  if (unsent > 0) {
    complaint_ =
        "the chip holds the line back; its last " + std::to_string(unsent) + " bytes were not sent";
  } else {
    port_.CloseWhenSent();
  }
  return complaint_.empty();
}

std::string Speaker::PortNumberText() const {
  return settings_.GetIniValue("Serial", "Port", "1");
}

std::string Speaker::PortDevice() const {
  const std::optional<int> number = WholeNumberAtStart(PortNumberText());
  return number ? DeviceForPort(*number, settings_, PresentSerialDevices) : std::string();
}

bool Speaker::IsFlowControlTicked() const {
  return IsFlowControlStored(settings_);
}

void Speaker::ShowPortState(PortState zState) {
  if (zState != PortState::Failed) {
    wasOpen_ = zState == PortState::Open;
    return;
  }
  const std::string device = PortDevice();
  const std::string port = "port " + PortNumberText();
  if (wasOpen_) {
    complaint_ = port + " failed while sending";
  } else if (device.empty()) {
    complaint_ = "there is no " + port +
                 "; plug the adapter in, or map the number to a device in section [Ports] of "
                 "Loquitor.ini";
  } else {
    complaint_ = "cannot open " + port + " (" + device +
                 "): missing, no serial port, in use by another program, or not permitted";
  }
  wasOpen_ = false;
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
