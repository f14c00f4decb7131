#pragma once

#include "Session.h"

#include <QJsonArray>
#include <QWidget>

namespace Workbench {

/// One symbol name of the job in both units.
struct SymbolRow
{
    QString stored;
    int unit = 0; ///< of the stored sizes: 0 mil, 1 micrometre
    QString inch;
    QString metric;
    QString description;
    int features = 0;
};

/// Every symbol name of the job, sorted.
std::vector<SymbolRow> symbolRows(std::string const & job);
QJsonArray toJson(std::vector<SymbolRow> const & rows);

/// The symbol names of the job as a table.
class SymbolsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SymbolsPage(std::string const & job, QWidget * parent = nullptr);
};

} // namespace Workbench
