#pragma once

#include <kvcam/Records.h>

/// The engine's database twins. While the save flag is on, each is called before the live call it belongs to.
namespace KVCAM::DB {

/// Whether the twins are called.
KVCAM_API_EXPORT bool get_SaveFlag();

///@{
/// Saves what the live call of the like name is told next.
KVCAM_API_EXPORT void set_show_para_db_save(KVCAM::API::show_param const & value);
KVCAM_API_EXPORT void set_selection_db_save(KVCAM::API::Selection const & value);
KVCAM_API_EXPORT void set_select_param_db_save(KVCAM::API::select_info value);
///@}

///@{
/// Notes that the live call of the like name follows.
KVCAM_API_EXPORT void CorrectUndo_db_save(std::string const & job, std::string const & step);
KVCAM_API_EXPORT void op_size_db_save(std::string const & job, std::string const & step);
KVCAM_API_EXPORT void Undo_db_save(std::string const & job, std::string const & step);
///@}

} // namespace KVCAM::DB
