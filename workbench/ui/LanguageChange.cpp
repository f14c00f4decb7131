#include "ui/LanguageChange.h"

#include "ui/EnglishTexts.h"

#include <UIAPICommon.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTranslator>

#include <cstring>
#include <utility>

// A resource in a static library is left out unless it is initialised by name. The macro does not work inside
// a namespace.
static void registerCatalogue()
{
    Q_INIT_RESOURCE(workbench_translations);
}

namespace Workbench {

namespace {

class TextSetter : public QObject
{
public:
    TextSetter(QWidget & widget, std::function<void()> setTexts)
        : QObject(&widget), m_setTexts(std::move(setTexts))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject * watched, QEvent * event) override
    {
        if (event->type() == QEvent::LanguageChange && watched == parent()) {
            m_setTexts();
        }
        return false;
    }

private:
    std::function<void()> m_setTexts;
};

// The program's texts. The library looks up its messages about a range as they are shown, with their numbers,
// which no catalogue can list.
class Catalogue : public QTranslator
{
public:
    QString translate(char const * context, char const * text, char const * remark, int n) const override
    {
        QString known = QTranslator::translate(context, text, remark, n);
        if (!known.isEmpty() || std::strcmp(context, "QObject") != 0 ||
            std::strstr(text, "out of range: ") == nullptr) {
            return known;
        }
        return translatedSentence(QString::fromUtf8(text), [this](QString const & pattern) {
            return QTranslator::translate("Workbench::EnglishTexts", pattern.toLatin1().constData());
        });
    }
};

} // namespace

void setTextsNowAndLater(QWidget & widget, std::function<void()> setTexts)
{
    setTexts();
    new TextSetter(widget, std::move(setTexts)); // owned by the widget
}

bool showChinese(bool on)
{
    using namespace KVCAM::UIAPI;
    LANGUAGE_MODE language = on ? LANGUAGE_CHINESE : LANGUAGE_ENGLISH;
    setCurrentLanguageMode(language); // for modules that ask; the next calls change the texts
    if (!Ext::installTranslation(language)) {
        return false;
    }
    static auto * const catalogue = new Catalogue; // the application may outlive static objects
    if (catalogue->isEmpty()) {
        registerCatalogue();
        if (!catalogue->load(QStringLiteral(":/workbench/translations/workbench_zh_CN.qm"))) {
            return false;
        }
    }
    QCoreApplication::removeTranslator(catalogue); // it would be installed twice otherwise
    return !on || QCoreApplication::installTranslator(catalogue);
}

} // namespace Workbench
