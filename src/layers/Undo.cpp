#include "layers/Undo.h"

#include "layers/UndoCount.h"
#include "support/Boxes.h"
#include "support/Guard.h"
#include "support/Log.h"

#include <kvcam/Database.h>
#include <kvcam/Engine.h>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <string>

namespace KVCAM::UIAPI {
namespace {

using Twin = void (*)(std::string const & job, std::string const & step);

/// A step under the names the engine uses.
struct Place
{
    Place(QString const & jobName, QString const & stepName)
        : job(jobName.toLower().toStdString()), step(stepName.toLower().toStdString())
    {}

    /// The database is called first. The flag is read each time: the engine may change it in between.
    void save(Twin twin) const
    {
        if (KVCAM::DB::get_SaveFlag()) {
            twin(job, step);
        }
    }

    std::string job;
    std::string step;
};

// An engine that never finishes shows up in the log, but not often enough to fill it.
void warnOfRounds(long long rounds)
{
    constexpr long long first = 1000;
    constexpr long long interval = 100000;
    if (rounds % interval == first) {
        Log::warning(Log::commonPara,
                     "KVCAM UIAPI undo, CorrectUndo failed " + std::to_string(rounds) + " times!");
    }
}

// Deliberately unbounded: nothing may be undone in an incorrect history.
void correctHistory(Place const & place)
{
    for (long long rounds = 1;; ++rounds) {
        place.save(KVCAM::DB::CorrectUndo_db_save);
        if (KVCAM::API::CorrectUndo(place.job, place.step)) {
            return;
        }
        warnOfRounds(rounds);
    }
}

} // namespace

void UndoCommand::run(QString const & job, QString const & step, QWidget * parent)
{
    // Copies: the caller and its window may be gone by the time the engine or the user answers.
    Place const place(job, step);
    QPointer<QWidget> const window(parent);
    correctHistory(place);
    place.save(KVCAM::DB::op_size_db_save);
    if (KVCAM::API::op_size(place.job, place.step) < 1) {
        showInformation(window, QObject::tr("There are no revocable actions!"));
        return;
    }
    if (askQuestion(window, QObject::tr("Are you sure to cancel?"))) {
        place.save(KVCAM::DB::Undo_db_save);
        KVCAM::API::Undo(place.job, place.step); // result ignored
    }
}

int Ext::undoCount(QString const & job, QString const & step)
{
    return guarded(Log::commonPara, [&] {
        Place const place(job, step);
        return std::max(0, KVCAM::API::op_size(place.job, place.step));
    });
}

} // namespace KVCAM::UIAPI
