#include "analysis/HtmlReportParts.h"
#include "analysis/ReportFormats.h"

#include <QChar>
#include <QVector>

#include <cmath>

// The resource is part of a library, and the linker may drop its initialiser. The macro must not be used
// inside a namespace, not even an unnamed one.
static void registerReportTexts()
{
    Q_INIT_RESOURCE(uiapicommon_translations);
}

namespace KVCAM::UIAPI::Ext::Html {
namespace {

constexpr int milDecimals = 3;

// Whatever would not be seen, or would change how its neighbours are seen; XML forbids some of it.
bool isUnseen(uint code)
{
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return QChar::isNonCharacter(code);
    }
}

QString shown(uint code)
{
    switch (code) {
    case '<':
        return QStringLiteral("&lt;");
    case '>':
        return QStringLiteral("&gt;");
    case '&':
        return QStringLiteral("&amp;");
    case '"':
        return QStringLiteral("&quot;");
    case '\'':
        return QStringLiteral("&#39;");
    default:
        break;
    }
    return isUnseen(code)
               ? "[U+" + QString::number(code, 16).toUpper().rightJustified(4, QLatin1Char('0')) + ']'
               : QString::fromUcs4(&code, 1);
}

} // namespace

QByteArray escaped(QString const & text, int longest)
{
    QString out;
    QVector<uint> const codes = text.leftRef(2 * longest + 2).toUcs4(); // a character is one unit or two
    for (int i = 0; i < codes.size() && i < longest; ++i) {
        out += shown(codes[i]);
    }
    return (codes.size() > longest ? out + QChar(0x2026) : out).toUtf8();
}

QByteArray escaped(std::string const & text)
{
    return escaped(QString::fromStdString(text));
}

QByteArray isolated(std::string const & text)
{
    return text.empty() ? QByteArray() : "<bdi>" + escaped(text) + "</bdi>";
}

QByteArray countText(std::size_t count)
{
    QByteArray text = QByteArray::number(static_cast<qulonglong>(count));
    for (int place = text.size() - 3; place > 0; place -= 3) {
        text.insert(place, ',');
    }
    return text;
}

Texts::Texts(HtmlReportOptions const & options)
    : m_names(options.checkNames)
    , m_sentences(options.sentences)
    , m_isChinese(options.language == ReportLanguage::SimplifiedChinese)
    , m_first(options.firstUnit)
{
    if (m_isChinese) {
        registerReportTexts();
        m_isChinese = m_catalogue.load(QStringLiteral(":/uiapicommon/translations/uiapicommon_zh_CN.qm"));
    }
}

QByteArray Texts::operator()(char const * english, std::initializer_list<QByteArray> parts) const
{
    QString text = m_isChinese ? m_catalogue.translate("HtmlReport", english) : QString();
    QByteArray const sentence = escaped(text.isEmpty() ? QString::fromUtf8(english) : text, longestSentence);
    QByteArray out;
    for (int i = 0; i < sentence.size(); ++i) { // in one pass: a part may contain a place
        int const part = sentence[i] == '%' && i + 1 < sentence.size() ? sentence[i + 1] - '1' : -1;
        bool const isPlace = part >= 0 && part < static_cast<int>(parts.size());
        out += isPlace ? *(parts.begin() + part) : QByteArray(1, sentence[i]);
        i += isPlace ? 1 : 0;
    }
    return out;
}

QByteArray Texts::severity(Severity severity) const
{
    char const * const name = markOf(severity).name;
    QString const text =
        m_isChinese ? m_catalogue.translate("KVCAM::UIAPI::Ext::ReportModel", name) : QString();
    return escaped(text.isEmpty() ? QString::fromUtf8(name) : text);
}

QByteArray Texts::sign(Severity severity) const
{
    SeverityMark const & mark = markOf(severity);
    QByteArray const letter =
        mark.severity == Severity::None ? QByteArray() : QByteArray(1, mark.letter) + ' ';
    return QByteArray("<i>") + mark.icon + "</i> " + letter + this->severity(severity);
}

QByteArray Texts::both(double value, Unit unit) const
{
    if (!std::isfinite(value)) {
        return "–";
    }
    Length const length = Length::from(value, unit, LengthScale::Small);
    auto const in = [&](Unit wanted) { // a level is shown as it was given
        return (wanted == unit ? Formats::numberText(value) : lengthText(length, wanted)) + ' ' +
               unitText(wanted);
    };
    return in(first()) + " (" + in(second()) + ')';
}

QByteArray Texts::checkName(std::string const & name) const
{
    return "<bdi>" + escaped(m_names ? m_names(name) : QString::fromStdString(name)) + "</bdi>";
}

QByteArray Texts::reason(std::string const & sentence) const
{
    return "<bdi>" +
           escaped(m_sentences ? m_sentences(sentence) : QString::fromStdString(sentence), longestSentence) +
           "</bdi>";
}

QByteArray unitText(Unit unit)
{
    return unit == Unit::Inch ? "mil" : "µm";
}

QByteArray lengthText(Length length, Unit unit)
{
    return (unit == Unit::Inch ? length.text(unit, LengthScale::Small, milDecimals)
                               : length.text(unit, LengthScale::Small))
        .toLatin1();
}

char letterOf(Severity severity)
{
    SeverityMark const & mark = markOf(severity);
    return mark.severity == Severity::None ? 'N' : mark.letter;
}

} // namespace KVCAM::UIAPI::Ext::Html
