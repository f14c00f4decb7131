#include "checks/LevelsEditor.h"

#include "checks/Levels.h"
#include "checks/MeasureTexts.h"
#include "ui/LanguageChange.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

// Drops the noise digits of a conversion: 76.2 micrometres are 3 mil.
double withoutNoise(double mil)
{
    return QString::number(mil, 'g', 12).toDouble();
}

} // namespace

LevelsEditor::LevelsEditor(QWidget & view, QWidget * parent) : QWidget(parent), m_view(view)
{
    auto * layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < allLevels.size(); ++i) {
        Field & field = m_fields[i];
        field.title = new QLabel(this);
        QPalette colours = field.title->palette();
        colours.setColor(QPalette::WindowText, colourOf(allLevels[i].severity));
        field.title->setPalette(colours);
        // The view is the parent on construction, which decides the unit. The layout sets another parent
        // later.
        field.edit = new KVLineEdit(RegNumber, &view);
        field.edit->setObjectName(allLevels[i].name);
        field.edit->setFollowView(true);
        field.title->setBuddy(field.edit);
        int const column = static_cast<int>(i);
        layout->addWidget(field.title, 0, column);
        layout->addWidget(field.edit, 1, column);
        connect(field.edit, &KVLineEdit::editingFinished, this, [this, i] { takeLevel(i); });
    }
    setTextsNowAndLater(*this, [this] { setTexts(); });
    show({});
}

void LevelsEditor::setTexts()
{
    for (std::size_t i = 0; i < allLevels.size(); ++i) {
        m_fields[i].title->setText(signOf(allLevels[i].severity) + "  " + tr(allLevels[i].title));
    }
}

void LevelsEditor::show(std::optional<Analysis_Ranges_Record> const & record)
{
    for (std::size_t i = 0; i < allLevels.size(); ++i) {
        Field & field = m_fields[i];
        field.edit->setEnabled(record.has_value());
        field.shown = record ? (*record).*allLevels[i].value : 0;
        if (record) {
            showLevel(field);
        } else {
            field.edit->setText({});
        }
    }
}

// A text with the same value stays as typed.
void LevelsEditor::showLevel(Field & field)
{
    if (field.edit->text().isEmpty() ||
        withoutNoise(field.edit->exactValue(Ext::Unit::Inch)) != field.shown) {
        field.edit->setText(smallUnitText(&m_view, field.shown));
    }
}

void LevelsEditor::takeLevel(std::size_t number)
{
    Field & field = m_fields[number];
    double const typed = withoutNoise(field.edit->exactValue(Ext::Unit::Inch));
    // Five decimals are shown. A level with more must not change by being looked at.
    bool const isShown = field.edit->text() == smallUnitText(&m_view, field.shown);
    if (!field.edit->isEnabled() || isShown || typed == field.shown) {
        return;
    }
    field.shown = typed;
    emit levelEdited(allLevels[number].name, typed);
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
