// Profile files: reading and writing, compared with a plain reference. An input is a section, a key
// and a value, each ended by NUL, then the text of the file.

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "files/profile_edit.h"
#include "files/profile_snapshot.h"
#include "fuzz/plain_profile.h"
#include "tests/support/loaded_text.h"

namespace {

using loquitor::ProfileSnapshot;
using loquitor::ProfileValue;
using loquitor::testing::AsLoaded;
using loquitor::testing::PlainProfile;

std::string TakeField(std::string& zInput) {
  const std::size_t end = std::min(zInput.find('\0'), zInput.size());
  std::string field = zInput.substr(0, end);
  zInput.erase(0, end + 1);
  return field;
}

void Require(bool zHolds, const char* zWhat) {
  if (!zHolds) {
    std::cerr << "not as the reference: " << zWhat << '\n';
    std::abort();
  }
}

void CompareRead(const std::string& zText, const std::string& zSection, const std::string& zKey) {
  const ProfileSnapshot snapshot(AsLoaded(zText));
  const auto found = snapshot.Find(zSection, zKey);
  const auto expected = PlainProfile(zText).Read(zSection, zKey);
  Require(found.has_value() == expected.has_value() && found.value_or("") == expected.value_or(""),
          "read");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize) {
  std::string text(zData, zData + zSize);
  const std::string section = TakeField(text);
  const std::string key = TakeField(text);
  const std::string value = TakeField(text);
  CompareRead(text, section, key);

  PlainProfile expected(text);
  const ProfileValue stored{key, value};
  const auto written = loquitor::TextWithValues(text, section, {&stored, 1});
  Require(written.has_value() == expected.Write(section, key, value), "refusal of a write");
  if (written) {
    Require(*written == expected.Text(), "written text");
    CompareRead(*written, section, key);
    Require(ProfileSnapshot(AsLoaded(*written)).Find(section, key).has_value(), "own write found");
  }
  return 0;
}
