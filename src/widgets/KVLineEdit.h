#pragma once

#include "UIAPICommonExport.h"

#include <QLineEdit>
#include <QString>

#include <optional>

namespace KVCAM::UIAPI {

namespace Ext {
struct ValueVerdict;
}

/// What a KVLineEdit accepts. Any other number is a kind that accepts nothing typed.
enum KVERegExp : int
{
    RegNumber = 1,     ///< signed decimal, unit-tracked
    RegExpression = 2, ///< digits, points and + - * /
    RegPositive = 3,   ///< positive decimal, unit-tracked
    RegNameList = 4,   ///< lower-case names, 64 characters
    RegName = 5,       ///< lower-case name, 64 characters
    RegNoCjk = 6,      ///< anything but the ideographs U+4E00 to U+9FA5
    RegSymbolName = 7, ///< symbol name, unit-tracked; the kind to use for symbols
    RegRound = 8,      ///< unit-tracked; takes only names with a blank, such as "r1 "
    RegSquare = 9,     ///< unit-tracked; takes nothing typed
    RegFreeText = 10,  ///< 1 to 36 printable ASCII characters
    RegDigits = 11     ///< digits, points, blanks and minus signs
};

/// A line edit that accepts one kind of input and keeps numbers and symbol names in both units, so that
/// switching the unit back and forth never changes a digit of what was typed.
///
/// The parent given to the constructor is also the view handle whose unit counts while the user types; it is
/// compared, never followed, and stays when the field is put under another parent. An unregistered parent is
/// an inch view (and is logged at each edit). setText() is recorded like typing and is not validated.
///
/// A slot may delete the field at once when a member of this class or its view emitted; while setText() or a
/// key does, it must use deleteLater(), as with any QLineEdit.
///
/// Texts are read and written in the C locale. What the additions below do is off until asked for, and
/// changes no text.
class UIAPICOMMON_EXPORT KVLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool followView READ followView WRITE setFollowView)
    Q_PROPERTY(bool refusalHints READ refusalHints WRITE setRefusalHints)
    Q_PROPERTY(KVCAM::UIAPI::KVLineEdit::LengthScale lengthScale READ lengthScale WRITE setLengthScale)

public:
    /// Which unit of the pair a number in the field has.
    enum LengthScale : int
    {
        Small, ///< mil or micrometre
        Large  ///< inch or millimetre
    };
    Q_ENUM(LengthScale)

    ///@{
    /// Without a kind: any text, no validator, no unit.
    explicit KVLineEdit(QWidget * parent = nullptr);
    KVLineEdit(QString const & text, QWidget * parent);
    ///@}
    /// Installs the validator of the kind and records every edit.
    KVLineEdit(KVERegExp kind, QWidget * parent);
    /// As above; `text` is set last, unvalidated, and recorded.
    KVLineEdit(QString const & text, KVERegExp kind, QWidget * parent);
    ~KVLineEdit() override;

    /// Shows the text of a unit: 0 is inch, any other metric. Numbers: the text typed in that unit, else the
    /// typed number times or by 25.4 with six significant digits. Symbol names: the text typed in that unit,
    /// else the other one with its lengths divided by 25.4 (in both directions). Other kinds keep their text.
    void changeunit(int const & unit);

    // --- Additions ----------------------------------------------------------------------------------------

    /// The number last typed, in `unit` (0 inch, any other metric), converted from the unit it was typed in
    /// by exactly 25.4 and not rounded: 254.1234 typed in a metric view is 254.1234 again after any switches.
    /// An expression (RegExpression), whose text stays through a switch, is evaluated and read in the unit
    /// its view has now. A text that is no number counts as 0; a field of another kind gives NaN.
    double exactValue(int unit) const;
    /// The same number as a length, to the nearest nanometre, by lengthScale(). Saturates at the ends of
    /// qint64; exact below 9e15. 0 for a field that holds no number.
    qint64 exactLengthNm() const;
    ///@{
    /// Default Small.
    LengthScale lengthScale() const;
    void setLengthScale(LengthScale scale);
    ///@}

    /// From now on what is typed is checked at every edit as isValueLegal() would, but without a box: bounds
    /// in mil, nothing but the numbers counts, and a text that is no number is 0. With lengthScale() Large
    /// inches and millimetres are taken for what they are. A symbol name (kinds 7 to 9) is checked as by
    /// isSymbolValueLegal(); an expression is evaluated (an empty one is 0), and one with two non-digits in a
    /// row is not legal; any other kind is always legal. A number or name keeps its verdict through a unit
    /// switch; an expression, whose text stays, is judged anew. The verdict is told by validityChanged() and
    /// by the dynamic property "uiapiValid" (bool), which style sheets can select on: [uiapiValid="false"].
    void setRange(double minimum, double maximum);
    /// Ends the checks and removes the property.
    void clearRange();

    ///@{
    /// Whether the field shows its view's unit by itself whenever that changes. Default false. A view that is
    /// registered later is followed from then on.
    bool followView() const;
    void setFollowView(bool follow);
    ///@}

    ///@{
    /// Whether a refused key is explained in a tooltip and by inputRefused(). Default false.
    bool refusalHints() const;
    void setRefusalHints(bool enabled);
    ///@}

signals:
    /// The verdict of a field with a range, or the words of a bad one, changed. `text` says why it is not
    /// legal, with the bounds in the unit shown; empty for a legal one.
    void validityChanged(bool legal, QString text);
    /// A key was refused while refusal hints are on: what can be typed, in plain words.
    void inputRefused(QString text);

private slots:
    void on_textchanged(QString const & text);

private:
    struct Private;
    struct Quantity;

    void insertLimit();
    void restrictTo(KVERegExp kind);
    QString typedText() const;
    std::optional<Quantity> quantity() const;
    QString rangeWords(int unit) const;
    Ext::ValueVerdict verdict() const;
    void judge();
    void explainRefusal();

    Private * d; // owned
};

} // namespace KVCAM::UIAPI
