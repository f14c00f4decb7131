#pragma once

#include "../units/Length.h"
#include "../units/Unit.h"
#include "UIAPICommonExport.h"

#include <QLineEdit>
#include <QString>

#include <optional>

/// \addtogroup fields
namespace KVCAM::UIAPI {

namespace Ext {
struct ValueVerdict;
}

/// What a KVLineEdit accepts. A kind with any other number accepts no typed input.
enum KVERegExp : int
{
    RegNumber = 1,     ///< signed decimal, unit-tracked
    RegExpression = 2, ///< digits, points and + - * /
    RegPositive = 3,   ///< positive decimal, unit-tracked
    RegNameList = 4,   ///< lower-case names, 64 characters
    RegName = 5,       ///< lower-case name, 64 characters
    RegNoCjk = 6,      ///< anything but the ideographs U+4E00 to U+9FA5
    RegSymbolName = 7, ///< symbol name, unit-tracked; the kind to use for symbols
    RegRound = 8,      ///< unit-tracked; accepts only names with a blank, such as "r1 "
    RegSquare = 9,     ///< unit-tracked; accepts no typed input
    RegFreeText = 10,  ///< 1 to 36 printable ASCII characters
    RegDigits = 11     ///< digits, points, blanks and minus signs
};

/// A line edit that accepts one kind of input and keeps numbers and symbol names in both units, so that
/// switching the unit back and forth never changes a typed digit.
///
/// The parent given to the constructor is also the view handle whose unit applies while the user types. It is
/// compared, never dereferenced, and does not change when the field is reparented; setView() sets another. An
/// unregistered view is treated as an inch view and logged on each edit. setText() is recorded like typing
/// and is not validated.
///
/// A slot may delete the field immediately if a member of this class or its view emitted the signal. If
/// setText() or a key press did, the slot must use deleteLater(), as with any QLineEdit.
///
/// Texts are read and written in the C locale. The additions below are off by default and change no text.
class UIAPICOMMON_EXPORT KVLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool followView READ followView WRITE setFollowView)
    Q_PROPERTY(bool refusalHints READ refusalHints WRITE setRefusalHints)
    Q_PROPERTY(KVCAM::UIAPI::KVLineEdit::LengthScale lengthScale READ lengthScale WRITE setLengthScale)
    Q_PROPERTY(KVCAM::UIAPI::KVLineEdit::Kind kind READ kind WRITE setKind)
    Q_PROPERTY(KVCAM::UIAPI::KVLineEdit::SymbolConversion symbolConversion READ symbolConversion WRITE
                   setSymbolConversion)
    Q_PROPERTY(QString minimumAsText READ minimumAsText WRITE setMinimumAsText)
    Q_PROPERTY(QString maximumAsText READ maximumAsText WRITE setMaximumAsText)

public:
    /// The kinds of KVERegExp under the names that Qt Designer shows.
    enum Kind : int
    {
        AnyText = 0, ///< no kind: any text, no validator, no unit
        Number = RegNumber,
        Expression = RegExpression,
        Positive = RegPositive,
        NameList = RegNameList,
        Name = RegName,
        NoCjk = RegNoCjk,
        SymbolName = RegSymbolName,
        Round = RegRound,
        Square = RegSquare,
        FreeText = RegFreeText,
        Digits = RegDigits
    };
    Q_ENUM(Kind)

    /// How a symbol name is converted when the other unit is shown.
    enum SymbolConversion : int
    {
        AsDescribed, ///< as changeunit() says: the lengths are divided by 25.4 in both directions
        TargetUnit   ///< divided for inch, multiplied for metric: "rect20x10" becomes "rect508x254"
    };
    Q_ENUM(SymbolConversion)

    /// Which unit of the pair the number in the field uses: Ext::LengthScale, as Qt Designer can offer it.
    enum LengthScale : int
    {
        Small = int(Ext::LengthScale::Small), ///< mil or micrometre
        Large = int(Ext::LengthScale::Large)  ///< inch or millimetre
    };
    Q_ENUM(LengthScale)

    ///@{
    /// Without a kind: any text, no validator, no unit.
    explicit KVLineEdit(QWidget * parent = nullptr);
    KVLineEdit(QString const & text, QWidget * parent);
    ///@}
    /// Installs the validator of the kind and records every edit.
    KVLineEdit(KVERegExp kind, QWidget * parent);
    /// Same; `text` is set last, unvalidated, and recorded.
    KVLineEdit(QString const & text, KVERegExp kind, QWidget * parent);
    ~KVLineEdit() override;

    /// Shows the text of a unit: 0 is inch, any other metric. Numbers: the text typed in that unit, else the
    /// typed number multiplied or divided by 25.4 with six significant digits. Symbol names: the text typed
    /// in that unit, else the other text with its lengths divided by 25.4 (in both directions). Other kinds
    /// keep their text.
    void changeunit(int const & unit);

    // --- Additions ----------------------------------------------------------------------------------------

    ///@{
    /// The view whose unit applies, at first the parent given to the constructor. A field that follows its
    /// view switches to the unit of the new one, if that is registered; any other keeps its text.
    void const * view() const;
    void setView(void const * view);
    ///@}

    /// Fills the field as if the text had been typed in `unit`, and shows it in the unit that the field shows
    /// (before any text, that of its view; an unregistered view is not asked). The view and the engine are
    /// not touched. Without a unit-tracked kind the same as setText(); like it, not validated.
    void setTyped(QString const & text, Ext::Unit unit);
    /// The text last typed or set, in typedUnit(), whatever unit is shown; text() without a unit-tracked
    /// kind.
    QString typed() const;
    /// The unit of typed(); inch before any text.
    Ext::Unit typedUnit() const;

    ///@{
    /// The kind, for forms that create their fields without one (Qt Designer). Setting it installs the
    /// validator and records a text that is there as typed in the view's unit; AnyText removes the validator.
    /// As in the constructor, any other number than those of Kind accepts no typed input.
    Kind kind() const;
    void setKind(Kind kind);
    void setKind(KVERegExp kind) { setKind(static_cast<Kind>(kind)); }
    ///@}

    ///@{
    /// Default AsDescribed. Setting it converts a shown name again if it was not typed in the unit shown.
    SymbolConversion symbolConversion() const;
    void setSymbolConversion(SymbolConversion conversion);
    ///@}

    /// The last typed number in `unit`, converted from the unit it was typed in by exactly 25.4 and not
    /// rounded: 254.1234 typed in a metric view is still 254.1234 after any number of switches. An expression
    /// (RegExpression), whose text does not change on a switch, is evaluated and read in the view's current
    /// unit (inch before the view is registered). Text that is not a number counts as 0; a field of another
    /// kind gives NaN.
    double exactValue(Ext::Unit unit) const;
    /// The same number as a length, according to lengthScale(). 0 for a field without a number.
    Ext::Length exactLength() const;
    ///@{
    /// Default Small.
    LengthScale lengthScale() const;
    void setLengthScale(LengthScale scale);
    ///@}

    /// From now on input is checked on every edit by Ext::checkValue(), without a box: only the numbers
    /// count, and text that is not a number is 0. With lengthScale() Large, values are inches and
    /// millimetres. A symbol name (kinds 7 to 9) is checked by Ext::checkSymbol(). An expression is evaluated
    /// (an empty one is 0); with two non-digits in a row it is illegal. Any other kind is always legal. A
    /// number or name keeps its verdict on a unit switch; an expression, whose text does not change, is
    /// checked again. The verdict is reported by validityChanged() and the dynamic property "uiapiValid"
    /// (bool), which style sheets can select: [uiapiValid="false"].
    void setRange(Ext::Length minimum, Ext::Length maximum);
    /// Ends the checks and removes the property.
    void clearRange();
    ///@{
    /// The range as Qt Designer can edit it, one end at a time: "4 mil", "0.1 mm". Empty: no bound at this
    /// end, and without a bound at either no range. A text that is no length, or lacks its unit, changes
    /// nothing, and Qt's qWarning() says so. Read in the unit that takes the fewest characters.
    /// \since 0.2
    QString minimumAsText() const;
    QString maximumAsText() const;
    void setMinimumAsText(QString const & text);
    void setMaximumAsText(QString const & text);
    ///@}

    ///@{
    /// Whether the field automatically switches to its view's unit when that changes. Default false. A view
    /// registered later is followed from then on. In a form from Qt Designer, Ext::setFormView() says which
    /// view that is.
    bool followView() const;
    void setFollowView(bool follow);
    ///@}

    ///@{
    /// Whether a rejected key is explained in a tooltip and by inputRefused(). Default false.
    bool refusalHints() const;
    void setRefusalHints(bool enabled);
    ///@}

signals:
    /// The verdict of a field with a range changed, or the text of an illegal one. `text` is the translated
    /// sentence of the verdict, with the bounds in the displayed unit; empty if legal.
    void validityChanged(bool legal, QString text);
    /// A key was rejected while refusal hints are on. `text` says in plain words what can be typed.
    void inputRefused(QString text);

private slots:
    void on_textchanged(QString const & text);

private:
    struct Private;
    struct Quantity;

    void insertLimit();
    void restrictTo(KVERegExp kind);
    void record(QString const & text, int unit);
    QString typedText() const;
    std::optional<Quantity> quantity() const;
    Ext::ValueVerdict verdict() const;
    void judgeEdits();
    void setEnds(Ext::Length minimum, Ext::Length maximum);
    void judge();
    void explainRefusal();
    void watchView();

    Private * d; // owned
};

} // namespace KVCAM::UIAPI
