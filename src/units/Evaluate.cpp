#include "units/Evaluate.h"

#include "support/NumberRuns.h"
#include "units/EvaluateParser.h"
#include "units/ExactNumber.h"
#include "units/Expression.h"
#include "units/FaultText.h"
#include "units/SinglePop.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace KVCAM::UIAPI::Ext {
namespace {

using Sentence = FaultText<EvaluateFault>;

constexpr std::array sentences{
    Sentence{EvaluateFault::None, ""},
    Sentence{EvaluateFault::Empty, QT_TRANSLATE_NOOP("Evaluate", "Type a value.")},
    Sentence{EvaluateFault::NumberMissing, QT_TRANSLATE_NOOP("Evaluate", "A number is missing at \"%1\".")},
    Sentence{EvaluateFault::OperatorMissing,
             QT_TRANSLATE_NOOP("Evaluate", "One of + - * / is missing before \"%1\".")},
    Sentence{EvaluateFault::UnknownCharacter, QT_TRANSLATE_NOOP("Evaluate", "\"%1\" has no meaning here.")},
    Sentence{EvaluateFault::CommaNotAllowed,
             QT_TRANSLATE_NOOP("Evaluate", "A comma has no meaning here; the decimal sign is a point.")},
    Sentence{
        EvaluateFault::SecondDecimalSign,
        QT_TRANSLATE_NOOP("Evaluate", "A number has only one decimal sign, and nothing between thousands.")},
    Sentence{EvaluateFault::UnknownUnit,
             QT_TRANSLATE_NOOP("Evaluate", "\"%1\" is not a unit; use mm, um, my, cm, mil or inch.")},
    Sentence{EvaluateFault::ParenthesisNotClosed,
             QT_TRANSLATE_NOOP("Evaluate", "This parenthesis is not closed.")},
    Sentence{EvaluateFault::ParenthesisNotOpened,
             QT_TRANSLATE_NOOP("Evaluate", "This parenthesis was not opened.")},
    Sentence{EvaluateFault::NestedTooDeep,
             QT_TRANSLATE_NOOP("Evaluate", "The parentheses are nested too deeply.")},
    Sentence{EvaluateFault::DivisionByZero,
             QT_TRANSLATE_NOOP("Evaluate", "\"%1\" is zero: nothing can be divided by it.")},
    Sentence{EvaluateFault::LengthTimesLength,
             QT_TRANSLATE_NOOP("Evaluate", "A length cannot be multiplied by a length.")},
    Sentence{EvaluateFault::NumberByLength,
             QT_TRANSLATE_NOOP("Evaluate", "A number cannot be divided by a length.")},
    Sentence{EvaluateFault::UnitMissing, QT_TRANSLATE_NOOP("Evaluate", "\"%1\" needs a unit.")},
    Sentence{EvaluateFault::RatioWithLength,
             QT_TRANSLATE_NOOP(
                 "Evaluate", "\"%1\" is a ratio, which cannot be added to a length or subtracted from it.")},
    Sentence{EvaluateFault::NotALength,
             QT_TRANSLATE_NOOP("Evaluate", "This is the ratio of two lengths, not a length.")},
    Sentence{EvaluateFault::NotANumber,
             QT_TRANSLATE_NOOP("Evaluate", "This is a length, but a number without a unit is needed.")},
    Sentence{EvaluateFault::TooLarge, QT_TRANSLATE_NOOP("Evaluate", "This value is too large.")},
};

static_assert(sentences.size() == evaluateFaultCount && isByFault(sentences));

// Whether caculateData() takes the text and applies its operators in another order. It does so when a sum
// arrives while a sum and a product wait: only the product is popped, and the older sum comes last.
bool isOrderedDifferently(QStringView text)
{
    bool isAfterDigit = true;
    bool isSumWaiting = false;
    bool isProductWaiting = false; // on top of a sum
    bool differs = false;
    for (QChar const c : text) {
        if (isAsciiDigit(c)) {
            isAfterDigit = true;
            continue;
        }
        if (!isAfterDigit || !(Expression::isOperator(c) || c == QLatin1Char('.'))) {
            return false; // not its grammar
        }
        isAfterDigit = false;
        if (Expression::isSum(c)) {
            differs = differs || isProductWaiting;
            isSumWaiting = true;
            isProductWaiting = false;
        } else if (Expression::isProduct(c)) {
            isProductWaiting = isSumWaiting;
        }
    }
    return differs;
}

void compareWithClassic(Evaluation & evaluation, ExactNumber value, QStringView text)
{
    if (!isOrderedDifferently(text)) {
        return;
    }
    // Equal doubles need no closer look; others may differ by rounding only.
    double const classic = Expression::evaluate(text);
    if (classic != value.toDouble() &&
        !areSame(Expression::evaluateSinglePop<ExactNumber>(text, ExactNumber::fromDecimal), value)) {
        evaluation.differs = true;
        evaluation.classicValue = classic;
    }
}

Evaluation failed(QStringView text, EvaluateFault fault, int position, int size)
{
    Evaluation evaluation;
    evaluation.ok = false;
    evaluation.fault = fault;
    evaluation.position = position;
    evaluation.size = size;
    evaluation.reason = withFaultyPart(
        QCoreApplication::translate("Evaluate", sentences[static_cast<std::size_t>(fault)].sentence),
        text.mid(position, size));
    return evaluation;
}

} // namespace

Evaluation evaluate(QStringView text, EvaluateOptions const & options)
{
    EvaluateParser parser(text, options);
    EvaluateTerm term;
    if (!parser.parse(term)) {
        return failed(text, parser.fault(), parser.position(), parser.size());
    }
    auto const failedWhole = [&](EvaluateFault fault) {
        return failed(text, fault, term.begin, term.end - term.begin);
    };
    Evaluation evaluation;
    bool const isBare = term.dimension == EvaluateDimension::Bare;
    bool const takesUnit = isBare && options.defaultUnit && options.as != EvaluateAs::Number;
    if (term.dimension != EvaluateDimension::Length && !takesUnit) {
        if (options.as == EvaluateAs::Length) {
            return failedWhole(isBare ? EvaluateFault::UnitMissing : EvaluateFault::NotALength);
        }
        evaluation.number = term.value.toDouble() + 0.0; // no -0.0
    } else {
        if (options.as == EvaluateAs::Number) {
            return failedWhole(EvaluateFault::NotANumber);
        }
        auto const nanometres = (takesUnit ? parser.inDefaultUnit(term.value) : term.value).nearest();
        if (!nanometres) {
            return failedWhole(EvaluateFault::TooLarge);
        }
        evaluation.isLength = true;
        evaluation.length = Length::fromNanometres(*nanometres);
    }
    if (isBare) {
        compareWithClassic(evaluation, term.value, text);
    }
    return evaluation;
}

} // namespace KVCAM::UIAPI::Ext
