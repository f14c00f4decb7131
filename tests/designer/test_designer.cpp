#include "ui_EveryWidget.h"
#include "ui_SizeDialog.h"

#include "widgets/KVLabel.h"
#include "widgets/KVLengthEdit.h"
#include "widgets/KVLineEdit.h"
#include "widgets/KVListWidget.h"
#include "widgets/KVTextEdit.h"

#include <gtest/gtest.h>

#include <QDesignerFormEditorInterface>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <iterator>
#include <map>
#include <memory>

using namespace KVCAM::UIAPI;

namespace {

std::unique_ptr<QWidget> load(char const * path)
{
    QFile form(path);
    EXPECT_TRUE(form.open(QIODevice::ReadOnly)) << path;
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
    std::unique_ptr<QWidget> widget(loader.load(&form));
    EXPECT_TRUE(widget) << loader.errorString().toStdString();
    return widget;
}

QStringList properties(QObject const & object)
{
    QStringList lines{object.metaObject()->className()};
    for (int i = 0; i < object.metaObject()->propertyCount(); ++i) {
        QMetaProperty const property = object.metaObject()->property(i);
        lines.append(property.name() + QString(" ") + property.read(&object).toString());
    }
    return lines;
}

// Without what Qt's own widgets name for themselves.
std::map<QString, QStringList> controls(QWidget const & form)
{
    std::map<QString, QStringList> found;
    for (QWidget const * const widget : form.findChildren<QWidget *>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_")) {
            found[widget->objectName()] = properties(*widget);
        }
    }
    return found;
}

TEST(Designer, TheExamplesFormIsTheSameLoadedAndCompiled)
{
    auto const loaded = load(UIAPI_SOURCE_DIR "/examples/plugin/SizeDialog.ui");
    QDialog compiled;
    Ui::SizeDialog().setupUi(&compiled);
    EXPECT_EQ(controls(*loaded), controls(compiled));

    for (QWidget * const form : {loaded.get(), static_cast<QWidget *>(&compiled)}) {
        for (char const * const name : {"width", "clearance"}) {
            auto * const field = form->findChild<KVLengthEdit *>(name);
            ASSERT_NE(field, nullptr) << name;
            EXPECT_EQ(field->minimum(), Ext::Length::fromMil(4));
            EXPECT_EQ(field->maximum(), Ext::Length::fromMil(40));
        }
    }
}

TEST(Designer, AFormSetsEveryKindOfProperty)
{
    auto const loaded = load(UIAPI_SOURCE_DIR "/tests/designer/EveryWidget.ui");
    QWidget compiled;
    Ui::EveryWidget().setupUi(&compiled);
    EXPECT_EQ(controls(*loaded), controls(compiled));
    auto const held = [&](char const * name) {
        return properties(*compiled.findChild<QWidget *>(name)).join('\n');
    };
    for (char const * const text :
         {"followView true", "lengthScale 1", "kind 7", "symbolConversion 1", "maximumAsText 0.1 mm"}) {
        EXPECT_TRUE(held("symbol").contains(text)) << text;
    }
    for (char const * const text :
         {"followView false", "text 0.254 mm", "valueAsText 10 mil", "stepAsText 5 my"}) {
        EXPECT_TRUE(held("length").contains(text)) << text;
    }
    EXPECT_TRUE(held("label").contains("Attribute2 key"));
}

// The table of the plug-in against the classes.
TEST(Designer, OffersTheWidgetsAsTheyAre)
{
    std::unique_ptr<QWidget> const own[] = {std::make_unique<KVLengthEdit>(), std::make_unique<KVLineEdit>(),
                                            std::make_unique<KVLabel>(), std::make_unique<KVTextEdit>(),
                                            std::make_unique<KVListWidget>()};
    QPluginLoader plugin(DESIGNER_PLUGIN);
    auto * const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
    ASSERT_NE(collection, nullptr) << plugin.errorString().toStdString();
    auto const widgets = collection->customWidgets();
    ASSERT_EQ(widgets.size(), int(std::size(own)));
    QDesignerFormEditorInterface designer;
    for (int i = 0; i < widgets.size(); ++i) {
        QDesignerCustomWidgetInterface & offered = *widgets[i];
        std::string const name = offered.name().toStdString();
        std::unique_ptr<QWidget> const made(offered.createWidget(nullptr));
        EXPECT_EQ(name, made->metaObject()->className());
        EXPECT_EQ(properties(*made), properties(*own[i])) << name;

        QString const xml = offered.domXml();
        QString const base =
            QString("<extends>%1</extends>").arg(made->metaObject()->superClass()->className());
        EXPECT_TRUE(xml.contains(base)) << name;
        QString const include = offered.includeFile();
        EXPECT_TRUE(QFile::exists(UIAPI_SOURCE_DIR "/src/" + include.section('/', 1).chopped(1))) << name;
        EXPECT_TRUE(include.startsWith("<UIAPICommon/") && include.endsWith('>')) << name;
        // A text of its own is no word for translators.
        for (int at = made->metaObject()->propertyOffset(); at < made->metaObject()->propertyCount(); ++at) {
            QMetaProperty const property = made->metaObject()->property(at);
            bool const isText = property.type() == QVariant::String && property.isWritable() &&
                                property.isDesignable(made.get());
            EXPECT_EQ(xml.contains(QString("name=\"%1\" type").arg(property.name())), isText)
                << property.name();
        }

        // In Designer itself, a KVLineEdit must not ask for views: see createWidget().
        EXPECT_FALSE(made->signalsBlocked() || offered.isInitialized());
        offered.initialize(&designer);
        std::unique_ptr<QWidget> const shown(offered.createWidget(nullptr));
        EXPECT_EQ(shown->signalsBlocked(), qobject_cast<KVLineEdit *>(shown.get()) != nullptr) << name;
    }
}

} // namespace
