#include "widgets/Translation.h"

#include <QCoreApplication>
#include <QTranslator>

// The resource is part of a library, and the linker may drop its initialiser. The macro must not be used
// inside a namespace, not even an unnamed one.
static void registerCatalogues()
{
    Q_INIT_RESOURCE(uiapicommon_translations);
}

namespace KVCAM::UIAPI::Ext {

bool installTranslation(LANGUAGE_MODE language)
{
    if (QCoreApplication::instance() == nullptr) {
        return false;
    }
    // Never destroyed: an application may outlive the library's static objects.
    static auto * const chinese = new QTranslator;
    if (chinese->isEmpty()) {
        registerCatalogues();
        if (!chinese->load(QStringLiteral(":/uiapicommon/translations/uiapicommon_zh_CN.qm"))) {
            return false;
        }
    }
    QCoreApplication::removeTranslator(chinese); // otherwise it would be installed twice
    return language != LANGUAGE_CHINESE || QCoreApplication::installTranslator(chinese);
}

} // namespace KVCAM::UIAPI::Ext
