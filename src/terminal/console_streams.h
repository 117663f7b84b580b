#pragma once

#include <array>
#include <streambuf>
#include <string>

/// Only on Windows. The handles are those of a console.
namespace loquitor {

/// Writes UTF-8 to a console, whatever its code page is. Bytes that are no UTF-8 become the
/// replacement character.
class ConsoleOutput : public std::streambuf {
 public:
  explicit ConsoleOutput(void* zHandle) : handle_(zHandle) {}
  ~ConsoleOutput() override { sync(); }
  ConsoleOutput(const ConsoleOutput&) = delete;
  ConsoleOutput& operator=(const ConsoleOutput&) = delete;

 protected:
  int_type overflow(int_type zByte) override;
  int sync() override;

 private:
  void* handle_;
  std::string bytes_;  // not yet written
};

/// Reads the lines of a console as UTF-8, with a line feed at the end of each. Ctrl+Z at the start
/// of a line is the end. Throws std::runtime_error, which a stream turns into its bad state, when
/// the console cannot be read.
class ConsoleInput : public std::streambuf {
 public:
  explicit ConsoleInput(void* zHandle) : handle_(zHandle) {}
  ConsoleInput(const ConsoleInput&) = delete;
  ConsoleInput& operator=(const ConsoleInput&) = delete;

 protected:
  int_type underflow() override;

 private:
  void* handle_;
  std::array<wchar_t, 1024> units_;
  std::size_t kept_ = 0;  // 1 when the first half of a character begins units_
  std::string bytes_;
};

}  // namespace loquitor
