#pragma once

#include <kvcam/Records.h>

#include <QImage>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// The records that the modules share about a graphic view. All are plain aggregates.
namespace KVCAM::UIAPI {

using KVCAM::API::back_layer_name_info;
using KVCAM::API::check_info;
using KVCAM::API::layer_info;
using KVCAM::API::point;
using KVCAM::API::select_info;
using KVCAM::API::Selection;
using KVCAM::API::show_param;

/// The UI language.
enum LANGUAGE_MODE : int
{
    LANGUAGE_CHINESE = 0,
    LANGUAGE_ENGLISH = 1
};

/// What the pointer snaps to. Any other number may be stored too; it is handed back as it is.
enum SNAP_TYPE_MODE : int
{
    SNAP_OFF = 0,
    SNAP_GRID = 1,
    SNAP_CENTER = 2,
    SNAP_SKELETON = 3,
    SNAP_EDGE = 4,
    SNAP_INTERSECT = 5,
    SNAP_MIDPOINT = 6,
    SNAP_ADVANCED = 7, ///< the mode of a view that is not known
    SNAP_ARC = 8,
    SNAP_PROFILE = 9
};

/// Snap settings of a view.
struct Snap_Control
{
    int first = 127;                     ///< carried, not interpreted
    SNAP_TYPE_MODE mode = SNAP_ADVANCED; ///< what is snapped to
    int size = 5;                        ///< the snap size; not interpreted here
};

/// Features of one layer, as the engine hands them out.
using FeatureList = std::vector<KVCAM::API::feature_info>;

/// What a view holds for copy and paste.
struct Edit_Buffer
{
    std::map<std::string, FeatureList> features; ///< by layer name
    QImage image;                                ///< their picture
};

/// The coordinate read-out of a view, in micrometres.
struct coordinate
{
    double x = 0; ///< the abscissa
    double y = 0; ///< the ordinate
};

/// Everything the library keeps about one view. The view handle is the key: any address that names the view,
/// compared and never followed.
struct Step_Config
{
    void const * view = nullptr;         ///< the handle
    KVCAM::API::select_info select_info; ///< pushed to the engine
    Snap_Control snap;                   ///< kept here alone
    KVCAM::API::show_param show_param;   ///< pushed to the engine
    KVCAM::API::Selection selection;     ///< pushed to the engine
    Edit_Buffer edit_buffer;             ///< kept here alone
    KVCAM::UIAPI::coordinate coordinate; ///< kept here alone
};

/// Layers that the host marks across views. The library hands it out and does not read it.
struct LayerState
{
    std::map<std::string, int> layers;  ///< state by layer name
    std::vector<std::string> displayed; ///< in display order
};

/// How the document-management system is reached. Stored and returned, not interpreted.
struct DMS_Connections
{
    ///@{
    /// Its meaning is the modules' that share it.
    int first = 0;
    QString second;
    QString third;
    QString fourth;
    ///@}
};

} // namespace KVCAM::UIAPI
