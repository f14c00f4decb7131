#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTranslator>

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
    static auto * const catalogue = new QTranslator; // the application may outlive static objects
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
