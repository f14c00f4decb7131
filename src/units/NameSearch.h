#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// Searches names by a pattern of '0' to '9', 'A' to 'Z' in either case, '_', '.', '/' and '*'.
namespace KVCAM::UIAPI::NameSearch {

/// Whether a pattern is not empty and has only allowed characters.
bool isPattern(QStringView pattern);

/// The items that match the whole pattern, in their order, case-insensitively. '*' matches any text, every
/// other character itself. The pattern must satisfy isPattern().
QList<QString> matches(QList<QString> const & items, QString const & pattern);

} // namespace KVCAM::UIAPI::NameSearch
