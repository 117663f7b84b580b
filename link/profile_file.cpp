#include "link/profile_file.h"

#include "link/fresh_profile.h"
#include "link/platform_files.h"
#include "link/profile_edit.h"

namespace loquitor {
namespace {

bool IsMissing(const std::filesystem::path& zFile) {
  std::error_code error;
  return std::filesystem::status(zFile, error).type() == std::filesystem::file_type::not_found;
}

/// Changes the file, whose folder is locked. It must exist and be readable, or not exist at all.
bool Store(const std::filesystem::path& zFile, FolderLock::State zLock, std::string_view zSection,
           std::span<const ProfileValue> zEntries) {
  const auto old = LoadFile(zFile);
  if (!old && !IsMissing(zFile)) {
    return false;
  }
  const std::string_view oldText = old ? old->View() : std::string_view();
  std::string text(oldText);
  for (const ProfileValue& entry : zEntries) {
    const auto edit = EditForValue(text, zSection, entry.key, entry.value);
    if (!edit) {
      return false;
    }
    text.replace(edit->begin, edit->end - edit->begin, edit->replacement);
  }
  const bool isAlreadySo = old && text == oldText;
  return isAlreadySo || SwapFile(zFile, text, zLock);
}

}  // namespace

std::string ReadProfileValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, std::size_t zBufferLength,
                             const std::filesystem::path& zFile) {
  const std::size_t most = zBufferLength == 0 ? 0 : zBufferLength - 1;
  const auto index = FreshIndexOf(zFile);
  const auto value = index ? index->Find(zSection, zKey) : std::nullopt;
  return std::string(value.value_or(zDefault).substr(0, most));
}

bool WriteProfileValue(std::string_view zSection, std::string_view zKey, std::string_view zValue,
                       const std::filesystem::path& zFile) {
  const ProfileValue entry{std::string(zKey), std::string(zValue)};
  return WriteProfileValues(zSection, std::span(&entry, 1), zFile);
}

bool WriteProfileValues(std::string_view zSection, std::span<const ProfileValue> zEntries,
                        const std::filesystem::path& zFile) {
  const auto file = FollowLinks(zFile);
  if (!file) {
    return false;
  }
  const FolderLock lock(file->parent_path());
  return lock.Result() != FolderLock::State::TimedOut &&
         Store(*file, lock.Result(), zSection, zEntries);
}

}  // namespace loquitor
