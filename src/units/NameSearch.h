#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// Searching names by a pattern of '0' to '9', 'A' to 'Z' in either case, '_', '.', '/' and '*'.
namespace KVCAM::UIAPI::NameSearch {

/// Whether a pattern has at least one character and none but the allowed ones.
bool isPattern(QStringView pattern);

/// The items that match a pattern from end to end, in their order. Case does not count; '*' stands for any
/// text, and every other character for itself. The pattern must be one by isPattern().
QList<QString> matches(QList<QString> const & items, QString const & pattern);

} // namespace KVCAM::UIAPI::NameSearch
