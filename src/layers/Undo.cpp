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

/// A step as the engine knows it.
struct Place
{
    Place(QString const & jobName, QString const & stepName)
        : job(jobName.toLower().toStdString()), step(stepName.toLower().toStdString())
    {}

    /// The database goes first. The flag is asked each time, since the engine may turn it in between.
    void save(Twin twin) const
    {
        if (KVCAM::DB::get_SaveFlag()) {
            twin(job, step);
        }
    }

    std::string job;
    std::string step;
};

// An engine that never comes to an end shows in the log, and not so often as to fill it.
void warnOfRounds(long long rounds)
{
    constexpr long long first = 1000;
    constexpr long long interval = 100000;
    if (rounds % interval == first) {
        Log::warning(Log::commonPara,
                     "KVCAM UIAPI undo, CorrectUndo failed " + std::to_string(rounds) + " times!");
    }
}

// Without a bound on purpose: nothing may be undone in a history that is not correct.
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
    // Copies, since the caller and its window may be gone when the engine or the user has answered.
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
        KVCAM::API::Undo(place.job, place.step); // its result is nobody's business
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
