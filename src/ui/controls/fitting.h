#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace loquitor {

/// `zFont`, narrowed and, if that is not enough, made smaller, until `zText` fits into `zPlace`
/// with its lines broken between words.
QFont WrappingFont(const QFont& zFont, const QString& zText, QSize zPlace);

/// `zCaption` as it is shown: "&&" is one "&".
QString ShownCaption(const QString& zCaption);

}  // namespace loquitor
