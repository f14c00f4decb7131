#pragma once

#include "job/ExitCode.h"

#include <UIAPICommonExt.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <optional>
#include <vector>

namespace Workbench {

/// What became of one board in a run without a window.
struct BoardOutcome
{
    QString board; ///< its name
    QString step;
    bool isChecked = false;                     ///< otherwise there is nothing to count
    KVCAM::UIAPI::Ext::SeverityCounts counts{}; ///< without what is waived
    std::size_t waived = 0;
    std::optional<KVCAM::UIAPI::Ext::ChangeCounts> changes; ///< against the baseline
    std::size_t notChecked = 0;                             ///< entries of the report
    double seconds = 0;                                     ///< reading and checking
    QStringList files;                                      ///< that were written
    QStringList errors;                                     ///< what went wrong
    QStringList notes;                                      ///< what should be known, but fails nothing
    ExitCode exit = ExitCode::Fine;
};

/// Notes what went wrong.
void fail(BoardOutcome & outcome, ExitCode exit, QString const & error);

/// The worst of all; Fine without any.
ExitCode worst(std::vector<BoardOutcome> const & outcomes);

/// A line for each board below a head, and the sum of several.
QString tableText(std::vector<BoardOutcome> const & outcomes);

/// The same and more for programs.
QJsonObject toJson(std::vector<BoardOutcome> const & outcomes);

/// Says on stderr what went wrong and what should be known.
void sayAll(BoardOutcome const & outcome, bool withBoard);

} // namespace Workbench
