// Every function that a host provides, with the recording engine behind it.

#include "UIAPICommonTest/RecordingEngine.h"

#include "checks/CheckReply.h"

#include <KVCAM_API.h>

#include <sstream>

namespace KVCAM::Testing {
namespace {

template <class... Values>
std::string list(Values const &... values)
{
    std::ostringstream out;
    out << std::boolalpha;
    char const * separator = "";
    ((out << separator << values, separator = " "), ...);
    return out.str();
}

std::string show(API::show_param const & p)
{
    return list(p.unit, p.width, p.negative, p.textax, p.profile);
}

std::string show(API::Selection const & s)
{
    return list(s.select, s.clear, s.display, s.operation, s.location, s.touching);
}

RecordingEngine & engine()
{
    return RecordingEngine::get();
}

} // namespace

} // namespace KVCAM::Testing

using KVCAM::Testing::engine;
using KVCAM::Testing::list;
using KVCAM::Testing::show;

namespace KVCAM::API {

template class KVCAM_API_EXPORT check_reply<drill_check_item, check_info>;

void set_show_para(show_param const & value)
{
    engine().called("API", "set_show_para", show(value));
}

void set_selection(Selection const & value)
{
    engine().called("API", "set_selection", show(value));
}

void set_select_param(select_info value)
{
    engine().called("API", "set_select_param", list(value.selected_para));
}

std::string get_matrix(std::string const & job, std::vector<std::string> & steps,
                       std::vector<layer_info> & layers)
{
    engine().called("API", "get_matrix", job);
    steps = engine().steps;
    layers = engine().layers;
    return engine().matrixError;
}

bool open_job(std::string const & path, std::string const & job)
{
    engine().called("API", "open_job", list(path, job));
    if (engine().opensJobs) {
        engine().openJobs.insert(job);
    }
    return engine().opensJobs;
}

bool is_job_opened(std::string job)
{
    engine().called("API", "is_job_opened", job);
    return engine().openJobs.count(job) != 0;
}

bool identify_symbol(std::string const & name, symboltype & type, int & first, int & second, bool flag)
{
    engine().called("API", "identify_symbol", list(name, flag));
    type = static_cast<symboltype>(0);
    first = 0;
    second = 0;
    return engine().identifies;
}

void get_special_symbol_names(std::string const & job, std::vector<std::string> & names)
{
    engine().called("API", "get_special_symbol_names", job);
    names = engine().specialSymbols[job];
}

bool CorrectUndo(std::string const & job, std::string const & step)
{
    engine().called("API", "CorrectUndo", list(job, step));
    return engine().correctUndoFailures-- <= 0;
}

int op_size(std::string const & job, std::string const & step)
{
    engine().called("API", "op_size", list(job, step));
    return engine().operations;
}

bool Undo(std::string const & job, std::string const & step)
{
    engine().called("API", "Undo", list(job, step));
    return true;
}

void set_net_cal_thread(int count)
{
    engine().called("API", "set_net_cal_thread", list(count));
    engine().threadCount = count;
}

void set_backup_layername_info(back_layer_name_info const & info)
{
    engine().called("API", "set_backup_layername_info", list(info.use_suffix, info.suffix));
    engine().backup = info;
}

} // namespace KVCAM::API

namespace KVCAM::DB {

bool get_SaveFlag()
{
    engine().called("DB", "get_SaveFlag");
    return engine().saveFlag;
}

void set_show_para_db_save(API::show_param const & value)
{
    engine().called("DB", "set_show_para_db_save", show(value));
}

void set_selection_db_save(API::Selection const & value)
{
    engine().called("DB", "set_selection_db_save", show(value));
}

void set_select_param_db_save(API::select_info value)
{
    engine().called("DB", "set_select_param_db_save", list(value.selected_para));
}

void CorrectUndo_db_save(std::string const & job, std::string const & step)
{
    engine().called("DB", "CorrectUndo_db_save", list(job, step));
}

void op_size_db_save(std::string const & job, std::string const & step)
{
    engine().called("DB", "op_size_db_save", list(job, step));
}

void Undo_db_save(std::string const & job, std::string const & step)
{
    engine().called("DB", "Undo_db_save", list(job, step));
}

} // namespace KVCAM::DB

namespace Common {

std::string getPath()
{
    engine().consult("getPath");
    return engine().root;
}

std::string getPath_config()
{
    engine().consult("getPath_config");
    return engine().configFolder;
}

std::string getPath_rangesconfig()
{
    engine().consult("getPath_rangesconfig");
    return engine().rangesFolder;
}

} // namespace Common

QTpluginsManger4CAM * QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    return engine().hasPluginManager ? &manager : nullptr;
}

void QTpluginsManger4CAM::recMegToPlugin(void * data, PluginMetaData meta)
{
    engine().pluginData.push_back(data);
    engine().called("Plugin", "recMegToPlugin",
                    list(meta.module.toStdString(), meta.command, meta.key.toStdString()));
}
