#pragma once

#include <UIAPICommon.h>

#include <QDialog>
#include <QFile>
#include <QFormLayout>
#include <QJsonDocument>
#include <QPushButton>

/// Asks for a width with a classic field.
class ClassicDialog : public QDialog
{
public:
    ClassicDialog(QWidget * view, QString const & formFile)
        : QDialog(view), m_view(view), m_formFile(formFile)
    {
        using namespace KVCAM::UIAPI;

        width = new KVLineEdit(RegPositive, view); // the parent is the view whose unit applies
        width->setObjectName("width");
        width->setText(getUnitJudgeString(view, 8, 2)); // 8 mil, in the unit of the view

        unit = new QPushButton("Other unit");
        connect(unit, &QPushButton::clicked, this, [this] {
            setUnit(m_view, 1 - getUnit(m_view));
            width->changeunit(getUnit(m_view));
        });
        load();

        auto * layout = new QFormLayout(this);
        layout->addRow("Width", width);
        layout->addRow(unit);
    }

    void accept() override
    {
        using namespace KVCAM::UIAPI;

        double const typed = width->text().toDouble();
        if (isValueLegal(typed, 3, 1000, m_view)) { // bounds in mil; shows a box if it is not
            mil = getUnitMilData(m_view, 0, typed);
            save();
            QDialog::accept();
        }
    }

    KVCAM::UIAPI::KVLineEdit * width = nullptr;
    QPushButton * unit = nullptr;
    double mil = 0; ///< once accepted

private:
    void save()
    {
        QJsonObject form;
        KVCAM::UIAPI::readListToJson({width}, form);
        KVCAM::UIAPI::saveTextByIODevice(m_formFile, QJsonDocument(form).toJson());
    }

    void load()
    {
        QFile file(m_formFile);
        if (file.open(QIODevice::ReadOnly)) {
            QList<QObject *> fields{width};
            KVCAM::UIAPI::writeJsonToList(QJsonDocument::fromJson(file.readAll()).object(), fields);
        }
    }

    QWidget * m_view;
    QString m_formFile;
};
