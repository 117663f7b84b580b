#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// The command line of a program and its standard streams, in UTF-8 on every system. A program has
/// one, made first in its main, but after std::ios::sync_with_stdio.
///
/// On Windows std::cin, std::cout and std::cerr carry UTF-8 to and from a console while this object
/// lives, whatever its code page is. Streams that lead to files and pipes pass bytes as they are;
/// there a line ends with CR LF.
class Terminal {
 public:
  /// Takes the arguments of main, which must outlive it.
  Terminal(int zCount, char** zArguments);
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// The arguments in UTF-8, without the name of the program.
  const std::vector<std::string_view>& Arguments() const { return arguments_; }

 private:
  struct Streams;

  std::vector<std::string> texts_;  // what arguments_ views, where the system has no UTF-8
  std::vector<std::string_view> arguments_;
  std::unique_ptr<Streams> streams_;
};

}  // namespace loquitor
