#pragma once

#include <string>

/// The server that keeps jobs. A request is one line of JSON over TCP, and so is the answer.
namespace KVCAM::UIAPI::JobServer {

/// Whether a text can be a job's name: valid UTF-8, at most 255 bytes, no control character, and, as the name
/// is that of a folder, none of "/", "\", ":" and neither "." nor "..".
bool isJobName(std::string const & name);

/// Has the server delete a job: sends {"cmd":"deleteJob","job":...} and true on an answer with "ok": true.
///
/// `server` is an address or "localhost": looking a name up could take any time. Waits `timeout` milliseconds
/// in all, but never more than 5 seconds, and 5 seconds when it is not positive. False, too, for a name or a
/// port that cannot be, and for an answer of more than 64 KiB.
bool deleteJob(std::string const & server, int port, int timeout, std::string const & job);

} // namespace KVCAM::UIAPI::JobServer
