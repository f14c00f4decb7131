#pragma once

#include <KVCAM_API.h>

#include <QColor>
#include <QString>

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace Workbench {

/// Whether a layer is of a type that has copper.
bool hasCopperType(KVCAM::API::layer_info const & layer);

/// The colour that a layer would like.
struct ColourWish
{
    QRgb colour = 0;
    bool isFixed = false; ///< given as it is, even if another layer has it
};

/// A colour for each wish. Those that are not fixed differ from all others: a wish is granted where the
/// colours given so far are different enough, and otherwise another colour is given, the most different one
/// of a palette while that lasts. All are dark enough for the light ground of a board.
std::vector<QRgb> distinctColours(std::vector<ColourWish> const & wishes);

/// How different two colours look, 0 to about 765.
double colourDistance(QRgb a, QRgb b);

/// The colours of the layers of the job that is shown. A colour that the user has chosen for a layer name
/// holds for layers of that name in every job. GUI thread, except for of().
class LayerColours
{
public:
    static LayerColours & shown();

    /// Assigns colours to the layers of a job.
    void setLayers(std::vector<KVCAM::API::layer_info> layers);
    /// Reads the colours that the user has chosen from a settings file, and keeps later ones there. What is
    /// no colour there is ignored.
    void useFile(QString const & file);
    /// Chooses the colour of a layer name; an invalid one gives it back its own.
    void choose(std::string const & layer, QColor const & colour);
    bool isChosen(std::string const & layer) const { return m_chosen.count(layer) != 0; }
    /// The colour of a layer, also of one that is not of the job. May be called in any thread.
    QColor of(KVCAM::API::layer_info const & layer) const;

private:
    void assign();

    QString m_file;                               // empty: nothing is kept
    std::vector<KVCAM::API::layer_info> m_layers; // of the job
    std::map<std::string, QRgb> m_chosen;         // by name
    mutable std::mutex m_mutex;                   // for what follows
    std::map<std::string, QRgb> m_colours;        // by name
};

} // namespace Workbench
