#include "checks/LevelsEditor.h"

#include "checks/Levels.h"
#include "checks/MeasureTexts.h"
#include "ui/LanguageChange.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>

namespace Workbench {

using namespace KVCAM::UIAPI;

LevelsEditor::LevelsEditor(QWidget & view, QWidget * parent) : QWidget(parent)
{
    auto * layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < allLevels.size(); ++i) {
        Field & field = m_fields[i];
        field.title = new QLabel(this);
        QPalette colours = field.title->palette();
        colours.setColor(QPalette::WindowText, colourOf(allLevels[i].severity));
        field.title->setPalette(colours);
        field.edit = new KVLengthEdit;
        field.edit->setObjectName(allLevels[i].name);
        field.edit->setUnitShown(false); // the title of the box names it
        field.title->setBuddy(field.edit);
        int const column = static_cast<int>(i);
        layout->addWidget(field.title, 0, column);
        layout->addWidget(field.edit, 1, column);
        // The text of the length: 10.123 mil, not the double nearest to its nanometres.
        connect(field.edit, &KVLengthEdit::valueEdited, this, [this, i](Ext::Length level) {
            emit levelEdited(allLevels[i].name,
                             level.text(Ext::Unit::Inch, Ext::LengthScale::Small).toDouble());
        });
    }
    setView(view);
    setTextsNowAndLater(*this, [this] { setTexts(); });
    show({});
}

void LevelsEditor::setView(QWidget & view)
{
    for (Field const & field : m_fields) {
        field.edit->setView(&view);
    }
}

void LevelsEditor::setTexts()
{
    for (std::size_t i = 0; i < allLevels.size(); ++i) {
        m_fields[i].title->setText(Ext::severitySign(allLevels[i].severity) + "  " + tr(allLevels[i].title));
    }
}

// A field that shows the level already keeps what the user is typing.
void LevelsEditor::show(std::optional<Analysis_Ranges_Record> const & record)
{
    for (std::size_t i = 0; i < allLevels.size(); ++i) {
        KVLengthEdit & edit = *m_fields[i].edit;
        double const level = record ? (*record).*allLevels[i].value : 0;
        auto const length = Ext::Length::fromMil(level);
        edit.setEnabled(record.has_value());
        if (!record || !std::isfinite(level)) {
            edit.clearValue();
        } else if (!edit.hasValue() || edit.value() != length) {
            edit.setValue(length);
        }
    }
}

bool isGrading(Analysis_Ranges_Record const & record)
{
    bool const isFinite =
        std::isfinite(record.redLv) && std::isfinite(record.yellowLv) && std::isfinite(record.greenLv);
    bool const rises = record.redLv <= record.yellowLv && record.yellowLv <= record.greenLv;
    bool const falls = record.redLv >= record.yellowLv && record.yellowLv >= record.greenLv;
    return isFinite && (rises || falls);
}

} // namespace Workbench
