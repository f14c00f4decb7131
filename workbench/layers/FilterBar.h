#pragma once

#include "job/Session.h"

#include <UIAPICommon.h>

#include <QMap>
#include <QWidget>

#include <array>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace Workbench {

/// Filters the layers of a job by name, type, context, side and polarity, and explains why one is left out.
/// An empty field accepts every layer. All but the name is folded away until it is wanted.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(Session const & session, QWidget * parent = nullptr);

    /// For each layer in matrix order, whether it is accepted.
    std::vector<bool> const & matches() const { return m_matches; }
    int matchCount() const;
    /// Whether to hide the other layers rather than grey them.
    bool hidesOthers() const;
    /// The request in the fields: the library's keys, with words joined by "|".
    QMap<QString, QString> request() const;
    /// Why layers are left out, and which words match nothing.
    QString explanation() const;

    /// Filters by name as well: words as isAskedFor() takes them.
    void setName(QString const & words);
    /// Fills the fields whose keys are given and clears the others, the name too.
    void ask(QMap<QString, QString> const & request);
    /// Shows the layers that analysis and checks read, instead of those requested by the fields.
    void askForAnalysis(bool on);
    /// Sets the step that is shown.
    void setStep(std::string const & step);
    /// Sets the layer that the explanation is about; -1 for none.
    void setLayer(int layer);

signals:
    /// The accepted layers, or the treatment of the others, have changed.
    void changed();

private:
    struct Field;
    static Field const fields[];
    static constexpr std::size_t fieldCount = 4;

    void makeLayout();
    void makeFields(QGridLayout & layout);
    void setTexts();
    void refresh();
    void showExplanation();
    QString fieldTitle(QString const & key) const;
    QString unmatchedText(KVCAM::UIAPI::Ext::LayerFilterFinding const & word) const;
    QString analysisText() const;
    QString verdictText(std::size_t layer) const;
    bool isNamed(std::size_t layer) const;

    QString m_job;
    QString m_step;
    std::vector<std::string> m_names; ///< of all layers
    int m_layer = -1;
    std::vector<bool> m_matches;
    KVCAM::UIAPI::Ext::LayerFilterReport m_report;
    QLineEdit * m_name;
    QLabel * m_nameTitle;
    std::array<QComboBox *, fieldCount> m_words{};
    std::array<QLabel *, fieldCount> m_titles{};
    QCheckBox * m_hides;
    QPushButton * m_analysis;
    QPushButton * m_clear;
    QLabel * m_count;
    QToolButton * m_more;
    QWidget * m_folded;
    QLabel * m_explanation;
};

} // namespace Workbench
