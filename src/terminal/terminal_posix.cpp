#ifndef _WIN32

#include "terminal/terminal.h"

namespace loquitor {

struct Terminal::Streams {};

Terminal::Terminal(int zCount, char** zArguments)
    : arguments_(zArguments + (zCount > 0 ? 1 : 0), zArguments + zCount) {}

Terminal::~Terminal() = default;

}  // namespace loquitor

#endif
