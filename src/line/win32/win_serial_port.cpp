#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "line/win32/win_serial_port.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "text/wide_text.h"

namespace loquitor {
namespace {

constexpr DWORD LongestCloseMilliseconds = 100;

/// The other end first reads the rest of what the program before has sent.
constexpr DWORD LongestPipeWaitMilliseconds = 100;

/// Why CreateFile did not open a device. Windows denies access to a port that another program has.
PortError ErrorOf(DWORD zError) {
  switch (zError) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DEV_NOT_EXIST:
      return PortError::Missing;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_PIPE_BUSY:
      return PortError::InUse;
    default:
      return PortError::Unusable;
  }
}

bool IsPipeName(std::string_view zDevice) {
  return zDevice.starts_with("\\\\.\\pipe\\");
}

HANDLE OpenDevice(const std::string& zDevice) {
  const std::string path = zDevice.starts_with("\\\\") ? zDevice : "\\\\.\\" + zDevice;
  const std::wstring name = WideText(path);
  if (!IsPipeName(path)) {
    return CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                       FILE_FLAG_OVERLAPPED, nullptr);
  }
  static_cast<void>(WaitNamedPipeW(name.c_str(), LongestPipeWaitMilliseconds));
  return CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_FLAG_OVERLAPPED,
                     nullptr);
}

/// Sets an open port to these settings. A pipe has none.
PortError Configure(HANDLE zPort, const SerialPortSettings& zSettings) {
  const auto baudRate = BaudRateOf(zSettings.baudRate);
  if (!baudRate) {
    return PortError::BadBaudRate;
  }
  if (GetFileType(zPort) == FILE_TYPE_PIPE) {
    return PortError::None;
  }
  DCB state{};
  state.DCBlength = sizeof state;
  if (!GetCommState(zPort, &state)) {
    return PortError::NotSerial;
  }
  state = DCB{};
  state.DCBlength = sizeof state;
  state.BaudRate = static_cast<DWORD>(*baudRate);
  state.fBinary = TRUE;
  state.ByteSize = 8;
  state.Parity = NOPARITY;
  state.StopBits = ONESTOPBIT;
  state.fDtrControl = DTR_CONTROL_ENABLE;
  state.fOutxCtsFlow = zSettings.hardwareHandshaking ? TRUE : FALSE;
  state.fRtsControl = zSettings.hardwareHandshaking ? RTS_CONTROL_HANDSHAKE : RTS_CONTROL_ENABLE;
  if (!SetCommState(zPort, &state)) {
    return PortError::BadBaudRate;
  }
  COMMTIMEOUTS timeouts{};  // a write waits as long as the line is held back
  timeouts.ReadIntervalTimeout = MAXDWORD;
  return SetCommTimeouts(zPort, &timeouts) ? PortError::None : PortError::Unusable;
}

}  // namespace

/// An open port or pipe and the writes that Windows has not finished. Each byte is a write of its
/// own, so that their number is known and they can be taken back.
class WinSerialPort::Line {
 public:
  /// Takes over `zHandle`.
  explicit Line(HANDLE zHandle) : handle_(zHandle) {}
  ~Line() {
    static_cast<void>(PurgeComm(handle_, PURGE_TXABORT | PURGE_TXCLEAR));  // a pipe refuses
    static_cast<void>(CancelIo(handle_));
    for (Write& write : writes_) {
      DWORD count = 0;
      if (write.isUnderWay) {
        GetOverlappedResult(handle_, &write.state, &count, TRUE);  // Windows lets go of the byte
      }
    }
    CloseHandle(handle_);
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  HANDLE Handle() const { return handle_; }
  bool HasFailed() const { return hasFailed_; }

  /// `zHandler` is called once, when the first write fails, from within the call that notices it.
  void SetFailureHandler(std::function<void()> zHandler) { onFailure_ = std::move(zHandler); }

  /// The number of bytes that Windows still has. Notices writes that have failed.
  int Unfinished() {
    int count = 0;
    for (Write& write : writes_) {
      Finish(write);
      count += write.isUnderWay ? 1 : 0;
    }
    return count;
  }

  bool Start(std::uint8_t zByte) {
    const auto free = std::find_if(writes_.begin(), writes_.end(),
                                   [](const Write& zWrite) { return !zWrite.isUnderWay; });
    if (hasFailed_ || free == writes_.end()) {
      return false;
    }
    free->byte = zByte;
    free->state = OVERLAPPED{};
    free->isUnderWay = WriteFile(handle_, &free->byte, 1, nullptr, &free->state) ||
                       GetLastError() == ERROR_IO_PENDING;
    if (!free->isUnderWay) {
      Fail();
    }
    return !hasFailed_;
  }

 private:
  struct Write {
    OVERLAPPED state;
    std::uint8_t byte;
    bool isUnderWay;
  };

  void Finish(Write& zWrite) {
    if (!zWrite.isUnderWay || !HasOverlappedIoCompleted(&zWrite.state)) {
      return;
    }
    DWORD count = 0;
    zWrite.isUnderWay = false;
    if (!GetOverlappedResult(handle_, &zWrite.state, &count, FALSE) || count != 1) {
      Fail();
    }
  }

  void Fail() {
    if (!std::exchange(hasFailed_, true) && onFailure_) {
      onFailure_();
    }
  }

  HANDLE handle_;
  std::function<void()> onFailure_;
  std::array<Write, PortQueueLimit> writes_{};
  bool hasFailed_ = false;
};

WinSerialPort::WinSerialPort(RunLater zRunLater) : runLater_(std::move(zRunLater)) {}

WinSerialPort::~WinSerialPort() {
  Close();
}

PortFailure WinSerialPort::Open(const SerialPortSettings& zSettings) {
  Close();
  PortFailure failure{.device = zSettings.device};
  const HANDLE handle = OpenDevice(zSettings.device);
  if (handle == INVALID_HANDLE_VALUE) {
    failure.error = ErrorOf(GetLastError());
    return failure;
  }
  auto line = std::make_shared<Line>(handle);
  failure.error = Configure(handle, zSettings);
  if (failure.error == PortError::BadBaudRate) {
    failure.baudRate = zSettings.baudRate;
  }
  if (failure.error == PortError::None) {
    line->SetFailureHandler([this, weak = std::weak_ptr(line)] { TellLater(weak); });
    line_ = std::move(line);
  }
  return failure;
}

void WinSerialPort::TellLater(const std::weak_ptr<Line>& zLine) {
  // The port holds the only other reference: while the line exists, so does the port.
  runLater_([this, zLine] {
    if (zLine.expired()) {
      return;  // closed or opened again meanwhile
    }
    line_.reset();
    if (failureHandler_) {
      failureHandler_();
    }
  });
}

void WinSerialPort::Close() {
  // A full queue takes 67 ms at 2400 bits a second, the slowest that the chip knows.
  const ULONGLONG begin = GetTickCount64();
  while (UnsentBytes() > 0 && GetTickCount64() - begin < LongestCloseMilliseconds) {
    Sleep(1);
  }
  line_.reset();
}

bool WinSerialPort::IsOpen() const {
  return line_ && !line_->HasFailed();
}

void WinSerialPort::DiscardReceived() {
  if (IsOpen()) {
    static_cast<void>(PurgeComm(line_->Handle(), PURGE_RXCLEAR));  // a pipe has nothing to read
  }
}

bool WinSerialPort::IsReadyForByte() const {
  return IsOpen() && line_->Unfinished() < PortQueueLimit && IsOpen();
}

bool WinSerialPort::WriteByte(std::uint8_t zByte) {
  return IsOpen() && line_->Start(zByte);
}

int WinSerialPort::UnsentBytes() const {
  const int unfinished = IsOpen() ? line_->Unfinished() : 0;
  return IsOpen() ? unfinished : 0;
}

void WinSerialPort::CloseWhenSent() {
  // The other end of a pipe can read the bytes in it after this end is closed.
  if (IsOpen() && GetFileType(line_->Handle()) != FILE_TYPE_PIPE) {
    static_cast<void>(FlushFileBuffers(line_->Handle()));  // closing anyway
  }
  Close();
}

void WinSerialPort::SetFailureHandler(std::function<void()> zHandler) {
  failureHandler_ = std::move(zHandler);
}

}  // namespace loquitor
