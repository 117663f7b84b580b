#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

// The dictionary as one text: from the bytes of the file to the text of the box and back, sorted
// and cleaned. In the bytes of a file, CR LF, LF or a lone CR ends a line; in the text of the box a
// line break is one LF. Byte order marks of UTF-8 are removed at the start of the file, and at the
// start of every line when the lines are sorted or cleaned. Every other byte, NUL included, stays
// as it is.

/// The text that the box shows for `zFileBytes`: each line end becomes one LF, also the last one.
std::string BoxTextFromFile(std::string_view zFileBytes);

/// The size of a text of the box.
struct TextExtent {
  std::size_t lines = 1;        ///< one more than the text has line breaks
  std::size_t longestLine = 0;  ///< in bytes
  std::size_t longestAt = 1;    ///< number of that line, counted from one; of the first such line
};
TextExtent ExtentOf(std::string_view zBoxText);

/// The bytes to save for `zBoxText`: each LF becomes CR LF, and one CR LF follows the whole.
std::string FileBytesFromBox(std::string_view zBoxText);

/// The lines of `zFileBytes` without their line ends and byte order marks. They refer to
/// `zFileBytes`. What follows the last line end is a line unless it is empty.
std::vector<std::string_view> ReadLines(std::string_view zFileBytes);

/// Converts each line of `zFileBytes` to lower case up to its first equals sign; a line without one
/// as a whole.
void LowerCaseKeys(std::string& zFileBytes);

/// Sorts `zLines` in place from index `zFirst` to index `zLast`, both included: ascending by
/// unsigned bytes, a line before the longer lines that begin with it. Does nothing when `zLast` is
/// less than `zFirst`; otherwise `zLast` must be an index of `zLines`. Takes n log n steps in every
/// case.
void SortDictionaryLines(std::vector<std::string_view>& zLines, std::size_t zFirst,
                         std::size_t zLast);

/// The box text for a saved dictionary once it is sorted: its lines with lower-cased keys in
/// ascending order, without those that are empty or all spaces.
std::string SortedText(std::string zFileBytes);

/// The box text for a saved dictionary without its blank entries: the section header, then in file
/// order the lines (keys lower-cased) that have more than spaces after their first equals sign.
std::string CleanedText(std::string zFileBytes);

/// The offset of `zSought` in `zText`, letter case ignored: the first one from `zFrom` on, or else
/// the first one in the text. npos when `zSought` is empty or nowhere.
std::size_t FindText(std::string_view zText, std::string_view zSought, std::size_t zFrom);

}  // namespace loquitor
