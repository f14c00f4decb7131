#include "DesignerPlugin.h"

#include "WidgetTable.h"

#include "widgets/KVLineEdit.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace Designer {
namespace {

constexpr int iconSize = 22;
constexpr QRgb iconColour = 0xff205080;

} // namespace

QString DesignerWidget::name() const
{
    return QString::fromLatin1(m_row.className);
}

QString DesignerWidget::group() const
{
    return QStringLiteral("UIAPICommon");
}

QString DesignerWidget::toolTip() const
{
    return QString::fromLatin1(m_row.toolTip);
}

QString DesignerWidget::whatsThis() const
{
    return QString::fromLatin1(m_row.whatsThis);
}

// In angle brackets: a header of a package, not of the form's project.
QString DesignerWidget::includeFile() const
{
    return QLatin1Char('<') + QString::fromLatin1(m_row.include) + QLatin1Char('>');
}

QString DesignerWidget::domXml() const
{
    QString texts;
    for (char const * const * name = m_row.untranslated.data(); *name != nullptr; ++name) {
        texts +=
            QStringLiteral("<stringpropertyspecification name=\"%1\" type=\"singleline\" notr=\"true\"/>")
                .arg(QLatin1String(*name));
    }
    return QStringLiteral("<ui language=\"c++\" displayname=\"%1\"><widget class=\"%2\" name=\"%3\"/>"
                          "<customwidgets><customwidget><class>%2</class><extends>%4</extends>"
                          "<propertyspecifications>%5</propertyspecifications></customwidget></customwidgets>"
                          "</ui>")
        .arg(QLatin1String(m_row.displayName), QLatin1String(m_row.className),
             QLatin1String(m_row.objectName), QLatin1String(m_row.extends), texts);
}

QIcon DesignerWidget::icon() const
{
    QPixmap pixmap(iconSize, iconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor::fromRgb(iconColour));
    painter.drawRoundedRect(pixmap.rect().adjusted(1, 1, -2, -2), 3, 3);
    QFont font = painter.font();
    font.setPixelSize(iconSize / 2);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QLatin1String(m_row.letters));
    return QIcon(pixmap);
}

void DesignerWidget::initialize(QDesignerFormEditorInterface * core)
{
    m_isInDesigner = core != nullptr;
}

// In Designer a field is only looked at. Hearing of a text, a KVLineEdit would ask the library for the unit
// of its view; that reads the configuration and binds the port of the EDA link, which belongs to the host.
QWidget * DesignerWidget::createWidget(QWidget * parent)
{
    QWidget * const widget = m_row.create(parent);
    if (qobject_cast<KVCAM::UIAPI::KVLineEdit *>(widget) != nullptr) {
        widget->blockSignals(m_isInDesigner);
    }
    return widget;
}

DesignerPlugin::DesignerPlugin(QObject * parent)
    : QObject(parent), m_widgets(widgetTable.begin(), widgetTable.end())
{}

QList<QDesignerCustomWidgetInterface *> DesignerPlugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (DesignerWidget & widget : m_widgets) {
        widgets.append(&widget);
    }
    return widgets;
}

} // namespace Designer
