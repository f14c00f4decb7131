#pragma once

#include <kvcam/Records.h>

/// \addtogroup engine_twins
/// The engine's database twins. While the save flag is on, each is called before its live call.
namespace KVCAM::DB {

/// Whether the twins are called.
KVCAM_API_EXPORT bool get_SaveFlag();

///@{
/// Saves the argument of the corresponding live call, which follows.
KVCAM_API_EXPORT void set_show_para_db_save(KVCAM::API::show_param const & value);
KVCAM_API_EXPORT void set_selection_db_save(KVCAM::API::Selection const & value);
KVCAM_API_EXPORT void set_select_param_db_save(KVCAM::API::select_info value);
///@}

///@{
/// Records that the corresponding live call follows.
KVCAM_API_EXPORT void CorrectUndo_db_save(std::string const & job, std::string const & step);
KVCAM_API_EXPORT void op_size_db_save(std::string const & job, std::string const & step);
KVCAM_API_EXPORT void Undo_db_save(std::string const & job, std::string const & step);
///@}

} // namespace KVCAM::DB
