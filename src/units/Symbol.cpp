#include "units/Symbol.h"

#include "support/NumberRuns.h"
#include "units/DecimalText.h"
#include "units/ExactNumber.h"
#include "units/FaultText.h"
#include "units/SymbolParts.h"
#include "units/SymbolTexts.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QStringView>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

using Sentence = FaultText<SymbolFault>;

constexpr std::array sentences{
    Sentence{SymbolFault::None, ""},
    Sentence{SymbolFault::Empty, QT_TRANSLATE_NOOP("Symbols", "Type a name.")},
    Sentence{SymbolFault::UnknownFamily,
             QT_TRANSLATE_NOOP("Symbols", "No standard symbol begins with \"%1\".")},
    Sentence{SymbolFault::FieldMissing, QT_TRANSLATE_NOOP("Symbols", "This field is missing.")},
    Sentence{SymbolFault::TooManyFields,
             QT_TRANSLATE_NOOP("Symbols", "\"%1\" is too much; the name ends before it.")},
    Sentence{SymbolFault::NotANumber,
             QT_TRANSLATE_NOOP("Symbols", "\"%1\" is not a number such as 10 or 2.5.")},
    Sentence{SymbolFault::NotAWholeNumber, QT_TRANSLATE_NOOP("Symbols", "\"%1\" is not a whole number.")},
    Sentence{SymbolFault::TooLarge, QT_TRANSLATE_NOOP("Symbols", "\"%1\" is too large.")},
    Sentence{SymbolFault::CornerKindMissing,
             QT_TRANSLATE_NOOP("Symbols", "\"%1\" does not begin with r (rounded) or c (cut).")},
    Sentence{SymbolFault::ChamferNotAllowed,
             QT_TRANSLATE_NOOP("Symbols", "The corners of this symbol can be rounded (r), not cut (c).")},
    Sentence{SymbolFault::NotCorners,
             QT_TRANSLATE_NOOP("Symbols", "\"%1\" is not a choice of the corners 1 to 4, each once.")},
    Sentence{SymbolFault::NotPlating,
             QT_TRANSLATE_NOOP("Symbols", "\"%1\" is not p (plated), n (not plated) or v (via).")},
};

static_assert(sentences.size() == symbolFaultCount && isByFault(sentences));

SymbolReading failed(QString const & name, SymbolFault fault, std::optional<SymbolField> field,
                     QStringView part)
{
    SymbolReading reading;
    reading.ok = false;
    reading.fault = fault;
    reading.field = field;
    reading.position = static_cast<int>(part.data() - QStringView(name).data());
    reading.size = static_cast<int>(part.size());
    reading.reason =
        withFaultyPart(Symbols::translated(sentences[static_cast<std::size_t>(fault)].sentence), part);
    if (field) {
        reading.reason = Symbols::translated(QT_TRANSLATE_NOOP("Symbols", "%1: %2"))
                             .arg(Symbols::fieldName(*field), reading.reason);
    }
    return reading;
}

// The prefix as it was meant: in "r.5" and "rectx5" a number is wrong or missing, not the family.
QStringView intendedPrefix(QStringView name)
{
    QStringView prefix = Symbols::symbolPrefix(name);
    while (!prefix.isEmpty() && QStringView(u"x.,+- ").contains(prefix.back())) {
        prefix.chop(1);
    }
    return prefix;
}

bool areDigits(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isAsciiDigit);
}

// Digits, with or without a point between them.
bool isDecimal(QStringView text)
{
    auto const point = std::find(text.begin(), text.end(), QLatin1Char('.')) - text.begin();
    return areDigits(text.left(point)) && (point == text.size() || areDigits(text.mid(point + 1)));
}

SymbolFault readNumber(SymbolValue & value, QStringView digits)
{
    if (digits.isEmpty()) {
        return SymbolFault::FieldMissing;
    }
    if (!isDecimal(digits)) {
        return SymbolFault::NotANumber;
    }
    value.number = decimalValue(digits);
    if (!isSymbolLength(value.role)) {
        if (isSymbolCount(value.role) && !areDigits(digits)) {
            return SymbolFault::NotAWholeNumber;
        }
        return value.number > std::numeric_limits<int>::max() ? SymbolFault::TooLarge : SymbolFault::None;
    }
    ExactNumber const perUnit(nanometresPer(value.unit, LengthScale::Small));
    auto const nanometres = (ExactNumber::fromDecimal(digits) * perUnit).nearest();
    value.length = Length::fromNanometres(nanometres.value_or(0));
    return nanometres ? SymbolFault::None : SymbolFault::TooLarge;
}

bool areCorners(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [text](QChar c) {
        return c >= QLatin1Char('1') && c <= QLatin1Char('4') && std::count(text.begin(), text.end(), c) == 1;
    });
}

// Reads the whole part, and leaves in it what is faulty.
SymbolFault readValue(SymbolValue & value, QStringView & part, SymbolGrammar const & grammar)
{
    if (part.isEmpty()) {
        return SymbolFault::FieldMissing;
    }
    value.text = part.toString();
    switch (symbolFieldKind(value.role)) {
    case SymbolFieldKind::Corner:
        if (!value.isChamfer() && part.front() != QLatin1Char('r')) {
            return SymbolFault::CornerKindMissing;
        }
        if (value.isChamfer() && !grammar.allowsChamfers) {
            return SymbolFault::ChamferNotAllowed;
        }
        part = part.mid(1);
        return readNumber(value, part);
    case SymbolFieldKind::CornerList:
        return areCorners(part) ? SymbolFault::None : SymbolFault::NotCorners;
    case SymbolFieldKind::Plating:
        return part.size() == 1 && !Symbols::platingName(part.front()).isEmpty() ? SymbolFault::None
                                                                                 : SymbolFault::NotPlating;
    default:
        return readNumber(value, part);
    }
}

} // namespace

SymbolReading Symbol::parse(QString const & name, Unit unit)
{
    QStringView const whole = name;
    if (whole.isEmpty()) {
        return failed(name, SymbolFault::Empty, std::nullopt, whole);
    }
    QStringView const prefix = intendedPrefix(whole);
    Symbol symbol;
    symbol.m_grammar = Symbols::findGrammar(prefix);
    if (symbol.m_grammar == nullptr) {
        QStringView const start = Symbols::symbolPrefix(whole);
        return failed(name, SymbolFault::UnknownFamily, std::nullopt, start.isEmpty() ? whole : start);
    }
    SymbolLayout const & layout = symbol.m_grammar->layout;
    Symbols::SymbolParts const parts = Symbols::splitParts(whole.mid(prefix.size()));
    auto const count = static_cast<std::size_t>(parts.size());
    for (std::size_t i = 0; i < std::max(count, layout.required); ++i) {
        QStringView part = i < count ? parts[static_cast<int>(i)] : whole.mid(whole.size());
        if (i == layout.count) {
            QStringView const rest = whole.mid(part.data() - whole.data() - 1);
            return failed(name, SymbolFault::TooManyFields, std::nullopt, rest);
        }
        SymbolValue value;
        value.role = layout.fields[i];
        value.unit = unit;
        SymbolFault const fault = readValue(value, part, *symbol.m_grammar);
        if (fault != SymbolFault::None) {
            return failed(name, fault, value.role, part);
        }
        symbol.m_values.push_back(value);
    }
    SymbolReading reading;
    reading.symbol = std::move(symbol);
    return reading;
}

SymbolValue const * Symbol::find(SymbolField role) const noexcept
{
    auto const found = std::find_if(m_values.begin(), m_values.end(),
                                    [role](SymbolValue const & value) { return value.role == role; });
    return found == m_values.end() ? nullptr : &*found;
}

QString Symbol::name(Unit shown) const
{
    QString name = QString::fromLatin1(m_grammar->prefix.data(), static_cast<int>(m_grammar->prefix.size()));
    QString separator;
    for (SymbolValue const & value : m_values) {
        name += separator;
        separator = QLatin1Char('x');
        if (!isSymbolLength(value.role) || value.unit == shown) {
            name += value.text;
            continue;
        }
        if (value.role == SymbolField::Corner) {
            name += value.text.front();
        }
        name += value.length.text(shown, LengthScale::Small);
    }
    return name;
}

SymbolFault Symbol::setValue(std::size_t index, QString const & text, Unit unit)
{
    if (index >= m_values.size()) {
        return SymbolFault::TooManyFields;
    }
    SymbolValue value;
    value.role = m_values[index].role;
    value.unit = unit;
    QStringView part = text;
    SymbolFault const fault = readValue(value, part, *m_grammar);
    if (fault == SymbolFault::None) {
        m_values[index] = value;
    }
    return fault;
}

} // namespace KVCAM::UIAPI::Ext
