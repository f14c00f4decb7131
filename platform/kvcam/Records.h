#pragma once

#include <kvcam/Export.h>

#include <array>
#include <map>
#include <string>
#include <vector>

/// The engine's records. They are plain data; all text is UTF-8.
namespace KVCAM::API {

/// A position in micrometres.
struct point
{
    double x = 0; ///< the abscissa
    double y = 0; ///< the ordinate
};

/// How a view is shown.
struct show_param
{
    /// 0 inch (small unit mil), 1 millimetre (small unit micrometre).
    int unit = 0;
    ///@{
    /// The engine's; the library stores and pushes it.
    int width = 0;
    bool negative = false;
    bool textax = true;
    bool profile = true;
    ///@}
};

/// What a selection in a view takes in.
struct Selection
{
    ///@{
    /// The engine's; the library stores and pushes it.
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
    int selected_para = 0; ///< the selected parameter; its meaning is the engine's
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

/// How the engine names the backup of a layer.
struct back_layer_name_info
{
    bool use_suffix = false;    ///< whether the suffix is used
    std::string suffix = "+++"; ///< of the backup's name
};

/// One violation or measurement of a check.
struct check_info
{
    int type = 0;            ///< its kind
    int value = 0;           ///< mil
    std::vector<int> points; ///< micrometres; how many there are depends on the kind
};

/// One feature of a layer as an edit buffer holds it.
struct feature_info
{
    int index = 0;             ///< in the order of the layer
    char kind = 'P';           ///< 'P' pad, 'L' line, 'A' arc, 'S' surface
    std::string symbol;        ///< empty for a surface
    bool positive = true;      ///< the polarity
    std::vector<point> points; ///< the feature's own, in the order of its record
};

///@{
/// The numbers belong to the engine. The underlying type is fixed, so that any number may be cast to it.
enum symboltype : int;
enum drill_check_item : int;
enum signal_layers_checks_items : int;
///@}

/// The engine's answer to a check: for each item up to three lists, at the levels 0, 1 and 2.
template <class Item, class Info>
class KVCAM_API_EXPORT check_reply
{
public:
    /// Appends to the list of an item and level; a level other than 0, 1 and 2 is ignored.
    void add(Item item, int level, Info info);
    /// The list of an item and level; an empty list when there is none. Valid until the next add().
    std::vector<Info> const & list(Item item, int level) const;

private:
    std::map<Item, std::array<std::vector<Info>, 3>> m_lists;
};

// The engine's own sources instantiate it instead: a declaration cannot export.
#if !defined(KVCAM_API_BUILD)
extern template class KVCAM_API_EXPORT check_reply<drill_check_item, check_info>;
#endif

/// The engine's answer to one item of a signal-layer check.
struct signal_check_result
{
    std::array<std::vector<check_info>, 4> lists; ///< findings, in four groups
};

} // namespace KVCAM::API
