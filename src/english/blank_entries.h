#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "english/english_reader.h"

namespace loquitor {

/// A dictionary text with its blank entries filled.
struct FilledEntries {
  std::string text;
  std::size_t count = 0;            ///< how many entries got sounds
  std::vector<std::string> unread;  ///< words that stay blank because they have no reading
};

/// Gives every entry of the dictionary text `zBoxText` (lines ended by LF) that has nothing but
/// blanks after its first equals sign the sounds of its word. All other lines stay as they are;
/// a word that Say Data cannot hold stays blank.
///
/// `zGoOn` is asked after each line with the bytes read so far. When it returns false, the result
/// is nothing.
std::optional<FilledEntries> FillBlankEntries(
    std::string_view zBoxText, const EnglishReader& zReader,
    const std::function<bool(std::size_t zBytesRead)>& zGoOn);

}  // namespace loquitor
