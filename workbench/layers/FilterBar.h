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
class QLabel;
class QPushButton;

namespace Workbench {

/// Narrows the layers of a job by type, context, side and polarity, and tells why one is left out. A field
/// without a text accepts every layer.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(Session const & session, QWidget * parent = nullptr);

    /// For each layer in matrix order whether it is accepted.
    std::vector<bool> const & matches() const { return m_matches; }
    int matchCount() const;
    /// Whether the other layers are to be hidden, else greyed.
    bool hidesOthers() const;
    /// What the fields ask for: the library's keys and the words joined by "|".
    QMap<QString, QString> request() const;
    /// Why the layers that are left out are, and which words select nothing.
    QString explanation() const;

    /// Fills the fields whose keys are given and empties the others.
    void ask(QMap<QString, QString> const & request);
    /// Shows the layers that analysis and checks read in place of those that the fields ask for.
    void askForAnalysis(bool on);
    /// The step that is shown.
    void setStep(std::string const & step);
    /// The layer, -1 for none, that the explanation is about.
    void setLayer(int layer);

signals:
    /// The layers that are accepted, or what becomes of the others.
    void changed();

private:
    struct Field;
    static Field const fields[];
    static constexpr std::size_t fieldCount = 4;

    void makeLayout();
    void setTexts();
    void refresh();
    void tell();
    QString fieldTitle(QString const & key) const;
    QString unmatchedText(KVCAM::UIAPI::Ext::LayerFilterFinding const & word) const;
    QString analysisText() const;

    QString m_job;
    QString m_step;
    std::vector<std::string> m_names; ///< of all layers
    int m_layer = -1;
    std::vector<bool> m_matches;
    KVCAM::UIAPI::Ext::LayerFilterReport m_report;
    std::array<QComboBox *, fieldCount> m_words{};
    std::array<QLabel *, fieldCount> m_titles{};
    QCheckBox * m_hides;
    QPushButton * m_analysis;
    QPushButton * m_clear;
    QLabel * m_count;
    QLabel * m_explanation;
};

} // namespace Workbench
