#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace loquitor {

/// `zFont`, narrowed until every line of `zText` fits into `zWidth` logical pixels. If that is not
/// enough the font is made smaller too, down to a height of 8 pixels. A text that still does not
/// fit gets that smallest font.
QFont FittingFont(const QFont& zFont, const QString& zText, int zWidth);

/// As FittingFont, for a text that is broken between words into as many lines as `zPlace` (logical
/// pixels) has room for.
QFont WrappingFont(const QFont& zFont, const QString& zText, QSize zPlace);

/// `zCaption` as it is shown: with "&" for each "&&".
QString ShownCaption(const QString& zCaption);

}  // namespace loquitor
