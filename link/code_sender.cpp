#include "link/code_sender.h"

namespace loquitor {

namespace {

constexpr std::size_t LongestUnasked = 64;  // codes of a phrase that the chip's own buffer holds
constexpr int ClosingDelay = 1000;          // milliseconds
constexpr int DeepestSend = 8;  // sends within each other; a few kilobytes of stack each

// A turn lasts two milliseconds at most: every register write passes at 2400 baud meanwhile.
constexpr int TurnsBeforeUserActs = 100;

}  // namespace

CodeSender::CodeSender(SerialPort& zPort, SenderHost& zHost, const SettingsFile& zSettings)
    : port_(zPort), host_(zHost), settings_(zSettings) {
  port_.SetFailureHandler([this] { OnPortFailed(); });
}

CodeSender::~CodeSender() {
  port_.SetFailureHandler({});
}

void CodeSender::SendCodesToOrvatone(std::string_view zCodes, bool zIsPhrase) {
  host_.StopClosingTimer();
  if (IsRefused(zCodes, zIsPhrase)) {
    return;
  }
  ++sendCount_;
  OpenSerialPort(zIsPhrase);
  hasFailed_ = !port_.IsOpen();
  if (!hasFailed_ && depth_ >= DeepestSend) {
    LeaveToInnermost(zCodes, zIsPhrase);
    WriteBeforeUserActs();
    return;  // the closing timer starts when the innermost send ends
  }
  if (!hasFailed_) {
    TakeOver(zCodes, zIsPhrase);
    WritePendingOutput();
  }
  host_.StartClosingTimer(ClosingDelay);
}

void CodeSender::CloseSerialPort() {
  if (!port_.IsOpen()) {
    return;
  }
  port_.Close();
  isPortShownOpen_ = false;
  ClearPendingOutput();
  host_.ShowPortState(PortState::Closed);
}

void CodeSender::ClearPendingOutput() {
  pendingOutput_.clear();
  writtenCount_ = 0;
  lastBegin_ = 0;
  wasEmptied_ = true;
}

std::string_view CodeSender::PendingOutput() const {
  return std::string_view(pendingOutput_).substr(writtenCount_);
}

void CodeSender::Tick() {
  hasLeftBytes_ = false;
  if (!PendingOutput().empty() && port_.IsReadyForByte()) {
    WriteNextByte();
  }
}

bool CodeSender::IsRefused(std::string_view zCodes, bool zIsPhrase) {
  return zIsPhrase && zCodes.size() > LongestUnasked && !host_.IsFlowControlTicked() &&
         !host_.ConfirmLongPhrase();
}

void CodeSender::OpenSerialPort(bool zIsPhrase) {
  isPortShownOpen_ = port_.IsOpen() || TryToOpen(zIsPhrase);
  host_.ShowPortState(isPortShownOpen_ ? PortState::Open : PortState::Failed);
}

bool CodeSender::TryToOpen(bool zIsPhrase) {
  const std::string device = host_.PortDevice();
  if (device.empty()) {
    return false;
  }
  return port_.Open({.device = device,
                     .baudRate = settings_.GetIniValue("Serial", "BaudRate", "9600"),
                     .hardwareHandshaking = zIsPhrase && host_.IsFlowControlTicked()});
}

void CodeSender::TakeOver(std::string_view zCodes, bool zIsPhrase) {
  ClearPendingOutput();
  pendingOutput_ = zCodes;
  wasEmptied_ = false;
  isLastPhrase_ = zIsPhrase;
  port_.DiscardReceived();
}

void CodeSender::LeaveToInnermost(std::string_view zCodes, bool zIsPhrase) {
  if (!hasLeftBytes_) {
    DropWhatMayBeReplaced();
    isLastPhrase_ = zIsPhrase;
    port_.DiscardReceived();
  }
  pendingOutput_ += zCodes;
  wasEmptied_ = false;
  hasLeftBytes_ = true;
}

void CodeSender::DropWhatMayBeReplaced() {
  const bool hasLastBegun = writtenCount_ > lastBegin_;
  if (!hasLastBegun) {
    pendingOutput_.resize(lastBegin_);
  } else if (isLastPhrase_) {
    pendingOutput_.resize(writtenCount_);
  }
  pendingOutput_.erase(0, writtenCount_);
  writtenCount_ = 0;
  lastBegin_ = pendingOutput_.size();
}

void CodeSender::WriteBeforeUserActs() {
  if (depth_ > DeepestSend) {
    return;  // a timer's send within one of these, which writes its bytes as well
  }
  ++depth_;
  for (int turns = 0; turns < TurnsBeforeUserActs && !isLineSlow_ && !PendingOutput().empty();
       ++turns) {
    TakeTurn(UserInput::Later);
  }
  --depth_;
  isLineSlow_ = !PendingOutput().empty();
}

void CodeSender::WritePendingOutput() {
  if (depth_++ == 0) {
    host_.SetTicking(true);
  }
  while (port_.IsOpen() && !IsDone()) {
    hasLeftBytes_ = false;
    TakeTurn(UserInput::Now);
  }
  if (!port_.IsOpen()) {
    OnPortFailed();
  }
  ClearPendingOutput();
  if (--depth_ == 0) {
    host_.SetTicking(false);
  }
}

void CodeSender::TakeTurn(UserInput zInput) {
  if (!PendingOutput().empty() && port_.IsReadyForByte()) {
    WriteNextByte();
    host_.LetEventsRun(zInput);
  } else {
    host_.WaitForEvents(zInput);
  }
}

/// What the port has taken must have left as well before the closing timer starts: with the line
/// held back for a second, closing would cost a phrase its last sounds.
bool CodeSender::IsDone() const {
  return PendingOutput().empty() && (wasEmptied_ || port_.UnsentBytes() == 0);
}

void CodeSender::WriteNextByte() {
  isLineSlow_ = false;
  const auto byte = static_cast<std::uint8_t>(pendingOutput_[writtenCount_++]);
  if (!port_.WriteByte(byte)) {
    OnPortFailed();
  }
}

void CodeSender::OnPortFailed() {
  if (!isPortShownOpen_) {
    return;  // closed on purpose, or told already
  }
  isPortShownOpen_ = false;
  hasFailed_ = true;
  ClearPendingOutput();
  port_.Close();
  host_.ShowPortState(PortState::Failed);
}

}  // namespace loquitor
