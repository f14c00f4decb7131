#pragma once

#include "uiapi/Notifier.h"
#include "units/Evaluate.h"
#include "units/Length.h"
#include "widgets/KVLengthEdit.h"

#include <memory>
#include <optional>

namespace KVCAM::UIAPI {

// What the text means at the moment.
struct KVLengthEdit::Reading
{
    std::optional<Ext::Length> length; // also if it is out of range
    QString fault;                     // empty if legal
    int position = 0;                  // of the faulty part
    int size = 0;
};

struct KVLengthEdit::Private
{
    std::optional<Ext::Length> value;
    QString shown;          // as last shown by the field; any other text is being typed
    QString typed;          // the text that was taken as the value; empty if it was set or stepped to
    bool isShowing = false; // the field itself is setting its text

    Ext::Unit unit = Ext::Unit::Inch;
    Ext::LengthScale scale = Ext::LengthScale::Small;
    Ext::Length minimum = Ext::Length::lowest();
    Ext::Length maximum = Ext::Length::highest();
    Ext::Length step;
    Ext::MicrometreSign sign = Ext::MicrometreSign::My;
    bool unitShown = true;
    bool decimalComma = false;
    bool wheelSteps = false;
    int wheelRest = 0; // of an angle that was not yet a step

    bool isSeveral = false;
    QString placeholder; // the host's, meanwhile

    void const * view = nullptr; // compared, never dereferenced
    bool followsView = true;
    std::unique_ptr<Ext::ViewWatch> watch;

    QString fault; // as last reported
    QString preview;

    Ext::EvaluateOptions options() const
    {
        Ext::EvaluateOptions options;
        options.defaultUnit = unit;
        options.defaultScale = scale;
        options.as = Ext::EvaluateAs::Length;
        options.decimalComma = decimalComma;
        return options;
    }
    QString text(Ext::Length length, Ext::Unit in) const { return length.textWithUnit(in, scale, sign); }
};

} // namespace KVCAM::UIAPI
