#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

// The dictionary as one text: from the bytes of the file to the text of the editor's box and back,
// sorted and cleaned. In the bytes of a file, CR LF, LF or a lone CR ends a line. In the text of
// the box a line break is one LF. UTF-8 byte order marks are removed at the start of the file, and
// at the start of every line when the lines are sorted or cleaned. Every other byte, NUL included,
// stays as it is.

/// The text that the box shows for `zFileBytes`: each line end becomes one LF, also the last one.
std::string BoxTextFromFile(std::string_view zFileBytes);

/// The size of a text of the box.
struct TextExtent {
  std::size_t lines = 1;        ///< the number of line breaks, plus one
  std::size_t longestLine = 0;  ///< in bytes, without the line break
  std::size_t longestAt = 1;    ///< number of the first line of that length, counted from 1
};

/// Measures `zBoxText`.
TextExtent ExtentOf(std::string_view zBoxText);

/// The bytes to save for `zBoxText`: each LF becomes CR LF, and one CR LF follows the whole.
std::string FileBytesFromBox(std::string_view zBoxText);

/// The lines of `zFileBytes` without their line ends and byte order marks, as views of
/// `zFileBytes`. What follows the last line end is a line unless it is empty.
std::vector<std::string_view> ReadLines(std::string_view zFileBytes);

/// Converts each line of `zFileBytes` to lower case up to its first equals sign. A line without an
/// equals sign is converted as a whole.
void LowerCaseKeys(std::string& zFileBytes);

/// Sorts `zLines` in place from index `zFirst` to index `zLast`, both included: ascending by
/// unsigned bytes, a line before the longer lines that begin with it. Does nothing when `zLines` is
/// empty or `zLast` is less than `zFirst`. Otherwise `zLast` must be an index of `zLines`. Takes at
/// most n log n comparisons, whatever the order of the lines.
void SortDictionaryLines(std::vector<std::string_view>& zLines, std::size_t zFirst,
                         std::size_t zLast);

/// The box text for the sorted dictionary: the lines of `zFileBytes` with lower-cased keys, in
/// ascending order, without those that are empty or all spaces.
std::string SortedText(std::string zFileBytes);

/// The box text for the cleaned dictionary: the section header, then those lines of `zFileBytes`
/// that have more than spaces after their first equals sign, with lower-cased keys, in the same
/// order.
std::string CleanedText(std::string zFileBytes);

/// The offset of the first `zSought` in `zText` from offset `zFrom` on, or else of the first one in
/// the whole text. Letter case does not count. npos when `zSought` is empty or not in the text.
std::size_t FindText(std::string_view zText, std::string_view zSought, std::size_t zFrom);

}  // namespace loquitor
