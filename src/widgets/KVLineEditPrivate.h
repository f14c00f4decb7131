#pragma once

#include "uiapi/Notifier.h"
#include "uiapi/RegisteredViews.h"
#include "uiapi/flat/ShowParameters.h"
#include "units/UnitConversion.h"
#include "units/ValueCheck.h"
#include "widgets/KVInputKinds.h"
#include "widgets/KVLineEdit.h"

#include <QMetaObject>

#include <memory>
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
    bool isChanging = false;      // changeunit() is rewriting the text; do not record it
    void const * owner = nullptr; // the view handle: compared, never dereferenced
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
    SymbolConversion symbolConversion = AsDescribed;
    std::optional<Range> range;
    Ext::ValueVerdict verdict; // as last reported
    bool isMarked = false;     // the dynamic property is set
    QMetaObject::Connection judging;
    std::unique_ptr<Ext::ViewWatch> following; // of the view, while it is followed
    QMetaObject::Connection refusals;

    // The view's unit; an unregistered view is not asked, since that is logged. In Qt Designer no singleton
    // exists, and this makes none.
    std::optional<int> viewUnit() const
    {
        return Ext::isRegistered(owner) ? std::optional(getUnit(owner)) : std::nullopt;
    }

    UnitTracking tracking() const
    {
        InputKind const * const row = inputKind(kind);
        return row == nullptr ? UnitTracking::None : row->tracking;
    }
};

} // namespace KVCAM::UIAPI
