#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>

#include <iostream>

#include "terminal/console_streams.h"
#include "terminal/terminal.h"
#include "text/wide_text.h"

namespace loquitor {
namespace {

bool IsConsole(HANDLE zHandle) {
  DWORD mode = 0;
  return GetConsoleMode(zHandle, &mode) != 0;
}

/// Puts a buffer into a standard stream while it lives, if the stream leads to a console.
template <class Buffer>
class Redirection {
 public:
  Redirection(std::ios& zStream, DWORD zHandle)
      : stream_(zStream), buffer_(GetStdHandle(zHandle)), before_(zStream.rdbuf()) {
    if (IsConsole(GetStdHandle(zHandle))) {
      stream_.rdbuf(&buffer_);
    }
  }
  ~Redirection() { stream_.rdbuf(before_); }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;

 private:
  std::ios& stream_;
  Buffer buffer_;
  std::streambuf* const before_;
};

std::vector<std::string> ArgumentsOfProcess() {
  std::vector<std::string> texts;
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) {
    texts.push_back(Utf8Text(arguments[i]));
  }
  LocalFree(arguments);
  return texts;
}

}  // namespace

struct Terminal::Streams {
  Redirection<ConsoleInput> input{std::cin, STD_INPUT_HANDLE};
  Redirection<ConsoleOutput> output{std::cout, STD_OUTPUT_HANDLE};
  Redirection<ConsoleOutput> errors{std::cerr, STD_ERROR_HANDLE};
};

Terminal::Terminal(int, char**)
    : texts_(ArgumentsOfProcess()),
      arguments_(texts_.begin(), texts_.end()),
      streams_(std::make_unique<Streams>()) {}

Terminal::~Terminal() = default;

}  // namespace loquitor

#endif
