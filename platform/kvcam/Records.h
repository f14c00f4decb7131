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
    double x = 0;
    double y = 0;
};

/// How a view is shown. `unit` is 0 for inch (small unit mil) and 1 for millimetre (small unit micrometre).
struct show_param
{
    int unit = 0;
    int width = 0;
    bool negative = false;
    bool textax = true;
    bool profile = true;
};

/// What a selection in a view takes in.
struct Selection
{
    bool select = false;
    bool clear = false;
    bool display = false;
    bool operation = false;
    bool location = false;
    bool touching = false;
};

struct select_info
{
    int selected_para = 0;
};

/// One layer of a job's matrix. Context and type are lower case ("board", "signal"), polarity is "POS" or
/// "NEG", the name is lower case; rows count from 1 at the top of the board.
struct layer_info
{
    std::string context;
    std::string type;
    std::string name;
    std::string polarity;
    int row = 0;
};

/// How the engine names the backup of a layer.
struct back_layer_name_info
{
    bool use_suffix = false;
    std::string suffix = "+++";
};

/// One violation or measurement of a check: its kind, its value in mil, and its measured points in
/// micrometres (how many there are depends on the kind).
struct check_info
{
    int type = 0;
    int value = 0;
    std::vector<int> points;
};

/// One feature of a layer as an edit buffer holds it: `kind` is 'P' pad, 'L' line, 'A' arc or 'S' surface;
/// the symbol is empty for a surface; points are the feature's own, in the order of its record.
struct feature_info
{
    int index = 0;
    char kind = 'P';
    std::string symbol;
    bool positive = true;
    std::vector<point> points;
};

// The numbers of these enumerations belong to the engine. The underlying type is fixed, so that any number
// may be cast to them.
enum symboltype : int;
enum drill_check_item : int;
enum signal_layers_checks_items : int;

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
    std::array<std::vector<check_info>, 4> lists;
};

} // namespace KVCAM::API
