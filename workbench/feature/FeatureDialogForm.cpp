// How the dialog's form is kept between two times that it is open.
#include "board/BoardView.h"
#include "feature/FeatureDialog.h"
#include "feature/FormFile.h"

#include <UIAPICommon.h>

#include <QComboBox>
#include <QJsonArray>
#include <QListWidget>

namespace Workbench {

using namespace KVCAM::UIAPI;

QString FeatureDialog::padKey() const
{
    return QString::fromStdString(m_job + '/' + m_view.step() + '/' + m_view.layer() + '/' +
                                  std::to_string(m_feature));
}

bool FeatureDialog::restoreForm()
{
    SavedForm form;
    if (!readForm(m_formFile, padKey(), form)) {
        return false;
    }
    auto const symbol = PadSymbol::fromJson(form.extra["symbol"].toObject());
    QJsonObject const offset = form.extra["offset"].toObject();
    if (!symbol || !isUnit(offset["unit"])) {
        return false;
    }
    setUnit(m_view.handle(), form.unit); // first, since the texts are in that unit
    m_isFilling = true;                  // the saved texts agree with each other
    writeJsonToList(form.fields, m_fields);
    m_isFilling = false;
    m_symbol = *symbol;
    // The field keeps what was typed in the unit of its typing, so it is typed there once more.
    setUnit(m_view.handle(), offset["unit"].toInt());
    m_offset->setText(offset["text"].toString());
    setUnit(m_view.handle(), form.unit);
    if (form.extra["negative"].isBool()) { // forms of earlier versions hold the text alone
        m_polarity->setCurrentIndex(form.extra["negative"].toBool() ? 1 : 0);
    }
    m_note->setPlainText(form.extra["note"].toString());
    m_documents->clear();
    for (auto const & path : form.extra["documents"].toArray()) {
        m_documents->addItem(path.toString());
    }
    m_name->setCursorPosition(0);
    showSymbol();
    m_isRestored = true;
    return true;
}

bool FeatureDialog::saveForm()
{
    settleSizes();
    showSymbol();
    SavedForm form{m_shownUnit, {}, extras()};
    readListToJson(m_fields, form.fields);
    return writeForm(m_formFile, padKey(), form);
}

QJsonObject FeatureDialog::extras() const
{
    QJsonArray documents;
    for (int i = 0; i < m_documents->count(); ++i) {
        documents.append(m_documents->item(i)->text());
    }
    return {{"symbol", m_symbol.toJson()},
            {"offset", QJsonObject{{"text", m_typedOffset.text}, {"unit", m_typedOffset.unit}}},
            {"negative", m_polarity->currentIndex() == 1}, // its text depends on the language
            {"note", m_note->toPlainText()},
            {"documents", documents}};
}

// What the user can change, whatever the unit that is shown.
QJsonObject FeatureDialog::remarks() const
{
    QJsonObject remarks;
    readListToJson(m_fields, remarks);
    for (KVLineEdit const * field : {m_name, m_width, m_height, m_offset}) {
        remarks.remove(field->objectName()); // shown in a unit; extras() has what was typed, and the polarity
    }
    remarks.remove(m_polarity->objectName());
    remarks["extra"] = extras();
    return remarks;
}

// A pad that was merely looked at leaves no form behind, which would bring its unit back another time.
void FeatureDialog::done(int result)
{
    settleSizes();
    showSymbol();
    if (m_isRestored || remarks() != m_opened) {
        saveForm();
    }
    QDialog::done(result);
}

} // namespace Workbench
