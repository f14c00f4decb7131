#include "widgets/FormValues.h"

#include "units/Evaluate.h"
#include "units/Length.h"

#include <QJsonObject>
#include <QMetaType>

#include <cmath>

namespace KVCAM::UIAPI::FormValues {
namespace {

constexpr char const * lengthKey = "length";

enum class Form
{
    None,
    Truth,
    Whole,
    Real,
    Length,
    Text
};

Form formOf(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return Form::Truth;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::UChar:
        return Form::Whole;
    case QMetaType::Double:
    case QMetaType::Float:
        return Form::Real;
    default:
        break;
    }
    if (type == qMetaTypeId<Ext::Length>()) {
        return Form::Length;
    }
    // 64-bit integers too, which JSON numbers do not hold.
    bool const isText = QVariant(type, nullptr).canConvert<QString>() && QVariant(QString()).canConvert(type);
    return isText && type != QMetaType::UnknownType ? Form::Text : Form::None;
}

} // namespace

bool isSupported(QVariant const & value)
{
    return formOf(value.userType()) != Form::None;
}

QJsonValue toJson(QVariant const & value, bool inch)
{
    switch (formOf(value.userType())) {
    case Form::Truth:
        return value.toBool();
    case Form::Whole:
    case Form::Real:
        return value.toDouble();
    case Form::Length: {
        auto const length = value.value<Ext::Length>();
        QString const text = inch ? length.textWithUnit(Ext::Unit::Inch, Ext::LengthScale::Small)
                                  : length.textWithUnit(Ext::Unit::Millimetre, Ext::LengthScale::Large);
        return QJsonObject{{QLatin1String(lengthKey), text}};
    }
    case Form::Text:
        return value.toString();
    case Form::None:
        break;
    }
    return {};
}

std::optional<QVariant> fromJson(QJsonValue const & json, QVariant const & like)
{
    int const type = like.userType();
    QVariant value;
    switch (formOf(type)) {
    case Form::Truth:
        if (!json.isBool()) {
            return std::nullopt;
        }
        return json.toBool();
    case Form::Whole:
    case Form::Real:
        value = json.toDouble();
        // The way back shows a fraction and a number beyond the type.
        if (!json.isDouble() || !value.convert(type) ||
            (formOf(type) == Form::Whole && value.toDouble() != json.toDouble())) {
            return std::nullopt;
        }
        return value;
    case Form::Length: {
        Ext::EvaluateOptions options;
        options.as = Ext::EvaluateAs::Length;
        Ext::Evaluation const length =
            Ext::evaluate(json.toObject().value(QLatin1String(lengthKey)).toString(), options);
        return length ? std::optional(QVariant::fromValue(length.length)) : std::nullopt;
    }
    case Form::Text:
        value = json.toString();
        // A date, a colour and the like may be empty, but not nonsense.
        if (!json.isString() || (!value.convert(type) && !json.toString().isEmpty())) {
            return std::nullopt;
        }
        return value;
    case Form::None:
        break;
    }
    return std::nullopt;
}

} // namespace KVCAM::UIAPI::FormValues
