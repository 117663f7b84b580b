#include "english/letter_names.h"

namespace loquitor {

namespace {

constexpr std::string_view Names[] = {"ey1",
                                      "b iy1",
                                      "s iy1",
                                      "d iy1",
                                      "iy1",
                                      "eh1 f",
                                      "jh iy1",
                                      "ey1 ch",
                                      "ay1",
                                      "jh ey1",
                                      "k ey1",
                                      "eh1 l",
                                      "eh1 m",
                                      "eh1 n",
                                      "ow1",
                                      "p iy1",
                                      "k y uw1",
                                      "aa1 r",
                                      "eh1 s",
                                      "t iy1",
                                      "y uw1",
                                      "v iy1",
                                      "d ah1 b ax l y uw",
                                      "eh1 k s",
                                      "w ay1",
                                      "z iy1"};

/// The ending of the plural after a name that ends with `zLast`.
std::string_view PluralEnding(Phone zLast) {
  if (zLast == Phone::S || zLast == Phone::CH) {
    return "ax z";
  }
  return zLast == Phone::F ? "s" : "z";
}

}  // namespace

WordPhones LetterName(std::string_view zLetter) {
  WordPhones phones = PhonesFromText(Names[zLetter[0] - 'a']);
  if (zLetter.size() > 1) {
    const WordPhones ending = PhonesFromText(PluralEnding(phones.back().phone));
    phones.insert(phones.end(), ending.begin(), ending.end());
  }
  return phones;
}

}  // namespace loquitor
