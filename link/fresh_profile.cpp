#include "link/fresh_profile.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace loquitor {
namespace {

/// The program has three profile files; one more lets a test or a script compare.
constexpr std::size_t RememberedFiles = 4;

}  // namespace

FreshProfile::FreshProfile(std::filesystem::path zFile) : path_(std::move(zFile)) {}

std::shared_ptr<const ProfileIndex> FreshProfile::Index() {
  const auto stamp = StampOf(path_);
  if (!stamp) {
    index_.reset();
  } else if (!index_ || !isSettled_ || *stamp != stamp_) {
    ReadAgain();
  }
  return index_;
}

void FreshProfile::ReadAgain() {
  auto file = LoadFile(path_);
  if (!file) {
    index_.reset();
    return;
  }
  stamp_ = file->stamp;
  isSettled_ = file->isSettled;
  if (!index_ || index_->Text() != file->View()) {
    index_.reset();  // its memory may serve the new one
    index_ = std::make_shared<const ProfileIndex>(std::move(*file));
  }
}

std::shared_ptr<const ProfileIndex> FreshIndexOf(const std::filesystem::path& zFile) {
  thread_local std::vector<FreshProfile> remembered;  // the file asked for last comes first
  auto found =
      std::find_if(remembered.begin(), remembered.end(), [&zFile](const FreshProfile& zProfile) {
        return zProfile.File().native() == zFile.native();
      });
  if (found == remembered.end()) {
    if (remembered.size() == RememberedFiles) {
      remembered.pop_back();
    }
    found = remembered.emplace(remembered.end(), zFile);
  }
  std::rotate(remembered.begin(), found, found + 1);
  return remembered.front().Index();
}

}  // namespace loquitor
