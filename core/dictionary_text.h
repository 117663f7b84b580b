#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

// The dictionary as one text: from the bytes of the file to the text of the box and back, sorted
// and cleaned. File bytes have lines ended by CR LF, LF or a lone CR; in the text of the box a line
// break is one LF. Every other byte, NUL among them, passes through all of this as it is.

/// The text that the box shows for `zFileBytes`: each line end becomes one LF, the one at the end
/// of the file too.
std::string BoxTextFromFile(std::string_view zFileBytes);

/// How far a text of the box reaches.
struct TextExtent {
  std::size_t lines = 1;        ///< one more than it has line breaks
  std::size_t longestLine = 0;  ///< in bytes
  std::size_t longestAt = 1;    ///< which line that is, the first of them, counted from one
};
TextExtent ExtentOf(std::string_view zBoxText);

/// The bytes to save for `zBoxText`: each LF becomes CR LF, and one CR LF follows the whole.
std::string FileBytesFromBox(std::string_view zBoxText);

/// The lines of `zFileBytes` without their line ends. They point into it. What follows the last
/// line end is a line of its own unless it is empty.
std::vector<std::string_view> ReadLines(std::string_view zFileBytes);

/// Converts each line of `zFileBytes` to lower case up to its first equals sign; a line without one
/// as a whole.
void LowerCaseKeys(std::string& zFileBytes);

/// Sorts the stretch of `zLines` from index `zFirst` to index `zLast`, both included, in place:
/// ascending by bytes (unsigned), a line before the longer ones that begin with it. Nothing happens
/// when `zLast` is before `zFirst`; `zLast` must be an index of `zLines` otherwise. n log n steps,
/// whatever the order they come in.
void SortDictionaryLines(std::vector<std::string_view>& zLines, std::size_t zFirst,
                         std::size_t zLast);

/// The box text for a saved dictionary once it is sorted: its lines with lower-cased keys in
/// ascending order, without those that are empty or all spaces.
std::string SortedText(std::string zFileBytes);

/// The box text for a saved dictionary without its blank entries: the section header, then in file
/// order the lines (keys lower-cased) that have more than spaces behind their first equals sign.
std::string CleanedText(std::string zFileBytes);

/// Where `zSought` next stands in `zText`, letters of either case alike: the first place from
/// `zFrom` on, or else the first from the start of the text; npos when it is nowhere or empty.
std::size_t FindText(std::string_view zText, std::string_view zSought, std::size_t zFrom);

}  // namespace loquitor
