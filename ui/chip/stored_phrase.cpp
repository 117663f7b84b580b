#include "ui/chip/stored_phrase.h"

namespace loquitor {

std::string StoredForm(std::string_view zPhrase) {
  std::string line;
  bool wasBreak = false;
  for (const char character : zPhrase) {
    const bool isBreak = character == '\r' || character == '\n';
    if (!isBreak) {
      line += character;
    } else if (!wasBreak) {
      line += ' ';
    }
    wasBreak = isBreak;
  }
  const std::size_t first = line.find_first_not_of(' ');
  if (first == std::string::npos) {
    return {};
  }
  return line.substr(first, line.find_last_not_of(' ') - first + 1);
}

}  // namespace loquitor
