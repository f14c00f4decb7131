#pragma once

#include "../units/Length.h"
#include "../units/Unit.h"
#include "UIAPICommonExport.h"

#include <QLineEdit>
#include <QString>
#include <QStringList>

class QMenu;

/// \addtogroup fields
namespace KVCAM::UIAPI {

/// A line edit that holds a length; its text is only a view of it. Anything can be typed, read by
/// Ext::evaluate() with the field's unit for numbers without one: "12.5", "90+5", "(1.2mm - 3mil)/2".
///
/// The text is taken when it is finished: by Return, when the focus leaves, or by commit(). A value is then
/// shown in the field's unit; what was typed comes back when the field gets the focus again, as long as it
/// still means the value. A text without a value, or with one out of range, stays, is marked, and changes
/// nothing. Escape brings the value back, and so does an empty text when it is finished. Losing the focus to
/// a menu finishes nothing. Setting the text by setText() counts as typing.
///
/// Showing and looking never change the value: only a text that differs from the shown one is taken.
///
/// A marked field has a red frame and the dynamic property "uiapiValid" (bool), which style sheets can
/// select: [uiapiValid="false"]. The tooltip says what is wrong, and the length in every unit.
///
/// A slot that deletes the field must use deleteLater(), as with any QLineEdit. GUI thread only. Nothing is
/// logged, and no engine is called.
/// \since 0.1
class UIAPICOMMON_EXPORT KVLengthEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(KVCAM::UIAPI::Ext::Length value READ value WRITE setValue NOTIFY valueChanged
                   DESIGNABLE false USER true)
    Q_PROPERTY(bool hasValue READ hasValue NOTIFY valueChanged)
    Q_PROPERTY(KVCAM::UIAPI::Ext::Unit unit READ unit WRITE setUnit DESIGNABLE false)
    Q_PROPERTY(KVCAM::UIAPI::KVLengthEdit::Scale lengthScale READ lengthScale WRITE setLengthScale)
    Q_PROPERTY(KVCAM::UIAPI::Ext::Length minimum READ minimum WRITE setMinimum DESIGNABLE false)
    Q_PROPERTY(KVCAM::UIAPI::Ext::Length maximum READ maximum WRITE setMaximum DESIGNABLE false)
    Q_PROPERTY(KVCAM::UIAPI::Ext::Length step READ step WRITE setStep DESIGNABLE false)
    Q_PROPERTY(bool wheelSteps READ wheelSteps WRITE setWheelSteps)
    Q_PROPERTY(bool unitShown READ unitShown WRITE setUnitShown)
    Q_PROPERTY(bool microSign READ microSign WRITE setMicroSign)
    Q_PROPERTY(bool decimalComma READ decimalComma WRITE setDecimalComma)
    Q_PROPERTY(bool followView READ followView WRITE setFollowView)
    // In place of those that Qt Designer cannot edit. Its text would count as typing.
    Q_PROPERTY(KVCAM::UIAPI::KVLengthEdit::UnitSystem unitSystem READ unitSystem WRITE setUnitSystem)
    Q_PROPERTY(QString valueAsText READ valueAsText WRITE setValueAsText NOTIFY valueChanged)
    Q_PROPERTY(QString minimumAsText READ minimumAsText WRITE setMinimumAsText)
    Q_PROPERTY(QString maximumAsText READ maximumAsText WRITE setMaximumAsText)
    Q_PROPERTY(QString stepAsText READ stepAsText WRITE setStepAsText)
    Q_PROPERTY(QString text READ text WRITE setText DESIGNABLE false)
    Q_PROPERTY(QString preview READ preview NOTIFY previewChanged STORED false)
    Q_PROPERTY(QString fault READ fault STORED false)

public:
    /// Which unit of the pair is shown and assumed: Ext::LengthScale, as Qt Designer can offer it.
    enum Scale : int
    {
        Small = int(Ext::LengthScale::Small), ///< mil or micrometre
        Large = int(Ext::LengthScale::Large)  ///< inch or millimetre
    };
    Q_ENUM(Scale)

    /// The system of units: Ext::Unit, as Qt Designer can offer it.
    /// \since 0.2
    enum UnitSystem : int
    {
        Inch = int(Ext::Unit::Inch),            ///< mil and inch
        Millimetre = int(Ext::Unit::Millimetre) ///< micrometre and millimetre
    };
    Q_ENUM(UnitSystem)

    /// Without a value, in mil.
    explicit KVLengthEdit(QWidget * parent = nullptr);
    ~KVLengthEdit() override;

    ///@{
    /// The length last taken or set, not what is being typed; 0 without a value. Setting it drops what is
    /// being typed. A length out of range can be set; the field is then marked.
    Ext::Length value() const;
    void setValue(Ext::Length value);
    ///@}
    /// False until a value is set or typed, and after clearValue() and setSeveralValues().
    bool hasValue() const;
    /// Leaves the field empty, with the placeholder that the host has set.
    void clearValue();
    /// For the common field of several objects: no value, and the placeholder "several values" until there is
    /// one.
    void setSeveralValues();

    ///@{
    /// The system of units in which the value is shown, and that of typed numbers without a unit. Default
    /// Inch. A switch takes a text that is being typed in the unit it was typed in, or drops it if it has no
    /// legal value.
    Ext::Unit unit() const;
    void setUnit(Ext::Unit unit);
    ///@}
    ///@{
    /// Default Small. A switch as in setUnit().
    Scale lengthScale() const;
    void setLengthScale(Scale scale);
    ///@}
    ///@{
    /// The view whose unit the field takes, now and whenever it changes. Null, the default: none. A view that
    /// is not registered yet is followed from its registration on. Compared, never dereferenced.
    void const * view() const;
    void setView(void const * view);
    ///@}
    ///@{
    /// Whether the field takes the unit of its view. Default true. Ext::setFormView() gives the fields of a
    /// form their view.
    /// \since 0.2
    bool followView() const;
    void setFollowView(bool follow);
    ///@}

    ///@{
    /// unit() as Qt Designer can edit it.
    /// \since 0.2
    UnitSystem unitSystem() const;
    void setUnitSystem(UnitSystem system);
    ///@}
    ///@{
    /// value(), minimum(), maximum() and step() as texts for Qt Designer. They may be set in any order, since
    /// each text names its unit: "4 mil", "0.1 mm + 1 mil". Empty: no value, no bound, the default step. A
    /// text that is no length, or lacks its unit, changes nothing, and Qt's qWarning() says so. They are read
    /// in the unit that takes the fewest characters.
    /// \since 0.2
    QString valueAsText() const;
    QString minimumAsText() const;
    QString maximumAsText() const;
    QString stepAsText() const;
    void setValueAsText(QString const & text);
    void setMinimumAsText(QString const & text);
    void setMaximumAsText(QString const & text);
    void setStepAsText(QString const & text);
    ///@}

    ///@{
    /// Inclusive bounds for what is typed; an end of Ext::Length's range, the default, is none.
    Ext::Length minimum() const;
    Ext::Length maximum() const;
    void setMinimum(Ext::Length minimum);
    void setMaximum(Ext::Length maximum);
    void setRange(Ext::Length minimum, Ext::Length maximum);
    ///@}
    ///@{
    /// How far Up and Down go; ten times as far with Ctrl, and with PageUp and PageDown. 0, the default, and
    /// less: one mil or ten micrometres.
    Ext::Length step() const;
    void setStep(Ext::Length step);
    ///@}
    ///@{
    /// Whether the mouse wheel steps while the field has the focus. Default false, since a wheel that scrolls
    /// a form must not change it.
    bool wheelSteps() const;
    void setWheelSteps(bool enabled);
    ///@}
    ///@{
    /// Whether the unit follows the shown number. Default true; false for a form that names it elsewhere.
    bool unitShown() const;
    void setUnitShown(bool shown);
    ///@}
    ///@{
    /// Whether a micrometre is written "µm" instead of "my". Default false. Both can be typed.
    bool microSign() const;
    void setMicroSign(bool enabled);
    ///@}
    ///@{
    /// Whether a typed comma is a decimal sign, as in Ext::EvaluateOptions. Default false.
    bool decimalComma() const;
    void setDecimalComma(bool enabled);
    ///@}

    /// What the text amounts to, in the field's unit and in the other: "= 12.5 mil = 317.5 my". Empty if it
    /// has no value, or if it is just the value as shown.
    QString preview() const;
    /// What is wrong with the text or the value, a translated sentence; empty if nothing is.
    QString fault() const;
    /// The length in mil, inch, micrometre and millimetre, each with its unit; empty without one. A text that
    /// is being typed counts.
    QStringList everyUnit() const;
    /// The context menu: Qt's entries, copying the length in every unit, selecting the fault. The caller owns
    /// it.
    QMenu * createMenu();

public slots:
    /// Takes what is being typed, if it has a legal value. False if the field has a fault, which it keeps.
    bool commit();
    /// Drops what is being typed and shows the value.
    void restore();
    /// Selects the part of the text that is wrong; everything if the value is out of range.
    void selectFault();
    /// Adds a number of steps to the value, or to what is being typed, and takes the result, within the
    /// range. Nothing happens in a read-only field and without a value.
    void stepBy(int steps);

signals:
    /// The value changed, whoever changed it, or there is none any more.
    void valueChanged();
    /// The user changed the value. After valueChanged().
    void valueEdited(KVCAM::UIAPI::Ext::Length value);
    /// fault() changed. `text` is the sentence, empty if legal.
    void validityChanged(bool legal, QString text);
    /// preview() changed.
    void previewChanged(QString text);

protected:
    ///@{
    /// What a line edit does, and the rules above; an override must call these.
    bool event(QEvent * event) override;
    void keyPressEvent(QKeyEvent * event) override;
    void focusInEvent(QFocusEvent * event) override;
    void focusOutEvent(QFocusEvent * event) override;
    void wheelEvent(QWheelEvent * event) override;
    void contextMenuEvent(QContextMenuEvent * event) override;
    void changeEvent(QEvent * event) override;
    void paintEvent(QPaintEvent * event) override;
    ///@}

private:
    struct Private;
    struct Reading;

    bool isTyping() const;
    Reading read() const;
    QString valueText() const;
    QString previewOf(Reading const & reading) const;
    QString details() const;
    void showText(QString const & text);
    void noteText();
    void judge();
    void mark(bool legal);
    void take(Ext::Length value, QString const & typed);
    void present(Ext::Unit unit, Ext::LengthScale scale);
    void becomeEmpty(bool isSeveral);

    Private * d; // owned
};

} // namespace KVCAM::UIAPI
