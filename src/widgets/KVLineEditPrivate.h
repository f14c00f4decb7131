#pragma once

#include "units/UnitConversion.h"
#include "widgets/KVInputKinds.h"
#include "widgets/KVLineEdit.h"

#include <QMetaObject>

#include <map>
#include <optional>

namespace KVCAM::UIAPI {

// A number and the unit it is in.
struct KVLineEdit::Quantity
{
    double value;
    int unit;
};

struct KVLineEdit::Private
{
    std::map<int, QString> patterns;
    QString metricNumber;
    QString inchNumber;
    QString metricSymbol;
    QString inchSymbol;
    bool isChanging = false;   // changeunit() is rewriting the text, which is not to be recorded
    QWidget * owner = nullptr; // the view handle: compared, never followed
    KVERegExp kind = KVERegExp(0);

    // Additions
    struct Range
    {
        double minimum;
        double maximum;
    };
    int typedUnit = Units::inch; // of the number last typed
    int shownUnit = Units::inch;
    LengthScale scale = Small;
    std::optional<Range> range;
    bool isLegal = true;
    QString verdictText;
    QMetaObject::Connection judging;
    QMetaObject::Connection following;
    QMetaObject::Connection refusals;

    UnitTracking tracking() const
    {
        InputKind const * const row = inputKind(kind);
        return row == nullptr ? UnitTracking::None : row->tracking;
    }
};

} // namespace KVCAM::UIAPI
