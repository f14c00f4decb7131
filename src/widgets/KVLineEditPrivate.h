#pragma once

#include "units/UnitConversion.h"
#include "units/ValueCheck.h"
#include "widgets/KVInputKinds.h"
#include "widgets/KVLineEdit.h"

#include <QMetaObject>

#include <optional>

namespace KVCAM::UIAPI {

// A number and the unit it is in.
struct KVLineEdit::Quantity
{
    double value;
    Ext::Unit unit;
};

struct KVLineEdit::Private
{
    QString metricNumber;
    QString inchNumber;
    QString metricSymbol;
    QString inchSymbol;
    bool isChanging = false;   // changeunit() is rewriting the text; do not record it
    QWidget * owner = nullptr; // the view handle: compared, never dereferenced
    KVERegExp kind = KVERegExp(0);
    QMetaObject::Connection recording;

    // Additions
    struct Range
    {
        Ext::Length minimum;
        Ext::Length maximum;
    };
    int typedUnit = Units::inch;  // of the last typed text
    std::optional<int> shownUnit; // unknown until a text is recorded or a unit is requested
    LengthScale scale = Small;
    std::optional<Range> range;
    Ext::ValueVerdict verdict; // as last reported
    bool isMarked = false;     // the dynamic property is set
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
