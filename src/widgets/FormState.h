#pragma once

#include "../support/Finding.h"
#include "../support/Result.h"
#include "UIAPICommonExport.h"

#include <QJsonObject>
#include <QObject>
#include <QString>

#include <vector>

class QWidget;

/// \addtogroup forms
namespace KVCAM::UIAPI::Ext {

/// Why a widget of a form is not saved.
/// \since 0.1
enum class FormFindingKind : int
{
    Unnamed,       ///< it has no object name
    DuplicateName, ///< an earlier one has the same object name
    Unsupported    ///< it takes input, but has no value that can be saved
};

/// `where` is the object name, or the class for a widget without one.
/// \since 0.1
using FormFinding = Finding<FormFindingKind>;

/// Saves and restores what a user has entered in a form, by object name:
///
/// - every widget with a writable USER property that is a number, a truth value, a text, an Ext::Length or
///   convertible to text and back: line edits, spin boxes, check boxes, sliders, text edits, date edits,
///   checkable group boxes, and what derives from them. Lengths are exact, whatever unit is shown;
/// - KVLineEdit of a unit-tracked kind: the text as it was typed, and its unit;
/// - combo boxes: by the item's data, else by its text, which an editable one takes even without an item;
/// - exclusive QButtonGroups with a name: by the checked button's id. Other buttons by themselves.
///
/// Not saved are password fields, windows below the form, what is inside a saved widget, a list or a table,
/// and each widget with the dynamic property `leaveOutProperty` set to true, with all that it contains; of
/// widgets with the same name only the first. audit() lists what is missed.
///
/// The form is not owned, and a destroyed one counts as empty. GUI thread only.
/// \since 0.1
class UIAPICOMMON_EXPORT FormState : public QObject
{
    Q_OBJECT

public:
    /// The version that is written and read.
    static constexpr int version = 1;
    /// The dynamic property that leaves a widget out.
    static constexpr char const * leaveOutProperty = "uiapiLeaveOut";

    /// The values that the form has now are its defaults, and it is not dirty. `form` must not be null.
    explicit FormState(QWidget * form, QObject * parent = nullptr);
    ~FormState() override;

    /// Takes up widgets that were added or renamed since: the values that they have are their defaults.
    void refresh();

    /// {"format", "version", "fields": {name: value}}.
    QJsonObject toJson() const;
    /// Restores the values of those fields that the form has; all other fields stay. The form is not changed
    /// if the object is no saved form, of another version, or holds a value of a wrong type. A combo box
    /// without the item and a group without the button stay as they are.
    Result fromJson(QJsonObject const & json);

    /// Writes toJson() to a file, which is replaced whole. If that succeeds, the form is not dirty.
    Result save(QString const & path);
    /// fromJson() from a file; the form is not dirty then.
    Result load(QString const & path);

    /// Whether a value differs from that at the last save, load, reset or start.
    bool isDirty() const;
    /// Puts the defaults back. The form is dirty if they differ from what was last saved.
    void resetToDefaults();

    /// What save() would miss, in the order of the widgets.
    [[nodiscard]] static std::vector<FormFinding> audit(QWidget const & form);

signals:
    /// A value changed, whoever changed it; once for a load or reset. A widget whose property has no change
    /// signal is not noticed. Showing another unit is no change.
    void changed();

private slots:
    void noteChange();

private:
    struct Private;

    void restore(QJsonObject const & values);

    Private * d; // owned
};

} // namespace KVCAM::UIAPI::Ext
