#pragma once

#include <kvcam/Records.h>

#include <QImage>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// \addtogroup view_records
/// The records of a graphic view that the modules share. All are plain aggregates.
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

/// What the pointer snaps to. Any other number may be stored too and is returned unchanged.
enum SNAP_TYPE_MODE : int
{
    SNAP_OFF = 0,
    SNAP_GRID = 1,
    SNAP_CENTER = 2,
    SNAP_SKELETON = 3,
    SNAP_EDGE = 4,
    SNAP_INTERSECT = 5,
    SNAP_MIDPOINT = 6,
    SNAP_ADVANCED = 7, ///< the mode of an unknown view
    SNAP_ARC = 8,
    SNAP_PROFILE = 9
};

/// Snap settings of a view.
struct Snap_Control
{
    int first = 127;                     ///< stored, not interpreted
    SNAP_TYPE_MODE mode = SNAP_ADVANCED; ///< what is snapped to
    int size = 5;                        ///< the snap size; not interpreted here
};

/// Features of one layer, as returned by the engine.
using FeatureList = std::vector<KVCAM::API::feature_info>;

/// What a view holds for copy and paste.
struct Edit_Buffer
{
    std::map<std::string, FeatureList> features; ///< by layer name
    QImage image;                                ///< a picture of the features
};

/// The coordinate read-out of a view, in micrometres.
struct coordinate
{
    double x = 0; ///< the abscissa
    double y = 0; ///< the ordinate
};

/// Everything the library keeps about one view. The view handle is the key: any address that identifies the
/// view; compared, never dereferenced.
struct Step_Config
{
    void const * view = nullptr;         ///< the handle
    KVCAM::API::select_info select_info; ///< pushed to the engine
    Snap_Control snap;                   ///< kept only here
    KVCAM::API::show_param show_param;   ///< pushed to the engine
    KVCAM::API::Selection selection;     ///< pushed to the engine
    Edit_Buffer edit_buffer;             ///< kept only here
    KVCAM::UIAPI::coordinate coordinate; ///< kept only here
};

/// Layers that the host marks across views. The library returns it and never reads it.
struct LayerState
{
    std::map<std::string, int> layers;  ///< state by layer name
    std::vector<std::string> displayed; ///< in display order
};

/// Connection settings of the document-management system. Stored and returned, not interpreted.
struct DMS_Connections
{
    ///@{
    /// The modules that share it define its meaning.
    int first = 0;
    QString second;
    QString third;
    QString fourth;
    ///@}
};

} // namespace KVCAM::UIAPI
