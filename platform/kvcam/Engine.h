#pragma once

#include <kvcam/Records.h>

/// \addtogroup engine_calls
/// The live engine. The library reports every change of a view's state here; any of these may throw.
namespace KVCAM::API {

///@{
/// Sets the current state of a view.
KVCAM_API_EXPORT void set_show_para(show_param const & value);
KVCAM_API_EXPORT void set_selection(Selection const & value);
KVCAM_API_EXPORT void set_select_param(select_info value);
///@}

/// Replaces the contents of the vectors with the steps and layers of a job, in matrix order. Returns an error
/// text, empty on success.
KVCAM_API_EXPORT std::string get_matrix(std::string const & job, std::vector<std::string> & steps,
                                        std::vector<layer_info> & layers);

/// Opens a job; false on failure. `path` is the folder that contains the job's folder, `job` the name of the
/// job's folder.
KVCAM_API_EXPORT bool open_job(std::string const & path, std::string const & job);
/// Whether a job is open.
KVCAM_API_EXPORT bool is_job_opened(std::string job);

/// True if `name` is a standard symbol or a symbol of an open job. Then sets the type and the first two
/// sizes, in the engine's units; the library uses only the answer and passes false for `flag`.
KVCAM_API_EXPORT bool identify_symbol(std::string const & name, symboltype & type, int & first, int & second,
                                      bool flag);
/// Replaces the contents of the vector with the names of a job's own symbols.
KVCAM_API_EXPORT void get_special_symbol_names(std::string const & job, std::vector<std::string> & names);

/// Prepares the undo history of a step. False means: call again.
KVCAM_API_EXPORT bool CorrectUndo(std::string const & job, std::string const & step);
/// The number of undoable operations on a step.
KVCAM_API_EXPORT int op_size(std::string const & job, std::string const & step);
/// Reverts the latest operation on a step; false when there is none.
KVCAM_API_EXPORT bool Undo(std::string const & job, std::string const & step);

/// Sets the number of threads for net calculation.
KVCAM_API_EXPORT void set_net_cal_thread(int count);
/// Sets how layer backups are named.
KVCAM_API_EXPORT void set_backup_layername_info(back_layer_name_info const & info);

} // namespace KVCAM::API
