#include "english/phones.h"

#include <algorithm>
#include <iterator>

#include "text/words.h"

namespace loquitor {

namespace {

/// In the order of Phone.
constexpr std::string_view Names[] = {"aa", "ae", "ah", "ao", "aw", "ax", "ay", "eh", "er", "ey",
                                      "ih", "iy", "ow", "oy", "uh", "uw", "b",  "ch", "d",  "dh",
                                      "f",  "g",  "hh", "jh", "k",  "l",  "m",  "n",  "ng", "p",
                                      "r",  "s",  "sh", "t",  "th", "v",  "w",  "y",  "z",  "zh"};
static_assert(std::size(Names) == static_cast<std::size_t>(Phone::ZH) + 1);

}  // namespace

std::optional<Phone> PhoneNamed(std::string_view zName) {
  const auto* const found = std::find(std::begin(Names), std::end(Names), zName);
  if (found == std::end(Names)) {
    return std::nullopt;
  }
  return static_cast<Phone>(found - std::begin(Names));
}

WordPhones PhonesFromText(std::string_view zText) {
  WordPhones phones;
  ForEachWord(zText, [&phones](std::string_view zName) {
    const bool isStressed = zName.back() == '1';
    if (isStressed) {
      zName.remove_suffix(1);
    }
    if (const std::optional<Phone> phone = PhoneNamed(zName)) {
      phones.push_back({*phone, isStressed});
    }
  });
  return phones;
}

}  // namespace loquitor
