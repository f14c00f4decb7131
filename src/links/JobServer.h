#pragma once

#include <string>

/// The server that stores jobs. Request and answer are one line of JSON each, over TCP.
namespace KVCAM::UIAPI::JobServer {

/// Whether a text can be a job name: valid UTF-8, at most 255 bytes, no control character and, because it is
/// a folder name, none of "/", "\", ":" and neither "." nor "..".
bool isJobName(std::string const & name);

/// Makes the server delete a job: sends {"cmd":"deleteJob","job":...}; true on an answer with "ok": true.
///
/// `server` is an address or "localhost": a name look-up could take arbitrarily long. Waits `timeout`
/// milliseconds in total, but never more than 5 seconds, and 5 seconds if it is not positive. Also false for
/// an invalid name or port, and for an answer of more than 64 KiB.
bool deleteJob(std::string const & server, int port, int timeout, std::string const & job);

} // namespace KVCAM::UIAPI::JobServer
