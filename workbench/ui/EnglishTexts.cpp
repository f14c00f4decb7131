#include "ui/EnglishTexts.h"

#include "ui/CategoryNames.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <cstddef>
#include <iterator>
#include <vector>

namespace Workbench {

namespace {

constexpr char const * context = "Workbench::EnglishTexts";
constexpr char const * listsNames =
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The engine has no check for: %1.");

// Sentences, and parts of them that stand in another's place.
constexpr char const * patterns[] = {
    listsNames,
    QT_TRANSLATE_NOOP(
        "Workbench::EnglishTexts",
        "The nets are those of eda/data (%1); what it does not list belongs to what it touches."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "The nets come from copper and plated holes that touch: %1."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "the step has no eda/data"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "eda/data does not fit the job: %1"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "it names a layer %1 that the job does not have"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "its net %1 has feature %2 of layer %3, which has %4"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "eda/data lists no nets"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "eda/data cannot be used: %1"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "The job holds no features of this layer, only their tables."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The job holds no features file of this layer."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Erasing features (%1): what they take from others is not seen."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Texts, marked as .nomenclature or .string (%1) are not measured."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Surfaces (%1): their narrow places are not measured, and none counts as a pad."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "Surfaces (%1) are not measured as holes or slots."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Surfaces marked as SMD pads (%1): their spacing is not measured."),
    QT_TRANSLATE_NOOP(
        "Workbench::EnglishTexts",
        "Tracks and pads that cross or leave the outline (%1): they are measured all the same."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "Features outside the outline (%1) are not measured."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "Features drawn with \"%1\" (%2): %3."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Features drawn with more such symbols (%1) are not measured."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "the width of a line drawn with it cannot be measured"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "this symbol cannot be measured"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "its drawing is too large"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "it contains symbols within symbols without end"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "the job has no drawing of it"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "the drawings of the job's symbols are too large"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "of \"%1\" in it, %2"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "\"%1\" in it cannot be measured so"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "its drawing is empty"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "its drawing has no measurable size"),
    // clang-format off
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The SMD pads drawn with large symbols of the job's own are too many: their spacing is that of the boxes around them."),
    // clang-format on
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Plated holes without a pad on this outer layer (%1): they have no ring."),
    QT_TRANSLATE_NOOP(
        "Workbench::EnglishTexts",
        "Plated holes whose pad does not cover their centre with solid copper (%1): they have no ring."),
    QT_TRANSLATE_NOOP(
        "Workbench::EnglishTexts",
        "The layer has so many arcs that spacings are measured up to %1 micrometres too small."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The rings of slots that are arcs (%1)."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The layer is negative: it draws what is taken away."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The step repeats %1 %2 times; measure that step."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts", "The job has neither a rout layer nor a profile."),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "Illegal float value\nfloating value for field is out of range: (%1, %2)"),
    QT_TRANSLATE_NOOP("Workbench::EnglishTexts",
                      "floating value for field is out of range: %1\nlegal values: from %2 to %3"),
};

// A pattern with a group for each place, which are numbered from 1 in the order of the text.
std::vector<QRegularExpression> const & expressions()
{
    static auto const * const all = [] {
        auto * made = new std::vector<QRegularExpression>; // kept: callers may outlive static objects
        for (char const * pattern : patterns) {
            static QRegularExpression const place(R"(\\%\d)");
            QString text = QRegularExpression::escape(QString::fromLatin1(pattern));
            made->emplace_back(QRegularExpression::anchoredPattern(text.replace(place, "(.+?)")),
                               QRegularExpression::DotMatchesEverythingOption);
        }
        return made;
    }();
    return *all;
}

// The text with parts[n] in the place %n. What a part contains is never taken for a place.
QString filled(QString const & pattern, QStringList const & parts)
{
    QString text;
    for (int i = 0; i < pattern.size(); ++i) {
        int const place = pattern[i] == '%' && i + 1 < pattern.size() ? pattern[i + 1].digitValue() : -1;
        bool const isPlace = place > 0 && place < parts.size();
        text += isPlace ? parts[place] : QString(pattern[i]);
        i += isPlace ? 1 : 0;
    }
    return text;
}

} // namespace

QString translatedSentence(QString const & english, PatternSource const & source)
{
    for (std::size_t i = 0; i < std::size(patterns); ++i) {
        QRegularExpressionMatch const match = expressions()[i].match(english);
        if (!match.hasMatch()) {
            continue;
        }
        QStringList parts{QString()};
        for (int place = 1; place <= match.lastCapturedIndex(); ++place) {
            QString const part = match.captured(place);
            QString const shown =
                patterns[i] == listsNames ? shownNames(part) : translatedSentence(part, source);
            parts.append(shown.isEmpty() ? part : shown);
        }
        return filled(source(QString::fromLatin1(patterns[i])), parts);
    }
    return {};
}

QString inScreenLanguage(QString const & english)
{
    QString const shown = translatedSentence(english, [](QString const & pattern) {
        return QCoreApplication::translate(context, pattern.toLatin1().constData());
    });
    return shown.isEmpty() ? english : shown;
}

} // namespace Workbench
