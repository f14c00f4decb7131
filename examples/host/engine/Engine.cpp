// The smallest engine that works with the library: it prints what it receives and has no jobs. Every function
// declared in the headers of platform/ needs a definition here or in PluginManager.cpp.

#include <KVCAM_API.h>

#include <cstddef>
#include <cstdio>
#include <utility>

namespace KVCAM::API {

void set_show_para(show_param const & value)
{
    std::printf("engine: views show %s\n", value.unit == 0 ? "inches" : "millimetres");
}

void set_selection(Selection const & value)
{
    std::printf("engine: selection %s touching features\n", value.touching ? "takes" : "leaves");
}

void set_select_param(select_info value)
{
    std::printf("engine: selected parameter %d\n", value.selected_para);
}

void set_net_cal_thread(int count)
{
    std::printf("engine: %d threads\n", count);
}

void set_backup_layername_info(back_layer_name_info const & info)
{
    std::printf("engine: backups of layers end in \"%s\"\n", info.suffix.c_str());
}

std::string get_matrix(std::string const & job, std::vector<std::string> & steps,
                       std::vector<layer_info> & layers)
{
    steps.clear();
    layers.clear();
    return "no job " + job;
}

bool open_job(std::string const & /*path*/, std::string const & /*job*/)
{
    return false;
}

bool is_job_opened(std::string /*job*/)
{
    return false;
}

bool identify_symbol(std::string const & /*name*/, symboltype & /*type*/, int & /*first*/, int & /*second*/,
                     bool /*flag*/)
{
    return false;
}

void get_special_symbol_names(std::string const & /*job*/, std::vector<std::string> & names)
{
    names.clear();
}

bool CorrectUndo(std::string const & /*job*/, std::string const & /*step*/)
{
    return true; // false would mean: call again
}

int op_size(std::string const & /*job*/, std::string const & /*step*/)
{
    return 0;
}

bool Undo(std::string const & /*job*/, std::string const & /*step*/)
{
    return false;
}

// The members of the answer to a check. The engine instantiates them for the items that it answers.
template <class Item, class Info>
void check_reply<Item, Info>::add(Item item, int level, Info info)
{
    if (level >= 0 && level < 3) {
        m_lists[item][std::size_t(level)].push_back(std::move(info));
    }
}

template <class Item, class Info>
std::vector<Info> const & check_reply<Item, Info>::list(Item item, int level) const
{
    static std::vector<Info> const none;
    auto const found = m_lists.find(item);
    return found == m_lists.end() || level < 0 || level > 2 ? none : found->second[std::size_t(level)];
}

template class check_reply<drill_check_item, check_info>;

} // namespace KVCAM::API

// The save flag is off, so the other functions here are never called.
namespace KVCAM::DB {

bool get_SaveFlag()
{
    return false;
}

void set_show_para_db_save(API::show_param const & /*value*/) {}
void set_selection_db_save(API::Selection const & /*value*/) {}
void set_select_param_db_save(API::select_info /*value*/) {}
void CorrectUndo_db_save(std::string const & /*job*/, std::string const & /*step*/) {}
void op_size_db_save(std::string const & /*job*/, std::string const & /*step*/) {}
void Undo_db_save(std::string const & /*job*/, std::string const & /*step*/) {}

} // namespace KVCAM::DB

namespace Common {

std::string getPath()
{
    return {}; // the current directory
}

std::string getPath_config()
{
    return "config";
}

std::string getPath_rangesconfig()
{
    return "config/ranges";
}

} // namespace Common
