#pragma once

#include <kvcam/Records.h>

/// The live engine. The library reports every change of a view's state here; any of these may throw.
namespace KVCAM::API {

///@{
/// The state of a view is this from now on.
KVCAM_API_EXPORT void set_show_para(show_param const & value);
KVCAM_API_EXPORT void set_selection(Selection const & value);
KVCAM_API_EXPORT void set_select_param(select_info value);
///@}

/// Fills the steps and layers of a job, in matrix order, replacing what the vectors held. The result is an
/// error text, empty on success.
KVCAM_API_EXPORT std::string get_matrix(std::string const & job, std::vector<std::string> & steps,
                                        std::vector<layer_info> & layers);

/// Opens a job: `path` is the folder that holds the job's folder, `job` the name of the latter.
KVCAM_API_EXPORT bool open_job(std::string const & path, std::string const & job);
/// Whether a job is open.
KVCAM_API_EXPORT bool is_job_opened(std::string job);

/// True if `name` is a standard symbol or a symbol of an open job; then type and the first two sizes are set.
KVCAM_API_EXPORT bool identify_symbol(std::string const & name, symboltype & type, int & first, int & second,
                                      bool flag);
/// The names of a job's own symbols, replacing what the vector held.
KVCAM_API_EXPORT void get_special_symbol_names(std::string const & job, std::vector<std::string> & names);

/// Prepares the undo history of a step; false means: call again.
KVCAM_API_EXPORT bool CorrectUndo(std::string const & job, std::string const & step);
/// The number of operations on a step that can be undone.
KVCAM_API_EXPORT int op_size(std::string const & job, std::string const & step);
/// Takes the latest operation on a step back; false when there is none.
KVCAM_API_EXPORT bool Undo(std::string const & job, std::string const & step);

/// The number of threads for the calculation of nets.
KVCAM_API_EXPORT void set_net_cal_thread(int count);
/// How the backups of layers are named.
KVCAM_API_EXPORT void set_backup_layername_info(back_layer_name_info const & info);

} // namespace KVCAM::API
