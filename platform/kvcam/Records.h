#pragma once

#include <kvcam/Export.h>

#include <array>
#include <map>
#include <string>
#include <vector>

/// \addtogroup engine_records
/// The engine's records. They are plain data; all text is UTF-8.
namespace KVCAM::API {

/// A position in micrometres.
struct point
{
    double x = 0; ///< x coordinate
    double y = 0; ///< y coordinate
};

/// How a view is shown.
struct show_param
{
    /// 0 inch (small unit mil), 1 millimetre (small unit micrometre).
    int unit = 0;
    ///@{
    /// Defined by the engine; the library stores and pushes it.
    int width = 0;
    bool negative = false;
    bool textax = true;
    bool profile = true;
    ///@}
};

/// What a selection in a view includes.
struct Selection
{
    ///@{
    /// Defined by the engine; the library stores and pushes it.
    bool select = false;
    bool clear = false;
    bool display = false;
    bool operation = false;
    bool location = false;
    bool touching = false;
    ///@}
};

/// What is selected.
struct select_info
{
    int selected_para = 0; ///< the selected parameter; its meaning is up to the engine
};

/// One layer of a job's matrix.
struct layer_info
{
    std::string context;  ///< lower case: "board"
    std::string type;     ///< lower case: "signal"
    std::string name;     ///< lower case
    std::string polarity; ///< "POS" or "NEG"
    int row = 0;          ///< counts from 1 at the top of the board
};

/// How the engine names layer backups.
struct back_layer_name_info
{
    bool use_suffix = false;    ///< whether to use the suffix
    std::string suffix = "+++"; ///< of the backup's name
};

/// One violation or measurement of a check.
struct check_info
{
    int type = 0;  ///< its kind
    int value = 0; ///< mil, rounded down
    std::vector<int>
        points; ///< micrometres: coordinates, then measured values; the count depends on the kind
};

/// One feature of a layer, as in an edit buffer.
struct feature_info
{
    int index = 0;             ///< in layer order
    char kind = 'P';           ///< 'P' pad, 'L' line, 'A' arc, 'S' surface
    std::string symbol;        ///< empty for a surface
    bool positive = true;      ///< the polarity
    std::vector<point> points; ///< in the order of the feature's record
};

///@{
/// The values are defined by the engine. The fixed underlying type allows casting any number to it.
enum symboltype : int;
enum drill_check_item : int;
enum signal_layers_checks_items : int;
///@}

/// The engine's answer to a check: for each item up to three lists, at levels 0, 1 and 2.
template <class Item, class Info>
class KVCAM_API_EXPORT check_reply
{
public:
    /// Appends to the list of an item and level; levels other than 0, 1 and 2 are ignored.
    void add(Item item, int level, Info info);
    /// The list of an item and level; empty if there is none. Valid until the next add().
    std::vector<Info> const & list(Item item, int level) const;

private:
    std::map<Item, std::array<std::vector<Info>, 3>> m_lists;
};

// The engine's own sources instantiate it instead: an extern declaration cannot export.
#if !defined(KVCAM_API_BUILD)
extern template class KVCAM_API_EXPORT check_reply<drill_check_item, check_info>;
#endif

/// The engine's answer to one item of a signal-layer check.
struct signal_check_result
{
    std::array<std::vector<check_info>, 4> lists; ///< findings, in four groups
};

} // namespace KVCAM::API
