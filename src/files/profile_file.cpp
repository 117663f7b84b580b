#include "files/profile_file.h"

#include <utility>

#include "files/platform_files.h"
#include "files/profile_edit.h"
#include "text/words.h"

namespace loquitor {
namespace {

bool IsMissing(const std::filesystem::path& zFile) {
  std::error_code error;
  return std::filesystem::status(zFile, error).type() == std::filesystem::file_type::not_found;
}

/// Stores the values; the caller has locked the folder. False also for a file that exists but
/// cannot be read: it must not be replaced.
bool Store(const std::filesystem::path& zFile, FolderLock::State zLock, std::string_view zSection,
           std::span<const ProfileValue> zValues) {
  const auto old = LoadFile(zFile);
  if (!old && !IsMissing(zFile)) {
    return false;
  }
  const std::string_view oldText = old ? old->View() : std::string_view();
  const auto text = TextWithValues(oldText, zSection, zValues);
  if (!text) {
    return false;
  }
  const bool isAlreadySo = old && *text == oldText;
  return isAlreadySo || SwapFile(zFile, *text, zLock);
}

}  // namespace

ProfileFile::ProfileFile(std::filesystem::path zPath) : path_(std::move(zPath)) {}

std::string ProfileFile::Read(std::string_view zSection, std::string_view zKey,
                              std::string_view zDefault, std::size_t zBufferLength) const {
  const std::size_t most = zBufferLength == 0 ? 0 : zBufferLength - 1;
  const auto value = Snapshot()->Find(zSection, zKey);
  return std::string(value.value_or(zDefault).substr(0, most));
}

std::string ProfileFile::ReadSetting(std::string_view zSection, std::string_view zKey,
                                     std::string_view zDefault) const {
  const std::string read = Read(zSection, zKey, zDefault, MaxSetting + 1);
  const std::string_view value = TrimSpacesAndNuls(read);
  return std::string(value.empty() ? zDefault : value);
}

bool ProfileFile::Write(std::string_view zSection, std::string_view zKey,
                        std::string_view zValue) const {
  const ProfileValue value{std::string(zKey), std::string(zValue)};
  return Write(zSection, std::span(&value, 1));
}

bool ProfileFile::Write(std::string_view zSection, std::span<const ProfileValue> zValues) const {
  const auto file = FollowLinks(path_);
  if (!file) {
    return false;
  }
  const FolderLock lock(file->parent_path());
  return lock.Result() != FolderLock::State::TimedOut &&
         Store(*file, lock.Result(), zSection, zValues);
}

std::shared_ptr<const ProfileSnapshot> ProfileFile::Snapshot() const {
  const auto stamp = StampOf(path_);
  if (!snapshot_ || !isStampReliable_ || stamp != stamp_) {
    ReadAgain();
  }
  return snapshot_;
}

void ProfileFile::ReadAgain() const {
  LoadedFile file = LoadFile(path_).value_or(LoadedFile());
  stamp_ = file.stamp;
  isStampReliable_ = file.isStampReliable;
  if (!snapshot_ || snapshot_->Text() != file.View()) {
    snapshot_.reset();  // frees its memory before the new one takes any
    snapshot_ = std::make_shared<const ProfileSnapshot>(std::move(file));
  }
}

std::string ReadProfileValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, std::size_t zBufferLength,
                             const std::filesystem::path& zFile) {
  return ProfileFile(zFile).Read(zSection, zKey, zDefault, zBufferLength);
}

bool WriteProfileValue(std::string_view zSection, std::string_view zKey, std::string_view zValue,
                       const std::filesystem::path& zFile) {
  return ProfileFile(zFile).Write(zSection, zKey, zValue);
}

}  // namespace loquitor
