#include "say/silence_report.h"

#include "text/words.h"

namespace loquitor {
namespace {

/// A place in a text, which only moves forward.
class Place {
 public:
  Place(std::string_view zText, int zLine) : text_(zText), line_(zLine) {}

  void MoveTo(std::size_t zOffset) {
    for (; offset_ < zOffset; ++offset_) {
      const bool continuesCharacter = (text_[offset_] & 0xC0) == 0x80;
      column_ += continuesCharacter ? 0 : 1;
      if (text_[offset_] == '\n') {
        ++line_;
        column_ = 1;
      }
    }
  }

  std::string Text() const { return std::to_string(line_) + ":" + std::to_string(column_); }

 private:
  std::string_view text_;
  std::size_t offset_ = 0;
  int line_;
  int column_ = 1;
};

}  // namespace

std::string SilenceReport(std::string_view zText, const std::vector<SilentPart>& zParts,
                          int zFirstLine) {
  std::string report;
  Place place(zText, zFirstLine);
  for (const SilentPart& part : zParts) {
    place.MoveTo(part.start);
    report.append(place.Text())
        .append(": ")
        .append(InOneLine(zText.substr(part.start, part.length)))
        .append(part.kind == SilentPart::Kind::Word
                    ? ": no sounds for this word in the dictionary\n"
                    : ": no such mnemonic or code\n");
  }
  return report;
}

}  // namespace loquitor
