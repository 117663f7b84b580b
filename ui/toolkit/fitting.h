#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace loquitor {

/// `zFont`, narrowed (and at last made smaller) until `zText`, its lines broken between words,
/// fits into `zPlace`.
QFont WrappingFont(const QFont& zFont, const QString& zText, QSize zPlace);

/// `zCaption` as it is shown: "&&" is one "&".
QString ShownCaption(const QString& zCaption);

}  // namespace loquitor
