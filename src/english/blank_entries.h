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
  std::size_t count = 0;            ///< how many entries were filled
  std::vector<std::string> unread;  ///< the words whose entries stay blank
};

/// Fills each blank entry of the dictionary text `zBoxText` (lines separated by LF) with the sounds
/// of its word. An entry is blank when only blanks follow its first equals sign. It stays blank
/// when the word has no reading or Say Data cannot hold it. All other lines stay as they are.
///
/// Calls `zGoOn` after each line with the number of bytes read so far. Nothing when that returns
/// false.
std::optional<FilledEntries> FillBlankEntries(
    std::string_view zBoxText, const EnglishReader& zReader,
    const std::function<bool(std::size_t zBytesRead)>& zGoOn);

}  // namespace loquitor
