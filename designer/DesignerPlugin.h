#pragma once

#include <QList>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <vector>

namespace Designer {

struct WidgetRow;

/// A row of the table for Qt Designer and for QUiLoader, which calls only name() and createWidget().
class DesignerWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit DesignerWidget(WidgetRow const & row) : m_row(row) {}

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QString domXml() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    bool isInitialized() const override { return m_isInDesigner; }
    void initialize(QDesignerFormEditorInterface * core) override;
    QWidget * createWidget(QWidget * parent) override;

private:
    WidgetRow const & m_row;
    bool m_isInDesigner = false;
};

/// The plug-in.
class DesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerPlugin(QObject * parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    mutable std::vector<DesignerWidget> m_widgets; // Qt initialises them through the list
};

} // namespace Designer
