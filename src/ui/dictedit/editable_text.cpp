#include "ui/dictedit/editable_text.h"

#include <optional>
#include <system_error>

#include "core/dictionary_text.h"
#include "files/file_bytes.h"

namespace loquitor {
namespace {

bool IsFileTooLarge(const std::filesystem::path& zFile) {
  std::error_code failure;
  return std::filesystem::file_size(zFile, failure) > EditableLimits::Bytes && !failure;
}

/// What is wrong with showing a text of this extent; empty when nothing is.
QString FailureOf(const TextExtent& zExtent) {
  if (zExtent.lines > EditableLimits::Lines) {
    return QStringLiteral("The dictionary is too large to be edited here:");
  }
  if (zExtent.longestLine > EditableLimits::LineLength) {
    return QStringLiteral(
               "Line %1 of the dictionary is too long to be edited here; it must not have more "
               "than %2 characters:")
        .arg(zExtent.longestAt)
        .arg(EditableLimits::LineLength);
  }
  return {};
}

}  // namespace

EditableText ReadEditableText(const std::filesystem::path& zFile) {
  const auto failed = [&zFile](const QString& zReason) {
    return EditableText{{}, zReason + "\r\n" + QString::fromStdString(zFile.string())};
  };
  if (IsFileTooLarge(zFile)) {
    return failed(QStringLiteral("The dictionary is too large to be edited here:"));
  }
  const std::optional<std::string> bytes = ReadWholeFile(zFile);
  if (!bytes) {
    return failed(QStringLiteral("The dictionary cannot be read. Check whether you may read it:"));
  }
  std::string text = BoxTextFromFile(*bytes);
  const QString failure = FailureOf(ExtentOf(text));
  return failure.isEmpty() ? EditableText{std::move(text), {}} : failed(failure);
}

}  // namespace loquitor
