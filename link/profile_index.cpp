#include "link/profile_index.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <iterator>
#include <utility>

#include "link/letter_case.h"
#include "link/profile_lines.h"

namespace loquitor {
namespace {

constexpr std::uint64_t Multiplier = 0x9E3779B97F4A7C15U;  ///< 2 to the 64th over the golden ratio

/// `zBytes` of a name packed into a number, the same for capitals and small letters. Setting bit 5
/// of a byte makes a small letter of a capital, as long as all are ASCII; that two other characters
/// become one does no harm to a hash.
std::uint64_t Folded(std::uint64_t zBytes) {
  constexpr std::uint64_t bit5 = 0x2020202020202020U;
  constexpr std::uint64_t bit7 = 0x8080808080808080U;
  if ((zBytes & bit7) != 0) {
    std::uint64_t lower = 0;
    for (int shift = 0; shift < 64; shift += 8) {
      const auto byte = static_cast<unsigned char>(LowerCaseTable[zBytes >> shift & 0xFF]);
      lower |= std::uint64_t{byte} << shift;
    }
    return lower | bit5;
  }
  return zBytes | bit5;
}

template <typename Number>
std::uint64_t Load(const char* zBytes) {
  Number number;
  std::memcpy(&number, zBytes, sizeof number);
  return number;
}

/// Up to eight bytes as one number. They may overlap in it, which is quicker than a loop and tells
/// names of one length apart as well.
std::uint64_t LoadShort(const char* zBytes, std::size_t zCount) {
  if (zCount >= 4) {
    return Load<std::uint32_t>(zBytes) | Load<std::uint32_t>(zBytes + zCount - 4) << 32;
  }
  if (zCount == 0) {
    return 0;
  }
  return Load<std::uint8_t>(zBytes) | Load<std::uint8_t>(zBytes + zCount / 2) << 8 |
         Load<std::uint8_t>(zBytes + zCount - 1) << 16;
}

std::uint64_t Mixed(std::uint64_t zHash) {
  zHash *= Multiplier;
  return zHash ^ (zHash >> 32);
}

/// The hash of a name in any letter case.
std::uint32_t TagOf(std::string_view zName, std::uint64_t zSeed) {
  std::uint64_t hash = Mixed(zSeed + zName.size());
  const char* at = zName.data();
  std::size_t left = zName.size();
  for (; left > 8; left -= 8, at += 8) {
    hash = Mixed(hash ^ Folded(Load<std::uint64_t>(at)));
  }
  return static_cast<std::uint32_t>(Mixed(hash ^ Folded(LoadShort(at, left))));
}

/// The key of a line that is no header, without blanks around it; nothing when it has none.
std::optional<std::string_view> KeyOf(std::string_view zLine) {
  const std::size_t equals = zLine.find('=');
  if (equals == std::string_view::npos) {
    return std::nullopt;
  }
  const std::string_view key = TrimBlanks(zLine.substr(0, equals));
  return key.empty() || key.front() != ';' ? std::make_optional(key) : std::nullopt;
}

/// `zText` up to its first line end. Looks in ever larger parts of it, so that a text whose lines
/// all end alike is not searched for the other end to its last byte.
std::string_view RestOfLine(std::string_view zText) {
  for (std::size_t size = 256;; size *= 4) {
    const std::string_view part = zText.substr(0, size);
    const std::string_view line = part.substr(0, part.find('\n'));
    const std::size_t end = line.find('\r');
    if (end != std::string_view::npos || line.size() < size) {
      return line.substr(0, end);
    }
  }
}

/// Fetches `zMemory` into the processor's cache ahead of its use.
void Prefetch([[maybe_unused]] const void* zMemory) {
#ifdef __GNUC__
  __builtin_prefetch(zMemory, 1);
#endif
}

}  // namespace

std::size_t ProfileIndex::HashName::operator()(std::string_view zName) const {
  return TagOf(zName, 0);
}

bool ProfileIndex::SameName::operator()(std::string_view zLeft, std::string_view zRight) const {
  return EqualNames(zLeft, zRight);
}

ProfileIndex::ProfileIndex(LoadedFile zFile) : file_(std::move(zFile)) {
  FillSlots(ReadLines());
}

std::vector<ProfileIndex::Slot> ProfileIndex::ReadLines() {
  std::vector<Slot> entries;
  ProfileLineReader reader(Text());
  ProfileLine line;
  bool isReadable = false;  // false in front of the first header and in a section named before
  while (reader.Next(line)) {
    if (const auto name = HeaderName(line.text)) {
      if (isReadable) {
        sections_.back().end = line.begin;
      }
      isReadable = OpenSection(*name, line.next);
    } else if (const auto key = isReadable ? KeyOf(line.text) : std::nullopt) {
      entries.push_back({TagOf(*key, sections_.size()),
                         static_cast<std::uint32_t>(key->data() - file_.bytes.get())});
    }
  }
  return entries;
}

bool ProfileIndex::OpenSection(std::string_view zName, std::size_t zBegin) {
  const bool isNew = sectionsByName_.try_emplace(zName, sections_.size()).second;
  if (isNew) {
    sections_.push_back({zName, zBegin, file_.size});
  }
  return isNew;
}

void ProfileIndex::FillSlots(const std::vector<Slot>& zEntries) {
  constexpr std::size_t ahead = 16;  // entries; about as long as memory takes to answer
  slots_.resize(std::bit_ceil(zEntries.size() * 2 + 1));
  for (std::size_t i = 0; i < zEntries.size(); ++i) {
    if (i + ahead < zEntries.size()) {
      Prefetch(&slots_[zEntries[i + ahead].tag & (slots_.size() - 1)]);
    }
    Insert(zEntries[i]);
  }
}

void ProfileIndex::Insert(const Slot& zEntry) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = zEntry.tag & mask;
  for (; slots_[i].place != 0; i = (i + 1) & mask) {
    if (slots_[i].tag == zEntry.tag) {
      const std::string_view rest = Text().substr(zEntry.place);
      const std::string_view key = TrimBlanks(rest.substr(0, rest.find('=')));
      if (ValuePlace(slots_[i], SectionAround(zEntry.place), key)) {
        return;
      }
    }
  }
  slots_[i] = zEntry;
}

const ProfileIndex::Section& ProfileIndex::SectionAround(std::size_t zPlace) const {
  const auto next =
      std::upper_bound(sections_.begin(), sections_.end(), zPlace,
                       [](std::size_t zOne, const Section& zOther) { return zOne < zOther.begin; });
  return *std::prev(next);
}

/// Where the value behind the key of `zSlot` begins, if that is `zKey` in `zSection`.
std::optional<std::size_t> ProfileIndex::ValuePlace(const Slot& zSlot, const Section& zSection,
                                                    std::string_view zKey) const {
  if (zSlot.place < zSection.begin || zSlot.place >= zSection.end) {
    return std::nullopt;
  }
  const std::size_t equals = Text().find('=', zSlot.place);  // there is one, or it had no slot
  const std::string_view key = TrimBlanks(Text().substr(zSlot.place, equals - zSlot.place));
  return EqualNames(key, zKey) ? std::make_optional(equals + 1) : std::nullopt;
}

std::string_view ProfileIndex::ValueFrom(std::size_t zPlace) const {
  return WithoutQuotes(TrimBlanks(RestOfLine(Text().substr(zPlace))));
}

std::optional<std::string_view> ProfileIndex::Find(std::string_view zSection,
                                                   std::string_view zKey) const {
  const auto found = sectionsByName_.find(TrimBlanks(zSection));
  if (found == sectionsByName_.end()) {
    return std::nullopt;
  }
  const std::string_view key = TrimBlanks(zKey);
  const std::uint32_t tag = TagOf(key, found->second + 1);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = tag & mask; slots_[i].place != 0; i = (i + 1) & mask) {
    if (slots_[i].tag == tag) {
      if (const auto place = ValuePlace(slots_[i], sections_[found->second], key)) {
        return ValueFrom(*place);
      }
    }
  }
  return std::nullopt;
}

std::vector<std::string_view> ProfileIndex::SectionNames() const {
  std::vector<std::string_view> names;
  names.reserve(sections_.size());
  for (const Section& section : sections_) {
    names.push_back(section.name);
  }
  return names;
}

}  // namespace loquitor
